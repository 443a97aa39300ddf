#pragma once

#include "DetectionProviders.h"
#include "DetectionRecords.h"
#include "settings/SmartPauseSettings.h"

#include <QList>

#include <optional>

namespace velto {

// The probes of one detection pass. They keep nothing between calls; each reads its providers afresh and
// runs on the detection worker thread.
namespace DetectionRules {

// The first active application in the list's order; none when no application is active.
[[nodiscard]] std::optional<AppSnapshot> frontmostApplication(const QList<AppSnapshot>& runningApplications);

struct MeetingEvidence {
    bool camera = false;
    bool microphone = false;
    std::optional<QString> application;

    [[nodiscard]] bool isInMeeting() const { return camera || microphone || application.has_value(); }
};

// A camera or microphone in use that the user did not exclude counts alone; a known meeting application
// counts when active, a browser only together with a device.
[[nodiscard]] MeetingEvidence detectMeeting(const QList<AppSnapshot>& runningApplications,
                                            const SmartPauseSettings& settings, const CameraUsageProviding& camera,
                                            const MicrophoneUsageProviding& microphone);

// Asks known players, in order, until one plays; in frontmost-only mode only the frontmost one.
[[nodiscard]] bool detectVideoPlayback(const QList<AppSnapshot>& runningApplications, VideoDetectionMode mode,
                                       const VideoPlaybackProviding& videoPlayback);

// A layer-0 window of the process at least as wide and as high as the main screen; sizes only, no tolerance.
[[nodiscard]] bool hasFullscreenWindow(qint32 processIdentifier, const ScreenProviding& screen,
                                       const WindowListProviding& windowList);

[[nodiscard]] bool detectFullscreenGame(const std::optional<AppSnapshot>& frontmost,
                                        const AppCategoryProviding& appCategory, const ScreenProviding& screen,
                                        const WindowListProviding& windowList);

// The frontmost application's own entry decides alone; otherwise a running "when open" entry holds.
[[nodiscard]] bool detectDeepFocusApp(const QList<AppSnapshot>& runningApplications,
                                      const std::optional<AppSnapshot>& frontmost,
                                      const QList<DeepFocusApp>& deepFocusApps, const ScreenProviding& screen,
                                      const WindowListProviding& windowList);

[[nodiscard]] bool detectIdle(double idleThreshold, const IdleTimeProviding& idleTime);

// One whole pass with one settings record and one idle threshold.
[[nodiscard]] DetectionSnapshot detectActivity(const DetectionProviders& providers, const SmartPauseSettings& settings,
                                               double idleThreshold);

// Names the focus application behind the flag: the frontmost one's entry, else the first running
// "when open" entry, else a generic line.
[[nodiscard]] QString deepFocusStatusText(const QList<AppSnapshot>& runningApplications,
                                          const QList<DeepFocusApp>& deepFocusApps);

} // namespace DetectionRules
} // namespace velto
