#pragma once

#include "BreakAppearance.h"
#include "BreakConfiguration.h"
#include "NotificationSettings.h"
#include "Schedule.h"
#include "SmartPauseSettings.h"

#include <QObject>

#include <optional>

namespace velto {

class LaunchAtLoginControlling;
class UserDefaultsStore;

// The keys of the user-defaults store the settings live under.
namespace SettingsKeys {
inline constexpr QStringView isEnabled = u"isEnabled";
inline constexpr QStringView showTimerInMenuBar = u"showTimerInMenuBar";
inline constexpr QStringView launchAtLogin = u"launchAtLogin";
inline constexpr QStringView breakConfiguration = u"breakConfiguration";
inline constexpr QStringView breakPresetSelection = u"breakPresetSelection";
inline constexpr QStringView schedule = u"schedule";
inline constexpr QStringView smartPauseSettings = u"smartPauseSettings";
inline constexpr QStringView notificationSettings = u"notificationSettings";
inline constexpr QStringView breakAppearance = u"breakAppearance";
} // namespace SettingsKeys

// The one owner of every user setting. Loads them at construction (writing nothing), saves all nine keys on
// every assignment of a published property, applies break presets and turns the preset selection into
// Custom when the user edits the configuration away from it. Main thread only.
//
// Every assignment, also of an unchanged value, emits objectWillChange() before storing and the property's
// change signal with the new value after.
class SettingsManager final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setIsEnabled NOTIFY isEnabledChanged)
    Q_PROPERTY(
        bool showTimerInMenuBar READ showTimerInMenuBar WRITE setShowTimerInMenuBar NOTIFY showTimerInMenuBarChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(velto::BreakConfiguration breakConfiguration READ breakConfiguration WRITE setBreakConfiguration NOTIFY
                   breakConfigurationChanged)
    Q_PROPERTY(velto::BreakPresetKind breakPresetSelection READ breakPresetSelection WRITE setBreakPresetSelection
                   NOTIFY breakPresetSelectionChanged)
    Q_PROPERTY(velto::Schedule schedule READ schedule WRITE setSchedule NOTIFY scheduleChanged)
    Q_PROPERTY(velto::SmartPauseSettings smartPauseSettings READ smartPauseSettings WRITE setSmartPauseSettings NOTIFY
                   smartPauseSettingsChanged)
    Q_PROPERTY(velto::NotificationSettings notificationSettings READ notificationSettings WRITE setNotificationSettings
                   NOTIFY notificationSettingsChanged)
    Q_PROPERTY(velto::BreakAppearance breakAppearance READ breakAppearance WRITE setBreakAppearance NOTIFY
                   breakAppearanceChanged)

public:
    // userDefaults must outlive the manager; launchAtLogin may be null where there is no login-item facility.
    SettingsManager(UserDefaultsStore& userDefaults, LaunchAtLoginControlling* launchAtLogin,
                    QObject* parent = nullptr);

    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    [[nodiscard]] bool showTimerInMenuBar() const { return m_showTimerInMenuBar; }
    [[nodiscard]] bool launchAtLogin() const { return m_launchAtLogin; }
    [[nodiscard]] const BreakConfiguration& breakConfiguration() const { return m_breakConfiguration; }
    [[nodiscard]] BreakPresetKind breakPresetSelection() const { return m_breakPresetSelection; }
    [[nodiscard]] const Schedule& schedule() const { return m_schedule; }
    [[nodiscard]] const SmartPauseSettings& smartPauseSettings() const { return m_smartPauseSettings; }
    [[nodiscard]] const NotificationSettings& notificationSettings() const { return m_notificationSettings; }
    [[nodiscard]] const BreakAppearance& breakAppearance() const { return m_breakAppearance; }

    void setIsEnabled(bool value);
    void setShowTimerInMenuBar(bool value);
    void setLaunchAtLogin(bool value);
    void setBreakConfiguration(const velto::BreakConfiguration& value);
    void setBreakPresetSelection(velto::BreakPresetKind value);
    void setSchedule(const velto::Schedule& value);
    void setSmartPauseSettings(const velto::SmartPauseSettings& value);
    void setNotificationSettings(const velto::NotificationSettings& value);
    void setBreakAppearance(const velto::BreakAppearance& value);

    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] bool isApplyingBreakPreset() const { return m_isApplyingBreakPreset; }
    // The behaviour fields as they stood when the selected named preset was applied or loaded; none while Custom.
    [[nodiscard]] std::optional<BreakBehaviorSnapshot> breakBehaviorBaseline() const { return m_breakBehaviorBaseline; }

    // Writes all nine keys.
    void saveSettings();
    Q_INVOKABLE void resetToDefaults();
    // A named preset installs its timing with the default behaviour; Custom only changes the selection.
    Q_INVOKABLE void applyBreakPreset(velto::BreakPresetKind preset);

Q_SIGNALS:
    void objectWillChange();
    void isEnabledChanged(bool isEnabled);
    void showTimerInMenuBarChanged(bool showTimerInMenuBar);
    void launchAtLoginChanged(bool launchAtLogin);
    void breakConfigurationChanged(const velto::BreakConfiguration& breakConfiguration);
    void breakPresetSelectionChanged(velto::BreakPresetKind breakPresetSelection);
    void scheduleChanged(const velto::Schedule& schedule);
    void smartPauseSettingsChanged(const velto::SmartPauseSettings& smartPauseSettings);
    void notificationSettingsChanged(const velto::NotificationSettings& notificationSettings);
    void breakAppearanceChanged(const velto::BreakAppearance& breakAppearance);

private:
    void saveUnlessLoading();

    void loadSettings();
    void applyPresetTiming(const PresetTiming& timing);
    void captureBreakBehaviorBaseline();
    void breakConfigurationDidChange();
    void syncBreakPresetSelection();
    void validateBreakPresetSelection();

    template <typename Record>
    [[nodiscard]] std::optional<Record> readRecord(QStringView key) const;
    [[nodiscard]] bool readBoolean(QStringView key) const;

    bool m_isEnabled = true;
    bool m_showTimerInMenuBar = true;
    bool m_launchAtLogin = true;
    BreakConfiguration m_breakConfiguration;
    BreakPresetKind m_breakPresetSelection = BreakPresetKind::Balanced;
    Schedule m_schedule;
    SmartPauseSettings m_smartPauseSettings;
    NotificationSettings m_notificationSettings;
    BreakAppearance m_breakAppearance;

    UserDefaultsStore& m_userDefaults;
    LaunchAtLoginControlling* m_launchAtLoginService = nullptr;
    bool m_isLoading = true;
    bool m_isApplyingBreakPreset = false;
    std::optional<BreakBehaviorSnapshot> m_breakBehaviorBaseline;
};

} // namespace velto
