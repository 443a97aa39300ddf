#include "FakeActivityDetector.h"
#include "FakeKeyDownTime.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// 2026-11-23 is a Monday.
QDateTime at(int day, int hour, int minute, int second = 0)
{
    return QDateTime(QDate(2026, 11, day), QTime(hour, minute, second), QTimeZone::utc());
}

struct Announcement {
    BreakType type;
    double timeRemaining;
};

// A scheduler on fakes: settings in memory, a clock the test moves, delayed actions the test fires.
struct Rig {
    explicit Rig(QDateTime start = at(23, 10, 0))
        : clock(std::move(start))
    {
        manager = std::make_unique<BreakManager>(defaults, QTimeZone::utc(), [this] { return clock; });
        manager->setSettingsManager(&settings);
        manager->setEnvironment(QProcessEnvironment());
        manager->setKeyDownTimeProvider(&keys);
        manager->setDelayedAction([this](double seconds, QObject*, std::function<void()> action) {
            delayed.append({seconds, std::move(action)});
        });
        manager->onBreakStart = [this](BreakType type) { breakStarts.append(type); };
        manager->onBreakEnd = [this] { ++breakEnds; };
        manager->onTimerUpdate = [this](double remaining) { timerUpdates.append(remaining); };
        manager->onPreBreakNotification = [this](BreakType type, double remaining) {
            announcements.append({type, remaining});
        };
    }

    void configure(const std::function<void(BreakConfiguration&)>& edit)
    {
        BreakConfiguration configuration = settings.breakConfiguration();
        edit(configuration);
        settings.setBreakConfiguration(configuration);
    }

    // Lets simulated seconds pass: each running timer ticks once a second, as the event loop would run them.
    void advance(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            clock = clock.addSecs(1);
            // A timer started during this second first fires a second later.
            const bool work = manager->isWorkTimerActive();
            const bool onBreak = manager->isBreakTimerActive();
            if (work)
                manager->workTick();
            if (onBreak && manager->isBreakTimerActive())
                manager->breakTick();
        }
    }

    // Seconds until the next break starts.
    int advanceUntilBreak(int limit = 100000)
    {
        int seconds = 0;
        while (manager->state() != BreakState::OnBreak && seconds < limit) {
            advance(1);
            ++seconds;
        }
        return seconds;
    }

    InMemoryUserDefaults defaults;
    InMemoryUserDefaults settingsStore;
    SettingsManager settings{settingsStore, nullptr};
    FakeKeyDownTime keys;
    QDateTime clock;
    std::unique_ptr<BreakManager> manager;
    QList<QPair<double, std::function<void()>>> delayed;
    QList<BreakType> breakStarts;
    int breakEnds = 0;
    QList<double> timerUpdates;
    QList<Announcement> announcements;
};

} // namespace

class TestBreakManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workIntervalCountsTicksAndAnnouncesOnce();
    void longBreakCycle();
    void endingAndSkippingRules();
    void dailyCountFollowsTheDay();
    void officeHoursAndSmartPauseHoldWithoutResetting();
    void typingHoldsWithoutAReason();
    void sleepFreezesUntilEverySourceWakes();
    void manualAndTimedPauses();
    void stopAndMissingSettings();
    void textsForTheMenuAndTheBreakScreen();
};

void TestBreakManager::workIntervalCountsTicksAndAnnouncesOnce()
{
    Rig rig;
    rig.manager->start();
    QCOMPARE(rig.manager->state(), BreakState::Working);
    QCOMPARE(rig.advanceUntilBreak(), 1200);
    QCOMPARE(rig.announcements.size(), 1);
    QCOMPARE(rig.announcements.first().timeRemaining, 60.0);
    // The announcement came on the tick that reached the lead time.
    QCOMPARE(rig.timerUpdates.indexOf(60.0), 1139);
    QCOMPARE(rig.breakStarts, QList{BreakType::Short});
    QCOMPARE(rig.manager->breakTimeRemaining(), 20.0);
    QVERIFY(!rig.manager->isWorkTimerActive());

    // A lead time at or above the interval announces on the first counted tick.
    Rig shortInterval;
    shortInterval.configure([](BreakConfiguration& c) { c.workInterval = 30; });
    shortInterval.manager->start();
    shortInterval.advance(1);
    QCOMPARE(shortInterval.announcements.size(), 1);
    QCOMPARE(shortInterval.announcements.first().timeRemaining, 29.0);
}

