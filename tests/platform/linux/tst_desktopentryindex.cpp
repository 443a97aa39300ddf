#include "DesktopApplicationInfo.h"
#include "FixtureTree.h"
#include "detection/DesktopEntryIndex.h"

#include <QTest>

#include <utime.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestDesktopEntryIndex : public QObject, protected FixtureTree {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(resetTree()); }

    void parsesTheMainGroupOnly();
    void rejectsWhatIsNoVisibleApplication_data();
    void rejectsWhatIsNoVisibleApplication();
    void execNamesTheProgramPastEnvAndQuotes_data();
    void execNamesTheProgramPastEnvAndQuotes();
    void earlierFoldersWinAndSubfoldersJoinTheId();
    void looksUpByWindowClassThenIdThenProgram();
    void refreshesOnlyWhenAFolderChanged();
    void onlyWhatLaunchersListIsARegularApplication();
};

void TestDesktopEntryIndex::parsesTheMainGroupOnly()
{
    const auto entry = DesktopEntryIndex::parse("# comment\n"
                                                "[Desktop Entry]\n"
                                                "Type=Application\n"
                                                "Name=Video Player\n"
                                                "Name[de]=Videoabspieler\n"
                                                "Icon = vlc \n"
                                                "Categories=AudioVideo;Player;;\n"
                                                "StartupWMClass=vlc\n"
                                                "Exec=/usr/bin/vlc --started-from-file %U\n"
                                                "broken line without equals\n"
                                                "Comment=Plays\\sfiles\\\\\n"
                                                "[Desktop Action new-window]\n"
                                                "Name=New Window\n"
                                                "Exec=other-program\n",
                                                u"vlc"_s, u"/x/vlc.desktop"_s);
    QVERIFY(entry);
    QCOMPARE(entry->id, u"vlc"_s);
    QCOMPARE(entry->name, u"Video Player"_s);
    QCOMPARE(entry->icon, u"vlc"_s);
    QCOMPARE(entry->categories, (QStringList{u"AudioVideo"_s, u"Player"_s}));
    QCOMPARE(entry->startupWMClass, u"vlc"_s);
    QCOMPARE(entry->exec, u"/usr/bin/vlc --started-from-file %U"_s);
    QCOMPARE(entry->executable, u"vlc"_s);
    QCOMPARE(entry->filePath, u"/x/vlc.desktop"_s);
}

void TestDesktopEntryIndex::rejectsWhatIsNoVisibleApplication_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("hidden") << "[Desktop Entry]\nType=Application\nName=A\nHidden=true\n"_ba;
    QTest::newRow("link") << "[Desktop Entry]\nType=Link\nName=A\nURL=https://example.org\n"_ba;
    QTest::newRow("no name") << "[Desktop Entry]\nType=Application\n"_ba;
    QTest::newRow("keys before any group") << "Type=Application\nName=A\n"_ba;
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\0\0[Desktop",
                                          14);
    QTest::newRow("empty") << QByteArray();
}

void TestDesktopEntryIndex::rejectsWhatIsNoVisibleApplication()
{
    QFETCH(QByteArray, contents);
    QCOMPARE(DesktopEntryIndex::parse(contents, u"a"_s), std::nullopt);
}

