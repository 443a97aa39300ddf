#pragma once

#include "settings/LaunchAtLoginControlling.h"
#include "settings/LoginItemRegistering.h"

#include <QProcessEnvironment>

#include <functional>
#include <memory>

namespace velto {

// Starts Velto at login or stops doing so, as the settings ask. Keeps no state of its own: the choice lives
// in the settings. Does nothing in continuous-integration and test-suite runs. A failure prints one line on
// standard output and changes nothing else.
class LaunchAtLoginService final : public LaunchAtLoginControlling {
public:
    using LinePrinter = std::function<void(const QString& line)>;

    explicit LaunchAtLoginService(std::unique_ptr<LoginItemRegistering> registrar,
                                  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment(),
                                  LinePrinter printLine = {});
    ~LaunchAtLoginService() override;

    void setEnabled(bool enabled) override;
    [[nodiscard]] bool isTurnedOffElsewhere() const override;

private:
    std::unique_ptr<LoginItemRegistering> m_registrar;
    QProcessEnvironment m_environment;
    LinePrinter m_printLine;
};

} // namespace velto