void TestBreakManager::longBreakCycle()
{
    Rig rig;
    rig.configure([](BreakConfiguration& c) {
        c.workInterval = 10;
        c.longBreakEnabled = true;
        c.longBreakFrequency = 4;
        c.longBreakDuration = 300;
    });
    rig.manager->start();
    QList<qint64> counts;
    for (int i = 0; i < 5; ++i) {
        rig.advanceUntilBreak();
        counts.append(rig.manager->shortBreakCount());
        rig.manager->endBreak(true);
    }
    QCOMPARE(rig.breakStarts,
             (QList{BreakType::Short, BreakType::Short, BreakType::Short, BreakType::Long, BreakType::Short}));
    QCOMPARE(counts, (QList<qint64>{1, 2, 3, 0, 1}));
    QCOMPARE(rig.announcements.at(3).type, BreakType::Long); // the announcement names the coming break

    // A long break taken by hand restarts the cycle.
    rig.manager->startLongBreak();
    QCOMPARE(rig.manager->shortBreakCount(), 0);
    QCOMPARE(rig.manager->breakTimeRemaining(), 300.0);
}

void TestBreakManager::endingAndSkippingRules()
{
    Rig rig;
    rig.manager->start();
    rig.manager->takeBreakNow();
    rig.advance(9);
    QVERIFY(!rig.manager->canEndBreakEarly());
    rig.advance(1);
    QVERIFY(rig.manager->canEndBreakEarly());
    rig.configure([](BreakConfiguration& c) { c.allowEarlyEnd = false; });
    QVERIFY(!rig.manager->canEndBreakEarly());
    rig.configure([](BreakConfiguration& c) { c.allowEarlyEnd = true; });
    rig.manager->endBreak(true);
    QCOMPARE(rig.manager->dailyBreakCount(), 1);

    // A skipped break does not count.
    rig.manager->takeBreakNow();
    rig.manager->skipBreak();
    QCOMPARE(rig.manager->dailyBreakCount(), 1);
    QCOMPARE(rig.breakEnds, 2);

    // The break screen's Skip acts outside a break only once the break is near.
    rig.advance(900);
    QCOMPARE(rig.manager->timeRemaining(), 300.0);
    rig.manager->skipBreak();
    QCOMPARE(rig.manager->timeRemaining(), 300.0);
    rig.advance(255);
    rig.manager->skipBreak();
    QCOMPARE(rig.manager->timeRemaining(), 1200.0);

    // Committed without early ending: no skip has any effect, in a break or out of it.
    rig.configure([](BreakConfiguration& c) {
        c.skipDifficulty = SkipDifficulty::Hardcore;
        c.allowEarlyEnd = false;
    });
    rig.advance(1170);
    rig.manager->skipBreak();
    rig.manager->skipUpcomingBreak();
    QCOMPARE(rig.manager->timeRemaining(), 30.0);
    rig.manager->takeBreakNow();
    rig.manager->skipBreak();
    rig.manager->skipUpcomingBreak();
    QCOMPARE(rig.manager->state(), BreakState::OnBreak);
    // Committed with early ending allowed: a running break can be skipped, nothing else.
    rig.configure([](BreakConfiguration& c) { c.allowEarlyEnd = true; });
    rig.manager->skipUpcomingBreak();
    QCOMPARE(rig.manager->state(), BreakState::Working);
    rig.advance(5);
    rig.manager->skipUpcomingBreak();
    QCOMPARE(rig.manager->timeRemaining(), 1195.0);
}

