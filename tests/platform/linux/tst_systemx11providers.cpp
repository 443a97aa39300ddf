// The X11 providers against a real X server: a private Xvfb with openbox managing windows that test clients
// open, xdotool acting as the user (activating, renaming, resizing, minimising, typing).
#include "MessageCapture.h"
#include "SystemDetectionProviders.h"
#include "XvfbDesktop.h"
#include "detection/AppIdentityResolver.h"
#include "detection/DesktopEntryIndex.h"
#include "detection/PipeWireCapture.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"
#include "detection/X11KeyDownTime.h"
#include "detection/X11Queries.h"

#include <QTemporaryDir>
#include <QTest>

#include <atomic>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString windowProgram = QStringLiteral(VELTO_X11_TEST_WINDOW);

void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

std::optional<AppSnapshot> appWithPid(const QList<AppSnapshot>& apps, qint64 pid)
{
    for (const AppSnapshot& app : apps) {
        if (app.processIdentifier == pid)
            return app;
    }
    return std::nullopt;
}

std::optional<WindowDescriptor> windowOf(const QList<WindowDescriptor>& windows, qint64 pid)
{
    for (const WindowDescriptor& window : windows) {
        if (window.ownerPID == pid)
            return window;
    }
    return std::nullopt;
}

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

class TestSystemX11Providers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void workspaceGroupsWindowsByProcessAndFollowsTheActiveWindow();
    void identitiesComeFromDesktopFilesElseTheWindowClass();
    void windowListGivesFramesLayersAndFrontToBackOrder();
    void minimisedAndResizedWindowsAreSeenAsTheyAre();
    void aRecordingTitleCountsOnlyForKnownApplications();
    void fullscreenGameWindowsCoverTheScreenAtTheNormalLayer();
    void theMainScreenIsThePrimaryMonitor();
    void windowsThatVanishMidQueryDropOutQuietly();
    void idleTimeIsResetByInput();
    void keyPressesAreHeardOffTheMainThread();
    void withoutWindowsApplicationsComeFromTheProcessTable();
    void steamGamesAreGamesWhateverTheirDesktopFile();
    void theFactoryAnswersForThisSession();
    void withoutAServerEveryAnswerIsNeutralAndReportedOnce();
    void aServerThatGoesAwayLeavesNeutralAnswers();

private:
    QProcess* open(const QStringList& arguments, quint32* window = nullptr);
    bool xdotool(const QStringList& arguments) { return m_desktop.run(u"xdotool"_s, arguments); }

    XvfbDesktop m_desktop;
    QTemporaryDir m_dataDir;
    std::shared_ptr<DesktopEntryIndex> m_entries;
    std::shared_ptr<X11Link> m_link;
    std::shared_ptr<AppIdentityResolver> m_identities;
    std::shared_ptr<WindowClassMemo> m_memo;
    QList<QProcess*> m_opened;
};

void TestSystemX11Providers::initTestCase()
{
    if (!XvfbDesktop::isAvailable() || QStandardPaths::findExecutable(u"xdotool"_s).isEmpty())
        QSKIP("Xvfb, openbox or xdotool is not installed");
    QVERIFY(m_desktop.start());
    QVERIFY(m_dataDir.isValid());
    const QString apps = m_dataDir.filePath(u"applications"_s);
    QVERIFY(QDir().mkpath(apps));
    writeFile(apps + u"/org.example.Editor.desktop"_s,
              "[Desktop Entry]\nType=Application\nName=Example Editor\nExec=example-editor %F\n"
              "StartupWMClass=ExampleEditor\nCategories=Development;IDE;\n");
    writeFile(apps + u"/org.example.Shooter.desktop"_s,
              "[Desktop Entry]\nType=Application\nName=Shooter\nExec=shooter\nStartupWMClass=Shooter\n"
              "Categories=Game;ActionGame;\n");
    m_entries = std::make_shared<DesktopEntryIndex>(QStringList{apps});
    m_link = std::make_shared<X11Link>(m_desktop.display().toLocal8Bit());
    m_identities = std::make_shared<AppIdentityResolver>(m_entries, ProcessTable());
    m_memo = std::make_shared<WindowClassMemo>();
}

