#pragma once

namespace velto {

// How long the user has been away from the keyboard and pointer.
class IdleTimeProviding {
public:
    virtual ~IdleTimeProviding() = default;
    // Seconds since the last input event of any kind (keys, pointer, touch) in the session; 0 when it cannot
    // be read, so an unreadable idle time never reads as idle. Called on the detection worker thread.
    [[nodiscard]] virtual double secondsSinceLastInput() const = 0;
};

} // namespace velto
