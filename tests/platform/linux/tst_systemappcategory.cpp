// Application categories: desktop files found through the window class or the program, and Steam games.
#include "X11ProviderFixture.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemAppCategory : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void fullscreenGameWindowsCoverTheScreenAtTheNormalLayer();
    void steamGamesAreGamesWhateverTheirDesktopFile();
};

void TestSystemAppCategory::fullscreenGameWindowsCoverTheScreenAtTheNormalLayer()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemWindowList windows(m_link);
    SystemScreen screen(m_link);
    SystemAppCategory categories(m_identities, m_memo);
    QProcess* game = open({u"--class"_s, u"shooter.Shooter"_s, u"--fullscreen"_s});
    QProcess* unknown = open({u"--class"_s, u"someTool.SomeTool"_s});
    QVERIFY(game && unknown);
    QTRY_VERIFY(windowOf(windows.onScreenWindows(), game->processId()) &&
                windowOf(windows.onScreenWindows(), game->processId())->bounds == screen.mainScreenFrame());
    QCOMPARE(windowOf(windows.onScreenWindows(), game->processId())->layer, 0);
    QTRY_COMPARE(workspace.runningApplications().size(), 2);
    QCOMPARE(appWithPid(workspace.runningApplications(), game->processId())->bundleIdentifier,
             u"org.example.Shooter"_s);
    QCOMPARE(categories.category(static_cast<qint32>(game->processId())), u"Game;ActionGame;"_s);
    // A window class no desktop file claims has no category.
    QCOMPARE(categories.category(static_cast<qint32>(unknown->processId())), std::nullopt);
}

void TestSystemAppCategory::steamGamesAreGamesWhateverTheirDesktopFile()
{
    QTemporaryDir proc;
    for (const QString& pid : {u"700"_s, u"701"_s, u"702"_s})
        QVERIFY(QDir().mkpath(proc.filePath(pid)));
    QVERIFY(writeTestFile(proc.filePath(u"700/environ"_s), QByteArray("HOME=/home/u\0SteamAppId=570\0", 29)));
    QVERIFY(writeTestFile(proc.filePath(u"701/environ"_s), QByteArray("SteamAppId=0\0", 13)));
    QVERIFY(QFile::link(u"/usr/bin/example-editor"_s, proc.filePath(u"701/exe"_s)));
    QVERIFY(writeTestFile(proc.filePath(u"702/environ"_s), QByteArray("SteamAppId=\0", 12)));
    auto identities = std::make_shared<AppIdentityResolver>(m_entries, ProcessTable(proc.path()));
    const SystemAppCategory categories(identities, std::make_shared<WindowClassMemo>());
    QCOMPARE(categories.category(700), u"Game;"_s);
    // The Steam client itself runs with an app ID of 0: it is what its desktop file says.
    QCOMPARE(categories.category(701), u"Development;IDE;"_s);
    QCOMPARE(categories.category(702), std::nullopt);
    QCOMPARE(categories.category(703), std::nullopt);
    QCOMPARE(categories.category(0), std::nullopt);
}

QTEST_GUILESS_MAIN(TestSystemAppCategory)
#include "tst_systemappcategory.moc"
