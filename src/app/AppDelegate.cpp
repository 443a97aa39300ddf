#include "AppDelegate.h"

#include "LaunchAtLoginService.h"
#include "XdgAutostartEntry.h"
#include "settings/SettingsFileStore.h"
#include "settings/SettingsManager.h"

#include <QCoreApplication>

namespace velto {

AppDelegate::AppDelegate(QObject* parent)
    : QObject(parent)
    , m_userDefaults(std::make_unique<SettingsFileStore>(SettingsFileStore::defaultFilePath()))
    , m_launchAtLoginService(std::make_unique<LaunchAtLoginService>(
          std::make_unique<XdgAutostartEntry>(QCoreApplication::applicationFilePath())))
{
    m_settingsManager = new SettingsManager(*m_userDefaults, m_launchAtLoginService.get(), this);
}

// The settings manager is a child and goes first, before the store it writes to.
AppDelegate::~AppDelegate()
{
    delete m_settingsManager;
}

void AppDelegate::applicationDidFinishLaunching() {}

} // namespace velto
