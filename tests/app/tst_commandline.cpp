#include "CommandLine.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;
using Command = CommandLine::Command;

class TestCommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commandsAndTheirOptions_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("command");
        QTest::addColumn<bool>("json");
        QTest::addColumn<bool>("longBreak");
        QTest::addColumn<int>("pauseMinutes");

        const auto row = [](const char* name, QStringList arguments, Command command, bool json = false,
                            bool longBreak = false, int minutes = 15) {
            QTest::newRow(name) << arguments << int(command) << json << longBreak << minutes;
        };
        row("nothing", {}, Command::Run);
        row("status --json", {u"status"_s, u"--json"_s}, Command::Status, true);
        row("break --long", {u"break"_s, u"--long"_s}, Command::TakeBreak, false, true);
        row("pause", {u"pause"_s}, Command::Pause);
        row("pause a day", {u"pause"_s, u"1440"_s}, Command::Pause, false, false, 1440);
        row("--help", {u"--help"_s}, Command::Help);
        row("help after a command", {u"pause"_s, u"--help"_s}, Command::Help);
        row("help after a bad argument", {u"pause"_s, u"soon"_s, u"-h"_s}, Command::Help);
        row("-v", {u"-v"_s}, Command::Version);
        row("gnome-extension status --json", {u"gnome-extension"_s, u"status"_s, u"--json"_s},
            Command::GnomeExtensionStatus, true);
        row("gnome-extension enable", {u"gnome-extension"_s, u"enable"_s}, Command::GnomeExtensionEnable);
    }
    void commandsAndTheirOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, command);
        QFETCH(bool, json);
        QFETCH(bool, longBreak);
        QFETCH(int, pauseMinutes);

        const CommandLine parsed = CommandLine::parse(arguments);
        QCOMPARE(int(parsed.command), command);
        QCOMPARE(parsed.json, json);
        QCOMPARE(parsed.longBreak, longBreak);
        QCOMPARE(parsed.pauseMinutes, pauseMinutes);
        QVERIFY(parsed.error.isEmpty());
    }

    void historyOptions_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QList<int>>("daysEventsJsonCsv");
        QTest::newRow("plain") << QStringList{u"history"_s} << QList<int>{7, 0, 0, 0};
        QTest::newRow("a year of events as CSV")
            << QStringList{u"history"_s, u"--csv"_s, u"--days"_s, u"365"_s, u"--events"_s} << QList<int>{365, 1, 0, 1};
        QTest::newRow("--days=N and JSON")
            << QStringList{u"history"_s, u"--days=30"_s, u"--json"_s} << QList<int>{30, 0, 1, 0};
    }
    void historyOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QList<int>, daysEventsJsonCsv);
        const CommandLine parsed = CommandLine::parse(arguments);
        QCOMPARE(parsed.command, Command::History);
        QCOMPARE((QList<int>{parsed.historyDays, parsed.historyEvents, parsed.json, parsed.csv}), daysEventsJsonCsv);
    }

    void badArgumentsAreInvalidWithAReason_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("mentions");

        QTest::newRow("unknown command") << QStringList{u"nap"_s} << u"'nap'"_s;
        QTest::newRow("option of another command") << QStringList{u"status"_s, u"--long"_s} << u"'--long'"_s;
        QTest::newRow("json twice") << QStringList{u"status"_s, u"--json"_s, u"--json"_s} << u"'--json'"_s;
        QTest::newRow("argument to resume") << QStringList{u"resume"_s, u"now"_s} << u"'now'"_s;
        QTest::newRow("pause zero") << QStringList{u"pause"_s, u"0"_s} << u"'0'"_s;
        QTest::newRow("pause over a day") << QStringList{u"pause"_s, u"1441"_s} << u"'1441'"_s;
        QTest::newRow("pause fraction") << QStringList{u"pause"_s, u"1.5"_s} << u"'1.5'"_s;
        QTest::newRow("pause twice") << QStringList{u"pause"_s, u"5"_s, u"6"_s} << u"'6'"_s;
        QTest::newRow("two commands") << QStringList{u"status"_s, u"quit"_s} << u"'quit'"_s;
        QTest::newRow("Qt option without its value") << QStringList{u"-platform"_s} << u"'-platform'"_s;
        QTest::newRow("gnome-extension alone") << QStringList{u"gnome-extension"_s} << u"'status' or 'enable'"_s;
        QTest::newRow("gnome-extension, unknown") << QStringList{u"gnome-extension"_s, u"on"_s} << u"'on'"_s;
        QTest::newRow("history, no days") << QStringList{u"history"_s, u"--days"_s} << u"--days"_s;
        QTest::newRow("history, zero days") << QStringList{u"history"_s, u"--days=0"_s} << u"'0'"_s;
        QTest::newRow("history, days not a number") << QStringList{u"history"_s, u"--days"_s, u"week"_s} << u"'week'"_s;
        QTest::newRow("history, JSON and CSV") << QStringList{u"history"_s, u"--json"_s, u"--csv"_s} << u"--csv"_s;
        QTest::newRow("--csv elsewhere") << QStringList{u"status"_s, u"--csv"_s} << u"'--csv'"_s;
        QTest::newRow("gnome-extension enable --json")
            << QStringList{u"gnome-extension"_s, u"enable"_s, u"--json"_s} << u"'--json' for gnome-extension enable"_s;
    }
    void badArgumentsAreInvalidWithAReason()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, mentions);

        const CommandLine parsed = CommandLine::parse(arguments);
        QCOMPARE(parsed.command, Command::Invalid);
        QVERIFY2(parsed.error.contains(mentions), qPrintable(parsed.error));
        QVERIFY(!parsed.error.contains(u'\n'));
    }

    void qtStartUpOptionsStillStartTheApplication_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("command");

        QTest::newRow("platform") << QStringList{u"-platform"_s, u"offscreen"_s} << int(Command::Run);
        QTest::newRow("with equals") << QStringList{u"-style=Fusion"_s} << int(Command::Run);
        QTest::newRow("flag and session") << QStringList{u"-reverse"_s, u"-session"_s, u"1234"_s} << int(Command::Run);
        QTest::newRow("then a command") << QStringList{u"-platform"_s, u"xcb"_s, u"status"_s} << int(Command::Status);
        // A value that happens to be a command word is still the option's value.
        QTest::newRow("value named like a command") << QStringList{u"-name"_s, u"quit"_s} << int(Command::Run);
        QTest::newRow("unknown equals option") << QStringList{u"-colour=red"_s} << int(Command::Invalid);
    }
    void qtStartUpOptionsStillStartTheApplication()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, command);
        QCOMPARE(int(CommandLine::parse(arguments).command), command);
    }

    void onlyCommandsForTheRunningInstanceTalkToIt()
    {
        const QList<Command> local{Command::Run,
                                   Command::Help,
                                   Command::Version,
                                   Command::History,
                                   Command::GnomeExtensionStatus,
                                   Command::GnomeExtensionEnable,
                                   Command::Invalid};
        for (int value = 0; value <= int(Command::Invalid); ++value) {
            CommandLine line;
            line.command = Command(value);
            QCOMPARE(line.talksToRunningInstance(), !local.contains(line.command));
        }
    }

    void usageNamesEveryCommand()
    {
        const QString usage = CommandLine::usage();
        for (const QString& word :
             {u"status [--json]"_s, u"break [--long]"_s, u"pause [MINUTES]"_s, u"resume"_s, u"skip"_s, u"enable"_s,
              u"disable"_s, u"settings"_s, u"check-updates"_s, u"quit"_s, u"--help"_s, u"--version"_s}) {
            QVERIFY2(usage.contains(u" "_s + word + u" "_s), qPrintable(word));
            // Every command the usage shows parses as something other than a mistake.
            const QString first = word.section(u' ', 0, 0);
            QVERIFY2(CommandLine::parse({first}).command != Command::Invalid, qPrintable(first));
        }
        // Too wide for the column: on a line of its own, in the section of commands that need no running Velto.
        QVERIFY(usage.contains(u"with or without a running Velto:\n"
                               u"  history [--days N] [--events] [--json | --csv]\n"_s));
        QVERIFY(usage.contains(u"\n  gnome-extension status [--json] | enable\n"_s));
        // A command with words of its own takes each of them.
        for (const CommandLine::Spec& spec : CommandLine::commands()) {
            for (const QString& word : spec.words)
                QVERIFY2(CommandLine::parse({spec.name, word}).command != Command::Invalid, qPrintable(word));
        }
        QVERIFY(usage.endsWith(u'\n'));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
