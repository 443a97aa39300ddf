#include "BreakManager.h"

#include "KeyDownTimeProviding.h"
#include "Published.h"
#include "detection/ActivityDetecting.h"
#include "settings/RunEnvironment.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

// A key pressed less than this long ago means the user is typing.
constexpr double typingWindowSeconds = 2.0;

std::optional<qint64> wholeNumber(const QVariant& value)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || !std::isfinite(number) || std::trunc(number) != number || std::abs(number) > 9.0e15)
        return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return static_cast<qint64>(number);
    default:
        return std::nullopt; // text that happens to read as a number is not a stored integer
    }
}

} // namespace

BreakManager::BreakManager(UserDefaultsStore& userDefaults, std::optional<QTimeZone> calendar, Clock now,
                           QObject* parent)
    : QObject(parent)
    , m_userDefaults(userDefaults)
    , m_calendar(std::move(calendar))
    , m_now(std::move(now))
{
    for (QTimer* timer : {&m_workTimer, &m_breakTimer}) {
        timer->setInterval(1000);
        timer->setTimerType(Qt::PreciseTimer);
    }
    connect(&m_workTimer, &QTimer::timeout, this, &BreakManager::workTick);
    connect(&m_breakTimer, &QTimer::timeout, this, &BreakManager::breakTick);
    m_delayedAction = [](double seconds, QObject* context, std::function<void()> action) {
        QTimer::singleShot(static_cast<int>(std::llround(seconds * 1000.0)), Qt::PreciseTimer, context,
                           std::move(action));
    };

    const QDateTime today = this->now();
    if (isStoredDayCurrent(today))
        setDailyBreakCount(
            std::max<qint64>(0, wholeNumber(m_userDefaults.read(DailyCountKeys::count.toString())).value_or(0)));
    else
        storeDailyCount(today);
}

BreakManager::~BreakManager() = default;

void BreakManager::setSettingsManager(SettingsManager* settings)
{
    m_settingsManager = settings;
}

void BreakManager::setActivityDetector(QObject* detector)
{
    m_activityDetector = detector;
}

void BreakManager::setKeyDownTimeProvider(const KeyDownTimeProviding* provider)
{
    m_keyDownTime = provider;
}

ActivityDetecting* BreakManager::activityDetector() const
{
    return qobject_cast<ActivityDetecting*>(m_activityDetector.data());
}

// Published fields.

void BreakManager::setState(BreakState value)
{
    publish(this, m_state, value, &BreakManager::stateChanged);
}

void BreakManager::setTimeRemaining(double value)
{
    publish(this, m_timeRemaining, value, &BreakManager::timeRemainingChanged);
}

void BreakManager::setBreakTimeRemaining(double value)
{
    publish(this, m_breakTimeRemaining, value, &BreakManager::breakTimeRemainingChanged);
}

void BreakManager::setCurrentBreakType(BreakType value)
{
    publish(this, m_currentBreakType, value, &BreakManager::currentBreakTypeChanged);
}

void BreakManager::setShortBreakCount(qint64 value)
{
    publish(this, m_shortBreakCount, value, &BreakManager::shortBreakCountChanged);
}

void BreakManager::setDailyBreakCount(qint64 value)
{
    publish(this, m_dailyBreakCount, value, &BreakManager::dailyBreakCountChanged);
}

void BreakManager::setPauseReason(const std::optional<PauseReason>& value)
{
    publish(this, m_pauseReason, value, &BreakManager::pauseReasonChanged);
}

void BreakManager::changePauseReason(const std::optional<PauseReason>& value)
{
    if (m_pauseReason != value)
        setPauseReason(value);
}

// Computed values.

bool BreakManager::shouldTakeLongBreak() const
{
    if (!m_settingsManager)
        return false;
    const BreakConfiguration& configuration = m_settingsManager->breakConfiguration();
    return configuration.longBreakEnabled && m_shortBreakCount + 1 >= configuration.longBreakFrequency;
}

BreakType BreakManager::upcomingBreakType() const
{
    return shouldTakeLongBreak() ? BreakType::Long : BreakType::Short;
}

