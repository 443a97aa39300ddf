#include "FakeNotificationPresenter.h"
#include "FakeSoundPlayer.h"
#include "InMemoryUserDefaults.h"
#include "notification/InAppNotificationManager.h"
#include "settings/SettingsManager.h"

#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A manager with a fake presenter, a hand-fired timer and a hand-run queue; every callback writes to the same
// journal as the presenter, so the order of dismissal and call-back can be read off.
struct Rig {
    Rig()
    {
        auto fakePresenter = std::make_unique<FakeNotificationPresenter>();
        presenter = fakePresenter.get();
        journal = presenter->journal;
        auto fakeTimer = std::make_unique<FakeOneShotTimer>();
        timer = fakeTimer.get();
        manager = std::make_unique<InAppNotificationManager>(
            std::move(fakePresenter), &player, &settings, std::move(fakeTimer),
            [this](QObject* context, std::function<void()> action) { queue.post(context, std::move(action)); });
        auto note = [this](const QString& what) {
            journal->append(what + (manager->isShowing() ? u" showing=true"_s : u" showing=false"_s));
        };
        manager->onBreakNow = [note] { note(u"breakNow"_s); };
        manager->onPause = [note](double seconds) { note(u"pause %1"_s.arg(seconds)); };
        manager->onSkip = [note] { note(u"skip"_s); };
    }

    // Shows a card and lets the queued presentation run.
    void showShown(BreakType type = BreakType::Short, double remaining = 60, double duration = 10)
    {
        manager->showPreBreakNotification(type, remaining, duration);
        queue.runAll();
    }

    [[nodiscard]] const FakeNotificationPresenter::Card& card() const { return presenter->cards.constLast(); }

    void expectHidden() const
    {
        QVERIFY(!manager->isShowing());
        QCOMPARE(manager->currentBreakType(), std::nullopt);
        QCOMPARE(manager->currentTimeRemaining(), 0.0);
        QCOMPARE(manager->activePreBreakDisplayModel(), nullptr);
        QVERIFY(!manager->isAutoDismissTimerActive());
    }

    InMemoryUserDefaults store;
    SettingsManager settings{store, nullptr};
    FakeSoundPlayer player;
    ManualQueue queue;
    FakeNotificationPresenter* presenter = nullptr;
    FakeOneShotTimer* timer = nullptr;
    std::shared_ptr<QStringList> journal;
    std::unique_ptr<InAppNotificationManager> manager;
};

} // namespace

class TestInAppNotificationManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showingPublishesStateBeforeTheCardAppears();
    void theTimerTakesTheCardDownWithoutCallingBack();
    void updatesFollowTheCardOnlyWhileItShows();
    void choicesDismissAndCallBackInTheirOrder_data();
    void choicesDismissAndCallBackInTheirOrder();
    void aSecondShowReplacesTheFirst();
    void theSettingsDecideWhetherAnAnnouncementShows();
    void nothingQueuedOutlivesTheManager();
    void theRealTimerFiresOnceAndCanBeReplaced();
};

void TestInAppNotificationManager::showingPublishesStateBeforeTheCardAppears()
{
    Rig rig;
    QStringList order;
    connect(rig.manager.get(), &InAppNotificationManager::objectWillChange, this, [&] { order.append(u"will"_s); });
    connect(rig.manager.get(), &InAppNotificationManager::currentBreakTypeChanged, this,
            [&] { order.append(u"type"_s); });
    connect(rig.manager.get(), &InAppNotificationManager::currentTimeRemainingChanged, this,
            [&] { order.append(u"time"_s); });
    connect(rig.manager.get(), &InAppNotificationManager::isShowingChanged, this, [&] { order.append(u"showing"_s); });

    // The chime plays at full volume whatever the break sounds are set to.
    NotificationSettings quiet = rig.settings.notificationSettings();
    quiet.playSoundOnBreakStart = quiet.playSoundOnBreakEnd = false;
    quiet.soundVolume = 0.1F;
    rig.settings.setNotificationSettings(quiet);

    rig.manager->showPreBreakNotification(BreakType::Long, 58, 8);

    QCOMPARE(order, QStringList({u"will"_s, u"type"_s, u"will"_s, u"time"_s, u"will"_s, u"showing"_s}));
    QCOMPARE(rig.manager->currentTimeRemaining(), 58.0);
    QCOMPARE(rig.timer->interval, 8.0);
    // The card is queued, not drawn yet.
    QVERIFY(rig.presenter->cards.isEmpty());
    QCOMPARE(rig.queue.runAll(), 1);
    QCOMPARE(rig.card().model.get(), rig.manager->activePreBreakDisplayModel());
    QCOMPARE(rig.card().model->breakType(), BreakType::Long);
    QCOMPARE(rig.player.names(), QStringList({u"Pop"_s}));
    QCOMPARE(rig.player.played.first().volume, 1.0F);
}

void TestInAppNotificationManager::theTimerTakesTheCardDownWithoutCallingBack()
{
    Rig rig;
    rig.showShown(BreakType::Short, 60, 8);
    QVERIFY(rig.timer->fire());
    // The dismissal itself is queued behind the timer.
    QVERIFY(rig.manager->isShowing());
    rig.queue.runAll();

    rig.expectHidden();
    QCOMPARE(*rig.journal, QStringList({u"show"_s, u"hide"_s}));
}

