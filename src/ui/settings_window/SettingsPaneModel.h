#pragma once

#include "detection/DetectionCoverage.h"
#include "detection/GnomeExtension.h"
#include "settings/SettingsManager.h"
#include "settings/UserDefaultsStore.h"

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

#include <functional>

namespace velto {

class ScreenLocking;

// The reading rule of every numeric picker: the stored value divided by the picker's unit, truncated toward
// zero, is the option shown; the position of that option, or -1 (no selection) when it is none of them or
// too large to be a whole number.
[[nodiscard]] int pickerSelection(double stored, double secondsPerUnit, const QList<int>& options);

// "1.4 (27)" when the build number is set and differs from the short version, else the short version alone;
// an em dash when there is no short version.
[[nodiscard]] QString versionText(const QString& shortVersion, const QString& buildNumber);

// What the settings panes read and do, so the QML holds layout only. Reads the store's records as maps (enums
// as their numbers), writes whole records back through the store's properties, which save; saves nothing
// itself. Main thread.
class SettingsPaneModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the settings window")

    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setIsEnabled NOTIFY isEnabledChanged)
    Q_PROPERTY(
        bool showTimerInMenuBar READ showTimerInMenuBar WRITE setShowTimerInMenuBar NOTIFY showTimerInMenuBarChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(QVariantMap breakConfiguration READ breakConfiguration NOTIFY breakConfigurationChanged)
    Q_PROPERTY(int breakPresetSelection READ breakPresetSelection NOTIFY breakPresetSelectionChanged)
    Q_PROPERTY(QVariantMap schedule READ schedule NOTIFY scheduleChanged)
    Q_PROPERTY(QVariantMap smartPauseSettings READ smartPauseSettings NOTIFY smartPauseSettingsChanged)
    Q_PROPERTY(QVariantMap notificationSettings READ notificationSettings NOTIFY notificationSettingsChanged)
    Q_PROPERTY(QVariantMap breakAppearance READ breakAppearance NOTIFY breakAppearanceChanged)
    // Grows on every write of any setting; bindings that call selection() name it to be re-read.
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)

    Q_PROPERTY(QString dimLevelText READ dimLevelText NOTIFY breakAppearanceChanged)
    Q_PROPERTY(QString displayModeExplanation READ displayModeExplanation NOTIFY breakAppearanceChanged)
    Q_PROPERTY(bool canRemoveMessages READ canRemoveMessages NOTIFY breakAppearanceChanged)
    Q_PROPERTY(bool showLockScreenAlert READ showLockScreenAlert NOTIFY showLockScreenAlertChanged)
    // The last change could not be saved; the window says so until a later one is.
    Q_PROPERTY(bool saveFailed READ saveFailed NOTIFY saveFailedChanged)

    // What this session cannot see and what would fix it (the Smart Pause pane); empty when nothing is missing.
    Q_PROPERTY(QString detectionNotice READ detectionNotice NOTIFY detectionCoverageChanged)
    // Typing is read as any input here, so the Breaks pane says the pointer counts too.
    Q_PROPERTY(bool typingCountsPointer READ typingCountsPointer NOTIFY detectionCoverageChanged)
    // Velto's GNOME Shell extension (the Smart Pause pane, on GNOME): its state in one line, empty for nothing to
    // show; why it matters where it does not run; whether the pane offers to enable it, and whether that is under
    // way. A failed attempt says why in place of the explanation.
    Q_PROPERTY(QString gnomeExtensionText READ gnomeExtensionText NOTIFY gnomeExtensionChanged)
    Q_PROPERTY(QString gnomeExtensionExplanation READ gnomeExtensionExplanation NOTIFY gnomeExtensionChanged)
    Q_PROPERTY(bool gnomeExtensionActive READ gnomeExtensionActive NOTIFY gnomeExtensionChanged)
    Q_PROPERTY(bool canEnableGnomeExtension READ canEnableGnomeExtension NOTIFY gnomeExtensionChanged)
    Q_PROPERTY(bool enablingGnomeExtension READ enablingGnomeExtension NOTIFY gnomeExtensionChanged)

    Q_PROPERTY(bool updateAvailable READ updateAvailable NOTIFY updateChanged)
    Q_PROPERTY(bool updatedBySystem READ updatedBySystem NOTIFY updateChanged)
    Q_PROPERTY(QString updateNudgeText READ updateNudgeText NOTIFY updateChanged)
    Q_PROPERTY(QString versionText READ versionText CONSTANT)
    Q_PROPERTY(QUrl websiteUrl READ websiteUrl CONSTANT)
    Q_PROPERTY(QString websiteDisplayName READ websiteDisplayName CONSTANT)
    Q_PROPERTY(QUrl feedbackUrl READ feedbackUrl CONSTANT)
    Q_PROPERTY(QString contactAddress READ contactAddress CONSTANT)
    // The logo resource, else the application's window icon, else nothing (the pane draws a symbol).
    Q_PROPERTY(QUrl appIconSource READ appIconSource CONSTANT)

