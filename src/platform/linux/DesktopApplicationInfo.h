#pragma once

#include "detection/ApplicationInfoProviding.h"
#include "detection/DesktopEntryIndex.h"

#include <memory>

namespace velto {

// Names and icons from the installed desktop files, by the identities the workspace reports: a desktop-file or
// Flatpak ID, or a window class. Regular are the applications a launcher on this desktop lists, Velto aside.
class DesktopApplicationInfo final : public ApplicationInfoProviding {
public:
    // desktops: the current desktop's names, by default from XDG_CURRENT_DESKTOP.
    explicit DesktopApplicationInfo(std::shared_ptr<DesktopEntryIndex> entries,
                                    QStringList desktops = currentDesktops());
    [[nodiscard]] static QStringList currentDesktops();

    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const QString& identifier) const override;

private:
    std::shared_ptr<DesktopEntryIndex> m_entries;
    QStringList m_desktops;
};

} // namespace velto