void TestInAppNotificationManager::updatesFollowTheCardOnlyWhileItShows()
{
    Rig rig;
    QSignalSpy changes(rig.manager.get(), &InAppNotificationManager::objectWillChange);
    rig.manager->updateTimeRemaining(42);
    rig.manager->dismiss();
    QCOMPARE(rig.manager->currentTimeRemaining(), 0.0);
    QCOMPARE(changes.size(), 0);
    QCOMPARE(rig.presenter->hides, 0);

    rig.showShown(BreakType::Short, 60);
    PreBreakNotificationDisplayModel* model = rig.card().model.get();
    rig.manager->updateTimeRemaining(59);
    QCOMPARE(rig.manager->currentTimeRemaining(), 59.0);
    QCOMPARE(model->timeRemaining(), 59.0);

    rig.manager->dismiss();
    rig.manager->dismiss(); // a second dismissal has nothing to take down
    QCOMPARE(rig.presenter->hides, 1);
    const std::shared_ptr<PreBreakNotificationDisplayModel> kept = rig.card().model;
    rig.manager->updateTimeRemaining(58);
    QCOMPARE(rig.manager->currentTimeRemaining(), 0.0);
    // The card leaving keeps its last value rather than following a manager that has moved on.
    QCOMPARE(kept->timeRemaining(), 59.0);
}

void TestInAppNotificationManager::choicesDismissAndCallBackInTheirOrder_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QStringList>("journal");
    QTest::newRow("break now") << u"breakNow"_s << QStringList({u"show"_s, u"hide"_s, u"breakNow showing=false"_s});
    QTest::newRow("one minute") << u"pause60"_s << QStringList({u"show"_s, u"hide"_s, u"pause 60 showing=false"_s});
    QTest::newRow("skip") << u"skip"_s << QStringList({u"show"_s, u"skip showing=true"_s, u"hide"_s});
    QTest::newRow("close") << u"dismiss"_s << QStringList({u"show"_s, u"hide"_s});
}

void TestInAppNotificationManager::choicesDismissAndCallBackInTheirOrder()
{
    QFETCH(QString, choice);
    QFETCH(QStringList, journal);
    auto press = [&choice](const FakeNotificationPresenter::Card& card) {
        if (choice == u"breakNow"_s)
            card.onBreakNow();
        else if (choice == u"pause60"_s)
            card.onPause(60);
        else if (choice == u"skip"_s)
            card.onSkip();
        else
            card.onDismiss();
    };
    Rig rig;
    rig.showShown();
    press(rig.card());
    QCOMPARE(*rig.journal, journal);
    rig.expectHidden();
    // The choice is final: the timer's later firing has nothing left to take down.
    QVERIFY(!rig.timer->fire());
    rig.queue.runAll();
    QCOMPARE(rig.presenter->hides, 1);

    // Without anyone listening, a choice still takes the card down.
    Rig unwired;
    unwired.manager->onBreakNow = nullptr;
    unwired.manager->onPause = nullptr;
    unwired.manager->onSkip = nullptr;
    unwired.showShown();
    press(unwired.card());
    unwired.expectHidden();
}

void TestInAppNotificationManager::aSecondShowReplacesTheFirst()
{
    Rig rig;
    rig.showShown(BreakType::Short, 60, 10);
    PreBreakNotificationDisplayModel* first = rig.manager->activePreBreakDisplayModel();
    rig.manager->showPreBreakNotification(BreakType::Long, 30, 6);
    rig.queue.runAll();

    QVERIFY(rig.manager->activePreBreakDisplayModel() != first);
    QCOMPARE(rig.card().model->breakType(), BreakType::Long);
    // The display time counts from the second call.
    QCOMPARE(rig.timer->starts, 2);
    QCOMPARE(rig.timer->interval, 6.0);
    // Replacing is the presenter's job; the manager does not hide in between.
    QCOMPARE(rig.presenter->hides, 0);
    QVERIFY(rig.manager->isShowing());
}

void TestInAppNotificationManager::theSettingsDecideWhetherAnAnnouncementShows()
{
    Rig rig;
    NotificationSettings notifications = rig.settings.notificationSettings();
    notifications.showPreBreakNotification = false;
    rig.settings.setNotificationSettings(notifications);
    rig.manager->handlePreBreakNotification(BreakType::Short, 60);
    rig.queue.runAll();
    QVERIFY(rig.player.played.isEmpty());
    QVERIFY(rig.presenter->cards.isEmpty());

    notifications.showPreBreakNotification = true;
    notifications.notificationDuration = 12;
    rig.settings.setNotificationSettings(notifications);
    rig.manager->handlePreBreakNotification(BreakType::Long, 60);
    rig.queue.runAll();
    QCOMPARE(rig.timer->interval, 12.0);
}

void TestInAppNotificationManager::nothingQueuedOutlivesTheManager()
{
    Rig rig;
    rig.manager->showPreBreakNotification(BreakType::Short, 60, 10);
    rig.manager.reset();
    // The presenter went with the manager; the queued show must not reach it.
    QCOMPARE(rig.queue.runAll(), 0);
}

void TestInAppNotificationManager::theRealTimerFiresOnceAndCanBeReplaced()
{
    QtOneShotTimer timer;
    QStringList fired;
    timer.start(0.001, [&] { fired.append(u"first"_s); });
    timer.start(0.001, [&] { fired.append(u"second"_s); });
    QTRY_COMPARE(fired, QStringList({u"second"_s}));
    QVERIFY(!timer.isActive());
    timer.start(0.001, [&] { fired.append(u"stopped"_s); });
    timer.stop();
    QVERIFY(!timer.isActive());
    // A later start fires after the stopped one would have; only the later one shows up.
    timer.start(0.002, [&] { fired.append(u"third"_s); });
    QTRY_COMPARE(fired, QStringList({u"second"_s, u"third"_s}));
}

QTEST_GUILESS_MAIN(TestInAppNotificationManager)
#include "tst_inappnotificationmanager.moc"
