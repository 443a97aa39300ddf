#include "FakeLaunchAtLogin.h"
#include "InMemoryUserDefaults.h"
#include "settings/JsonRecord.h"
#include "settings/SettingsFileStore.h"
#include "settings/SettingsManager.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList allKeys{u"isEnabled"_s,          u"showTimerInMenuBar"_s,   u"launchAtLogin"_s,
                          u"breakConfiguration"_s, u"breakPresetSelection"_s, u"schedule"_s,
                          u"smartPauseSettings"_s, u"notificationSettings"_s, u"breakAppearance"_s};

const BreakBehaviorSnapshot defaultBehavior{SkipDifficulty::Balanced, true, true, false};

BreakConfiguration configuration(double work, double shortBreak, bool longOn, double longLength, qint64 frequency)
{
    return BreakConfiguration::withTiming({work, shortBreak, longOn, longLength, frequency});
}

// What a first start shows, and what a reset returns to.
void verifyDefaults(const SettingsManager& settings)
{
    QVERIFY(settings.isEnabled() && settings.showTimerInMenuBar() && settings.launchAtLogin());
    QCOMPARE(settings.breakConfiguration(), BreakConfiguration());
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::Balanced);
    QCOMPARE(settings.breakBehaviorBaseline(), defaultBehavior);
    QCOMPARE(settings.schedule(), Schedule());
    QCOMPARE(settings.smartPauseSettings(), SmartPauseSettings());
    QCOMPARE(settings.notificationSettings(), NotificationSettings());
    QCOMPARE(settings.breakAppearance(), BreakAppearance());
}

} // namespace

class TestSettingsManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstStartWritesNothingUntilTheFirstChange();
    void everyAssignmentNotifiesAfterStoring();
    void loadDecidesThePresetSelection();
    void loadReadsBooleansAndRecordsIndependently();
    void behaviourAndTimingEditsTurnThePresetCustom();
    void applyingPresets();
    void resetRestoresEverythingAndSavesEachStep();
    void aSaveThatCannotBeKeptIsToldAndTriedAgain();
};

void TestSettingsManager::firstStartWritesNothingUntilTheFirstChange()
{
    InMemoryUserDefaults store;
    FakeLaunchAtLogin login;
    SettingsManager settings(store, &login);

    QVERIFY(!settings.isLoading());
    verifyDefaults(settings);
    QCOMPARE(login.calls, QList{true});
    QVERIFY(store.writtenKeys.isEmpty());

    settings.setShowTimerInMenuBar(false);
    QCOMPARE(store.writtenKeys, allKeys);
    QCOMPARE(store.values.value(u"showTimerInMenuBar"_s), QVariant(false));
    QCOMPARE(store.values.value(u"isEnabled"_s).typeId(), QMetaType::Bool);
    QCOMPARE(store.values.value(u"breakPresetSelection"_s), QVariant(u"balanced"_s));
    QCOMPARE(decodeRecord<BreakAppearance>(store.values.value(u"breakAppearance"_s).toByteArray()), BreakAppearance());
    QCOMPARE(login.calls, QList{true}); // only the launch-at-login setting reaches the login item

    // Without a login-item facility the store still works.
    SettingsManager withoutLoginItem(store, nullptr);
    withoutLoginItem.setLaunchAtLogin(false);
    QCOMPARE(store.values.value(u"launchAtLogin"_s), QVariant(false));

    // Turned off in the desktop's startup settings: the switch follows, and the entry is left alone.
    InMemoryUserDefaults fresh;
    FakeLaunchAtLogin disabled;
    disabled.turnedOffElsewhere = true;
    SettingsManager respecting(fresh, &disabled);
    QVERIFY(!respecting.launchAtLogin());
    QCOMPARE(fresh.values.value(u"launchAtLogin"_s), QVariant(false));
    QVERIFY(disabled.calls.isEmpty());
    respecting.setLaunchAtLogin(true); // turned on again in Velto: written anew
    QCOMPARE(disabled.calls, QList{true});
}

