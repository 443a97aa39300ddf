#pragma once

#include "settings/SettingsManager.h"

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QVariantList>

#include <optional>

namespace velto {

class ApplicationInfoProviding;

class WorkspaceProviding;

// A running application the add-focus-app sheet can offer.
// An empty name or identity means the application has none.
struct RunningApplication {
    QString name;
    QString bundleIdentifier;
    bool hasIcon = false;

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

// The regular applications among the running ones, one entry per identity, with their names, sorted by name
// (an absent name counts as empty; plain, case-sensitive comparison). Asks both providers, so it may be slow.
[[nodiscard]] QList<RunningApplication> loadRunningApplications(const WorkspaceProviding& workspace,
                                                                const ApplicationInfoProviding* applications);

// The sheet's offer: applications with an identity that is not in the focus list yet, whose lower-cased name
// or identity contains the trimmed, lower-cased search text (all of them for an empty search).
[[nodiscard]] QList<RunningApplication> filterApplications(const QList<RunningApplication>& applications,
                                                           const QString& searchText, const QStringList& taken);

// The state of one showing of the add-focus-app sheet: search, selection and mode start afresh each time
// and the running applications are read once, on a worker thread. Main thread.
class AddFocusAppModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the settings window")
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString selectedBundleId READ selectedBundleId WRITE setSelectedBundleId NOTIFY selectedBundleIdChanged)
    Q_PROPERTY(int selectedMode READ selectedMode WRITE setSelectedMode NOTIFY selectedModeChanged)
    // Maps of name, bundleIdentifier, iconSource and hasIcon, for the list.
    Q_PROPERTY(QVariantList filteredApps READ filteredApps NOTIFY filteredAppsChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY searchTextChanged)
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY selectedBundleIdChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY filteredAppsChanged)
    Q_PROPERTY(QStringList modeTitles READ modeTitles CONSTANT)

public:
    // None of the collaborators is owned; a null workspace lists nothing.
    AddFocusAppModel(SettingsManager* settings, WorkspaceProviding* workspace, ApplicationInfoProviding* applications,
                     QObject* parent = nullptr);

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] QString selectedBundleId() const { return m_selectedBundleId.value_or(QString()); }
    void setSelectedBundleId(const QString& identifier);
    [[nodiscard]] int selectedMode() const { return m_selectedMode; }
    void setSelectedMode(int mode);
    [[nodiscard]] QVariantList filteredApps() const;
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] bool canAdd() const { return m_selectedBundleId.has_value(); }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] static QStringList modeTitles();

    // Starts a fresh showing: clears the search, the selection and the mode, and reads the running applications.
    Q_INVOKABLE void present();
    // Appends the selected application to the focus list; true when it did, and the sheet should close.
    Q_INVOKABLE bool add();

    [[nodiscard]] const QList<RunningApplication>& runningApps() const { return m_runningApps; }
    void setRunningApps(QList<RunningApplication> applications);

Q_SIGNALS:
    void searchTextChanged();
    void selectedBundleIdChanged();
    void selectedModeChanged();
    void filteredAppsChanged();

private:
    [[nodiscard]] QStringList takenIdentifiers() const;

    QPointer<SettingsManager> m_settings;
    WorkspaceProviding* m_workspace = nullptr;
    ApplicationInfoProviding* m_applications = nullptr;
    QString m_searchText;
    std::optional<QString> m_selectedBundleId;
    int m_selectedMode = 1; // When in Foreground
    QList<RunningApplication> m_runningApps;
    bool m_isLoading = false;
    int m_presentation = 0;
};

} // namespace velto
