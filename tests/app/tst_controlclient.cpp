#include "CommandLine.h"
#include "ControlBus.h"
#include "ControlClient.h"
#include "ControlService.h"
#include "FakeControlTarget.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTextStream>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A Velto that takes calls and never answers them; with vanishOnQuit it leaves the bus instead of answering quit.
class SilentInstance final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.velto.app.Control")

public:
    SilentInstance(QDBusConnection bus, bool vanishOnQuit)
        : m_bus(std::move(bus))
        , m_vanishOnQuit(vanishOnQuit)
    {
        m_bus->registerObject(ControlBus::objectPath, this, QDBusConnection::ExportScriptableSlots);
        m_bus->registerService(ControlBus::serviceName);
    }

public Q_SLOTS:
    Q_SCRIPTABLE QVariantMap status()
    {
        setDelayedReply(true);
        return {};
    }
    Q_SCRIPTABLE void quit()
    {
        setDelayedReply(true);
        if (!m_vanishOnQuit)
            return;
        // The connection closes once no handle to it is left.
        QMetaObject::invokeMethod(
            this,
            [this] {
                const QString name = m_bus->name();
                m_bus.reset();
                QDBusConnection::disconnectFromBus(name);
            },
            Qt::QueuedConnection);
    }

private:
    std::optional<QDBusConnection> m_bus;
    bool m_vanishOnQuit;
};

struct Outcome {
    int exitCode = -1;
    QString out;
    QString err;
};

} // namespace

