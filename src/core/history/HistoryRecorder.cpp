#include "HistoryRecorder.h"

#include "HistoryStoring.h"
#include "detection/ActivityDetecting.h"
#include "notification/InAppNotificationManager.h"
#include "scheduling/BreakManager.h"
#include "settings/UserDefaultsStore.h"

#include <QMetaEnum>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

// Shorter pauses are the steps of one operation (a timed pause begins as an untimed one), not history.
constexpr double shortestInterval = 1.0;

QString originName(BreakOrigin origin)
{
    switch (origin) {
    case BreakOrigin::Scheduled:
        return HistoryNames::scheduled.toString();
    case BreakOrigin::Menu:
        return HistoryNames::menu.toString();
    case BreakOrigin::Card:
        return HistoryNames::card.toString();
    case BreakOrigin::CommandLine:
        return HistoryNames::commandLine.toString();
    }
    return {};
}

QString outcomeName(BreakOutcome outcome)
{
    switch (outcome) {
    case BreakOutcome::Completed:
        return HistoryNames::completed.toString();
    case BreakOutcome::EndedEarly:
        return HistoryNames::endedEarly.toString();
    case BreakOutcome::Skipped:
        return HistoryNames::skipped.toString();
    case BreakOutcome::Stopped:
        return HistoryNames::stopped.toString();
    }
    return {};
}

} // namespace

