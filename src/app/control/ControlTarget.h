#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

namespace velto {

// What `velto status` reports: the menu's status line and time text, the scheduler's state and pause reason
// by their raw names, and the day's count.
struct ControlStatus {
    Q_GADGET
    Q_PROPERTY(QString statusLine MEMBER statusLine)
    Q_PROPERTY(QString localStatusLine MEMBER localStatusLine)
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString state MEMBER state)
    Q_PROPERTY(QString pauseReason MEMBER pauseReason)
    Q_PROPERTY(int breaksToday MEMBER breaksToday)
    Q_PROPERTY(bool enabled MEMBER enabled)

public:
    QString statusLine; // in English, for scripts
    QString timeText;
    QString state;       // "idle", "working", "onBreak" or "paused"
    QString pauseReason; // "manuallyPaused", "outsideOfficeHours", "appDisabled", "smartActivity"; empty for none
    int breaksToday = 0;
    bool enabled = false;
    // Which mechanism answers each Smart Pause capability in this session ("windows" → "wlr-foreign-toplevel"),
    // for bug reports.
    QVariantMap detection;
    // The status line in the user's language, for people.
    QString localStatusLine;

    // The record as it travels on the bus (a{sv}, keyed by the field names). Missing or mistyped entries read
    // back as the defaults, so an older or newer peer never makes the client fail.
    [[nodiscard]] QVariantMap toVariantMap() const;
    [[nodiscard]] static ControlStatus fromVariantMap(const QVariantMap& map);

    friend bool operator==(const ControlStatus&, const ControlStatus&) = default;
};

// The running instance as the command line sees it. Called on the main thread only; each operation keeps the
// guards of the menu action or card button it stands for, so a command that does not apply does nothing.
class ControlTarget {
public:
    virtual ~ControlTarget() = default;

    [[nodiscard]] virtual ControlStatus controlStatus() const = 0;
    virtual void takeBreakNow() = 0;
    virtual void startLongBreak() = 0;
    virtual void pauseFor(double seconds) = 0;
    virtual void resume() = 0;
    virtual void skipUpcomingBreak() = 0;
    virtual void setRemindersEnabled(bool enabled) = 0;
    // False when there is no settings window to show (yet); the command line then says so.
    virtual bool openSettings() = 0;
    virtual void quit() = 0;
    virtual void triggerTestPreBreakNotification() = 0;
    // Runs the About pane's update check and calls done once with its outcome in one line; completed is false
    // when the check could not be made or failed. done may be called after this returns.
    virtual void checkForUpdates(std::function<void(bool completed, const QString& outcome)> done) = 0;
};

} // namespace velto
