#include "FakeActivityDetector.h"
#include "HistoryPaneModel.h"
#include "InMemoryHistoryStore.h"
#include "InMemoryUserDefaults.h"
#include "history/HistoryRecorder.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace velto;
using Mark = HistoryPaneModel::DayMark;

namespace {

const QTimeZone utc = QTimeZone::utc();
// A Wednesday.
const QDate wednesday(2025, 11, 5);

HistoryEvent breakEnded(QDate day, QStringView outcome)
{
    HistoryEvent event;
    event.kind = HistoryEventKind::BreakEnded;
    event.at = QDateTime(day, QTime(10, 0), utc);
    event.breakType = BreakType::Short;
    event.detail = outcome.toString();
    event.seconds = 20;
    return event;
}

void seedBreaks(InMemoryHistoryStore& store, QDate day, int taken, int skipped)
{
    for (int i = 0; i < taken; ++i)
        store.append(breakEnded(day, HistoryNames::completed));
    for (int i = 0; i < skipped; ++i)
        store.append(breakEnded(day, HistoryNames::skipped));
}

// The break counts of one day: daysAgo from today, taken, skipped.
using SeededDay = std::tuple<int, int, int>;

} // namespace

class HistoryPaneModelTest final : public QObject {
    Q_OBJECT

private:
    // The real scheduler with a recorder, on a clock the test moves; the pane reads what both leave.
    struct Fixture {
        Fixture()
        {
            BreakConfiguration breaks = settings.breakConfiguration();
            breaks.workInterval = 3600;
            settings.setBreakConfiguration(breaks);
            manager.setSettingsManager(&settings);
            manager.setEnvironment(QProcessEnvironment());
            manager.setActivityDetector(&detector);
            recorder.watchScheduler(&manager);
            recorder.watchDetector(&detector);
            manager.start();
        }
        void work(int seconds)
        {
            for (int i = 0; i < seconds; ++i) {
                clock = clock.addSecs(1);
                if (manager.isWorkTimerActive())
                    manager.workTick();
            }
        }
        void load()
        {
            model.refresh();
            QVERIFY(model.loading());
            QTRY_VERIFY(!model.loading());
        }
        [[nodiscard]] QVariantMap chartEntry(QDate date) const
        {
            for (const QVariant& entry : model.chartEntries()) {
                if (entry.toMap().value(u"date"_s).toDate() == date)
                    return entry.toMap();
            }
            return {};
        }

