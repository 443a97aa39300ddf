#include "ApplicationIconProvider.h"

#include "ApplicationInfoProviding.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace velto {

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
                icon = QIcon::fromTheme(name);
        }
    }
    if (icon.isNull() || icon.pixmap(wanted).isNull())
        icon = QIcon::fromTheme(u"application-x-executable"_s);
    QImage image = icon.pixmap(wanted).toImage();
    if (image.isNull()) {
        image = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace velto