void TestSystemX11Providers::cleanupTestCase()
{
    m_desktop.stop();
}

void TestSystemX11Providers::cleanup()
{
    for (QProcess* window : std::as_const(m_opened))
        m_desktop.closeWindow(window);
    m_opened.clear();
}

QProcess* TestSystemX11Providers::open(const QStringList& arguments, quint32* window)
{
    QProcess* process = m_desktop.openWindow(windowProgram, arguments, window);
    if (process)
        m_opened.append(process);
    return process;
}

void TestSystemX11Providers::workspaceGroupsWindowsByProcessAndFollowsTheActiveWindow()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    quint32 firstWindow = 0;
    quint32 secondWindow = 0;
    QProcess* first = open({u"--class"_s, u"first.First"_s}, &firstWindow);
    QProcess* second = open({u"--class"_s, u"second.Second"_s}, &secondWindow);
    QVERIFY(open({u"--class"_s, u"anonymous.Anonymous"_s, u"--no-pid"_s}));
    QVERIFY(first && second);

    QTRY_COMPARE(workspace.runningApplications().size(), 2);
    QVERIFY(xdotool({u"windowactivate"_s, u"--sync"_s, QString::number(firstWindow)}));
    QTRY_VERIFY(appWithPid(workspace.runningApplications(), first->processId())->isActive);
    QList<AppSnapshot> apps = workspace.runningApplications();
    QVERIFY(!appWithPid(apps, second->processId())->isActive);
    // In the window manager's order, oldest first: the first window's process leads.
    QCOMPARE(apps.first().processIdentifier, first->processId());

    QVERIFY(xdotool({u"windowactivate"_s, u"--sync"_s, QString::number(secondWindow)}));
    QTRY_VERIFY(appWithPid(workspace.runningApplications(), second->processId())->isActive);
    apps = workspace.runningApplications();
    QCOMPARE(std::count_if(apps.cbegin(), apps.cend(), [](const auto& app) { return app.isActive; }), 1);

    // Closing a window takes its application off the list.
    m_desktop.closeWindow(first);
    m_opened.removeOne(first);
    QTRY_COMPARE(workspace.runningApplications().size(), 1);
}

void TestSystemX11Providers::identitiesComeFromDesktopFilesElseTheWindowClass()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemAppCategory categories(m_identities, m_memo);
    QProcess* editor = open({u"--class"_s, u"example-editor.ExampleEditor"_s});
    QProcess* unknown = open({u"--class"_s, u"someTool.SomeTool"_s});
    QVERIFY(editor && unknown);
    QTRY_COMPARE(workspace.runningApplications().size(), 2);
    const QList<AppSnapshot> apps = workspace.runningApplications();
    QCOMPARE(appWithPid(apps, editor->processId())->bundleIdentifier, u"org.example.Editor"_s);
    QCOMPARE(appWithPid(apps, unknown->processId())->bundleIdentifier, u"sometool"_s);

    QCOMPARE(categories.category(static_cast<qint32>(editor->processId())), u"Development;IDE;"_s);
    QCOMPARE(categories.category(static_cast<qint32>(unknown->processId())), std::nullopt);
}

void TestSystemX11Providers::windowListGivesFramesLayersAndFrontToBackOrder()
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

void TestSystemX11Providers::minimisedAndResizedWindowsAreSeenAsTheyAre()
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

