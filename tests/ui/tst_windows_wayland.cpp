// The break screen and the card on real Wayland compositors, started around this test by run_in_compositor: with
// layers, headless sway with two outputs of different sizes and a bar, and KWin with two outputs; without, GNOME
// Shell with two monitors, where the break is a fullscreen window per monitor and the card a desktop
// notification. A native editor window has the focus throughout; what the outputs show is read back from
// screenshots.
#include "BreakOverlayRig.h"
#include "BreakWindow.h"
#include "DesktopNotificationPresenter.h"
#include "InAppNotificationWindowPresenter.h"
#include "LayerShell.h"
#include "MainScreen.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QQuickItem>
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

bool onKWin()
{
    return qEnvironmentVariable("VELTO_TEST_COMPOSITOR") == u"kwin"_s;
}

bool onGnome()
{
    return qEnvironmentVariable("VELTO_TEST_COMPOSITOR") == u"gnome"_s;
}

// GNOME Shell runs in unsafe mode for the tests, so it evaluates JavaScript; the value as JSON text.
QJsonValue gnomeEval(const QString& script)
{
    auto eval =
        QDBusMessage::createMethodCall(u"org.gnome.Shell"_s, u"/org/gnome/Shell"_s, u"org.gnome.Shell"_s, u"Eval"_s);
    eval << script;
    const QDBusMessage reply = QDBusConnection::sessionBus().call(eval);
    if (!reply.arguments().value(0).toBool())
        return {};
    return QJsonDocument::fromJson("[" + reply.arguments().value(1).toString().toUtf8() + "]").array().first();
}

// Receives what a KWin script reports about the active window.
class KWinReport final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velto.test.Focus")

public:
    QString active;
    bool reported = false;

public Q_SLOTS:
    Q_NOREPLY void focused(const QString& appId)
    {
        active = appId;
        reported = true;
    }
};

// The app_id of the focused window, as the compositor says: sway's tree, or a one-line KWin script.
QString focusedAppId()
{
    if (onGnome())
        return gnomeEval(u"global.display.focus_window ? global.display.focus_window.get_wm_class() : ''"_s).toString();
    if (!onKWin())
        return focusedAppId(QJsonDocument::fromJson(run(u"swaymsg"_s, {u"-t"_s, u"get_tree"_s})).object());
    static KWinReport report;
    static const bool registered =
        QDBusConnection::sessionBus().registerObject(u"/focus"_s, &report, QDBusConnection::ExportAllSlots);
    if (!registered)
        return {};
    QTemporaryDir dir;
    QFile script(dir.filePath(u"focus.js"_s));
    if (!script.open(QIODevice::WriteOnly))
        return {};
    const QString active = u"(workspace.activeWindow || workspace.activeClient)"_s;
    script.write(u"const w = %1; callDBus(\"%2\", \"/focus\", \"com.velto.test.Focus\", \"focused\", "
                 u"w ? (w.desktopFileName || w.resourceClass) : \"\");"_s
                     .arg(active, QDBusConnection::sessionBus().baseService())
                     .toUtf8());
    script.close();
    report.reported = false;
    const auto call = [](const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(u"org.kde.KWin"_s, path, interface, method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message);
    };
    const QString plugin = u"velto-focus"_s;
    call(u"/Scripting"_s, u"org.kde.kwin.Scripting"_s, u"unloadScript"_s, {plugin});
    const int id = call(u"/Scripting"_s, u"org.kde.kwin.Scripting"_s, u"loadScript"_s, {script.fileName(), plugin})
                       .arguments()
                       .value(0)
                       .toInt();
    if (call(u"/Scripting/Script%1"_s.arg(id), u"org.kde.kwin.Script"_s, u"run"_s, {}).type() ==
        QDBusMessage::ErrorMessage)
        call(u"/%1"_s.arg(id), u"org.kde.kwin.Script"_s, u"run"_s, {});
    const QDeadlineTimer deadline(3000);
    while (!report.reported && !deadline.hasExpired())
        QTest::qWait(20);
    return report.active;
}

