// Renders the break screen off screen at 1920×1080 for the README: short and long breaks over several
// backgrounds. Usage: velto_screenshots OUTPUT_DIR
#include "BreakWindow.h"
#include "InMemoryUserDefaults.h"
#include "ScreenshotLanguage.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <QDir>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QQuickWindow>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace velto;

namespace {

struct Shot {
    QString name;
    BreakType type;
    BackgroundType background;
    GradientTheme theme = GradientTheme::Midnight;
    QStringList messages;
    CodableColor color{0, 0, 0, 0.85};
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    BreakWindow::useSoftwareRendering();
    QGuiApplication app(argc, argv);
    const QString outputDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"docs/screenshots"_s;
    const QString language = useScreenshotLanguage();
    QDir().mkpath(outputDir);

    const QList<Shot> shots = {
        {u"short-paper-light"_s,
         BreakType::Short,
         BackgroundType::PaperLight,
         {},
         {u"Look at something 20 feet away"_s}},
        {u"long-paper-light"_s, BreakType::Long, BackgroundType::PaperLight, {}, {}},
        {u"short-paper-dark"_s,
         BreakType::Short,
         BackgroundType::PaperDark,
         {},
         {u"Blink slowly and relax your eyes"_s}},
        {u"long-paper-dark"_s, BreakType::Long, BackgroundType::PaperDark, {}, {u"Stretch your shoulders and neck"_s}},
        {u"short-gradient-midnight"_s, BreakType::Short, BackgroundType::Gradient, GradientTheme::Midnight, {}},
        {u"long-gradient-aurora"_s, BreakType::Long, BackgroundType::Gradient, GradientTheme::Aurora, {}},
        {u"short-gradient-sunset"_s,
         BreakType::Short,
         BackgroundType::Gradient,
         GradientTheme::Sunset,
         {u"Rest your eyes and take a deep breath"_s}},
        {u"long-gradient-warmth"_s,
         BreakType::Long,
         BackgroundType::Gradient,
         GradientTheme::Warmth,
         {u"You're doing great! Keep up the healthy habits"_s}},
        {u"short-solid-color"_s, BreakType::Short, BackgroundType::SolidColor, {}, {}, {0.86, 0.91, 0.88, 1}},
        {u"long-solid-color"_s,
         BreakType::Long,
         BackgroundType::SolidColor,
         {},
         {u"Time to touch grass (literally)"_s},
         {0.93, 0.88, 0.80, 1}},
    };

    for (const Shot& shot : shots) {
        InMemoryUserDefaults store;
        SettingsManager settings(store, nullptr);
        BreakConfiguration configuration = settings.breakConfiguration();
        configuration.skipDifficulty = SkipDifficulty::Casual;
        configuration.longBreakEnabled = true;
        settings.setBreakConfiguration(configuration);
        BreakAppearance appearance = settings.breakAppearance();
        appearance.backgroundType = shot.background;
        appearance.gradientTheme = shot.theme;
        appearance.customMessages = shot.messages;
        appearance.backgroundColor = shot.color;
        settings.setBreakAppearance(appearance);

        BreakManager breaks(store);
        breaks.setSettingsManager(&settings);
        if (shot.type == BreakType::Long)
            breaks.startLongBreak();
        else
            breaks.takeBreakNow();
        // Long breaks past half-way, so End Break is in the picture; short ones a few seconds in.
        const int ticks = shot.type == BreakType::Long ? 170 : 7;
        for (int i = 0; i < ticks; ++i)
            breaks.breakTick();

        BreakWindow overlay(&settings, &breaks, nullptr, nullptr);
        overlay.prepareBackgroundImage();
        QQuickWindow* window = overlay.makeBreakWindow(nullptr, shot.type);
        if (!window) {
            std::fprintf(stderr, "cannot build the break screen\n");
            return 1;
        }
        window->setGeometry(0, 0, 1920, 1080);
        window->show();
        // One frame is enough: the ring starts at its value; waiting longer would let the break timer tick.
        QTest::qWait(50);
        const QImage image = window->grabWindow();
        const QString path = outputDir + u'/' + shot.name + language + u".png"_s;
        if (!image.save(path)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
        std::printf("%s\n", qPrintable(path));
        delete window;
    }
    return 0;
}
