#include "FakeScreenLock.h"
#include "InMemoryUserDefaults.h"
#include "SettingsPaneModel.h"
#include "settings/SettingsManager.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace velto;
using Picker = SettingsPaneModel::Picker;

class SettingsPaneModelTest final : public QObject {
    Q_OBJECT

private:
    struct Fixture {
        InMemoryUserDefaults store;
        FakeScreenLock lock;
        SettingsManager settings{store, nullptr};
        SettingsPaneModel model{&settings, &lock, {u"1.4"_s, u"27"_s, QUrl(u"https://velto.app"_s), u"hi@velto.app"_s}};
    };

private Q_SLOTS:
    void readingRuleTruncatesAndFindsNoneForValuesThatAreNoOption_data()
    {
        QTest::addColumn<double>("stored");
        QTest::addColumn<double>("unit");
        QTest::addColumn<int>("expected");
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("20 min") << 1200.0 << 60.0 << 2;
        QTest::newRow("a second short of 20 min reads 19") << 1199.0 << 60.0 << -1;
        QTest::newRow("fraction above 45 min") << 2759.9 << 60.0 << 5;
        QTest::newRow("negative") << -600.0 << 60.0 << -1;
        QTest::newRow("too large for a whole number") << 1e300 << 60.0 << -1;
        QTest::newRow("not a number") << nan << 60.0 << -1;
    }
    void readingRuleTruncatesAndFindsNoneForValuesThatAreNoOption()
    {
        QFETCH(double, stored);
        QFETCH(double, unit);
        QFETCH(int, expected);
        QCOMPARE(pickerSelection(stored, unit, {10, 15, 20, 25, 30, 45, 60}), expected);
    }

    void storedValuesThatAreNoOptionShowNoSelectionAndStayStored()
    {
        Fixture f;
        BreakConfiguration breaks = f.settings.breakConfiguration();
        breaks.workInterval = 90;
        f.settings.setBreakConfiguration(breaks);
        NotificationSettings notifications = f.settings.notificationSettings();
        notifications.preBreakNotificationTime = 240;
        f.settings.setNotificationSettings(notifications);
        BreakAppearance appearance = f.settings.breakAppearance();
        appearance.backgroundType = BackgroundType::SolidColor;
        f.settings.setBreakAppearance(appearance);

        QCOMPARE(f.model.selection(Picker::WorkInterval), -1);
        QCOMPARE(f.model.selection(Picker::PreBreakNotification), -1);
        QCOMPARE(f.model.selection(Picker::BackgroundType), -1);
        // Reading changed nothing.
        QCOMPARE(f.settings.breakConfiguration().workInterval, 90.0);
        QCOMPARE(f.settings.notificationSettings().preBreakNotificationTime, 240.0);
        QCOMPARE(f.settings.breakAppearance().backgroundType, BackgroundType::SolidColor);

        // Until the user picks one.
        f.model.choose(Picker::PreBreakNotification, 3);
        QCOMPARE(f.settings.notificationSettings().preBreakNotificationTime, 300.0);
        QCOMPARE(f.model.selection(Picker::PreBreakNotification), 3);
        f.model.choose(Picker::BackgroundType, 1);
        QCOMPARE(f.settings.breakAppearance().backgroundType, BackgroundType::PaperDark);
    }

    void choicesStoreSecondsAndRejectPositionsOutOfRange()
    {
        Fixture f;
        f.model.choose(Picker::Cooldown, 0);
        QCOMPARE(f.settings.smartPauseSettings().cooldownAfterActivity, 0.0);
        f.model.choose(Picker::WorkInterval, 3);
        QCOMPARE(f.settings.breakConfiguration().workInterval, 1500.0);
        f.model.choose(Picker::LongBreakFrequency, 6);
        QCOMPARE(f.settings.breakConfiguration().longBreakFrequency, 8);
        f.model.choose(Picker::SkipDifficulty, 2);
        QCOMPARE(f.settings.breakConfiguration().skipDifficulty, SkipDifficulty::Hardcore);

        const BreakConfiguration before = f.settings.breakConfiguration();
        f.store.writtenKeys.clear();
        f.model.choose(Picker::WorkInterval, 7);
        f.model.choose(Picker::WorkInterval, -1);
        f.model.choose(Picker::SkipDifficulty, 3);
        QCOMPARE(f.settings.breakConfiguration(), before);
        QVERIFY(f.store.writtenKeys.isEmpty());
    }

