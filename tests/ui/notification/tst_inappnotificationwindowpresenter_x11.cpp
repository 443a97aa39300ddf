// The pre-break card on a real X server with a real window manager: a private Xvfb running openbox, and an
// "editor" in another process that has the keyboard focus. Skipped where Xvfb, openbox or xdotool is missing.
#include "InAppNotificationWindowPresenter.h"
#include "PreBreakNotificationHostingView.h"
#include "XvfbDesktop.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRasterWindow>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/prctl.h>
#include <xcb/xcb.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

QString xvfbDisplay;

QString xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(u"xdotool"_s, arguments);
    if (!process.waitForFinished(5000))
        return {};
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

xcb_connection_t* connection()
{
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

xcb_atom_t atom(const char* name)
{
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
        connection(), xcb_intern_atom(connection(), 0, static_cast<uint16_t>(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

// A window property as 32-bit values; empty when absent.
QList<quint32> windowProperty(xcb_window_t window, const char* name)
{
    xcb_get_property_reply_t* reply = xcb_get_property_reply(
        connection(), xcb_get_property(connection(), 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 64), nullptr);
    QList<quint32> values;
    if (reply && reply->format == 32) {
        const auto* data = static_cast<const quint32*>(xcb_get_property_value(reply));
        for (int i = 0; i < xcb_get_property_value_length(reply) / 4; ++i)
            values.append(data[i]);
    }
    std::free(reply);
    return values;
}

bool isViewable(xcb_window_t window)
{
    xcb_get_window_attributes_reply_t* reply =
        xcb_get_window_attributes_reply(connection(), xcb_get_window_attributes(connection(), window), nullptr);
    const bool viewable = reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
    std::free(reply);
    return viewable;
}

QPoint rootPosition(xcb_window_t window)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    xcb_translate_coordinates_reply_t* reply = xcb_translate_coordinates_reply(
        connection(), xcb_translate_coordinates(connection(), window, root, 0, 0), nullptr);
    const QPoint position = reply ? QPoint(reply->dst_x, reply->dst_y) : QPoint(-1, -1);
    std::free(reply);
    return position;
}

// Helpers die with the test, even when it aborts.
void dieWithParent(QProcess& process)
{
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

// The other application: a plain window that takes the focus and says which window it is.
int runEditor(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QRasterWindow window;
    window.setTitle(u"editor"_s);
    window.setGeometry(300, 300, 500, 300);
    window.show();
    window.requestActivate();
    std::printf("%llu\n", static_cast<unsigned long long>(window.winId()));
    std::fflush(stdout);
    return app.exec();
}

} // namespace

class TestInAppNotificationWindowPresenterX11 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (xvfbDisplay.isEmpty())
            QSKIP("no Xvfb, openbox or xdotool here");
        QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
        dieWithParent(m_editor);
        m_editor.start(QCoreApplication::applicationFilePath(), {u"--editor"_s});
        QVERIFY(m_editor.waitForStarted(5000));
        QVERIFY(m_editor.waitForReadyRead(10000));
        m_editorWindow = QString::fromUtf8(m_editor.readLine()).trimmed();
        QVERIFY(!m_editorWindow.isEmpty());
        // openbox may turn down the editor's own request when it comes early; then ask it as a pager would.
        for (int attempt = 0; attempt < 50 && xdotool({u"getwindowfocus"_s}) != m_editorWindow; ++attempt) {
            xdotool({u"windowactivate"_s, m_editorWindow});
            QTest::qWait(200);
        }
        QCOMPARE(xdotool({u"getwindowfocus"_s}), m_editorWindow);
    }

    void cleanupTestCase()
    {
        if (m_editor.state() != QProcess::NotRunning) {
            m_editor.terminate();
            if (!m_editor.waitForFinished(3000))
                m_editor.kill();
            m_editor.waitForFinished(3000);
        }
    }

    void theFocusStaysWithTheEditor()
    {
        InAppNotificationWindowPresenter presenter([] { return false; });
        QStringList calls;
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Short, 60);
        presenter.show(
            model, [&] { calls.append(u"breakNow"_s); },
            [&](double seconds) { calls.append(u"pause %1"_s.arg(seconds)); }, [&] { calls.append(u"skip"_s); },
            [&] { calls.append(u"dismiss"_s); });
        QQuickWindow* panel = presenter.panel();
        QVERIFY(panel != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        QTRY_VERIFY(isViewable(static_cast<xcb_window_t>(panel->winId())));
        // Give the window manager its chance to move the focus; it must not take it.
        QTest::qWait(300);
        QCOMPARE(xdotool({u"getwindowfocus"_s}), m_editorWindow);

        // Clicking a control works and still leaves the focus where it was.
        QQuickItem* button = panel->findChild<QQuickItem*>(u"pauseThreeMinutesButton"_s);
        QVERIFY(button != nullptr);
        QTRY_COMPARE(InAppNotificationWindowPresenter::hostingView(panel)->rootView()->opacity(), 1.0);
        const QPoint centre =
            panel->mapToGlobal(button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint());
        xdotool({u"mousemove"_s, QString::number(centre.x()), QString::number(centre.y()), u"click"_s, u"1"_s});
        QTRY_COMPARE(calls, QStringList({u"pause 180"_s}));
        QTest::qWait(300);
        QCOMPARE(xdotool({u"getwindowfocus"_s}), m_editorWindow);
        QVERIFY(QGuiApplication::focusWindow() != panel);
    }

    void theWindowManagerKeepsItAboveOnEveryDesktopAndOutOfTheTaskbar()
    {
        InAppNotificationWindowPresenter presenter([] { return false; });
        auto model = std::make_shared<PreBreakNotificationDisplayModel>(BreakType::Long, 60);
        presenter.show(model, {}, {}, {}, {});
        QQuickWindow* panel = presenter.panel();
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        const auto id = static_cast<xcb_window_t>(panel->winId());
        QTRY_VERIFY(isViewable(id));

        // Where the window manager put it: the card's offsets from the top left of the free area.
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QTRY_COMPARE(rootPosition(id), available.topLeft() + QPoint(16, 20));

        const QList<quint32> states = windowProperty(id, "_NET_WM_STATE");
        // openbox keeps a window on every desktop through _NET_WM_DESKTOP alone and drops the sticky state.
        for (const char* state : {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            QVERIFY2(states.contains(atom(state)), state);
        QCOMPARE(windowProperty(id, "_NET_WM_DESKTOP"), QList<quint32>({0xFFFFFFFF}));
        QVERIFY(!windowProperty(id, "WM_PROTOCOLS").contains(atom("WM_TAKE_FOCUS")));
        // WM_HINTS: flags, then input; the card asks for no input focus.
        const QList<quint32> hints = windowProperty(id, "WM_HINTS");
        QVERIFY(hints.size() >= 2);
        QVERIFY(hints[0] & 1U);
        QCOMPARE(hints[1], 0U);
    }

private:
    QProcess m_editor;
    QString m_editorWindow;
};

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--editor") == 0)
        return runEditor(argc, argv);

    XvfbDesktop desktop;
    if (XvfbDesktop::isAvailable() && !QStandardPaths::findExecutable(u"xdotool"_s).isEmpty() &&
        desktop.start(true, u"1280x800x24"_s)) {
        xvfbDisplay = desktop.display();
        qputenv("DISPLAY", xvfbDisplay.toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    QGuiApplication app(argc, argv);
    TestInAppNotificationWindowPresenterX11 test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_inappnotificationwindowpresenter_x11.moc"
