#include "LaunchAtLoginService.h"
#include "XdgAutostartEntry.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestXdgAutostartEntry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }
    void enablingWritesAnEntryThatStartsTheExecutable();
    void execLineSurvivesAwkwardPaths();
    void failuresAreDescribed();
    void aUserWhoDisabledTheEntryIsRespected_data();
    void aUserWhoDisabledTheEntryIsRespected();
    void defaultFolderFollowsXdgConfigHome();
    void theServicePrintsTheFailureOnStandardOutput();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestXdgAutostartEntry::enablingWritesAnEntryThatStartsTheExecutable()
{
    const QString folder = m_dir->filePath(u"config/autostart"_s);
    XdgAutostartEntry entry(u"/usr/bin/velto"_s, folder);
    QCOMPARE(entry.entryPath(), folder + u"/com.velto.app.desktop"_s);
    // An entry under the old name is replaced by the one under the application's id.
    QVERIFY(QDir().mkpath(folder));
    QFile legacy(entry.legacyEntryPath());
    QVERIFY(legacy.open(QIODevice::WriteOnly));
    legacy.close();

    QCOMPARE(entry.setRegistered(true), std::nullopt); // creates the folder too
    QVERIFY(!legacy.exists());
    QCOMPARE(entry.setRegistered(true), std::nullopt); // and overwrites quietly
    QFile file(entry.entryPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.first(), "[Desktop Entry]");
    for (const char* line : {"Type=Application", "Name=Velto", "TryExec=/usr/bin/velto", "Exec=\"/usr/bin/velto\"",
                             "Icon=com.velto.app", "X-GNOME-Autostart-enabled=true"})
        QVERIFY2(lines.contains(line), line);

    QCOMPARE(entry.setRegistered(false), std::nullopt);
    QVERIFY(!QFile::exists(entry.entryPath()));
}

void TestXdgAutostartEntry::execLineSurvivesAwkwardPaths()
{
    XdgAutostartEntry entry(u"/opt/My Apps/50%/ve\"lto$x\\bin"_s, m_dir->path());
    const QByteArray contents = entry.entryContents();
    QVERIFY2(contents.contains("Exec=\"/opt/My Apps/50%%/ve\\\\\"lto\\\\$x\\\\\\\\bin\"\n"), contents.constData());
}

void TestXdgAutostartEntry::failuresAreDescribed()
{
    // Removing an entry that is not there is no failure.
    XdgAutostartEntry entry(u"/usr/bin/velto"_s, m_dir->path());
    QCOMPARE(entry.setRegistered(false), std::nullopt);

    // A file where the autostart folder should be: the folder cannot be made, whoever runs the test.
    QFile blocker(m_dir->filePath(u"autostart"_s));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    XdgAutostartEntry blocked(u"/usr/bin/velto"_s, blocker.fileName());
    const std::optional<QString> error = blocked.setRegistered(true);
    QVERIFY(error);
    QVERIFY2(error->contains(blocker.fileName()), qPrintable(*error));
}

void TestXdgAutostartEntry::aUserWhoDisabledTheEntryIsRespected_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<bool>("disabled");
    const QByteArray head = "[Desktop Entry]\nType=Application\nExec=/usr/bin/velto\n";
    QTest::newRow("ours") << u"com.velto.app.desktop"_s << head + "X-GNOME-Autostart-enabled=true\n" << false;
    QTest::newRow("hidden") << u"com.velto.app.desktop"_s << head + "Hidden=true\n" << true;
    QTest::newRow("GNOME's switch") << u"com.velto.app.desktop"_s << head + "X-GNOME-Autostart-enabled=false\n" << true;
    QTest::newRow("under the old name") << u"velto.desktop"_s << head + "Hidden=true\n" << true;
    QTest::newRow("another group") << u"com.velto.app.desktop"_s << head + "[Desktop Action X]\nHidden=true\n" << false;
    QTest::newRow("none") << QString() << QByteArray() << false;
}

void TestXdgAutostartEntry::aUserWhoDisabledTheEntryIsRespected()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, contents);
    QFETCH(bool, disabled);
    XdgAutostartEntry entry(u"/usr/bin/velto"_s, m_dir->path());
    if (!file.isEmpty()) {
        QFile written(m_dir->filePath(file));
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(contents);
    }
    QCOMPARE(entry.isDisabledByUser(), disabled);
    // Turned on again from Velto: an entry that starts it.
    QCOMPARE(entry.setRegistered(true), std::nullopt);
    QVERIFY(!entry.isDisabledByUser());
}

void TestXdgAutostartEntry::defaultFolderFollowsXdgConfigHome()
{
    const QByteArray saved = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", m_dir->path().toUtf8());
    QCOMPARE(XdgAutostartEntry::defaultDirectory(), m_dir->path() + u"/autostart"_s);
    qputenv("XDG_CONFIG_HOME", saved);
}

void TestXdgAutostartEntry::theServicePrintsTheFailureOnStandardOutput()
{
    // Run as a child so the real standard output can be read; the child has no test-suite marker.
    if (qEnvironmentVariableIsSet("VELTO_AUTOSTART_CHILD")) {
        QFile blocker(m_dir->filePath(u"autostart"_s));
        if (!blocker.open(QIODevice::WriteOnly))
            return;
        blocker.close();
        LaunchAtLoginService service(std::make_unique<XdgAutostartEntry>(u"/usr/bin/velto"_s, blocker.fileName()));
        service.setEnabled(false); // nothing to remove: silent
        service.setEnabled(true);
        return;
    }
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {u"VELTO_TEST_SUITE"_s, u"CI"_s, u"GITHUB_ACTIONS"_s, u"GITHUB_WORKFLOW"_s})
        environment.remove(name);
    environment.insert(u"VELTO_AUTOSTART_CHILD"_s, u"1"_s);
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {u"-silent"_s, u"theServicePrintsTheFailureOnStandardOutput"_s});
    QVERIFY(child.waitForFinished(30000));
    const QString output = QString::fromUtf8(child.readAllStandardOutput());
    QCOMPARE(output.count(u"Failed to update launch at login: "_s), 1);
    const QRegularExpression line(u"^Failed to update launch at login: .*autostart$"_s,
                                  QRegularExpression::MultilineOption);
    QVERIFY2(line.match(output).hasMatch(), qPrintable(output));
}

QTEST_GUILESS_MAIN(TestXdgAutostartEntry)
#include "tst_xdgautostartentry.moc"
