// Screen capture as a real PipeWire server shows it: the test starts a private server and publishes nodes
// with pw-cli, as a desktop's screencast service, a camera, a microphone or a recorder would.
#include "MessageCapture.h"
#include "QuietProcess.h"
#include "detection/PipeWireCapture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// Just enough of a server for clients to connect and publish nodes; no devices, no session manager.
constexpr char serverConfig[] = R"(
context.properties = { core.daemon = true core.name = pipewire-0 support.dbus = false }
context.spa-libs = { support.* = support/libspa-support }
context.modules = [
    { name = libpipewire-module-protocol-native }
    { name = libpipewire-module-access }
    { name = libpipewire-module-client-node }
    { name = libpipewire-module-adapter }
]
)";

} // namespace

class TestPipeWireCapture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();

    void screenCastersAndRecordersAreCapture_data();
    void screenCastersAndRecordersAreCapture();

    void aScreencastSourceIsCaptureWhileItExists();
    void aRecorderStreamIsCapture();
    void withoutAServerTheAnswerIsFalseAndSaidOnce();
    void aHungServerCostsAtMostTheTimeout();
    void theConnectionOutlivesPassesAndARestartOfTheServer();

private:
    void startServer();
    // Publishes a node for as long as the returned pw-cli runs.
    QProcess* publish(const QString& properties);
    void unpublish(QProcess* cli);
    QProcessEnvironment environment() const;

    QTemporaryDir m_runtime;
    std::unique_ptr<QProcess> m_server;
    std::vector<std::unique_ptr<QProcess>> m_clients;
};

QProcessEnvironment TestPipeWireCapture::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_s, m_runtime.path());
    environment.remove(u"PIPEWIRE_REMOTE"_s);
    return environment;
}

void TestPipeWireCapture::initTestCase()
{
    const QString pipewire = QStandardPaths::findExecutable(u"pipewire"_s);
    if (pipewire.isEmpty() || QStandardPaths::findExecutable(u"pw-cli"_s).isEmpty())
        QSKIP("pipewire or pw-cli is not installed");
    QVERIFY(m_runtime.isValid());
    QFile config(m_runtime.filePath(u"server.conf"_s));
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write(serverConfig);
    config.close();
    startServer();
}

void TestPipeWireCapture::startServer()
{
    m_server = startQuietly(QStandardPaths::findExecutable(u"pipewire"_s),
                            {u"-c"_s, m_runtime.filePath(u"server.conf"_s)}, environment());
    QVERIFY(m_server);
    QVERIFY(waitForSocket(m_runtime.filePath(u"pipewire-0"_s), *m_server));
}

void TestPipeWireCapture::cleanup()
{
    while (!m_clients.empty())
        unpublish(m_clients.back().get());
}

void TestPipeWireCapture::cleanupTestCase()
{
    cleanup();
    if (m_server)
        stopProcess(*m_server);
}

QProcess* TestPipeWireCapture::publish(const QString& properties)
{
    auto cli = startQuietly(QStandardPaths::findExecutable(u"pw-cli"_s), {}, environment());
    if (!cli)
        return nullptr;
    cli->write("create-node adapter { factory.name=support.null-audio-sink " + properties.toUtf8() + " }\n");
    m_clients.push_back(std::move(cli));
    return m_clients.back().get();
}

void TestPipeWireCapture::unpublish(QProcess* cli)
{
    cli->write("quit\n");
    cli->closeWriteChannel();
    if (!cli->waitForFinished(3000))
        cli->kill();
    std::erase_if(m_clients, [cli](const auto& owned) { return owned.get() == cli; });
}

