#include "FakeActivityDetector.h"
#include "FakeNotificationPresenter.h"
#include "InMemoryHistoryStore.h"
#include "InMemoryUserDefaults.h"
#include "history/HistoryRecorder.h"
#include "history/HistorySummary.h"
#include "notification/InAppNotificationManager.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QTimeZone berlin("Europe/Berlin");

QDateTime local(QDate date, QTime time)
{
    return QDateTime(date, time, berlin);
}

// The real scheduler and card on fakes, with a recorder listening: a clock the test moves, timers it ticks.
struct Rig {
    explicit Rig(QDateTime start)
        : clock(std::move(start))
    {
        BreakConfiguration configuration = settings.breakConfiguration();
        configuration.workInterval = 600;
        configuration.shortBreakDuration = 20;
        configuration.longBreakEnabled = false;
        settings.setBreakConfiguration(configuration);
        manager = std::make_unique<BreakManager>(defaults, berlin, [this] { return clock; });
        manager->setSettingsManager(&settings);
        manager->setEnvironment(QProcessEnvironment());
        manager->setDelayedAction(
            [this](double, QObject*, std::function<void()> action) { delayed.append(std::move(action)); });
        card = std::make_unique<InAppNotificationManager>(std::make_unique<FakeNotificationPresenter>(), nullptr,
                                                          &settings);
        card->onPause = [this](double seconds) { manager->pauseFor(seconds); };
        recorder = std::make_unique<HistoryRecorder>(store, &defaults, berlin, [this] { return clock; });
        recorder->watchScheduler(manager.get());
        recorder->watchCard(card.get());
        recorder->watchDetector(&detector);
        manager->setActivityDetector(&detector);
        manager->start();
    }

    void advance(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            clock = clock.addSecs(1);
            const bool onBreak = manager->isBreakTimerActive();
            if (manager->isWorkTimerActive())
                manager->workTick();
            if (onBreak && manager->isBreakTimerActive())
                manager->breakTick();
        }
    }
    void advanceUntilBreak()
    {
        while (manager->state() != BreakState::OnBreak)
            advance(1);
    }
    void runDelayed()
    {
        for (const auto& action : std::exchange(delayed, {}))
            action();
    }

    InMemoryHistoryStore store;
    InMemoryUserDefaults defaults;
    InMemoryUserDefaults settingsStore;
    SettingsManager settings{settingsStore, nullptr};
    FakeActivityDetector detector;
    QDateTime clock;
    QList<std::function<void()>> delayed;
    std::unique_ptr<BreakManager> manager;
    std::unique_ptr<InAppNotificationManager> card;
    std::unique_ptr<HistoryRecorder> recorder;
};

struct Row {
    HistoryEventKind kind;
    QString detail;
    double seconds;
};

QList<Row> rows(const QList<HistoryEvent>& events)
{
    QList<Row> result;
    for (const HistoryEvent& event : events)
        result.append({event.kind, event.detail, event.seconds});
    return result;
}

bool operator==(const Row& a, const Row& b)
{
    return a.kind == b.kind && a.detail == b.detail && a.seconds == b.seconds;
}

char* toString(const Row& row)
{
    return QTest::toString(u"%1 %2 %3"_s.arg(rawName(row.kind), row.detail).arg(row.seconds));
}

} // namespace

namespace velto {
char* toString(const DaySummary& day)
{
    return QTest::toString(u"%1 taken %2 early %3 skipped %4 postponed %5 work %6 longest %7 held %8 paused %9"_s
                               .arg(day.date.toString(Qt::ISODate))
                               .arg(day.taken)
                               .arg(day.endedEarly)
                               .arg(day.skipped)
                               .arg(day.postponed)
                               .arg(day.workSeconds)
                               .arg(day.longestStretchSeconds)
                               .arg(day.smartPauseSeconds)
                               .arg(day.pausedSeconds));
}
} // namespace velto

class HistoryRecorderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A working day through the real scheduler and card, ending in a Smart Pause hold across midnight.
    void aDayOfBreaks()
    {
        const QDate monday(2026, 11, 23);
        Rig rig(local(monday, QTime(9, 0)));
        rig.advanceUntilBreak(); // 600 s of work, then a scheduled break that runs out
        rig.advance(20);
        rig.advance(100);
        rig.manager->takeBreakNow(BreakOrigin::Menu);
        rig.advance(12);
        rig.manager->endBreak(true);
        rig.advance(550);
        rig.card->showPreBreakNotification(BreakType::Short, 50, 10);
        rig.card->pauseFromNotification(60); // postponed, and a timed pause of a minute
        rig.advance(60);
        rig.runDelayed();
        rig.manager->skipUpcomingBreak(); // 50 s before its break
        rig.advanceUntilBreak();
        rig.advance(5);
        rig.manager->skipBreak();
        rig.advance(100);

        rig.clock = local(monday, QTime(23, 50));
        rig.detector.active = true;
        rig.detector.kind = u"meeting"_s;
        rig.advance(1); // the hold begins at 23:50:01
        rig.advance(300);
        rig.detector.kind = u"idle"_s; // the meeting is over, the user stays away
        rig.detector.announceChange();
        QCoreApplication::processEvents();
        rig.advance(899);
        rig.detector.active = false;
        rig.advance(1); // 00:10:01: the hold ends, and a second of Tuesday's work is counted
        rig.recorder.reset();

        const QList<Row> expected{
            {HistoryEventKind::BreakStarted, u"scheduled"_s, 20},
            {HistoryEventKind::BreakEnded, u"completed"_s, 20},
            {HistoryEventKind::BreakStarted, u"menu"_s, 20},
            {HistoryEventKind::BreakEnded, u"endedEarly"_s, 12},
            {HistoryEventKind::UpcomingBreakPostponed, QString(), 60},
            {HistoryEventKind::Paused, u"timed"_s, 60},
            {HistoryEventKind::UpcomingBreakSkipped, QString(), 50},
            {HistoryEventKind::BreakStarted, u"scheduled"_s, 20},
            {HistoryEventKind::BreakEnded, u"skipped"_s, 5},
            {HistoryEventKind::SmartPauseHold, u"meeting"_s, 300},
            {HistoryEventKind::SmartPauseHold, u"idle"_s, 900},
        };
        const QList<HistoryEvent> events = rig.store.allEvents();
        QCOMPARE(rows(events), expected);
        for (const HistoryEvent& event : events) {
            QCOMPARE(event.utcOffsetSeconds, 3600);
            QCOMPARE(event.localDate(), monday);
        }
        QCOMPARE(events.first().at, local(monday, QTime(9, 10)).toUTC());
        QCOMPARE(events.first().breakType, BreakType::Short);

        const QList<DaySummary> days =
            HistorySummary::summarize(events, rig.store.days(monday, monday.addDays(1)), monday, monday.addDays(1));
        const DaySummary expectedMonday{.date = monday,
                                        .taken = 2,
                                        .endedEarly = 1,
                                        .skipped = 2,
                                        .postponed = 1,
                                        .workSeconds = 1950,
                                        .longestStretchSeconds = 1250, // skips do not end a stretch
                                        .smartPauseSeconds = 599,
                                        .pausedSeconds = 60};
        QCOMPARE(days.at(0), expectedMonday);
        QCOMPARE(
            days.at(1),
            (DaySummary{
                .date = monday.addDays(1), .workSeconds = 1, .longestStretchSeconds = 1, .smartPauseSeconds = 601}));
        // Work time reaches the store with events and at the day's change, not every second.
        QVERIFY(rig.store.writes < 20);
    }

    // A day is the local one: an event just after midnight in summer time belongs to that day, though it is
    // the evening before in UTC, and events on both sides of the clock change land on the same day.
    void daysFollowLocalTimeAcrossDst()
    {
        const QDate changeDay(2026, 10, 25);
        Rig rig(QDateTime(changeDay.addDays(-1), QTime(22, 30), QTimeZone::utc())); // 00:30 CEST
        rig.manager->takeBreakNow(BreakOrigin::CommandLine);
        rig.clock = QDateTime(changeDay, QTime(9, 0), QTimeZone::utc()); // 10:00 CET
        rig.manager->takeBreakNow(BreakOrigin::Card);
        const QList<HistoryEvent> events = rig.store.allEvents();
        QCOMPARE(events.size(), 2);
        QCOMPARE(events.at(0).utcOffsetSeconds, 7200);
        QCOMPARE(events.at(1).utcOffsetSeconds, 3600);
        QCOMPARE(events.at(0).localDate(), changeDay);
        QCOMPARE(events.at(1).localDate(), changeDay);
        QCOMPARE(events.at(1).detail, u"card"_s);
    }

    void retentionComesFromTheSettingsAndPrunes_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<int>("days");
        QTest::newRow("unset") << QVariant() << 365;
        QTest::newRow("a month") << QVariant(30) << 30;
        QTest::newRow("forever") << QVariant(0) << 0;
        QTest::newRow("negative") << QVariant(-3) << 365;
        QTest::newRow("fraction") << QVariant(1.5) << 365;
        QTest::newRow("text") << QVariant(u"30"_s) << 365;
    }
    void retentionComesFromTheSettingsAndPrunes()
    {
        QFETCH(QVariant, stored);
        QFETCH(int, days);
        const QDateTime now = local(QDate(2026, 11, 23), QTime(12, 0));
        InMemoryHistoryStore store;
        InMemoryUserDefaults defaults;
        if (stored.isValid())
            defaults.write(HistoryKeys::retentionDays.toString(), stored);
        for (int age : {20, 60, 400})
            store.append({.kind = HistoryEventKind::UpcomingBreakSkipped, .at = now.addDays(-age).toUTC()});
        HistoryRecorder recorder(store, &defaults, berlin, [&] { return now; });
        QCOMPARE(recorder.retentionDays(), days);
        const qsizetype kept = days == 0 ? 3 : (days >= 400 ? 3 : days >= 60 ? 2 : 1);
        QCOMPARE(store.allEvents().size(), kept);

        recorder.setRetentionDays(30);
        QCOMPARE(defaults.read(HistoryKeys::retentionDays.toString()).toInt(), 30);
        QCOMPARE(store.allEvents().size(), 1);
    }

    void summariesAndStreak_data()
    {
        QTest::addColumn<QList<QList<int>>>("takenSkipped"); // per day, oldest first, ending today
        QTest::addColumn<int>("streak");
        using Days = QList<QList<int>>;
        QTest::newRow("every day clean") << Days{{5, 0}, {6, 0}, {4, 0}} << 3;
        QTest::newRow("a skip breaks the run") << Days{{5, 0}, {6, 1}, {4, 0}, {3, 0}} << 2;
        QTest::newRow("days off neither count nor break") << Days{{5, 0}, {0, 0}, {0, 0}, {4, 0}} << 2;
        QTest::newRow("today not started yet") << Days{{5, 0}, {4, 0}, {0, 0}} << 2;
        QTest::newRow("a skip today ends it") << Days{{5, 0}, {4, 0}, {2, 1}} << 0;
        QTest::newRow("only skips") << Days{{0, 2}} << 0;
    }
    void summariesAndStreak()
    {
        QFETCH(QList<QList<int>>, takenSkipped);
        QFETCH(int, streak);
        const QDate today(2026, 11, 27);
        const QDate first = today.addDays(-(takenSkipped.size() - 1));
        QList<HistoryEvent> events;
        for (qsizetype i = 0; i < takenSkipped.size(); ++i) {
            const QDateTime noon(first.addDays(i), QTime(12, 0), QTimeZone::utc());
            for (int n = 0; n < takenSkipped[i][0]; ++n)
                events.append({.kind = HistoryEventKind::BreakEnded, .at = noon, .detail = u"completed"_s});
            for (int n = 0; n < takenSkipped[i][1]; ++n)
                events.append({.kind = HistoryEventKind::UpcomingBreakSkipped, .at = noon});
        }
        // Outside the range, or not a break's end: never counted.
        events.append({.kind = HistoryEventKind::BreakEnded,
                       .at = QDateTime(first.addDays(-1), QTime(12, 0), QTimeZone::utc()),
                       .detail = u"skipped"_s});
        events.append({.kind = HistoryEventKind::BreakEnded,
                       .at = QDateTime(today, QTime(1, 0), QTimeZone::utc()),
                       .detail = u"stopped"_s});
        const QList<DaySummary> days = HistorySummary::summarize(events, {}, first, today);
        QCOMPARE(days.size(), takenSkipped.size());
        for (qsizetype i = 0; i < days.size(); ++i) {
            QCOMPARE(days[i].taken, takenSkipped[i][0]);
            QCOMPARE(days[i].skipped, takenSkipped[i][1]);
        }
        QCOMPARE(HistorySummary::streak(days, today), streak);
    }
};

QTEST_GUILESS_MAIN(HistoryRecorderTest)
#include "tst_historyrecorder.moc"
