#include "MenuSymbols.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

// Theme icons from the freedesktop naming list that mean the same as a symbol.
const QHash<QString, QString>& themeNames()
{
    static const QHash<QString, QString> names{
        {u"play.fill"_s, u"media-playback-start"_s},  {u"stop.fill"_s, u"media-playback-stop"_s},
        {u"pause.fill"_s, u"media-playback-pause"_s}, {u"power"_s, u"system-shutdown"_s},
        {u"gearshape"_s, u"preferences-system"_s},    {u"record.circle"_s, u"media-record"_s},
        {u"mic.fill"_s, u"audio-input-microphone"_s}, {u"camera.fill"_s, u"camera-photo"_s},
        {u"video.fill"_s, u"camera-web"_s},           {u"gamecontroller"_s, u"input-gaming"_s},
    };
    return names;
}

QString resourcePath(const QString& symbolName)
{
    return u":/velto/symbols/"_s + symbolName + u".svg"_s;
}

QIcon tinted(const QString& path, const QColor& tint)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The drawings are black on transparent; the menu's own text colour keeps them legible on any theme.
    QByteArray svg = file.readAll();
    svg.replace("#000000", tint.name().toLatin1());
    QSvgRenderer renderer(svg);
    QIcon icon;
    for (const int size : {16, 32}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace

bool MenuSymbols::isKnown(const QString& symbolName)
{
    return !symbolName.isEmpty() && QFile::exists(resourcePath(symbolName));
}

QIcon MenuSymbols::icon(const QString& symbolName, const QColor& tint)
{
    const QString name = isKnown(symbolName) ? symbolName : u"timer"_s;
    // A symbolic icon first: a panel with a dark menu recolours it, as it does the desktop's own.
    if (const QString themeName = themeNames().value(name); !themeName.isEmpty())
        for (const QString& candidate : {QString(themeName + u"-symbolic"_s), themeName})
            if (QIcon::hasThemeIcon(candidate))
                return QIcon::fromTheme(candidate);
    return tinted(resourcePath(name), tint);
}

} // namespace velto
