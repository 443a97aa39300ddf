#pragma once

#include <QString>

#include <optional>

namespace velto {

// The session's facility for starting Velto at login. Main thread; may touch the file system.
class LoginItemRegistering {
public:
    virtual ~LoginItemRegistering() = default;
    // Registers or unregisters Velto. Gives the description of what went wrong, or nothing on success.
    [[nodiscard]] virtual std::optional<QString> setRegistered(bool registered) = 0;
    // Whether the user turned Velto's start at login off in the desktop's own startup settings, leaving the
    // registration in place but disabled.
    [[nodiscard]] virtual bool isDisabledByUser() const { return false; }
};

} // namespace velto
