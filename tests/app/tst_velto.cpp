#include "ControlBus.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Result {
    int exitCode = -1;
    QString out;
    QString err;
};

} // namespace

// The real velto executable, as a user runs it: an instance started on this test's private session bus (without a
// display), and the command line talking to it from other processes.
class TestVelto : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "Run this test under dbus-run-session, as ctest does");
        QVERIFY(m_home.isValid());
    }

    void cleanup()
    {
        for (const auto& instance : m_instances) {
            if (instance->state() != QProcess::NotRunning) {
                instance->kill();
                instance->waitForFinished(5000);
            }
        }
        m_instances.clear();
        QTRY_VERIFY(!isOwned());
    }

    void helpVersionAndBadArgumentsNeedNoInstance()
    {
        Result result = velto({u"--help"_s});
        QCOMPARE(result.exitCode, 0);
        QVERIFY(result.out.startsWith(u"Usage: velto"_s));
        QCOMPARE(result.err, QString());

        result = velto({u"--version"_s});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.out, u"velto " VELTO_VERSION "\n"_s);

        result = velto({u"pause"_s, u"0"_s});
        QCOMPARE(result.exitCode, 2);
        QCOMPARE(result.out, QString());
        QVERIFY2(result.err.startsWith(u"velto: "_s), qPrintable(result.err));
        QVERIFY(result.err.contains(u"Usage: velto"_s));
    }

    // GNOME Shell's extension is asked of the shell itself: this bus has none, running Velto or not.
    void gnomeExtensionCommandsSayThereIsNoGnomeShell()
    {
        for (const QString& action : {u"status"_s, u"enable"_s}) {
            const Result result = velto({u"gnome-extension"_s, action});
            QCOMPARE(result.exitCode, 1);
            QCOMPARE(result.out, QString());
            QCOMPARE(result.err, u"velto: there is no GNOME Shell in this session\n"_s);
        }
        const Result json = velto({u"gnome-extension"_s, u"status"_s, u"--json"_s});
        QCOMPARE(json.exitCode, 1);
        QCOMPARE(QJsonDocument::fromJson(json.out.toUtf8()).object().value(u"state"_s).toString(), u"notGnome"_s);
    }

    void theRunningInstanceFollowsTheCommandLine()
    {
        QProcess* instance = startInstance();
        QTRY_VERIFY_WITH_TIMEOUT(isOwned(), 15000);
        QCOMPARE(ownerPid(), uint(instance->processId()));

        const Result result = velto({u"status"_s});
        QCOMPARE(result.exitCode, 0);
        QVERIFY2(result.out.contains(u"  Until next break\n"_s), qPrintable(result.out));
        QVERIFY(result.out.contains(u"State:        working\n"_s));

        QCOMPARE(velto({u"pause"_s, u"5"_s}).exitCode, 0);
        const QJsonObject json = status();
        QCOMPARE(json.value(u"state"_s).toString(), u"paused"_s);
        QCOMPARE(json.value(u"pauseReason"_s).toString(), u"manuallyPaused"_s);
        QVERIFY2(json.value(u"statusLine"_s).toString().contains(u"resumes in 5 min"_s),
                 qPrintable(json.value(u"statusLine"_s).toString()));

        QCOMPARE(velto({u"resume"_s}).exitCode, 0);
        QCOMPARE(status().value(u"state"_s).toString(), u"working"_s);

        QCOMPARE(velto({u"break"_s}).exitCode, 0);
        QCOMPARE(status().value(u"state"_s).toString(), u"onBreak"_s);

        quitAndWait(instance);
        const QString instanceErrors = QString::fromUtf8(instance->readAllStandardError());
        QVERIFY2(!instanceErrors.contains(u"velto:"_s), qPrintable(instanceErrors));
    }

    void aSecondStartHandsOverAndLeavesTheFirstRunning()
    {
        QProcess* first = startInstance();
        QTRY_VERIFY_WITH_TIMEOUT(isOwned(), 15000);

        const Result second = velto({});
        QCOMPARE(second.exitCode, 0);
        QVERIFY2(second.out.contains(u"already running"_s), qPrintable(second.out + second.err));
        QCOMPARE(first->state(), QProcess::Running);
        QCOMPARE(ownerPid(), uint(first->processId()));
        quitAndWait(first);
    }

    // A German desktop: the tray menu (as the shell's indicator reads it) and the command line speak German;
    // what scripts read stays the same.
    void germanForPeopleTheSameForScripts()
    {
        QTranslator german;
        QVERIFY(german.load(QStringLiteral(VELTO_TRANSLATIONS_BUILT "/velto_de.qm")));
        // A text the catalogue lacks comes back empty, which every output would contain.
        const auto inGerman = [&german](const char* context, const char* text) {
            const QString translated = german.translate(context, text);
            return translated.isEmpty() ? u"(no German for '%1')"_s.arg(QLatin1String(text)) : translated;
        };
        QProcessEnvironment environment = this->environment();
        environment.insert(u"LANGUAGE"_s, u"de"_s);
        QProcess* instance = startInstance(environment);
        QTRY_VERIFY_WITH_TIMEOUT(isOwned(), 15000);

        QDBusMessage menu = QDBusMessage::createMethodCall(
            velto::ControlBus::serviceName, u"/com/velto/app/Indicator"_s, u"com.velto.app.Indicator1"_s, u"menu"_s);
        const QDBusMessage reply = QDBusConnection::sessionBus().call(menu);
        QStringList titles;
        const QDBusArgument items = reply.arguments().value(0).value<QDBusArgument>();
        items.beginArray();
        while (!items.atEnd()) {
            QVariantMap item;
            items >> item;
            titles << item.value(u"title"_s).toString();
        }
        items.endArray();
        for (const char* text : {"Take a Break", "Quit Velto"}) {
            QVERIFY(!inGerman("TrayMenu", text).isEmpty() && inGerman("TrayMenu", text) != QLatin1String(text));
            QVERIFY2(titles.contains(inGerman("TrayMenu", text)), qPrintable(titles.join(u" | "_s)));
        }

        const Result human = velto({u"status"_s}, environment);
        QVERIFY2(human.out.contains(inGerman("TrayMenu", "Until next break")), qPrintable(human.out));
        QVERIFY2(human.out.contains(inGerman("CommandLine", "State:")), qPrintable(human.out));
        const Result json = velto({u"status"_s, u"--json"_s}, environment);
        const QJsonObject object = QJsonDocument::fromJson(json.out.toUtf8()).object();
        QVERIFY2(object.value(u"statusLine"_s).toString().endsWith(u"  Until next break"_s), qPrintable(json.out));
        QCOMPARE(object.value(u"state"_s).toString(), u"working"_s);
        const Result help = velto({u"--help"_s}, environment);
        QVERIFY2(help.out.contains(inGerman("CommandLine", "Show this help")), qPrintable(help.out));
        const Result history = velto({u"history"_s, u"--days"_s, u"1"_s}, environment);
        QVERIFY2(history.out.contains(inGerman("CommandLine", "Longest stretch")), qPrintable(history.out));
        quitAndWait(instance);
    }

    // Logging out stops Velto with SIGTERM: it ends as after "Quit Velto", the work it counted written down.
    void aStopSignalEndsItCleanly()
    {
        QProcessEnvironment environment = this->environment();
        environment.insert(u"XDG_DATA_HOME"_s, m_home.filePath(u"stopped"_s));
        QProcess* instance = startInstance(environment);
        QTRY_VERIFY_WITH_TIMEOUT(isOwned(), 15000);
        QTest::qWait(3500);
        instance->terminate();
        QVERIFY(instance->waitForFinished(10000));
        QCOMPARE(instance->exitStatus(), QProcess::NormalExit);
        QCOMPARE(instance->exitCode(), 0);

        const Result history = velto({u"history"_s, u"--days"_s, u"1"_s, u"--json"_s}, environment);
        const QJsonObject today =
            QJsonDocument::fromJson(history.out.toUtf8()).object().value(u"days"_s).toArray().at(0).toObject();
        QVERIFY2(today.value(u"work_seconds"_s).toDouble() >= 2, qPrintable(history.out));
    }

    void ofSeveralStartingAtOnceExactlyOneRuns()
    {
        QList<QProcess*> started;
        for (int i = 0; i < 3; ++i)
            started << startInstance();
        const auto finished = [&started] {
            return std::count_if(started.cbegin(), started.cend(),
                                 [](const QProcess* p) { return p->state() == QProcess::NotRunning; });
        };
        QTRY_COMPARE_WITH_TIMEOUT(finished(), qsizetype(2), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(isOwned(), 15000);

        QProcess* survivor = nullptr;
        for (QProcess* process : started) {
            if (process->state() != QProcess::NotRunning) {
                survivor = process;
                continue;
            }
            QCOMPARE(process->exitStatus(), QProcess::NormalExit);
            QCOMPARE(process->exitCode(), 0);
        }
        QVERIFY(survivor);
        QCOMPARE(ownerPid(), uint(survivor->processId()));
        quitAndWait(survivor);
    }

    void theCommandLineNeverStartsAGui()
    {
        // A GUI application would abort on a platform that does not exist; the command line must not care.
        QProcessEnvironment noDisplay = environment();
        noDisplay.insert(u"QT_QPA_PLATFORM"_s, u"no-such-platform"_s);
        noDisplay.remove(u"DISPLAY"_s);
        noDisplay.remove(u"WAYLAND_DISPLAY"_s);
        const Result result = velto({u"status"_s}, noDisplay);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.err, u"velto: Velto is not running\n"_s);
        // Asking never started one.
        QVERIFY(!isOwned());
    }

    void withoutASessionBusVeltoStillRuns()
    {
        QProcessEnvironment noBus = environment();
        noBus.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + m_home.filePath(u"no-bus-here"_s));
        QProcess* instance = startInstance(noBus);
        // It says once why only one instance cannot be promised, and keeps running.
        QString errors;
        const auto said = [&] {
            errors += QString::fromUtf8(instance->readAllStandardError());
            return errors.contains(u"velto: no session bus"_s);
        };
        QTRY_VERIFY_WITH_TIMEOUT(said() || instance->state() == QProcess::NotRunning, 15000);
        QCOMPARE(instance->state(), QProcess::Running);
        QCOMPARE(errors.count(u"velto: "_s), 1);
        QVERIFY(!isOwned());

        const Result result = velto({u"status"_s}, noBus);
        QCOMPARE(result.exitCode, 1);
        QVERIFY(result.err.startsWith(u"velto: no session bus"_s));
        QCOMPARE(instance->state(), QProcess::Running);
    }

