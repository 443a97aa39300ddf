#include "HistorySummary.h"

#include <QHash>

#include <algorithm>

namespace velto::HistorySummary {
namespace {

// Spreads an interval over the local days it covers.
template <typename Add>
void spreadOverDays(const HistoryEvent& event, Add add)
{
    QDateTime start = event.localTime();
    double left = std::max(0.0, event.seconds);
    while (left > 0) {
        const QDateTime midnight(start.date().addDays(1), QTime(0, 0), Qt::UTC);
        const double part = std::min(left, double(start.secsTo(midnight)));
        add(start.date(), part);
        left -= part;
        start = midnight;
    }
}

} // namespace

QList<DaySummary> summarize(const QList<HistoryEvent>& events, const QList<HistoryDay>& days, QDate first, QDate last)
{
    QList<DaySummary> summaries;
    if (!first.isValid() || !last.isValid() || first > last)
        return summaries;
    for (QDate date = first; date <= last; date = date.addDays(1))
        summaries.append(DaySummary{.date = date});
    auto dayOf = [&](QDate date) -> DaySummary* {
        if (date < first || date > last)
            return nullptr;
        return &summaries[first.daysTo(date)];
    };

    for (const HistoryEvent& event : events) {
        DaySummary* day = dayOf(event.localDate());
        switch (event.kind) {
        case HistoryEventKind::BreakStarted:
            break;
        case HistoryEventKind::BreakEnded:
            if (!day)
                break;
            if (event.detail == HistoryNames::completed) {
                ++day->taken;
            } else if (event.detail == HistoryNames::endedEarly) {
                ++day->taken;
                ++day->endedEarly;
            } else if (event.detail == HistoryNames::skipped) {
                ++day->skipped;
            }
            break;
        case HistoryEventKind::UpcomingBreakSkipped:
            if (day)
                ++day->skipped;
            break;
        case HistoryEventKind::UpcomingBreakPostponed:
            if (day)
                ++day->postponed;
            break;
        case HistoryEventKind::Paused:
            spreadOverDays(event, [&](QDate date, double seconds) {
                if (DaySummary* part = dayOf(date))
                    part->pausedSeconds += seconds;
            });
            break;
        case HistoryEventKind::SmartPauseHold:
            spreadOverDays(event, [&](QDate date, double seconds) {
                if (DaySummary* part = dayOf(date))
                    part->smartPauseSeconds += seconds;
            });
            break;
        }
    }
    for (const HistoryDay& recorded : days) {
        if (DaySummary* day = dayOf(recorded.date)) {
            day->workSeconds += recorded.workSeconds;
            day->longestStretchSeconds = std::max(day->longestStretchSeconds, recorded.longestStretchSeconds);
        }
    }
    return summaries;
}

int streak(const QList<DaySummary>& summaries, QDate today)
{
    QHash<QDate, const DaySummary*> byDate;
    for (const DaySummary& summary : summaries)
        byDate.insert(summary.date, &summary);
    int run = 0;
    for (QDate date = today;; date = date.addDays(-1)) {
        const DaySummary* day = byDate.value(date);
        if (!day)
            break; // beyond what was summarised
        if (day->taken == 0 && day->skipped == 0)
            continue; // no breaks came that day
        if (!day->everyBreakTaken())
            break;
        ++run;
    }
    return run;
}

} // namespace velto::HistorySummary