public:
    enum class Picker {
        WorkInterval,
        ShortBreakDuration,
        LongBreakDuration,
        LongBreakFrequency,
        SkipDifficulty,
        VideoDetectionMode,
        IdleThreshold,
        Cooldown,
        PreBreakNotification,
        BackgroundType,
        GradientTheme,
        ScreenDisplayMode,
        FocusAppRowMode,
        FocusAppSheetMode,
    };
    Q_ENUM(Picker)

    struct About {
        QString shortVersion;
        QString buildNumber;
        QUrl website;
        QString contactAddress;
    };

    // The store and the lock are not owned; a null lock counts as no way to lock the session.
    SettingsPaneModel(SettingsManager* settings, ScreenLocking* lock, About about, QObject* parent = nullptr);

    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool showTimerInMenuBar() const;
    [[nodiscard]] bool launchAtLogin() const;
    void setIsEnabled(bool value);
    void setShowTimerInMenuBar(bool value);
    void setLaunchAtLogin(bool value);
    [[nodiscard]] QVariantMap breakConfiguration() const;
    [[nodiscard]] int breakPresetSelection() const;
    [[nodiscard]] QVariantMap schedule() const;
    [[nodiscard]] QVariantMap smartPauseSettings() const;
    [[nodiscard]] QVariantMap notificationSettings() const;
    [[nodiscard]] QVariantMap breakAppearance() const;
    [[nodiscard]] int revision() const { return m_revision; }

    [[nodiscard]] QString dimLevelText() const;
    [[nodiscard]] QString displayModeExplanation() const;
    [[nodiscard]] bool canRemoveMessages() const;
    [[nodiscard]] bool showLockScreenAlert() const { return m_showLockScreenAlert; }
    [[nodiscard]] bool saveFailed() const { return m_storeWriteState && m_storeWriteState->writeFailed(); }
    // Where the window learns that changes could not be written; none means they always could.
    void setStoreWriteState(const StoreWriteState* state);

    [[nodiscard]] QString detectionNotice() const { return m_detectionCoverage.notice; }
    [[nodiscard]] bool typingCountsPointer() const { return m_detectionCoverage.typingCountsPointer; }
    void setDetectionCoverage(const DetectionCoverage& coverage);

    [[nodiscard]] QString gnomeExtensionText() const { return gnomeExtensionStateText(m_gnomeExtension); }
    [[nodiscard]] QString gnomeExtensionExplanation() const;
    [[nodiscard]] bool gnomeExtensionActive() const { return m_gnomeExtension == GnomeExtensionState::Active; }
    [[nodiscard]] bool canEnableGnomeExtension() const { return m_canEnableGnomeExtension; }
    [[nodiscard]] bool enablingGnomeExtension() const { return m_enablingGnomeExtension; }
    void setGnomeExtension(GnomeExtensionState state, bool canEnable);
    // Enabling started (true) or ended (false), with the error it gave (empty on success).
    void setEnablingGnomeExtension(bool enabling, const QString& error = {});
    // Enables the extension; the controller sets it.
    std::function<void()> onEnableGnomeExtension;
    Q_INVOKABLE void enableGnomeExtension();

    [[nodiscard]] bool updateAvailable() const { return m_updateAvailable; }
    [[nodiscard]] bool updatedBySystem() const { return m_updatedBySystem; }
    void setUpdatedBySystem(bool bySystem)
    {
        m_updatedBySystem = bySystem;
        Q_EMIT updateChanged();
    }
    [[nodiscard]] QString updateNudgeText() const;
    [[nodiscard]] QString versionText() const;
    [[nodiscard]] QUrl websiteUrl() const { return m_about.website; }
    [[nodiscard]] QString websiteDisplayName() const { return m_about.website.host(); }
    [[nodiscard]] QUrl feedbackUrl() const;
    [[nodiscard]] QString contactAddress() const { return m_about.contactAddress; }
    [[nodiscard]] static QUrl appIconSource();

    // The update notice; the controller feeds it from the update model.
    void setUpdateState(bool available, const QString& versionHint);
    // The user-initiated and the silent update check.
    std::function<void()> onCheckForUpdates;
    std::function<void()> onSilentCheck;

    // Pickers: the option titles in order, the shown option (-1 for none) and the choice of one.
    Q_INVOKABLE [[nodiscard]] QStringList optionLabels(velto::SettingsPaneModel::Picker picker) const;
    Q_INVOKABLE [[nodiscard]] int selection(velto::SettingsPaneModel::Picker picker) const;
    Q_INVOKABLE void choose(velto::SettingsPaneModel::Picker picker, int index);

    // One field of a record, by its property name, written as the whole record.
    Q_INVOKABLE void setBreakField(const QString& name, const QVariant& value);
    Q_INVOKABLE void setScheduleField(const QString& name, const QVariant& value);
    Q_INVOKABLE void setSmartPauseField(const QString& name, const QVariant& value);
    Q_INVOKABLE void setNotificationField(const QString& name, const QVariant& value);
    Q_INVOKABLE void setAppearanceField(const QString& name, const QVariant& value);

    // Office hours. Weekdays are numbered 1 (Sunday) to 7.
    Q_INVOKABLE void setDayActive(int weekday, bool active);
    // {hour, minute} shown for the start or end time: the stored one, or the current time when the stored
    // one is no time of day.
    Q_INVOKABLE [[nodiscard]] QVariantMap shownTime(bool start) const;
    Q_INVOKABLE void setTime(bool start, int hour, int minute);

    // Turning the lock on needs a way to lock the session; without one the switch stays off and the alert shows.
    Q_INVOKABLE void setLockScreenOnBreak(bool on);
    Q_INVOKABLE void dismissLockScreenAlert();

    Q_INVOKABLE void applyPreset(int kind);
    Q_INVOKABLE void resetToDefaults();

    // Focus apps: a row's mode by its position; deleting removes every entry with the identifier.
    Q_INVOKABLE void setFocusAppMode(int index, int mode);
    Q_INVOKABLE void deleteFocusApp(const QString& bundleIdentifier);

    // The message editor never leaves the list empty.
    Q_INVOKABLE void setMessage(int index, const QString& text);
    Q_INVOKABLE void removeMessage(int index);
    Q_INVOKABLE void addMessage();

    // Colour stops of a theme's swatch, as colours QML understands.
    Q_INVOKABLE [[nodiscard]] QVariantList themeColors(int theme) const;
    // The address of an application's icon for Image.source.
    Q_INVOKABLE [[nodiscard]] static QUrl iconSource(const QString& bundleIdentifier);

    Q_INVOKABLE void checkForUpdates();
    // Called each time the About pane is shown.
    Q_INVOKABLE void aboutShown();

    [[nodiscard]] SettingsManager* settingsManager() const { return m_settings; }

