#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace velto {

// The pre-break notice and the chimes around a break. Times are seconds.
struct NotificationSettings {
    Q_GADGET
    Q_PROPERTY(bool showPreBreakNotification MEMBER showPreBreakNotification)
    Q_PROPERTY(double preBreakNotificationTime MEMBER preBreakNotificationTime)
    Q_PROPERTY(double notificationDuration MEMBER notificationDuration)
    Q_PROPERTY(bool playSoundOnBreakStart MEMBER playSoundOnBreakStart)
    Q_PROPERTY(bool playSoundOnBreakEnd MEMBER playSoundOnBreakEnd)
    Q_PROPERTY(float soundVolume MEMBER soundVolume)
    Q_PROPERTY(QString breakStartSound MEMBER breakStartSound)
    Q_PROPERTY(QString breakEndSound MEMBER breakEndSound)

public:
    bool showPreBreakNotification = true;
    double preBreakNotificationTime = 60;
    double notificationDuration = 10;
    bool playSoundOnBreakStart = true;
    bool playSoundOnBreakEnd = true;
    // 0 to 1; clamped when a chime plays, not here.
    float soundVolume = 0.7F;
    // Kept and stored for compatibility; the chimes play fixed sounds.
    QString breakStartSound = QStringLiteral("gentle-chime");
    QString breakEndSound = QStringLiteral("soft-bell");

    friend bool operator==(const NotificationSettings&, const NotificationSettings&) = default;

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<NotificationSettings> fromJson(const QJsonObject& object);
};

} // namespace velto
