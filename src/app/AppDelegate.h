#pragma once

#include "AppServices.h"
#include "ControlTarget.h"
#include "shell/MenuBarPresentation.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace velto {

class ActivityDetector;
class BreakManager;
class BreakOverlay;
class HistoryRecorder;
class InAppNotificationManager;
class SettingsWindows;
class SettingsManager;
class StandardUpdaterController;
class ShellIndicator;
class StatusItem;
class SystemTrayHostWatch;
class UpdateAvailabilityModel;

// The composition root: builds every long-lived component in order, hands each its collaborators, connects
// them and owns them for the life of the process. There is no main window; quitting happens only through the
// menu or the command line.
class AppDelegate final : public QObject, public ControlTarget {
    Q_OBJECT

public:
    explicit AppDelegate(AppServices services, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Sets up the tray icon, then connects the components and starts them when reminders are on.
    void applicationDidFinishLaunching();

    [[nodiscard]] MenuBarPresentation menuBarPresentation() const;
    [[nodiscard]] QList<StatusMenuItem> statusMenuItems() const;
    void updateStatusItem();
    void rebuildMenu();

    // The menu's operations; the command line reaches the same ones.
    Q_INVOKABLE void toggleBreakReminders();
    Q_INVOKABLE void performPrimaryMenuAction();
    Q_INVOKABLE void startLongBreakFromMenu();
    Q_INVOKABLE void pauseFromMenu();
    Q_INVOKABLE void openSettingsFromMenu();
    Q_INVOKABLE void quitFromMenu();
    Q_INVOKABLE void triggerTestPreBreakNotification() override;
    void checkForUpdates(std::function<void(bool completed, const QString& outcome)> done) override;
    void perform(MenuAction action);

    // What the command line reaches: the same operations as the menu and the card.
    [[nodiscard]] ControlStatus controlStatus() const override;
    void takeBreakNow() override;
    void startLongBreak() override;
    void pauseFor(double seconds) override;
    void resume() override;
    void skipUpcomingBreak() override;
    void setRemindersEnabled(bool enabled) override;
    bool openSettings() override;
    void quit() override;

    [[nodiscard]] SettingsManager* settingsManager() const { return m_settingsManager; }
    [[nodiscard]] BreakManager* breakManager() const { return m_breakManager; }
    [[nodiscard]] ActivityDetector* activityDetector() const { return m_activityDetector; }
    [[nodiscard]] InAppNotificationManager* inAppNotificationManager() const { return m_inAppNotificationManager; }
    // Null when there is no history store.
    [[nodiscard]] HistoryRecorder* historyRecorder() const { return m_historyRecorder; }
    // Made on first use; null before, and when there are no windows.
    [[nodiscard]] SettingsWindows* settingsWindows() const { return m_settingsWindows.get(); }
    [[nodiscard]] BreakOverlay* breakOverlay() const { return m_breakOverlay.get(); }
    [[nodiscard]] StatusItem* statusItem() const;
    [[nodiscard]] UpdateAvailabilityModel* updateAvailability() const { return m_updateAvailability; }
    [[nodiscard]] const AppServices& services() const { return m_services; }

    // How the process ends; by default the application's event loop quits.
    std::function<void()> onQuit;

private:
    void wireComponents();
    void applySmartPauseSettings();
    void applyEnabled(bool enabled);
    // Whether a break asked for now may start; ends a manual pause first.
    bool readyForRequestedBreak();
    void requestBreak(BreakOrigin origin, bool longBreak);
    void scheduleStatusItemUpdate();

    AppServices m_services;
    QPointer<StatusItem> m_statusItem;
    QPointer<ShellIndicator> m_shellIndicator;
    SettingsManager* m_settingsManager = nullptr;
    BreakManager* m_breakManager = nullptr;
    InAppNotificationManager* m_inAppNotificationManager = nullptr;
    ActivityDetector* m_activityDetector = nullptr;
    HistoryRecorder* m_historyRecorder = nullptr;
    UpdateAvailabilityModel* m_updateAvailability = nullptr;
    StandardUpdaterController* m_updaterController = nullptr;
    std::unique_ptr<SettingsWindows> m_settingsWindows;
    std::unique_ptr<BreakOverlay> m_breakOverlay;
    QPointer<SystemTrayHostWatch> m_trayHostWatch;
    bool m_statusItemUpdateQueued = false;
    std::optional<bool> m_appliedEnabled;
};

} // namespace velto
