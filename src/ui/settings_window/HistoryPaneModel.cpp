#include "HistoryPaneModel.h"

#include "history/HistoryRecorder.h"
#include "history/HistoryStoring.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

// The chart's longest range; read whole, so switching ranges needs no read.
constexpr int loadedDays = 30;
// How far back each further read goes while a streak reaches past the loaded days.
constexpr int earlierDays = 91;

QList<DaySummary> summarizeStored(const HistoryStoring& store, QList<HistoryEvent> events, QDate first, QDate last)
{
    // Stored by their UTC moment, events fall on the local day they began: a day more on each side covers every
    // offset, and the summary keeps only the days asked for.
    const QDateTime from(first.addDays(-1), QTime(0, 0), Qt::UTC);
    const QDateTime to(last.addDays(2), QTime(0, 0), Qt::UTC);
    events.append(store.events(from, to));
    return HistorySummary::summarize(events, store.days(first, last), first, last);
}

bool breaksCame(const DaySummary& day)
{
    return day.taken > 0 || day.skipped > 0;
}

bool anythingRecorded(const DaySummary& day)
{
    return breaksCame(day) || day.postponed > 0 || day.workSeconds > 0 || day.smartPauseSeconds > 0 ||
           day.pausedSeconds > 0;
}

int roundedUp(int busiest)
{
    // Small counts on even steps, larger ones on tens, so the middle line is a whole number too.
    if (busiest <= 10)
        return std::max(2, busiest + busiest % 2);
    return (busiest + 9) / 10 * 10;
}

} // namespace

QString historyDurationText(double seconds)
{
    const qint64 minutes = std::llround(std::max(0.0, seconds) / 60.0);
    const qint64 hours = minutes / 60;
    const qint64 minutesPastHour = minutes % 60;
    if (minutes < 60) {
        const int count = int(minutes);
        //: A duration of the History pane: a number of minutes, abbreviated.
        return QCoreApplication::translate("velto::HistoryPaneModel", "%n min", nullptr, count);
    }
    //: A duration of the History pane, such as "1 h 05 min": %1 is the hours, %2 the minutes (two digits).
    return QCoreApplication::translate("velto::HistoryPaneModel", "%1 h %2 min")
        .arg(hours)
        .arg(minutesPastHour, 2, 10, QChar(u'0'));
}

HistoryPaneModel::HistoryPaneModel(HistoryRecorder* recorder, QObject* parent)
    : QObject(parent)
    , m_recorder(recorder)
{
    // One read at a time, in the order asked.
    m_readers.setMaxThreadCount(1);
    const QDate today = recorder ? recorder->today() : QDate::currentDate();
    publish({today, HistorySummary::summarize({}, {}, today.addDays(1 - loadedDays), today), 0});
}

HistoryPaneModel::~HistoryPaneModel()
{
    m_readers.waitForDone();
}

int HistoryPaneModel::retentionDays() const
{
    return m_recorder ? m_recorder->retentionDays() : HistoryKeys::defaultRetentionDays;
}

QStringList HistoryPaneModel::retentionOptions() const
{
    //: How long the break history is kept: an option of the "Keep history for" picker.
    return {tr("1 month"), tr("3 months"), tr("6 months"), tr("1 year"),
            //: How long the break history is kept: nothing is ever removed.
            tr("Forever")};
}

void HistoryPaneModel::chooseRetention(int index)
{
    if (!m_recorder || index < 0 || index >= retentionChoices.size() || retentionChoices.at(index) == retentionDays())
        return;
    Q_EMIT objectWillChange();
    m_recorder->setRetentionDays(retentionChoices.at(index));
    Q_EMIT retentionDaysChanged(retentionDays());
    // A shorter time may have taken days away.
    refresh();
}

void HistoryPaneModel::setChartDays(int days)
{
    if ((days != 7 && days != 30) || days == m_chartDays)
        return;
    Q_EMIT objectWillChange();
    m_chartDays = days;
    Q_EMIT chartDaysChanged(days);
    publishChart();
}

