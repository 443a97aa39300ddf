#pragma once

#include "detection/ApplicationInfoProviding.h"
#include "detection/DesktopEntryIndex.h"

#include <memory>

namespace velto {

// Names and icons from the installed desktop files, by the identities the workspace reports: a desktop-file or
// Flatpak ID, or a window class. Only visible application entries are indexed, so every answer is regular.
class DesktopApplicationInfo final : public ApplicationInfoProviding {
public:
    explicit DesktopApplicationInfo(std::shared_ptr<DesktopEntryIndex> entries);

    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const QString& identifier) const override;

private:
    std::shared_ptr<DesktopEntryIndex> m_entries;
};

} // namespace velto
