#include "NotificationSettings.h"

#include "JsonRecord.h"

#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

// Writes the shortest decimal that reads back as the same float, so 0.7 is stored as 0.7 and not as the
// double nearest to the float nearest to 0.7.
double shortestDecimal(float value)
{
    char text[32];
    const auto result = std::to_chars(std::begin(text), std::end(text), value);
    if (result.ec != std::errc())
        return value;
    return QByteArray(text, result.ptr - text).toDouble();
}

} // namespace

QJsonObject NotificationSettings::toJson() const
{
    return {
        {u"showPreBreakNotification"_s, showPreBreakNotification},
        {u"preBreakNotificationTime"_s, preBreakNotificationTime},
        {u"notificationDuration"_s, notificationDuration},
        {u"playSoundOnBreakStart"_s, playSoundOnBreakStart},
        {u"playSoundOnBreakEnd"_s, playSoundOnBreakEnd},
        {u"soundVolume"_s, shortestDecimal(soundVolume)},
        {u"breakStartSound"_s, breakStartSound},
        {u"breakEndSound"_s, breakEndSound},
    };
}

std::optional<NotificationSettings> NotificationSettings::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    NotificationSettings n;
    n.showPreBreakNotification = reader.boolean(u"showPreBreakNotification");
    n.preBreakNotificationTime = reader.number(u"preBreakNotificationTime");
    n.notificationDuration = reader.number(u"notificationDuration");
    n.playSoundOnBreakStart = reader.boolean(u"playSoundOnBreakStart");
    n.playSoundOnBreakEnd = reader.boolean(u"playSoundOnBreakEnd");
    n.soundVolume = static_cast<float>(reader.number(u"soundVolume"));
    n.breakStartSound = reader.string(u"breakStartSound");
    n.breakEndSound = reader.string(u"breakEndSound");
    if (!reader.ok())
        return std::nullopt;
    return n;
}

} // namespace velto