Q_SIGNALS:
    void isEnabledChanged();
    void showTimerInMenuBarChanged();
    void launchAtLoginChanged();
    void breakConfigurationChanged();
    void breakPresetSelectionChanged();
    void scheduleChanged();
    void smartPauseSettingsChanged();
    void notificationSettingsChanged();
    void breakAppearanceChanged();
    void revisionChanged();
    void showLockScreenAlertChanged();
    void saveFailedChanged();
    void updateChanged();
    void detectionCoverageChanged();
    void gnomeExtensionChanged();

private:
    void bumpRevision();
    void setShowLockScreenAlert(bool value);

    QPointer<SettingsManager> m_settings;

    QPointer<const StoreWriteState> m_storeWriteState;
    ScreenLocking* m_lock = nullptr;
    About m_about;
    int m_revision = 0;
    bool m_showLockScreenAlert = false;
    DetectionCoverage m_detectionCoverage;
    GnomeExtensionState m_gnomeExtension = GnomeExtensionState::NotGnome;
    bool m_canEnableGnomeExtension = false;
    bool m_enablingGnomeExtension = false;
    QString m_gnomeExtensionError;
    bool m_updateAvailable = false;
    bool m_updatedBySystem = false;
    QString m_updateVersionHint;
};

} // namespace velto
