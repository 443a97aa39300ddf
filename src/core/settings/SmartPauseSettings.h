#pragma once

#include "SettingsEnums.h"

#include <QJsonObject>
#include <QList>
#include <QStringList>

#include <optional>

namespace velto {

// An application the user chose to keep breaks away from; identified in lists by its application identity.
struct DeepFocusApp {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString bundleIdentifier MEMBER bundleIdentifier)
    Q_PROPERTY(velto::DeepFocusMode mode MEMBER mode)

public:
    QString name;
    QString bundleIdentifier;
    DeepFocusMode mode = DeepFocusMode::WhenForeground;

    friend bool operator==(const DeepFocusApp&, const DeepFocusApp&) = default;

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static std::optional<DeepFocusApp> fromJson(const QJsonObject& object);
};

// What Smart Pause watches for. Thresholds are seconds and reach the detector unvalidated.
struct SmartPauseSettings {
    Q_GADGET
    Q_PROPERTY(bool detectMeetings MEMBER detectMeetings)
    Q_PROPERTY(bool detectVideoPlayback MEMBER detectVideoPlayback)
    Q_PROPERTY(bool detectScreenRecording MEMBER detectScreenRecording)
    Q_PROPERTY(bool detectFullscreenGaming MEMBER detectFullscreenGaming)
    Q_PROPERTY(bool detectIdleTime MEMBER detectIdleTime)
    Q_PROPERTY(velto::VideoDetectionMode videoDetectionMode MEMBER videoDetectionMode)
    Q_PROPERTY(double idleThreshold MEMBER idleThreshold)
    Q_PROPERTY(double cooldownAfterActivity MEMBER cooldownAfterActivity)
    Q_PROPERTY(QList<velto::DeepFocusApp> deepFocusApps MEMBER deepFocusApps)
    Q_PROPERTY(QStringList excludedMicrophones MEMBER excludedMicrophones)
    Q_PROPERTY(QStringList excludedCameras MEMBER excludedCameras)
    Q_PROPERTY(QStringList excludedMeetingApps MEMBER excludedMeetingApps)

public:
    bool detectMeetings = true;
    bool detectVideoPlayback = true;
    bool detectScreenRecording = true;
    bool detectFullscreenGaming = true;
    bool detectIdleTime = true;
    VideoDetectionMode videoDetectionMode = VideoDetectionMode::FrontmostOnly;
    double idleThreshold = 60;
    double cooldownAfterActivity = 60;
    QList<DeepFocusApp> deepFocusApps;
    // Compared exactly, case-sensitively, with the identities meeting detection derives.
    QStringList excludedMicrophones;
    QStringList excludedCameras;
    QStringList excludedMeetingApps;

    friend bool operator==(const SmartPauseSettings&, const SmartPauseSettings&) = default;

    [[nodiscard]] QJsonObject toJson() const;
    // One bad focus-app entry fails the whole record.
    [[nodiscard]] static std::optional<SmartPauseSettings> fromJson(const QJsonObject& object);
};

} // namespace velto