void TestSystemX11Providers::aRecordingTitleCountsOnlyForKnownApplications()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemWindowList windows(m_link);
    // No media server here: only the window titles can tell.
    SystemScreenRecordingState recording(m_link, std::make_shared<PipeWireCapture>(m_dataDir.path(), u"none"_s));
    quint32 id = 0;
    QProcess* tool = open({u"--class"_s, u"someTool.SomeTool"_s, u"--title"_s, u"Notes"_s}, &id);
    QVERIFY(tool);
    QTRY_COMPARE(workspace.runningApplications().size(), 1);
    QVERIFY(!recording.isScreenRecording(workspace.runningApplications()));

    QVERIFY(xdotool({u"set_window"_s, u"--name"_s, u"Screen Recording 2026-11-23"_s, QString::number(id)}));
    QTRY_VERIFY(windows.titledWindows().contains(
        TitledWindow{static_cast<qint32>(tool->processId()), u"Screen Recording 2026-11-23"_s}));
    QVERIFY(recording.isScreenRecording(workspace.runningApplications()));
    // The title alone is no evidence when its process is not among the running applications.
    QVERIFY(!recording.isScreenRecording({}));
}

void TestSystemX11Providers::fullscreenGameWindowsCoverTheScreenAtTheNormalLayer()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemWindowList windows(m_link);
    SystemScreen screen(m_link);
    SystemAppCategory categories(m_identities, m_memo);
    QCOMPARE(screen.mainScreenFrame(), QRectF(0, 0, 1920, 1080));

    QProcess* game = open({u"--class"_s, u"shooter.Shooter"_s, u"--fullscreen"_s});
    QVERIFY(game);
    QTRY_VERIFY(windowOf(windows.onScreenWindows(), game->processId()) &&
                windowOf(windows.onScreenWindows(), game->processId())->bounds == screen.mainScreenFrame());
    QCOMPARE(windowOf(windows.onScreenWindows(), game->processId())->layer, 0);
    QTRY_COMPARE(workspace.runningApplications().size(), 1);
    QCOMPARE(workspace.runningApplications().first().bundleIdentifier, u"org.example.Shooter"_s);
    QCOMPARE(categories.category(static_cast<qint32>(game->processId())), u"Game;ActionGame;"_s);
}

void TestSystemX11Providers::theMainScreenIsThePrimaryMonitor()
{
    if (QStandardPaths::findExecutable(u"xrandr"_s).isEmpty())
        QSKIP("xrandr is not installed");
    // One wide screen split into two monitors, the right one primary, as a desk with two displays looks.
    XvfbDesktop desk;
    QVERIFY(desk.start(false, u"2560x800x24"_s));
    QVERIFY(desk.run(u"xrandr"_s, {u"--setmonitor"_s, u"LEFT"_s, u"1280/338x800/211+0+0"_s, u"none"_s}));
    QVERIFY(desk.run(u"xrandr"_s, {u"--setmonitor"_s, u"*RIGHT"_s, u"1280/338x800/211+1280+0"_s, u"none"_s}));
    const SystemScreen screen(std::make_shared<X11Link>(desk.display().toLocal8Bit()));
    QCOMPARE(screen.mainScreenFrame(), QRectF(1280, 0, 1280, 800));
}

void TestSystemX11Providers::windowsThatVanishMidQueryDropOutQuietly()
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

void TestSystemX11Providers::idleTimeIsResetByInput()
{
    SystemIdleTime idle(m_link, QDBusConnection(u"none"_s));
    // The server's own clock runs here; wait until it shows some idleness, then touch a key.
    QTRY_VERIFY(idle.secondsSinceLastInput() >= 0.3);
    const double before = idle.secondsSinceLastInput();
    QVERIFY(xdotool({u"key"_s, u"shift"_s}));
    QVERIFY(idle.secondsSinceLastInput() < before);
    QVERIFY(idle.secondsSinceLastInput() < 0.3);

    // In a Wayland session the X server's count is not the user's: without an idle monitor on the bus the
    // answer is 0, never idle.
    SystemIdleTime wayland(m_link, QDBusConnection(u"none"_s), SystemIdleTime::Source::BusOnly);
    QTRY_VERIFY(idle.secondsSinceLastInput() >= 0.3);
    QCOMPARE(wayland.secondsSinceLastInput(), 0.0);
}

