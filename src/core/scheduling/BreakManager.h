#pragma once

#include "SchedulingTypes.h"
#include "settings/SettingsEnums.h"

#include <QObject>
#include <QPointer>
#include <QProcessEnvironment>
#include <QTimeZone>
#include <QTimer>

#include <functional>
#include <optional>
#include <set>

namespace velto {

class ActivityDetecting;
class KeyDownTimeProviding;
class SettingsManager;
class UserDefaultsStore;

namespace DailyCountKeys {
inline constexpr QStringView count = u"dailyBreakCount";
inline constexpr QStringView date = u"dailyBreakCountDate";
} // namespace DailyCountKeys

// The break cycle: a one-second work countdown, the announcement of the coming break, short and long breaks
// with their own countdown, and the count of breaks completed today, kept across launches.
//
// Countdowns move by exactly 1.0 per counted tick and are never computed from dates, so time in which no
// tick counts (sleep, pauses, holds) is simply not counted. Timing is read from the settings on every use.
// Main thread only. Every assignment of a published field emits objectWillChange() and the field's signal.
class BreakManager final : public QObject {
    Q_OBJECT
    Q_PROPERTY(velto::Scheduling::BreakState state READ state NOTIFY stateChanged)
    Q_PROPERTY(double timeRemaining READ timeRemaining NOTIFY timeRemainingChanged)
    Q_PROPERTY(double breakTimeRemaining READ breakTimeRemaining NOTIFY breakTimeRemainingChanged)
    Q_PROPERTY(velto::BreakType currentBreakType READ currentBreakType NOTIFY currentBreakTypeChanged)
    Q_PROPERTY(qint64 shortBreakCount READ shortBreakCount NOTIFY shortBreakCountChanged)
    Q_PROPERTY(qint64 dailyBreakCount READ dailyBreakCount NOTIFY dailyBreakCountChanged)
    Q_PROPERTY(std::optional<velto::PauseReason> pauseReason READ pauseReason NOTIFY pauseReasonChanged)
    Q_PROPERTY(bool canEndBreakEarly READ canEndBreakEarly NOTIFY breakTimeRemainingChanged)
    Q_PROPERTY(QString formattedBreakTimeRemaining READ formattedBreakTimeRemaining NOTIFY breakTimeRemainingChanged)

public:
    using Clock = std::function<QDateTime()>;
    // Runs an action once after a delay in seconds, on the main thread.
    using DelayedAction = std::function<void(double seconds, QObject* context, std::function<void()> action)>;

    // userDefaults must outlive the scheduler. Without a calendar zone, days and office hours follow the
    // system's local time as it changes.
    explicit BreakManager(UserDefaultsStore& userDefaults, std::optional<QTimeZone> calendar = std::nullopt,
                          Clock now = {}, QObject* parent = nullptr);
    ~BreakManager() override;

    // Collaborators, held weakly or not owned. The environment decides whether the typing delay applies.
    void setSettingsManager(SettingsManager* settings);
    void setActivityDetector(QObject* detector);
    void setKeyDownTimeProvider(const KeyDownTimeProviding* provider);
    void setEnvironment(QProcessEnvironment environment) { m_environment = std::move(environment); }
    void setDelayedAction(DelayedAction delayedAction) { m_delayedAction = std::move(delayedAction); }

    [[nodiscard]] BreakState state() const { return m_state; }
    [[nodiscard]] double timeRemaining() const { return m_timeRemaining; }
    [[nodiscard]] double breakTimeRemaining() const { return m_breakTimeRemaining; }
    [[nodiscard]] BreakType currentBreakType() const { return m_currentBreakType; }
    [[nodiscard]] qint64 shortBreakCount() const { return m_shortBreakCount; }
    [[nodiscard]] qint64 dailyBreakCount() const { return m_dailyBreakCount; }
    [[nodiscard]] std::optional<PauseReason> pauseReason() const { return m_pauseReason; }
    [[nodiscard]] const std::set<SleepSource>& sleepingSources() const { return m_sleepingSources; }
    [[nodiscard]] bool preBreakNotificationSent() const { return m_preBreakNotificationSent; }
    [[nodiscard]] ActivityDetecting* activityDetector() const;

    [[nodiscard]] bool shouldTakeLongBreak() const;
    // Only in the second half of a break, and only when early ending is allowed.
    [[nodiscard]] bool canEndBreakEarly() const;
    // Bare seconds under a minute ("45"), minutes and seconds above ("4:05").
    [[nodiscard]] QString formattedBreakTimeRemaining() const;
    [[nodiscard]] bool isUserTyping(bool delayWhileTyping) const;

