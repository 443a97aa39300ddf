#include "AppDelegate.h"

#include "DesktopColorScheme.h"
#include "StandardUpdaterController.h"
#include "SystemSleepSignals.h"
#include "SystemTrayHostWatch.h"
#include "Translations.h"
#include "UpdateAvailabilityModel.h"
#include "UpdateWindow.h"
#include "VeltoWindows.h"
#include "detection/ActivityDetector.h"
#include "history/HistoryRecorder.h"
#include "notification/InAppNotificationManager.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsManager.h"
#include "tray/ShellIndicator.h"
#include "tray/StatusItem.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMetaEnum>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace velto {

AppDelegate::AppDelegate(AppServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
{
    m_settingsManager = new SettingsManager(*m_services.userDefaults, m_services.launchAtLogin.get(), this);
    // Days and office hours follow the system's local time as it changes.
    m_breakManager = new BreakManager(*m_services.userDefaults, std::nullopt, {}, this);
    m_breakManager->setKeyDownTimeProvider(m_services.keyDownTime.get());
    auto presenter = std::move(m_services.notificationPresenter);
    if (!presenter)
        presenter = std::make_unique<LazyNotificationPresenter>(m_services.windows);
    m_inAppNotificationManager =
        new InAppNotificationManager(std::move(presenter), m_services.sounds.get(), m_settingsManager, {}, {}, this);
    // Built now, started only when reminders are on.
    m_activityDetector = new ActivityDetector(std::move(m_services.detectionProviders), this);
    if (m_services.historyStore) {
        // Days follow the system's local time as it changes, as the daily count's do.
        m_historyRecorder = new HistoryRecorder(*m_services.historyStore, m_services.userDefaults.get(), std::nullopt,
                                                HistoryRecorder::Clock(), this);
        m_historyRecorder->watchScheduler(m_breakManager);
        m_historyRecorder->watchCard(m_inAppNotificationManager);
        m_historyRecorder->watchDetector(m_activityDetector);
    }

    // The updater starts at once and runs its own daily checks; the model publishes what they find.
    m_updateAvailability = new UpdateAvailabilityModel(this);
    m_updateAvailability->setUpdatedBySystem(m_services.updatedBySystem);
    if (m_services.runsUpdater) {
        const QString version = QCoreApplication::applicationVersion();
        m_updaterController = new StandardUpdaterController(defaultUpdaterConfiguration(version),
                                                            m_services.userDefaults.get(), m_updateAvailability,
                                                            std::make_unique<UpdateWindowDriver>(version), {}, this);
        m_updaterController->updater()->setOnOpenUrl([](const QUrl& url) { QDesktopServices::openUrl(url); });
    }
}

// The children write to the store, which the services own, so they go first.
AppDelegate::~AppDelegate()
{
    m_settingsWindows.reset();
    m_breakOverlay.reset();
    // Writes what it still holds to the history store, which the services own.
    delete m_historyRecorder;
    delete m_statusItem;
    delete m_updaterController;
    delete m_activityDetector;
    delete m_inAppNotificationManager;
    delete m_breakManager;
    delete m_settingsManager;
}

StatusItem* AppDelegate::statusItem() const
{
    return m_statusItem;
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_statusItem = new StatusItem(this);
    // The icon waits for a tray host: Qt settles how to show it once per process, and at login the panel often
    // comes up after Velto.
    m_trayHostWatch = new SystemTrayHostWatch(this);
    connect(m_trayHostWatch, &SystemTrayHostWatch::hostAppeared, this, [this] {
        if (m_statusItem && m_statusItem->setUp())
            scheduleStatusItemUpdate();
    });
    // Without any display the start-up has already said there is no tray icon.
    connect(m_trayHostWatch, &SystemTrayHostWatch::noHostAtStart, this, [] {
        if (QGuiApplication::platformName() != u"offscreen"_s) {
            //: Said on standard error at start, after "velto: ". `velto settings` is a command: keep it as it is.
            const QString text = tr("no system tray found yet; breaks still run, `velto settings` opens the settings, "
                                    "and the icon appears when a tray does");
            std::fprintf(stderr, "velto: %s\n", qPrintable(text));
        }
    });
    // Where no tray exists, Velto's GNOME Shell extension draws an indicator from the same icon and menu.
    m_shellIndicator = new ShellIndicator(this);
    m_shellIndicator->registerOn(QDBusConnection::sessionBus());
    m_shellIndicator->menuItems = [self = QPointer(this)] {
        return self ? self->statusMenuItems() : QList<StatusMenuItem>();
    };
    m_shellIndicator->onAction = [self = QPointer(this)](MenuAction action) {
        if (self)
            self->perform(action);
    };
    m_statusItem->onMenuNeedsUpdate = [self = QPointer(this)] {
        if (self)
            self->rebuildMenu();
    };
    m_statusItem->onAction = [self = QPointer(this)](MenuAction action) {
        if (self)
            self->perform(action);
    };
    wireComponents();
}

void AppDelegate::wireComponents()
{
    const QPointer<AppDelegate> self(this);
    m_breakManager->setSettingsManager(m_settingsManager);
    if (m_services.colorScheme)
        m_services.colorScheme->start();

    if (auto* sleep = m_services.sleepSignals.get()) {
        connect(sleep, &SystemSleepSignals::willSleep, m_breakManager, &BreakManager::handleSleep);
        connect(sleep, &SystemSleepSignals::didWake, m_breakManager, &BreakManager::handleWake);
        // Displays that power down without an event are noticed on the countdown's own ticks.
        connect(m_breakManager, &BreakManager::timeRemainingChanged, sleep, &SystemSleepSignals::recheckDisplayPower);
        connect(m_breakManager, &BreakManager::breakTimeRemainingChanged, sleep,
                &SystemSleepSignals::recheckDisplayPower);
    }

    // The overlay follows on the next turn of the event loop, once the scheduler's state has settled.
    m_breakManager->onBreakStart = [self](BreakType type) {
        QMetaObject::invokeMethod(
            self,
            [self, type] {
                if (!self)
                    return;
                // One set of windows a break: a request that restarts a running break finds them up.
                if (self->m_breakOverlay && self->m_breakOverlay->isShowing())
                    return;
                if (!self->m_breakOverlay) {
                    VeltoWindows* windows = self->m_services.windows ? self->m_services.windows() : nullptr;
                    if (!windows)
                        return;
                    self->m_breakOverlay =
                        windows->makeBreakOverlay(self->m_settingsManager, self->m_breakManager,
                                                  self->m_services.sounds.get(), self->m_services.screenLock.get());
                }
                self->m_breakOverlay->show(type);
            },
            Qt::QueuedConnection);
    };
    m_breakManager->onBreakEnd = [self] {
        QMetaObject::invokeMethod(
            self,
            [self] {
                if (self && self->m_breakOverlay)
                    self->m_breakOverlay->hide();
            },
            Qt::QueuedConnection);
    };

    // However the break ends (its countdown, a skip, reminders switched off or on), the overlay must not
    // outlive it: its Skip and End Break would do nothing and leave the user locked out. Checked on the next
    // turn, after the break's own end has asked the windows to go.
    connect(m_breakManager, &BreakManager::stateChanged, this, [this](BreakState state) {
        if (state == BreakState::OnBreak)
            return;
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_breakManager->state() != BreakState::OnBreak && m_breakOverlay && m_breakOverlay->isShowing())
                    m_breakOverlay->hide();
            },
            Qt::QueuedConnection);
    });

    m_breakManager->onTimerUpdate = [self](double seconds) {
        if (self)
            self->m_inAppNotificationManager->updateTimeRemaining(seconds);
    };

    connect(m_breakManager, &BreakManager::objectWillChange, this, &AppDelegate::scheduleStatusItemUpdate);
    connect(m_settingsManager, &SettingsManager::showTimerInMenuBarChanged, this,
            &AppDelegate::scheduleStatusItemUpdate);
    scheduleStatusItemUpdate();

    m_breakManager->onPreBreakNotification = [self](BreakType type, double seconds) {
        // Shown only when the user wants the card, for as long as the settings say.
        if (self)
            self->m_inAppNotificationManager->handlePreBreakNotification(type, seconds);
    };
    m_inAppNotificationManager->onBreakNow = [self] {
        if (self)
            self->requestBreak(BreakOrigin::Card, false);
    };
    m_inAppNotificationManager->onPause = [self](double seconds) {
        if (self)
            self->pauseFor(seconds);
    };
    m_inAppNotificationManager->onSkip = [self] {
        if (self)
            self->m_breakManager->skipUpcomingBreak();
    };

    applySmartPauseSettings();
    m_breakManager->setActivityDetector(m_activityDetector);
    // The current values were applied just above; these react to later changes only.
    connect(m_settingsManager, &SettingsManager::smartPauseSettingsChanged, this,
            &AppDelegate::applySmartPauseSettings);
    connect(
        m_settingsManager, &SettingsManager::isEnabledChanged, this, [this](bool enabled) { applyEnabled(enabled); },
        Qt::QueuedConnection);

    applyEnabled(m_settingsManager->isEnabled());
    updateStatusItem();
}