void TestDesktopEntryIndex::execNamesTheProgramPastEnvAndQuotes_data()
{
    QTest::addColumn<QString>("exec");
    QTest::addColumn<QString>("executable");
    QTest::newRow("env") << u"env GDK_BACKEND=x11 LANG=C /usr/bin/telegram-desktop -- %u"_s << u"telegram-desktop"_s;
    QTest::newRow("env options") << u"/usr/bin/env -u FOO bar"_s << u"bar"_s;
    QTest::newRow("quoted path") << u"\"/opt/My App/my-app\" --x"_s << u"my-app"_s;
    QTest::newRow("flatpak") << u"/usr/bin/flatpak run --branch=stable org.videolan.VLC @@u %U @@"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestDesktopEntryIndex::execNamesTheProgramPastEnvAndQuotes()
{
    QFETCH(QString, exec);
    QFETCH(QString, executable);
    const auto entry =
        DesktopEntryIndex::parse("[Desktop Entry]\nType=Application\nName=A\nExec=" + exec.toUtf8() + "\n", u"a"_s);
    QVERIFY(entry);
    QCOMPARE(entry->executable, executable);
}

void TestDesktopEntryIndex::earlierFoldersWinAndSubfoldersJoinTheId()
{
    write(u"home/applications/editor.desktop"_s, "[Desktop Entry]\nType=Application\nName=Mine\n");
    write(u"system/applications/editor.desktop"_s, "[Desktop Entry]\nType=Application\nName=System\n");
    write(u"system/applications/kde4/okular.desktop"_s, "[Desktop Entry]\nType=Application\nName=Okular\n");
    // A user's hidden copy deletes the system entry.
    write(u"home/applications/removed.desktop"_s, "[Desktop Entry]\nType=Application\nName=X\nHidden=true\n");
    write(u"system/applications/removed.desktop"_s, "[Desktop Entry]\nType=Application\nName=Removed\n");
    write(u"system/applications/notes.txt"_s, "[Desktop Entry]\nType=Application\nName=Not a desktop file\n");

    const DesktopEntryIndex index({path(u"home/applications"_s), path(u"system/applications"_s), u"/nonexistent"_s});
    QCOMPARE(index.entry(u"editor"_s)->name, u"Mine"_s);
    QCOMPARE(index.entry(u"kde4-okular"_s)->name, u"Okular"_s);
    QCOMPARE(index.entry(u"removed"_s), std::nullopt);
    QCOMPARE(index.entries().size(), 2);
}

void TestDesktopEntryIndex::looksUpByWindowClassThenIdThenProgram()
{
    write(u"a/org.gnome.Nautilus.desktop"_s, "[Desktop Entry]\nType=Application\nName=Files\nExec=nautilus\n");
    write(u"a/code.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Code\nExec=/usr/share/code/code %F\nStartupWMClass=Code\n");
    write(u"a/code-url-handler.desktop"_s,
          "[Desktop Entry]\nType=Application\nName=Code URL\nExec=/usr/share/code/code --open-url %U\n"
          "StartupWMClass=Code\n");
    const DesktopEntryIndex index({path(u"a"_s)});

    QCOMPARE(index.entryForWindowClass(u"code"_s)->id, u"code"_s);
    QCOMPARE(index.entryForWindowClass(u"org.gnome.nautilus"_s)->id, u"org.gnome.Nautilus"_s);
    QCOMPARE(index.entryForWindowClass(u"Firefox"_s), std::nullopt);
    QCOMPARE(index.entryForWindowClass(QString()), std::nullopt);
    QCOMPARE(index.entryForExecutable(u"nautilus"_s)->id, u"org.gnome.Nautilus"_s);
    // Two entries start the same program: the first ID keeps it.
    QCOMPARE(index.entryForExecutable(u"code"_s)->id, u"code"_s);
    QCOMPARE(index.entryForExecutable(u"Code"_s), std::nullopt);
}

void TestDesktopEntryIndex::refreshesOnlyWhenAFolderChanged()
{
    write(u"apps/one.desktop"_s, "[Desktop Entry]\nType=Application\nName=One\n");
    DesktopEntryIndex index({path(u"apps"_s)});
    QCOMPARE(index.entries().size(), 1);
    QVERIFY(!index.refreshIfChanged());

    write(u"apps/two.desktop"_s, "[Desktop Entry]\nType=Application\nName=Two\n");
    // Folder times have a resolution; make the change visible whatever it is.
    const qint64 later = QDateTime::currentSecsSinceEpoch() + 5;
    const utimbuf times{later, later};
    QCOMPARE(::utime(QFile::encodeName(path(u"apps"_s)).constData(), &times), 0);
    QVERIFY(index.refreshIfChanged());
    QCOMPARE(index.entry(u"two"_s)->name, u"Two"_s);
    QVERIFY(!index.refreshIfChanged());

    // A folder that appears later (a first Flatpak install) is noticed too.
    write(u"apps/sub/three.desktop"_s, "[Desktop Entry]\nType=Application\nName=Three\n");
    QVERIFY(index.refreshIfChanged());
    QCOMPARE(index.entry(u"sub-three"_s)->name, u"Three"_s);
}

void TestDesktopEntryIndex::onlyWhatLaunchersListIsARegularApplication()
{
    const struct {
        QString id;
        QByteArray extra;
        bool regular;
    } cases[] = {
        {u"org.gnome.TextEditor"_s, {}, true},
        {u"helper"_s, "NoDisplay=true\n", false},
        {u"gnome-only"_s, "OnlyShowIn=GNOME;\n", true},
        {u"kde-only"_s, "OnlyShowIn=KDE;\n", false},
        {u"not-on-gnome"_s, "NotShowIn=Unity;GNOME;\n", false},
        {u"com.velto.app"_s, {}, false},
    };
    for (const auto& c : cases)
        write(u"a/%1.desktop"_s.arg(c.id), "[Desktop Entry]\nType=Application\nName=N\nExec=x\n" + c.extra);
    const DesktopApplicationInfo info(std::make_shared<DesktopEntryIndex>(QStringList{path(u"a"_s)}),
                                      {u"ubuntu"_s, u"GNOME"_s});
    for (const auto& c : cases)
        QVERIFY2(info.applicationInfo(c.id)->isRegular == c.regular, qPrintable(c.id));
}

QTEST_GUILESS_MAIN(TestDesktopEntryIndex)
#include "tst_desktopentryindex.moc"
