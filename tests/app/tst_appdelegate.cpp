#include "AppDelegate.h"
#include "BreakWindow.h"
#include "FakeDetectionProviders.h"
#include "FakeKeyDownTime.h"
#include "FakeLaunchAtLogin.h"
#include "FakeNotificationPresenter.h"
#include "FakeScreenLock.h"
#include "FakeSoundPlayer.h"
#include "InMemoryUserDefaults.h"
#include "PrivateSystemBus.h"
#include "SettingsWindowController.h"
#include "SystemSleepSignals.h"
#include "VeltoWindows.h"
#include "detection/ActivityDetector.h"
#include "notification/InAppNotificationManager.h"
#include "notification/PreBreakNotificationDisplayModel.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"
#include "tray/MenuSymbols.h"
#include "tray/StatusItem.h"

#include <QAction>
#include <QDBusMessage>
#include <QDir>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

// The whole shell on fakes, with the real sleep signals on the test's private buses.
struct ShellUnderTest {
    explicit ShellUnderTest(bool enabled = true, bool withWindows = true)
    {
        AppServices services;
        auto store = std::make_unique<InMemoryUserDefaults>();
        userDefaults = store.get();
        if (!enabled)
            store->values.insert(u"isEnabled"_s, false);
        services.userDefaults = std::move(store);
        services.launchAtLogin = std::make_unique<FakeLaunchAtLogin>();
        services.detectionProviders = providers.take();
        services.keyDownTime = std::make_unique<FakeKeyDownTime>();
        auto soundPlayer = std::make_unique<FakeSoundPlayer>();
        sounds = soundPlayer.get();
        services.sounds = std::move(soundPlayer);
        services.screenLock = std::make_unique<FakeScreenLock>();
        services.sleepSignals = std::make_unique<SystemSleepSignals>();
        auto cardPresenter = std::make_unique<FakeNotificationPresenter>();
        presenter = cardPresenter.get();
        services.notificationPresenter = std::move(cardPresenter);
        services.windows = [this, withWindows] {
            ++windowRequests;
            return withWindows ? builtInVeltoWindows() : nullptr;
        };
        delegate = std::make_unique<AppDelegate>(std::move(services));
        delegate->onQuit = [this] { ++quits; };
        delegate->applicationDidFinishLaunching();
    }

    [[nodiscard]] BreakManager& breaks() const { return *delegate->breakManager(); }
    [[nodiscard]] SettingsManager& settings() const { return *delegate->settingsManager(); }

    FakeDetectionProviders providers;
    InMemoryUserDefaults* userDefaults = nullptr;
    FakeSoundPlayer* sounds = nullptr;
    FakeNotificationPresenter* presenter = nullptr;
    std::unique_ptr<AppDelegate> delegate;
    int quits = 0;
    int windowRequests = 0;
};

QStringList menuTitles(QMenu* menu)
{
    QStringList titles;
    for (QAction* action : menu->actions())
        titles << (action->isSeparator() ? u"-"_s : action->text());
    return titles;
}

QAction* menuAction(QMenu* menu, const QString& title)
{
    for (QAction* action : menu->actions())
        if (action->text() == title)
            return action;
    return nullptr;
}

void turnEventLoop()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

} // namespace

