#include "detection/GnomeExtension.h"

#include <QSet>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;
using State = GnomeExtensionState;

Q_DECLARE_METATYPE(GnomeExtensionFacts)
Q_DECLARE_METATYPE(GnomeExtensionEnabling)

namespace {

namespace Shell = GnomeShellExtensionState;

// A running shell with a copy installed and readable settings that list nothing; rows change what they name.
GnomeExtensionFacts installed()
{
    GnomeExtensionFacts facts;
    facts.shellRunning = true;
    facts.installed = true;
    facts.settingsReadable = true;
    return facts;
}

GnomeExtensionFacts listed(GnomeExtensionFacts facts = installed())
{
    facts.listedEnabled = true;
    return facts;
}

GnomeExtensionFacts loaded(int state, GnomeExtensionFacts facts = installed())
{
    facts.shellState = state;
    return facts;
}

} // namespace

class TestGnomeExtension : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stateAndHowToEnable_data();
    void stateAndHowToEnable();
    void everyStateIsToldApart();
};

void TestGnomeExtension::stateAndHowToEnable_data()
{
    QTest::addColumn<GnomeExtensionFacts>("facts");
    QTest::addColumn<State>("state");
    QTest::addColumn<GnomeExtensionEnabling>("enabling");

    const GnomeExtensionEnabling nothing;
    const GnomeExtensionEnabling lists{false, true, false};
    const GnomeExtensionEnabling listsAndSwitch{false, true, true};
    const GnomeExtensionEnabling shell{true, false, false};
    const GnomeExtensionEnabling shellAndSwitch{true, false, true};

    GnomeExtensionFacts facts;
    facts.installed = true;
    facts.serving = true;
    QTest::newRow("no GNOME Shell") << facts << State::NotGnome << nothing;

    facts = installed();
    facts.installed = false;
    QTest::newRow("no copy") << facts << State::NotInstalled << nothing;
    QTest::newRow("listed, no copy") << listed(facts) << State::NotInstalled << nothing;

    QTest::newRow("installed, not listed") << installed() << State::NotEnabled << lists;
    facts = listed();
    facts.listedDisabled = true;
    QTest::newRow("listed, also disabled") << facts << State::NotEnabled << lists;
    facts = listed();
    facts.userExtensionsOff = true;
    QTest::newRow("listed, user extensions off") << facts << State::NotEnabled << listsAndSwitch;
    facts.installed = false;
    facts.shellState = Shell::disabled;
    QTest::newRow("loaded, user extensions off") << facts << State::NotEnabled << shellAndSwitch;
    QTest::newRow("loaded, not listed") << loaded(Shell::initialized) << State::NotEnabled << shell;
    facts = loaded(Shell::disabled);
    facts.settingsReadable = false;
    QTest::newRow("loaded, no settings") << facts << State::NotEnabled << shell;
    facts.shellState.reset();
    QTest::newRow("not loaded, no settings") << facts << State::NotEnabled << nothing;

    QTest::newRow("listed after login") << listed() << State::EnabledNextLogin << nothing;
    QTest::newRow("listed, loaded, not started")
        << loaded(Shell::initialized, listed()) << State::EnabledNextLogin << nothing;
    QTest::newRow("listed, error") << loaded(Shell::error, listed()) << State::Failed << nothing;
    QTest::newRow("listed, shell too new") << loaded(Shell::outOfDate, listed()) << State::Failed << nothing;

    QTest::newRow("started") << loaded(Shell::enabled, listed()) << State::Active << nothing;
    facts = installed();
    facts.serving = true;
    QTest::newRow("serving, though not listed") << facts << State::Active << nothing;
}

void TestGnomeExtension::stateAndHowToEnable()
{
    QFETCH(GnomeExtensionFacts, facts);
    QFETCH(State, state);
    QFETCH(GnomeExtensionEnabling, enabling);

    QCOMPARE(gnomeExtensionState(facts), state);
    const GnomeExtensionEnabling planned = gnomeExtensionEnabling(facts);
    QCOMPARE(planned.askShell, enabling.askShell);
    QCOMPARE(planned.writeLists, enabling.writeLists);
    QCOMPARE(planned.turnOnUserExtensions, enabling.turnOnUserExtensions);
}

void TestGnomeExtension::everyStateIsToldApart()
{
    QSet<QString> names;
    QSet<QString> texts;
    for (State state : {State::NotGnome, State::NotInstalled, State::NotEnabled, State::EnabledNextLogin, State::Failed,
                        State::Active}) {
        const QString text = gnomeExtensionStateText(state);
        names.insert(gnomeExtensionStateName(state));
        texts.insert(text);
        // Nothing to say without GNOME Shell; otherwise one line naming what it is about.
        QCOMPARE(text.isEmpty(), state == State::NotGnome);
        QVERIFY(text.isEmpty() || text.startsWith(u"GNOME extension: "_s));
        // Why it matters, wherever it does not run.
        const bool runsOrIrrelevant = state == State::NotGnome || state == State::Active;
        QCOMPARE(gnomeExtensionExplanation(state).isEmpty(), runsOrIrrelevant);
        QVERIFY(!gnomeExtensionExplanation(state).contains(u'\n'));
    }
    QCOMPARE(names.size(), 6);
    QCOMPARE(texts.size(), 6);
}

QTEST_GUILESS_MAIN(TestGnomeExtension)
#include "tst_gnomeextension.moc"
