#include "SmartPauseSettings.h"

#include "JsonRecord.h"

using namespace Qt::Literals::StringLiterals;

namespace velto {

QJsonObject DeepFocusApp::toJson() const
{
    return {
        {u"name"_s, name},
        {u"bundleIdentifier"_s, bundleIdentifier},
        {u"mode"_s, rawValue(mode)},
    };
}

std::optional<DeepFocusApp> DeepFocusApp::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    DeepFocusApp app;
    app.name = reader.string(u"name");
    app.bundleIdentifier = reader.string(u"bundleIdentifier");
    app.mode = reader.enumeration(u"mode", app.mode);
    if (!reader.ok())
        return std::nullopt;
    return app;
}

QJsonObject SmartPauseSettings::toJson() const
{
    QJsonArray apps;
    for (const DeepFocusApp& app : deepFocusApps)
        apps.append(app.toJson());
    return {
        {u"detectMeetings"_s, detectMeetings},
        {u"detectVideoPlayback"_s, detectVideoPlayback},
        {u"detectScreenRecording"_s, detectScreenRecording},
        {u"detectFullscreenGaming"_s, detectFullscreenGaming},
        {u"detectIdleTime"_s, detectIdleTime},
        {u"videoDetectionMode"_s, rawValue(videoDetectionMode)},
        {u"idleThreshold"_s, idleThreshold},
        {u"cooldownAfterActivity"_s, cooldownAfterActivity},
        {u"deepFocusApps"_s, apps},
        {u"excludedMicrophones"_s, QJsonArray::fromStringList(excludedMicrophones)},
        {u"excludedCameras"_s, QJsonArray::fromStringList(excludedCameras)},
        {u"excludedMeetingApps"_s, QJsonArray::fromStringList(excludedMeetingApps)},
    };
}

std::optional<SmartPauseSettings> SmartPauseSettings::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    SmartPauseSettings s;
    s.detectMeetings = reader.boolean(u"detectMeetings");
    s.detectVideoPlayback = reader.boolean(u"detectVideoPlayback");
    s.detectScreenRecording = reader.boolean(u"detectScreenRecording");
    s.detectFullscreenGaming = reader.boolean(u"detectFullscreenGaming");
    s.detectIdleTime = reader.boolean(u"detectIdleTime");
    s.videoDetectionMode = reader.enumeration(u"videoDetectionMode", s.videoDetectionMode);
    s.idleThreshold = reader.number(u"idleThreshold");
    s.cooldownAfterActivity = reader.number(u"cooldownAfterActivity");
    for (const QJsonValue& item : reader.array(u"deepFocusApps")) {
        const std::optional<DeepFocusApp> app =
            item.isObject() ? DeepFocusApp::fromJson(item.toObject()) : std::nullopt;
        if (!app)
            return std::nullopt;
        s.deepFocusApps.append(*app);
    }
    s.excludedMicrophones = reader.stringList(u"excludedMicrophones");
    s.excludedCameras = reader.stringList(u"excludedCameras");
    s.excludedMeetingApps = reader.stringList(u"excludedMeetingApps");
    if (!reader.ok())
        return std::nullopt;
    return s;
}

} // namespace velto