HistoryRecorder::HistoryRecorder(HistoryStoring& store, UserDefaultsStore* settings, std::optional<QTimeZone> calendar,
                                 Clock now, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_settings(settings)
    , m_calendar(std::move(calendar))
    , m_now(std::move(now))
{
    m_day = today();
    if (m_settings) {
        bool ok = false;
        const QVariant stored = m_settings->read(HistoryKeys::retentionDays.toString());
        const double days = stored.toDouble(&ok);
        if (ok && stored.typeId() != QMetaType::QString && days >= 0 && days <= 100000 && days == std::trunc(days))
            m_retentionDays = int(days);
    }
    prune();
}

QDate HistoryRecorder::today() const
{
    return event(HistoryEventKind::Paused, now()).localDate();
}

HistoryRecorder::~HistoryRecorder()
{
    closeInterval(m_pause);
    closeInterval(m_hold);
    closeInterval(m_sleep);
    flush();
}

QDateTime HistoryRecorder::now() const
{
    return m_now ? m_now() : QDateTime::currentDateTime();
}

HistoryEvent HistoryRecorder::event(HistoryEventKind kind, const QDateTime& at) const
{
    HistoryEvent event;
    event.kind = kind;
    event.at = at.toUTC();
    event.utcOffsetSeconds = m_calendar ? at.toTimeZone(*m_calendar).offsetFromUtc() : at.toLocalTime().offsetFromUtc();
    return event;
}

void HistoryRecorder::append(const HistoryEvent& event)
{
    // Each event is a natural moment to write the work counted so far.
    flush();
    m_store.append(event);
}

void HistoryRecorder::watchScheduler(BreakManager* scheduler)
{
    connect(scheduler, &BreakManager::breakStarted, this,
            [this](BreakType type, BreakOrigin origin, double plannedSeconds) {
                HistoryEvent started = event(HistoryEventKind::BreakStarted, now());
                started.breakType = type;
                started.detail = originName(origin);
                started.seconds = plannedSeconds;
                append(started);
            });
    connect(scheduler, &BreakManager::breakEnded, this,
            [this](BreakType type, BreakOutcome outcome, double elapsedSeconds) {
                if (outcome == BreakOutcome::Completed || outcome == BreakOutcome::EndedEarly)
                    m_stretchSeconds = 0;
                HistoryEvent ended = event(HistoryEventKind::BreakEnded, now());
                ended.breakType = type;
                ended.detail = outcomeName(outcome);
                ended.seconds = elapsedSeconds;
                append(ended);
            });
    connect(scheduler, &BreakManager::upcomingBreakSkipped, this, [this](BreakType upcoming, double secondsLeft) {
        HistoryEvent skipped = event(HistoryEventKind::UpcomingBreakSkipped, now());
        skipped.breakType = upcoming;
        skipped.seconds = secondsLeft;
        append(skipped);
    });
    connect(scheduler, &BreakManager::workSecondCounted, this, &HistoryRecorder::countWorkSecond);
    connect(scheduler, &BreakManager::pauseReasonChanged, this, &HistoryRecorder::pauseReasonChanged);
    connect(scheduler, &BreakManager::asleepChanged, this, [this](bool asleep) {
        if (asleep) {
            // A machine that goes to sleep may not wake again (a battery runs out): what it counted is written now.
            flush();
            openInterval(m_sleep, HistoryEventKind::Paused, HistoryNames::sleep.toString());
            return;
        }
        closeInterval(m_sleep);
        m_stretchSeconds = 0; // away from the screen as long as it slept
    });
    pauseReasonChanged(scheduler->pauseReason());
}

void HistoryRecorder::watchCard(InAppNotificationManager* card)
{
    connect(card, &InAppNotificationManager::breakPostponed, this,
            [this](const std::optional<BreakType>& upcoming, double seconds) {
                HistoryEvent postponed = event(HistoryEventKind::UpcomingBreakPostponed, now());
                postponed.breakType = upcoming;
                postponed.seconds = seconds;
                append(postponed);
            });
}

void HistoryRecorder::watchDetector(QObject* detector)
{
    m_detector = detector;
    // Connected by name: the detector's class is the caller's to choose. Queued, since the signal comes before
    // the change it announces.
    connect(detector, SIGNAL(objectWillChange()), this, SLOT(detectorChanged()), Qt::QueuedConnection);
}

void HistoryRecorder::setRetentionDays(int days)
{
    m_retentionDays = std::max(0, days);
    if (m_settings)
        m_settings->write(HistoryKeys::retentionDays.toString(), m_retentionDays);
    prune();
}

void HistoryRecorder::prune()
{
    if (m_retentionDays > 0)
        m_store.prune(now().addDays(-m_retentionDays));
}

void HistoryRecorder::clearHistory()
{
    m_store.clear();
    // What runs now starts afresh from this moment, so nothing from before the clearing comes back.
    const QDateTime moment = now();
    for (std::optional<Interval>* slot : {&m_pause, &m_hold, &m_sleep}) {
        if (*slot)
            (*slot)->start = moment;
    }
    m_unsavedWorkSeconds = 0;
    m_stretchSeconds = 0;
    m_longestStretchToday = 0;
    m_longestStretchUnsaved = false;
}

void HistoryRecorder::countWorkSecond()
{
    const QDate day = today();
    if (day != m_day) {
        flush();
        m_day = day;
        m_stretchSeconds = 0;
        m_longestStretchToday = 0;
        prune();
    }
    m_unsavedWorkSeconds += 1.0;
    m_stretchSeconds += 1.0;
    if (m_stretchSeconds > m_longestStretchToday) {
        m_longestStretchToday = m_stretchSeconds;
        m_longestStretchUnsaved = true;
    }
}

void HistoryRecorder::flush()
{
    if (m_unsavedWorkSeconds <= 0 && !m_longestStretchUnsaved)
        return;
    m_store.addToDay({m_day, m_unsavedWorkSeconds, m_longestStretchToday});
    m_unsavedWorkSeconds = 0;
    m_longestStretchUnsaved = false;
}

void HistoryRecorder::openInterval(std::optional<Interval>& slot, HistoryEventKind kind, const QString& detail)
{
    if (slot && slot->kind == kind && slot->detail == detail)
        return;
    closeInterval(slot);
    slot = Interval{kind, detail, now()};
}

HistoryEvent HistoryRecorder::closed(const Interval& interval, const QDateTime& end) const
{
    HistoryEvent closed = event(interval.kind, interval.start);
    closed.detail = interval.detail;
    closed.seconds = std::max<qint64>(0, interval.start.msecsTo(end)) / 1000.0;
    return closed;
}

void HistoryRecorder::closeInterval(std::optional<Interval>& slot)
{
    if (!slot)
        return;
    const HistoryEvent interval = closed(*slot, now());
    slot.reset();
    if (interval.seconds >= shortestInterval)
        append(interval);
}

QList<HistoryEvent> HistoryRecorder::openIntervals() const
{
    QList<HistoryEvent> open;
    const QDateTime end = now();
    for (const std::optional<Interval>* slot : {&m_pause, &m_hold, &m_sleep}) {
        if (*slot)
            open.append(closed(**slot, end));
    }
    return open;
}

void HistoryRecorder::pauseReasonChanged(const std::optional<PauseReason>& reason)
{
    if (!reason) {
        closeInterval(m_pause);
        if (m_hold && m_hold->detail == u"idle"_s)
            m_stretchSeconds = 0;
        closeInterval(m_hold);
        return;
    }
    switch (reason->kind) {
    case PauseKind::SmartActivity: {
        closeInterval(m_pause);
        const auto* detector = qobject_cast<ActivityDetecting*>(m_detector.data());
        QString kind = detector ? detector->activityKind() : QString();
        openInterval(m_hold, HistoryEventKind::SmartPauseHold, kind.isEmpty() ? u"activity"_s : kind);
        return;
    }
    case PauseKind::ManuallyPaused:
        openInterval(m_pause, HistoryEventKind::Paused,
                     (reason->resumesAt ? HistoryNames::timed : HistoryNames::manual).toString());
        break;
    case PauseKind::OutsideOfficeHours:
        openInterval(m_pause, HistoryEventKind::Paused, HistoryNames::officeHours.toString());
        break;
    case PauseKind::AppDisabled:
        openInterval(m_pause, HistoryEventKind::Paused, HistoryNames::disabled.toString());
        break;
    }
    closeInterval(m_hold);
}

void HistoryRecorder::detectorChanged()
{
    // A hold that goes on for another reason (a meeting that turns into idleness) is two holds; the cool-down
    // after an activity stays with the activity.
    if (!m_hold)
        return;
    const auto* detector = qobject_cast<ActivityDetecting*>(m_detector.data());
    const QString kind = detector ? detector->activityKind() : QString();
    if (kind.isEmpty() || kind == m_hold->detail)
        return;
    if (m_hold->detail == u"idle"_s)
        m_stretchSeconds = 0;
    openInterval(m_hold, HistoryEventKind::SmartPauseHold, kind);
}

} // namespace velto
