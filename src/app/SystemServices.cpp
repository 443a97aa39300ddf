#include "AppServices.h"
#include "BusNamePresence.h"
#include "DesktopApplicationInfo.h"
#include "DesktopColorScheme.h"
#include "DesktopNotificationPresenter.h"
#include "LaunchAtLoginService.h"
#include "LayerShell.h"
#include "SystemDetectionProviders.h"
#include "SystemGnomeExtension.h"
#include "SystemScreenLock.h"
#include "SystemSleepSignals.h"
#include "VeltoWindows.h"
#include "XdgAutostartEntry.h"
#include "history/SqliteHistoryStore.h"
#include "settings/SettingsFileStore.h"
#include "wayland/GnomeShellToplevels.h"
#include "windows/LazyWindows.h"
#include "windows/WindowsModuleLoader.h"

#include <QCoreApplication>
#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace velto {

AppServices AppServices::system()
{
    AppServices services;
    services.userDefaults = std::make_unique<SettingsFileStore>(SettingsFileStore::defaultFilePath());
    services.launchAtLogin = std::make_unique<LaunchAtLoginService>(
        std::make_unique<XdgAutostartEntry>(QCoreApplication::applicationFilePath()));
    // One index of installed applications serves detection and the settings window.
    auto desktopEntries = std::make_shared<DesktopEntryIndex>();
    SystemDetection detection = makeSystemDetection(desktopEntries);
    services.detectionProviders = std::move(detection.providers);
    services.keyDownTime = std::move(detection.keyDownTime);
    services.detectionSources = std::move(detection.sources);
    services.applicationInfo = std::make_unique<DesktopApplicationInfo>(desktopEntries);
    // On X11 windows are seen without it. It asks nothing until the settings window opens.
    if (qEnvironmentVariable("XDG_SESSION_TYPE") == u"wayland"_s || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        services.gnomeExtension = std::make_unique<SystemGnomeExtension>(QDBusConnection::sessionBus());
    // Windows and chimes come from their module, loaded when the first of them is due; on Wayland they learn
    // where the focused window is from detection's own link.
    services.windows = veltoWindows;
    if (detection.focusedOutput) {
        services.windows = [focused = std::move(detection.focusedOutput), told = false]() mutable -> VeltoWindows* {
            VeltoWindows* windows = veltoWindows();
            if (windows && !std::exchange(told, true))
                windows->setFocusedOutputSource(focused);
            return windows;
        };
    }
    services.sounds = std::make_unique<LazySoundPlayer>(services.windows);
    // Where no window of ours can be shown without taking the focus (a Wayland desktop without layers), the
    // card comes as a desktop notification; asked at the first card, when the compositor is known. On GNOME,
    // while Velto's Shell extension runs, it keeps Velto's own card in place and unfocused.
    services.notificationPresenter = std::make_unique<LazyNotificationPresenter>(
        services.windows,
        []() -> std::unique_ptr<NotificationWindowPresenting> {
            if (!QGuiApplication::platformName().startsWith(u"wayland"_s) || LayerShell::isAvailable())
                return nullptr;
            return DesktopNotificationPresenter::create(QDBusConnection::sessionBus());
        },
        [extension = QGuiApplication::platformName().startsWith(u"wayland"_s)
                         ? std::make_shared<BusNamePresence>(QDBusConnection::sessionBus(),
                                                             QString(GnomeShellToplevels::service))
                         : nullptr] { return !extension || !extension->isPresent(); });
    services.screenLock = std::make_unique<SystemScreenLock>();
    services.sleepSignals = std::make_unique<SystemSleepSignals>();
    services.colorScheme = std::make_unique<DesktopColorScheme>(QDBusConnection::sessionBus());
    // Off in distribution packages: the package manager brings new versions.
    services.historyStore = std::make_unique<SqliteHistoryStore>(SqliteHistoryStore::defaultPath());
    services.runsUpdater = VELTO_UPDATE_CHECKS;
    services.updatedBySystem = !VELTO_UPDATE_CHECKS;
    return services;
}

} // namespace velto
