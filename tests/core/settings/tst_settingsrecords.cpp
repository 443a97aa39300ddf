#include "settings/BreakAppearance.h"
#include "settings/BreakConfiguration.h"
#include "settings/JsonRecord.h"
#include "settings/NotificationSettings.h"
#include "settings/Schedule.h"
#include "settings/SmartPauseSettings.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject parse(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

QJsonObject without(QJsonObject object, const QString& key)
{
    object.remove(key);
    return object;
}

QJsonObject with(QJsonObject object, const QString& key, const QJsonValue& value)
{
    object.insert(key, value);
    return object;
}

BreakConfiguration configuration(double work, double shortBreak, bool longOn, double longLength, qint64 frequency)
{
    return BreakConfiguration::withTiming({work, shortBreak, longOn, longLength, frequency});
}

} // namespace

class TestSettingsRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void enumerationsRoundTripTheirRawValuesCaseSensitively();
    void breakConfigurationDefaultsAndJson();
    void breakConfigurationRejectsAnyBadMember_data();
    void breakConfigurationRejectsAnyBadMember();
    void matchingPreset_data();
    void matchingPreset();
    void timingStillMatches();
    void scheduleJson();
    void smartPauseSettingsJson();
    void notificationSettingsJson();
    void breakAppearanceJson();
};

void TestSettingsRecords::enumerationsRoundTripTheirRawValuesCaseSensitively()
{
    QCOMPARE(rawValue(DeepFocusMode::WhenForegroundFullscreen), u"whenForegroundFullscreen"_s);

    QCOMPARE(fromRawValue<SkipDifficulty>(u"hardcore"), SkipDifficulty::Hardcore);
    QCOMPARE(fromRawValue<SkipDifficulty>(u"Hardcore"), std::nullopt);
    for (const BreakPresetKind kind : allCases<BreakPresetKind>())
        QCOMPARE(fromRawValue<BreakPresetKind>(rawValue(kind)), kind);

    QCOMPARE(weekdayFromRawValue(1), Weekday::Sunday);
    QCOMPARE(weekdayFromRawValue(7), Weekday::Saturday);
    QCOMPARE(weekdayFromRawValue(0), std::nullopt);
    QCOMPARE(weekdayFromRawValue(8), std::nullopt);

    // A gradient theme's title is its enumerator's name, from a table kept in the same order.
    for (const GradientTheme theme : allCases<GradientTheme>())
        QCOMPARE(title(theme), QString::fromLatin1(QMetaEnum::fromType<GradientTheme>().valueToKey(int(theme))));
}

void TestSettingsRecords::breakConfigurationDefaultsAndJson()
{
    const BreakConfiguration defaults;
    QCOMPARE(defaults.timing(), (PresetTiming{1200, 20, false, 300, 4}));
    QCOMPARE(defaults.behaviorSnapshot(), (BreakBehaviorSnapshot{SkipDifficulty::Balanced, true, true, false}));

    const QJsonObject json = defaults.toJson();
    QCOMPARE(json.value(u"skipDifficulty"_s).toString(), u"balanced"_s);

    BreakConfiguration edited = configuration(2700.5, 31, true, 301, 7);
    edited.skipDifficulty = SkipDifficulty::Hardcore;
    edited.delayWhileTyping = false;
    edited.lockScreenOnBreak = true;
    QCOMPARE(decodeRecord<BreakConfiguration>(encodeRecord(edited)), edited);

    // Members the record does not know, as a newer layout might add, do not stop it from reading.
    QCOMPARE(BreakConfiguration::fromJson(with(json, u"somethingNew"_s, 1)), defaults);
    // A whole number written with a fraction part is still a whole number.
    QCOMPARE(BreakConfiguration::fromJson(with(json, u"longBreakFrequency"_s, 2.0))->longBreakFrequency, 2);
    QCOMPARE(decodeRecord<BreakConfiguration>("not json"), std::nullopt);
    QCOMPARE(decodeRecord<BreakConfiguration>(QByteArray("{\"workInterval\":12\0\x01", 19)), std::nullopt);
}

