// Renders the pre-break card off screen for the README: short and long breaks, light and dark desktop palettes.
// Usage: velto_screenshots_notification OUTPUT_DIR
#include "InAppNotificationWindowPresenter.h"
#include "PreBreakNotificationHostingView.h"
#include "ScreenshotLanguage.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QQuickWindow>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

struct Shot {
    QString name;
    BreakType type;
    bool dark;
    double timeRemaining;
};

QPalette desktopPalette(bool dark)
{
    QPalette palette;
    if (dark) {
        palette.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2e));
        palette.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf2));
    } else {
        palette.setColor(QPalette::Window, QColor(0xf6, 0xf6, 0xf6));
        palette.setColor(QPalette::WindowText, QColor(0x12, 0x12, 0x12));
    }
    return palette;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Twice the pixels, as on a HiDPI screen, so the small card stays crisp in the README.
    qputenv("QT_SCALE_FACTOR", "2");
    QGuiApplication app(argc, argv);
    // Velto's icon, as the application sets it at start.
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(VELTO_APP_ICON)));
    const QString outputDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"docs/screenshots"_s;
    const QString language = useScreenshotLanguage();
    QDir().mkpath(outputDir);

    const QList<Shot> shots = {
        {u"notification-short-light"_s, BreakType::Short, false, 59},
        {u"notification-long-light"_s, BreakType::Long, false, 125},
        {u"notification-short-dark"_s, BreakType::Short, true, 42},
        {u"notification-long-dark"_s, BreakType::Long, true, 60},
    };

    InAppNotificationWindowPresenter presenter([] { return false; });
    for (const Shot& shot : shots) {
        QGuiApplication::setPalette(desktopPalette(shot.dark));
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(shot.type, shot.timeRemaining);
        QQuickWindow* window = presenter.makePanel(model, {}, {}, {}, {});
        if (!window) {
            std::fprintf(stderr, "cannot build the pre-break card\n");
            return 1;
        }
        // Offscreen grabs drop transparency; the backdrop colour stands behind the translucent, rounded card.
        const QColor backdrop = shot.dark ? QColor(0x1b, 0x1d, 0x24) : QColor(0xd9, 0xde, 0xe6);
        window->setColor(backdrop);
        window->show();
        QTest::qWait(50);
        const QImage card = window->grabWindow();
        // The card is translucent and rounded; show it over a plain desktop-like backdrop with a margin.
        QImage framed(card.width() + 96, card.height() + 96, QImage::Format_ARGB32_Premultiplied);
        framed.fill(backdrop);
        QPainter painter(&framed);
        QImage unscaled = card;
        unscaled.setDevicePixelRatio(1);
        painter.drawImage(48, 48, unscaled);
        painter.end();
        const QString path = outputDir + u'/' + shot.name + language + u".png"_s;
        if (!framed.save(path)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
        std::printf("%s\n", qPrintable(path));
        delete window;
    }
    return 0;
}