private:
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, m_home.filePath(u".config"_s));
        environment.insert(u"XDG_DATA_HOME"_s, m_home.filePath(u".local/share"_s));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
        environment.insert(u"VELTO_TEST_SUITE"_s, u"1"_s);
        // English, whatever the machine's language; a test asks for another where it needs one.
        environment.insert(u"LANGUAGE"_s, u"en"_s);
        return environment;
    }

    [[nodiscard]] Result velto(const QStringList& arguments, const QProcessEnvironment& environment = {})
    {
        QProcess process;
        process.setProcessEnvironment(environment.isEmpty() ? this->environment() : environment);
        process.start(QStringLiteral(VELTO_EXECUTABLE), arguments);
        if (!process.waitForFinished(15000)) {
            process.kill();
            process.waitForFinished();
            return {};
        }
        if (process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    [[nodiscard]] QProcess* startInstance(const QProcessEnvironment& environment = {})
    {
        auto& instance = m_instances.emplace_back(std::make_unique<QProcess>());
        instance->setProcessEnvironment(environment.isEmpty() ? this->environment() : environment);
        instance->start(QStringLiteral(VELTO_EXECUTABLE), {});
        return instance.get();
    }

    [[nodiscard]] QJsonObject status()
    {
        const Result result = velto({u"status"_s, u"--json"_s});
        if (result.exitCode != 0)
            qWarning() << "velto status failed:" << result.err;
        return QJsonDocument::fromJson(result.out.toUtf8()).object();
    }

    [[nodiscard]] uint ownerPid()
    {
        return QDBusConnection::sessionBus().interface()->servicePid(velto::ControlBus::serviceName).value();
    }

    [[nodiscard]] bool isOwned()
    {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(velto::ControlBus::serviceName).value();
    }

    void quitAndWait(QProcess* instance)
    {
        const Result result = velto({u"quit"_s});
        QCOMPARE(result.exitCode, 0);
        QVERIFY(instance->waitForFinished(10000));
        QCOMPARE(instance->exitStatus(), QProcess::NormalExit);
        QCOMPARE(instance->exitCode(), 0);
        QVERIFY(!isOwned());
    }

    QTemporaryDir m_home;
    std::vector<std::unique_ptr<QProcess>> m_instances;
};

QTEST_GUILESS_MAIN(TestVelto)
#include "tst_velto.moc"
