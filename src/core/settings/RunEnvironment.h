#pragma once

#include <QProcessEnvironment>
#include <QString>

namespace velto {

// Set by the test runner for every test process, so that nothing acts on the real session.
inline constexpr QStringView testSuiteVariable = u"VELTO_TEST_SUITE";

[[nodiscard]] inline bool isRunningTestSuite(const QProcessEnvironment& environment)
{
    return environment.contains(testSuiteVariable.toString());
}

// Any of these, whatever its value, marks a continuous-integration run.
[[nodiscard]] inline bool isContinuousIntegration(const QProcessEnvironment& environment)
{
    for (const QStringView name :
         {QStringView(u"CI"), QStringView(u"GITHUB_ACTIONS"), QStringView(u"GITHUB_WORKFLOW")}) {
        if (environment.contains(name.toString()))
            return true;
    }
    return false;
}

} // namespace velto