void TestSettingsRecords::breakConfigurationRejectsAnyBadMember_data()
{
    QTest::addColumn<QJsonObject>("json");
    const QJsonObject good = BreakConfiguration().toJson();
    for (const QString& key : good.keys())
        QTest::addRow("missing %s", qPrintable(key)) << without(good, key);
    QTest::addRow("difficulty in another case") << with(good, u"skipDifficulty"_s, u"Balanced"_s);
    QTest::addRow("frequency with a fraction") << with(good, u"longBreakFrequency"_s, 2.5);
    QTest::addRow("interval as text") << with(good, u"workInterval"_s, u"1200"_s);
    QTest::addRow("boolean as number") << with(good, u"allowEarlyEnd"_s, 1);
}

void TestSettingsRecords::breakConfigurationRejectsAnyBadMember()
{
    QFETCH(QJsonObject, json);
    QCOMPARE(BreakConfiguration::fromJson(json), std::nullopt);
}

void TestSettingsRecords::matchingPreset_data()
{
    QTest::addColumn<BreakConfiguration>("configuration");
    QTest::addColumn<BreakPresetKind>("preset");
    QTest::newRow("balanced as applied") << configuration(1200, 20, false, 0, 0) << BreakPresetKind::Balanced;
    QTest::newRow("balanced with the first-start long values")
        << configuration(1200, 20, false, 300, 4) << BreakPresetKind::Balanced;
    QTest::newRow("balanced timing with long breaks on")
        << configuration(1200, 20, true, 0, 0) << BreakPresetKind::Custom;
    QTest::newRow("deep focus") << configuration(2700, 30, true, 300, 3) << BreakPresetKind::DeepFocus;
    QTest::newRow("eye care") << configuration(900, 15, true, 180, 4) << BreakPresetKind::EyeCare;
    QTest::newRow("one second off") << configuration(1201, 20, false, 0, 0) << BreakPresetKind::Custom;
}

void TestSettingsRecords::matchingPreset()
{
    QFETCH(BreakConfiguration, configuration);
    QFETCH(BreakPresetKind, preset);
    QCOMPARE(configuration.matchingPreset(), preset);

    // The behaviour fields take no part in matching.
    configuration.skipDifficulty = SkipDifficulty::Hardcore;
    configuration.allowEarlyEnd = false;
    QCOMPARE(configuration.matchingPreset(), preset);
}

void TestSettingsRecords::timingStillMatches()
{
    QVERIFY(configuration(1200, 20, false, 999, 9).timingMatches(BreakPresetKind::Balanced));
    QVERIFY(!configuration(1200, 20, true, 0, 0).timingMatches(BreakPresetKind::Balanced));
    QVERIFY(!configuration(2700, 30, true, 300, 4).timingMatches(BreakPresetKind::DeepFocus));
    QVERIFY(!configuration(900, 15, true, 181, 4).timingMatches(BreakPresetKind::EyeCare));
    QVERIFY(!BreakConfiguration().timingMatches(BreakPresetKind::Custom));

    QCOMPARE(presetTiming(BreakPresetKind::Custom), std::nullopt);
}

void TestSettingsRecords::scheduleJson()
{
    const Schedule defaults;
    QCOMPARE(QJsonDocument(defaults.toJson()).toJson(QJsonDocument::Compact),
             QByteArray(R"({"activeDays":[1,2,3,4,5,6,7],"endTime":{"hour":18,"minute":0},"isEnabled":false,)"
                        R"("startTime":{"hour":9,"minute":0}})"));

    const auto read = Schedule::fromJson(
        parse(R"({"isEnabled":true,"activeDays":[2,2,3],"startTime":{"hour":9},"endTime":{"hour":17,"minute":30}})"));
    QVERIFY(read);
    QCOMPARE(read->activeDays, (std::set{Weekday::Monday, Weekday::Tuesday}));
    QCOMPARE(read->startTime, (TimeOfDay{9, std::nullopt}));
    // An absent component stays absent when written again.
    QCOMPARE(read->toJson().value(u"startTime"_s).toObject(), parse(R"({"hour":9})"));
    QCOMPARE(Schedule::fromJson(read->toJson()), read);

    const QJsonObject good = defaults.toJson();
    QCOMPARE(Schedule::fromJson(without(good, u"endTime"_s)), std::nullopt);
    QCOMPARE(Schedule::fromJson(with(good, u"activeDays"_s, QJsonArray{1, 8})), std::nullopt);
    QCOMPARE(Schedule::fromJson(with(good, u"activeDays"_s, QJsonArray{0})), std::nullopt);
    QCOMPARE(Schedule::fromJson(with(good, u"startTime"_s, parse(R"({"hour":"9"})"))), std::nullopt);
    QCOMPARE(Schedule::fromJson(with(good, u"isEnabled"_s, 0)), std::nullopt);
    // An empty set of days is a valid choice.
    QCOMPARE(Schedule::fromJson(with(good, u"activeDays"_s, QJsonArray{}))->activeDays.size(), 0u);
}

