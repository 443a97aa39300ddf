#pragma once

#include <QString>

#include <optional>

namespace velto {

// The category an application declares for itself.
class AppCategoryProviding {
public:
    virtual ~AppCategoryProviding() = default;
    // The declared category text of the application running as this process (for example the Categories of
    // its desktop entry, "Game;ActionGame;"); none when the process, its entry or the key is missing.
    // Detection worker thread.
    [[nodiscard]] virtual std::optional<QString> category(qint32 processIdentifier) const = 0;
};

} // namespace velto
