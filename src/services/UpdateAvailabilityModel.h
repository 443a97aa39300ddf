#pragma once

#include "Updater.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace velto {

// Publishes whether a newer version is available, from the updater's delegate callbacks. The settings
// window reads it. The root creates the one instance. Main thread. Every assignment of a published field
// emits objectWillChange() and the field's signal, also when the value is unchanged.
class UpdateAvailabilityModel final : public QObject, public UpdaterDelegate {
    Q_OBJECT
    Q_PROPERTY(bool updateAvailable READ updateAvailable NOTIFY updateAvailableChanged)
    // A null string when no update is available.
    Q_PROPERTY(QString availableVersionDisplayString READ availableVersionDisplayString NOTIFY
                   availableVersionDisplayStringChanged)
public:
    explicit UpdateAvailabilityModel(QObject* parent = nullptr);
    ~UpdateAvailabilityModel() override;

    [[nodiscard]] bool updateAvailable() const { return m_updateAvailable; }
    [[nodiscard]] QString availableVersionDisplayString() const { return m_availableVersionDisplayString; }

    [[nodiscard]] Updater* updater() const { return m_updater; }
    // Built for a distribution, whose package manager brings new versions: Velto does not look for them.
    [[nodiscard]] bool isUpdatedBySystem() const { return m_updatedBySystem; }
    void setUpdatedBySystem(bool bySystem) { m_updatedBySystem = bySystem; }
    void setUpdater(Updater* updater) { m_updater = updater; }

    // Do nothing once the updater is gone.
    Q_INVOKABLE void checkForUpdates();
    Q_INVOKABLE void checkForUpdatesInBackground();

    void didFindValidUpdate(const AppcastItem& item) override;
    void didNotFindUpdate(const UpdateError& error) override;
    void userDidMakeChoice(UpdateChoice choice, const AppcastItem& item) override;

Q_SIGNALS:
    void objectWillChange();
    void updateAvailableChanged(bool updateAvailable);
    void availableVersionDisplayStringChanged(const QString& availableVersionDisplayString);

private:
    void clear();

    bool m_updateAvailable = false;
    QString m_availableVersionDisplayString;
    QPointer<Updater> m_updater;
    bool m_updatedBySystem = false;
};

} // namespace velto
