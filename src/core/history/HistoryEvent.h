#pragma once

#include "settings/SettingsEnums.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QString>

#include <optional>

namespace velto {
namespace History {
Q_NAMESPACE

enum class EventKind {
    BreakStarted,           // detail: the origin; seconds: the planned length
    BreakEnded,             // detail: the outcome; seconds: how long the break ran
    UpcomingBreakSkipped,   // the interval restarted before its break came; seconds: what was left of it
    UpcomingBreakPostponed, // from the card; seconds: the postponement
    Paused,                 // detail: the cause; at: its start; seconds: its length
    SmartPauseHold,         // detail: the kind of activity; at: its start; seconds: its length
};
Q_ENUM_NS(EventKind)

} // namespace History

using HistoryEventKind = History::EventKind;

// One thing that happened in the break cycle. Nothing in it names an application or a window.
struct HistoryEvent {
    HistoryEventKind kind = HistoryEventKind::BreakStarted;
    // When it happened (for intervals, when they began), in UTC, with the local offset of that moment, so
    // days split by the local time the user lived, across DST changes and travel.
    QDateTime at;
    int utcOffsetSeconds = 0;
    std::optional<BreakType> breakType;
    // A raw name: the origin, the outcome, the pause's cause or the activity's kind (see HistoryNames).
    QString detail;
    double seconds = 0;

    // The local calendar day the event began on.
    [[nodiscard]] QDate localDate() const;
    [[nodiscard]] QDateTime localTime() const;

    friend bool operator==(const HistoryEvent&, const HistoryEvent&) = default;
};

// What the work countdown counted on one local day, and the longest run of it without a break taken.
struct HistoryDay {
    QDate date;
    double workSeconds = 0;
    double longestStretchSeconds = 0;

    friend bool operator==(const HistoryDay&, const HistoryDay&) = default;
};

// The raw names stored in HistoryEvent::detail and printed by the command line; stable, never translated.
namespace HistoryNames {
inline constexpr QStringView scheduled = u"scheduled";
inline constexpr QStringView menu = u"menu";
inline constexpr QStringView card = u"card";
inline constexpr QStringView commandLine = u"commandLine";

inline constexpr QStringView completed = u"completed";
inline constexpr QStringView endedEarly = u"endedEarly";
inline constexpr QStringView skipped = u"skipped";
// Reminders were switched off during the break.
inline constexpr QStringView stopped = u"stopped";

inline constexpr QStringView manual = u"manual";
inline constexpr QStringView timed = u"timed";
inline constexpr QStringView officeHours = u"officeHours";
inline constexpr QStringView sleep = u"sleep";
inline constexpr QStringView disabled = u"disabled";
} // namespace HistoryNames

[[nodiscard]] QString rawName(HistoryEventKind kind);
[[nodiscard]] std::optional<HistoryEventKind> historyEventKind(QStringView rawName);

} // namespace velto
