#include "XdgAutostartEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

// An Exec argument in double quotes with ", `, $ and \ escaped, then escaped again as a desktop-entry
// string (where \ itself is special), and % doubled because it introduces field codes.
QString quotedExecArgument(const QString& argument)
{
    QString quoted;
    for (const QChar c : argument) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            quoted += u'\\';
        quoted += c;
    }
    quoted.replace(u"\\"_s, u"\\\\"_s);
    quoted.replace(u"%"_s, u"%%"_s);
    return u'"' + quoted + u'"';
}

// A desktop-entry string value: backslash and line breaks escaped.
QString escapedString(const QString& value)
{
    QString escaped = value;
    escaped.replace(u"\\"_s, u"\\\\"_s);
    escaped.replace(u"\n"_s, u"\\n"_s);
    return escaped;
}

} // namespace

XdgAutostartEntry::XdgAutostartEntry(QString executablePath, QString autostartDirectory)
    : m_executablePath(std::move(executablePath))
    , m_autostartDirectory(std::move(autostartDirectory))
{}

QString XdgAutostartEntry::defaultDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart"_s;
}

QString XdgAutostartEntry::entryPath() const
{
    return m_autostartDirectory + u"/com.velto.app.desktop"_s;
}

QString XdgAutostartEntry::legacyEntryPath() const
{
    return m_autostartDirectory + u"/velto.desktop"_s;
}

bool XdgAutostartEntry::isDisabledByUser() const
{
    for (const QString& path : {entryPath(), legacyEntryPath()}) {
        QFile entry(path);
        if (!entry.open(QIODevice::ReadOnly))
            continue;
        bool inMainGroup = false;
        while (!entry.atEnd()) {
            const QByteArray line = entry.readLine().trimmed();
            if (line.startsWith('['))
                inMainGroup = line == "[Desktop Entry]";
            else if (inMainGroup && (line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false"))
                return true;
        }
        return false;
    }
    return false;
}

QByteArray XdgAutostartEntry::entryContents() const
{
    const QString text = u"[Desktop Entry]\n"
                         u"Type=Application\n"
                         u"Name=Velto\n"
                         u"Comment=Reminds you to take breaks\n"
                         u"TryExec="_s +
                         escapedString(m_executablePath) +
                         u"\n"
                         u"Exec="_s +
                         quotedExecArgument(m_executablePath) +
                         u"\n"
                         u"Icon=com.velto.app\n"
                         u"Terminal=false\n"
                         u"Categories=Utility;\n"
                         u"X-GNOME-Autostart-enabled=true\n"_s;
    return text.toUtf8();
}

std::optional<QString> XdgAutostartEntry::setRegistered(bool registered)
{
    const QString path = entryPath();
    // The entry earlier versions wrote goes either way: one entry, under the application's id.
    if (QFile legacy(legacyEntryPath()); legacy.exists() && !legacy.remove())
        //: Why launch at login could not be changed: %1 is a file's path, %2 the system's reason.
        return QCoreApplication::translate("LaunchAtLogin", "Could not remove %1: %2")
            .arg(legacy.fileName(), legacy.errorString());
    if (!registered) {
        // No entry is what was asked for: launch at login off is the state of every fresh account.
        QFile entry(path);
        if (!entry.exists())
            return std::nullopt;
        if (!entry.remove())
            return QCoreApplication::translate("LaunchAtLogin", "Could not remove %1: %2")
                .arg(path, entry.errorString());
        return std::nullopt;
    }
    if (!QDir().mkpath(m_autostartDirectory))
        //: %1 is the folder's path.
        return QCoreApplication::translate("LaunchAtLogin", "Could not create the autostart folder %1")
            .arg(m_autostartDirectory);
    QSaveFile entry(path);
    if (!entry.open(QIODevice::WriteOnly))
        //: %1 is a file's path, %2 the system's reason.
        return QCoreApplication::translate("LaunchAtLogin", "Could not write %1: %2").arg(path, entry.errorString());
    entry.write(entryContents());
    if (!entry.commit())
        //: %1 is a file's path, %2 the system's reason.
        return QCoreApplication::translate("LaunchAtLogin", "Could not write %1: %2").arg(path, entry.errorString());
    return std::nullopt;
}

} // namespace velto
