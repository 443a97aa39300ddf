// The overlay on a real X server: a private Xvfb whose one wide screen is split into two RandR monitors,
// as a desk with two displays looks to Qt. Skipped where Xvfb or xrandr is not installed.
#include "BreakWindow.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

#include <memory>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

QString xvfbDisplay;

} // namespace

class TestBreakWindowX11 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneWindowPerMonitorAboveTheWindowManager();
};

void TestBreakWindowX11::initTestCase()
{
    if (xvfbDisplay.isEmpty())
        QSKIP("no Xvfb or xrandr here");
    QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
    QCOMPARE(QGuiApplication::screens().size(), 2);
}

void TestBreakWindowX11::oneWindowPerMonitorAboveTheWindowManager()
{
    InMemoryUserDefaults store;
    SettingsManager settings(store, nullptr);
    BreakManager breaks(store);
    breaks.setSettingsManager(&settings);
    BreakWindow overlay(&settings, &breaks, nullptr, nullptr);
    breaks.takeBreakNow();
    overlay.show(BreakType::Short);

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

int main(int argc, char** argv)
{
    const QString xvfb = QStandardPaths::findExecutable(u"Xvfb"_s);
    const QString xrandr = QStandardPaths::findExecutable(u"xrandr"_s);
    std::unique_ptr<QProcess> server;
    if (!xvfb.isEmpty() && !xrandr.isEmpty()) {
        for (int number = 70; number < 100 && xvfbDisplay.isEmpty(); ++number) {
            if (QFile::exists(u"/tmp/.X%1-lock"_s.arg(number)))
                continue;
            const QString display = u":%1"_s.arg(number);
            server = std::make_unique<QProcess>();
            // -noreset keeps the monitors once the set-up client disconnects.
            server->start(xvfb,
                          {display, u"-noreset"_s, u"-nolisten"_s, u"tcp"_s, u"-screen"_s, u"0"_s, u"2560x800x24"_s});
            if (!server->waitForStarted(3000))
                continue;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"DISPLAY"_s, display);
            bool ready = false;
            for (int attempt = 0; attempt < 50 && !ready && server->state() == QProcess::Running; ++attempt) {
                QProcess probe;
                probe.setProcessEnvironment(environment);
                probe.start(xrandr, {u"--listmonitors"_s});
                ready = probe.waitForFinished(2000) && probe.exitCode() == 0;
                if (!ready)
                    QTest::qSleep(100);
            }
            if (!ready) {
                server->kill();
                server->waitForFinished();
                continue;
            }
            const QList<QStringList> monitors = {
                {u"--setmonitor"_s, u"*LEFT"_s, u"1280/338x800/211+0+0"_s, u"screen"_s},
                {u"--setmonitor"_s, u"RIGHT"_s, u"1280/338x800/211+1280+0"_s, u"none"_s},
            };
            for (const QStringList& arguments : monitors) {
                QProcess setup;
                setup.setProcessEnvironment(environment);
                setup.start(xrandr, arguments);
                setup.waitForFinished(5000);
            }
            xvfbDisplay = display;
        }
    }
    if (!xvfbDisplay.isEmpty()) {
        qputenv("DISPLAY", xvfbDisplay.toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    BreakWindow::useSoftwareRendering();
    int result = 0;
    {
        QGuiApplication app(argc, argv);
        TestBreakWindowX11 test;
        result = QTest::qExec(&test, argc, argv);
    }
    if (server) {
        server->terminate();
        server->waitForFinished(3000);
    }
    return result;
}

#include "tst_breakwindow_x11.moc"
