#include "DesktopEntryIndex.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

constexpr qint64 maxDesktopFileSize = 256 * 1024;

// Undoes the value escapes desktop files allow (\s \n \t \r \\).
QString unescape(QByteArrayView raw)
{
    QByteArray out;
    out.reserve(raw.size());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c != '\\' || i + 1 == raw.size()) {
            out.append(c);
            continue;
        }
        switch (raw[++i]) {
        case 's':
            out.append(' ');
            break;
        case 'n':
            out.append('\n');
            break;
        case 't':
            out.append('\t');
            break;
        case 'r':
            out.append('\r');
            break;
        case '\\':
            out.append('\\');
            break;
        default:
            out.append('\\').append(raw[i]);
            break;
        }
    }
    return QString::fromUtf8(out);
}

// Splits an Exec value into arguments, honouring double quotes and backslash escapes inside them.
QStringList execArguments(const QString& exec)
{
    QStringList arguments;
    QString current;
    bool inQuotes = false;
    bool hasToken = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (inQuotes) {
            if (c == u'"')
                inQuotes = false;
            else if (c == u'\\' && i + 1 < exec.size())
                current.append(exec[++i]);
            else
                current.append(c);
        } else if (c == u'"') {
            inQuotes = true;
            hasToken = true;
        } else if (c.isSpace()) {
            if (hasToken)
                arguments.append(current);
            current.clear();
            hasToken = false;
        } else {
            current.append(c);
            hasToken = true;
        }
    }
    if (hasToken)
        arguments.append(current);
    return arguments;
}

QString executableOf(const QString& exec)
{
    QStringList arguments = execArguments(exec);
    qsizetype i = 0;
    if (i < arguments.size() && QFileInfo(arguments[i]).fileName() == u"env"_s) {
        ++i;
        while (i < arguments.size() && (arguments[i].contains(u'=') || arguments[i].startsWith(u'-'))) {
            // These options of env take the next argument as their value.
            if (arguments[i] == u"-u"_s || arguments[i] == u"-C"_s || arguments[i] == u"-S"_s)
                ++i;
            ++i;
        }
    }
    if (i >= arguments.size())
        return {};
    const QString program = QFileInfo(arguments[i]).fileName();
    // A sandboxed app is known by its Flatpak ID, never by the launcher.
    if (program == u"flatpak"_s)
        return {};
    return program;
}

} // namespace

DesktopEntryIndex::DesktopEntryIndex()
    : DesktopEntryIndex(defaultApplicationDirs())
{}

DesktopEntryIndex::DesktopEntryIndex(QStringList applicationDirs)
    : m_dirs(std::move(applicationDirs))
{
    m_snapshot = scan();
}

QStringList DesktopEntryIndex::defaultApplicationDirs()
{
    QString dataHome = qEnvironmentVariable("XDG_DATA_HOME");
    if (dataHome.isEmpty())
        dataHome = QDir::homePath() + u"/.local/share"_s;
    QString dataDirs = qEnvironmentVariable("XDG_DATA_DIRS");
    if (dataDirs.isEmpty())
        dataDirs = u"/usr/local/share:/usr/share"_s;
    QStringList dirs{dataHome + u"/applications"_s};
    for (const QString& dir : dataDirs.split(u':', Qt::SkipEmptyParts))
        dirs.append(dir + u"/applications"_s);
    dirs.removeDuplicates();
    return dirs;
}

bool DesktopEntry::isListedOn(const QStringList& desktops) const
{
    if (noDisplay)
        return false;
    const auto any = [&desktops](const QStringList& names) {
        return std::any_of(desktops.begin(), desktops.end(), [&names](const QString& d) { return names.contains(d); });
    };
    if (!onlyShowIn.isEmpty() && !any(onlyShowIn))
        return false;
    return !any(notShowIn);
}

std::optional<DesktopEntry> DesktopEntryIndex::parse(const QByteArray& contents, const QString& id,
                                                     const QString& filePath)
{
    DesktopEntry entry;
    entry.id = id;
    entry.filePath = filePath;
    bool inMainGroup = false;
    bool sawMainGroup = false;
    QString type;
    bool hidden = false;
    qsizetype position = 0;
    while (position < contents.size()) {
        qsizetype end = contents.indexOf('\n', position);
        if (end < 0)
            end = contents.size();
        const QByteArrayView line = QByteArrayView(contents).sliced(position, end - position).trimmed();
        position = end + 1;
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        if (line.startsWith('[')) {
            if (sawMainGroup && inMainGroup)
                break; // the main group is over; later groups are actions
            inMainGroup = line == "[Desktop Entry]";
            sawMainGroup = sawMainGroup || inMainGroup;
            continue;
        }
        if (!inMainGroup)
            continue;
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0)
            continue;
        const QByteArrayView key = line.first(equals).trimmed();
        const QByteArrayView value = line.sliced(equals + 1).trimmed();
        if (key == "Type")
            type = unescape(value);
        else if (key == "Name")
            entry.name = unescape(value);
        else if (key == "Icon")
            entry.icon = unescape(value);
        else if (key == "Categories")
            entry.categories = unescape(value).split(u';', Qt::SkipEmptyParts);
        else if (key == "StartupWMClass")
            entry.startupWMClass = unescape(value);
        else if (key == "Exec")
            entry.exec = unescape(value);
        else if (key == "Hidden")
            hidden = value == "true";
        else if (key == "NoDisplay")
            entry.noDisplay = value == "true";
        else if (key == "OnlyShowIn")
            entry.onlyShowIn = unescape(value).split(u';', Qt::SkipEmptyParts);
        else if (key == "NotShowIn")
            entry.notShowIn = unescape(value).split(u';', Qt::SkipEmptyParts);
    }
    if (!sawMainGroup || hidden || type != u"Application"_s || entry.name.isEmpty())
        return std::nullopt;
    entry.executable = executableOf(entry.exec);
    return entry;
}

