#pragma once

#include "DetectionRecords.h"

#include <QList>

namespace velto {

// The windows currently on screen.
class WindowListProviding {
public:
    virtual ~WindowListProviding() = default;
    // The on-screen windows with their owner, bounds (global coordinates, device-independent pixels) and
    // layer. Windows whose owner, bounds or layer cannot be read are left out; empty when the platform
    // cannot tell. Called on the detection worker thread.
    [[nodiscard]] virtual QList<WindowDescriptor> onScreenWindows() const = 0;
};

} // namespace velto
