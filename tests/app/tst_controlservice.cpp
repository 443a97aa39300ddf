#include "ControlBus.h"
#include "ControlService.h"
#include "ControlTarget.h"
#include "FakeControlTarget.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QTest>

#include <cmath>
#include <limits>

using namespace velto;
using namespace Qt::Literals::StringLiterals;
using Registration = ControlService::Registration;

// Runs under dbus-run-session (see velto_add_dbus_test). Each "instance" registers on a connection of its own and
// the calls come from yet another one, so every call crosses the bus daemon as it does between two processes.
class TestControlService : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "Run this test under dbus-run-session, as ctest does");
        m_caller = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"caller"_s);
        QVERIFY(m_caller->isConnected());
    }

    void cleanup()
    {
        for (const QString& name : std::as_const(m_connectionNames))
            QDBusConnection::disconnectFromBus(name);
        m_connectionNames.clear();
        QTRY_VERIFY(!m_caller->interface()->isServiceRegistered(ControlBus::serviceName).value());
    }

    void oneOwnerOfTheNameAtATime()
    {
        FakeControlTarget first;
        FakeControlTarget second;
        auto firstService = std::make_unique<ControlService>();
        ControlService secondService;
        const QDBusConnection firstBus = instanceConnection(u"first"_s);
        const QDBusConnection secondBus = instanceConnection(u"second"_s);

        firstService->setTarget(&first);
        QCOMPARE(firstService->registerOn(firstBus), Registration::Owner);
        secondService.setTarget(&second);
        QCOMPARE(secondService.registerOn(secondBus), Registration::AnotherInstance);

        const QDBusReply<QString> owner = m_caller->interface()->serviceOwner(ControlBus::serviceName);
        QCOMPARE(owner.value(), firstBus.baseService());
        // The loser does not leave its object behind, and a request reaches the owner only.
        QVERIFY(!secondBus.objectRegisteredAt(ControlBus::objectPath));
        QCOMPARE(callService(u"openSettings"_s).type(), QDBusMessage::ReplyMessage);
        QCOMPARE(first.calls, QStringList{u"openSettings"_s});
        QVERIFY(second.calls.isEmpty());

        // Once the owner is gone the name is free for the next instance.
        firstService.reset();
        QTRY_VERIFY(!m_caller->interface()->isServiceRegistered(ControlBus::serviceName).value());
        ControlService third;
        QCOMPARE(third.registerOn(instanceConnection(u"third"_s)), Registration::Owner);
        // Without a bus there is nothing to claim.
        QCOMPARE(ControlService().registerOn(QDBusConnection(u"never-connected"_s)), Registration::NoBus);
    }

    void statusTravelsAsAMapOfTheRecord()
    {
        FakeControlTarget target;
        target.status = {u"24:59  Until next break"_s,
                         u"24:59"_s,
                         u"working"_s,
                         {},
                         3,
                         true,
                         QVariantMap{{u"windows"_s, u"wlr-foreign-toplevel"_s}, {u"idle"_s, u"ext-idle-notify"_s}}};
        const auto service = serve(target);
        QVERIFY(service);
        const QDBusMessage reply = callService(u"status"_s);
        QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
        QCOMPARE(reply.signature(), u"a{sv}"_s);
        QCOMPARE(ControlStatus::fromVariantMap(QDBusReply<QVariantMap>(reply).value()), target.status);
    }

    void statusReadsMissingOrMistypedEntriesAsDefaults()
    {
        QCOMPARE(ControlStatus::fromVariantMap({}), ControlStatus());
        const QVariantMap odd{
            {u"statusLine"_s, 5}, {u"state"_s, u"working"_s}, {u"breaksToday"_s, u"many"_s}, {u"enabled"_s, u"true"_s},
            {u"extra"_s, 1},
        };
        const ControlStatus status = ControlStatus::fromVariantMap(odd);
        QCOMPARE(status.statusLine, QString());
        QCOMPARE(status.state, u"working"_s);
        QCOMPARE(status.breaksToday, 0);
        QCOMPARE(status.enabled, false);
    }

    // The command line's operations are exercised through the client; here the ones only scripts and the app use.
    void theSessionBusServesTheTargetsOperations()
    {
        FakeControlTarget target;
        ControlService service;
        QCOMPARE(service.registerOnSessionBus(target), Registration::Owner);
        QCOMPARE(service.target(), &target);

        const QDBusMessage reply = callService(u"triggerTestPreBreakNotification"_s);
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
        QCOMPARE(target.calls, QStringList{u"triggerTestPreBreakNotification"_s});
    }

    void quitAnswersBeforeItQuits()
    {
        FakeControlTarget target;
        const auto service = serve(target);
        QVERIFY(service);

        // Called as the bus would call it: it returns, and so lets the reply go out, before anything quits.
        service->quit();
        QVERIFY(target.calls.isEmpty());
        QTRY_COMPARE(target.calls, QStringList{u"quit"_s});

        QCOMPARE(callService(u"quit"_s).type(), QDBusMessage::ReplyMessage);
        QTRY_COMPARE(target.calls, (QStringList{u"quit"_s, u"quit"_s}));

        // A service gone before its turn comes asks nobody to quit.
        FakeControlTarget other;
        auto doomed = std::make_unique<ControlService>();
        doomed->setTarget(&other);
        QMetaObject::invokeMethod(doomed.get(), "quit");
        doomed.reset();
        QCoreApplication::processEvents();
        QVERIFY(other.calls.isEmpty());
    }

    void pausesThatCannotBeHonouredAreRefused_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::newRow("zero") << 0.0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
        QTest::newRow("longer than a day") << 86400.5;
        QTest::newRow("beyond any timer") << 6e13;
        QTest::newRow("huge") << 1e308;
    }
    void pausesThatCannotBeHonouredAreRefused()
    {
        QFETCH(double, seconds);
        FakeControlTarget target;
        const auto service = serve(target);
        QVERIFY(service);
        const QDBusMessage reply = callService(u"pauseFor"_s, {seconds});
        QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
        QCOMPARE(reply.errorName(), ControlBus::invalidArgumentError);
        QVERIFY(target.calls.isEmpty());
    }

    void callsBeforeTheTargetIsSetAreAnsweredWithAnError()
    {
        ControlService service;
        QCOMPARE(service.registerOn(instanceConnection(u"instance"_s)), Registration::Owner);
        for (const QString& method : {u"status"_s, u"quit"_s}) {
            const QDBusMessage reply = callService(method);
            QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
            QCOMPARE(reply.errorName(), ControlBus::notReadyError);
        }

        FakeControlTarget target;
        service.setTarget(&target);
        QCOMPARE(callService(u"takeBreakNow"_s).type(), QDBusMessage::ReplyMessage);
        QCOMPARE(target.calls, QStringList{u"takeBreakNow"_s});
    }

private:
    [[nodiscard]] QDBusConnection instanceConnection(const QString& name)
    {
        m_connectionNames << name;
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    }

    [[nodiscard]] QDBusMessage callService(const QString& method, const QVariantList& arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(ControlBus::serviceName, ControlBus::objectPath,
                                                              ControlBus::interfaceName, method);
        message.setArguments(arguments);
        // The service lives in this thread, so the call must keep the event loop turning while it waits.
        return m_caller->call(message, QDBus::BlockWithGui, 2000);
    }

    // A service for the target, owning the name on a connection of its own.
    [[nodiscard]] std::unique_ptr<ControlService> serve(FakeControlTarget& target)
    {
        auto service = std::make_unique<ControlService>();
        service->setTarget(&target);
        return service->registerOn(instanceConnection(u"instance"_s)) == Registration::Owner ? std::move(service)
                                                                                             : nullptr;
    }

    QStringList m_connectionNames;
    std::optional<QDBusConnection> m_caller;
};

QTEST_GUILESS_MAIN(TestControlService)
#include "tst_controlservice.moc"
