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

// The longest pause the bus accepts, the command line's limit: a day. Longer ones would outlast the timers that
// end them, and nobody means them.
inline constexpr double longestPauseSeconds = 24 * 60 * 60;

// Every call gives up after this long: a hung instance must not hang the command line or a second start.
inline constexpr int callTimeoutMs = 5000;

} // namespace velto::ControlBus
