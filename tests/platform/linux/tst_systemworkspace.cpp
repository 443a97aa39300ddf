// The running applications of an X session with a window manager, and of sessions without windows to go by.
#include "MessageCapture.h"
#include "X11ProviderFixture.h"
#include "detection/SystemX11Providers.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemWorkspace : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void workspaceGroupsWindowsByProcessAndFollowsTheActiveWindow();
    void withoutWindowsApplicationsComeFromTheProcessTable();
    void withoutAServerTheListIsEmptyAndSaidOnce();
};

void TestSystemWorkspace::workspaceGroupsWindowsByProcessAndFollowsTheActiveWindow()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    quint32 firstWindow = 0;
    quint32 secondWindow = 0;
    QProcess* first = open({u"--class"_s, u"first.First"_s}, &firstWindow);
    QProcess* second = open({u"--class"_s, u"secondTool.SecondTool"_s}, &secondWindow);
    QVERIFY(open({u"--class"_s, u"anonymous.Anonymous"_s, u"--no-pid"_s}));
    QVERIFY(first && second);

    QTRY_COMPARE(workspace.runningApplications().size(), 2);
    QVERIFY(xdotool({u"windowactivate"_s, u"--sync"_s, QString::number(firstWindow)}));
    QTRY_VERIFY(appWithPid(workspace.runningApplications(), first->processId())->isActive);
    QList<AppSnapshot> apps = workspace.runningApplications();
    QVERIFY(!appWithPid(apps, second->processId())->isActive);
    // No desktop file claims this class: the identity is the class itself, lower-cased.
    QCOMPARE(appWithPid(apps, second->processId())->bundleIdentifier, u"secondtool"_s);
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

void TestSystemWorkspace::withoutWindowsApplicationsComeFromTheProcessTable()
{
    QTemporaryDir proc;
    const auto process = [&](int pid, const QString& exe, const QByteArray& cgroup = {}) {
        QVERIFY(QDir().mkpath(proc.filePath(QString::number(pid))));
        QVERIFY(QFile::link(exe, proc.filePath(u"%1/exe"_s.arg(pid))));
        QVERIFY(writeTestFile(proc.filePath(u"%1/cgroup"_s.arg(pid)), cgroup));
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

void TestSystemWorkspace::withoutAServerTheListIsEmptyAndSaidOnce()
{
    MessageCapture capture;
    // No windows and no process of a known application under this fixture's table: nothing at all.
    QTemporaryDir proc;
    const auto identities = std::make_shared<AppIdentityResolver>(m_entries, ProcessTable(proc.path()));
    SystemWorkspace workspace(std::make_shared<X11Link>(":199"_ba), identities);
    for (int pass = 0; pass < 2; ++pass)
        QVERIFY(workspace.runningApplications().isEmpty());
    QCOMPARE(capture.texts().size(), 1);
    QVERIFY(capture.texts().first().contains(u"Cannot connect to the X server"_s));
}

QTEST_GUILESS_MAIN(TestSystemWorkspace)
#include "tst_systemworkspace.moc"
