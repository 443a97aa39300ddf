#include "AppDelegate.h"

#include "LaunchAtLoginService.h"
#include "StandardUpdaterController.h"
#include "UpdateAvailabilityModel.h"
#include "UpdateWindow.h"
#include "XdgAutostartEntry.h"
#include "scheduling/BreakManager.h"
#include "settings/SettingsFileStore.h"
#include "settings/SettingsManager.h"

#include <QCoreApplication>
#include <QDesktopServices>

namespace velto {

AppDelegate::AppDelegate(QObject* parent)
    : QObject(parent)
    , m_userDefaults(std::make_unique<SettingsFileStore>(SettingsFileStore::defaultFilePath()))
    , m_launchAtLoginService(std::make_unique<LaunchAtLoginService>(
          std::make_unique<XdgAutostartEntry>(QCoreApplication::applicationFilePath())))
{
    m_settingsManager = new SettingsManager(*m_userDefaults, m_launchAtLoginService.get(), this);
    // Days and office hours follow the system's local time as it changes.
    m_breakManager = new BreakManager(*m_userDefaults, std::nullopt, {}, this);
    m_breakManager->setSettingsManager(m_settingsManager);

    // The updater starts at once and runs its own daily checks; the model publishes what they find.
    m_updateAvailability = new UpdateAvailabilityModel(this);
    const QString version = QCoreApplication::applicationVersion();
    m_updaterController =
        new StandardUpdaterController(defaultUpdaterConfiguration(version), m_userDefaults.get(), m_updateAvailability,
                                      std::make_unique<UpdateWindowDriver>(version), {}, this);
    m_updaterController->updater()->setOnOpenUrl([](const QUrl& url) { QDesktopServices::openUrl(url); });
}

// The children write to the store, so they go first.
AppDelegate::~AppDelegate()
{
    delete m_updaterController;
    delete m_breakManager;
    delete m_settingsManager;
}

void AppDelegate::applicationDidFinishLaunching()
{
    connect(m_settingsManager, &SettingsManager::isEnabledChanged, m_breakManager,
            [this](bool enabled) { enabled ? m_breakManager->start() : m_breakManager->stop(); });
    m_settingsManager->isEnabled() ? m_breakManager->start() : m_breakManager->stop();
}

} // namespace velto