void TestSettingsManager::everyAssignmentNotifiesAfterStoring()
{
    InMemoryUserDefaults store;
    FakeLaunchAtLogin login;
    SettingsManager settings(store, &login);
    QSignalSpy willChange(&settings, &SettingsManager::objectWillChange);
    QSignalSpy enabledChanged(&settings, &SettingsManager::isEnabledChanged);
    QSignalSpy scheduleChanged(&settings, &SettingsManager::scheduleChanged);

    QList<bool> seenInSlot;
    connect(&settings, &SettingsManager::isEnabledChanged, this,
            [&](bool) { seenInSlot.append(settings.isEnabled()); });
    bool valueBeforeWillChange = true;
    connect(&settings, &SettingsManager::objectWillChange, this, [&] { valueBeforeWillChange = settings.isEnabled(); });

    settings.setIsEnabled(true); // unchanged, still announced
    settings.setIsEnabled(false);
    QCOMPARE(willChange.size(), 2);
    QCOMPARE(enabledChanged.size(), 2);
    QCOMPARE(seenInSlot, (QList{true, false}));
    QVERIFY(valueBeforeWillChange); // objectWillChange came before the value moved

    Schedule schedule = settings.schedule();
    schedule.isEnabled = true;
    settings.setSchedule(schedule);
    QCOMPARE(scheduleChanged.at(0).at(0).value<Schedule>(), schedule);
    QCOMPARE(store.writtenKeys.size(), 3 * allKeys.size());

    settings.setLaunchAtLogin(false);
    settings.setLaunchAtLogin(false);
    QCOMPARE(login.calls, (QList{true, false, false}));
}

void TestSettingsManager::loadDecidesThePresetSelection()
{
    struct Case {
        const char* name;
        std::optional<BreakConfiguration> stored;
        QVariant storedSelection;
        BreakPresetKind expected;
    };
    BreakConfiguration strictEyeCare = configuration(900, 15, true, 180, 4);
    strictEyeCare.skipDifficulty = SkipDifficulty::Hardcore;
    const QList<Case> cases{
        {"deep focus selected but timing edited", configuration(1200, 20, false, 0, 0), u"deepFocus"_s,
         BreakPresetKind::Custom},
        {"no selection, eye care timing", strictEyeCare, {}, BreakPresetKind::EyeCare},
        {"unknown selection", configuration(2700, 30, true, 300, 3), u"DeepFocus"_s, BreakPresetKind::DeepFocus},
        {"nothing stored", std::nullopt, {}, BreakPresetKind::Balanced},
    };
    for (const Case& c : cases) {
        InMemoryUserDefaults store;
        if (c.stored)
            store.values.insert(u"breakConfiguration"_s, encodeRecord(*c.stored));
        if (c.storedSelection.isValid())
            store.values.insert(u"breakPresetSelection"_s, c.storedSelection);
        const SettingsManager settings(store, nullptr);

        QVERIFY2(settings.breakPresetSelection() == c.expected, c.name);
        QCOMPARE(settings.breakConfiguration(), c.stored.value_or(BreakConfiguration()));
        if (c.expected == BreakPresetKind::Custom)
            QVERIFY2(!settings.breakBehaviorBaseline(), c.name);
        else
            QVERIFY2(settings.breakBehaviorBaseline() == settings.breakConfiguration().behaviorSnapshot(), c.name);
        QVERIFY2(store.writtenKeys.isEmpty(), c.name);
    }
}

void TestSettingsManager::loadReadsBooleansAndRecordsIndependently()
{
    InMemoryUserDefaults store;
    store.values.insert(u"isEnabled"_s, false);
    store.values.insert(u"showTimerInMenuBar"_s, u"false"_s); // text, not a boolean: reads as true
    QJsonObject schedule = Schedule().toJson();
    schedule.remove(u"endTime"_s);
    schedule.insert(u"isEnabled"_s, true);
    store.values.insert(u"schedule"_s, QJsonDocument(schedule).toJson());
    NotificationSettings notification;
    notification.soundVolume = 0.25F;
    store.values.insert(u"notificationSettings"_s, encodeRecord(notification));
    BreakAppearance appearance;
    appearance.screenDisplayMode = ScreenDisplayMode::MainScreenOnly;
    // The record as text rather than data is not what the store writes, and is ignored.
    store.values.insert(u"breakAppearance"_s, QString::fromUtf8(encodeRecord(appearance)));

    const SettingsManager settings(store, nullptr);
    QVERIFY(!settings.isEnabled());
    QVERIFY(settings.showTimerInMenuBar());
    QCOMPARE(settings.schedule(), Schedule());
    QCOMPARE(settings.notificationSettings(), notification);
    QCOMPARE(settings.breakAppearance(), BreakAppearance());
    QVERIFY(store.writtenKeys.isEmpty());
}

