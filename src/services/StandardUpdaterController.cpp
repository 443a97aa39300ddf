#include "StandardUpdaterController.h"

#include "UpdateAvailabilityModel.h"
#include "VeltoUrls.h"

#include <QSysInfo>

namespace velto {

UpdaterConfiguration defaultUpdaterConfiguration(const QString& hostVersion)
{
    UpdaterConfiguration configuration;
    configuration.feedUrl = QUrl(QString::fromUtf8(urls::feed));
    configuration.hostVersion = hostVersion;
    configuration.systemVersion = QSysInfo::kernelVersion();
    return configuration;
}

StandardUpdaterController::StandardUpdaterController(UpdaterConfiguration configuration, UserDefaultsStore* store,
                                                     UpdateAvailabilityModel* model,
                                                     std::unique_ptr<UpdateUserDriver> userDriver, Updater::Clock clock,
                                                     QObject* parent)
    : QObject(parent)
    , m_updater(new Updater(std::move(configuration), store, std::move(clock), this))
{
    m_updater->setDelegate(model);
    m_updater->setUserDriver(std::move(userDriver));
    m_updater->start();
    if (model)
        model->setUpdater(m_updater);
}

} // namespace velto
