#pragma once

#include <QObject>

#include <memory>

namespace velto {

class BreakManager;
class LaunchAtLoginService;
class SettingsFileStore;
class SettingsManager;
class StandardUpdaterController;
class UpdateAvailabilityModel;

// The composition root: builds every long-lived component in order, hands each its collaborators and owns
// them for the life of the process.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(QObject* parent = nullptr);
    ~AppDelegate() override;

    void applicationDidFinishLaunching();

    [[nodiscard]] SettingsManager* settingsManager() const { return m_settingsManager; }
    [[nodiscard]] BreakManager* breakManager() const { return m_breakManager; }
    [[nodiscard]] UpdateAvailabilityModel* updateAvailability() const { return m_updateAvailability; }

private:
    std::unique_ptr<SettingsFileStore> m_userDefaults;
    std::unique_ptr<LaunchAtLoginService> m_launchAtLoginService;
    SettingsManager* m_settingsManager = nullptr;
    BreakManager* m_breakManager = nullptr;
    UpdateAvailabilityModel* m_updateAvailability = nullptr;
    StandardUpdaterController* m_updaterController = nullptr;
};

} // namespace velto
