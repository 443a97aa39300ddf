#include "DesktopApplicationInfo.h"

namespace velto {

DesktopApplicationInfo::DesktopApplicationInfo(std::shared_ptr<DesktopEntryIndex> entries, QStringList desktops)
    : m_entries(std::move(entries))
    , m_desktops(std::move(desktops))
{}

QStringList DesktopApplicationInfo::currentDesktops()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
}

std::optional<ApplicationInfo> DesktopApplicationInfo::applicationInfo(const QString& identifier) const
{
    if (!m_entries || identifier.isEmpty())
        return std::nullopt;
    std::optional<DesktopEntry> entry = m_entries->entry(identifier);
    if (!entry)
        entry = m_entries->entryForWindowClass(identifier);
    if (!entry)
        return std::nullopt;
    // Panels, desktop shells, helpers and Velto itself are no application to focus on.
    const bool regular = entry->isListedOn(m_desktops) && entry->id != QLatin1String("com.velto.app");
    return ApplicationInfo{entry->name, entry->icon, regular};
}

} // namespace velto
