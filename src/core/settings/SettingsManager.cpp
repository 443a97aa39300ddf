#include "SettingsManager.h"

#include "JsonRecord.h"
#include "LaunchAtLoginControlling.h"
#include "Published.h"
#include "UserDefaultsStore.h"

namespace velto {

SettingsManager::SettingsManager(UserDefaultsStore& userDefaults, LaunchAtLoginControlling* launchAtLogin,
                                 QObject* parent)
    : QObject(parent)
    , m_userDefaults(userDefaults)
    , m_launchAtLoginService(launchAtLogin)
{
    loadSettings();
    m_isLoading = false;
    // Re-applied at every start so the session's login item follows the stored choice, unless the user turned
    // it off in the desktop's own startup settings: then the switch shows that, and the entry stays as they left it.
    if (m_launchAtLoginService != nullptr) {
        if (m_launchAtLogin && m_launchAtLoginService->isTurnedOffElsewhere()) {
            publish(this, m_launchAtLogin, false, &SettingsManager::launchAtLoginChanged);
            saveSettings();
        } else {
            m_launchAtLoginService->setEnabled(m_launchAtLogin);
        }
    }
}

void SettingsManager::saveUnlessLoading()
{
    if (!m_isLoading)
        saveSettings();
}

void SettingsManager::setIsEnabled(bool value)
{
    publish(this, m_isEnabled, value, &SettingsManager::isEnabledChanged);
    saveUnlessLoading();
}

void SettingsManager::setShowTimerInMenuBar(bool value)
{
    publish(this, m_showTimerInMenuBar, value, &SettingsManager::showTimerInMenuBarChanged);
    saveUnlessLoading();
}

void SettingsManager::setLaunchAtLogin(bool value)
{
    publish(this, m_launchAtLogin, value, &SettingsManager::launchAtLoginChanged);
    if (m_isLoading)
        return;
    saveSettings();
    if (m_launchAtLoginService != nullptr)
        m_launchAtLoginService->setEnabled(value);
}

void SettingsManager::setBreakConfiguration(const BreakConfiguration& value)
{
    publish(this, m_breakConfiguration, value, &SettingsManager::breakConfigurationChanged);
    if (m_isLoading)
        return;
    if (!m_isApplyingBreakPreset)
        breakConfigurationDidChange();
    saveSettings();
}

void SettingsManager::setBreakPresetSelection(BreakPresetKind value)
{
    publish(this, m_breakPresetSelection, value, &SettingsManager::breakPresetSelectionChanged);
    saveUnlessLoading();
}

void SettingsManager::setSchedule(const Schedule& value)
{
    publish(this, m_schedule, value, &SettingsManager::scheduleChanged);
    saveUnlessLoading();
}

void SettingsManager::setSmartPauseSettings(const SmartPauseSettings& value)
{
    publish(this, m_smartPauseSettings, value, &SettingsManager::smartPauseSettingsChanged);
    saveUnlessLoading();
}

void SettingsManager::setNotificationSettings(const NotificationSettings& value)
{
    publish(this, m_notificationSettings, value, &SettingsManager::notificationSettingsChanged);
    saveUnlessLoading();
}

void SettingsManager::setBreakAppearance(const BreakAppearance& value)
{
    publish(this, m_breakAppearance, value, &SettingsManager::breakAppearanceChanged);
    saveUnlessLoading();
}

bool SettingsManager::readBoolean(QStringView key) const
{
    const QVariant stored = m_userDefaults.read(key.toString());
    return stored.typeId() == QMetaType::Bool ? stored.toBool() : true;
}

template <typename Record>
std::optional<Record> SettingsManager::readRecord(QStringView key) const
{
    const QVariant stored = m_userDefaults.read(key.toString());
    if (stored.typeId() != QMetaType::QByteArray)
        return std::nullopt;
    return decodeRecord<Record>(stored.toByteArray());
}

void SettingsManager::loadSettings()
{
    setIsEnabled(readBoolean(SettingsKeys::isEnabled));
    setShowTimerInMenuBar(readBoolean(SettingsKeys::showTimerInMenuBar));
    setLaunchAtLogin(readBoolean(SettingsKeys::launchAtLogin));

    if (const auto configuration = readRecord<BreakConfiguration>(SettingsKeys::breakConfiguration))
        setBreakConfiguration(*configuration);

    const QVariant selection = m_userDefaults.read(SettingsKeys::breakPresetSelection.toString());
    const std::optional<BreakPresetKind> storedPreset =
        selection.typeId() == QMetaType::QString ? fromRawValue<BreakPresetKind>(selection.toString()) : std::nullopt;
    if (storedPreset)
        setBreakPresetSelection(*storedPreset);
    else
        syncBreakPresetSelection();
    validateBreakPresetSelection();

    // Each record falls back to its default on its own.
    if (const auto schedule = readRecord<Schedule>(SettingsKeys::schedule))
        setSchedule(*schedule);
    if (const auto smartPause = readRecord<SmartPauseSettings>(SettingsKeys::smartPauseSettings))
        setSmartPauseSettings(*smartPause);
    if (const auto notification = readRecord<NotificationSettings>(SettingsKeys::notificationSettings))
        setNotificationSettings(*notification);
    if (const auto appearance = readRecord<BreakAppearance>(SettingsKeys::breakAppearance))
        setBreakAppearance(*appearance);

    captureBreakBehaviorBaseline();
}

void SettingsManager::saveSettings()
{
    m_userDefaults.write(SettingsKeys::isEnabled.toString(), m_isEnabled);
    m_userDefaults.write(SettingsKeys::showTimerInMenuBar.toString(), m_showTimerInMenuBar);
    m_userDefaults.write(SettingsKeys::launchAtLogin.toString(), m_launchAtLogin);
    m_userDefaults.write(SettingsKeys::breakConfiguration.toString(), encodeRecord(m_breakConfiguration));
    m_userDefaults.write(SettingsKeys::breakPresetSelection.toString(), rawValue(m_breakPresetSelection));
    m_userDefaults.write(SettingsKeys::schedule.toString(), encodeRecord(m_schedule));
    m_userDefaults.write(SettingsKeys::smartPauseSettings.toString(), encodeRecord(m_smartPauseSettings));
    m_userDefaults.write(SettingsKeys::notificationSettings.toString(), encodeRecord(m_notificationSettings));
    m_userDefaults.write(SettingsKeys::breakAppearance.toString(), encodeRecord(m_breakAppearance));
}

void SettingsManager::resetToDefaults()
{
    m_isApplyingBreakPreset = true;
    setIsEnabled(true);
    setShowTimerInMenuBar(true);
    setLaunchAtLogin(true);
    setBreakPresetSelection(BreakPresetKind::Balanced);
    setBreakConfiguration(BreakConfiguration());
    setSchedule(Schedule());
    setSmartPauseSettings(SmartPauseSettings());
    setNotificationSettings(NotificationSettings());
    setBreakAppearance(BreakAppearance());
    m_isApplyingBreakPreset = false;
    captureBreakBehaviorBaseline();
}

void SettingsManager::applyBreakPreset(BreakPresetKind preset)
{
    if (const std::optional<PresetTiming> timing = presetTiming(preset)) {
        applyPresetTiming(*timing);
        return;
    }
    setBreakPresetSelection(BreakPresetKind::Custom);
    m_breakBehaviorBaseline.reset();
}

void SettingsManager::applyPresetTiming(const PresetTiming& timing)
{
    m_isApplyingBreakPreset = true;
    setBreakConfiguration(BreakConfiguration::withTiming(timing));
    syncBreakPresetSelection();
    captureBreakBehaviorBaseline();
    m_isApplyingBreakPreset = false;
}

void SettingsManager::captureBreakBehaviorBaseline()
{
    if (m_breakPresetSelection == BreakPresetKind::Custom)
        m_breakBehaviorBaseline.reset();
    else
        m_breakBehaviorBaseline = m_breakConfiguration.behaviorSnapshot();
}

void SettingsManager::syncBreakPresetSelection()
{
    setBreakPresetSelection(m_breakConfiguration.matchingPreset());
}

void SettingsManager::validateBreakPresetSelection()
{
    if (m_breakPresetSelection == BreakPresetKind::Custom || m_breakConfiguration.timingMatches(m_breakPresetSelection))
        return;
    setBreakPresetSelection(BreakPresetKind::Custom);
    m_breakBehaviorBaseline.reset();
}

void SettingsManager::breakConfigurationDidChange()
{
    if (m_breakPresetSelection == BreakPresetKind::Custom) {
        m_breakBehaviorBaseline.reset();
        return;
    }
    if (!m_breakConfiguration.timingMatches(m_breakPresetSelection)) {
        setBreakPresetSelection(BreakPresetKind::Custom);
        m_breakBehaviorBaseline.reset();
        return;
    }
    // With no baseline the selection stands; with one, any edit of the behaviour away from it makes it Custom.
    if (!m_breakBehaviorBaseline || m_breakConfiguration.behaviorSnapshot() == *m_breakBehaviorBaseline)
        return;
    setBreakPresetSelection(BreakPresetKind::Custom);
    m_breakBehaviorBaseline.reset();
}

} // namespace velto
