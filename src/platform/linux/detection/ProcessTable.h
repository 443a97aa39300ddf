#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <sys/types.h>

namespace velto {

// Reads what the process file system says about processes. The root is a parameter so tests can point it
// at a fixture tree; every read tolerates processes that exit or entries that cannot be read, answering
// empty or none. Holds no state beyond its root; safe from any thread.
class ProcessTable final {
public:
    explicit ProcessTable(QString procRoot = QStringLiteral("/proc"));

    [[nodiscard]] const QString& root() const { return m_root; }

    // Processes whose entry belongs to this user (the current one unless given), in ascending order.
    [[nodiscard]] QList<qint32> processesOfUser(std::optional<uid_t> uid = std::nullopt) const;
    // The whole of a small file of the process (at most maxBytes); empty when it cannot be read.
    [[nodiscard]] QByteArray readFile(qint32 pid, const char* name, qsizetype maxBytes = 64 * 1024) const;
    // One variable of the process's start-up environment; none when absent or unreadable.
    [[nodiscard]] std::optional<QByteArray> environmentValue(qint32 pid, QByteArrayView key) const;
    // The Flatpak application ID when the process runs in a Flatpak sandbox.
    [[nodiscard]] std::optional<QString> flatpakAppId(qint32 pid) const;
    // The file name of the program the process runs (its executable, else its command name).
    [[nodiscard]] QString executableName(qint32 pid) const;
    // The argument vector; empty for kernel threads and unreadable entries.
    [[nodiscard]] QStringList commandLine(qint32 pid) const;

    // The Flatpak ID in a cgroup file's text ("…/app-flatpak-org.example.App-1234.scope"), if any.
    [[nodiscard]] static std::optional<QString> flatpakAppIdFromCgroup(QByteArrayView cgroup);

private:
    QString m_root;
    QByteArray m_rootBytes;
};

} // namespace velto
