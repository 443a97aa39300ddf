#include "LaunchAtLoginService.h"

#include "settings/RunEnvironment.h"

#include <QCoreApplication>

#include <cstdio>

namespace velto {

LaunchAtLoginService::LaunchAtLoginService(std::unique_ptr<LoginItemRegistering> registrar,
                                           QProcessEnvironment environment, LinePrinter printLine)
    : m_registrar(std::move(registrar))
    , m_environment(std::move(environment))
    , m_printLine(std::move(printLine))
{
    if (!m_printLine) {
        m_printLine = [](const QString& line) {
            std::fputs((line + u'\n').toUtf8().constData(), stdout);
            std::fflush(stdout);
        };
    }
}

LaunchAtLoginService::~LaunchAtLoginService() = default;

void LaunchAtLoginService::setEnabled(bool enabled)
{
    if (isContinuousIntegration(m_environment) || isRunningTestSuite(m_environment) || !m_registrar)
        return;
    if (const std::optional<QString> error = m_registrar->setRegistered(enabled))
        //: A line on standard output; %1 is the reason, such as "Could not write …".
        m_printLine(QCoreApplication::translate("LaunchAtLogin", "Failed to update launch at login: %1").arg(*error));
}

bool LaunchAtLoginService::isTurnedOffElsewhere() const
{
    return !isContinuousIntegration(m_environment) && !isRunningTestSuite(m_environment) && m_registrar &&
           m_registrar->isDisabledByUser();
}

} // namespace velto