void HistoryPaneModel::clearHistory()
{
    if (!m_recorder)
        return;
    m_recorder->clearHistory();
    refresh();
}

void HistoryPaneModel::refresh()
{
    const int generation = ++m_generation;
    if (!m_recorder) {
        const QDate today = QDate::currentDate();
        publish({today, HistorySummary::summarize({}, {}, today.addDays(1 - loadedDays), today), 0});
        return;
    }
    // What the recorder still holds: the work counted since its last write, and a pause or hold going on now.
    m_recorder->flush();
    const QList<HistoryEvent> open = m_recorder->openIntervals();
    const QDate today = m_recorder->today();
    const HistoryStoring* store = &m_recorder->store();
    const int retention = m_recorder->retentionDays();
    setLoading(true);
    m_readers.start([this, store, open, today, retention, generation] {
        const Snapshot snapshot = read(*store, open, today, retention);
        // The destructor waits for this thread, so the model is still there to take the event.
        QMetaObject::invokeMethod(
            this,
            [this, snapshot, generation] {
                // A later read is on its way; it shows what this one would have.
                if (generation != m_generation)
                    return;
                publish(snapshot);
                setLoading(false);
            },
            Qt::QueuedConnection);
    });
}

HistoryPaneModel::Snapshot HistoryPaneModel::read(const HistoryStoring& store, const QList<HistoryEvent>& open,
                                                  QDate today, int retentionDays)
{
    Snapshot snapshot{today, summarizeStored(store, open, today.addDays(1 - loadedDays), today), 0};
    snapshot.streak = HistorySummary::streak(snapshot.days, today);
    // A run that reaches past the loaded days goes on in the days before them, as far as the history goes.
    const auto breaksTheRun = [](const DaySummary& day) { return day.skipped > 0; };
    bool broken = std::any_of(snapshot.days.cbegin(), snapshot.days.cend(), breaksTheRun);
    const QDate oldest = retentionDays > 0 ? today.addDays(-retentionDays) : QDate();
    for (QDate last = today.addDays(-loadedDays); !broken && (!oldest.isValid() || last >= oldest);
         last = last.addDays(-earlierDays)) {
        const QList<DaySummary> earlier = summarizeStored(store, {}, last.addDays(1 - earlierDays), last);
        if (std::none_of(earlier.cbegin(), earlier.cend(), breaksCame))
            break;
        snapshot.streak += HistorySummary::streak(earlier, last);
        broken = std::any_of(earlier.cbegin(), earlier.cend(), breaksTheRun);
    }
    return snapshot;
}

void HistoryPaneModel::setLoading(bool loading)
{
    if (loading == m_loading)
        return;
    Q_EMIT objectWillChange();
    m_loading = loading;
    Q_EMIT loadingChanged(loading);
}

