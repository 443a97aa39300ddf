#pragma once

namespace velto {

// Applies the user's launch-at-login choice to the session. Called on the main thread; reports nothing back:
// a failure is the implementation's to print.
class LaunchAtLoginControlling {
public:
    virtual ~LaunchAtLoginControlling() = default;
    virtual void setEnabled(bool enabled) = 0;
    // True when the user turned the start at login off outside Velto (the desktop's startup settings).
    [[nodiscard]] virtual bool isTurnedOffElsewhere() const { return false; }
};

} // namespace velto
