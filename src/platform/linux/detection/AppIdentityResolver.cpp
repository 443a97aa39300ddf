#include "AppIdentityResolver.h"

namespace velto {

AppIdentityResolver::AppIdentityResolver(std::shared_ptr<DesktopEntryIndex> desktopEntries, ProcessTable processes)
    : m_desktopEntries(std::move(desktopEntries))
    , m_processes(std::move(processes))
{}

std::optional<DesktopEntry> AppIdentityResolver::desktopEntry(qint32 pid, const QString& wmInstance,
                                                              const QString& wmClass) const
{
    if (const auto flatpak = m_processes.flatpakAppId(pid))
        return m_desktopEntries->entry(*flatpak);
    return installedEntry(pid, wmInstance, wmClass);
}

std::optional<DesktopEntry> AppIdentityResolver::installedEntry(qint32 pid, const QString& wmInstance,
                                                                const QString& wmClass) const
{
    if (auto entry = m_desktopEntries->entryForWindowClass(wmClass))
        return entry;
    if (auto entry = m_desktopEntries->entryForWindowClass(wmInstance))
        return entry;
    return m_desktopEntries->entryForExecutable(m_processes.executableName(pid));
}

std::optional<QString> AppIdentityResolver::identity(qint32 pid, const QString& wmInstance,
                                                     const QString& wmClass) const
{
    if (auto flatpak = m_processes.flatpakAppId(pid))
        return flatpak;
    if (const auto entry = installedEntry(pid, wmInstance, wmClass))
        return entry->id;
    if (!wmClass.isEmpty())
        return wmClass.toLower();
    return std::nullopt;
}

} // namespace velto