void TestBreakManager::dailyCountFollowsTheDay()
{
    Rig rig(at(23, 23, 59, 50));
    rig.defaults.values.insert(u"dailyBreakCount"_s, 3);
    rig.defaults.values.insert(u"dailyBreakCountDate"_s, QVariantList{1, 2026, 11, 23});
    rig.manager = std::make_unique<BreakManager>(rig.defaults, QTimeZone::utc(), [&rig] { return rig.clock; });
    rig.manager->setSettingsManager(&rig.settings);
    QCOMPARE(rig.manager->dailyBreakCount(), 3);

    rig.manager->start();
    rig.manager->takeBreakNow();
    rig.advance(20); // ends at 00:00:10 on the 24th
    QCOMPARE(rig.manager->dailyBreakCount(), 1);
    QCOMPARE(rig.defaults.values.value(u"dailyBreakCount"_s).toLongLong(), 1);
    QCOMPARE(rig.defaults.values.value(u"dailyBreakCountDate"_s).toList(), (QVariantList{1, 2026, 11, 24}));

    struct Stored {
        const char* name;
        QVariant date;
        QVariant count;
        qint64 expected;
    };
    const QList<Stored> cases{
        {"earlier form, today", at(24, 6, 0).toString(Qt::ISODateWithMs), 5, 5},
        {"day key with a fraction", QVariantList{1, 2026, 11, 24.5}, 5, 0},
        {"negative count", QVariantList{1, 2026, 11, 24}, -4, 0},
    };
    for (const Stored& c : cases) {
        InMemoryUserDefaults store;
        store.values.insert(u"dailyBreakCountDate"_s, c.date);
        store.values.insert(u"dailyBreakCount"_s, c.count);
        const BreakManager restored(store, QTimeZone::utc(), [] { return at(24, 12, 0); });
        QVERIFY2(restored.dailyBreakCount() == c.expected, c.name);
        // Whatever was there, a day key for today is stored afterwards.
        QVERIFY2(store.values.value(u"dailyBreakCountDate"_s).toList() == (QVariantList{1, 2026, 11, 24}), c.name);
    }
}

void TestBreakManager::officeHoursAndSmartPauseHoldWithoutResetting()
{
    Rig rig(at(28, 12, 0)); // Saturday
    Schedule schedule;
    schedule.isEnabled = true;
    schedule.activeDays = {Weekday::Monday, Weekday::Tuesday, Weekday::Wednesday, Weekday::Thursday, Weekday::Friday};
    schedule.startTime = {9, 0};
    schedule.endTime = {17, 0};
    rig.settings.setSchedule(schedule);
    FakeActivityDetector detector;
    detector.active = true;
    rig.manager->setActivityDetector(&detector);
    QSignalSpy reasonChanges(rig.manager.get(), &BreakManager::pauseReasonChanged);

    rig.manager->start();
    reasonChanges.clear();
    rig.advance(120);
    QCOMPARE(rig.manager->pauseReason(), PauseReason::outsideOfficeHours());
    QCOMPARE(reasonChanges.size(), 1);
    QCOMPARE(detector.queries, 0); // office hours rank above Smart Pause

    // Monday 09:00: office hours clear, Smart Pause takes over, and the countdown waits for it.
    rig.clock = at(30, 8, 59, 59);
    rig.advance(1);
    QCOMPARE(rig.manager->pauseReason(), PauseReason::smartActivity());
    rig.advance(300);
    QCOMPARE(rig.manager->timeRemaining(), 1200.0);
    detector.active = false;
    rig.advance(1);
    QCOMPARE(rig.manager->pauseReason(), std::nullopt);
    QCOMPARE(rig.manager->timeRemaining(), 1199.0); // the tick that clears the reason counts

    // A manual pause is never overridden by the gates, and the detector is not asked.
    rig.manager->pause();
    const int queries = detector.queries;
    detector.active = true;
    rig.advance(30);
    QCOMPARE(rig.manager->pauseReason(), PauseReason::manuallyPaused());
    QCOMPARE(detector.queries, queries);
    rig.manager->resume();

    // After an announcement a hold neither withdraws it nor restarts the interval.
    detector.active = false;
    rig.advance(1150);
    QCOMPARE(rig.announcements.size(), 1);
    detector.active = true;
    rig.advance(600);
    QCOMPARE(rig.manager->timeRemaining(), 49.0);
    QVERIFY(rig.manager->preBreakNotificationSent());
}

