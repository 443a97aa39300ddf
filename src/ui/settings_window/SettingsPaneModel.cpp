#include "SettingsPaneModel.h"

#include "ApplicationIconProvider.h"
#include "scheduling/ScreenLocking.h"
#include "settings/SettingsManager.h"

#include <QColor>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QMetaProperty>
#include <QTime>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

const QList<int> workIntervalMinutes = {10, 15, 20, 25, 30, 45, 60};
const QList<int> shortBreakSeconds = {10, 15, 20, 30, 45, 60};
const QList<int> longBreakMinutes = {2, 3, 5, 10, 15};
const QList<int> longBreakFrequencies = {2, 3, 4, 5, 6, 7, 8};
const QList<int> idleMinutes = {1, 2, 5, 10};
const QList<int> cooldownMinutes = {0, 1, 2, 5};
const QList<int> noticeMinutes = {1, 2, 3, 5};
// The background types the Style picker offers; the others stay usable but show no selection.
const QList<BackgroundType> offeredBackgrounds = {BackgroundType::PaperLight, BackgroundType::PaperDark,
                                                  BackgroundType::Gradient};

template <typename Label>
QStringList labelled(const QList<int>& options, Label label)
{
    QStringList labels;
    for (int option : options)
        labels.append(label(option));
    return labels;
}

template <typename E>
int enumPosition(E value)
{
    return int(allCases<E>().indexOf(value));
}

template <typename E>
std::optional<E> enumAt(int index)
{
    const QList<E> cases = allCases<E>();
    if (index < 0 || index >= cases.size())
        return std::nullopt;
    return cases.at(index);
}

// QML gets plain values: enums as numbers, nested records as maps, lists of records as lists of maps.
QVariant forQml(const QVariant& value)
{
    const QMetaType type = value.metaType();
    if (type.flags().testFlag(QMetaType::IsEnumeration))
        return value.toInt();
    if (type == QMetaType::fromType<QList<DeepFocusApp>>()) {
        QVariantList list;
        for (const DeepFocusApp& app : value.value<QList<DeepFocusApp>>())
            list.append(QVariantMap{
                {u"name"_s, app.name}, {u"bundleIdentifier"_s, app.bundleIdentifier}, {u"mode"_s, int(app.mode)}});
        return list;
    }
    if (type.flags().testFlag(QMetaType::IsGadget) && type.metaObject()) {
        const QMetaObject* meta = type.metaObject();
        QVariantMap map;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            map.insert(QString::fromLatin1(property.name()), forQml(property.readOnGadget(value.constData())));
        }
        return map;
    }
    return value;
}

template <typename Record>
QVariantMap recordMap(const Record& record)
{
    return forQml(QVariant::fromValue(record)).toMap();
}

// Writes one property of a record copy; false when the record has no such writable property or the value
// does not convert to its type.
template <typename Record>
bool writeField(Record& record, const QString& name, const QVariant& value)
{
    const QMetaObject& meta = Record::staticMetaObject;
    const int index = meta.indexOfProperty(name.toLatin1().constData());
    if (index < 0)
        return false;
    const QMetaProperty property = meta.property(index);
    if (!property.isWritable())
        return false;
    QVariant converted = value;
    if (!converted.convert(property.metaType()))
        return false;
    return property.writeOnGadget(&record, converted);
}

} // namespace

int pickerSelection(double stored, double secondsPerUnit, const QList<int>& options)
{
    if (secondsPerUnit == 0)
        return -1;
    const double shown = std::trunc(stored / secondsPerUnit);
    if (!std::isfinite(shown) || std::fabs(shown) > double(std::numeric_limits<int>::max()))
        return -1;
    return int(options.indexOf(int(shown)));
}

QString versionText(const QString& shortVersion, const QString& buildNumber)
{
    if (shortVersion.isEmpty())
        return u"—"_s;
    if (!buildNumber.isEmpty() && buildNumber != shortVersion)
        return shortVersion + u" ("_s + buildNumber + u')';
    return shortVersion;
}

void SettingsPaneModel::setStoreWriteState(const StoreWriteState* state)
{
    if (m_storeWriteState)
        m_storeWriteState->disconnect(this);
    m_storeWriteState = state;
    if (state)
        connect(state, &StoreWriteState::writeFailedChanged, this, &SettingsPaneModel::saveFailedChanged);
    Q_EMIT saveFailedChanged();
}

