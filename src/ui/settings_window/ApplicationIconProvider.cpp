#include "ApplicationIconProvider.h"

#include "detection/ApplicationInfoProviding.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

// The icon theme first; sessions without one still have the shared directories desktop files point into.
QIcon themedIcon(const QString& name)
{
    QIcon icon = QIcon::fromTheme(name);
    if (!icon.isNull())
        return icon;
    const QStringList candidates = {
        u"/usr/share/icons/hicolor/scalable/apps/"_s + name + u".svg"_s,
        u"/usr/share/icons/hicolor/256x256/apps/"_s + name + u".png"_s,
        u"/usr/share/icons/hicolor/128x128/apps/"_s + name + u".png"_s,
        u"/usr/share/icons/hicolor/48x48/apps/"_s + name + u".png"_s,
        u"/usr/share/pixmaps/"_s + name + u".svg"_s,
        u"/usr/share/pixmaps/"_s + name + u".png"_s,
        u"/usr/share/pixmaps/"_s + name + u".xpm"_s,
    };
    for (const QString& path : candidates) {
        if (QFileInfo::exists(path))
            return QIcon(path);
    }
    return {};
}

} // namespace

ApplicationIconProvider::ApplicationIconProvider(const ApplicationInfoProviding* applications)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_applications(applications)
{}

QImage ApplicationIconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QSize wanted = requestedSize.isValid() ? requestedSize : QSize(64, 64);
    const QString identifier = QUrl::fromPercentEncoding(id.toUtf8());
    QIcon icon;
    if (identifier == ownIconId)
        icon = QGuiApplication::windowIcon();
    else if (m_applications) {
        if (const std::optional<ApplicationInfo> info = m_applications->applicationInfo(identifier)) {
            const QString& name = info->iconName;
            if (QFileInfo(name).isAbsolute())
                icon = QIcon(name);
            else if (!name.isEmpty())
                icon = themedIcon(name);
        }
    }
    if (icon.isNull() || icon.pixmap(wanted).isNull())
        icon = QIcon::fromTheme(u"application-x-executable"_s);
    QImage image = icon.pixmap(wanted).toImage();
    if (image.isNull()) {
        // Without an icon theme there is no generic icon either; a plain tile keeps the rows even.
        image = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x8e, 0x8e, 0x93));
        const QRectF tile =
            QRectF(image.rect())
                .adjusted(wanted.width() * 0.1, wanted.height() * 0.1, -wanted.width() * 0.1, -wanted.height() * 0.1);
        painter.drawRoundedRect(tile, tile.width() * 0.22, tile.height() * 0.22);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace velto