void TestSettingsRecords::smartPauseSettingsJson()
{
    const SmartPauseSettings defaults;

    SmartPauseSettings edited;
    edited.videoDetectionMode = VideoDetectionMode::IncludeBackground;
    edited.idleThreshold = -5;
    edited.deepFocusApps = {{u"Editor"_s, u"org.example.Editor"_s, DeepFocusMode::WhenOpen},
                            {u"Editor again"_s, u"org.example.Editor"_s, DeepFocusMode::WhenForegroundFullscreen},
                            {u"Game"_s, u"com.example.Game"_s, DeepFocusMode::WhenForeground}};
    edited.excludedMicrophones = {u"b"_s, u"a"_s};
    edited.excludedMeetingApps = {u"us.zoom.Zoom"_s};
    const auto readBack = decodeRecord<SmartPauseSettings>(encodeRecord(edited));
    QCOMPARE(readBack, edited);
    QCOMPARE(readBack->deepFocusApps.size(), 3); // two entries with one identity stay two

    const QJsonObject good = edited.toJson();
    QCOMPARE(SmartPauseSettings::fromJson(without(good, u"excludedMeetingApps"_s)), std::nullopt);
    QJsonArray apps = good.value(u"deepFocusApps"_s).toArray();
    apps.replace(1, parse(R"({"name":"X","bundleIdentifier":"x","mode":"always"})"));
    QCOMPARE(SmartPauseSettings::fromJson(with(good, u"deepFocusApps"_s, apps)), std::nullopt);
    apps.replace(1, parse(R"({"name":"X","mode":"whenOpen"})"));
    QCOMPARE(SmartPauseSettings::fromJson(with(good, u"deepFocusApps"_s, apps)), std::nullopt);
    QCOMPARE(SmartPauseSettings::fromJson(with(good, u"videoDetectionMode"_s, u"FrontmostOnly"_s)), std::nullopt);
}

void TestSettingsRecords::notificationSettingsJson()
{
    const NotificationSettings defaults;
    const QJsonObject json = defaults.toJson();
    // The volume is a float; it is written as the decimal the user chose, not as its double expansion.
    QVERIFY(QJsonDocument(json).toJson(QJsonDocument::Compact).contains("\"soundVolume\":0.7"));

    NotificationSettings edited;
    edited.soundVolume = 0.33F;
    edited.preBreakNotificationTime = 120;
    edited.playSoundOnBreakEnd = false;
    QCOMPARE(decodeRecord<NotificationSettings>(encodeRecord(edited)), edited);
    QCOMPARE(NotificationSettings::fromJson(without(json, u"soundVolume"_s)), std::nullopt);
    QCOMPARE(NotificationSettings::fromJson(with(json, u"breakEndSound"_s, QJsonValue::Null)), std::nullopt);
}

void TestSettingsRecords::breakAppearanceJson()
{
    const BreakAppearance defaults;
    const QJsonObject json = defaults.toJson();
    QVERIFY(!json.contains(u"customImagePath"_s));
    QCOMPARE(BreakAppearance::fromJson(json), defaults);

    BreakAppearance edited;
    edited.backgroundType = BackgroundType::CustomImage;
    edited.customImagePath = u"/home/me/Pictures/lake.jpg"_s;
    edited.overlayOpacity = 1.4; // not validated here
    edited.customMessages = {};
    edited.gradientTheme = GradientTheme::Warmth;
    QCOMPARE(decodeRecord<BreakAppearance>(encodeRecord(edited)), edited);

    QCOMPARE(BreakAppearance::fromJson(with(json, u"gradientTheme"_s, u"Midnight"_s)), std::nullopt);
    QCOMPARE(BreakAppearance::fromJson(with(json, u"backgroundColor"_s, parse(R"({"red":1,"green":1,"blue":1})"))),
             std::nullopt);
    QCOMPARE(BreakAppearance::fromJson(without(json, u"customMessages"_s)), std::nullopt);
}

QTEST_GUILESS_MAIN(TestSettingsRecords)
#include "tst_settingsrecords.moc"
