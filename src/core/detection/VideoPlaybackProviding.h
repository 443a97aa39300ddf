#pragma once

#include <QString>

namespace velto {

// Whether a known video player is playing.
class VideoPlaybackProviding {
public:
    virtual ~VideoPlaybackProviding() = default;
    // Whether the running player with this application identity is playing right now. May block for a
    // noticeable time (it talks to the player), so it is only ever called on the detection worker thread.
    // False for players it cannot ask, for players that refuse, and for browsers and streaming applications.
    [[nodiscard]] virtual bool isPlaying(const QString& bundleIdentifier) const = 0;
};

} // namespace velto
