#pragma once

#include <QStringList>

namespace velto {

// Cameras that some process is capturing from.
class CameraUsageProviding {
public:
    virtual ~CameraUsageProviding() = default;
    // Whether activeCameraIdentifiers() is not empty; may be cheaper to ask. Detection worker thread.
    [[nodiscard]] virtual bool isCameraInUse() const = 0;
    // Stable identifiers of the cameras in use, in the platform's device order, in the form the user's
    // exclusion list stores them (compared case-sensitively). Virtual cameras are left out. Empty when no
    // camera is in use or the devices cannot be read. Detection worker thread.
    [[nodiscard]] virtual QStringList activeCameraIdentifiers() const = 0;
};

} // namespace velto
