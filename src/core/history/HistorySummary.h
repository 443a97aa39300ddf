#pragma once

#include "HistoryEvent.h"

#include <QList>

namespace velto {

// One local day of the history, as the History pane and `velto history` show it.
struct DaySummary {
    QDate date;
    // Breaks that ran to their end or were ended early from the break screen (the daily count's rule).
    int taken = 0;
    int endedEarly = 0;
    // Breaks skipped on the break screen, plus upcoming breaks skipped before they came.
    int skipped = 0;
    int postponed = 0;
    double workSeconds = 0;
    double longestStretchSeconds = 0;
    double smartPauseSeconds = 0;
    double pausedSeconds = 0;

    // A day on which breaks came and none was skipped.
    [[nodiscard]] bool everyBreakTaken() const { return taken > 0 && skipped == 0; }

    friend bool operator==(const DaySummary&, const DaySummary&) = default;
};

namespace HistorySummary {

// One summary for every day in [first, last], empty days included. An interval that crosses midnight counts
// on each day for the part of it that falls there.
[[nodiscard]] QList<DaySummary> summarize(const QList<HistoryEvent>& events, const QList<HistoryDay>& days, QDate first,
                                          QDate last);

// Days in a row, up to today, on which every break was taken: today joins the run with its first break taken
// and ends it with a skip. Days without breaks (weekends, days off) neither count nor break the run.
[[nodiscard]] int streak(const QList<DaySummary>& summaries, QDate today);

} // namespace HistorySummary

} // namespace velto
