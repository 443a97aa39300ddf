#include "FakeScreenLock.h"
#include "FakeSoundPlayer.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakEffects.h"
#include "settings/SettingsManager.h"

#include <QTest>

#include <limits>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// Settings in memory, with the chimes and the lock as fakes.
struct Rig {
    void sounds(bool onStart, bool onEnd, float volume)
    {
        NotificationSettings notifications = settings.notificationSettings();
        notifications.playSoundOnBreakStart = onStart;
        notifications.playSoundOnBreakEnd = onEnd;
        notifications.soundVolume = volume;
        // Whatever sounds are stored, the break chimes stay the same.
        notifications.breakStartSound = u"Pop"_s;
        notifications.breakEndSound = u"Glass"_s;
        settings.setNotificationSettings(notifications);
    }

    void lockOnBreak(bool on)
    {
        BreakConfiguration configuration = settings.breakConfiguration();
        configuration.lockScreenOnBreak = on;
        settings.setBreakConfiguration(configuration);
    }

    InMemoryUserDefaults store;
    SettingsManager settings{store, nullptr};
    FakeSoundPlayer player;
    FakeScreenLock lock;
};

} // namespace

class TestBreakEffects : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void chimesFollowTheirOwnSwitches_data();
    void chimesFollowTheirOwnSwitches();
    void theLockNeedsTheSettingAndAnAvailableMethod_data();
    void theLockNeedsTheSettingAndAnAvailableMethod();
    void thePreBreakChimeIgnoresTheSettings();
    void missingEffectsAreSkipped();
    void volumesAreClampedIntoRange();
};

void TestBreakEffects::chimesFollowTheirOwnSwitches_data()
{
    QTest::addColumn<bool>("onStart");
    QTest::addColumn<bool>("onEnd");
    QTest::addColumn<float>("volume");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("end only") << false << true << 0.7F << QStringList{u"Blow"_s};
    QTest::newRow("start only") << true << false << 0.3F << QStringList{u"Glass"_s};
    // A volume of zero is the user's choice, passed on as it is rather than taken for "off".
    QTest::newRow("silent volume") << true << true << 0.0F << QStringList{u"Glass"_s, u"Blow"_s};
}

void TestBreakEffects::chimesFollowTheirOwnSwitches()
{
    QFETCH(bool, onStart);
    QFETCH(bool, onEnd);
    QFETCH(float, volume);
    QFETCH(QStringList, expected);

    Rig rig;
    rig.sounds(onStart, onEnd, volume);
    playBreakStartEffects(rig.settings, &rig.player, &rig.lock);
    playBreakEndEffects(rig.settings, &rig.player);

    QCOMPARE(rig.player.names(), expected);
    for (const FakeSoundPlayer::Played& played : std::as_const(rig.player.played))
        QCOMPARE(played.volume, volume);
}

void TestBreakEffects::theLockNeedsTheSettingAndAnAvailableMethod_data()
{
    QTest::addColumn<bool>("setting");
    QTest::addColumn<bool>("available");
    QTest::addColumn<bool>("soundOn");
    QTest::addColumn<int>("expectedLocks");

    QTest::newRow("on and available") << true << true << true << 1;
    QTest::newRow("on but unavailable") << true << false << true << 0;
    QTest::newRow("off but available") << false << true << true << 0;
}

void TestBreakEffects::theLockNeedsTheSettingAndAnAvailableMethod()
{
    QFETCH(bool, setting);
    QFETCH(bool, available);
    QFETCH(bool, soundOn);
    QFETCH(int, expectedLocks);

    Rig rig;
    rig.sounds(soundOn, true, 0.5F);
    rig.lockOnBreak(setting);
    rig.lock.available = available;
    // The chime starts before the screen goes dark.
    qsizetype chimesBeforeLock = -1;
    rig.lock.onLock = [&] { chimesBeforeLock = rig.player.played.size(); };

    playBreakStartEffects(rig.settings, &rig.player, &rig.lock);
    QCOMPARE(rig.lock.lockRequests, expectedLocks);
    if (expectedLocks > 0)
        QCOMPARE(chimesBeforeLock, soundOn ? 1 : 0);
    // The chime is independent of the lock, and the end of a break never locks.
    QCOMPARE(rig.player.names(), soundOn ? QStringList{u"Glass"_s} : QStringList{});
    playBreakEndEffects(rig.settings, &rig.player);
    QCOMPARE(rig.lock.lockRequests, expectedLocks);
}

void TestBreakEffects::thePreBreakChimeIgnoresTheSettings()
{
    Rig rig;
    rig.sounds(false, false, 0.0F);
    playPreBreakChime(&rig.player);
    QCOMPARE(rig.player.names(), QStringList{u"Pop"_s});
    QCOMPARE(rig.player.played.first().volume, 1.0F);
}

void TestBreakEffects::missingEffectsAreSkipped()
{
    Rig rig;
    rig.lockOnBreak(true);
    // No player: the lock still happens.
    playBreakStartEffects(rig.settings, nullptr, &rig.lock);
    QCOMPARE(rig.lock.lockRequests, 1);
    // No lock: the chime still plays.
    playBreakStartEffects(rig.settings, &rig.player, nullptr);
    QCOMPARE(rig.player.names(), QStringList{u"Glass"_s});
    playBreakEndEffects(rig.settings, nullptr);
    playPreBreakChime(nullptr);
    QCOMPARE(rig.player.played.size(), 1);
}

void TestBreakEffects::volumesAreClampedIntoRange()
{
    const QList<std::pair<float, float>> cases{
        {0.0F, 0.0F}, {1.0F, 1.0F}, {-0.2F, 0.0F}, {1.5F, 1.0F}, {std::numeric_limits<float>::quiet_NaN(), 0.0F}};
    for (const auto& [volume, expected] : cases)
        QCOMPARE(clampedVolume(volume), expected);
}

QTEST_GUILESS_MAIN(TestBreakEffects)
#include "tst_breakeffects.moc"
