#include "AppServices.h"
#include "DesktopApplicationInfo.h"
#include "LaunchAtLoginService.h"
#include "SystemDetectionProviders.h"
#include "SystemScreenLock.h"
#include "SystemSleepSignals.h"
#include "XdgAutostartEntry.h"
#include "settings/SettingsFileStore.h"
#include "windows/LazyWindows.h"
#include "windows/WindowsModuleLoader.h"

#include <QCoreApplication>

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
    // Windows and chimes come from their module, loaded when the first of them is due.
    services.windows = veltoWindows;
    services.sounds = std::make_unique<LazySoundPlayer>(services.windows);
    services.screenLock = std::make_unique<SystemScreenLock>();
    services.sleepSignals = std::make_unique<SystemSleepSignals>();
    services.runsUpdater = true;
    return services;
}

} // namespace velto
