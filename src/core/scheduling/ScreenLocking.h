#pragma once

namespace velto {

// Locks the session when a break starts, if the user asked for it. Main thread.
class ScreenLocking {
public:
    virtual ~ScreenLocking() = default;
    // Whether this session offers a way to lock the screen that Velto may use. The break code and the settings
    // window both ask before relying on the lock; answers promptly (an implementation may cache it briefly).
    [[nodiscard]] virtual bool isLockAvailable() const = 0;
    // Asks the session to lock and returns at once; never waits on the main thread. Failures are ignored:
    // the break goes on either way.
    virtual void lockScreen() = 0;
};

} // namespace velto
