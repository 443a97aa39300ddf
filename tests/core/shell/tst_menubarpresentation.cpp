#include "shell/MenuBarPresentation.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

const QString dash = MenuBarPresentation::noTime.toString();

QStringList titles(const QList<StatusMenuItem>& items)
{
    QStringList out;
    for (const auto& item : items)
        out << (item.isSeparator ? u"-"_s : item.title);
    return out;
}

const StatusMenuItem* find(const QList<StatusMenuItem>& items, MenuAction action)
{
    for (const auto& item : items)
        if (item.action == action)
            return &item;
    return nullptr;
}

} // namespace

class TestMenuBarPresentation final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void menuTimeTruncatesAndNeverWraps()
    {
        QCOMPARE(menuTimeText(59.9), u"00:59"_s);
        QCOMPARE(menuTimeText(3600), u"60:00"_s);
        QCOMPARE(menuTimeText(-3), u"00:00"_s);
        QCOMPARE(menuTimeText(std::nan("")), u"00:00"_s);
        // A hand-edited duration no clock can reach is shown held at a bound, not overflowed.
        QCOMPARE(menuTimeText(1e308), u"150000000000000:00"_s);
    }

    void presentationByStateAndReason_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("reason"); // -1: none
        QTest::addColumn<QString>("timeText");
        QTest::addColumn<QString>("statusText");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<int>("primary");
        QTest::addColumn<bool>("primaryEnabled");
        QTest::addColumn<QString>("title");

        using S = BreakState;
        using A = MenuBarPrimaryAction;
        auto row = [](const char* name, S s, int r, QString t, QString st, QString sym, A a, bool en, QString ti) {
            QTest::newRow(name) << int(s) << r << t << st << sym << int(a) << en << ti;
        };
        row("idle", S::Idle, -1, dash, u"Ready"_s, u"timer"_s, A::TakeBreak, true, u"Ready"_s);
        row("working", S::Working, -1, u"24:59"_s, u"Until next break"_s, u"timer"_s, A::TakeBreak, true, u"24:59"_s);
        row("break, first half", S::OnBreak, -1, u"00:15"_s, u"Break in progress"_s, u"cup.and.saucer"_s, A::EndBreak,
            false, u"00:15"_s);
        row("manual pause", S::Paused, int(PauseKind::ManuallyPaused), u"24:59"_s, u"Paused \u00B7 resumes in 15 min"_s,
            u"pause.circle.fill"_s, A::Resume, true, {});
        row("office hours", S::Working, int(PauseKind::OutsideOfficeHours), u"24:59"_s, u"Outside office hours"_s,
            u"clock.badge.xmark"_s, A::None, false, {});
        row("disabled", S::Idle, int(PauseKind::AppDisabled), dash, u"Breaks disabled"_s, u"pause.circle"_s, A::None,
            false, {});
        row("smart pause", S::Working, int(PauseKind::SmartActivity), u"24:59"_s, u"Watching video"_s,
            u"play.rectangle"_s, A::None, false, {});
    }

    void presentationByStateAndReason()
    {
        QFETCH(int, state);
        QFETCH(int, reason);
        const QDateTime now(QDate(2026, 3, 2), QTime(9, 0), Qt::UTC);
        MenuBarInputs in;
        in.state = BreakState(state);
        if (reason >= 0)
            in.pauseReason = PauseReason{PauseKind(reason), now.addSecs(870)};
        in.timeRemaining = 1499.4;
        in.breakTimeRemaining = 15.5;
        in.activityStatusText = u"Watching video"_s;
        in.activityStatusSymbolName = u"play.rectangle"_s;
        in.now = now;
        const auto p = makeMenuBarPresentation(in);
        QTEST(p.timeText, "timeText");
        QTEST(p.statusText, "statusText");
        QTEST(p.symbolName, "symbol");
        QTEST(int(p.primaryAction), "primary");
        QTEST(p.primaryActionEnabled, "primaryEnabled");
        QTEST(p.statusItemTitle, "title");
    }

    void titleAndAccessibilityFollowTheTimerSwitch()
    {
        MenuBarInputs in;
        in.state = BreakState::Working;
        in.timeRemaining = 1499.4;
        auto p = makeMenuBarPresentation(in);
        QCOMPARE(p.accessibilityLabel(), u"Velto, Until next break"_s);
        QCOMPARE(p.accessibilityValue(), u"24:59 remaining"_s);

        in.showTimerInMenuBar = false;
        for (auto state : {BreakState::Idle, BreakState::Working, BreakState::OnBreak, BreakState::Paused}) {
            in.state = state;
            p = makeMenuBarPresentation(in);
            QVERIFY(p.statusItemTitle.isEmpty());
            QVERIFY(p.timeText != u"Ready"_s);
        }
        in.state = BreakState::Idle;
        in.pauseReason = PauseReason::appDisabled();
        QCOMPARE(makeMenuBarPresentation(in).accessibilityValue(), u"No active timer"_s);

        // Smart Pause without texts from the detector falls back to its own, and shows no title.
        in.showTimerInMenuBar = true;
        in.state = BreakState::Working;
        in.pauseReason = PauseReason::smartActivity();
        p = makeMenuBarPresentation(in);
        QCOMPARE(p.statusText, u"Smart Pause active"_s);
        QCOMPARE(p.symbolName, u"pause.circle"_s);
        QVERIFY(p.statusItemTitle.isEmpty());
    }

    void endBreakFollowsEarlyEndRules()
    {
        MenuBarInputs in;
        in.state = BreakState::OnBreak;
        in.canEndBreakEarly = true;
        auto p = makeMenuBarPresentation(in);
        QVERIFY(p.primaryActionEnabled);
        auto items = makeStatusMenuItems(p, {true, 0, false, BreakState::OnBreak, {}});
        QCOMPARE(find(items, MenuAction::PerformPrimaryMenuAction)->title, u"End Break"_s);

        in.allowEarlyEnd = false;
        p = makeMenuBarPresentation(in);
        QCOMPARE(p.primaryAction, MenuBarPrimaryAction::None);
        items = makeStatusMenuItems(p, {true, 0, false, BreakState::OnBreak, {}});
        QVERIFY(!find(items, MenuAction::PerformPrimaryMenuAction));
    }

    void trayFaceChangesOnlyWithWhatItShows()
    {
        MenuBarInputs in;
        in.state = BreakState::Working;
        in.timeRemaining = 1499.4;
        auto p = makeMenuBarPresentation(in);
        const auto face = makeTrayIconFace(p, BreakState::Working, 1499.4, 1500);
        QVERIFY(face.showsTimer);
        QCOMPARE(face.label, u"25"_s);
        // Ten seconds later the icon is the same picture, so nothing is redrawn.
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 1489.4, 1500), face);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 30, 1500).label, u"1"_s);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 1e308, 1e308).label, u"2500000000000h"_s);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 0, 1500).ringSteps, 0);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 7200, 7200).label, u"2h"_s);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 500, 0).ringSteps, 0);

        // Spoken texts round the same way, and say the time even when the icon does not show it.
        const struct {
            double remaining;
            const char16_t* value;
        } spoken[] = {{1499.4, u"25 min remaining"}, {1440.5, u"25 min remaining"},  {0, u"0 min remaining"},
                      {7200, u"2 h remaining"},      {7201, u"2 h 1 min remaining"}, {qInf(), u"No active timer"}};
        for (const auto& row : spoken)
            QCOMPARE(makeTrayAccessibleTexts(p, row.remaining).value, QString::fromUtf16(row.value));

        // No title, no timer: the plain icon, whatever the countdown.
        in.showTimerInMenuBar = false;
        p = makeMenuBarPresentation(in);
        QCOMPARE(makeTrayIconFace(p, BreakState::Working, 1499.4, 1500), TrayIconFace{});
        QCOMPARE(makeTrayAccessibleTexts(p, 1499.4).value, u"25 min remaining"_s);
    }

    void menuItemsForWorkingDisabledAndHeld()
    {
        MenuBarInputs in;
        in.state = BreakState::Working;
        in.timeRemaining = 1499.4;
        auto items = makeStatusMenuItems(makeMenuBarPresentation(in), {true, 1, true, BreakState::Working, {}});
        QCOMPARE(titles(items),
                 (QStringList{u"24:59  Until next break"_s, u"1 breaks today"_s, u"-"_s, u"Disable Velto"_s, u"-"_s,
                              u"Take a Break"_s, u"Take a Long Break"_s, u"Pause for 15 Minutes"_s, u"-"_s,
                              u"Settings\u2026"_s, u"-"_s, u"Quit Velto"_s}));
        QVERIFY(!items[0].isEnabled && !items[1].isEnabled);

        // No long break offered unless long breaks are on.
        items = makeStatusMenuItems(makeMenuBarPresentation(in), {true, 0, false, BreakState::Working, {}});
        QVERIFY(!find(items, MenuAction::StartLongBreakFromMenu));

        in.state = BreakState::Idle;
        in.pauseReason = PauseReason::appDisabled();
        items = makeStatusMenuItems(makeMenuBarPresentation(in), {false, 4, true, BreakState::Idle, in.pauseReason});
        QCOMPARE(titles(items), (QStringList{u"Breaks disabled"_s, u"-"_s, u"Enable Velto"_s, u"-"_s,
                                             u"Settings\u2026"_s, u"-"_s, u"Quit Velto"_s}));

        for (auto reason : {PauseReason::smartActivity(), PauseReason::outsideOfficeHours()}) {
            in.state = BreakState::Working;
            in.pauseReason = reason;
            items = makeStatusMenuItems(makeMenuBarPresentation(in), {true, 2, true, BreakState::Working, reason});
            QVERIFY(!find(items, MenuAction::PerformPrimaryMenuAction));
            QVERIFY(!find(items, MenuAction::StartLongBreakFromMenu));
            QVERIFY(!find(items, MenuAction::PauseFromMenu));
            QCOMPARE(items[1].title, u"2 breaks today"_s);
        }
    }
};

QTEST_GUILESS_MAIN(TestMenuBarPresentation)
#include "tst_menubarpresentation.moc"