bool BreakManager::canEndBreakEarly() const
{
    if (m_state != BreakState::OnBreak || !m_settingsManager)
        return false;
    const BreakConfiguration& configuration = m_settingsManager->breakConfiguration();
    const double duration =
        m_currentBreakType == BreakType::Short ? configuration.shortBreakDuration : configuration.longBreakDuration;
    return configuration.allowEarlyEnd && m_breakTimeRemaining <= 0.5 * duration;
}

QString BreakManager::formattedBreakTimeRemaining() const
{
    const qint64 seconds = wholeSeconds(m_breakTimeRemaining);
    if (seconds < 60)
        return QString::number(seconds);
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0'));
}

bool BreakManager::isUserTyping(bool delayWhileTyping) const
{
    if (!delayWhileTyping || isRunningTestSuite(m_environment) || m_keyDownTime == nullptr)
        return false;
    const std::optional<double> seconds = m_keyDownTime->secondsSinceLastKeyDown();
    return seconds && *seconds >= 0 && *seconds < typingWindowSeconds;
}

bool BreakManager::canSkip() const
{
    const BreakConfiguration& configuration = m_settingsManager->breakConfiguration();
    return (m_state == BreakState::OnBreak && configuration.allowEarlyEnd) ||
           configuration.skipDifficulty != SkipDifficulty::Hardcore;
}

// Timers.

void BreakManager::startTimer(QTimer& timer)
{
    if (isAsleep())
        return;
    // Restarting puts the next tick a full second away, as a newly made timer would.
    timer.start();
}

// Operations.

void BreakManager::start()
{
    if (!m_settingsManager)
        return;
    resetDailyCountIfDayChanged();
    setState(BreakState::Working);
    setTimeRemaining(m_settingsManager->breakConfiguration().workInterval);
    m_preBreakNotificationSent = false;
    setPauseReason(std::nullopt);
    startTimer(m_workTimer);
}

void BreakManager::stop()
{
    if (m_state == BreakState::OnBreak)
        Q_EMIT breakEnded(m_currentBreakType, BreakOutcome::Stopped, m_plannedBreakSeconds - m_breakTimeRemaining);
    setState(BreakState::Idle);
    m_workTimer.stop();
    m_breakTimer.stop();
    setPauseReason(PauseReason::appDisabled());
    m_preBreakNotificationSent = false;
}

void BreakManager::takeBreakNow(BreakOrigin origin)
{
    if (isAsleep())
        return;
    m_workTimer.stop();
    setCurrentBreakType(upcomingBreakType());
    startBreak(origin);
}

void BreakManager::startLongBreak(BreakOrigin origin)
{
    if (isAsleep())
        return;
    m_workTimer.stop();
    setCurrentBreakType(BreakType::Long);
    startBreak(origin);
}

void BreakManager::skipUpcomingBreak()
{
    if (isAsleep() || !m_settingsManager || !canSkip())
        return;
    switch (m_state) {
    case BreakState::OnBreak:
        endBreakWith(BreakOutcome::Skipped);
        break;
    case BreakState::Idle:
        start();
        if (onTimerUpdate)
            onTimerUpdate(m_timeRemaining);
        break;
    case BreakState::Working:
    case BreakState::Paused:
        restartBeforeBreak();
        break;
    }
}

void BreakManager::skipBreak()
{
    if (isAsleep() || !m_settingsManager || !canSkip())
        return;
    switch (m_state) {
    case BreakState::OnBreak:
        endBreakWith(BreakOutcome::Skipped);
        break;
    case BreakState::Idle:
        start();
        break;
    case BreakState::Working:
    case BreakState::Paused: {
        // Outside a break the screen's Skip only acts once the break is near.
        const double lead = m_settingsManager->notificationSettings().preBreakNotificationTime;
        if (m_preBreakNotificationSent || (m_timeRemaining > 0 && m_timeRemaining <= lead))
            restartBeforeBreak();
        break;
    }
    }
}

void BreakManager::restartWorkInterval()
{
    if (!m_settingsManager)
        return;
    m_preBreakNotificationSent = false;
    setTimeRemaining(m_settingsManager->breakConfiguration().workInterval);
    if (m_state == BreakState::Paused)
        setPauseReason(std::nullopt);
    setState(BreakState::Working);
    startTimer(m_workTimer);
    if (onTimerUpdate)
        onTimerUpdate(m_timeRemaining);
}

