#pragma once

#include <optional>

namespace velto {

// How long ago the user last pressed a key, for the typing delay. Main thread; must answer at once
// (implementations listen for key presses elsewhere and only report the time here).
class KeyDownTimeProviding {
public:
    virtual ~KeyDownTimeProviding() = default;
    // Seconds since the last key-down anywhere in the session; nothing when no key-down is known.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastKeyDown() const = 0;
};

} // namespace velto
