#pragma once

// A year of plausible history for the benchmarks: what a long working day leaves in the history.
#include "history/HistoryStoring.h"

#include <QRandomGenerator>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// A very long working day, 7:00 to 21:00, with breaks every 20 minutes, some skipped or postponed, Smart Pause holds
// for meetings and short spells away, a few pauses: about 140 events.
inline int writeSampleDay(velto::HistoryStoring& store, QDate date, QRandomGenerator& random)
{
    const int offset = 3600;
    QDateTime moment(date, QTime(7, 0), QTimeZone(offset));
    int written = 0;
    auto add = [&](velto::HistoryEventKind kind, std::optional<velto::BreakType> type, QString detail, double seconds) {
        store.append({kind, moment.toUTC(), offset, type, std::move(detail), seconds});
        ++written;
    };
    double stretch = 0;
    double work = 0;
    double longest = 0;
    while (moment.time() < QTime(21, 0)) {
        moment = moment.addSecs(20 * 60);
        work += 1200;
        stretch += 1200;
        longest = std::max(longest, stretch);
        const quint32 roll = random.bounded(100);
        if (roll < 8) {
            add(velto::HistoryEventKind::UpcomingBreakSkipped, velto::BreakType::Short, {}, 45);
            continue;
        }
        if (roll < 16) {
            add(velto::HistoryEventKind::UpcomingBreakPostponed, velto::BreakType::Short, {}, 180);
            add(velto::HistoryEventKind::Paused, std::nullopt, u"timed"_s, 180);
            moment = moment.addSecs(180);
        }
        if (roll < 30) {
            add(velto::HistoryEventKind::SmartPauseHold, std::nullopt, roll < 22 ? u"meeting"_s : u"idle"_s, 900);
            moment = moment.addSecs(900);
        }
        add(velto::HistoryEventKind::BreakStarted, velto::BreakType::Short, roll < 90 ? u"scheduled"_s : u"menu"_s, 20);
        moment = moment.addSecs(20);
        const bool skipped = roll >= 95;
        add(velto::HistoryEventKind::BreakEnded, velto::BreakType::Short, skipped ? u"skipped"_s : u"completed"_s,
            skipped ? 6 : 20);
        if (!skipped)
            stretch = 0;
        if (roll < 70)
            add(velto::HistoryEventKind::SmartPauseHold, std::nullopt, u"idle"_s, 75);
        add(velto::HistoryEventKind::Paused, std::nullopt, u"manual"_s, 60);
    }
    store.addToDay({date, work, longest});
    return written;
}