void TestSystemX11Providers::keyPressesAreHeardOffTheMainThread()
{
    std::atomic<qint64> now{5'000'000'000};
    auto keys = X11KeyDownTime::start(m_desktop.display().toLocal8Bit(), [&now] { return now.load(); });
    QVERIFY(keys);
    QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);

    QVERIFY(xdotool({u"key"_s, u"a"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 1u);
    QCOMPARE(keys->secondsSinceLastKeyDown(), 0.0);
    now += 2'500'000'000;
    QCOMPARE(keys->secondsSinceLastKeyDown(), 2.5);

    // Typing three letters is three key-downs (releases do not count); the latest resets the time.
    QVERIFY(xdotool({u"type"_s, u"abc"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 4u);
    QCOMPARE(keys->secondsSinceLastKeyDown(), 0.0);
    // Pointer input is not typing.
    QVERIFY(xdotool({u"mousemove"_s, u"300"_s, u"300"_s, u"click"_s, u"1"_s}));
    QVERIFY(xdotool({u"key"_s, u"b"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 5u);
}

void TestSystemX11Providers::withoutWindowsApplicationsComeFromTheProcessTable()
{
    QTemporaryDir proc;
    const auto process = [&](int pid, const QString& exe, const QByteArray& cgroup = {}) {
        QVERIFY(QDir().mkpath(proc.filePath(QString::number(pid))));
        QVERIFY(QFile::link(exe, proc.filePath(u"%1/exe"_s.arg(pid))));
        writeFile(proc.filePath(u"%1/cgroup"_s.arg(pid)), cgroup);
    };
    process(310, u"/usr/bin/example-editor"_s);
    process(120, u"/usr/bin/example-editor"_s); // a second process of the same application
    process(200, u"/app/bin/vlc"_s, "0::/user.slice/app.slice/app-flatpak-org.videolan.VLC-4410.scope\n");
    process(250, u"/usr/bin/bash"_s);
    auto identities = std::make_shared<AppIdentityResolver>(m_entries, ProcessTable(proc.path()));

    const SystemWorkspace noDisplay(std::make_shared<X11Link>(":199"_ba), identities);
    QCOMPARE(noDisplay.runningApplications(),
             (QList<AppSnapshot>{{u"org.example.Editor"_s, false, 120}, {u"org.videolan.VLC"_s, false, 200}}));

    // In a Wayland session the X clients come first, then the applications not among them.
    const SystemWorkspace wayland(m_link, identities, std::make_shared<WindowClassMemo>(),
                                  SystemWorkspace::Scope::WindowsAndProcesses);
    quint32 id = 0;
    QProcess* editor = open({u"--class"_s, u"example-editor.ExampleEditor"_s}, &id);
    QVERIFY(editor);
    QVERIFY(xdotool({u"windowactivate"_s, u"--sync"_s, QString::number(id)}));
    QTRY_COMPARE(wayland.runningApplications(),
                 (QList<AppSnapshot>{{u"org.example.Editor"_s, true, static_cast<qint32>(editor->processId())},
                                     {u"org.videolan.VLC"_s, false, 200}}));
    // X11 sessions list windows only.
    const SystemWorkspace x11(m_link, identities);
    QCOMPARE(x11.runningApplications().size(), 1);
}

void TestSystemX11Providers::steamGamesAreGamesWhateverTheirDesktopFile()
{
    QTemporaryDir proc;
    for (const QString& pid : {u"700"_s, u"701"_s, u"702"_s})
        QVERIFY(QDir().mkpath(proc.filePath(pid)));
    writeFile(proc.filePath(u"700/environ"_s), QByteArray("HOME=/home/u\0SteamAppId=570\0", 29));
    writeFile(proc.filePath(u"701/environ"_s), QByteArray("SteamAppId=0\0", 13));
    QVERIFY(QFile::link(u"/usr/bin/example-editor"_s, proc.filePath(u"701/exe"_s)));
    writeFile(proc.filePath(u"702/environ"_s), QByteArray("SteamAppId=\0", 12));
    auto identities = std::make_shared<AppIdentityResolver>(m_entries, ProcessTable(proc.path()));
    const SystemAppCategory categories(identities, std::make_shared<WindowClassMemo>());
    QCOMPARE(categories.category(700), u"Game;"_s);
    // The Steam client itself runs with an app ID of 0: it is what its desktop file says.
    QCOMPARE(categories.category(701), u"Development;IDE;"_s);
    QCOMPARE(categories.category(702), std::nullopt);
    QCOMPARE(categories.category(703), std::nullopt);
    QCOMPARE(categories.category(0), std::nullopt);
}

void TestSystemX11Providers::theFactoryAnswersForThisSession()
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", m_desktop.display().toLocal8Bit());
    {
        const DetectionProviders providers = makeSystemDetectionProviders(m_entries);
        QVERIFY(providers.isComplete());
        const auto keys = makeSystemKeyDownTime();
        QVERIFY(dynamic_cast<const X11KeyDownTime*>(keys.get()));
        QProcess* window = open({u"--class"_s, u"example-editor.ExampleEditor"_s});
        QVERIFY(window);
        QTRY_COMPARE(providers.workspace->runningApplications().size(), 1);
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF(0, 0, 1920, 1080));
    }
    qunsetenv("DISPLAY");
    {
        MessageCapture capture;
        const DetectionProviders providers = makeSystemDetectionProviders(m_entries);
        QVERIFY(providers.isComplete());
        const auto keys = makeSystemKeyDownTime();
        QVERIFY(keys);
        QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);
        QVERIFY(providers.windowList->onScreenWindows().isEmpty());
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF());
        // Without a display nothing is tried, so nothing fails.
        QVERIFY(capture.texts().filter(u"X server"_s).isEmpty());
    }
    qputenv("DISPLAY", display);
}

void TestSystemX11Providers::withoutAServerEveryAnswerIsNeutralAndReportedOnce()
{
    MessageCapture capture;
    auto link = std::make_shared<X11Link>(":199"_ba);
    SystemWorkspace workspace(link, m_identities);
    SystemWindowList windows(link);
    SystemScreen screen(link);
    SystemIdleTime idle(link, QDBusConnection(u"none"_s));
    for (int pass = 0; pass < 3; ++pass) {
        QVERIFY(workspace.runningApplications().isEmpty());
        QVERIFY(windows.onScreenWindows().isEmpty());
        QVERIFY(windows.titledWindows().isEmpty());
        QCOMPARE(screen.mainScreenFrame(), QRectF());
        QCOMPARE(idle.secondsSinceLastInput(), 0.0);
    }
    QVERIFY(!X11KeyDownTime::start(":199"_ba));
    // Each provider says once that it has no server; the idle time once more that it has no bus. Three passes
    // add nothing.
    const QStringList texts = capture.texts();
    QCOMPARE(texts.filter(u"Cannot connect to the X server"_s).size(), 4);
    QCOMPARE(texts.filter(u"No session bus"_s).size(), 1);
    QCOMPARE(texts.size(), 5);
}

void TestSystemX11Providers::aServerThatGoesAwayLeavesNeutralAnswers()
{
    XvfbDesktop shortLived;
    QVERIFY(shortLived.start(false, u"800x600x24"_s));
    auto link = std::make_shared<X11Link>(shortLived.display().toLocal8Bit());
    SystemWindowList windows(link);
    SystemScreen screen(link);
    auto keys = X11KeyDownTime::start(shortLived.display().toLocal8Bit());
    QVERIFY(keys);
    QCOMPARE(screen.mainScreenFrame(), QRectF(0, 0, 800, 600));

    MessageCapture capture;
    shortLived.stop();
    QTRY_COMPARE(screen.mainScreenFrame(), QRectF());
    for (int pass = 0; pass < 3; ++pass)
        QVERIFY(windows.onScreenWindows().isEmpty());
    QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);
    keys.reset(); // the listener's thread has ended or ends now; either way this returns
    QVERIFY(capture.texts().size() <= 4);
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    TestSystemX11Providers test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_systemx11providers.moc"