// Runs under dbus-run-session. The instance (a real ControlService over a fake target) and the client each have a
// connection of their own, so requests cross the bus daemon; the client's calls turn the event loop meanwhile.
class TestControlClient : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "Run this test under dbus-run-session, as ctest does");
        m_clientBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"client"_s);
        QVERIFY(m_clientBus->isConnected());
    }

    void init() { m_target = FakeControlTarget(); }

    void cleanup()
    {
        m_service.reset();
        QDBusConnection::disconnectFromBus(u"instance"_s);
        QTRY_VERIFY(!m_clientBus->interface()->isServiceRegistered(ControlBus::serviceName).value());
    }

    void everyCommandReachesItsOperation_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("calls");

        QTest::newRow("break") << QStringList{u"break"_s} << QStringList{u"takeBreakNow"_s};
        QTest::newRow("break --long") << QStringList{u"break"_s, u"--long"_s} << QStringList{u"startLongBreak"_s};
        QTest::newRow("pause 25") << QStringList{u"pause"_s, u"25"_s} << QStringList{u"pauseFor 1500"_s};
        QTest::newRow("resume") << QStringList{u"resume"_s} << QStringList{u"resume"_s};
        QTest::newRow("skip") << QStringList{u"skip"_s} << QStringList{u"skipUpcomingBreak"_s};
        QTest::newRow("enable") << QStringList{u"enable"_s} << QStringList{u"setRemindersEnabled true"_s};
        QTest::newRow("disable") << QStringList{u"disable"_s} << QStringList{u"setRemindersEnabled false"_s};
        QTest::newRow("settings") << QStringList{u"settings"_s} << QStringList{u"openSettings"_s};
        QTest::newRow("check-updates") << QStringList{u"check-updates"_s} << QStringList{u"checkForUpdates"_s};
        QTest::newRow("status") << QStringList{u"status"_s} << QStringList{};
        // Quit is the one that acts only after it has answered.
        QTest::newRow("quit") << QStringList{u"quit"_s} << QStringList{u"quit"_s};
    }
    void everyCommandReachesItsOperation()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, calls);
        startInstance();

        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QCOMPARE(outcome.err, QString());
        QTRY_COMPARE(m_target.calls, calls);
    }

    void statusShowsTheLineAndEachField()
    {
        startInstance();
        m_target.status = {u"24:59  Until next break"_s, u"24:59"_s, u"working"_s, {}, 1, true, {}};
        Outcome outcome = run({u"status"_s});
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QCOMPARE(outcome.err, QString());
        QCOMPARE(outcome.out, u"24:59  Until next break\n"
                              u"Time left:    24:59\n"
                              u"State:        working\n"
                              u"Pause reason: none\n"
                              u"Breaks today: 1\n"
                              u"Reminders:    on\n"_s);

        m_target.status = {u"Breaks disabled"_s, u"—"_s, u"idle"_s, u"appDisabled"_s, 4, false, {}};
        outcome = run({u"status"_s});
        QVERIFY(outcome.out.contains(u"Pause reason: appDisabled\n"_s));
        QVERIFY(outcome.out.endsWith(u"Reminders:    off\n"_s));
        QVERIFY(m_target.calls.isEmpty());
    }

    void statusAsJson()
    {
        startInstance();
        m_target.status = {u"12:00  Paused · resumes in 15 min"_s,
                           u"12:00"_s,
                           u"paused"_s,
                           u"manuallyPaused"_s,
                           2,
                           true,
                           {{u"windows"_s, u"kde-plasma-window-management"_s}, {u"typing"_s, u"input-activity"_s}}};
        Outcome outcome = run({u"status"_s, u"--json"_s});
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QVERIFY(outcome.out.endsWith(u'\n'));
        QCOMPARE(outcome.out.count(u'\n'), 1); // one line, for scripts
        QJsonParseError error;
        QJsonObject json = QJsonDocument::fromJson(outcome.out.toUtf8(), &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(json, (QJsonObject{{u"statusLine"_s, m_target.status.statusLine},
                                    {u"timeText"_s, u"12:00"_s},
                                    {u"state"_s, u"paused"_s},
                                    {u"pauseReason"_s, u"manuallyPaused"_s},
                                    {u"breaksToday"_s, 2},
                                    {u"enabled"_s, true},
                                    {u"detection"_s, QJsonObject{{u"windows"_s, u"kde-plasma-window-management"_s},
                                                                 {u"typing"_s, u"input-activity"_s}}}}));

        // No pause reason is null, not an empty string.
        m_target.status = {u"Ready"_s, u"—"_s, u"idle"_s, {}, 0, true, {}};
        outcome = run({u"status"_s, u"--json"_s});
        json = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
        QVERIFY(json.value(u"pauseReason"_s).isNull());
    }

    void withoutAnInstanceEveryCommandFailsWithOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("status --json") << QStringList{u"status"_s, u"--json"_s};
        QTest::newRow("pause") << QStringList{u"pause"_s};
        QTest::newRow("quit") << QStringList{u"quit"_s};
    }
    void withoutAnInstanceEveryCommandFailsWithOneLine()
    {
        QFETCH(QStringList, arguments);
        QElapsedTimer elapsed;
        elapsed.start();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, ExitCode::failure);
        QCOMPARE(outcome.out, QString());
        QCOMPARE(outcome.err, u"velto: Velto is not running\n"_s);
        // Told at once by the bus, not found out by waiting.
        QVERIFY(elapsed.elapsed() < 1000);
    }

    void withoutABusNothingIsReached()
    {
        Outcome outcome;
        QTextStream out(&outcome.out);
        QTextStream err(&outcome.err);
        ControlClient client(QDBusConnection(u"never-connected"_s));
        QCOMPARE(client.run(CommandLine::parse({u"status"_s}), out, err), ExitCode::failure);
        QCOMPARE(outcome.err.count(u'\n'), 1);
        QVERIFY(outcome.err.startsWith(u"velto: "_s));
        QCOMPARE(outcome.out, QString());
    }

    void settingsSaysWhenThereIsNoWindow()
    {
        startInstance();
        m_target.settingsAvailable = false;
        const Outcome outcome = run({u"settings"_s});
        QCOMPARE(outcome.exitCode, ExitCode::failure);
        QCOMPARE(outcome.err, u"velto: the settings window cannot be shown in this session\n"_s);
        QCOMPARE(m_target.calls, QStringList{u"openSettings"_s});
    }

    // The answer comes when the check ends, after the call has returned to the bus.
    void checkUpdatesPrintsWhatTheCheckFound()
    {
        startInstance();
        for (const bool completes : {true, false}) {
            m_target.updateCheckCompletes = completes;
            const Outcome outcome = run({u"check-updates"_s});
            QCOMPARE(outcome.exitCode, completes ? ExitCode::success : ExitCode::failure);
            QCOMPARE(completes ? outcome.out : outcome.err,
                     (completes ? u""_s : u"velto: "_s) + m_target.updateOutcome + u'\n');
        }
    }

    void handOverAsksTheRunningInstanceForItsSettings()
    {
        Outcome outcome = run({u"--hand-over"_s});
        QCOMPARE(outcome.exitCode, ExitCode::failure);
        QCOMPARE(outcome.err, u"velto: Velto is not running\n"_s);

        startInstance();
        outcome = run({u"--hand-over"_s});
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QCOMPARE(m_target.calls, QStringList{u"openSettings"_s});
        QVERIFY(outcome.out.contains(u"already running"_s));
        QVERIFY(outcome.out.contains(u"settings window is open"_s));

        // Even without a window to show, the request was handed over: the second start has done its job.
        m_target.settingsAvailable = false;
        outcome = run({u"--hand-over"_s});
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QVERIFY(!outcome.out.contains(u"settings"_s));
    }

    void aSilentInstanceIsGivenUpOnAfterTheTimeOut()
    {
        const SilentInstance silent(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"instance"_s), false);
        for (const QString& command : {u"status"_s, u"quit"_s}) {
            QElapsedTimer elapsed;
            elapsed.start();
            const Outcome outcome = run({command}, 300);
            QCOMPARE(outcome.exitCode, ExitCode::failure);
            QCOMPARE(outcome.err, u"velto: Velto did not answer within 0.3 seconds\n"_s);
            QVERIFY(elapsed.elapsed() >= 250);
            QVERIFY(elapsed.elapsed() < 3000);
        }
    }

    void quitSucceedsWhenTheInstanceLeavesWithoutAnswering()
    {
        const SilentInstance vanishing(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"instance"_s), true);
        const Outcome outcome = run({u"quit"_s});
        QCOMPARE(outcome.exitCode, ExitCode::success);
        QCOMPARE(outcome.err, QString());
    }

private:
    // Runs a command line as the client would; "--hand-over" stands for a second start handing over.
    [[nodiscard]] Outcome run(const QStringList& arguments, int timeoutMs = 2000)
    {
        Outcome outcome;
        QTextStream out(&outcome.out);
        QTextStream err(&outcome.err);
        ControlClient client(*m_clientBus, timeoutMs);
        outcome.exitCode = arguments == QStringList{u"--hand-over"_s}
                               ? client.handOver(out, err)
                               : client.run(CommandLine::parse(arguments), out, err);
        return outcome;
    }

    void startInstance()
    {
        m_service = std::make_unique<ControlService>();
        m_service->setTarget(&m_target);
        QCOMPARE(m_service->registerOn(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"instance"_s)),
                 ControlService::Registration::Owner);
    }

    FakeControlTarget m_target;
    std::unique_ptr<ControlService> m_service;
    std::optional<QDBusConnection> m_clientBus;
};

QTEST_GUILESS_MAIN(TestControlClient)
#include "tst_controlclient.moc"
