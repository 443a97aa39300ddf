// The overlay on a real X server: a private Xvfb whose one wide screen is split into two RandR monitors,
// as a desk with two displays looks to Qt. Skipped where Xvfb, openbox or xrandr is not installed.
#include "BreakOverlayRig.h"
#include "BreakWindow.h"
#include "MainScreen.h"
#include "XvfbDesktop.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>
#include <QWindow>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

QString xvfbDisplay;

} // namespace

class TestBreakWindowX11 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (xvfbDisplay.isEmpty())
            QSKIP("no Xvfb, openbox or xrandr here");
        QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
        QCOMPARE(QGuiApplication::screens().size(), 2);
    }

    // The main screen is the one holding most of the focused window, so the card and a one-screen break
    // appear there.
    void theMainScreenHoldsTheFocusedWindow()
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        QWindow focused;
        for (const auto& [frame, screen] :
             {std::pair{QRect(1500, 100, 400, 300), screens[1]}, std::pair{QRect(1000, 100, 400, 300), screens[0]}}) {
            focused.setGeometry(frame);
            focused.show();
            focused.requestActivate();
            QTRY_VERIFY(focusedWindowFrame().intersects(frame));
            QTRY_COMPARE(mainScreen(), screen);
        }
        focused.hide();
        // Nothing known of the focused window: the fallback.
        QCOMPARE(screenHolding({}, screens, screens[1]), screens[1]);
        QCOMPARE(screenHolding(QRect(5000, 0, 10, 10), screens, nullptr), nullptr);
    }

    void oneWindowPerMonitorAboveTheWindowManager()
    {
        BreakOverlayRig rig;
        rig.startBreak();
        BreakWindow& overlay = rig.overlay;

        QCOMPARE(overlay.windows().size(), 2);
        const QList<QRect> monitors = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1280, 800)};
        for (int i = 0; i < 2; ++i) {
            QQuickWindow* window = overlay.windows()[i];
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QCOMPARE(window->screen()->geometry(), monitors[i]);
            QCOMPARE(window->geometry(), monitors[i]);
            // Override-redirect: no window manager can put panels above it or keep it on one workspace.
            QVERIFY(window->flags().testFlag(Qt::BypassWindowManagerHint));
        }
        overlay.hide();
        QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::topLevelWindows().isEmpty(), 2000);
    }
};

int main(int argc, char** argv)
{
    // openbox stays connected, so the server never resets and loses the monitors set up here.
    XvfbDesktop desktop;
    if (XvfbDesktop::isAvailable() && !QStandardPaths::findExecutable(u"xrandr"_s).isEmpty() &&
        desktop.start(true, u"2560x800x24"_s) &&
        desktop.run(u"xrandr"_s, {u"--setmonitor"_s, u"*LEFT"_s, u"1280/338x800/211+0+0"_s, u"screen"_s}) &&
        desktop.run(u"xrandr"_s, {u"--setmonitor"_s, u"RIGHT"_s, u"1280/338x800/211+1280+0"_s, u"none"_s})) {
        xvfbDisplay = desktop.display();
        qputenv("DISPLAY", xvfbDisplay.toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    BreakWindow::useSoftwareRendering();
    QGuiApplication app(argc, argv);
    TestBreakWindowX11 test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_breakwindow_x11.moc"
