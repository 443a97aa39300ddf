#pragma once

#include "detection/DesktopEntryIndex.h"
#include "detection/DetectionProviders.h"
#include "scheduling/KeyDownTimeProviding.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace velto {

// Everything Smart Pause and the typing delay ask of this session, chosen at run time.
struct SystemDetection {
    // X11 for windows, idle time and key presses; in a Wayland session the compositor's window-management
    // and idle protocols first (X11 still for Xwayland clients); the process table for cameras and Steam
    // games, the sound server for microphones, MPRIS for players, PipeWire for screen capture. Each provider
    // answers neutrally where the session lacks its facility.
    DetectionProviders providers;
    // Key presses for the typing delay: XInput2 on X11; on Wayland, where no client hears keys, any input in
    // the last two seconds. Never null.
    std::unique_ptr<KeyDownTimeProviding> keyDownTime;
    // Which mechanism answers each capability right now ("windows", "idle", "typing", "devices", "media",
    // "capture" → a short name, "none" where nothing can), for status reports and bug reports. Any thread.
    std::function<QVariantMap()> sources;
    // The name of the output the focused window is on, where only our own compositor connection can tell
    // (Wayland); none elsewhere, empty while unknown. Any thread.
    std::function<QString()> focusedOutput;
};

// The desktop-file index is shared with whoever else names applications (pass one in, or a fresh one is read).
[[nodiscard]] SystemDetection makeSystemDetection(std::shared_ptr<DesktopEntryIndex> desktopEntries = {});

} // namespace velto
