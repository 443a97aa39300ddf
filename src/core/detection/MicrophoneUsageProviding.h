#pragma once

#include <QStringList>

namespace velto {

// Microphones (audio input devices) that some process is recording from.
class MicrophoneUsageProviding {
public:
    virtual ~MicrophoneUsageProviding() = default;
    // Whether activeMicrophoneIdentifiers() is not empty; may be cheaper to ask. Detection worker thread.
    [[nodiscard]] virtual bool isMicrophoneInUse() const = 0;
    // Stable identifiers of the input devices in use, in the platform's device order, in the form the user's
    // exclusion list stores them (compared case-sensitively). Output-only devices never appear; virtual
    // inputs do. Empty when none is in use or the devices cannot be read. Detection worker thread.
    [[nodiscard]] virtual QStringList activeMicrophoneIdentifiers() const = 0;
};

} // namespace velto
