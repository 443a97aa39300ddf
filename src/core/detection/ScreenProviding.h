#pragma once

#include <QRectF>

namespace velto {

// The main screen's geometry.
class ScreenProviding {
public:
    virtual ~ScreenProviding() = default;
    // The main screen's frame in global coordinates, device-independent pixels, in the same space as
    // WindowDescriptor::bounds; the zero rectangle when there is no main screen. Called on the detection
    // worker thread, so implementations must not touch GUI objects that live on the main thread unguarded.
    [[nodiscard]] virtual QRectF mainScreenFrame() const = 0;
};

} // namespace velto
