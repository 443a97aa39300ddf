#pragma once

#include <QFile>
#include <QTemporaryDir>

// Gives the offscreen platform the screens a test describes (its JSON screen configuration). Call before the
// application object exists; directory must outlive it. False when the file cannot be written.
inline bool useOffscreenScreens(const QTemporaryDir& directory, const QByteArray& screensJson)
{
    const QString config = directory.filePath(QStringLiteral("screens.json"));
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly) || file.write(screensJson) < 0)
        return false;
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toLocal8Bit());
    return true;
}
