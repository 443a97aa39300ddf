#pragma once

#include "detection/DesktopEntryIndex.h"
#include "detection/DetectionProviders.h"
#include "scheduling/KeyDownTimeProviding.h"

#include <memory>

namespace velto {

// The desktop's answers to every detection question: X11 for windows, idle time and key presses, the
// process table for cameras and Steam games, the sound server for microphones, MPRIS for players, PipeWire
// for screen capture. Each provider answers neutrally where the session lacks its facility. The desktop-file
// index is shared with whoever else names applications (pass one in, or a fresh one is read).
[[nodiscard]] DetectionProviders makeSystemDetectionProviders(std::shared_ptr<DesktopEntryIndex> desktopEntries = {});

// Key presses for the typing delay: heard through XInput2 on X11; on a session without X the answer is
// always "no key-down known" (never typing). Never null.
[[nodiscard]] std::unique_ptr<KeyDownTimeProviding> makeSystemKeyDownTime();

} // namespace velto
