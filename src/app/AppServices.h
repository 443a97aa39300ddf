#pragma once

#include "detection/ApplicationInfoProviding.h"
#include "detection/DetectionProviders.h"
#include "detection/GnomeExtension.h"
#include "history/HistoryStoring.h"
#include "notification/NotificationWindowPresenting.h"
#include "scheduling/KeyDownTimeProviding.h"
#include "scheduling/ScreenLocking.h"
#include "scheduling/SoundPlaying.h"
#include "settings/LaunchAtLoginControlling.h"
#include "settings/UserDefaultsStore.h"
#include "windows/LazyWindows.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace velto {

class DesktopColorScheme;
class SystemSleepSignals;

// What the shell takes from the platform. system() makes the real ones for this session; tests hand in fakes.
struct AppServices {
    std::unique_ptr<UserDefaultsStore> userDefaults;
    std::unique_ptr<LaunchAtLoginControlling> launchAtLogin;
    DetectionProviders detectionProviders;
    std::unique_ptr<KeyDownTimeProviding> keyDownTime;
    // Which mechanism answers each detection capability in this session, for the status report; none in tests.
    std::function<QVariantMap()> detectionSources;
    std::unique_ptr<SoundPlaying> sounds;
    std::unique_ptr<ScreenLocking> screenLock;
    std::unique_ptr<SystemSleepSignals> sleepSignals;
    // Follows the desktop's light or dark preference with the application's palette; none in tests.
    std::unique_ptr<DesktopColorScheme> colorScheme;
    // The break screen, the card and the settings window; none (or a null answer) shows nothing.
    WindowsSource windows;
    // The pre-break card's window; when none is given the shell asks the windows for it on the first card.
    std::unique_ptr<NotificationWindowPresenting> notificationPresenter;
    // Names and icons for the settings window's list of running applications; none is fine.
    std::unique_ptr<ApplicationInfoProviding> applicationInfo;
    // Velto's GNOME Shell extension, for the settings window, in sessions where Smart Pause needs it to see
    // windows (Wayland); none elsewhere and in tests.
    std::unique_ptr<GnomeExtensionControlling> gnomeExtension;
    // Where the break history is kept; none keeps no history.
    std::unique_ptr<HistoryStoring> historyStore;
    // Off in tests: the updater reaches out to the network on its own schedule.
    bool runsUpdater = false;
    // A distribution's package: its package manager updates Velto, and the About pane says so.
    bool updatedBySystem = false;

    [[nodiscard]] static AppServices system();

    AppServices();
    AppServices(AppServices&&) noexcept;
    AppServices& operator=(AppServices&&) noexcept;
    ~AppServices();
};

} // namespace velto
