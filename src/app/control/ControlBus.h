#pragma once

#include <QString>

namespace velto::ControlBus {

// Where the running instance answers on the session bus. Owning the service name is also the single-instance
// lock: whoever holds it is the one Velto that runs.
inline const QString serviceName = QStringLiteral("com.velto.app");
inline const QString objectPath = QStringLiteral("/com/velto/app");
inline const QString interfaceName = QStringLiteral("com.velto.app.Control");

// Errors the service sends back.
inline const QString notReadyError = QStringLiteral("com.velto.app.Error.NotReady");
inline const QString invalidArgumentError = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
inline const QString updateCheckFailedError = QStringLiteral("com.velto.app.Error.UpdateCheckFailed");

// The longest pause the bus accepts, the command line's limit: a day. Longer ones would outlast the timers that
// end them, and nobody means them.
inline constexpr double longestPauseSeconds = 24 * 60 * 60;

// Every call gives up after this long: a hung instance must not hang the command line or a second start.
inline constexpr int callTimeoutMs = 5000;
// Except an update check, which waits for the network: the updater gives up after 30 s.
inline constexpr int updateCheckTimeoutMs = 40000;

} // namespace velto::ControlBus
