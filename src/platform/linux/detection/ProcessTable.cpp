#include "ProcessTable.h"

#include <QFileInfo>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

bool isNumber(const char* name)
{
    if (*name == '\0')
        return false;
    for (const char* c = name; *c != '\0'; ++c) {
        if (*c < '0' || *c > '9')
            return false;
    }
    return true;
}

QByteArray readWhole(const QByteArray& path, qsizetype maxBytes)
{
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return {};
    QByteArray data;
    char buffer[4096];
    while (data.size() < maxBytes) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        data.append(buffer, std::min<qsizetype>(n, maxBytes - data.size()));
    }
    ::close(fd);
    return data;
}

} // namespace

ProcessTable::ProcessTable(QString procRoot)
    : m_root(std::move(procRoot))
    , m_rootBytes(QFile::encodeName(m_root))
{}

QList<qint32> ProcessTable::processesOfUser(std::optional<uid_t> uid) const
{
    const uid_t owner = uid.value_or(::getuid());
    QList<qint32> pids;
    DIR* dir = ::opendir(m_rootBytes.constData());
    if (dir == nullptr)
        return pids;
    const int dirFd = ::dirfd(dir);
    while (const dirent* entry = ::readdir(dir)) {
        if (!isNumber(entry->d_name))
            continue;
        struct stat info {};
        if (::fstatat(dirFd, entry->d_name, &info, 0) != 0 || info.st_uid != owner)
            continue;
        pids.append(static_cast<qint32>(std::strtol(entry->d_name, nullptr, 10)));
    }
    ::closedir(dir);
    std::sort(pids.begin(), pids.end());
    return pids;
}

QByteArray ProcessTable::readFile(qint32 pid, const char* name, qsizetype maxBytes) const
{
    if (pid <= 0)
        return {};
    return readWhole(m_rootBytes + '/' + QByteArray::number(pid) + '/' + name, maxBytes);
}

std::optional<QByteArray> ProcessTable::environmentValue(qint32 pid, QByteArrayView key) const
{
    const QByteArray environment = readFile(pid, "environ", 1024 * 1024);
    for (const QByteArray& entry : environment.split('\0')) {
        if (entry.size() > key.size() && entry.startsWith(key) && entry.at(key.size()) == '=')
            return entry.sliced(key.size() + 1);
    }
    return std::nullopt;
}

std::optional<QString> ProcessTable::flatpakAppIdFromCgroup(QByteArrayView cgroup)
{
    static constexpr QByteArrayView marker = "app-flatpak-";
    const qsizetype start = cgroup.indexOf(marker);
    if (start < 0)
        return std::nullopt;
    QByteArrayView rest = cgroup.sliced(start + marker.size());
    const qsizetype end = rest.indexOf(".scope");
    if (end < 0)
        return std::nullopt;
    rest = rest.first(end);
    // The scope name ends in "-<instance number>"; application IDs may themselves contain dashes.
    const qsizetype dash = rest.lastIndexOf('-');
    if (dash <= 0)
        return std::nullopt;
    const QByteArrayView instance = rest.sliced(dash + 1);
    if (instance.isEmpty() ||
        !std::all_of(instance.begin(), instance.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    return QString::fromUtf8(rest.first(dash));
}

std::optional<QString> ProcessTable::flatpakAppId(qint32 pid) const
{
    if (auto id = flatpakAppIdFromCgroup(readFile(pid, "cgroup")))
        return id;
    // Older systems put Flatpak apps in no scope of their own; the sandbox's info file still names the app.
    const QByteArray info = readFile(pid, "root/.flatpak-info", 16 * 1024);
    bool inApplication = false;
    for (const QByteArray& line : info.split('\n')) {
        const QByteArray trimmed = line.trimmed();
        if (trimmed.startsWith('['))
            inApplication = trimmed == "[Application]";
        else if (inApplication && trimmed.startsWith("name="))
            return QString::fromUtf8(trimmed.sliced(5).trimmed());
    }
    return std::nullopt;
}

QString ProcessTable::executableName(qint32 pid) const
{
    if (pid <= 0)
        return {};
    char target[4096];
    const QByteArray link = m_rootBytes + '/' + QByteArray::number(pid) + "/exe";
    const ssize_t n = ::readlink(link.constData(), target, sizeof target - 1);
    if (n > 0) {
        QByteArrayView path(target, n);
        if (path.endsWith(" (deleted)"))
            path.chop(10);
        return QString::fromLocal8Bit(path.sliced(path.lastIndexOf('/') + 1));
    }
    return QString::fromLocal8Bit(readFile(pid, "comm", 256).trimmed());
}

QStringList ProcessTable::commandLine(qint32 pid) const
{
    QStringList arguments;
    const QByteArray data = readFile(pid, "cmdline", 64 * 1024);
    for (const QByteArray& argument : data.split('\0')) {
        if (!argument.isEmpty())
            arguments.append(QString::fromLocal8Bit(argument));
    }
    return arguments;
}

} // namespace velto