void TestPipeWireCapture::screenCastersAndRecordersAreCapture_data()
{
    QTest::addColumn<PipeWireNode>("node");
    QTest::addColumn<bool>("capture");
    // mediaClass, nodeName, mediaName, applicationName, processBinary
    QTest::newRow("GNOME by process") << PipeWireNode{u"Stream/Output/Video"_s, {}, {}, {}, u"gnome-shell"_s} << true;
    QTest::newRow("KDE") << PipeWireNode{u"Video/Source"_s, {}, {}, u"kwin_wayland"_s, {}} << true;
    QTest::newRow("camera") << PipeWireNode{u"Video/Source"_s, u"v4l2_input.pci-0000_00_14.0-usb-0_1_1.0"_s, {}, {}, {}}
                            << false;
    QTest::newRow("OBS recording") << PipeWireNode{u"Stream/Input/Video"_s, {}, {}, {}, u"obs"_s} << true;
    QTest::newRow("meeting app watching") << PipeWireNode{u"Stream/Input/Video"_s, {}, {}, {}, u"zoom"_s} << false;
    QTest::newRow("recorder on audio") << PipeWireNode{u"Stream/Input/Audio"_s, {}, {}, {}, u"obs"_s} << false;
    QTest::newRow("screencast audio") << PipeWireNode{u"Audio/Source"_s, u"screencast-audio"_s, {}, {}, {}} << false;
    QTest::newRow("nothing known") << PipeWireNode{} << false;
}

void TestPipeWireCapture::screenCastersAndRecordersAreCapture()
{
    QFETCH(PipeWireNode, node);
    QFETCH(bool, capture);
    QCOMPARE(PipeWireCapture::isScreenCapture(node), capture);
}

void TestPipeWireCapture::aScreencastSourceIsCaptureWhileItExists()
{
    const PipeWireCapture capture(m_runtime.path());
    QVERIFY(publish(u"node.name=v4l2_input.usb-cam media.class=Video/Source"_s));
    QTRY_COMPARE(capture.nodes().value_or(QList<PipeWireNode>()).size(), 1);
    QVERIFY(!capture.isCapturing());
    QProcess* portal = publish(u"node.name=xdpw_stream media.class=Video/Source"_s);
    QVERIFY(portal);
    QTRY_VERIFY(capture.isCapturing());
    unpublish(portal);
    QTRY_VERIFY(!capture.isCapturing());
}

void TestPipeWireCapture::aRecorderStreamIsCapture()
{
    const PipeWireCapture capture(m_runtime.path());
    QVERIFY(publish(u"node.name=obs-input media.class=Stream/Input/Video application.name=OBS"_s));
    QTRY_VERIFY(capture.isCapturing());
}

void TestPipeWireCapture::withoutAServerTheAnswerIsFalseAndSaidOnce()
{
    QTemporaryDir empty;
    const PipeWireCapture capture(empty.path());
    MessageCapture messages;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!capture.isCapturing());
    QCOMPARE(capture.nodes(), std::nullopt);
    QVERIFY(timer.elapsed() < 100);
    QCOMPARE(messages.texts().size(), 1);
}

void TestPipeWireCapture::aHungServerCostsAtMostTheTimeout()
{
    QTemporaryDir runtime;
    QLocalServer silent;
    QVERIFY(silent.listen(runtime.filePath(u"pipewire-0"_s)));
    const PipeWireCapture capture(runtime.path());
    MessageCapture messages;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!capture.isCapturing());
    QVERIFY2(timer.elapsed() < 500, QByteArray::number(timer.elapsed()).constData());
    QCOMPARE(messages.texts().size(), 1);
}

// One connection serves every pass; when the server goes, the next pass after its return connects again.
void TestPipeWireCapture::theConnectionOutlivesPassesAndARestartOfTheServer()
{
    const PipeWireCapture capture(m_runtime.path());
    QVERIFY(publish(u"node.name=xdpw_stream media.class=Video/Source"_s));
    QTRY_VERIFY(capture.isCapturing());
    cleanup();
    stopProcess(*m_server);
    MessageCapture messages;
    QTRY_VERIFY(!capture.isCapturing());
    startServer();
    QVERIFY(publish(u"node.name=xdpw_stream media.class=Video/Source"_s));
    QTRY_VERIFY(capture.isCapturing());
    // Gone, then its socket gone: each said once, however many passes failed.
    const QStringList said = messages.texts();
    QCOMPARE(QSet<QString>(said.cbegin(), said.cend()).size(), said.size());
}

QTEST_GUILESS_MAIN(TestPipeWireCapture)
#include "tst_pipewirecapture.moc"
