#pragma once

#include "Updater.h"

#include <QObject>

namespace velto {

class UpdateAvailabilityModel;

// The configuration Velto ships with: the feed address from the build, this version, and the kernel release
// as the system version an item's minimum system version is compared with.
[[nodiscard]] UpdaterConfiguration defaultUpdaterConfiguration(const QString& hostVersion);

// Creates the updater and starts it at once, with the model as its delegate; the model gets a weak reference
// to the updater. The controller owns the updater; the model outlives neither requirement.
class StandardUpdaterController final : public QObject {
    Q_OBJECT
public:
    StandardUpdaterController(UpdaterConfiguration configuration, UserDefaultsStore* store,
                              UpdateAvailabilityModel* model, std::unique_ptr<UpdateUserDriver> userDriver = {},
                              Updater::Clock clock = {}, QObject* parent = nullptr);

    [[nodiscard]] Updater* updater() const { return m_updater; }

private:
    Updater* m_updater = nullptr;
};

} // namespace velto
