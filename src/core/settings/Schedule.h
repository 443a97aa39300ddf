#pragma once

#include "SettingsEnums.h"

#include <QDateTime>
#include <QJsonObject>
#include <QTimeZone>

#include <optional>
#include <set>

namespace velto {

// An hour and a minute with no date, calendar or zone; either may be absent, and an absent one counts as 0.
struct TimeOfDay {
    Q_GADGET
    Q_PROPERTY(int hour READ hourOrZero)
    Q_PROPERTY(int minute READ minuteOrZero)

public:
    std::optional<int> hour;
    std::optional<int> minute;

    [[nodiscard]] int hourOrZero() const { return hour.value_or(0); }
    [[nodiscard]] int minuteOrZero() const { return minute.value_or(0); }
    // Any stored hour and minute, however large, fit once widened: office hours use them as they stand.
    [[nodiscard]] qint64 minutesSinceMidnight() const { return qint64(hourOrZero()) * 60 + minuteOrZero(); }

    friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<TimeOfDay> fromJson(const QJsonObject& object);
};

// Office hours: while enabled, moments outside the chosen weekdays and times hold the work countdown.
struct Schedule {
    Q_GADGET
    Q_PROPERTY(bool isEnabled MEMBER isEnabled)
    Q_PROPERTY(velto::TimeOfDay startTime MEMBER startTime)
    Q_PROPERTY(velto::TimeOfDay endTime MEMBER endTime)

public:
    bool isEnabled = false;
    std::set<Weekday> activeDays = {Weekday::Sunday,   Weekday::Monday, Weekday::Tuesday, Weekday::Wednesday,
                                    Weekday::Thursday, Weekday::Friday, Weekday::Saturday};
    TimeOfDay startTime{9, 0};
    TimeOfDay endTime{18, 0};

    friend bool operator==(const Schedule&, const Schedule&) = default;

    Q_INVOKABLE bool isActiveOn(velto::Weekday day) const { return activeDays.contains(day); }
    void insertDay(Weekday day) { activeDays.insert(day); }
    void removeDay(Weekday day) { activeDays.erase(day); }

    // Whole minutes, both ends inclusive, never wrapping past midnight: with an end before the start no
    // minute is inside. Always true while office hours are off.
    [[nodiscard]] bool isWithinOfficeHours(const QDateTime& moment, const QTimeZone& zone) const;
    // The same, with the weekday and time read in the moment's own zone (local time for a local moment).
    [[nodiscard]] bool isWithinOfficeHours(const QDateTime& moment) const;

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<Schedule> fromJson(const QJsonObject& object);
};

} // namespace velto