void TestSettingsManager::behaviourAndTimingEditsTurnThePresetCustom()
{
    InMemoryUserDefaults store;
    SettingsManager settings(store, nullptr);

    settings.applyBreakPreset(BreakPresetKind::DeepFocus);
    BreakConfiguration edited = settings.breakConfiguration();
    edited.allowEarlyEnd = false;
    store.writtenKeys.clear();
    settings.setBreakConfiguration(edited);
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::Custom);
    QCOMPARE(settings.breakBehaviorBaseline(), std::nullopt);
    // The selection's own write saves everything, then the configuration's write does again.
    QCOMPARE(store.writtenKeys, allKeys + allKeys);
    QCOMPARE(store.values.value(u"breakPresetSelection"_s), QVariant(u"custom"_s));

    settings.applyBreakPreset(BreakPresetKind::Balanced);
    edited = settings.breakConfiguration();
    edited.longBreakEnabled = true;
    settings.setBreakConfiguration(edited);
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::Custom);
    // Switching long breaks on after Balanced starts from Balanced's zeros.
    QCOMPARE(settings.breakConfiguration().longBreakDuration, 0.0);
    QCOMPARE(settings.breakConfiguration().longBreakFrequency, 0);

    // Re-assigning the same configuration keeps a named preset.
    settings.applyBreakPreset(BreakPresetKind::EyeCare);
    settings.setBreakConfiguration(settings.breakConfiguration());
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::EyeCare);
}

void TestSettingsManager::applyingPresets()
{
    InMemoryUserDefaults store;
    SettingsManager settings(store, nullptr);
    BreakConfiguration strict = settings.breakConfiguration();
    strict.skipDifficulty = SkipDifficulty::Hardcore;
    strict.lockScreenOnBreak = true;
    settings.setBreakConfiguration(strict);
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::Custom);

    settings.applyBreakPreset(BreakPresetKind::EyeCare);
    QCOMPARE(settings.breakConfiguration(), BreakConfiguration::withTiming(*presetTiming(BreakPresetKind::EyeCare)));
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::EyeCare);
    QCOMPARE(settings.breakBehaviorBaseline(), defaultBehavior);
    QCOMPARE(store.values.value(u"breakPresetSelection"_s), QVariant(u"eyeCare"_s));

    const BreakConfiguration before = settings.breakConfiguration();
    store.writtenKeys.clear();
    settings.applyBreakPreset(BreakPresetKind::Custom);
    QCOMPARE(settings.breakConfiguration(), before);
    QCOMPARE(settings.breakPresetSelection(), BreakPresetKind::Custom);
    QCOMPARE(settings.breakBehaviorBaseline(), std::nullopt);
    QCOMPARE(store.writtenKeys, allKeys);
}

void TestSettingsManager::resetRestoresEverythingAndSavesEachStep()
{
    InMemoryUserDefaults store;
    FakeLaunchAtLogin login;
    SettingsManager settings(store, &login);
    settings.setIsEnabled(false);
    settings.setLaunchAtLogin(false);
    settings.applyBreakPreset(BreakPresetKind::DeepFocus);
    BreakConfiguration edited = settings.breakConfiguration();
    edited.delayWhileTyping = false;
    settings.setBreakConfiguration(edited);
    SmartPauseSettings smartPause;
    smartPause.deepFocusApps.append({u"Editor"_s, u"org.example.Editor"_s, DeepFocusMode::WhenOpen});
    settings.setSmartPauseSettings(smartPause);
    login.calls.clear();
    store.writtenKeys.clear();
    QSignalSpy selectionChanged(&settings, &SettingsManager::breakPresetSelectionChanged);

    settings.resetToDefaults();
    verifyDefaults(settings);
    QCOMPARE(login.calls, QList{true});
    QCOMPARE(store.writtenKeys.size(), 9 * allKeys.size());
    // The selection is assigned once, Balanced, ahead of the configuration.
    QCOMPARE(selectionChanged.size(), 1);
}

void TestSettingsManager::aSaveThatCannotBeKeptIsToldAndTriedAgain()
{
    QTemporaryDir dir;
    // A file where the settings folder should be: no one, root included, can save there.
    const QString blocker = dir.filePath(u"config"_s);
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString path = blocker + u"/velto/velto.ini"_s;
    SettingsFileStore store(path);
    SettingsManager settings(store, nullptr);
    QSignalSpy failedChanged(&store.writeState(), &StoreWriteState::writeFailedChanged);
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^velto: settings cannot be saved to .*velto\\.ini: "_s));

    // Two saves in one turn reach the disk together, once the settings store is done.
    settings.setIsEnabled(false);
    settings.setShowTimerInMenuBar(false);
    QVERIFY(!store.writeState().writeFailed());
    QTRY_VERIFY(store.writeState().writeFailed());
    QCOMPARE(failedChanged.size(), 1);
    QVERIFY(!settings.isEnabled()); // the change applies for now
    settings.setShowTimerInMenuBar(false);
    QTest::qWait(20);
    QCOMPARE(failedChanged.size(), 1); // told once per reason

    QVERIFY(file.remove());
    settings.setShowTimerInMenuBar(false);
    QTRY_VERIFY(!store.writeState().writeFailed());
    // Everything held in memory reached the file.
    QCOMPARE(SettingsFileStore(path).read(u"isEnabled"_s), QVariant(false));
}

QTEST_GUILESS_MAIN(TestSettingsManager)
#include "tst_settingsmanager.moc"