void BreakManager::restartBeforeBreak()
{
    const BreakType upcoming = upcomingBreakType();
    const double left = m_timeRemaining;
    restartWorkInterval();
    Q_EMIT upcomingBreakSkipped(upcoming, left);
}

void BreakManager::startBreak(BreakOrigin origin)
{
    if (isAsleep() || !m_settingsManager)
        return;
    setState(BreakState::OnBreak);
    const BreakConfiguration& configuration = m_settingsManager->breakConfiguration();
    if (m_currentBreakType == BreakType::Short) {
        setBreakTimeRemaining(configuration.shortBreakDuration);
        setShortBreakCount(m_shortBreakCount + 1);
    } else {
        setBreakTimeRemaining(configuration.longBreakDuration);
        setShortBreakCount(0);
    }
    m_plannedBreakSeconds = m_breakTimeRemaining;
    Q_EMIT breakStarted(m_currentBreakType, origin, m_plannedBreakSeconds);
    if (onBreakStart)
        onBreakStart(m_currentBreakType);
    startTimer(m_breakTimer);
}

void BreakManager::endBreak(bool completed)
{
    if (!completed)
        endBreakWith(BreakOutcome::Skipped);
    else
        endBreakWith(m_breakTimeRemaining <= 0 ? BreakOutcome::Completed : BreakOutcome::EndedEarly);
}

void BreakManager::endBreakWith(BreakOutcome outcome)
{
    if (isAsleep() || m_state != BreakState::OnBreak)
        return;
    const bool completed = outcome == BreakOutcome::Completed || outcome == BreakOutcome::EndedEarly;
    Q_EMIT breakEnded(m_currentBreakType, outcome, m_plannedBreakSeconds - m_breakTimeRemaining);
    m_breakTimer.stop();
    resetDailyCountIfDayChanged();
    if (completed) {
        setDailyBreakCount(m_dailyBreakCount + 1);
        storeDailyCount(now());
    }
    if (onBreakEnd)
        onBreakEnd();
    setState(BreakState::Working);
    m_preBreakNotificationSent = false;
    if (m_settingsManager)
        setTimeRemaining(m_settingsManager->breakConfiguration().workInterval);
    startTimer(m_workTimer);
}

void BreakManager::pause()
{
    if (m_state != BreakState::Working)
        return;
    setState(BreakState::Paused);
    m_workTimer.stop();
    setPauseReason(PauseReason::manuallyPaused());
}

void BreakManager::pauseFor(double seconds)
{
    pause();
    setPauseReason(PauseReason::manuallyPaused(now().addMSecs(std::llround(seconds * 1000.0))));
    // Never cancelled: an earlier timed pause still resumes a later one when it fires.
    QPointer<BreakManager> self(this);
    m_delayedAction(seconds, this, [self] {
        if (self && self->m_state == BreakState::Paused)
            self->resume();
    });
}

void BreakManager::resume()
{
    if (m_state != BreakState::Paused)
        return;
    setPauseReason(std::nullopt);
    setState(BreakState::Working);
    startTimer(m_workTimer);
}

void BreakManager::handleSleep(SleepSource source)
{
    if (!m_sleepingSources.insert(source).second)
        return;
    m_workTimer.stop();
    m_breakTimer.stop();
    if (m_sleepingSources.size() == 1)
        Q_EMIT asleepChanged(true);
}

void BreakManager::handleWake(SleepSource source)
{
    if (m_sleepingSources.erase(source) == 0 || isAsleep())
        return;
    Q_EMIT asleepChanged(false);
    resetDailyCountIfDayChanged();
    if (m_state == BreakState::Working)
        startTimer(m_workTimer);
    else if (m_state == BreakState::OnBreak)
        startTimer(m_breakTimer);
}

// Ticks.

