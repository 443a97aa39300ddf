#pragma once

namespace velto {

// Applies the user's launch-at-login choice to the session. Called on the main thread; reports nothing back:
// a failure is the implementation's to print.
class LaunchAtLoginControlling {
public:
    virtual ~LaunchAtLoginControlling() = default;
    virtual void setEnabled(bool enabled) = 0;
};

} // namespace velto
