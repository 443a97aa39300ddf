#include "HeadlessCompositor.h"
#include "SystemGnomeExtension.h"

#include <QDBusConnection>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;
using State = GnomeExtensionState;

// Velto's extension as a real headless GNOME Shell 43 has it: the provider's state through install, enabling for the
// next login, that login, and enabling through the running shell; the command line beside it.
class TestSystemGnomeExtension : public QObject {
    Q_OBJECT

private:
    struct Cli {
        int exitCode = -1;
        QString out;
        QString err;
    };

    // velto gnome-extension … as a user in this session runs it.
    Cli velto(const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_compositor.environment());
        process.start(QStringLiteral(VELTO_EXECUTABLE), QStringList{u"gnome-extension"_s} + arguments);
        if (!process.waitForFinished(30000))
            process.kill();
        process.waitForFinished();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    static State stateOf(const SystemGnomeExtension& extension)
    {
        return extension.facts() ? gnomeExtensionState(*extension.facts()) : State::NotGnome;
    }

    static QString enable(SystemGnomeExtension& extension)
    {
        std::optional<QString> result;
        extension.enable([&result](const QString& error) { result = error; });
        if (!QTest::qWaitFor([&result] { return result.has_value(); }, 10000))
            return u"no answer"_s;
        return *result;
    }

    bool callShell(const QString& method) const
    {
        const QDBusMessage reply =
            m_compositor.callBus(u"org.gnome.Shell"_s, u"/org/gnome/Shell"_s, u"org.gnome.Shell.Extensions"_s, method,
                                 {u"velto@velto.app"_s});
        return reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool();
    }

    HeadlessCompositor m_compositor;

private Q_SLOTS:
    void fromInstallToRunning()
    {
        if (!HeadlessCompositor::isAvailable(HeadlessCompositor::Kind::Gnome))
            QSKIP("GNOME Shell is not installed");
        // A shell without the extension; this process reads the session's settings and folders as the shell does.
        QVERIFY(m_compositor.start(HeadlessCompositor::Kind::Gnome));
        const QProcessEnvironment session = m_compositor.environment();
        for (const QString& name : {u"XDG_CONFIG_HOME"_s, u"XDG_DATA_HOME"_s, u"GSETTINGS_BACKEND"_s})
            qputenv(name.toLatin1().constData(), session.value(name).toUtf8());
        qunsetenv("XDG_DATA_DIRS");
        if (QFileInfo::exists(u"/usr/share/gnome-shell/extensions/velto@velto.app"_s) ||
            QFileInfo::exists(u"/usr/local/share/gnome-shell/extensions/velto@velto.app"_s))
            QSKIP("Velto's extension is installed system-wide on this machine");

        const QDBusConnection bus = QDBusConnection::connectToBus(m_compositor.busAddress(), u"gnome-extension"_s);
        SystemGnomeExtension extension(bus);
        int gatherings = 0;
        connect(&extension, &GnomeExtensionControlling::factsGathered, this, [&gatherings] { ++gatherings; });
        extension.refresh();
        QTRY_COMPARE(stateOf(extension), State::NotInstalled);
        Cli cli = velto({u"enable"_s});
        QCOMPARE(cli.exitCode, 1);
        QVERIFY2(cli.err.contains(u"not installed"_s), qPrintable(cli.err));

        // Copied in after the shell started, as a package installed during the session: the shell has not
        // loaded it, so enabling writes the settings for the next login.
        const QString folder = session.value(u"XDG_DATA_HOME"_s) + u"/gnome-shell/extensions/velto@velto.app"_s;
        QVERIFY(QDir().mkpath(folder));
        for (const QString& file : {u"extension.js"_s, u"metadata.json"_s})
            QVERIFY(QFile::copy(QStringLiteral(VELTO_GNOME_EXTENSION "/") + file, folder + u'/' + file));
        extension.refresh();
        QTRY_COMPARE(stateOf(extension), State::NotEnabled);
        QVERIFY(!extension.facts()->shellState);
        QCOMPARE(enable(extension), QString());
        QCOMPARE(stateOf(extension), State::EnabledNextLogin);
        QVERIFY(!extension.facts()->serving);
        // Read back by GNOME's own tool, and by the command line.
        QByteArray listed;
        QVERIFY(m_compositor.run(u"gsettings"_s, {u"get"_s, u"org.gnome.shell"_s, u"enabled-extensions"_s}, &listed));
        QVERIFY2(listed.contains("'velto@velto.app'"), listed.constData());
        cli = velto({u"status"_s, u"--json"_s});
        QCOMPARE(cli.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(cli.out.toUtf8()).object().value(u"state"_s).toString(),
                 u"enabledNextLogin"_s);

        // The next login starts it: the provider hears its name appear without being asked.
        const int before = gatherings;
        QVERIFY(m_compositor.restart());
        QTRY_COMPARE_WITH_TIMEOUT(stateOf(extension), State::Active, 20000);
        QVERIFY(gatherings > before);
        QCOMPARE(extension.facts()->shellState, GnomeShellExtensionState::enabled);

        // Switched off in the shell, as the Extensions app does; enabling then goes through the running shell,
        // which starts it before it answers.
        QVERIFY(callShell(u"DisableExtension"_s));
        QTRY_COMPARE(stateOf(extension), State::NotEnabled);
        QVERIFY(gnomeExtensionEnabling(*extension.facts()).askShell);
        QCOMPARE(enable(extension), QString());
        QCOMPARE(stateOf(extension), State::Active);
        QVERIFY(extension.facts()->serving);

        // Every extension switched off at once (the Extensions app's main switch): the provider hears the setting.
        // The command line, without a running Velto, has the shell turn the switch back on and start it.
        QVERIFY(m_compositor.run(u"gsettings"_s,
                                 {u"set"_s, u"org.gnome.shell"_s, u"disable-user-extensions"_s, u"true"_s}));
        QTRY_COMPARE(stateOf(extension), State::NotEnabled);
        QVERIFY(extension.facts()->userExtensionsOff);
        QCOMPARE(gnomeExtensionEnabling(*extension.facts()), (GnomeExtensionEnabling{true, false, true}));
        cli = velto({u"status"_s});
        QCOMPARE(cli.exitCode, 0);
        QCOMPARE(cli.out.section(u'\n', 0, 0), u"GNOME extension: installed, not enabled"_s);
        cli = velto({u"enable"_s});
        QCOMPARE(cli.exitCode, 0);
        QCOMPARE(cli.out, u"GNOME extension: active\n"_s);
        QTRY_COMPARE(stateOf(extension), State::Active);
        QVERIFY(!extension.facts()->userExtensionsOff);

        QDBusConnection::disconnectFromBus(u"gnome-extension"_s);
    }
};

QTEST_GUILESS_MAIN(TestSystemGnomeExtension)
#include "tst_systemgnomeextension.moc"