SettingsPaneModel::SettingsPaneModel(SettingsManager* settings, ScreenLocking* lock, About about, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_lock(lock)
    , m_about(std::move(about))
{
    if (!settings)
        return;
    connect(settings, &SettingsManager::isEnabledChanged, this, &SettingsPaneModel::isEnabledChanged);
    connect(settings, &SettingsManager::showTimerInMenuBarChanged, this, &SettingsPaneModel::showTimerInMenuBarChanged);
    connect(settings, &SettingsManager::launchAtLoginChanged, this, &SettingsPaneModel::launchAtLoginChanged);
    connect(settings, &SettingsManager::breakConfigurationChanged, this, &SettingsPaneModel::breakConfigurationChanged);
    connect(settings, &SettingsManager::breakPresetSelectionChanged, this,
            &SettingsPaneModel::breakPresetSelectionChanged);
    connect(settings, &SettingsManager::scheduleChanged, this, &SettingsPaneModel::scheduleChanged);
    connect(settings, &SettingsManager::smartPauseSettingsChanged, this, &SettingsPaneModel::smartPauseSettingsChanged);
    connect(settings, &SettingsManager::notificationSettingsChanged, this,
            &SettingsPaneModel::notificationSettingsChanged);
    connect(settings, &SettingsManager::breakAppearanceChanged, this, &SettingsPaneModel::breakAppearanceChanged);
    // Any change re-reads the pickers; each change signal comes after the store holds the new value.
    for (auto signal : {&SettingsPaneModel::isEnabledChanged, &SettingsPaneModel::showTimerInMenuBarChanged,
                        &SettingsPaneModel::launchAtLoginChanged, &SettingsPaneModel::breakConfigurationChanged,
                        &SettingsPaneModel::breakPresetSelectionChanged, &SettingsPaneModel::scheduleChanged,
                        &SettingsPaneModel::smartPauseSettingsChanged, &SettingsPaneModel::notificationSettingsChanged,
                        &SettingsPaneModel::breakAppearanceChanged})
        connect(this, signal, this, &SettingsPaneModel::bumpRevision);
}

void SettingsPaneModel::bumpRevision()
{
    ++m_revision;
    Q_EMIT revisionChanged();
}

bool SettingsPaneModel::isEnabled() const
{
    return m_settings && m_settings->isEnabled();
}

bool SettingsPaneModel::showTimerInMenuBar() const
{
    return m_settings && m_settings->showTimerInMenuBar();
}

bool SettingsPaneModel::launchAtLogin() const
{
    return m_settings && m_settings->launchAtLogin();
}

void SettingsPaneModel::setIsEnabled(bool value)
{
    if (m_settings)
        m_settings->setIsEnabled(value);
}

void SettingsPaneModel::setShowTimerInMenuBar(bool value)
{
    if (m_settings)
        m_settings->setShowTimerInMenuBar(value);
}

void SettingsPaneModel::setLaunchAtLogin(bool value)
{
    if (m_settings)
        m_settings->setLaunchAtLogin(value);
}

QVariantMap SettingsPaneModel::breakConfiguration() const
{
    return m_settings ? recordMap(m_settings->breakConfiguration()) : QVariantMap();
}

int SettingsPaneModel::breakPresetSelection() const
{
    return m_settings ? int(m_settings->breakPresetSelection()) : -1;
}

QVariantMap SettingsPaneModel::schedule() const
{
    if (!m_settings)
        return {};
    QVariantMap map = recordMap(m_settings->schedule());
    QVariantList days;
    for (Weekday day : m_settings->schedule().activeDays)
        days.append(rawValue(day));
    map.insert(u"activeDays"_s, days);
    return map;
}

QVariantMap SettingsPaneModel::smartPauseSettings() const
{
    return m_settings ? recordMap(m_settings->smartPauseSettings()) : QVariantMap();
}

QVariantMap SettingsPaneModel::notificationSettings() const
{
    return m_settings ? recordMap(m_settings->notificationSettings()) : QVariantMap();
}

QVariantMap SettingsPaneModel::breakAppearance() const
{
    return m_settings ? recordMap(m_settings->breakAppearance()) : QVariantMap();
}

QString SettingsPaneModel::dimLevelText() const
{
    if (!m_settings)
        return {};
    const double percent = std::trunc(m_settings->breakAppearance().overlayOpacity * 100);
    //: The dim level as a percentage beside its slider; %1 is a whole number from 50 to 100.
    return tr("%1%").arg(std::isfinite(percent) ? QString::number(qint64(percent)) : QString());
}

QString SettingsPaneModel::displayModeExplanation() const
{
    if (!m_settings)
        return {};
    return m_settings->breakAppearance().screenDisplayMode == ScreenDisplayMode::AllScreens
               ? tr("Show break on all connected displays")
               : tr("Show break only on your primary display");
}

bool SettingsPaneModel::canRemoveMessages() const
{
    return m_settings && m_settings->breakAppearance().customMessages.size() > 1;
}

QString SettingsPaneModel::updateNudgeText() const
{
    //: Under "A newer build is available" when the new version's number is not known.
    if (m_updateVersionHint.isEmpty())
        return tr("Install it when you have a moment.");
    //: Under "A newer build is available"; %1 is the new version's number, like 1.5.
    return tr("Version %1 is ready when you are.").arg(m_updateVersionHint);
}

QString SettingsPaneModel::versionText() const
{
    return velto::versionText(m_about.shortVersion, m_about.buildNumber);
}

QUrl SettingsPaneModel::appIconSource()
{
    if (QFile::exists(u":/Velto/Settings/VeltoLogo.png"_s))
        return QUrl(u"qrc:/Velto/Settings/VeltoLogo.png"_s);
    if (!QGuiApplication::windowIcon().isNull())
        return QUrl(u"image://veltoappicon/"_s + ApplicationIconProvider::ownIconId);
    return {};
}

QUrl SettingsPaneModel::feedbackUrl() const
{
    return QUrl(u"mailto:"_s + m_about.contactAddress);
}

void SettingsPaneModel::setUpdateState(bool available, const QString& versionHint)
{
    m_updateAvailable = available;
    m_updateVersionHint = versionHint;
    Q_EMIT updateChanged();
}

void SettingsPaneModel::setDetectionCoverage(const DetectionCoverage& coverage)
{
    if (coverage == m_detectionCoverage)
        return;
    m_detectionCoverage = coverage;
    Q_EMIT detectionCoverageChanged();
}

QString SettingsPaneModel::gnomeExtensionExplanation() const
{
    if (!m_gnomeExtensionError.isEmpty())
        return tr("It could not be enabled: %1.").arg(m_gnomeExtensionError);
    return velto::gnomeExtensionExplanation(m_gnomeExtension);
}

void SettingsPaneModel::setGnomeExtension(GnomeExtensionState state, bool canEnable)
{
    if (state == m_gnomeExtension && canEnable == m_canEnableGnomeExtension)
        return;
    m_gnomeExtension = state;
    m_canEnableGnomeExtension = canEnable;
    Q_EMIT gnomeExtensionChanged();
}

void SettingsPaneModel::setEnablingGnomeExtension(bool enabling, const QString& error)
{
    m_enablingGnomeExtension = enabling;
    m_gnomeExtensionError = error;
    Q_EMIT gnomeExtensionChanged();
}

void SettingsPaneModel::enableGnomeExtension()
{
    if (onEnableGnomeExtension && m_canEnableGnomeExtension && !m_enablingGnomeExtension)
        onEnableGnomeExtension();
}

QStringList SettingsPaneModel::optionLabels(Picker picker) const
{
    //: An option of a picker of durations: a number of minutes, abbreviated.
    const auto minutes = [](int count) { return tr("%n min", nullptr, count); };
    auto titles = []<typename E>(const QList<E>& cases) {
        QStringList labels;
        for (E value : cases)
            labels.append(title(value));
        return labels;
    };
    switch (picker) {
    case Picker::WorkInterval:
        return labelled(workIntervalMinutes, minutes);
    case Picker::LongBreakDuration:
        return labelled(longBreakMinutes, minutes);
    case Picker::ShortBreakDuration:
        //: An option of the short-break duration picker: a number of seconds, abbreviated.
        return labelled(shortBreakSeconds, [](int seconds) { return tr("%n sec", nullptr, seconds); });
    case Picker::LongBreakFrequency:
        return labelled(longBreakFrequencies, [](int frequency) {
            //: An option of the long-break frequency picker: a long break takes the place of every n-th short one.
            return tr("Every %n short breaks", nullptr, frequency);
        });
    case Picker::SkipDifficulty:
        return titles(allCases<velto::SkipDifficulty>());
    case Picker::VideoDetectionMode:
        return titles(allCases<velto::VideoDetectionMode>());
    case Picker::IdleThreshold:
        return labelled(idleMinutes, minutes);
    case Picker::Cooldown:
        return labelled(cooldownMinutes, [&minutes](int count) {
            //: The first option of the cooldown picker: the work timer runs again as soon as the activity ends.
            return count == 0 ? tr("No delay") : minutes(count);
        });
    case Picker::PreBreakNotification:
        //: An option of the picker of how early the card tells of the next break: minutes, abbreviated.
        return labelled(noticeMinutes, [](int count) { return tr("%n min before", nullptr, count); });
    case Picker::BackgroundType:
        return titles(offeredBackgrounds);
    case Picker::GradientTheme:
        return titles(allCases<velto::GradientTheme>());
    case Picker::ScreenDisplayMode:
        return titles(allCases<velto::ScreenDisplayMode>());
    case Picker::FocusAppRowMode: {
        QStringList labels;
        for (DeepFocusMode mode : allCases<DeepFocusMode>())
            labels.append(rowTitle(mode));
        return labels;
    }
    case Picker::FocusAppSheetMode: {
        QStringList labels;
        for (DeepFocusMode mode : allCases<DeepFocusMode>())
            labels.append(sheetTitle(mode));
        return labels;
    }
    }
    return {};
}

int SettingsPaneModel::selection(Picker picker) const
{
    if (!m_settings)
        return -1;
    const BreakConfiguration& breaks = m_settings->breakConfiguration();
    const SmartPauseSettings& smartPause = m_settings->smartPauseSettings();
    const BreakAppearance& appearance = m_settings->breakAppearance();
    switch (picker) {
    case Picker::WorkInterval:
        return pickerSelection(breaks.workInterval, 60, workIntervalMinutes);
    case Picker::ShortBreakDuration:
        return pickerSelection(breaks.shortBreakDuration, 1, shortBreakSeconds);
    case Picker::LongBreakDuration:
        return pickerSelection(breaks.longBreakDuration, 60, longBreakMinutes);
    case Picker::LongBreakFrequency:
        return pickerSelection(double(breaks.longBreakFrequency), 1, longBreakFrequencies);
    case Picker::SkipDifficulty:
        return enumPosition(breaks.skipDifficulty);
    case Picker::VideoDetectionMode:
        return enumPosition(smartPause.videoDetectionMode);
    case Picker::IdleThreshold:
        return pickerSelection(smartPause.idleThreshold, 60, idleMinutes);
    case Picker::Cooldown:
        return pickerSelection(smartPause.cooldownAfterActivity, 60, cooldownMinutes);
    case Picker::PreBreakNotification:
        return pickerSelection(m_settings->notificationSettings().preBreakNotificationTime, 60, noticeMinutes);
    case Picker::BackgroundType:
        return int(offeredBackgrounds.indexOf(appearance.backgroundType));
    case Picker::GradientTheme:
        return enumPosition(appearance.gradientTheme);
    case Picker::ScreenDisplayMode:
        return enumPosition(appearance.screenDisplayMode);
    case Picker::FocusAppRowMode:
    case Picker::FocusAppSheetMode:
        // These belong to a row or the sheet, not to the store.
        return -1;
    }
    return -1;
}

void SettingsPaneModel::choose(Picker picker, int index)
{
    if (!m_settings || index < 0)
        return;
    BreakConfiguration breaks = m_settings->breakConfiguration();
    SmartPauseSettings smartPause = m_settings->smartPauseSettings();
    BreakAppearance appearance = m_settings->breakAppearance();
    auto optionAt = [index](const QList<int>& options) -> std::optional<int> {
        if (index >= options.size())
            return std::nullopt;
        return options.at(index);
    };
    switch (picker) {
    case Picker::WorkInterval:
        if (const auto minutes = optionAt(workIntervalMinutes)) {
            breaks.workInterval = *minutes * 60.0;
            m_settings->setBreakConfiguration(breaks);
        }
        return;
    case Picker::ShortBreakDuration:
        if (const auto seconds = optionAt(shortBreakSeconds)) {
            breaks.shortBreakDuration = *seconds;
            m_settings->setBreakConfiguration(breaks);
        }
        return;
    case Picker::LongBreakDuration:
        if (const auto minutes = optionAt(longBreakMinutes)) {
            breaks.longBreakDuration = *minutes * 60.0;
            m_settings->setBreakConfiguration(breaks);
        }
        return;
    case Picker::LongBreakFrequency:
        if (const auto frequency = optionAt(longBreakFrequencies)) {
            breaks.longBreakFrequency = *frequency;
            m_settings->setBreakConfiguration(breaks);
        }
        return;
    case Picker::SkipDifficulty:
        if (const auto difficulty = enumAt<velto::SkipDifficulty>(index)) {
            breaks.skipDifficulty = *difficulty;
            m_settings->setBreakConfiguration(breaks);
        }
        return;
    case Picker::VideoDetectionMode:
        if (const auto mode = enumAt<velto::VideoDetectionMode>(index)) {
            smartPause.videoDetectionMode = *mode;
            m_settings->setSmartPauseSettings(smartPause);
        }
        return;
    case Picker::IdleThreshold:
        if (const auto minutes = optionAt(idleMinutes)) {
            smartPause.idleThreshold = *minutes * 60.0;
            m_settings->setSmartPauseSettings(smartPause);
        }
        return;
    case Picker::Cooldown:
        if (const auto minutes = optionAt(cooldownMinutes)) {
            smartPause.cooldownAfterActivity = *minutes * 60.0;
            m_settings->setSmartPauseSettings(smartPause);
        }
        return;
    case Picker::PreBreakNotification:
        if (const auto minutes = optionAt(noticeMinutes)) {
            NotificationSettings notifications = m_settings->notificationSettings();
            notifications.preBreakNotificationTime = *minutes * 60.0;
            m_settings->setNotificationSettings(notifications);
        }
        return;
    case Picker::BackgroundType:
        if (index < offeredBackgrounds.size()) {
            appearance.backgroundType = offeredBackgrounds.at(index);
            m_settings->setBreakAppearance(appearance);
        }
        return;
    case Picker::GradientTheme:
        if (const auto theme = enumAt<velto::GradientTheme>(index)) {
            appearance.gradientTheme = *theme;
            m_settings->setBreakAppearance(appearance);
        }
        return;
    case Picker::ScreenDisplayMode:
        if (const auto mode = enumAt<velto::ScreenDisplayMode>(index)) {
            appearance.screenDisplayMode = *mode;
            m_settings->setBreakAppearance(appearance);
        }
        return;
    case Picker::FocusAppRowMode:
    case Picker::FocusAppSheetMode:
        return;
    }
}

void SettingsPaneModel::setBreakField(const QString& name, const QVariant& value)
{
    if (!m_settings)
        return;
    BreakConfiguration record = m_settings->breakConfiguration();
    if (writeField(record, name, value))
        m_settings->setBreakConfiguration(record);
}

void SettingsPaneModel::setScheduleField(const QString& name, const QVariant& value)
{
    if (!m_settings)
        return;
    Schedule record = m_settings->schedule();
    if (writeField(record, name, value))
        m_settings->setSchedule(record);
}

void SettingsPaneModel::setSmartPauseField(const QString& name, const QVariant& value)
{
    if (!m_settings)
        return;
    SmartPauseSettings record = m_settings->smartPauseSettings();
    if (writeField(record, name, value))
        m_settings->setSmartPauseSettings(record);
}

void SettingsPaneModel::setNotificationField(const QString& name, const QVariant& value)
{
    if (!m_settings)
        return;
    NotificationSettings record = m_settings->notificationSettings();
    if (writeField(record, name, value))
        m_settings->setNotificationSettings(record);
}

void SettingsPaneModel::setAppearanceField(const QString& name, const QVariant& value)
{
    if (!m_settings)
        return;
    BreakAppearance record = m_settings->breakAppearance();
    if (writeField(record, name, value))
        m_settings->setBreakAppearance(record);
}

void SettingsPaneModel::setDayActive(int weekday, bool active)
{
    const std::optional<Weekday> day = weekdayFromRawValue(weekday);
    if (!m_settings || !day)
        return;
    Schedule schedule = m_settings->schedule();
    if (active)
        schedule.insertDay(*day);
    else
        schedule.removeDay(*day);
    m_settings->setSchedule(schedule);
}

QVariantMap SettingsPaneModel::shownTime(bool start) const
{
    int hour = 0;
    int minute = 0;
    if (m_settings) {
        const TimeOfDay& time = start ? m_settings->schedule().startTime : m_settings->schedule().endTime;
        hour = time.hourOrZero();
        minute = time.minuteOrZero();
    }
    if (!QTime::isValid(hour, minute, 0)) {
        const QTime now = QTime::currentTime();
        hour = now.hour();
        minute = now.minute();
    }
    return {{u"hour"_s, hour}, {u"minute"_s, minute}};
}

void SettingsPaneModel::setTime(bool start, int hour, int minute)
{
    if (!m_settings || !QTime::isValid(hour, minute, 0))
        return;
    Schedule schedule = m_settings->schedule();
    (start ? schedule.startTime : schedule.endTime) = TimeOfDay{hour, minute};
    m_settings->setSchedule(schedule);
}

void SettingsPaneModel::setLockScreenOnBreak(bool on)
{
    if (!m_settings)
        return;
    if (on && !(m_lock && m_lock->isLockAvailable())) {
        setShowLockScreenAlert(true);
        // The switch moved on its own; tell it the stored value again.
        Q_EMIT breakConfigurationChanged();
        return;
    }
    BreakConfiguration breaks = m_settings->breakConfiguration();
    breaks.lockScreenOnBreak = on;
    m_settings->setBreakConfiguration(breaks);
}

void SettingsPaneModel::dismissLockScreenAlert()
{
    setShowLockScreenAlert(false);
}

void SettingsPaneModel::setShowLockScreenAlert(bool value)
{
    m_showLockScreenAlert = value;
    Q_EMIT showLockScreenAlertChanged();
}

void SettingsPaneModel::applyPreset(int kind)
{
    if (const auto preset = enumAt<BreakPresetKind>(kind); m_settings && preset)
        m_settings->applyBreakPreset(*preset);
}

void SettingsPaneModel::resetToDefaults()
{
    if (m_settings)
        m_settings->resetToDefaults();
}

void SettingsPaneModel::setFocusAppMode(int index, int mode)
{
    const std::optional<DeepFocusMode> newMode = enumAt<DeepFocusMode>(mode);
    if (!m_settings || !newMode)
        return;
    SmartPauseSettings settings = m_settings->smartPauseSettings();
    if (index < 0 || index >= settings.deepFocusApps.size())
        return;
    settings.deepFocusApps[index].mode = *newMode;
    m_settings->setSmartPauseSettings(settings);
}

void SettingsPaneModel::deleteFocusApp(const QString& bundleIdentifier)
{
    if (!m_settings)
        return;
    SmartPauseSettings settings = m_settings->smartPauseSettings();
    settings.deepFocusApps.removeIf([&](const DeepFocusApp& app) { return app.bundleIdentifier == bundleIdentifier; });
    m_settings->setSmartPauseSettings(settings);
}

void SettingsPaneModel::setMessage(int index, const QString& text)
{
    if (!m_settings)
        return;
    BreakAppearance appearance = m_settings->breakAppearance();
    if (index < 0 || index >= appearance.customMessages.size())
        return;
    appearance.customMessages[index] = text;
    m_settings->setBreakAppearance(appearance);
}

void SettingsPaneModel::removeMessage(int index)
{
    if (!m_settings)
        return;
    BreakAppearance appearance = m_settings->breakAppearance();
    if (appearance.customMessages.size() < 2 || index < 0 || index >= appearance.customMessages.size())
        return;
    appearance.customMessages.removeAt(index);
    m_settings->setBreakAppearance(appearance);
}

void SettingsPaneModel::addMessage()
{
    if (!m_settings)
        return;
    BreakAppearance appearance = m_settings->breakAppearance();
    appearance.customMessages.append(QString());
    m_settings->setBreakAppearance(appearance);
}

QVariantList SettingsPaneModel::themeColors(int theme) const
{
    QVariantList colors;
    if (const auto gradient = enumAt<velto::GradientTheme>(theme)) {
        for (const CodableColor& color : gradientColors(*gradient))
            colors.append(
                QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.opacity)));
    }
    return colors;
}

QUrl SettingsPaneModel::iconSource(const QString& bundleIdentifier)
{
    return QUrl(u"image://veltoappicon/"_s + QString::fromLatin1(QUrl::toPercentEncoding(bundleIdentifier)));
}

void SettingsPaneModel::checkForUpdates()
{
    if (onCheckForUpdates)
        onCheckForUpdates();
}

void SettingsPaneModel::aboutShown()
{
    if (onSilentCheck)
        onSilentCheck();
}

} // namespace velto