QHash<QString, QDateTime> DesktopEntryIndex::folderTimes() const
{
    QHash<QString, QDateTime> times;
    for (const QString& dir : m_dirs) {
        QDirIterator it(dir, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        times.insert(dir, QFileInfo(dir).lastModified());
        while (it.hasNext())
            times.insert(it.next(), it.fileInfo().lastModified());
    }
    return times;
}

DesktopEntryIndex::Snapshot DesktopEntryIndex::scan() const
{
    Snapshot snapshot;
    snapshot.folderTimes = folderTimes();
    QSet<QString> seen;
    for (const QString& dir : m_dirs) {
        const QString base = QDir(dir).absolutePath() + u'/';
        QDirIterator it(dir, {u"*.desktop"_s}, QDir::Files | QDir::Readable, QDirIterator::Subdirectories);
        QStringList files;
        while (it.hasNext())
            files.append(it.next());
        std::sort(files.begin(), files.end());
        for (const QString& path : files) {
            QString id = QFileInfo(path).absoluteFilePath().mid(base.size());
            id.chop(8); // ".desktop"
            id.replace(u'/', u'-');
            if (seen.contains(id))
                continue;
            seen.insert(id);
            QFile file(path);
            if (file.size() > maxDesktopFileSize || !file.open(QIODevice::ReadOnly))
                continue;
            if (auto entry = parse(file.readAll(), id, path))
                snapshot.byId.insert(id, *entry);
        }
    }
    QStringList ids = snapshot.byId.keys();
    std::sort(ids.begin(), ids.end());
    for (const QString& id : std::as_const(ids)) {
        const DesktopEntry& entry = snapshot.byId[id];
        // Several entries may claim one class or program; the first ID in order keeps it.
        if (!entry.startupWMClass.isEmpty() && !snapshot.idByWindowClass.contains(entry.startupWMClass.toLower()))
            snapshot.idByWindowClass.insert(entry.startupWMClass.toLower(), id);
        snapshot.idByLowerId.insert(id.toLower(), id);
        if (!entry.executable.isEmpty() && !snapshot.idByExecutable.contains(entry.executable))
            snapshot.idByExecutable.insert(entry.executable, id);
    }
    return snapshot;
}

void DesktopEntryIndex::refresh()
{
    Snapshot fresh = scan();
    QWriteLocker lock(&m_lock);
    m_snapshot = std::move(fresh);
}

bool DesktopEntryIndex::refreshIfChanged()
{
    const QHash<QString, QDateTime> now = folderTimes();
    {
        QReadLocker lock(&m_lock);
        if (now == m_snapshot.folderTimes)
            return false;
    }
    refresh();
    return true;
}

QList<DesktopEntry> DesktopEntryIndex::entries() const
{
    QReadLocker lock(&m_lock);
    QList<DesktopEntry> all = m_snapshot.byId.values();
    std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.id < b.id; });
    return all;
}

std::optional<DesktopEntry> DesktopEntryIndex::entry(const QString& id) const
{
    QReadLocker lock(&m_lock);
    const auto it = m_snapshot.byId.constFind(id);
    if (it == m_snapshot.byId.constEnd())
        return std::nullopt;
    return *it;
}

std::optional<DesktopEntry> DesktopEntryIndex::entryForWindowClass(const QString& windowClass) const
{
    if (windowClass.isEmpty())
        return std::nullopt;
    const QString key = windowClass.toLower();
    QReadLocker lock(&m_lock);
    QString id = m_snapshot.idByWindowClass.value(key);
    if (id.isEmpty())
        id = m_snapshot.idByLowerId.value(key);
    if (id.isEmpty())
        return std::nullopt;
    return m_snapshot.byId.value(id);
}

std::optional<DesktopEntry> DesktopEntryIndex::entryForExecutable(const QString& executable) const
{
    if (executable.isEmpty())
        return std::nullopt;
    QReadLocker lock(&m_lock);
    const QString id = m_snapshot.idByExecutable.value(executable);
    if (id.isEmpty())
        return std::nullopt;
    return m_snapshot.byId.value(id);
}

} // namespace velto
