// The on-screen windows of an X session: frames, layers, order, and windows that change or vanish.
#include "MessageCapture.h"
#include "X11ProviderFixture.h"
#include "detection/SystemX11Providers.h"
#include "detection/X11Queries.h"

#include <cstdlib>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// The geometry of the window manager's frame around a client, asked independently of the providers.
QRectF frameOf(const QString& display, quint32 client)
{
    xcb_connection_t* c = xcb_connect(display.toLocal8Bit().constData(), nullptr);
    xcb_window_t window = client;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
    QRectF frame;
    for (;;) {
        auto* tree = xcb_query_tree_reply(c, xcb_query_tree(c, window), nullptr);
        const xcb_window_t parent = tree ? tree->parent : root;
        std::free(tree);
        if (parent == root)
            break;
        window = parent;
    }
    if (auto* geometry = xcb_get_geometry_reply(c, xcb_get_geometry(c, window), nullptr)) {
        frame = QRectF(geometry->x, geometry->y, geometry->width + 2 * geometry->border_width,
                       geometry->height + 2 * geometry->border_width);
        std::free(geometry);
    }
    xcb_disconnect(c);
    return frame;
}

} // namespace

class TestSystemWindowList : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void windowListGivesFramesLayersAndFrontToBackOrder();
    void minimisedAndResizedWindowsAreSeenAsTheyAre();
    void windowsThatVanishMidQueryDropOutQuietly();
    void withoutAServerTheListIsEmptyAndSaidOnce();
    void aServerThatGoesAwayLeavesAnEmptyList();
    void aPassAsksTheServerOnceForEveryProvider();
};

void TestSystemWindowList::windowListGivesFramesLayersAndFrontToBackOrder()
{
    SystemWindowList windows(m_link);
    quint32 backWindow = 0;
    quint32 frontWindow = 0;
    QProcess* back = open({u"--geometry"_s, u"300x200+100+100"_s}, &backWindow);
    QProcess* front = open({u"--geometry"_s, u"500x400+600+300"_s}, &frontWindow);
    QProcess* dock = open({u"--type"_s, u"dock"_s, u"--geometry"_s, u"1920x30+0+0"_s});
    QVERIFY(back && front && dock);
    QVERIFY(xdotool({u"windowactivate"_s, u"--sync"_s, QString::number(frontWindow)}));

    QTRY_VERIFY(windowOf(windows.onScreenWindows(), dock->processId()));
    const QList<WindowDescriptor> list = windows.onScreenWindows();
    const auto frontDescriptor = windowOf(list, front->processId());
    const auto backDescriptor = windowOf(list, back->processId());
    QVERIFY(frontDescriptor && backDescriptor);
    QVERIFY(list.indexOf(*frontDescriptor) < list.indexOf(*backDescriptor));
    QCOMPARE(frontDescriptor->layer, 0);
    QCOMPARE(windowOf(list, dock->processId())->layer, int(X11Queries::dockLayer));
    // The frame includes openbox's decorations around the 500x400 client area.
    QVERIFY(frontDescriptor->bounds.width() >= 500 && frontDescriptor->bounds.height() > 400);
    QVERIFY(frontDescriptor->bounds.width() < 540 && frontDescriptor->bounds.height() < 460);
    // openbox reparents the client into a frame window, a child of the root: its geometry is the frame.
    QCOMPARE(frontDescriptor->bounds, frameOf(m_desktop.display(), frontWindow));
}

void TestSystemWindowList::minimisedAndResizedWindowsAreSeenAsTheyAre()
{
    SystemWindowList windows(m_link);
    quint32 id = 0;
    QProcess* window = open({u"--geometry"_s, u"300x200+50+50"_s}, &id);
    QVERIFY(window);
    QTRY_VERIFY(windowOf(windows.onScreenWindows(), window->processId()));
    const double width = windowOf(windows.onScreenWindows(), window->processId())->bounds.width();

    QVERIFY(xdotool({u"windowsize"_s, u"--sync"_s, QString::number(id), u"700"_s, u"500"_s}));
    QTRY_COMPARE(windowOf(windows.onScreenWindows(), window->processId())->bounds.width(), width + 400);

    QVERIFY(xdotool({u"windowminimize"_s, u"--sync"_s, QString::number(id)}));
    QTRY_VERIFY(!windowOf(windows.onScreenWindows(), window->processId()));
}

