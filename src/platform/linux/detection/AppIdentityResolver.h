#pragma once

#include "DesktopEntryIndex.h"
#include "ProcessTable.h"

#include <QString>

#include <memory>
#include <optional>

namespace velto {

// Names the application a process belongs to, the way the known-application tables spell identities: the
// Flatpak ID of a sandboxed process; else the ID of the installed desktop file whose StartupWMClass (or
// ID) matches the window class or whose Exec starts the process's program; else the window class in lower
// case; none when nothing is known.
class AppIdentityResolver final {
public:
    AppIdentityResolver(std::shared_ptr<DesktopEntryIndex> desktopEntries, ProcessTable processes);

    [[nodiscard]] std::optional<QString> identity(qint32 pid, const QString& wmInstance = {},
                                                  const QString& wmClass = {}) const;
    // The desktop entry behind that identity, if it has one.
    [[nodiscard]] std::optional<DesktopEntry> desktopEntry(qint32 pid, const QString& wmInstance = {},
                                                           const QString& wmClass = {}) const;

    [[nodiscard]] const ProcessTable& processes() const { return m_processes; }
    [[nodiscard]] DesktopEntryIndex& desktopEntries() const { return *m_desktopEntries; }

private:
    [[nodiscard]] std::optional<DesktopEntry> installedEntry(qint32 pid, const QString& wmInstance,
                                                             const QString& wmClass) const;

    std::shared_ptr<DesktopEntryIndex> m_desktopEntries;
    ProcessTable m_processes;
};

} // namespace velto