void AppDelegate::applySmartPauseSettings()
{
    const SmartPauseSettings settings = m_settingsManager->smartPauseSettings();
    m_activityDetector->setSettings(settings);
    m_activityDetector->setIdleThreshold(settings.idleThreshold);
}

void AppDelegate::applyEnabled(bool enabled)
{
    // The store announces every write, also of the value it already holds (`velto enable`, Reset to
    // Defaults): only a real switch starts or stops anything, so a running break or interval goes on.
    if (m_appliedEnabled == enabled)
        return;
    m_appliedEnabled = enabled;
    if (enabled) {
        m_breakManager->start();
        m_activityDetector->startMonitoring();
        return;
    }
    m_breakManager->stop();
    m_activityDetector->stopMonitoring();
}

void AppDelegate::scheduleStatusItemUpdate()
{
    // Many fields change in one tick; one refresh after they all settled reads the same values.
    if (m_statusItemUpdateQueued)
        return;
    m_statusItemUpdateQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_statusItemUpdateQueued = false;
            updateStatusItem();
        },
        Qt::QueuedConnection);
}

MenuBarPresentation AppDelegate::menuBarPresentation() const
{
    MenuBarInputs in;
    in.state = m_breakManager->state();
    in.pauseReason = m_breakManager->pauseReason();
    in.timeRemaining = m_breakManager->timeRemaining();
    in.breakTimeRemaining = m_breakManager->breakTimeRemaining();
    in.canEndBreakEarly = m_breakManager->canEndBreakEarly();
    in.showTimerInMenuBar = m_settingsManager->showTimerInMenuBar();
    in.allowEarlyEnd = m_settingsManager->breakConfiguration().allowEarlyEnd;
    if (const ActivityDetecting* detector = m_breakManager->activityDetector()) {
        in.activityStatusText = detector->activityStatusText();
        in.activityStatusSymbolName = detector->activityStatusSymbolName();
    }
    in.now = QDateTime::currentDateTime();
    return makeMenuBarPresentation(in);
}

