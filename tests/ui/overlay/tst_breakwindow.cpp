#include "BackgroundImage.h"
#include "BreakOverlayRig.h"
#include "BreakViewModel.h"
#include "BreakWindow.h"
#include "DesktopPicture.h"
#include "FreedMemory.h"
#include "OffscreenScreens.h"
#include "PseudoTranslator.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// The offscreen platform reads its screens from this file: three side by side, the middle one taller.
constexpr char screensConfig[] = R"({"screens": [
    {"name": "left", "x": 0, "y": 0, "width": 1280, "height": 800},
    {"name": "middle", "x": 1280, "y": 0, "width": 1920, "height": 1080},
    {"name": "right", "x": 3200, "y": 0, "width": 1024, "height": 768}
]})";

using Rig = BreakOverlayRig;

QQuickItem* find(QQuickWindow* window, const char* name)
{
    return window->findChild<QQuickItem*>(QString::fromLatin1(name));
}

QPoint centreOf(QQuickItem* item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

} // namespace

class TestBreakWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The offscreen platform cannot fade or raise windows and says so on every step of every fade.
        static QtMessageHandler testLog = nullptr;
        testLog = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (!message.startsWith(u"This plugin does not support"))
                testLog(type, context, message);
        });
        QCOMPARE(QGuiApplication::screens().size(), 3);
    }

    void targetScreens()
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        QCOMPARE(breakTargetScreens(ScreenDisplayMode::AllScreens, screens, screens[1]), screens);
        QCOMPARE(breakTargetScreens(ScreenDisplayMode::MainScreenOnly, screens, screens[1]),
                 QList<QScreen*>{screens[1]});
        // No primary reported: the first screen of the list.
        QCOMPARE(breakTargetScreens(ScreenDisplayMode::MainScreenOnly, screens, nullptr), QList<QScreen*>{screens[0]});
        QVERIFY(breakTargetScreens(ScreenDisplayMode::MainScreenOnly, {}, nullptr).isEmpty());
    }

    void coversTheTargetScreensInOrder()
    {
        Rig rig;
        rig.startBreak();
        const QList<QScreen*> screens = QGuiApplication::screens();
        QCOMPARE(rig.overlay.windows().size(), 3);
        for (int i = 0; i < 3; ++i) {
            QQuickWindow* window = rig.overlay.windows()[i];
            QCOMPARE(window->screen(), screens[i]);
            QCOMPARE(window->geometry(), screens[i]->geometry());
            QVERIFY(window->isVisible());
            QVERIFY(window->flags().testFlag(Qt::FramelessWindowHint));
            QVERIFY(window->flags().testFlag(Qt::WindowStaysOnTopHint));
            // The view fills its window.
            QCOMPARE(window->contentItem()->childItems().first()->size(), QSizeF(screens[i]->geometry().size()));
        }
        // Each window fades in from transparent to opaque.
        QCOMPARE(rig.overlay.windows()[0]->opacity(), 0.0);
        QTRY_COMPARE_WITH_TIMEOUT(rig.overlay.windows()[0]->opacity(), 1.0, 2000);

        // The main screen alone gets the primary's window.
        rig.overlay.hide();
        rig.appearance([](BreakAppearance& a) { a.screenDisplayMode = ScreenDisplayMode::MainScreenOnly; });
        rig.overlay.show(BreakType::Long);
        QCOMPARE(rig.overlay.windows().size(), 1);
        QCOMPARE(rig.overlay.windows().first()->screen(), QGuiApplication::primaryScreen());
    }

    void hidingFadesEveryWindowAndAShowStartsAfresh()
    {
        Rig rig(true);
        rig.startBreak();
        rig.overlay.show(BreakType::Short);
        QCOMPARE(rig.overlay.windows().size(), 2);
        QList<QPointer<QQuickWindow>> shown;
        for (QQuickWindow* window : rig.overlay.windows())
            shown.append(window);

        rig.overlay.hide();
        QVERIFY(rig.overlay.windows().isEmpty());
        // Still on screen while they fade, gone after the fade.
        QVERIFY(shown[0] && shown[1]);
        QVERIFY(shown[0]->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!shown[0] && !shown[1], 2000);

        // A show during a fade-out gets a window of its own, which the fade does not take along.
        rig.overlay.show(BreakType::Short);
        QPointer<QQuickWindow> leaving = rig.overlay.windows().first();
        rig.overlay.hide();
        rig.overlay.show(BreakType::Short);
        QCOMPARE(rig.overlay.windows().size(), 1);
        QVERIFY(rig.overlay.windows().first() != leaving.data());
        QPointer<QQuickWindow> staying = rig.overlay.windows().first();
        QTRY_VERIFY_WITH_TIMEOUT(!leaving, 2000);
        QVERIFY(staying);
        QCOMPARE(staying->opacity(), 1.0);
    }

    void hideWithoutWindowsStillChimes()
    {
        Rig rig;
        rig.overlay.hide();
        QCOMPARE(rig.player.names(), QStringList{u"Blow"_s});
        QCOMPARE(rig.player.played.first().volume, rig.settings.notificationSettings().soundVolume);

        NotificationSettings quiet = rig.settings.notificationSettings();
        quiet.playSoundOnBreakEnd = false;
        rig.settings.setNotificationSettings(quiet);
        rig.overlay.hide();
        QCOMPARE(rig.player.played.size(), 1);
    }

    void startChimeThenLock()
    {
        Rig rig;
        rig.configure([](BreakConfiguration& c) { c.lockScreenOnBreak = true; });
        QStringList order;
        rig.lock.onLock = [&] {
            order = rig.player.names();
            order.append(u"lock"_s);
        };
        rig.startBreak();
        QCOMPARE(order, (QStringList{u"Glass"_s, u"lock"_s}));
        QCOMPARE(rig.lock.lockRequests, 1);

        // No lock available: the overlay still shows and nothing is locked.
        Rig unavailable;
        unavailable.configure([](BreakConfiguration& c) { c.lockScreenOnBreak = true; });
        unavailable.lock.available = false;
        unavailable.breaks.takeBreakNow();
        unavailable.overlay.show(BreakType::Short);
        QCOMPARE(unavailable.overlay.windows().size(), 3);
        QCOMPARE(unavailable.lock.lockRequests, 0);
    }

    void skipButtonRulesOnScreen()
    {
        Rig rig(true);
        rig.configure([](BreakConfiguration& c) { c.allowEarlyEnd = false; });
        std::function<void()> skipDelayEnds;
        rig.overlay.setDelayedAction(
            [&](double, QObject*, std::function<void()> action) { skipDelayEnds = std::move(action); });
        QQuickWindow* window = rig.showBreak();
        QVERIFY(window);
        QQuickItem* skip = find(window, "skipButton");
        QVERIFY(skip && skip->isVisible());
        // Dimmed and deaf for the first two seconds of a balanced break.
        QCOMPARE(skip->property("usable").toBool(), false);
        QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(skip));
        QCOMPARE(rig.breaks.state(), BreakState::OnBreak);
        QVERIFY(skipDelayEnds);
        skipDelayEnds();
        QVERIFY(skip->property("usable").toBool());
        QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(skip));
        QVERIFY(rig.breaks.state() != BreakState::OnBreak);

        // Committed without early end: no Skip at all, and the row takes no room.
        Rig hardcore(true);
        hardcore.configure([](BreakConfiguration& c) {
            c.allowEarlyEnd = false;
            c.skipDifficulty = SkipDifficulty::Hardcore;
        });
        QQuickWindow* strict = hardcore.showBreak();
        QVERIFY(strict);
        QVERIFY(!find(strict, "skipButton")->isVisible());
        QCOMPARE(find(strict, "controls")->height(), 0.0);
    }

    void endBreakButtonEndsTheBreak()
    {
        Rig rig(true);
        QQuickWindow* window = rig.showBreak();
        QVERIFY(window);
        QQuickItem* endBreak = find(window, "endBreakButton");
        QQuickItem* time = find(window, "timeText");
        QCOMPARE(time->property("text").toString(), u"20"_s);
        QVERIFY(!endBreak->isVisible());
        for (int i = 0; i < 10; ++i)
            rig.breaks.breakTick();
        QCOMPARE(time->property("text").toString(), u"10"_s);
        QVERIFY(endBreak->isVisible());
        QTest::qWait(50); // let the row lay the new button out
        QTest::mouseClick(window, Qt::LeftButton, {}, centreOf(endBreak));
        QVERIFY(rig.breaks.state() != BreakState::OnBreak);
        QCOMPARE(rig.breaks.dailyBreakCount(), 1);
    }

    // Velto's own texts are in the user's language, the fallback message too.
    void theBreakScreenIsInTheUsersLanguage()
    {
        PseudoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const auto uninstall = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
        Rig rig(true);
        rig.appearance([](BreakAppearance& a) { a.customMessages.clear(); });
        QQuickWindow* window = rig.showBreak();
        QVERIFY(window);
        for (int i = 0; i < 10; ++i)
            rig.breaks.breakTick();
        for (const char* name : {"captionText", "messageText", "skipButton", "endBreakButton"})
            QVERIFY2(PseudoTranslator::isTranslated(find(window, name)->property("text").toString()), name);
    }

    // GNOME's Cantarell draws a narrow 1, as many interface fonts do; the countdown's digits still hold still.
    void countdownDigitsKeepTheirWidth()
    {
        const WindowEngine engine = makeWindowEngine();
        QQmlComponent component(engine.get());
        component.setData(
            "import QtQuick\n"
            "Item {\n"
            "    property alias text: digits.text\n"
            "    function widths() { digits.forceLayout(); return [digits.implicitWidth, plain.implicitWidth] }\n"
            "    TabularDigits { id: digits; font.family: 'Cantarell'; font.pixelSize: 64 }\n"
            "    Text { id: plain; text: digits.text; font: digits.font }\n"
            "}\n",
            QUrl(u"qrc:/Velto/Overlay/overlay/Probe.qml"_s));
        std::unique_ptr<QObject> probe(component.create());
        QVERIFY2(probe, qPrintable(component.errorString()));
        auto widthsOf = [&](const QString& text) {
            probe->setProperty("text", text);
            QVariant widths;
            QMetaObject::invokeMethod(probe.get(), "widths", Q_RETURN_ARG(QVariant, widths));
            const QVariantList list = widths.toList();
            return std::pair{list.value(0).toReal(), list.value(1).toReal()};
        };
        const auto ones = widthsOf(u"11:11"_s);
        const auto zeros = widthsOf(u"00:00"_s);
        // The font itself would jitter (so it is the one installed for the tests), the countdown does not.
        QVERIFY(ones.second < zeros.second);
        QCOMPARE(ones.first, zeros.first);
        QVERIFY(ones.first > 0);
    }

    // Each second's step of the ring glides over that second, in no more frames than the arc has pixels to
    // travel and never more than 20 a second; the first value shows at once.
    void theRingGlidesInPacedSteps()
    {
        const WindowEngine engine = makeWindowEngine();
        QQmlComponent component(engine.get());
        component.setData("import QtQuick\nRingProgress { progress: 0.5 }\n",
                          QUrl(u"qrc:/Velto/Overlay/overlay/Probe.qml"_s));
        std::unique_ptr<QObject> ring(component.create());
        QVERIFY2(ring, qPrintable(component.errorString()));
        QCOMPARE(ring->property("shownProgress").toReal(), 0.5);
        for (const auto& [to, mostSteps] : {std::pair{0.55, 21}, std::pair{0.552, 3}}) {
            QList<qreal> seen;
            QElapsedTimer elapsed;
            elapsed.start();
            ring->setProperty("progress", to);
            while (elapsed.elapsed() < 1300) {
                QTest::qWait(5);
                const qreal shown = ring->property("shownProgress").toReal();
                if (seen.isEmpty() || seen.last() != shown)
                    seen.append(shown);
                QVERIFY2(shown < to || elapsed.elapsed() >= 950, qPrintable(QString::number(elapsed.elapsed())));
            }
            QCOMPARE(seen.last(), to);
            QVERIFY2(seen.size() >= 2 && seen.size() <= mostSteps, qPrintable(QString::number(seen.size())));
        }
    }

    void dimLayerOnScreen()
    {
        Rig rig(true);
        rig.appearance([](BreakAppearance& a) {
            a.backgroundType = BackgroundType::SolidColor;
            a.backgroundColor = {1, 1, 1, 1};
            a.overlayOpacity = 0.6;
        });
        QQuickWindow* window = rig.showBreak();
        QVERIFY(window);
        QQuickItem* dim = find(window, "dimLayer");
        QVERIFY(qFuzzyCompare(dim->opacity(), 0.4));
        // White under black at 0.4 reads as 60 % grey in a corner the content leaves alone.
        const QImage frame = window->grabWindow();
        const QColor corner = frame.pixelColor(5, 5);
        QVERIFY2(qAbs(corner.red() - 153) <= 2, qPrintable(QString::number(corner.red())));

        rig.appearance([](BreakAppearance& a) { a.overlayOpacity = 1.0; });
        QVERIFY(!dim->isVisible());
        QCOMPARE(window->grabWindow().pixelColor(5, 5), QColor(Qt::white));
    }

    void customImageAndItsFallback()
    {
        QTemporaryDir dir;
        const QString picture = dir.filePath(u"red.png"_s);
        QImage red(64, 32, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(picture));
        const QString corrupt = dir.filePath(u"corrupt.png"_s);
        QFile file(corrupt);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\x89PNG\r\n\x1a\n not really");
        file.close();

        Rig rig(true);
        rig.appearance([&](BreakAppearance& a) {
            a.backgroundType = BackgroundType::CustomImage;
            a.customImagePath = picture;
            a.overlayOpacity = 1.0;
        });
        QQuickWindow* window = rig.showBreak();
        QVERIFY(window);
        QVERIFY(find(window, "backgroundImage")->isVisible());
        QVERIFY(!find(window, "backgroundGradient")->isVisible());
        QCOMPARE(window->grabWindow().pixelColor(5, 5), QColor(Qt::red));
        rig.overlay.hide();

        for (const QString& broken : {corrupt, dir.filePath(u"missing.png"_s), QString()}) {
            rig.appearance([&](BreakAppearance& a) { a.customImagePath = broken; });
            rig.overlay.show(BreakType::Short);
            QQuickWindow* fallback = rig.overlay.windows().first();
            QVERIFY(!find(fallback, "backgroundImage")->isVisible());
            QVERIFY(find(fallback, "backgroundGradient")->isVisible());
            rig.overlay.hide();
        }
    }

    void allocationLimitRefusesHugeImages()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"big.png"_s);
        QImage big(2000, 1000, QImage::Format_RGB32); // about 8 MB decoded
        big.fill(Qt::blue);
        QVERIFY(big.save(path));
        QVERIFY(loadBackgroundImage(path, 1).isNull());
        QCOMPARE(loadBackgroundImage(path, 64).size(), QSize(2000, 1000));
        QVERIFY(loadBackgroundImage(dir.filePath(u"none.png"_s)).isNull());
    }

    void desktopPictureSettings()
    {
        QCOMPARE(gnomeWallpaperFromGsettings(u"'file:///usr/share/backgrounds/a%20b.jpg'\n"_s),
                 u"/usr/share/backgrounds/a b.jpg"_s);
        QCOMPARE(gnomeWallpaperFromGsettings(u"''\n"_s), QString());
        QCOMPARE(plasmaWallpaperFromConfig(u"[Containments][1][Wallpaper][org.kde.image][General]\n"
                                           "Image=file:///home/u/Pictures/lake.png\nPreviewImage=x\n"_s),
                 u"/home/u/Pictures/lake.png"_s);
        QCOMPARE(plasmaWallpaperFromConfig(u"[General]\nImage=/opt/walls/sea.jpg\n"_s), u"/opt/walls/sea.jpg"_s);
        QCOMPARE(plasmaWallpaperFromConfig(u"[General]\nColor=1,2,3\n"_s), QString());
    }

    void thePictureIsLetGoBetweenBreaks()
    {
        QTemporaryDir dir;
        const QString picture = dir.filePath(u"red.png"_s);
        QImage red(64, 32, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(picture));
        Rig rig;
        rig.appearance([&](BreakAppearance& a) {
            a.backgroundType = BackgroundType::CustomImage;
            a.customImagePath = picture;
            a.overlayOpacity = 1.0;
        });
        rig.startBreak();
        auto* images =
            dynamic_cast<QQuickImageProvider*>(rig.overlay.engineIfCreated()->imageProvider(u"veltobackground"_s));
        QVERIFY(images);
        QSize size;
        QVERIFY(!images->requestImage({}, &size, {}).isNull());

        // Kept while any window of the break is still fading out; once the last one has gone, the engine and
        // its picture go too.
        QList<QPointer<QQuickWindow>> shown;
        for (QQuickWindow* window : rig.overlay.windows())
            shown.append(window);
        QCOMPARE(shown.size(), 3);
        rig.overlay.hide();
        QVERIFY(!images->requestImage({}, &size, {}).isNull());
        QTRY_VERIFY_WITH_TIMEOUT(std::none_of(shown.begin(), shown.end(), [](const auto& w) { return !w.isNull(); }),
                                 2000);
        QTRY_VERIFY_WITH_TIMEOUT(!rig.overlay.engineIfCreated(), 2000);

        // The next break reads the picture again.
        rig.overlay.show(BreakType::Short);
        QQuickWindow* window = rig.overlay.windows().first();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->grabWindow().pixelColor(5, 5), QColor(Qt::red));
    }
};

int main(int argc, char** argv)
{
    QTemporaryDir configDir;
    if (!useOffscreenScreens(configDir, screensConfig))
        return 1;
    BreakWindow::useSoftwareRendering();
    QGuiApplication app(argc, argv);
    TestBreakWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_breakwindow.moc"