void BreakManager::workTick()
{
    if (isAsleep() || !m_settingsManager)
        return;
    resetDailyCountIfDayChanged();
    if (m_state != BreakState::Working && m_state != BreakState::Paused)
        return;

    // Office hours rank above Smart Pause: outside them the detector is not even asked.
    if (!m_settingsManager->schedule().isWithinOfficeHours(inCalendar(now()))) {
        changePauseReason(PauseReason::outsideOfficeHours());
        return;
    }
    if (m_pauseReason && m_pauseReason->kind == PauseKind::OutsideOfficeHours)
        changePauseReason(std::nullopt);

    const ActivityDetecting* detector = activityDetector();
    if (detector != nullptr && (!m_pauseReason || m_pauseReason->kind == PauseKind::SmartActivity)) {
        if (detector->isActivityDetected()) {
            changePauseReason(PauseReason::smartActivity());
            return;
        }
        if (m_pauseReason)
            changePauseReason(std::nullopt);
    }

    // Typing holds the count without showing a reason.
    if (isUserTyping(m_settingsManager->breakConfiguration().delayWhileTyping))
        return;

    setTimeRemaining(m_timeRemaining - 1.0);
    Q_EMIT workSecondCounted();
    if (onTimerUpdate)
        onTimerUpdate(m_timeRemaining);

    const double lead = m_settingsManager->notificationSettings().preBreakNotificationTime;
    if (!m_preBreakNotificationSent && m_timeRemaining <= lead && m_timeRemaining > 0) {
        m_preBreakNotificationSent = true;
        if (onPreBreakNotification)
            onPreBreakNotification(upcomingBreakType(), m_timeRemaining);
    }

    if (m_timeRemaining <= 0) {
        m_workTimer.stop();
        setCurrentBreakType(upcomingBreakType());
        startBreak(BreakOrigin::Scheduled);
    }
}

void BreakManager::breakTick()
{
    if (isAsleep() || m_state != BreakState::OnBreak)
        return;
    resetDailyCountIfDayChanged();
    setBreakTimeRemaining(m_breakTimeRemaining - 1.0);
    if (m_breakTimeRemaining <= 0) {
        m_breakTimer.stop();
        endBreak(true);
    }
}

// The daily count.

QDateTime BreakManager::now() const
{
    return m_now ? m_now() : QDateTime::currentDateTime();
}

QDateTime BreakManager::inCalendar(const QDateTime& moment) const
{
    return m_calendar ? moment.toTimeZone(*m_calendar) : moment.toLocalTime();
}

QVariantList BreakManager::dayKey(const QDateTime& moment) const
{
    const QDate date = inCalendar(moment).date();
    if (!date.isValid())
        return {0, 0, 0, 0};
    // Gregorian eras: 1 for years of the common era, 0 before it (which has no year 0).
    const int year = date.year();
    return {year > 0 ? 1 : 0, year > 0 ? year : 1 - year, date.month(), date.day()};
}

bool BreakManager::isStoredDayCurrent(const QDateTime& moment)
{
    const QVariant stored = m_userDefaults.read(DailyCountKeys::date.toString());
    if (stored.typeId() == QMetaType::QVariantList) {
        QList<qint64> storedKey;
        for (const QVariant& item : stored.toList()) {
            const std::optional<qint64> component = wholeNumber(item);
            if (!component)
                return false;
            storedKey.append(*component);
        }
        QList<qint64> currentKey;
        for (const QVariant& item : dayKey(moment))
            currentKey.append(item.toLongLong());
        return storedKey == currentKey;
    }
    // The earlier form stored a moment; accept it once and rewrite it as a day key.
    QDateTime storedMoment;
    if (stored.typeId() == QMetaType::QDateTime)
        storedMoment = stored.toDateTime();
    else if (stored.typeId() == QMetaType::QString)
        storedMoment = QDateTime::fromString(stored.toString(), Qt::ISODateWithMs);
    if (!storedMoment.isValid() || inCalendar(storedMoment).date() != inCalendar(moment).date())
        return false;
    m_userDefaults.write(DailyCountKeys::date.toString(), dayKey(moment));
    return true;
}

void BreakManager::storeDailyCount(const QDateTime& moment)
{
    m_userDefaults.write(DailyCountKeys::count.toString(), m_dailyBreakCount);
    m_userDefaults.write(DailyCountKeys::date.toString(), dayKey(moment));
}

void BreakManager::resetDailyCountIfDayChanged()
{
    const QDateTime moment = now();
    if (isStoredDayCurrent(moment))
        return;
    setDailyBreakCount(0);
    storeDailyCount(moment);
}

} // namespace velto