void HistoryPaneModel::publish(const Snapshot& snapshot)
{
    m_snapshot = snapshot;
    const QLocale locale;
    const DaySummary today = snapshot.days.isEmpty() ? DaySummary{.date = snapshot.today} : snapshot.days.last();

    const bool hasHistory = std::any_of(snapshot.days.cbegin(), snapshot.days.cend(), anythingRecorded);
    Q_EMIT objectWillChange();
    m_hasHistory = hasHistory;
    Q_EMIT hasHistoryChanged(hasHistory);

    Q_EMIT objectWillChange();
    m_today = {{u"taken"_s, today.taken},
               {u"skipped"_s, today.skipped},
               {u"longestStretchSeconds"_s, today.longestStretchSeconds},
               {u"longestStretchText"_s, historyDurationText(today.longestStretchSeconds)},
               {u"smartPauseSeconds"_s, today.smartPauseSeconds},
               {u"smartPauseText"_s, historyDurationText(today.smartPauseSeconds)}};
    Q_EMIT todayChanged(m_today);

    Q_EMIT objectWillChange();
    m_streak = snapshot.streak;
    Q_EMIT streakChanged(m_streak);

    // This week, from the locale's first day.
    const int first = int(locale.firstDayOfWeek());
    const QDate weekStart = snapshot.today.addDays(-((snapshot.today.dayOfWeek() - first + 7) % 7));
    QVariantList week;
    for (QDate date = weekStart; date < weekStart.addDays(7); date = date.addDays(1)) {
        const qsizetype index = snapshot.days.isEmpty() ? -1 : snapshot.days.first().date.daysTo(date);
        const DaySummary day = index >= 0 && index < snapshot.days.size() ? snapshot.days.at(index) : DaySummary{};
        DayMark mark = DayMark::NoBreaks;
        QString spoken;
        const QString name = locale.dayName(date.dayOfWeek(), QLocale::LongFormat);
        if (date > snapshot.today) {
            mark = DayMark::ToCome;
            //: Spoken for a day of this week on the History pane; %1 is the weekday's name.
            spoken = tr("%1: still to come").arg(name);
        } else if (day.skipped > 0) {
            mark = DayMark::Missed;
            //: Spoken for a day of this week on the History pane; %1 is the weekday's name.
            spoken = tr("%1: a break skipped").arg(name);
        } else if (day.taken > 0) {
            mark = DayMark::AllTaken;
            //: Spoken for a day of this week on the History pane; %1 is the weekday's name.
            spoken = tr("%1: every break taken").arg(name);
        } else {
            //: Spoken for a day of this week on the History pane; %1 is the weekday's name.
            spoken = tr("%1: no breaks").arg(name);
        }
        week.append(QVariantMap{{u"date"_s, date},
                                {u"label"_s, locale.dayName(date.dayOfWeek(), QLocale::ShortFormat)},
                                {u"mark"_s, int(mark)},
                                {u"accessibleText"_s, spoken}});
    }
    Q_EMIT objectWillChange();
    m_week = week;
    Q_EMIT weekChanged(week);

    publishChart();
}

void HistoryPaneModel::publishChart()
{
    const QLocale locale;
    //: How a day of the History chart is spoken, as a Qt date format (ddd: weekday, d: day, MMM: month); put
    //: them in your language's order, such as "ddd, MMM d".
    const QString dateFormat = tr("ddd d MMM");
    QVariantList entries;
    int busiest = 0;
    const qsizetype shown = std::min<qsizetype>(m_chartDays, m_snapshot.days.size());
    for (qsizetype i = m_snapshot.days.size() - shown; i < m_snapshot.days.size(); ++i) {
        const DaySummary& day = m_snapshot.days.at(i);
        busiest = std::max(busiest, day.taken + day.skipped);
        const QString label = m_chartDays == 7 ? locale.dayName(day.date.dayOfWeek(), QLocale::ShortFormat)
                                               : locale.toString(day.date.day());
        const int taken = day.taken;
        const int skipped = day.skipped;
        //: Breaks taken on a day, spoken for a bar of the History chart.
        const QString takenText = tr("%n taken", nullptr, taken);
        //: Breaks skipped on a day, spoken for a bar of the History chart.
        const QString skippedText = tr("%n skipped", nullptr, skipped);
        //: Spoken for a bar of the History chart, such as "Mon 3 Nov: 5 taken, 1 skipped": %1 is the day, %2 the
        //: breaks taken, %3 those skipped.
        const QString spoken = tr("%1: %2, %3").arg(locale.toString(day.date, dateFormat), takenText, skippedText);
        entries.append(QVariantMap{{u"date"_s, day.date},
                                   {u"label"_s, label},
                                   {u"taken"_s, day.taken},
                                   {u"skipped"_s, day.skipped},
                                   {u"accessibleText"_s, spoken}});
    }
    Q_EMIT objectWillChange();
    m_chartEntries = entries;
    m_chartMaximum = roundedUp(busiest);
    Q_EMIT chartEntriesChanged(entries);
}

} // namespace velto