class TestAppDelegate final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_systemBus.start(), "no private system bus");
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "Run this test under dbus-run-session, as ctest does");
    }

    void launchFollowsTheStoredReminderSwitch()
    {
        ShellUnderTest off(false);
        QCOMPARE(off.breaks().state(), BreakState::Idle);
        QCOMPARE(off.breaks().pauseReason(), PauseReason::appDisabled());
        QVERIFY(!off.delegate->activityDetector()->isMonitoring());
        QCOMPARE(off.delegate->menuBarPresentation().statusText, u"Breaks disabled"_s);
        QCOMPARE(off.delegate->statusItem()->toolTip(), u"Velto, Breaks disabled\nNo active timer"_s);
        ControlStatus status = off.delegate->controlStatus();
        QCOMPARE(status.statusLine, u"Breaks disabled"_s);
        QCOMPARE(status.timeText, u"\u2014"_s);
        QCOMPARE(status.state, u"idle"_s);
        QCOMPARE(status.pauseReason, u"appDisabled"_s);
        QVERIFY(!status.enabled);
        // The menu's Settings item and `velto settings` open the same window, built on first use.
        QVERIFY(!off.delegate->settingsWindows());
        QCOMPARE(off.windowRequests, 0);
        QVERIFY(off.delegate->openSettings());
        auto* controller = dynamic_cast<SettingsWindowController*>(off.delegate->settingsWindows());
        QVERIFY(controller && controller->settingsWindow());
        QTRY_VERIFY(controller->settingsWindow()->isVisible());
        QVERIFY(off.delegate->openSettings());
        QCOMPARE(off.delegate->settingsWindows(), controller);
        QCOMPARE(off.windowRequests, 1);

        ShellUnderTest on;
        QCOMPARE(on.breaks().state(), BreakState::Working);
        QCOMPARE(on.breaks().timeRemaining(), on.settings().breakConfiguration().workInterval);
        QVERIFY(on.delegate->activityDetector()->isMonitoring());
        QCOMPARE(on.breaks().activityDetector(), static_cast<ActivityDetecting*>(on.delegate->activityDetector()));
        QCOMPARE(on.delegate->statusItem()->toolTip(), u"Velto, Until next break\n20 min remaining"_s);
        on.delegate->takeBreakNow();
        status = on.delegate->controlStatus();
        QCOMPARE(status.statusLine, u"00:20  Break in progress"_s);
        QCOMPARE(status.state, u"onBreak"_s);
        QVERIFY(status.pauseReason.isEmpty());
        QVERIFY(status.enabled);
    }

    void togglingSavesFirstThenStartsOrStopsOnTheNextTurn()
    {
        ShellUnderTest shell;
        shell.breaks().workTick();
        shell.breaks().workTick();
        shell.delegate->rebuildMenu();
        QMenu* menu = shell.delegate->statusItem()->menu();
        menuAction(menu, u"Disable Velto"_s)->trigger();
        // Saved at once; the scheduler follows once the store is done.
        QCOMPARE(shell.userDefaults->values.value(u"isEnabled"_s), QVariant(false));
        QCOMPARE(shell.breaks().state(), BreakState::Working);
        turnEventLoop();
        QCOMPARE(shell.breaks().state(), BreakState::Idle);
        QVERIFY(!shell.delegate->activityDetector()->isMonitoring());
        shell.delegate->rebuildMenu();
        QCOMPARE(menuTitles(menu), (QStringList{u"Breaks disabled"_s, u"-"_s, u"Enable Velto"_s, u"-"_s,
                                                u"Settings\u2026"_s, u"-"_s, u"Quit Velto"_s}));

        // Enabling starts a full interval, not the remainder of the old one.
        menuAction(menu, u"Enable Velto"_s)->trigger();
        turnEventLoop();
        QCOMPARE(shell.breaks().state(), BreakState::Working);
        QCOMPARE(shell.breaks().timeRemaining(), shell.settings().breakConfiguration().workInterval);
        QVERIFY(shell.delegate->activityDetector()->isMonitoring());
    }

    void menuActionsReachTheScheduler()
    {
        ShellUnderTest shell;
        shell.breaks().workTick();
        QMenu* menu = shell.delegate->statusItem()->menu();
        shell.delegate->rebuildMenu();
        menuAction(menu, u"Pause for 15 Minutes"_s)->trigger();
        QCOMPARE(shell.breaks().state(), BreakState::Paused);
        QVERIFY(shell.breaks().pauseReason()->resumesAt.has_value());
        shell.delegate->rebuildMenu();
        // Whole minutes left plus one: 16 while the first millisecond lasts, 15 after.
        QVERIFY(QRegularExpression(u"^19:59  Paused \u00B7 resumes in 1[56] min$"_s)
                    .match(menuTitles(menu).first())
                    .hasMatch());
        menuAction(menu, u"Resume"_s)->trigger();
        QCOMPARE(shell.breaks().state(), BreakState::Working);

        // A primary action picked from a menu that stayed open is judged on the state now.
        shell.delegate->rebuildMenu();
        QAction* takeBreak = menuAction(menu, u"Take a Break"_s);
        shell.breaks().pause();
        takeBreak->trigger();
        QCOMPARE(shell.breaks().state(), BreakState::Working);

        shell.delegate->rebuildMenu();
        menuAction(menu, u"Quit Velto"_s)->trigger();
        QCOMPARE(shell.quits, 1);
    }

    void withoutWindowsTheCycleRunsAndSettingsSayNotAvailable()
    {
        ShellUnderTest shell(true, false);
        QVERIFY(!shell.delegate->openSettings());
        shell.breaks().takeBreakNow();
        turnEventLoop();
        QCOMPARE(shell.breaks().state(), BreakState::OnBreak);
        QVERIFY(!shell.delegate->breakOverlay());
        for (int i = 0; i < 11; ++i)
            shell.breaks().breakTick();
        shell.delegate->performPrimaryMenuAction();
        turnEventLoop();
        QCOMPARE(shell.breaks().state(), BreakState::Working);
        QCOMPARE(shell.breaks().dailyBreakCount(), 1);
    }

    void breaksShowTheOverlayOnTheNextTurnAndHideIt()
    {
        ShellUnderTest shell;
        shell.breaks().takeBreakNow();
        QCOMPARE(shell.breaks().state(), BreakState::OnBreak);
        // Not yet: the overlay follows once the scheduler's state has settled.
        QVERIFY(!shell.delegate->breakOverlay());
        QCOMPARE(shell.windowRequests, 0);
        turnEventLoop();
        auto* window = dynamic_cast<BreakWindow*>(shell.delegate->breakOverlay());
        QVERIFY(window);
        QCOMPARE(window->windows().size(), QGuiApplication::screens().size());
        QCOMPARE(shell.sounds->names(), QStringList{u"Glass"_s});

        // End Break becomes available in the second half only.
        QVERIFY(!shell.delegate->menuBarPresentation().primaryActionEnabled);
        for (int i = 0; i < 11; ++i)
            shell.breaks().breakTick();
        QVERIFY(shell.delegate->menuBarPresentation().primaryActionEnabled);
        shell.delegate->performPrimaryMenuAction();
        QCOMPARE(shell.breaks().state(), BreakState::Working);
        QCOMPARE(shell.breaks().dailyBreakCount(), 1);
        turnEventLoop();
        QVERIFY(window->windows().isEmpty());
        QCOMPARE(shell.sounds->names(), (QStringList{u"Glass"_s, u"Blow"_s}));

        // The same controller serves the next break.
        shell.breaks().takeBreakNow();
        turnEventLoop();
        QCOMPARE(shell.delegate->breakOverlay(), window);
        QCOMPARE(shell.windowRequests, 1);
        // Switching reminders off mid-break takes the overlay away too.
        shell.settings().setIsEnabled(false);
        turnEventLoop();
        QVERIFY(window->windows().isEmpty());
    }

    void requestsDuringABreakNeitherRestartNorStackIt()
    {
        ShellUnderTest shell;
        shell.delegate->takeBreakNow();
        turnEventLoop();
        auto* window = dynamic_cast<BreakWindow*>(shell.delegate->breakOverlay());
        QVERIFY(window);
        const qsizetype screens = window->windows().size();
        shell.breaks().breakTick();
        const double remaining = shell.breaks().breakTimeRemaining();

        // Each of these once reset the interval under a frozen overlay, or restarted, recounted and stacked it.
        const std::function<void()> requests[] = {
            [&] { shell.delegate->setRemindersEnabled(true); },
            [&] { shell.settings().resetToDefaults(); },
            [&] { shell.delegate->takeBreakNow(); },
            [&] { shell.delegate->startLongBreak(); },
            [&] { shell.delegate->pauseFor(60); },
        };
        for (const auto& request : requests) {
            request();
            turnEventLoop();
            QCOMPARE(shell.breaks().state(), BreakState::OnBreak);
            QCOMPARE(shell.breaks().breakTimeRemaining(), remaining);
            QCOMPARE(shell.breaks().shortBreakCount(), 1);
            QCOMPARE(window->windows().size(), screens);
        }
        // The scheduler restarting a break by itself still shows one set of windows.
        shell.breaks().takeBreakNow();
        turnEventLoop();
        QCOMPARE(window->windows().size(), screens);

        // Ended, the break leaves nothing paused behind that the status would have to report.
        shell.breaks().endBreak(true);
        turnEventLoop();
        QVERIFY(window->windows().isEmpty());
        QCOMPARE(shell.breaks().pauseReason(), std::nullopt);

        // Whatever leaves a break, the windows go with it.
        shell.breaks().takeBreakNow();
        turnEventLoop();
        QCOMPARE(window->windows().size(), screens);
        shell.breaks().start();
        turnEventLoop();
        QVERIFY(window->windows().isEmpty());
    }

    void aBreakAskedForDuringAPauseEndsThePause()
    {
        ShellUnderTest shell;
        shell.delegate->pauseFor(60);
        QCOMPARE(shell.breaks().state(), BreakState::Paused);
        shell.delegate->takeBreakNow();
        QCOMPARE(shell.breaks().state(), BreakState::OnBreak);
        shell.breaks().endBreak(false);
        QCOMPARE(shell.breaks().state(), BreakState::Working);
        QCOMPARE(shell.breaks().pauseReason(), std::nullopt);
        QVERIFY(!shell.delegate->menuBarPresentation().statusText.startsWith(u"Paused"_s));

        // With reminders off there is no break to take and nothing to pause.
        ShellUnderTest off(false);
        off.delegate->takeBreakNow();
        off.delegate->pauseFor(60);
        QCOMPARE(off.breaks().state(), BreakState::Idle);
        QCOMPARE(off.breaks().pauseReason(), PauseReason::appDisabled());
    }

    void statusItemRefreshesOnceAfterTheTickAndRedrawsOnlyOnChange()
    {
        ShellUnderTest shell;
        StatusItem* item = shell.delegate->statusItem();
        turnEventLoop();
        shell.breaks().workTick();
        // Not yet: the refresh reads the scheduler once its fields have settled.
        QCOMPARE(item->toolTip(), u"Velto, Until next break\n20 min remaining"_s);
        shell.breaks().pause();
        QCOMPARE(item->toolTip(), u"Velto, Until next break\n20 min remaining"_s);
        turnEventLoop();
        QCOMPARE(item->toolTip(), u"Velto, Paused\n20 min remaining"_s);
        shell.breaks().resume();
        turnEventLoop();
        const int redraws = item->iconRedraws();
        // Ten seconds change neither the picture nor the tooltip; a minute changes both.
        for (int i = 0; i < 9; ++i) {
            shell.breaks().workTick();
            turnEventLoop();
        }
        QCOMPARE(item->iconRedraws(), redraws);
        QCOMPARE(item->toolTip(), u"Velto, Until next break\n20 min remaining"_s);
        for (int i = 0; i < 51; ++i)
            shell.breaks().workTick();
        turnEventLoop();
        QCOMPARE(item->toolTip(), u"Velto, Until next break\n19 min remaining"_s);
        QCOMPARE(item->iconRedraws(), redraws + 1);

        // Hiding the timer draws the plain icon once; the spoken time stays.
        shell.settings().setShowTimerInMenuBar(false);
        turnEventLoop();
        QCOMPARE(item->iconRedraws(), redraws + 2);
        QCOMPARE(item->toolTip(), u"Velto, Until next break\n19 min remaining"_s);
    }

    void theCardComesBeforeTheBreakAndItsButtonsReachTheScheduler()
    {
        ShellUnderTest shell;
        auto tickToTheCard = [&] {
            while (shell.breaks().timeRemaining() > 60)
                shell.breaks().workTick();
            // The card's window follows on the next turn.
            turnEventLoop();
        };
        tickToTheCard();
        QCOMPARE(shell.presenter->cards.size(), 1);
        QCOMPARE(shell.sounds->names(), QStringList{u"Pop"_s});
        // The card counts down with the scheduler.
        shell.breaks().workTick();
        QCOMPARE(shell.delegate->inAppNotificationManager()->currentTimeRemaining(), 59.0);

        shell.presenter->cards.last().onPause(180);
        QCOMPARE(shell.breaks().state(), BreakState::Paused);
        QVERIFY(shell.breaks().pauseReason()->resumesAt.has_value());
        shell.breaks().resume();
        shell.breaks().skipUpcomingBreak();
        QCOMPARE(shell.breaks().timeRemaining(), shell.settings().breakConfiguration().workInterval);

        tickToTheCard();
        QCOMPARE(shell.presenter->cards.size(), 2);
        shell.presenter->cards.last().onSkip();
        QCOMPARE(shell.breaks().timeRemaining(), shell.settings().breakConfiguration().workInterval);

        tickToTheCard();
        shell.presenter->cards.last().onBreakNow();
        QCOMPARE(shell.breaks().state(), BreakState::OnBreak);
        shell.breaks().endBreak(true);

        // With the card switched off the scheduler still announces the break, and nothing shows.
        NotificationSettings quiet = shell.settings().notificationSettings();
        quiet.showPreBreakNotification = false;
        shell.settings().setNotificationSettings(quiet);
        tickToTheCard();
        shell.breaks().workTick();
        QVERIFY(shell.breaks().preBreakNotificationSent());
        QCOMPARE(shell.presenter->cards.size(), 3);

        // The test card ignores both the settings and the state.
        shell.delegate->triggerTestPreBreakNotification();
        turnEventLoop();
        QCOMPARE(shell.presenter->cards.size(), 4);
        QCOMPARE(shell.delegate->inAppNotificationManager()->currentTimeRemaining(), 45.0);
    }

    void everySymbolTheMenuNamesIsDrawn()
    {
        // The menu's own names and every one the detector may report.
        const QStringList names{u"timer"_s,
                                u"cup.and.saucer"_s,
                                u"cup.and.saucer.fill"_s,
                                u"pause.circle"_s,
                                u"pause.circle.fill"_s,
                                u"pause.fill"_s,
                                u"play.fill"_s,
                                u"stop.fill"_s,
                                u"power"_s,
                                u"gearshape"_s,
                                u"checkmark.circle"_s,
                                u"clock.badge.xmark"_s,
                                u"person.wave.2"_s,
                                u"video.fill"_s,
                                u"camera.fill"_s,
                                u"mic.fill"_s,
                                u"play.rectangle"_s,
                                u"record.circle"_s,
                                u"gamecontroller"_s,
                                u"scope"_s,
                                u"moon"_s,
                                u"hourglass"_s};
        for (const QString& name : names) {
            QVERIFY2(MenuSymbols::isKnown(name), qPrintable(name));
            QVERIFY(!MenuSymbols::icon(name, Qt::black).pixmap(16).isNull());
        }
        QVERIFY(!MenuSymbols::isKnown(u"no.such.symbol"_s));
        QVERIFY(!MenuSymbols::icon(u"no.such.symbol"_s, Qt::black).pixmap(16).isNull());

        // From the desktop's theme, the symbolic variant where it has one.
        QTemporaryDir themes;
        const QString theme = themes.filePath(u"t"_s);
        QVERIFY(QDir().mkpath(theme + u"/scalable"_s));
        QFile index(theme + u"/index.theme"_s);
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("[Icon Theme]\nName=t\nDirectories=scalable\n[scalable]\nSize=16\nType=Scalable\n");
        index.close();
        for (const QString& file :
             {u"media-playback-pause"_s, u"media-playback-pause-symbolic"_s, u"media-playback-start"_s})
            QVERIFY(QFile::copy(u":/velto/symbols/timer.svg"_s, theme + u"/scalable/"_s + file + u".svg"_s));
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName(u"t"_s);
        QCOMPARE(MenuSymbols::icon(u"pause.fill"_s, Qt::black).name(), u"media-playback-pause-symbolic"_s);
        QCOMPARE(MenuSymbols::icon(u"play.fill"_s, Qt::black).name(), u"media-playback-start"_s);
        QIcon::setThemeName({});
    }

    void smartPauseChangesReachTheDetectorWithoutResettingTheCountdown()
    {
        ShellUnderTest shell;
        shell.breaks().workTick();
        const double remaining = shell.breaks().timeRemaining();
        SmartPauseSettings changed = shell.settings().smartPauseSettings();
        changed.idleThreshold = 300;
        changed.detectVideoPlayback = !changed.detectVideoPlayback;
        shell.settings().setSmartPauseSettings(changed);
        QCOMPARE(shell.delegate->activityDetector()->settings(), changed);
        QCOMPARE(shell.delegate->activityDetector()->idleThreshold(), 300.0);
        QCOMPARE(shell.breaks().timeRemaining(), remaining);
        QVERIFY(shell.delegate->activityDetector()->isMonitoring());
    }

    void sleepSignalsFreezeTheCountdown()
    {
        ShellUnderTest shell;
        shell.breaks().workTick();
        const double remaining = shell.breaks().timeRemaining();
        auto emitSignal = [](QDBusConnection bus, const QString& path, const QString& interface, const QString& name,
                             bool value) {
            QDBusMessage message = QDBusMessage::createSignal(path, interface, name);
            message << value;
            QVERIFY(bus.send(message));
        };
        auto system = QDBusConnection::connectToBus(m_systemBus.address(), u"fake-logind"_s);
        // Only logind may say the machine sleeps.
        QVERIFY(system.registerService(u"org.freedesktop.login1"_s));
        emitSignal(system, u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s,
                   true);
        QTRY_VERIFY(shell.breaks().sleepingSources().count(SleepSource::System));
        QVERIFY(!shell.breaks().isWorkTimerActive());
        emitSignal(system, u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s,
                   false);
        QTRY_VERIFY(shell.breaks().sleepingSources().empty());

        // A locked screen goes on counting; displays that power down freeze the countdown.
        auto session = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"fake-desktop"_s);
        emitSignal(session, u"/org/gnome/ScreenSaver"_s, u"org.gnome.ScreenSaver"_s, u"ActiveChanged"_s, true);
        auto powerSave = [&](int mode) {
            QDBusMessage message = QDBusMessage::createSignal(
                u"/org/gnome/Mutter/DisplayConfig"_s, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
            message << u"org.gnome.Mutter.DisplayConfig"_s << QVariantMap{{u"PowerSaveMode"_s, mode}} << QStringList{};
            QVERIFY(session.send(message));
        };
        powerSave(3);
        QTRY_VERIFY(shell.breaks().sleepingSources().count(SleepSource::Display));
        QCOMPARE(shell.breaks().timeRemaining(), remaining);
        powerSave(0);
        QTRY_VERIFY(shell.breaks().sleepingSources().empty());
        QVERIFY(shell.breaks().isWorkTimerActive());
        QDBusConnection::disconnectFromBus(u"fake-logind"_s);
        QDBusConnection::disconnectFromBus(u"fake-desktop"_s);
    }

private:
    PrivateSystemBus m_systemBus;
};

QTEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