QList<StatusMenuItem> AppDelegate::statusMenuItems() const
{
    StatusMenuInputs in;
    in.isEnabled = m_settingsManager->isEnabled();
    in.dailyBreakCount = m_breakManager->dailyBreakCount();
    in.longBreakEnabled = m_settingsManager->breakConfiguration().longBreakEnabled;
    in.state = m_breakManager->state();
    in.pauseReason = m_breakManager->pauseReason();
    return makeStatusMenuItems(menuBarPresentation(), in);
}

void AppDelegate::updateStatusItem()
{
    if (!m_statusItem)
        return;
    const MenuBarPresentation presentation = menuBarPresentation();
    const BreakConfiguration config = m_settingsManager->breakConfiguration();
    const BreakState state = m_breakManager->state();
    const bool onBreak = state == BreakState::OnBreak;
    const double remaining = onBreak ? m_breakManager->breakTimeRemaining() : m_breakManager->timeRemaining();
    const double total = !onBreak                                                ? config.workInterval
                         : m_breakManager->currentBreakType() == BreakType::Long ? config.longBreakDuration
                                                                                 : config.shortBreakDuration;
    const TrayIconFace face = makeTrayIconFace(presentation, state, remaining, total);
    const TrayAccessibleTexts texts = makeTrayAccessibleTexts(presentation, remaining);
    m_statusItem->update(face, texts);
    if (m_shellIndicator)
        m_shellIndicator->update(face, texts);
}

