#include "DetectionRules.h"

#include "KnownApplications.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto::DetectionRules {
namespace {

qsizetype frontmostIndex(const QList<AppSnapshot>& apps)
{
    const auto found = std::find_if(apps.cbegin(), apps.cend(), [](const AppSnapshot& app) { return app.isActive; });
    return found == apps.cend() ? -1 : std::distance(apps.cbegin(), found);
}

// Asks for the identifiers only when the cheaper in-use test says there is something to filter.
bool anyNotExcluded(bool inUse, const std::function<QStringList()>& identifiers, const QStringList& excluded)
{
    if (!inUse)
        return false;
    const QStringList active = identifiers();
    return std::any_of(active.cbegin(), active.cend(), [&](const QString& id) { return !excluded.contains(id); });
}

const DeepFocusApp* entryFor(const QString& bundleIdentifier, const QList<DeepFocusApp>& deepFocusApps)
{
    const auto found = std::find_if(deepFocusApps.cbegin(), deepFocusApps.cend(),
                                    [&](const DeepFocusApp& app) { return app.bundleIdentifier == bundleIdentifier; });
    return found == deepFocusApps.cend() ? nullptr : &*found;
}

const DeepFocusApp* firstRunningWhenOpenEntry(const QList<AppSnapshot>& apps, const QList<DeepFocusApp>& entries)
{
    for (const AppSnapshot& app : apps) {
        if (!app.bundleIdentifier)
            continue;
        for (const DeepFocusApp& entry : entries) {
            if (entry.bundleIdentifier == *app.bundleIdentifier && entry.mode == DeepFocusMode::WhenOpen)
                return &entry;
        }
    }
    return nullptr;
}

} // namespace

std::optional<AppSnapshot> frontmostApplication(const QList<AppSnapshot>& runningApplications)
{
    const qsizetype index = frontmostIndex(runningApplications);
    if (index < 0)
        return std::nullopt;
    return runningApplications.at(index);
}

MeetingEvidence detectMeeting(const QList<AppSnapshot>& runningApplications, const SmartPauseSettings& settings,
                              const CameraUsageProviding& camera, const MicrophoneUsageProviding& microphone)
{
    MeetingEvidence evidence;
    evidence.camera = anyNotExcluded(
        camera.isCameraInUse(), [&] { return camera.activeCameraIdentifiers(); }, settings.excludedCameras);
    evidence.microphone = anyNotExcluded(
        microphone.isMicrophoneInUse(), [&] { return microphone.activeMicrophoneIdentifiers(); },
        settings.excludedMicrophones);

    const QHash<QString, QString>& meetingApps = KnownApplications::meetingAppNames();
    for (const AppSnapshot& app : runningApplications) {
        if (!app.bundleIdentifier || settings.excludedMeetingApps.contains(*app.bundleIdentifier))
            continue;
        if (app.isActive && meetingApps.contains(*app.bundleIdentifier)) {
            evidence.application = app.bundleIdentifier;
            break;
        }
    }
    // A browser is in front for many reasons; only a device in use makes it a call.
    if (evidence.application && KnownApplications::browserBundleIdentifiers().contains(*evidence.application) &&
        !evidence.camera && !evidence.microphone)
        evidence.application.reset();
    return evidence;
}

bool detectVideoPlayback(const QList<AppSnapshot>& runningApplications, VideoDetectionMode mode,
                         const VideoPlaybackProviding& videoPlayback)
{
    const QSet<QString>& players = KnownApplications::videoPlayerBundleIdentifiers();
    // Asking a player is slow, so front-only mode asks exactly the frontmost application, if it is a player.
    const qsizetype frontmost = frontmostIndex(runningApplications);
    for (qsizetype i = 0; i < runningApplications.size(); ++i) {
        const AppSnapshot& app = runningApplications.at(i);
        if (!app.bundleIdentifier || !players.contains(*app.bundleIdentifier))
            continue;
        if (mode != VideoDetectionMode::IncludeBackground && i != frontmost)
            continue;
        if (videoPlayback.isPlaying(*app.bundleIdentifier))
            return true;
    }
    return false;
}

bool hasFullscreenWindow(qint32 processIdentifier, const ScreenProviding& screen, const WindowListProviding& windowList)
{
    const QRectF frame = screen.mainScreenFrame();
    const QList<WindowDescriptor> windows = windowList.onScreenWindows();
    return std::any_of(windows.cbegin(), windows.cend(), [&](const WindowDescriptor& window) {
        return window.ownerPID == processIdentifier && window.bounds.width() >= frame.width() &&
               window.bounds.height() >= frame.height() && window.layer == 0;
    });
}

