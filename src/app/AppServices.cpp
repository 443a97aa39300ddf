#include "AppServices.h"

#include "DesktopColorScheme.h"
#include "SystemSleepSignals.h"

namespace velto {

AppServices::AppServices() = default;
AppServices::AppServices(AppServices&&) noexcept = default;
AppServices& AppServices::operator=(AppServices&&) noexcept = default;
AppServices::~AppServices() = default;

} // namespace velto
