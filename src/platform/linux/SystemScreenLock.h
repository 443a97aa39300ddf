#pragma once

#include "scheduling/ScreenLocking.h"

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QObject>

#include <functional>

class QDBusMessage;

namespace velto {

// Locks the session over D-Bus: first the desktop's screen saver (org.freedesktop.ScreenSaver, at either of
// the paths desktops use), then logind, which asks whatever locker the session runs. Every call is
// asynchronous with a short timeout, so a hung service delays the lock by a fraction of a second and never
// holds up the main thread.
class SystemScreenLock final : public QObject, public ScreenLocking {
    Q_OBJECT

public:
    // Uses the session's own buses.
    explicit SystemScreenLock(QObject* parent = nullptr);
    SystemScreenLock(QDBusConnection sessionBus, QDBusConnection systemBus, QObject* parent = nullptr);

    // Whether the screen saver or logind is on its bus right now; remembered for two seconds. Asking the bus
    // daemons is synchronous but bounded: at most one call timeout per bus, and immediate without a bus.
    [[nodiscard]] bool isLockAvailable() const override;
    void lockScreen() override;

    // The longest any single D-Bus call may take, in milliseconds.
    static constexpr int callTimeout = 250;

Q_SIGNALS:
    // After each lockScreen(), once a lock method accepted the request or all of them failed.
    void lockAttemptFinished(bool locked);

private:
    void tryScreenSaver(qsizetype pathIndex);
    void tryLogind();
    void lockLogindSession(const QString& sessionPath);
    void finish(bool locked, const QString& error);
    void callAsync(const QDBusConnection& bus, const QDBusMessage& message,
                   std::function<void(const QDBusMessage& reply)> onReply);

    QDBusConnection m_sessionBus;
    QDBusConnection m_systemBus;
    mutable bool m_available = false;
    mutable QDeadlineTimer m_availableUntil;
    bool m_reportedFailure = false;
};

} // namespace velto