void AppDelegate::rebuildMenu()
{
    if (m_statusItem)
        m_statusItem->rebuildMenu(statusMenuItems());
}

void AppDelegate::perform(MenuAction action)
{
    switch (action) {
    case MenuAction::ToggleBreakReminders:
        return toggleBreakReminders();
    case MenuAction::PerformPrimaryMenuAction:
        return performPrimaryMenuAction();
    case MenuAction::StartLongBreakFromMenu:
        return startLongBreakFromMenu();
    case MenuAction::PauseFromMenu:
        return pauseFromMenu();
    case MenuAction::OpenSettingsFromMenu:
        return openSettingsFromMenu();
    case MenuAction::QuitFromMenu:
        return quitFromMenu();
    case MenuAction::None:
        return;
    }
}

void AppDelegate::toggleBreakReminders()
{
    // The setter saves; starting or stopping follows from the change on the next turn.
    m_settingsManager->setIsEnabled(!m_settingsManager->isEnabled());
}

void AppDelegate::performPrimaryMenuAction()
{
    // The menu may have stayed open while the state moved on; what counts is the state now.
    switch (menuBarPresentation().primaryAction) {
    case MenuBarPrimaryAction::TakeBreak:
        requestBreak(BreakOrigin::Menu, false);
        break;
    case MenuBarPrimaryAction::Resume:
        m_breakManager->resume();
        break;
    case MenuBarPrimaryAction::EndBreak:
        if (m_breakManager->canEndBreakEarly())
            m_breakManager->endBreak(true);
        break;
    case MenuBarPrimaryAction::None:
        break;
    }
}

void AppDelegate::startLongBreakFromMenu()
{
    requestBreak(BreakOrigin::Menu, true);
}

void AppDelegate::pauseFromMenu()
{
    pauseFor(15 * 60);
}

void AppDelegate::openSettingsFromMenu()
{
    openSettings();
}

void AppDelegate::quitFromMenu()
{
    quit();
}

namespace {

// The raw names the persisted enumerations use: the case name with a lower-case first letter.
template <typename Enum>
QString rawName(Enum value)
{
    QString name = QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
    if (!name.isEmpty())
        name[0] = name[0].toLower();
    return name;
}

} // namespace

ControlStatus AppDelegate::controlStatus() const
{
    ControlStatus status;
    status.localStatusLine = statusMenuItems().value(0).title;
    {
        // For scripts: the same in every language.
        const ScopedEnglishTexts english;
        status.statusLine = statusMenuItems().value(0).title;
    }
    status.timeText = menuBarPresentation().timeText;
    status.state = rawName(m_breakManager->state());
    if (const auto reason = m_breakManager->pauseReason())
        status.pauseReason = rawName(reason->kind);
    status.breaksToday = int(m_breakManager->dailyBreakCount());
    status.enabled = m_settingsManager->isEnabled();
    if (m_services.detectionSources)
        status.detection = m_services.detectionSources();
    return status;
}

