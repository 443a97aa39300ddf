#pragma once

#include <QObject>
#include <QString>

namespace velto {

// The scheduler's and the menu's view of the Smart Pause detector. Implemented by QObjects, so holders can
// keep a weak reference; read on the main thread.
class ActivityDetecting {
public:
    virtual ~ActivityDetecting() = default;

    // Whether Smart Pause should hold the work countdown now, cool-down after an activity included.
    [[nodiscard]] virtual bool isActivityDetected() const = 0;
    // The reason line the menu shows while Smart Pause holds the countdown.
    [[nodiscard]] virtual QString activityStatusText() const = 0;
    // The icon name shown with that line.
    [[nodiscard]] virtual QString activityStatusSymbolName() const = 0;
    // What holds breaks, as a stable raw name for the history ("meeting", "video", "screenRecording",
    // "fullscreenGame", "focusApp", "idle"); empty when nothing does or only the cool-down is left.
    [[nodiscard]] virtual QString activityKind() const { return {}; }
};

} // namespace velto

#define VELTO_ACTIVITY_DETECTING_IID "app.velto.ActivityDetecting"
Q_DECLARE_INTERFACE(velto::ActivityDetecting, VELTO_ACTIVITY_DETECTING_IID)
