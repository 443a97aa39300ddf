#include "DesktopPicture.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

QString localPath(QString location)
{
    location = location.trimmed();
    if (location.startsWith(u"file:"))
        return QUrl(location).toLocalFile();
    return location;
}

QString existingFile(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isFile() ? path : QString();
}

QString plasmaWallpaper()
{
    const QString config =
        QStandardPaths::locate(QStandardPaths::GenericConfigLocation, u"plasma-org.kde.plasma.desktop-appletsrc"_s);
    QFile file(config);
    if (config.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return plasmaWallpaperFromConfig(QString::fromUtf8(file.read(1 << 20)));
}

QString gnomeWallpaper()
{
    const QString gsettings = QStandardPaths::findExecutable(u"gsettings"_s);
    if (gsettings.isEmpty())
        return {};
    QProcess process;
    process.start(gsettings, {u"get"_s, u"org.gnome.desktop.background"_s, u"picture-uri"_s});
    // The answer is local and quick; a session bus that hangs must not hold the break screen back for long.
    if (!process.waitForFinished(500)) {
        process.kill();
        process.waitForFinished(100);
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return gnomeWallpaperFromGsettings(QString::fromUtf8(process.readAllStandardOutput()));
}

} // namespace

QString plasmaWallpaperFromConfig(const QString& configText)
{
    for (QStringView line : QStringView(configText).split(u'\n')) {
        line = line.trimmed();
        if (line.startsWith(u"Image="))
            return localPath(line.mid(6).toString());
    }
    return {};
}

QString gnomeWallpaperFromGsettings(const QString& answer)
{
    QString value = answer.trimmed();
    if (value.size() >= 2 && value.startsWith(u'\'') && value.endsWith(u'\''))
        value = value.mid(1, value.size() - 2);
    if (value.isEmpty())
        return {};
    return localPath(value);
}

QString desktopPicturePath()
{
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP").toUpper();
    if (desktop.contains(u"KDE"_s)) {
        if (QString path = existingFile(plasmaWallpaper()); !path.isEmpty())
            return path;
    }
    if (QString path = existingFile(gnomeWallpaper()); !path.isEmpty())
        return path;
    return existingFile(plasmaWallpaper());
}

} // namespace velto
