#include "AddFocusAppModel.h"

#include "SettingsPaneModel.h"
#include "detection/ApplicationInfoProviding.h"
#include "detection/WorkspaceProviding.h"
#include "settings/SettingsManager.h"

#include <QCoreApplication>
#include <QSet>
#include <QThreadPool>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velto {

QList<RunningApplication> loadRunningApplications(const WorkspaceProviding& workspace,
                                                  const ApplicationInfoProviding* applications)
{
    QList<RunningApplication> result;
    QSet<QString> seen;
    for (const AppSnapshot& snapshot : workspace.runningApplications()) {
        RunningApplication application;
        application.bundleIdentifier = snapshot.bundleIdentifierOrEmpty();
        if (snapshot.bundleIdentifier) {
            // Many processes make one application; the list shows it once.
            if (seen.contains(*snapshot.bundleIdentifier))
                continue;
            seen.insert(*snapshot.bundleIdentifier);
            if (applications) {
                if (const std::optional<ApplicationInfo> info =
                        applications->applicationInfo(*snapshot.bundleIdentifier)) {
                    if (!info->isRegular)
                        continue;
                    application.name = info->displayName;
                    application.hasIcon = !info->iconName.isEmpty();
                }
            }
        }
        result.append(application);
    }
    std::stable_sort(result.begin(), result.end(), [](const RunningApplication& a, const RunningApplication& b) {
        return a.name.compare(b.name, Qt::CaseSensitive) < 0;
    });
    return result;
}

QList<RunningApplication> filterApplications(const QList<RunningApplication>& applications, const QString& searchText,
                                             const QStringList& taken)
{
    const QString query = searchText.trimmed().toLower();
    QList<RunningApplication> result;
    for (const RunningApplication& application : applications) {
        if (application.bundleIdentifier.isEmpty() || taken.contains(application.bundleIdentifier))
            continue;
        if (query.isEmpty() || application.name.toLower().contains(query) ||
            application.bundleIdentifier.toLower().contains(query))
            result.append(application);
    }
    return result;
}

AddFocusAppModel::AddFocusAppModel(SettingsManager* settings, WorkspaceProviding* workspace,
                                   ApplicationInfoProviding* applications, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_workspace(workspace)
    , m_applications(applications)
{
    if (settings)
        connect(settings, &SettingsManager::smartPauseSettingsChanged, this, &AddFocusAppModel::filteredAppsChanged);
}

void AddFocusAppModel::setSearchText(const QString& text)
{
    m_searchText = text;
    Q_EMIT searchTextChanged();
    Q_EMIT filteredAppsChanged();
}

void AddFocusAppModel::setSelectedBundleId(const QString& identifier)
{
    m_selectedBundleId = identifier.isEmpty() ? std::nullopt : std::optional<QString>(identifier);
    Q_EMIT selectedBundleIdChanged();
}

void AddFocusAppModel::setSelectedMode(int mode)
{
    if (mode < 0 || mode >= allCases<DeepFocusMode>().size())
        return;
    m_selectedMode = mode;
    Q_EMIT selectedModeChanged();
}

QStringList AddFocusAppModel::takenIdentifiers() const
{
    QStringList taken;
    if (m_settings) {
        for (const DeepFocusApp& app : m_settings->smartPauseSettings().deepFocusApps)
            taken.append(app.bundleIdentifier);
    }
    return taken;
}

QVariantList AddFocusAppModel::filteredApps() const
{
    QVariantList list;
    for (const RunningApplication& application : filterApplications(m_runningApps, m_searchText, takenIdentifiers()))
        //: The name shown for a running application that has none.
        list.append(QVariantMap{{u"name"_s, application.name.isEmpty() ? tr("Unknown App") : application.name},
                                {u"bundleIdentifier"_s, application.bundleIdentifier},
                                {u"hasIcon"_s, application.hasIcon},
                                {u"iconSource"_s, SettingsPaneModel::iconSource(application.bundleIdentifier)}});
    return list;
}

QStringList AddFocusAppModel::modeTitles()
{
    QStringList titles;
    for (DeepFocusMode mode : allCases<DeepFocusMode>())
        titles.append(sheetTitle(mode));
    return titles;
}

QString AddFocusAppModel::emptyText() const
{
    return m_searchText.isEmpty() ? tr("No other apps are currently running") : tr("No matching apps");
}

void AddFocusAppModel::present()
{
    m_searchText.clear();
    m_selectedBundleId.reset();
    m_selectedMode = int(DeepFocusMode::WhenForeground);
    m_runningApps.clear();
    Q_EMIT searchTextChanged();
    Q_EMIT selectedBundleIdChanged();
    Q_EMIT selectedModeChanged();
    if (!m_workspace) {
        Q_EMIT filteredAppsChanged();
        return;
    }
    m_isLoading = true;
    Q_EMIT filteredAppsChanged();
    // Reading /proc and the desktop files takes a moment; the window stays responsive meanwhile. A later
    // showing supersedes the answer of an earlier one.
    const int presentation = ++m_presentation;
    QPointer<AddFocusAppModel> self(this);
    WorkspaceProviding* workspace = m_workspace;
    ApplicationInfoProviding* applications = m_applications;
    QThreadPool::globalInstance()->start([self, presentation, workspace, applications] {
        QList<RunningApplication> loaded = loadRunningApplications(*workspace, applications);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, presentation, loaded = std::move(loaded)]() mutable {
                if (self && self->m_presentation == presentation)
                    self->setRunningApps(std::move(loaded));
            },
            Qt::QueuedConnection);
    });
}

void AddFocusAppModel::setRunningApps(QList<RunningApplication> applications)
{
    m_runningApps = std::move(applications);
    m_isLoading = false;
    Q_EMIT filteredAppsChanged();
}

bool AddFocusAppModel::add()
{
    if (!m_selectedBundleId || !m_settings)
        return false;
    const auto found = std::find_if(m_runningApps.cbegin(), m_runningApps.cend(), [this](const RunningApplication& a) {
        return a.bundleIdentifier == *m_selectedBundleId;
    });
    if (found == m_runningApps.cend())
        return false;
    SmartPauseSettings settings = m_settings->smartPauseSettings();
    const QString name = found->name.isEmpty() ? *m_selectedBundleId : found->name;
    settings.deepFocusApps.append(DeepFocusApp{name, *m_selectedBundleId, static_cast<DeepFocusMode>(m_selectedMode)});
    m_settings->setSmartPauseSettings(settings);
    return true;
}

} // namespace velto