bool detectFullscreenGame(const std::optional<AppSnapshot>& frontmost, const AppCategoryProviding& appCategory,
                          const ScreenProviding& screen, const WindowListProviding& windowList)
{
    if (!frontmost || !frontmost->bundleIdentifier)
        return false;
    const std::optional<QString> category = appCategory.category(frontmost->processIdentifier);
    if (!category || category->isEmpty() || !category->toLower().contains(u"game"_s))
        return false;
    return hasFullscreenWindow(frontmost->processIdentifier, screen, windowList);
}

bool detectDeepFocusApp(const QList<AppSnapshot>& runningApplications, const std::optional<AppSnapshot>& frontmost,
                        const QList<DeepFocusApp>& deepFocusApps, const ScreenProviding& screen,
                        const WindowListProviding& windowList)
{
    if (!frontmost || !frontmost->bundleIdentifier)
        return false;
    if (const DeepFocusApp* entry = entryFor(*frontmost->bundleIdentifier, deepFocusApps)) {
        switch (entry->mode) {
        case DeepFocusMode::WhenForeground:
        case DeepFocusMode::WhenOpen:
            return true;
        case DeepFocusMode::WhenForegroundFullscreen:
            return hasFullscreenWindow(frontmost->processIdentifier, screen, windowList);
        }
        return false;
    }
    return firstRunningWhenOpenEntry(runningApplications, deepFocusApps) != nullptr;
}

bool detectIdle(double idleThreshold, const IdleTimeProviding& idleTime)
{
    return idleThreshold <= idleTime.secondsSinceLastInput();
}

DetectionSnapshot detectActivity(const DetectionProviders& providers, const SmartPauseSettings& settings,
                                 double idleThreshold)
{
    struct PassScope {
        const std::function<void(bool)>& boundary;
        explicit PassScope(const std::function<void(bool)>& b)
            : boundary(b)
        {
            if (boundary)
                boundary(true);
        }
        ~PassScope()
        {
            if (boundary)
                boundary(false);
        }
    } scope(providers.passBoundary);
    DetectionSnapshot snapshot;
    const bool needsApplications = settings.detectMeetings || settings.detectVideoPlayback ||
                                   settings.detectScreenRecording || settings.detectFullscreenGaming ||
                                   !settings.deepFocusApps.isEmpty();
    QList<AppSnapshot> apps;
    std::optional<AppSnapshot> frontmost;
    if (needsApplications) {
        apps = providers.workspace->runningApplications();
        frontmost = frontmostApplication(apps);
    }

    if (settings.detectMeetings) {
        const MeetingEvidence meeting = detectMeeting(apps, settings, *providers.camera, *providers.microphone);
        snapshot.isInMeeting = meeting.isInMeeting();
        snapshot.meetingPauseCamera = meeting.camera;
        snapshot.meetingPauseMicrophone = meeting.microphone;
        snapshot.meetingPauseAppBundleIdentifier = meeting.application;
    }
    if (settings.detectVideoPlayback)
        snapshot.isWatchingVideo = detectVideoPlayback(apps, settings.videoDetectionMode, *providers.videoPlayback);
    if (settings.detectScreenRecording)
        snapshot.isScreenRecording = providers.screenRecording->isScreenRecording(apps);
    if (settings.detectFullscreenGaming)
        snapshot.isInFullscreenGame =
            detectFullscreenGame(frontmost, *providers.appCategory, *providers.screen, *providers.windowList);
    if (settings.detectIdleTime)
        snapshot.isIdle = detectIdle(idleThreshold, *providers.idleTime);
    if (!settings.deepFocusApps.isEmpty())
        snapshot.isInDeepFocusApp =
            detectDeepFocusApp(apps, frontmost, settings.deepFocusApps, *providers.screen, *providers.windowList);

    // Idleness holds the countdown only while it lasts, so it never starts a cool-down.
    if (snapshot.isInMeeting || snapshot.isWatchingVideo || snapshot.isScreenRecording || snapshot.isInFullscreenGame ||
        snapshot.isInDeepFocusApp)
        snapshot.activityDetectedAt = providers.clock->now();
    return snapshot;
}

QString deepFocusStatusText(const QList<AppSnapshot>& runningApplications, const QList<DeepFocusApp>& deepFocusApps)
{
    const std::optional<AppSnapshot> frontmost = frontmostApplication(runningApplications);
    if (frontmost && frontmost->bundleIdentifier) {
        if (const DeepFocusApp* entry = entryFor(*frontmost->bundleIdentifier, deepFocusApps))
            //: Why breaks wait: %1 is the name of a focus application the user chose, and it is in front.
            return QCoreApplication::translate("SmartPause", "%1 is active").arg(entry->name);
    }
    if (const DeepFocusApp* entry = firstRunningWhenOpenEntry(runningApplications, deepFocusApps))
        //: Why breaks wait: %1 is the name of a focus application the user chose, and it is running.
        return QCoreApplication::translate("SmartPause", "%1 is open").arg(entry->name);
    return QCoreApplication::translate("SmartPause", "Focus app active");
}

} // namespace velto::DetectionRules