bool AppDelegate::readyForRequestedBreak()
{
    switch (m_breakManager->state()) {
    case BreakState::Working:
        return true;
    case BreakState::Paused:
        // The break ends the pause: afterwards the countdown runs, and the status must not say "Paused".
        m_breakManager->resume();
        return true;
    case BreakState::OnBreak: // one break at a time; a second request would restart and recount it
    case BreakState::Idle:    // reminders are off, and the menu offers no break then either
        return false;
    }
    return false;
}

void AppDelegate::requestBreak(BreakOrigin origin, bool longBreak)
{
    if (!readyForRequestedBreak())
        return;
    if (longBreak)
        m_breakManager->startLongBreak(origin);
    else
        m_breakManager->takeBreakNow(origin);
}

void AppDelegate::takeBreakNow()
{
    requestBreak(BreakOrigin::CommandLine, false);
}

void AppDelegate::startLongBreak()
{
    requestBreak(BreakOrigin::CommandLine, true);
}

void AppDelegate::pauseFor(double seconds)
{
    // Only a running countdown can be paused; a pause noted during a break or while reminders are off would
    // outlast it and leave the countdown running under a "Paused" status.
    const BreakState state = m_breakManager->state();
    if (state == BreakState::Working || state == BreakState::Paused)
        m_breakManager->pauseFor(seconds);
}

void AppDelegate::resume()
{
    m_breakManager->resume();
}

void AppDelegate::skipUpcomingBreak()
{
    m_breakManager->skipUpcomingBreak();
}

void AppDelegate::setRemindersEnabled(bool enabled)
{
    m_settingsManager->setIsEnabled(enabled);
}

bool AppDelegate::openSettings()
{
    // Shared by the menu and the command line; made on first use, from the windows module.
    if (!m_settingsWindows) {
        VeltoWindows* windows = m_services.windows ? m_services.windows() : nullptr;
        if (!windows)
            return false;
        // What detection sees is asked each time the window opens; no sources tell nothing.
        auto detectionSources = [this] {
            return m_services.detectionSources ? m_services.detectionSources() : QVariantMap();
        };
        m_settingsWindows = windows->makeSettingsWindows(
            {m_services.screenLock.get(), m_activityDetector->workspace(), m_services.applicationInfo.get(),
             m_updateAvailability, &m_services.userDefaults->writeState(), detectionSources,
             qEnvironmentVariable("XDG_CURRENT_DESKTOP"), m_services.gnomeExtension.get(), m_historyRecorder});
    }
    m_settingsWindows->showSettings(m_settingsManager, m_breakManager);
    return true;
}

void AppDelegate::quit()
{
    if (onQuit)
        onQuit();
    else
        QCoreApplication::quit();
}

void AppDelegate::checkForUpdates(std::function<void(bool, const QString&)> done)
{
    Updater* updater = m_updaterController ? m_updaterController->updater() : nullptr;
    if (!updater) {
        //: The answer to `velto check-updates` when Velto came from a distribution's package.
        done(false, tr("this Velto does not check for updates; the system's package manager updates it"));
        return;
    }
    // The same check as the About pane's button, told on the command line instead of in a window. A check
    // already running answers this request too.
    auto finished = std::make_shared<QMetaObject::Connection>();
    *finished = connect(updater, &Updater::checkFinished, this, [updater, finished, done] {
        QObject::disconnect(*finished);
        done(!updater->lastCheckFailed(), updater->lastOutcomeText());
    });
    updater->checkForUpdatesInBackground();
}

void AppDelegate::triggerTestPreBreakNotification()
{
    m_inAppNotificationManager->showPreBreakNotification(BreakType::Short, 45, 8);
}

} // namespace velto
