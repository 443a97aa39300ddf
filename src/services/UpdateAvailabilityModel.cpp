#include "UpdateAvailabilityModel.h"

#include "Published.h"

namespace velto {

UpdateAvailabilityModel::UpdateAvailabilityModel(QObject* parent)
    : QObject(parent)
{}

UpdateAvailabilityModel::~UpdateAvailabilityModel()
{
    // The updater holds its delegate without a guard; leave it nothing dangling.
    if (m_updater && m_updater->delegate() == this)
        m_updater->setDelegate(nullptr);
}

void UpdateAvailabilityModel::checkForUpdates()
{
    if (m_updater)
        m_updater->checkForUpdates();
}

void UpdateAvailabilityModel::checkForUpdatesInBackground()
{
    if (m_updater)
        m_updater->checkForUpdatesInBackground();
}

void UpdateAvailabilityModel::didFindValidUpdate(const AppcastItem& item)
{
    publish(this, m_updateAvailable, true, &UpdateAvailabilityModel::updateAvailableChanged);
    publish(this, m_availableVersionDisplayString, item.displayVersionString(),
            &UpdateAvailabilityModel::availableVersionDisplayStringChanged);
}

void UpdateAvailabilityModel::didNotFindUpdate(const UpdateError& error)
{
    // Only a definite "nothing newer" clears the flag; a failed check must not hide an update found earlier.
    if (error.domain != UpdaterErrors::domain || error.code != UpdaterErrors::NoUpdateFound)
        return;
    const QVariant reason = error.userInfo.value(UpdaterErrors::noUpdateFoundReasonKey.toString());
    bool isNumber = false;
    const int value = reason.toInt(&isNumber);
    if (!reason.isValid() || !isNumber)
        return;
    if (value == int(NoUpdateFoundReason::OnLatestVersion) ||
        value == int(NoUpdateFoundReason::OnNewerThanLatestVersion))
        clear();
}

void UpdateAvailabilityModel::userDidMakeChoice(UpdateChoice choice, const AppcastItem& item)
{
    Q_UNUSED(item);
    if (choice == UpdateChoice::Skip)
        clear();
}

void UpdateAvailabilityModel::clear()
{
    publish(this, m_updateAvailable, false, &UpdateAvailabilityModel::updateAvailableChanged);
    publish(this, m_availableVersionDisplayString, QString(),
            &UpdateAvailabilityModel::availableVersionDisplayStringChanged);
}

} // namespace velto