void TestBreakManager::typingHoldsWithoutAReason()
{
    Rig rig;
    rig.manager->start();
    QSignalSpy reasonChanges(rig.manager.get(), &BreakManager::pauseReasonChanged);
    rig.keys.seconds = 0.5;
    rig.advance(10);
    QCOMPARE(rig.manager->timeRemaining(), 1200.0);
    QCOMPARE(rig.manager->pauseReason(), std::nullopt);
    QCOMPARE(reasonChanges.size(), 0);
    rig.keys.seconds = -1.0; // a clock that went backwards is no key press
    rig.advance(1);
    QCOMPARE(rig.manager->timeRemaining(), 1199.0);

    rig.keys.seconds = 0.1;
    rig.configure([](BreakConfiguration& c) { c.delayWhileTyping = false; });
    rig.advance(1);
    QCOMPARE(rig.manager->timeRemaining(), 1198.0);
    rig.configure([](BreakConfiguration& c) { c.delayWhileTyping = true; });
    QVERIFY(rig.manager->isUserTyping(true));
    // Inside the test suite typing never holds, so runs are not at the mercy of a keyboard.
    QProcessEnvironment suite;
    suite.insert(u"VELTO_TEST_SUITE"_s, u"1"_s);
    rig.manager->setEnvironment(suite);
    QVERIFY(!rig.manager->isUserTyping(true));
}

void TestBreakManager::sleepFreezesUntilEverySourceWakes()
{
    Rig rig;
    rig.manager->start();
    rig.manager->takeBreakNow();
    rig.advance(5);
    rig.manager->handleSleep(SleepSource::Display);
    QVERIFY(!rig.manager->isBreakTimerActive());
    rig.advance(5);
    rig.manager->breakTick(); // a tick that was already queued finds everything frozen
    QCOMPARE(rig.manager->breakTimeRemaining(), 15.0);
    rig.manager->skipBreak();
    QCOMPARE(rig.manager->state(), BreakState::OnBreak);
    rig.manager->handleWake(SleepSource::Display);
    QVERIFY(rig.manager->isBreakTimerActive());
    rig.advance(15);
    QCOMPARE(rig.manager->state(), BreakState::Working);

    rig.manager->handleSleep(SleepSource::System);
    rig.manager->handleSleep(SleepSource::Display);
    rig.manager->handleSleep(SleepSource::Display); // twice counts once
    rig.manager->handleWake(SleepSource::System);
    QVERIFY(!rig.manager->isWorkTimerActive());
    rig.manager->workTick();
    rig.manager->takeBreakNow();
    QCOMPARE(rig.manager->timeRemaining(), 1200.0);
    QCOMPARE(rig.manager->state(), BreakState::Working);
    rig.manager->handleWake(SleepSource::Display);
    QVERIFY(rig.manager->isWorkTimerActive());
}

