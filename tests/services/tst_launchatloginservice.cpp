#include "LaunchAtLoginService.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

class ScriptedRegistrar final : public LoginItemRegistering {
public:
    explicit ScriptedRegistrar(QList<bool>* calls, std::optional<QString> error = std::nullopt)
        : m_calls(calls)
        , m_error(std::move(error))
    {}
    std::optional<QString> setRegistered(bool registered) override
    {
        m_calls->append(registered);
        return m_error;
    }

private:
    QList<bool>* m_calls;
    std::optional<QString> m_error;
};

QProcessEnvironment environmentWith(const QStringList& names)
{
    QProcessEnvironment environment;
    environment.insert(u"HOME"_s, u"/home/someone"_s);
    for (const QString& name : names)
        environment.insert(name, QString());
    return environment;
}

} // namespace

class TestLaunchAtLoginService : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void registersQuietlyAndReportsAFailureInOneLine();
    void ciAndTestRunsAreLeftAlone();
};

void TestLaunchAtLoginService::registersQuietlyAndReportsAFailureInOneLine()
{
    QList<bool> calls;
    QStringList printed;
    LaunchAtLoginService service(std::make_unique<ScriptedRegistrar>(&calls), environmentWith({}),
                                 [&](const QString& line) { printed.append(line); });
    service.setEnabled(true);
    service.setEnabled(true);
    QCOMPARE(calls, (QList{true, true}));
    QVERIFY(printed.isEmpty());

    LaunchAtLoginService failing(std::make_unique<ScriptedRegistrar>(&calls, u"No autostart entry at /x"_s),
                                 environmentWith({}), [&](const QString& line) { printed.append(line); });
    failing.setEnabled(false);
    QCOMPARE(printed, QStringList{u"Failed to update launch at login: No autostart entry at /x"_s});
}

void TestLaunchAtLoginService::ciAndTestRunsAreLeftAlone()
{
    // The value does not matter, only that the variable is there.
    for (const QString& name : {u"CI"_s, u"VELTO_TEST_SUITE"_s}) {
        QList<bool> calls;
        QStringList printed;
        LaunchAtLoginService service(std::make_unique<ScriptedRegistrar>(&calls, u"boom"_s), environmentWith({name}),
                                     [&](const QString& line) { printed.append(line); });
        service.setEnabled(true);
        service.setEnabled(false);
        QVERIFY2(calls.isEmpty(), qPrintable(name));
        QVERIFY2(printed.isEmpty(), qPrintable(name));
    }
    // Nor do similar names count.
    QList<bool> calls;
    LaunchAtLoginService service(std::make_unique<ScriptedRegistrar>(&calls), environmentWith({u"CI_SERVER"_s}),
                                 [](const QString&) {});
    service.setEnabled(true);
    QCOMPARE(calls.size(), 1);
}

QTEST_GUILESS_MAIN(TestLaunchAtLoginService)
#include "tst_launchatloginservice.moc"
