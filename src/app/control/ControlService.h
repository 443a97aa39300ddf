#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QVariantMap>

namespace velto {

class ControlTarget;

// The running instance's side of the command line: an object on the session bus whose methods call the same
// operations as the menu and the pre-break card. Main thread only.
class ControlService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velto.app.Control")

public:
    enum class Registration {
        Owner,           // this process now owns the name: it is the one instance
        AnotherInstance, // another process owns it: hand the request over and exit
        NoBus,           // no usable session bus: run anyway, without the single-instance guarantee
    };
    Q_ENUM(Registration)

    explicit ControlService(QObject* parent = nullptr);
    ~ControlService() override;

    // target must outlive this service. Until a target is set, calls are answered with an error; the name can
    // therefore be claimed before the application is built, so a second instance never builds one.
    void setTarget(ControlTarget* target) { m_target = target; }
    [[nodiscard]] ControlTarget* target() const { return m_target; }

    // Exports the object, then asks for the service name without queueing: of two processes starting at once the
    // bus gives it to exactly one. Blocks for at most the call time-out.
    [[nodiscard]] Registration registerOn(QDBusConnection bus);
    [[nodiscard]] Registration registerOnSessionBus() { return registerOn(QDBusConnection::sessionBus()); }
    // Convenience for the start-up path: set the target and claim the name in one step.
    [[nodiscard]] Registration registerOnSessionBus(ControlTarget& target);

public Q_SLOTS:
    Q_SCRIPTABLE QVariantMap status();
    Q_SCRIPTABLE void takeBreakNow();
    Q_SCRIPTABLE void startLongBreak();
    Q_SCRIPTABLE void pauseFor(double seconds);
    Q_SCRIPTABLE void resume();
    Q_SCRIPTABLE void skipUpcomingBreak();
    Q_SCRIPTABLE void setRemindersEnabled(bool enabled);
    // False when there is no settings window to open.
    Q_SCRIPTABLE bool openSettings();
    // Replies first; the application quits on the next turn of the event loop.
    Q_SCRIPTABLE void quit();
    Q_SCRIPTABLE void triggerTestPreBreakNotification();
    // Answers when the check ends: its outcome in one line, or an error carrying it when the check failed.
    Q_SCRIPTABLE QString checkForUpdates();

private:
    // The target when there is one; otherwise answers the call with an error and returns null.
    [[nodiscard]] ControlTarget* readyTarget();

    ControlTarget* m_target = nullptr;
    QString m_connectionName;
    bool m_registered = false;
};

} // namespace velto