        InMemoryHistoryStore store;
        InMemoryUserDefaults defaults;
        InMemoryUserDefaults settingsStore;
        SettingsManager settings{settingsStore, nullptr};
        FakeActivityDetector detector;
        QDateTime clock{wednesday, QTime(9, 0), utc};
        BreakManager manager{defaults, utc, [this] { return clock; }};
        HistoryRecorder recorder{store, &defaults, utc, [this] { return clock; }};
        HistoryPaneModel model{&recorder};
    };

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }

    void durationsReadInHoursAndMinutes_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << 0.0 << u"0 min"_s;
        QTest::newRow("under half a minute") << 29.0 << u"0 min"_s;
        QTest::newRow("minutes") << 25 * 60.0 << u"25 min"_s;
        QTest::newRow("just short of an hour rounds up") << 59 * 60 + 40.0 << u"1 h 00 min"_s;
        QTest::newRow("hours with two-digit minutes") << 65 * 60.0 << u"1 h 05 min"_s;
    }
    void durationsReadInHoursAndMinutes()
    {
        QFETCH(double, seconds);
        QFETCH(QString, text);
        QCOMPARE(historyDurationText(seconds), text);
    }

    // Breaks from the store; the longest stretch and a hold still going on from the recorder, not written yet.
    void todayCountsWhatTheRecorderHoldsToo()
    {
        Fixture f;
        seedBreaks(f.store, wednesday, 3, 1);
        seedBreaks(f.store, wednesday.addDays(-1), 6, 0);
        f.store.append(breakEnded(wednesday, HistoryNames::endedEarly));
        HistoryEvent upcomingSkipped = breakEnded(wednesday, {});
        upcomingSkipped.kind = HistoryEventKind::UpcomingBreakSkipped;
        f.store.append(upcomingSkipped);
        HistoryEvent earlierHold = breakEnded(wednesday, u"meeting");
        earlierHold.kind = HistoryEventKind::SmartPauseHold;
        earlierHold.seconds = 40 * 60;
        f.store.append(earlierHold);

        f.work(30 * 60);
        f.detector.active = true;
        f.detector.kind = u"video"_s;
        f.work(1);
        f.clock = f.clock.addSecs(25 * 60);
        f.load();

        QVERIFY(f.model.hasHistory());
        const QVariantMap today = f.model.today();
        QCOMPARE(today.value(u"taken"_s).toInt(), 4);
        QCOMPARE(today.value(u"skipped"_s).toInt(), 2);
        QCOMPARE(today.value(u"longestStretchText"_s).toString(), u"30 min"_s);
        QCOMPARE(today.value(u"smartPauseText"_s).toString(), u"1 h 05 min"_s);
    }

    void chartShowsTheLastSevenOrThirtyDays_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("firstLabel");
        QTest::addColumn<QString>("todayLabel");
        QTest::addColumn<int>("maximum");
        QTest::newRow("7 days, by weekday") << 7 << u"Thu"_s << u"Wed"_s << 6;
        QTest::newRow("30 days, by day number") << 30 << u"7"_s << u"5"_s << 20;
    }
    void chartShowsTheLastSevenOrThirtyDays()
    {
        QFETCH(int, days);
        QFETCH(QString, firstLabel);
        QFETCH(QString, todayLabel);
        QFETCH(int, maximum);
        Fixture f;
        const QDate monday = wednesday.addDays(-2);
        const QDate threeWeeksAgo = wednesday.addDays(-21);
        seedBreaks(f.store, monday, 5, 1);
        seedBreaks(f.store, threeWeeksAgo, 11, 2);
        seedBreaks(f.store, wednesday.addDays(-30), 40, 0); // before either range
        f.load();
        f.model.setChartDays(days);
        QCOMPARE(f.model.chartDays(), days);

        const QVariantList entries = f.model.chartEntries();
        QCOMPARE(entries.size(), days);
        QCOMPARE(entries.first().toMap().value(u"date"_s).toDate(), wednesday.addDays(1 - days));
        QCOMPARE(entries.first().toMap().value(u"label"_s).toString(), firstLabel);
        QCOMPARE(entries.last().toMap().value(u"date"_s).toDate(), wednesday);
        QCOMPARE(entries.last().toMap().value(u"label"_s).toString(), todayLabel);
        const QVariantMap busy = f.chartEntry(monday);
        QCOMPARE(busy.value(u"taken"_s).toInt(), 5);
        QCOMPARE(busy.value(u"skipped"_s).toInt(), 1);
        QCOMPARE(busy.value(u"accessibleText"_s).toString(), u"Mon 3 Nov: 5 taken, 1 skipped"_s);
        QCOMPARE(f.chartEntry(threeWeeksAgo).value(u"taken"_s).toInt(), days == 30 ? 11 : 0);
        QCOMPARE(f.model.chartMaximum(), maximum);
    }

    void streakAndTheWeekFollowTheDaysAndTheLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QList<SeededDay>>("seeded");
        QTest::addColumn<int>("streak");
        QTest::addColumn<QDate>("weekStart");
        QTest::addColumn<QList<Mark>>("marks");
        const QLocale british(QLocale::English, QLocale::UnitedKingdom);
        const QLocale american(QLocale::English, QLocale::UnitedStates);
        // Monday every break, Tuesday one skipped, today two taken so far.
        const QList<SeededDay> week = {{2, 4, 0}, {1, 3, 1}, {0, 2, 0}};
        QTest::newRow("week from Monday, a skip yesterday")
            << british << week << 1 << wednesday.addDays(-2)
            << QList<Mark>{Mark::AllTaken, Mark::Missed, Mark::AllTaken, Mark::ToCome,
                           Mark::ToCome,   Mark::ToCome, Mark::ToCome};
        QTest::newRow("week from Sunday, which had no breaks")
            << american << week << 1 << wednesday.addDays(-3)
            << QList<Mark>{Mark::NoBreaks, Mark::AllTaken, Mark::Missed, Mark::AllTaken,
                           Mark::ToCome,   Mark::ToCome,   Mark::ToCome};
        QList<SeededDay> sixWeeks;
        for (int ago = 0; ago < 45; ++ago)
            sixWeeks.append({ago, ago % 7 == 3 || ago % 7 == 4 ? 0 : 5, 0}); // weekends off
        sixWeeks.append({45, 2, 1});
        QTest::newRow("a run longer than the chart, weekends off")
            << british << sixWeeks << 33 << wednesday.addDays(-2)
            << QList<Mark>{Mark::AllTaken, Mark::AllTaken, Mark::AllTaken, Mark::ToCome,
                           Mark::ToCome,   Mark::ToCome,   Mark::ToCome};
        QTest::newRow("a skip today ends the run")
            << british << QList<SeededDay>{{1, 5, 0}, {0, 1, 1}} << 0 << wednesday.addDays(-2)
            << QList<Mark>{Mark::NoBreaks, Mark::AllTaken, Mark::Missed, Mark::ToCome,
                           Mark::ToCome,   Mark::ToCome,   Mark::ToCome};
    }
    void streakAndTheWeekFollowTheDaysAndTheLocale()
    {
        QFETCH(QLocale, locale);
        QFETCH(QList<SeededDay>, seeded);
        QFETCH(int, streak);
        QFETCH(QDate, weekStart);
        QFETCH(QList<Mark>, marks);
        QLocale::setDefault(locale);
        Fixture f;
        for (const auto& [ago, taken, skipped] : seeded)
            seedBreaks(f.store, wednesday.addDays(-ago), taken, skipped);
        f.load();

        QCOMPARE(f.model.streak(), streak);
        const QVariantList week = f.model.week();
        QCOMPARE(week.size(), 7);
        QList<Mark> shown;
        for (int i = 0; i < week.size(); ++i) {
            const QVariantMap day = week.at(i).toMap();
            QCOMPARE(day.value(u"date"_s).toDate(), weekStart.addDays(i));
            shown.append(Mark(day.value(u"mark"_s).toInt()));
        }
        QCOMPARE(shown, marks);
    }

    void retentionIsKeptAndClearingEmptiesTheHistory()
    {
        Fixture f;
        seedBreaks(f.store, wednesday, 2, 0);
        seedBreaks(f.store, wednesday.addDays(-100), 3, 0);
        f.detector.active = true;
        f.detector.kind = u"meeting"_s;
        f.work(1);
        f.clock = f.clock.addSecs(600);
        f.load();
        QCOMPARE(f.model.retentionSelection(), HistoryPaneModel::retentionChoices.indexOf(365));

        f.model.chooseRetention(HistoryPaneModel::retentionChoices.indexOf(90));
        QCOMPARE(f.recorder.retentionDays(), 90);
        QCOMPARE(f.defaults.read(HistoryKeys::retentionDays.toString()).toInt(), 90);
        QCOMPARE(f.model.retentionSelection(), 1);
        QCOMPARE(f.store.allEvents().size(), 2);
        QTRY_VERIFY(!f.model.loading());

        f.model.clearHistory();
        QVERIFY(f.model.loading());
        QTRY_VERIFY(!f.model.loading());
        QVERIFY(f.store.allEvents().isEmpty());
        QVERIFY(!f.model.hasHistory());
        QCOMPARE(f.model.today().value(u"taken"_s).toInt(), 0);
        // The meeting goes on, but its time so far went with the rest.
        QCOMPARE(f.model.today().value(u"smartPauseText"_s).toString(), u"0 min"_s);

        // Without a recorder there is nothing to show, keep or clear.
        HistoryPaneModel none(nullptr);
        none.refresh();
        none.chooseRetention(0);
        none.clearHistory();
        QVERIFY(!none.available());
        QVERIFY(!none.loading());
        QVERIFY(!none.hasHistory());
        QCOMPARE(none.chartEntries().size(), 7);
    }
};

QTEST_GUILESS_MAIN(HistoryPaneModelTest)
#include "tst_historypanemodel.moc"