    void fieldWritesReplaceTheWholeRecordAndConvertEnumsAndNumbers()
    {
        Fixture f;
        f.model.setSmartPauseField(u"detectIdleTime"_s, false);
        QCOMPARE(f.settings.smartPauseSettings().detectIdleTime, false);
        // Hiding the idle row keeps the threshold.
        QCOMPARE(f.settings.smartPauseSettings().idleThreshold, 60.0);
        f.model.setNotificationField(u"soundVolume"_s, 0.25);
        QCOMPARE(f.settings.notificationSettings().soundVolume, 0.25F);
        f.model.setAppearanceField(u"overlayOpacity"_s, 0.905);
        QCOMPARE(f.model.dimLevelText(), u"90%"_s);
        f.model.setAppearanceField(u"screenDisplayMode"_s, 1);
        QCOMPARE(f.settings.breakAppearance().screenDisplayMode, ScreenDisplayMode::MainScreenOnly);
        QCOMPARE(f.model.breakAppearance().value(u"screenDisplayMode"_s).toInt(), 1);

        const SmartPauseSettings before = f.settings.smartPauseSettings();
        f.model.setSmartPauseField(u"noSuchField"_s, true);
        QCOMPARE(f.settings.smartPauseSettings(), before);
    }

    void officeHoursDaysAndTimes()
    {
        Fixture f;
        for (int day = 1; day <= 7; ++day)
            f.model.setDayActive(day, false);
        QVERIFY(f.settings.schedule().activeDays.empty());
        QVERIFY(f.model.schedule().value(u"activeDays"_s).toList().isEmpty());
        f.model.setDayActive(2, true);
        f.model.setDayActive(9, true);
        QCOMPARE(f.settings.schedule().activeDays, std::set<Weekday>{Weekday::Monday});

        f.model.setTime(true, 7, 45);
        QCOMPARE(f.settings.schedule().startTime, (TimeOfDay{7, 45}));
        QCOMPARE(f.model.shownTime(true).value(u"hour"_s).toInt(), 7);
        f.model.setTime(false, 24, 0);
        QCOMPARE(f.settings.schedule().endTime, (TimeOfDay{18, 0}));
        f.model.setScheduleField(u"isEnabled"_s, true);
        f.model.setScheduleField(u"isEnabled"_s, false);
        QCOMPARE(f.settings.schedule().startTime, (TimeOfDay{7, 45}));
    }

    void lockSwitchNeedsAWayToLock()
    {
        Fixture f;
        f.lock.available = false;
        f.store.writtenKeys.clear();
        QSignalSpy alert(&f.model, &SettingsPaneModel::showLockScreenAlertChanged);
        f.model.setLockScreenOnBreak(true);
        QVERIFY(f.model.showLockScreenAlert());
        QCOMPARE(f.settings.breakConfiguration().lockScreenOnBreak, false);
        QVERIFY(f.store.writtenKeys.isEmpty());
        f.model.dismissLockScreenAlert();
        QVERIFY(!f.model.showLockScreenAlert());
        QCOMPARE(alert.count(), 2);

        f.lock.available = true;
        f.model.setLockScreenOnBreak(true);
        QCOMPARE(f.settings.breakConfiguration().lockScreenOnBreak, true);
        QVERIFY(!f.model.showLockScreenAlert());
        // Turning it off never needs the lock.
        f.lock.available = false;
        f.model.setLockScreenOnBreak(false);
        QCOMPARE(f.settings.breakConfiguration().lockScreenOnBreak, false);
        QVERIFY(!f.model.showLockScreenAlert());
    }

    void presetsAndEditsMoveTheSelection()
    {
        Fixture f;
        QCOMPARE(f.model.breakPresetSelection(), int(BreakPresetKind::Balanced));
        QSignalSpy selection(&f.model, &SettingsPaneModel::breakPresetSelectionChanged);
        f.model.applyPreset(int(BreakPresetKind::DeepFocus));
        QCOMPARE(f.model.breakPresetSelection(), int(BreakPresetKind::DeepFocus));
        QCOMPARE(f.model.selection(Picker::WorkInterval), 5);
        f.model.choose(Picker::ShortBreakDuration, 0);
        QCOMPARE(f.model.breakPresetSelection(), int(BreakPresetKind::Custom));
        QVERIFY(selection.count() >= 2);

        const BreakConfiguration custom = f.settings.breakConfiguration();
        f.model.applyPreset(int(BreakPresetKind::Custom));
        QCOMPARE(f.settings.breakConfiguration(), custom);
        f.model.applyPreset(9);
        QCOMPARE(f.model.breakPresetSelection(), int(BreakPresetKind::Custom));
    }

