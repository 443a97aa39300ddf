#include "BreakViewModel.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"

#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A scheduler on a break, driven tick by tick, with settings in memory.
struct Rig {
    explicit Rig(SkipDifficulty difficulty = SkipDifficulty::Balanced, bool allowEarlyEnd = true)
    {
        BreakConfiguration configuration = settings.breakConfiguration();
        configuration.skipDifficulty = difficulty;
        configuration.allowEarlyEnd = allowEarlyEnd;
        configuration.shortBreakDuration = 20;
        configuration.longBreakDuration = 300;
        settings.setBreakConfiguration(configuration);
        breaks.setSettingsManager(&settings);
    }

    void startBreak(BreakType type)
    {
        if (type == BreakType::Long)
            breaks.startLongBreak();
        else
            breaks.takeBreakNow();
    }

    void ticks(int count)
    {
        for (int i = 0; i < count; ++i)
            breaks.breakTick();
    }

    void appearance(const std::function<void(BreakAppearance&)>& change)
    {
        BreakAppearance value = settings.breakAppearance();
        change(value);
        settings.setBreakAppearance(value);
    }

    InMemoryUserDefaults store;
    SettingsManager settings{store, nullptr};
    BreakManager breaks{store};
};

} // namespace

class TestBreakViewModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void skipAndEndBreakFollowDifficultyAndEarlyEnd_data()
    {
        QTest::addColumn<SkipDifficulty>("difficulty");
        QTest::addColumn<bool>("allowEarlyEnd");
        QTest::addColumn<bool>("skipPresent");
        QTest::addColumn<bool>("usableAtOnce");
        QTest::addColumn<bool>("endBreakAtHalf");

        QTest::newRow("casual, no early end") << SkipDifficulty::Casual << false << true << true << false;
        QTest::newRow("balanced, no early end") << SkipDifficulty::Balanced << false << true << false << false;
        QTest::newRow("hardcore, early end") << SkipDifficulty::Hardcore << true << true << true << true;
        QTest::newRow("hardcore, no early end") << SkipDifficulty::Hardcore << false << false << false << false;
    }
    void skipAndEndBreakFollowDifficultyAndEarlyEnd()
    {
        QFETCH(SkipDifficulty, difficulty);
        QFETCH(bool, allowEarlyEnd);
        QFETCH(bool, skipPresent);
        QFETCH(bool, usableAtOnce);
        QFETCH(bool, endBreakAtHalf);

        Rig rig(difficulty, allowEarlyEnd);
        rig.startBreak(BreakType::Short);
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Short);
        model.start();

        QCOMPARE(model.skipPresent(), skipPresent);
        QCOMPARE(model.skipUsable(), usableAtOnce);
        QVERIFY(!model.endBreakPresent());
        if (!usableAtOnce) {
            model.skip(); // not usable: nothing happens
            QCOMPARE(rig.breaks.state(), BreakState::OnBreak);
        }

        rig.ticks(9); // 11 of 20 s left
        QVERIFY(!model.endBreakPresent());
        model.endBreak(); // too early for the scheduler: nothing happens
        QCOMPARE(rig.breaks.state(), BreakState::OnBreak);
        rig.ticks(1); // exactly half
        QCOMPARE(model.endBreakPresent(), endBreakAtHalf);
        rig.ticks(5);
        QCOMPARE(model.endBreakPresent(), endBreakAtHalf);
        QCOMPARE(model.skipPresent(), skipPresent);

        // Ending counts the break; skipping does not.
        if (endBreakAtHalf)
            model.endBreak();
        else if (usableAtOnce)
            model.skip();
        else
            return;
        QVERIFY(rig.breaks.state() != BreakState::OnBreak);
        QCOMPARE(rig.breaks.dailyBreakCount(), endBreakAtHalf ? 1 : 0);
    }

    void balancedSkipWaitsTwoSeconds()
    {
        Rig rig(SkipDifficulty::Balanced, false);
        rig.startBreak(BreakType::Short);
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Short);
        QList<double> delays;
        std::function<void()> due;
        model.setDelayedAction([&](double seconds, QObject*, std::function<void()> action) {
            delays.append(seconds);
            due = std::move(action);
        });
        QSignalSpy changes(&model, &BreakViewModel::skipChanged);

        // The delay counts from the moment the screen is up, not from construction.
        QVERIFY(delays.isEmpty());
        model.start();
        model.start(); // a second call must not restart or double the delay
        QCOMPARE(delays, QList<double>{2.0});
        QVERIFY(model.skipPresent());
        QVERIFY(!model.skipUsable());
        due();
        QVERIFY(model.skipUsable());
        QCOMPARE(changes.count(), 1);
    }

    void timeTextAndProgressFollowTheScheduler()
    {
        Rig rig;
        rig.startBreak(BreakType::Long);
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Long);
        QSignalSpy ticks(&model, &BreakViewModel::breakTimeChanged);
        QCOMPARE(model.timeText(), u"5:00"_s);
        QCOMPARE(model.progress(), 0.0);
        // Ending early becomes possible at half of the long break too.
        rig.ticks(149);
        QCOMPARE(model.timeText(), u"2:31"_s);
        QVERIFY(!model.endBreakPresent());
        rig.ticks(1);
        QCOMPARE(model.timeText(), u"2:30"_s);
        QVERIFY(model.endBreakPresent());
        QCOMPARE(ticks.count(), 150);
        rig.ticks(91);
        QCOMPARE(model.timeText(), u"59"_s);
        QCOMPARE(model.progress(), 241.0 / 300.0);

        // A view built for a short break measures against the short duration even on a long one.
        BreakViewModel shortView(&rig.settings, &rig.breaks, BreakType::Short);
        QCOMPARE(shortView.progress(), 0.0); // 59 s left of a 20 s break: clamped, never negative

        BreakConfiguration zero = rig.settings.breakConfiguration();
        zero.longBreakDuration = 0;
        rig.settings.setBreakConfiguration(zero);
        QCOMPARE(model.progress(), 0.0);
    }

    void emptyCustomMessagesFallBackByBreakType_data()
    {
        QTest::addColumn<BreakType>("type");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("short") << BreakType::Short << BreakViewModel::shortBreakFallbackMessages;
        QTest::newRow("long") << BreakType::Long << BreakViewModel::longBreakFallbackMessages;
    }
    void emptyCustomMessagesFallBackByBreakType()
    {
        QFETCH(BreakType, type);
        QFETCH(QStringList, expected);

        Rig rig;
        rig.appearance([](BreakAppearance& a) { a.customMessages.clear(); });
        QSet<QString> seen;
        for (int i = 0; i < 200; ++i) {
            BreakViewModel model(&rig.settings, &rig.breaks, type);
            QVERIFY2(expected.contains(model.message()), qPrintable(model.message()));
            seen.insert(model.message());
        }
        QCOMPARE(seen.size(), 5);
        QCOMPARE(expected.size(), 5);
    }

    void customMessagesArePickedFromTheUsersList()
    {
        Rig rig;
        const QStringList mine = {u"Water the plants"_s, u"Roll your shoulders"_s};
        rig.appearance([&](BreakAppearance& a) { a.customMessages = mine; });
        QSet<QString> seen;
        for (int i = 0; i < 100; ++i)
            seen.insert(BreakViewModel(&rig.settings, &rig.breaks, BreakType::Long).message());
        QCOMPARE(seen, QSet<QString>(mine.begin(), mine.end()));

        // A shown message stays when the list changes.
        rig.appearance([](BreakAppearance& a) { a.customMessages = {u"First"_s}; });
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Short);
        rig.appearance([](BreakAppearance& a) { a.customMessages = {u"Second"_s}; });
        QCOMPARE(model.message(), u"First"_s);
    }

    void dimLayerIsTheRestOfTheOverlayOpacity_data()
    {
        QTest::addColumn<double>("overlayOpacity");
        QTest::addColumn<double>("dim");
        QTest::newRow("undimmed") << 1.0 << 0.0;
        QTest::newRow("0.6") << 0.6 << 0.4;
        QTest::newRow("above range") << 1.5 << 0.0;
        QTest::newRow("below range") << -0.5 << 1.0;
        QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN() << 0.0;
    }
    void dimLayerIsTheRestOfTheOverlayOpacity()
    {
        QFETCH(double, overlayOpacity);
        QFETCH(double, dim);
        Rig rig;
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Short);
        QSignalSpy changed(&model, &BreakViewModel::appearanceChanged);
        rig.appearance([&](BreakAppearance& a) { a.overlayOpacity = overlayOpacity; });
        QVERIFY(qFuzzyCompare(1.0 + model.dimOpacity(), 1.0 + dim));
        QCOMPARE(changed.count(), 1);
    }

    void onlyGradientAndPaperDarkAreDark_data()
    {
        QTest::addColumn<BackgroundType>("type");
        QTest::addColumn<bool>("dark");
        QTest::newRow("gradient") << BackgroundType::Gradient << true;
        QTest::newRow("paperDark") << BackgroundType::PaperDark << true;
        QTest::newRow("solidColor") << BackgroundType::SolidColor << false;
        QTest::newRow("customImage") << BackgroundType::CustomImage << false;
    }
    void onlyGradientAndPaperDarkAreDark()
    {
        QFETCH(BackgroundType, type);
        QFETCH(bool, dark);
        Rig rig;
        // A black solid colour still keeps the dark grey ink.
        rig.appearance([&](BreakAppearance& a) {
            a.backgroundType = type;
            a.backgroundColor = {0, 0, 0, 1};
            a.gradientTheme = GradientTheme::Sunset;
        });
        BreakViewModel model(&rig.settings, &rig.breaks, BreakType::Short);
        QCOMPARE(model.isDarkBackground(), dark);
        QCOMPARE(model.inkColor(), dark ? QColor(Qt::white) : QColor::fromRgbF(0.18f, 0.18f, 0.18f));
        QCOMPARE(model.controlColor(), dark ? QColor(Qt::white) : QColor(Qt::black));
    }

    void backgroundsAndTheirFallbacks()
    {
        Rig rig;
        rig.appearance([](BreakAppearance& a) {
            a.backgroundType = BackgroundType::CustomImage;
            a.gradientTheme = GradientTheme::Aurora;
        });
        BreakViewModel missing(&rig.settings, &rig.breaks, BreakType::Short);
        QCOMPARE(missing.background(), BreakViewModel::Background::Gradient);
        QCOMPARE(missing.gradientStops().size(), 4); // aurora's four stops stand in

        BreakViewModel withImage(&rig.settings, &rig.breaks, BreakType::Short, QUrl(u"image://test/1"_s));
        QCOMPARE(withImage.background(), BreakViewModel::Background::Image);

        rig.appearance([](BreakAppearance& a) { a.backgroundType = BackgroundType::PaperLight; });
        QCOMPARE(withImage.background(), BreakViewModel::Background::Gradient);

        rig.appearance([](BreakAppearance& a) {
            a.backgroundType = BackgroundType::SolidColor;
            a.backgroundColor = {0.2, 0.4, 0.6, 0.85};
        });
        QCOMPARE(withImage.background(), BreakViewModel::Background::Solid);
        QCOMPARE(withImage.solidColor(), QColor::fromRgbF(0.2f, 0.4f, 0.6f, 0.85f));
    }
};

QTEST_MAIN(TestBreakViewModel)
#include "tst_breakviewmodel.moc"
