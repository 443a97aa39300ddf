#include "DesktopApplicationInfo.h"

namespace velto {

DesktopApplicationInfo::DesktopApplicationInfo(std::shared_ptr<DesktopEntryIndex> entries)
    : m_entries(std::move(entries))
{}

std::optional<ApplicationInfo> DesktopApplicationInfo::applicationInfo(const QString& identifier) const
{
    if (!m_entries || identifier.isEmpty())
        return std::nullopt;
    std::optional<DesktopEntry> entry = m_entries->entry(identifier);
    if (!entry)
        entry = m_entries->entryForWindowClass(identifier);
    if (!entry)
        return std::nullopt;
    return ApplicationInfo{entry->name, entry->icon, true};
}

} // namespace velto
