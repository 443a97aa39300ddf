#pragma once

#include <QString>

#include <optional>

namespace velto {

// What the desktop knows about an application, found by its application identity.
struct ApplicationInfo {
    // The name launchers show; empty when the application has none.
    QString displayName;
    // An icon-theme name or an absolute image path; empty when the application has no icon.
    QString iconName;
    // False for applications launchers hide (background services, helpers): the settings window only offers
    // applications a user would start themselves.
    bool isRegular = true;
};

// Names and icons of installed applications, for the settings window. Answers from memory without blocking; may be
// called from any thread (icons are resolved on the QML image thread, running applications on a worker).
class ApplicationInfoProviding {
public:
    virtual ~ApplicationInfoProviding() = default;
    // Nothing when no installed application has this identity.
    [[nodiscard]] virtual std::optional<ApplicationInfo> applicationInfo(const QString& identifier) const = 0;
};

} // namespace velto
