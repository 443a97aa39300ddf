// Renders the tray icon's faces and the tray menu off screen for the README, on a light and a dark panel.
// Usage: velto_screenshots_tray OUTPUT_DIR
#include "tray/StatusItem.h"
#include "tray/TrayIconPainter.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

// Every face at the common panel sizes, on a light and on a dark panel strip, magnified so pixels show.
QImage iconSheet()
{
    const QList<TrayIconFace> faces{
        {}, {true, 60, u"20"_s}, {true, 45, u"15"_s}, {true, 20, u"7"_s}, {true, 3, u"1"_s}, {true, 60, u"2h"_s},
    };
    const QList<int> sizes{16, 22, 24};
    const int zoom = 4;
    const int cell = 30;
    QImage sheet(faces.size() * cell * zoom, int(sizes.size()) * 2 * cell * zoom, QImage::Format_ARGB32);
    QPainter painter(&sheet);
    for (int band = 0; band < 2; ++band) {
        const QColor panel = band == 0 ? QColor(0xf2, 0xf2, 0xf2) : QColor(0x24, 0x24, 0x24);
        for (int row = 0; row < sizes.size(); ++row) {
            const int y = (band * int(sizes.size()) + row) * cell * zoom;
            painter.fillRect(0, y, sheet.width(), cell * zoom, panel);
            for (int i = 0; i < faces.size(); ++i) {
                const int size = sizes[row];
                const QImage icon = TrayIconPainter::paint(faces[i], size);
                const int x = i * cell * zoom + (cell - size) / 2 * zoom;
                painter.drawImage(QRect(x, y + (cell - size) / 2 * zoom, size * zoom, size * zoom), icon);
            }
        }
    }
    return sheet;
}

QImage menuShot(const QPalette& palette)
{
    QApplication::setPalette(palette);
    StatusItem item;
    item.rebuildMenu(makeStatusMenuItems(
        makeMenuBarPresentation({BreakState::Working, std::nullopt, 1499.4, 0, false, true, true, {}, {}, {}}),
        {true, 3, true, BreakState::Working, std::nullopt}));
    QMenu* menu = item.menu();
    menu->ensurePolished();
    menu->adjustSize();
    return menu->grab().toImage();
}

QPalette darkPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2b));
    p.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    p.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    p.setColor(QPalette::ButtonText, QColor(0xee, 0xee, 0xee));
    p.setColor(QPalette::Highlight, QColor(0x0f, 0x76, 0x6e));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0x88, 0x88, 0x88));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x88, 0x88, 0x88));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x88, 0x88, 0x88));
    return p;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QString outputDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"docs/screenshots"_s;
    QDir().mkpath(outputDir);
    bool ok = iconSheet().save(outputDir + u"/tray-icons.png"_s);
    ok &= menuShot(QApplication::style()->standardPalette()).save(outputDir + u"/tray-menu-light.png"_s);
    ok &= menuShot(darkPalette()).save(outputDir + u"/tray-menu-dark.png"_s);
    if (!ok)
        std::fputs("velto_screenshots_tray: could not write the pictures\n", stderr);
    return ok ? 0 : 1;
}
