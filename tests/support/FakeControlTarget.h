#pragma once

#include "ControlTarget.h"

#include <QCoreApplication>
#include <QStringList>

// Answers with a scripted status and writes down every operation it is asked for, with its argument, in order.
class FakeControlTarget final : public velto::ControlTarget {
public:
    velto::ControlStatus status;
    bool settingsAvailable = true;
    QStringList calls;

    [[nodiscard]] velto::ControlStatus controlStatus() const override { return status; }
    void takeBreakNow() override { calls << QStringLiteral("takeBreakNow"); }
    void startLongBreak() override { calls << QStringLiteral("startLongBreak"); }
    void pauseFor(double seconds) override { calls << QStringLiteral("pauseFor %1").arg(seconds); }
    void resume() override { calls << QStringLiteral("resume"); }
    void skipUpcomingBreak() override { calls << QStringLiteral("skipUpcomingBreak"); }
    void setRemindersEnabled(bool enabled) override
    {
        calls << QStringLiteral("setRemindersEnabled %1").arg(enabled ? u"true" : u"false");
    }
    bool openSettings() override
    {
        calls << QStringLiteral("openSettings");
        return settingsAvailable;
    }
    void quit() override { calls << QStringLiteral("quit"); }
    void triggerTestPreBreakNotification() override { calls << QStringLiteral("triggerTestPreBreakNotification"); }
    // Answers at once, or on the next turn when asked to, with the scripted outcome.
    bool updateCheckCompletes = true;
    QString updateOutcome = QStringLiteral("Velto 1.0 is the newest version available.");
    void checkForUpdates(std::function<void(bool, const QString&)> done) override
    {
        calls << QStringLiteral("checkForUpdates");
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [this, done] { done(updateCheckCompletes, updateOutcome); },
            Qt::QueuedConnection);
    }
};