    Q_INVOKABLE void start();
    Q_INVOKABLE void stop();
    Q_INVOKABLE void takeBreakNow(velto::Scheduling::BreakOrigin origin = BreakOrigin::Menu);
    Q_INVOKABLE void startLongBreak(velto::Scheduling::BreakOrigin origin = BreakOrigin::Menu);
    // From the pre-break card: also ends a running break or restarts the interval at any time.
    Q_INVOKABLE void skipUpcomingBreak();
    // From the break screen: outside a break only once the break is near.
    Q_INVOKABLE void skipBreak();
    Q_INVOKABLE void endBreak(bool completed);
    Q_INVOKABLE void restartWorkInterval();
    Q_INVOKABLE void pause();
    Q_INVOKABLE void pauseFor(double seconds);
    Q_INVOKABLE void resume();
    void handleSleep(SleepSource source);
    void handleWake(SleepSource source);

    // The timers' actions, public so tests can drive the cycle one tick at a time.
    void workTick();
    void breakTick();
    [[nodiscard]] bool isWorkTimerActive() const { return m_workTimer.isActive(); }
    [[nodiscard]] bool isBreakTimerActive() const { return m_breakTimer.isActive(); }

    std::function<void(BreakType)> onBreakStart;
    std::function<void()> onBreakEnd;
    std::function<void(double timeRemaining)> onTimerUpdate;
    std::function<void(BreakType, double timeRemaining)> onPreBreakNotification;

Q_SIGNALS:
    void objectWillChange();
    void stateChanged(velto::Scheduling::BreakState state);
    void timeRemainingChanged(double timeRemaining);
    void breakTimeRemainingChanged(double breakTimeRemaining);
    void currentBreakTypeChanged(velto::BreakType currentBreakType);
    void shortBreakCountChanged(qint64 shortBreakCount);
    void dailyBreakCountChanged(qint64 dailyBreakCount);
    void pauseReasonChanged(const std::optional<velto::PauseReason>& pauseReason);

    // What happened, for the history. A break's seconds are its planned length when it starts and the seconds
    // its countdown ran when it ends.
    void breakStarted(velto::BreakType type, velto::Scheduling::BreakOrigin origin, double plannedSeconds);
    void breakEnded(velto::BreakType type, velto::Scheduling::BreakOutcome outcome, double elapsedSeconds);
    // The interval restarted before its break came, with this much of it left.
    void upcomingBreakSkipped(velto::BreakType upcoming, double secondsLeft);
    // One second of work counted down.
    void workSecondCounted();
    // The first sleep source went to sleep, or the last one woke.
    void asleepChanged(bool asleep);

private:
    void setState(BreakState value);
    void setTimeRemaining(double value);
    void setBreakTimeRemaining(double value);
    void setCurrentBreakType(BreakType value);
    void setShortBreakCount(qint64 value);
    void setDailyBreakCount(qint64 value);
    void setPauseReason(const std::optional<PauseReason>& value);
    // The gates write the reason only when it changes, so observers see transitions, not seconds.
    void changePauseReason(const std::optional<PauseReason>& value);

    void startTimer(QTimer& timer);
    void startBreak(BreakOrigin origin);
    void endBreakWith(BreakOutcome outcome);
    void restartBeforeBreak();
    [[nodiscard]] bool canSkip() const;
    [[nodiscard]] bool isAsleep() const { return !m_sleepingSources.empty(); }
    [[nodiscard]] BreakType upcomingBreakType() const;

    [[nodiscard]] QDateTime now() const;
    [[nodiscard]] QDateTime inCalendar(const QDateTime& moment) const;
    [[nodiscard]] QVariantList dayKey(const QDateTime& moment) const;
    [[nodiscard]] bool isStoredDayCurrent(const QDateTime& moment);
    void resetDailyCountIfDayChanged();
    void storeDailyCount(const QDateTime& moment);

    BreakState m_state = BreakState::Idle;
    double m_timeRemaining = 0;
    double m_breakTimeRemaining = 0;
    double m_plannedBreakSeconds = 0;
    BreakType m_currentBreakType = BreakType::Short;
    qint64 m_shortBreakCount = 0;
    qint64 m_dailyBreakCount = 0;
    std::optional<PauseReason> m_pauseReason;

    QPointer<SettingsManager> m_settingsManager;
    QPointer<QObject> m_activityDetector;
    const KeyDownTimeProviding* m_keyDownTime = nullptr;
    QTimer m_workTimer;
    QTimer m_breakTimer;
    bool m_preBreakNotificationSent = false;
    std::set<SleepSource> m_sleepingSources;
    UserDefaultsStore& m_userDefaults;
    std::optional<QTimeZone> m_calendar;
    Clock m_now;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    DelayedAction m_delayedAction;
};

} // namespace velto
