// The process table read from fixture trees: what can be read is, the rest is passed over.
#include "FixtureTree.h"
#include "detection/ProcessTable.h"

#include <QTest>

#include <unistd.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestProcessTable : public QObject, protected FixtureTree {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(resetTree()); }

    void processTableReadsWhatItCanAndSkipsTheRest();
    void flatpakIdsComeFromTheCgroupScope_data();
    void flatpakIdsComeFromTheCgroupScope();
};

void TestProcessTable::processTableReadsWhatItCanAndSkipsTheRest()
{
    write(u"proc/42/environ"_s, QByteArray("HOME=/root\0SteamAppId=570\0SteamAppIdX=1\0", 40));
    write(u"proc/42/cmdline"_s, QByteArray("/usr/bin/game\0--fullscreen\0", 27));
    write(u"proc/42/comm"_s, "game-main\n");
    link(u"proc/42/exe"_s, u"/usr/lib/game/bin/game (deleted)"_s);
    write(u"proc/43/comm"_s, "kworker\n");
    write(u"proc/self-named/comm"_s, "not a process\n");
    write(u"proc/7/comm"_s, "init\n");
    const ProcessTable table(path(u"proc"_s));

    QCOMPARE(table.processesOfUser(), (QList<qint32>{7, 42, 43}));
    QCOMPARE(table.processesOfUser(::getuid() + 1), QList<qint32>());
    QCOMPARE(table.environmentValue(42, "SteamAppId"), std::optional<QByteArray>("570"));
    QCOMPARE(table.environmentValue(42, "Steam"), std::nullopt);
    QCOMPARE(table.environmentValue(43, "HOME"), std::nullopt);
    QCOMPARE(table.commandLine(42), (QStringList{u"/usr/bin/game"_s, u"--fullscreen"_s}));
    QCOMPARE(table.commandLine(43), QStringList());
    // The executable's name even after an update replaced the file; the command name without one.
    QCOMPARE(table.executableName(42), u"game"_s);
    QCOMPARE(table.executableName(43), u"kworker"_s);
    QCOMPARE(table.executableName(99), QString());
    QCOMPARE(table.readFile(0, "comm"), QByteArray());
    QCOMPARE(ProcessTable(path(u"missing"_s)).processesOfUser(), QList<qint32>());
}

void TestProcessTable::flatpakIdsComeFromTheCgroupScope_data()
{
    QTest::addColumn<QByteArray>("cgroup");
    QTest::addColumn<QString>("id");
    QTest::newRow("dashes in the id")
        << "0::/app.slice/app-flatpak-com.github.IsmaelMartinez.teams_for_linux-77.scope"_ba
        << u"com.github.IsmaelMartinez.teams_for_linux"_s;
    QTest::newRow("not flatpak") << "0::/user.slice/user-1000.slice/session-2.scope\n"_ba << QString();
    QTest::newRow("no instance number") << "0::/app.slice/app-flatpak-org.example.App.scope"_ba << QString();
    QTest::newRow("cut short") << "0::/app.slice/app-flatpak-org.example.App-12"_ba << QString();
}

void TestProcessTable::flatpakIdsComeFromTheCgroupScope()
{
    QFETCH(QByteArray, cgroup);
    QFETCH(QString, id);
    const auto found = ProcessTable::flatpakAppIdFromCgroup(cgroup);
    QCOMPARE(found.value_or(QString()), id);

    write(u"proc/50/cgroup"_s, cgroup);
    QCOMPARE(ProcessTable(path(u"proc"_s)).flatpakAppId(50).value_or(QString()), id);
}

QTEST_GUILESS_MAIN(TestProcessTable)
#include "tst_processtable.moc"