    void resetRestoresEveryRecord()
    {
        Fixture f;
        f.model.setIsEnabled(false);
        f.model.setShowTimerInMenuBar(false);
        f.model.applyPreset(int(BreakPresetKind::EyeCare));
        f.model.setScheduleField(u"isEnabled"_s, true);
        f.model.setSmartPauseField(u"detectMeetings"_s, false);
        f.model.setNotificationField(u"playSoundOnBreakEnd"_s, false);
        f.model.addMessage();
        f.model.resetToDefaults();
        QCOMPARE(f.settings.isEnabled(), true);
        QCOMPARE(f.settings.showTimerInMenuBar(), true);
        QCOMPARE(f.settings.breakConfiguration(), BreakConfiguration());
        QCOMPARE(f.settings.schedule(), Schedule());
        QCOMPARE(f.settings.smartPauseSettings(), SmartPauseSettings());
        QCOMPARE(f.settings.notificationSettings(), NotificationSettings());
        QCOMPARE(f.settings.breakAppearance(), BreakAppearance());
        QCOMPARE(f.model.breakPresetSelection(), int(BreakPresetKind::Balanced));
    }

    void focusAppRowsChangeModeAndDeleteEveryEntryOfTheirIdentity()
    {
        Fixture f;
        SmartPauseSettings smartPause = f.settings.smartPauseSettings();
        smartPause.deepFocusApps = {{u"Code"_s, u"code"_s, DeepFocusMode::WhenForeground},
                                    {u"Files"_s, u"org.gnome.Nautilus"_s, DeepFocusMode::WhenOpen},
                                    {u"Code again"_s, u"code"_s, DeepFocusMode::WhenOpen}};
        f.settings.setSmartPauseSettings(smartPause);
        f.model.setFocusAppMode(1, int(DeepFocusMode::WhenForegroundFullscreen));
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.at(1).mode, DeepFocusMode::WhenForegroundFullscreen);
        f.model.setFocusAppMode(3, 0);
        f.model.setFocusAppMode(0, 5);
        QCOMPARE(f.settings.smartPauseSettings().deepFocusApps.at(0).mode, DeepFocusMode::WhenForeground);

        f.model.deleteFocusApp(u"code"_s);
        const QList<DeepFocusApp> left = f.settings.smartPauseSettings().deepFocusApps;
        QCOMPARE(left.size(), 1);
        QCOMPARE(left.first().bundleIdentifier, u"org.gnome.Nautilus"_s);
        const QVariantList rows = f.model.smartPauseSettings().value(u"deepFocusApps"_s).toList();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.first().toMap().value(u"mode"_s).toInt(), int(DeepFocusMode::WhenForegroundFullscreen));
    }

    void messageEditorNeverEmptiesTheList()
    {
        Fixture f;
        BreakAppearance appearance = f.settings.breakAppearance();
        appearance.customMessages = {u"one"_s, u"two"_s};
        f.settings.setBreakAppearance(appearance);
        QVERIFY(f.model.canRemoveMessages());
        f.model.setMessage(1, u"second"_s);
        f.model.setMessage(2, u"nowhere"_s);
        QCOMPARE(f.settings.breakAppearance().customMessages, (QStringList{u"one"_s, u"second"_s}));
        f.model.removeMessage(0);
        QCOMPARE(f.settings.breakAppearance().customMessages, QStringList{u"second"_s});
        QVERIFY(!f.model.canRemoveMessages());
        f.model.removeMessage(0);
        QCOMPARE(f.settings.breakAppearance().customMessages, QStringList{u"second"_s});

        f.model.addMessage();
        QCOMPARE(f.settings.breakAppearance().customMessages, (QStringList{u"second"_s, QString()}));
        QVERIFY(f.model.canRemoveMessages());
    }

    void aboutTextsAndChecks()
    {
        QCOMPARE(versionText(u"1.4"_s, u"27"_s), u"1.4 (27)"_s);
        QCOMPARE(versionText(u"1.4"_s, u"1.4"_s), u"1.4"_s);
        QCOMPARE(versionText(u"1.4"_s, QString()), u"1.4"_s);
        QCOMPARE(versionText(QString(), u"27"_s), u"—"_s);

        Fixture f;
        QCOMPARE(f.model.versionText(), u"1.4 (27)"_s);
        QCOMPARE(f.model.feedbackUrl(), QUrl(u"mailto:hi@velto.app"_s));
        QCOMPARE(f.model.websiteDisplayName(), u"velto.app"_s);
        f.model.setUpdateState(true, u"3.0"_s);
        QCOMPARE(f.model.updateNudgeText(), u"Version 3.0 is ready when you are."_s);
        f.model.setUpdateState(true, QString());
        QCOMPARE(f.model.updateNudgeText(), u"Install it when you have a moment."_s);

        // Without an update service both checks do nothing.
        f.model.checkForUpdates();
        f.model.aboutShown();
        int userChecks = 0;
        int silentChecks = 0;
        f.model.onCheckForUpdates = [&] { ++userChecks; };
        f.model.onSilentCheck = [&] { ++silentChecks; };
        f.model.aboutShown();
        f.model.aboutShown();
        f.model.checkForUpdates();
        QCOMPARE(silentChecks, 2);
        QCOMPARE(userChecks, 1);
    }
};

QTEST_MAIN(SettingsPaneModelTest)
#include "tst_settingspanemodel.moc"