void TestSystemWindowList::aPassAsksTheServerOnceForEveryProvider()
{
    SystemWindowList windows(m_link);
    SystemWindowList outside(std::make_shared<X11Link>(m_desktop.display().toLocal8Bit()));
    QProcess* window = open({u"--title"_s, u"Recording"_s});
    QVERIFY(window);
    const qint64 pid = window->processId();
    QTRY_VERIFY(windowOf(windows.onScreenWindows(), pid));

    m_link->beginPass();
    QVERIFY(windowOf(windows.onScreenWindows(), pid));
    closeWindows();
    QTRY_VERIFY(!windowOf(outside.onScreenWindows(), pid));
    // Within the pass every provider answers from what was asked at its start, titles included.
    QVERIFY(windowOf(windows.onScreenWindows(), pid));
    QCOMPARE(windows.titledWindows().size(), 1);
    m_link->endPass();
    QVERIFY(!windowOf(windows.onScreenWindows(), pid));
    QVERIFY(windows.titledWindows().isEmpty());
}

void TestSystemWindowList::windowsThatVanishMidQueryDropOutQuietly()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemWindowList windows(m_link);
    QList<QProcess*> clients;
    for (int i = 0; i < 12; ++i) {
        QProcess* client = open({u"--class"_s, u"short%1.Short%1"_s.arg(i), u"--title"_s, u"Short-lived"_s});
        QVERIFY(client);
        clients.append(client);
    }
    QTRY_COMPARE(windows.onScreenWindows().size(), 12);

    MessageCapture capture;
    // Kill the clients while asking: their windows go away between the requests of one query.
    for (QProcess* client : std::as_const(clients))
        client->kill();
    bool empty = false;
    for (int pass = 0; pass < 2000 && !empty; ++pass) {
        const QList<WindowDescriptor> listed = windows.onScreenWindows();
        const QList<TitledWindow> titled = windows.titledWindows();
        const QList<AppSnapshot> apps = workspace.runningApplications();
        for (const WindowDescriptor& window : listed)
            QVERIFY(window.ownerPID > 0 && !window.bounds.isEmpty());
        for (const AppSnapshot& app : apps)
            QVERIFY(app.processIdentifier > 0);
        empty = listed.isEmpty() && titled.isEmpty() && apps.isEmpty();
        if (!empty)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    QVERIFY(empty);
    QVERIFY(capture.texts().isEmpty());
}

void TestSystemWindowList::withoutAServerTheListIsEmptyAndSaidOnce()
{
    MessageCapture capture;
    SystemWindowList windows(std::make_shared<X11Link>(":199"_ba));
    QVERIFY(windows.onScreenWindows().isEmpty());
    QVERIFY(windows.titledWindows().isEmpty());
    QCOMPARE(capture.texts().size(), 1);
}

void TestSystemWindowList::aServerThatGoesAwayLeavesAnEmptyList()
{
    XvfbDesktop shortLived;
    QVERIFY(shortLived.start(false, u"800x600x24"_s));
    SystemWindowList windows(std::make_shared<X11Link>(shortLived.display().toLocal8Bit()));
    QVERIFY(windows.onScreenWindows().isEmpty());
    MessageCapture capture;
    shortLived.stop();
    for (int pass = 0; pass < 3; ++pass)
        QVERIFY(windows.onScreenWindows().isEmpty());
    // The break, then one failed reconnection; later passes add nothing.
    QCOMPARE(capture.texts().size(), 2);
}

QTEST_GUILESS_MAIN(TestSystemWindowList)
#include "tst_systemwindowlist.moc"