QImage screenshot(const QTemporaryDir& dir)
{
    if (onGnome()) {
        const QString path = dir.filePath(u"screen.png"_s);
        auto shot = QDBusMessage::createMethodCall(u"org.gnome.Shell.Screenshot"_s, u"/org/gnome/Shell/Screenshot"_s,
                                                   u"org.gnome.Shell.Screenshot"_s, u"Screenshot"_s);
        shot << false << false << path; // include_cursor, flash, filename
        QDBusConnection::sessionBus().call(shot);
        return QImage(path);
    }
    if (onKWin()) {
        auto shot = QDBusMessage::createMethodCall(u"org.kde.KWin"_s, u"/Screenshot"_s, u"org.kde.kwin.Screenshot"_s,
                                                   u"screenshotFullscreen"_s);
        shot << false; // captureCursor
        return QImage(QDBusConnection::sessionBus().call(shot).arguments().value(0).toString());
    }
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
        const QString compositor = qEnvironmentVariable("VELTO_TEST_COMPOSITOR");
        if (compositor != u"sway"_s && compositor != u"kwin"_s && compositor != u"gnome"_s)
            QSKIP("runs inside headless sway, KWin or GNOME Shell (run_in_compositor)");
        QVERIFY(QGuiApplication::platformName().startsWith(u"wayland"_s));
        QCOMPARE(LayerShell::isAvailable(), !onGnome());
        QCOMPARE(QGuiApplication::screens().size(), 2);
        m_editor.start(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW), {u"--app-id"_s, u"org.example.Editor"_s});
        QVERIFY(m_editor.waitForStarted(5000) && m_editor.waitForReadyRead(5000));
        QTRY_COMPARE(focusedAppId(), u"org.example.Editor"_s);
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
        BreakOverlayRig rig;
        rig.startBreak();
        BreakWindow& overlay = rig.overlay;
        QCOMPARE(overlay.windows().size(), 2);
        for (QQuickWindow* window : overlay.windows()) {
            QCOMPARE(LayerShell::isPlaced(window), !onGnome());
            QVERIFY(QTest::qWaitForWindowExposed(window));
        }
        if (onGnome()) {
            // One fullscreen window on each monitor.
            QTRY_COMPARE(gnomeEval(u"global.get_window_actors().map(a => a.meta_window)"
                                   u".filter(w => w.is_fullscreen()).map(w => w.get_monitor()).sort().join()"_s)
                             .toString(),
                         u"0,1"_s);
        }
        QTest::qWait(BreakWindow::fadeMilliseconds + 300);
        const QImage shot = screenshot(m_dir);
        // The light paper background wherever one looks on each output: its corners, and the bottom row where
        // sway's bar sits.
        for (const QScreen* screen : QGuiApplication::screens()) {
            const QRect g = screen->geometry();
            for (const QPoint& point : {g.topLeft() + QPoint(2, 2), g.bottomRight() - QPoint(2, 2),
                                        QPoint(g.center().x(), g.bottom() - 4), g.topRight() + QPoint(-2, 2)}) {
                const QColor seen = shot.pixelColor(point);
                QVERIFY2(seen.lightness() > 180,
                         qPrintable(u"(%1,%2) is %3"_s.arg(point.x()).arg(point.y()).arg(seen.name())));
            }
        }
        overlay.hide();
        QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::topLevelWindows().isEmpty(), 3000);
        QTRY_COMPARE(focusedAppId(), u"org.example.Editor"_s);
    }

    // The card sits at the top left of the main output, where it was asked to be, and the focus never moves: not
    // when it shows, not while the user types (sway, whose virtual keyboard wtype drives), not when "3 min" is
    // clicked on it (sway's own pointer).
    void theCardNeverTakesTheFocus()
    {
        if (onGnome())
            QSKIP("no layers on GNOME Shell: the card comes as a notification");
        InAppNotificationWindowPresenter presenter([] { return false; });
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60);
        double paused = 0;
        presenter.show(model, {}, [&](double seconds) { paused = seconds; }, {}, {});
        QQuickWindow* panel = presenter.panel();
        QVERIFY(panel != nullptr);
        QVERIFY(LayerShell::isPlaced(panel));
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        QTest::qWait(600);
        QCOMPARE(focusedAppId(), u"org.example.Editor"_s);
        QVERIFY(QGuiApplication::focusWindow() != panel);
        const QImage shot = screenshot(m_dir);
        const QRect frame = InAppNotificationWindowPresenter::finalFrame(QGuiApplication::primaryScreen()->geometry());
        // Inside the card its light material; just left of it the editor's own colour.
        QVERIFY(shot.pixelColor(frame.center()).lightness() > 180);
        QVERIFY(shot.pixelColor(frame.topLeft() + QPoint(-6, 60)) != shot.pixelColor(frame.center()));
        if (!onKWin()) {
            m_editor.readAll();
            QVERIFY(QProcess::execute(u"wtype"_s, {u"-s"_s, u"300"_s, u"v"_s}) == 0);
            // wtype sends keys of a keymap of its own making, so any key the editor reports is the one typed.
            QByteArray typed;
            QTRY_VERIFY((typed += m_editor.readAll()).contains("key "));
            const QQuickItem* button = panel->findChild<QQuickItem*>(u"pauseThreeMinutesButton"_s);
            QVERIFY(button != nullptr);
            const QPoint click =
                frame.topLeft() + button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
            // The click comes from a pointer device of its own, while this side's events keep flowing.
            QRect layout;
            for (const QScreen* screen : QGuiApplication::screens())
                layout |= screen->geometry();
            QProcess clicker;
            clicker.start(QStringLiteral(VELTO_WAYLAND_TEST_CLICK),
                          {QString::number(click.x() - layout.x()), QString::number(click.y() - layout.y()),
                           QString::number(layout.width()), QString::number(layout.height())});
            QTRY_COMPARE(clicker.state(), QProcess::NotRunning);
            QCOMPARE(clicker.exitCode(), 0);
            QTRY_COMPARE(paused, 180.0);
        }
        presenter.hide();
        QTRY_VERIFY_WITH_TIMEOUT(presenter.panel() == nullptr, 3000);
        QCOMPARE(focusedAppId(), u"org.example.Editor"_s);

        // With the focused window on the second output, the card goes there.
        const QString secondName = QGuiApplication::screens().at(1)->name();
        QVERIFY(!secondName.isEmpty());
        setFocusedOutputSource([secondName] { return secondName; });
        presenter.show(model, {}, {}, {}, {});
        QVERIFY(presenter.panel() && QTest::qWaitForWindowExposed(presenter.panel()));
        QTest::qWait(600);
        const QImage second = screenshot(m_dir);
        const QScreen* screen = QGuiApplication::screens().at(1);
        QVERIFY(
            second.pixelColor(InAppNotificationWindowPresenter::finalFrame(screen->geometry()).center()).lightness() >
            180);
        presenter.hide();
        QTRY_VERIFY_WITH_TIMEOUT(presenter.panel() == nullptr, 3000);
        setFocusedOutputSource({});
    }

    // Without layers the card is a notification of the shell's: the editor keeps the focus while it shows and
    // after "3 min" is clicked on it, and the click reaches Velto.
    void withoutLayersTheCardIsANotification()
    {
        if (!onGnome())
            QSKIP("this compositor has layers");
        auto presenter = DesktopNotificationPresenter::create(QDBusConnection::sessionBus());
        QVERIFY(presenter != nullptr);
        double paused = 0;
        presenter->show(std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60), {},
                        [&](double seconds) { paused = seconds; }, {}, {});
        const QString notification = u"Main.messageTray.getSources().flatMap(s => s.notifications)"
                                     u".find(n => n.source.title === 'Velto')"_s;
        QTRY_VERIFY(gnomeEval(notification + u" !== undefined"_s).toBool());
        QTest::qWait(600);
        QCOMPARE(focusedAppId(), u"org.example.Editor"_s);
        QVERIFY(
            gnomeEval(notification + u".actions.find(a => a.label === '3 min').callback() === undefined"_s).toBool());
        QTRY_COMPARE(paused, 180.0);
        QCOMPARE(focusedAppId(), u"org.example.Editor"_s);
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
