// The break screen and the card on a real Wayland compositor with layers: headless sway with two outputs of
// different sizes and a bar, started around this test by run_in_compositor. A native editor window has the
// focus throughout; what the outputs show is read back from screenshots.
#include "BreakWindow.h"
#include "InAppNotificationWindowPresenter.h"
#include "InMemoryUserDefaults.h"
#include "LayerShell.h"
#include "MainScreen.h"
#include "notification/PreBreakNotificationDisplayModel.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QQuickWindow>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(10000) || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput();
}

QString focusedAppId(const QJsonObject& node)
{
    if (node.value(u"focused"_s).toBool())
        return node.value(u"app_id"_s).toString();
    for (const char* children : {"nodes", "floating_nodes"}) {
        for (const QJsonValue& child : node.value(QLatin1StringView(children)).toArray()) {
            const QString found = focusedAppId(child.toObject());
            if (!found.isEmpty())
                return found;
        }
    }
    return {};
}

QString swayFocus()
{
    return focusedAppId(QJsonDocument::fromJson(run(u"swaymsg"_s, {u"-t"_s, u"get_tree"_s})).object());
}

QImage screenshot(const QTemporaryDir& dir)
{
    const QString path = dir.filePath(u"screen.png"_s);
    run(u"grim"_s, {path});
    return QImage(path);
}

} // namespace

class TestWindowsWayland : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariable("VELTO_TEST_COMPOSITOR") != u"sway"_s)
            QSKIP("runs inside headless sway (run_in_compositor)");
        QVERIFY(QGuiApplication::platformName().startsWith(u"wayland"_s));
        QVERIFY(LayerShell::isAvailable());
        QCOMPARE(QGuiApplication::screens().size(), 2);
        m_editor.start(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW), {u"--app-id"_s, u"org.example.Editor"_s});
        QVERIFY(m_editor.waitForStarted(5000) && m_editor.waitForReadyRead(5000));
        QTRY_COMPARE(swayFocus(), u"org.example.Editor"_s);
    }

    void cleanupTestCase()
    {
        m_editor.closeWriteChannel();
        m_editor.waitForFinished(3000);
    }

    // Every pixel row of both outputs is the break screen's, the bar's included; the editor keeps its focus
    // for when the break ends.
    void theBreakCoversEveryOutputAbovePanels()
    {
        InMemoryUserDefaults store;
        SettingsManager settings(store, nullptr);
        BreakManager breaks(store);
        breaks.setSettingsManager(&settings);
        BreakWindow overlay(&settings, &breaks, nullptr, nullptr);
        breaks.takeBreakNow();
        overlay.show(BreakType::Short);
        QCOMPARE(overlay.windows().size(), 2);
        for (QQuickWindow* window : overlay.windows()) {
            QVERIFY(LayerShell::isPlaced(window));
            QVERIFY(QTest::qWaitForWindowExposed(window));
        }
        QTest::qWait(BreakWindow::fadeMilliseconds + 300);
        const QImage shot = screenshot(m_dir);
        QCOMPARE(shot.size(), QSize(1920 + 1280, 1080));
        // The light paper background wherever one looks: corners, the bar's row, the middle of the gap beside
        // the smaller output excepted.
        for (const QPoint& point : {QPoint(2, 2), QPoint(1917, 1077), QPoint(960, 1075), QPoint(1922, 2),
                                    QPoint(3197, 717), QPoint(2560, 715)}) {
            const QColor seen = shot.pixelColor(point);
            QVERIFY2(seen.lightness() > 180,
                     qPrintable(u"(%1,%2) is %3"_s.arg(point.x()).arg(point.y()).arg(seen.name())));
        }
        overlay.hide();
        QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::topLevelWindows().isEmpty(), 3000);
        QTRY_COMPARE(swayFocus(), u"org.example.Editor"_s);
    }

    // The card sits at the top left of the main output, where it was asked to be, and the focus never moves.
    void theCardNeverTakesTheFocus()
    {
        InAppNotificationWindowPresenter presenter([] { return false; });
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60);
        presenter.show(model, {}, {}, {}, {});
        QQuickWindow* panel = presenter.panel();
        QVERIFY(panel != nullptr);
        QVERIFY(LayerShell::isPlaced(panel));
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        QTest::qWait(600);
        QCOMPARE(swayFocus(), u"org.example.Editor"_s);
        QVERIFY(QGuiApplication::focusWindow() != panel);
        const QImage shot = screenshot(m_dir);
        const QRect frame = InAppNotificationWindowPresenter::finalFrame(QGuiApplication::primaryScreen()->geometry());
        // Inside the card its light material; just left of it the editor's own colour.
        QVERIFY(shot.pixelColor(frame.center()).lightness() > 180);
        QVERIFY(shot.pixelColor(frame.topLeft() + QPoint(-6, 60)) != shot.pixelColor(frame.center()));
        presenter.hide();
        QTRY_VERIFY_WITH_TIMEOUT(presenter.panel() == nullptr, 3000);
        QCOMPARE(swayFocus(), u"org.example.Editor"_s);

        // With the focused window on the second output, the card goes there.
        setFocusedOutputSource([] { return u"HEADLESS-2"_s; });
        presenter.show(model, {}, {}, {}, {});
        QVERIFY(presenter.panel() && QTest::qWaitForWindowExposed(presenter.panel()));
        QTest::qWait(600);
        const QImage second = screenshot(m_dir);
        const QScreen* screen = QGuiApplication::screens().at(1);
        QCOMPARE(screen->name(), u"HEADLESS-2"_s);
        QVERIFY(
            second.pixelColor(InAppNotificationWindowPresenter::finalFrame(screen->geometry()).center()).lightness() >
            180);
        presenter.hide();
        QTRY_VERIFY_WITH_TIMEOUT(presenter.panel() == nullptr, 3000);
        setFocusedOutputSource({});
    }

private:
    QProcess m_editor;
    QTemporaryDir m_dir;
};

int main(int argc, char** argv)
{
    // As Velto's own start does: bypass windows get no shell role from Qt, so they can take a layer.
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    QGuiApplication app(argc, argv);
    TestWindowsWayland test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_windows_wayland.moc"