void TestBreakManager::manualAndTimedPauses()
{
    Rig rig;
    rig.manager->start();
    rig.advance(600);
    rig.manager->pauseFor(900);
    QVERIFY(!rig.manager->isWorkTimerActive());
    QCOMPARE(rig.manager->pauseReason(), PauseReason::manuallyPaused(rig.clock.addSecs(900)));
    QCOMPARE(rig.delayed.first().first, 900.0);
    rig.advance(900);
    rig.delayed.takeFirst().second();
    QCOMPARE(rig.manager->timeRemaining(), 600.0);
    QCOMPARE(rig.manager->pauseReason(), std::nullopt);

    // An earlier timed pause is never cancelled: it resumes a later manual pause.
    rig.manager->pauseFor(60);
    rig.manager->resume();
    rig.manager->pause();
    rig.delayed.takeFirst().second();
    QCOMPARE(rig.manager->state(), BreakState::Working);

    // Outside work, a timed pause still records its end; its action then finds nothing to resume.
    rig.manager->takeBreakNow();
    rig.manager->pauseFor(180);
    QCOMPARE(rig.manager->pauseReason()->kind, PauseKind::ManuallyPaused);
    rig.delayed.takeFirst().second();
    QCOMPARE(rig.manager->state(), BreakState::OnBreak);

    // Skipping from a pause restarts the interval and clears the pause.
    Rig skipping;
    skipping.manager->start();
    skipping.manager->pause();
    skipping.manager->skipUpcomingBreak();
    QCOMPARE(skipping.manager->state(), BreakState::Working);
    QCOMPARE(skipping.manager->pauseReason(), std::nullopt);
}

void TestBreakManager::stopAndMissingSettings()
{
    Rig rig;
    rig.manager->start();
    rig.manager->takeBreakNow();
    rig.manager->stop();
    QCOMPARE(rig.manager->state(), BreakState::Idle);
    QCOMPARE(rig.breakEnds, 0);
    QCOMPARE(rig.manager->pauseReason(), PauseReason::appDisabled());
    rig.manager->breakTick();
    QCOMPARE(rig.manager->dailyBreakCount(), 0);
    rig.manager->start();
    QCOMPARE(rig.manager->pauseReason(), std::nullopt);

    InMemoryUserDefaults store;
    BreakManager orphan(store, QTimeZone::utc(), [] { return at(23, 10, 0); });
    orphan.start();
    QCOMPARE(orphan.state(), BreakState::Idle);
    orphan.takeBreakNow();
    QCOMPARE(orphan.state(), BreakState::Idle);

    // The settings store going away mid-run leaves the scheduler inert rather than crashing.
    auto settingsStore = std::make_unique<InMemoryUserDefaults>();
    auto settings = std::make_unique<SettingsManager>(*settingsStore, nullptr);
    orphan.setSettingsManager(settings.get());
    orphan.start();
    settings.reset();
    orphan.workTick();
    orphan.skipUpcomingBreak();
    QCOMPARE(orphan.timeRemaining(), 1200.0);
}

void TestBreakManager::textsForTheMenuAndTheBreakScreen()
{
    const QDateTime now = at(23, 10, 0);
    QCOMPARE(PauseReason::manuallyPaused(now.addMSecs(60500)).displayText(now), u"Paused \u00B7 resumes in 2 min"_s);
    QCOMPARE(PauseReason::manuallyPaused(now).displayText(now), u"Paused"_s);

    Rig rig;
    rig.configure([](BreakConfiguration& c) {
        c.longBreakEnabled = true;
        c.longBreakDuration = 605.9;
    });
    rig.manager->start();
    rig.manager->startLongBreak();
    QCOMPARE(rig.manager->formattedBreakTimeRemaining(), u"10:05"_s);
    rig.advance(546);
    QCOMPARE(rig.manager->formattedBreakTimeRemaining(), u"59"_s);

    rig.configure([](BreakConfiguration& c) { c.longBreakDuration = 1e308; });
    rig.manager->startLongBreak();
    QCOMPARE(rig.manager->formattedBreakTimeRemaining(), u"150000000000000:00"_s);
}

QTEST_GUILESS_MAIN(TestBreakManager)
#include "tst_breakmanager.moc"
