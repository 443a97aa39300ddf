#include "CommandLine.h"
#include "FakeGnomeExtension.h"
#include "GnomeExtensionCommand.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTextStream>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(GnomeExtensionFacts)

namespace {

// The facts of each state, as a shell with the extension would have them.
GnomeExtensionFacts factsFor(GnomeExtensionState state)
{
    GnomeExtensionFacts facts;
    facts.shellRunning = true;
    if (state == GnomeExtensionState::NotInstalled)
        return facts;
    facts.installed = true;
    facts.settingsReadable = true;
    facts.listedEnabled = state != GnomeExtensionState::NotEnabled;
    if (state == GnomeExtensionState::Failed)
        facts.shellState = GnomeShellExtensionState::error;
    facts.serving = state == GnomeExtensionState::Active;
    return facts;
}

} // namespace

// What `velto gnome-extension …` prints and answers for each state the extension can be in, and when it enables.
class TestGnomeExtensionCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsTheStateAndEnablesWhereItCan_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<GnomeExtensionFacts>("found");
        QTest::addColumn<QString>("enableError");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::addColumn<int>("enables");

        using S = GnomeExtensionState;
        const QStringList status{u"gnome-extension"_s, u"status"_s};
        const QStringList enable{u"gnome-extension"_s, u"enable"_s};
        const QString hint = u"Enable it with: velto gnome-extension enable\n"_s;
        const auto row = [](const char* name, const QStringList& arguments, S state, const QString& out, int exitCode,
                            const QString& err = {}, int enables = 0, const QString& enableError = {}) {
            QTest::newRow(name) << arguments << factsFor(state) << enableError << exitCode << out << err << enables;
        };

        row("status, active", status, S::Active, u"GNOME extension: active\n"_s, 0);
        row("status, off", status, S::NotEnabled, u"GNOME extension: installed, not enabled\n"_s + hint, 0);
        row("status, next login", status, S::EnabledNextLogin,
            u"GNOME extension: enabled, active after the next login\n"_s, 0);
        row("status, failed", status, S::Failed, u"GNOME extension: enabled, but GNOME Shell could not start it\n"_s,
            0);
        row("status, not installed", status, S::NotInstalled, u"GNOME extension: not installed\n"_s, 1);

        // Enabling here finds the state of the next login (afterEnabling).
        row("enable, off", enable, S::NotEnabled, u"GNOME extension: enabled, active after the next login\n"_s, 0, {},
            1);
        row("enable, refused", enable, S::NotEnabled, {}, 1, u"settings are locked"_s, 1, u"settings are locked"_s);
        row("enable, already active", enable, S::Active, u"GNOME extension: active\n"_s, 0);
        row("enable, not installed", enable, S::NotInstalled, {}, 1, u"not installed"_s);
        row("enable, failed", enable, S::Failed, u"GNOME extension: enabled, but GNOME Shell could not start it\n"_s, 1,
            u"could not start"_s);
    }
    void printsTheStateAndEnablesWhereItCan()
    {
        QFETCH(QStringList, arguments);
        QFETCH(GnomeExtensionFacts, found);
        QFETCH(QString, enableError);
        QFETCH(int, exitCode);
        QFETCH(QString, out);
        QFETCH(QString, err);
        QFETCH(int, enables);

        FakeGnomeExtension extension;
        extension.found = found;
        extension.afterEnabling = factsFor(GnomeExtensionState::EnabledNextLogin);
        extension.enableError = enableError;
        QString printed;
        QString errors;
        QTextStream outStream(&printed);
        QTextStream errStream(&errors);
        QCOMPARE(GnomeExtensionCommand(extension).run(CommandLine::parse(arguments), outStream, errStream), exitCode);
        QCOMPARE(printed, out);
        QCOMPARE(errors.isEmpty(), err.isEmpty());
        QVERIFY2(errors.contains(err) && (errors.isEmpty() || errors.startsWith(u"velto: "_s)), qPrintable(errors));
        QCOMPARE(extension.enables, enables);
    }

    void jsonSaysTheStateByName()
    {
        FakeGnomeExtension extension;
        extension.found = factsFor(GnomeExtensionState::NotEnabled);
        QString printed;
        QString errors;
        QTextStream outStream(&printed);
        QTextStream errStream(&errors);
        const CommandLine line = CommandLine::parse({u"gnome-extension"_s, u"status"_s, u"--json"_s});
        QCOMPARE(GnomeExtensionCommand(extension).run(line, outStream, errStream), 0);
        const QJsonObject json = QJsonDocument::fromJson(printed.toUtf8()).object();
        QCOMPARE(json.value(u"state"_s).toString(), u"notEnabled"_s);
        QCOMPARE(json.value(u"text"_s).toString(), u"GNOME extension: installed, not enabled"_s);
        QCOMPARE(json.value(u"canEnable"_s).toBool(), true);
        QVERIFY(printed.endsWith(u"}\n"_s));
    }

    void aShellThatNeverAnswersFailsInTime()
    {
        FakeGnomeExtension extension; // finds nothing, ever
        QString printed;
        QString errors;
        QTextStream outStream(&printed);
        QTextStream errStream(&errors);
        const CommandLine line = CommandLine::parse({u"gnome-extension"_s, u"status"_s});
        QCOMPARE(GnomeExtensionCommand(extension, 100).run(line, outStream, errStream), 1);
        QCOMPARE(printed, QString());
        QVERIFY2(errors.contains(u"did not answer"_s), qPrintable(errors));
    }
};

QTEST_GUILESS_MAIN(TestGnomeExtensionCommand)
#include "tst_gnomeextensioncommand.moc"
