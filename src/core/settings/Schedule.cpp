#include "Schedule.h"

#include "JsonRecord.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

std::optional<int> component(JsonReader& reader, QStringView key)
{
    const std::optional<qint64> value = reader.optionalInteger(key);
    if (!value)
        return std::nullopt;
    if (*value < std::numeric_limits<int>::min() || *value > std::numeric_limits<int>::max()) {
        reader.fail();
        return std::nullopt;
    }
    return static_cast<int>(*value);
}

} // namespace

QJsonObject TimeOfDay::toJson() const
{
    QJsonObject object;
    if (hour)
        object.insert(u"hour"_s, *hour);
    if (minute)
        object.insert(u"minute"_s, *minute);
    return object;
}

std::optional<TimeOfDay> TimeOfDay::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    TimeOfDay time;
    time.hour = component(reader, u"hour");
    time.minute = component(reader, u"minute");
    if (!reader.ok())
        return std::nullopt;
    return time;
}

bool Schedule::isWithinOfficeHours(const QDateTime& moment, const QTimeZone& zone) const
{
    return isWithinOfficeHours(moment.toTimeZone(zone));
}

bool Schedule::isWithinOfficeHours(const QDateTime& local) const
{
    if (!isEnabled)
        return true;
    if (!local.isValid())
        return false;
    // Qt counts Monday as 1 and Sunday as 7; Weekday counts Sunday as 1.
    const std::optional<Weekday> day = weekdayFromRawValue(local.date().dayOfWeek() % 7 + 1);
    if (!day || !activeDays.contains(*day))
        return false;
    const qint64 now = local.time().hour() * 60 + local.time().minute();
    return startTime.minutesSinceMidnight() <= now && now <= endTime.minutesSinceMidnight();
}

QJsonObject Schedule::toJson() const
{
    QJsonArray days;
    for (const Weekday day : activeDays)
        days.append(rawValue(day));
    return {
        {u"isEnabled"_s, isEnabled},
        {u"activeDays"_s, days},
        {u"startTime"_s, startTime.toJson()},
        {u"endTime"_s, endTime.toJson()},
    };
}

std::optional<Schedule> Schedule::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    Schedule schedule;
    schedule.isEnabled = reader.boolean(u"isEnabled");
    schedule.activeDays.clear();
    for (const QJsonValue& item : reader.array(u"activeDays")) {
        const std::optional<qint64> raw = jsonInteger(item);
        const std::optional<Weekday> day = raw ? weekdayFromRawValue(*raw) : std::nullopt;
        if (!day)
            return std::nullopt;
        schedule.activeDays.insert(*day);
    }
    const std::optional<TimeOfDay> start = TimeOfDay::fromJson(reader.object(u"startTime"));
    const std::optional<TimeOfDay> end = TimeOfDay::fromJson(reader.object(u"endTime"));
    if (!reader.ok() || !start || !end)
        return std::nullopt;
    schedule.startTime = *start;
    schedule.endTime = *end;
    return schedule;
}

} // namespace velto
