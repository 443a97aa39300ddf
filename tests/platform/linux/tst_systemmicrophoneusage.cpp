// Microphones through a real PulseAudio server that the test starts with a null source (and a recording
// client, parecord), through a silent server, and through fixture ALSA status files.
#include "FixtureTree.h"
#include "MessageCapture.h"
#include "QuietProcess.h"
#include "detection/SystemDeviceUsage.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemMicrophoneUsage : public QObject, protected FixtureTree {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(resetTree()); }
    void cleanupTestCase();

    void alsaCountsRunningCaptureSubstreamsOnly();
    void pulseCountsRecordingsOnRealSourcesOnly();
    void withoutASoundServerAlsaAnswersAndTheFailureIsReportedOnce();
    void aHungSoundServerCostsAtMostTheTimeoutAndIsAskedLessOften();

private:
    bool startPulse();
    QProcess* record(const QString& source);
    int sourceOutputCount() const;
    QProcessEnvironment clientEnvironment() const;

    QTemporaryDir m_pulseDir;
    std::unique_ptr<QProcess> m_pulse;
    QString m_pulseSocket;
    std::vector<std::unique_ptr<QProcess>> m_recorders;
};

void TestSystemMicrophoneUsage::cleanupTestCase()
{
    m_recorders.clear();
    if (m_pulse)
        stopProcess(*m_pulse);
}

bool TestSystemMicrophoneUsage::startPulse()
{
    if (m_pulse)
        return true;
    const QString pulseaudio = QStandardPaths::findExecutable(u"pulseaudio"_s);
    if (pulseaudio.isEmpty() || QStandardPaths::findExecutable(u"parecord"_s).isEmpty())
        return false;
    m_pulseSocket = m_pulseDir.filePath(u"native"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_pulseDir.path());
    environment.insert(u"XDG_RUNTIME_DIR"_s, m_pulseDir.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, m_pulseDir.path());
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    environment.remove(u"DISPLAY"_s);
    m_pulse =
        startQuietly(pulseaudio,
                     {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--disable-shm=yes"_s,
                      u"--use-pid-file=no"_s, u"--system=no"_s, u"--log-target=stderr"_s, u"-L"_s,
                      u"module-native-protocol-unix auth-anonymous=1 socket="_s + m_pulseSocket, u"-L"_s,
                      u"module-null-source source_name=test_mic"_s, u"-L"_s, u"module-null-sink sink_name=test_out"_s},
                     environment);
    return m_pulse && waitForSocket(m_pulseSocket, *m_pulse);
}

QProcessEnvironment TestSystemMicrophoneUsage::clientEnvironment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PULSE_SERVER"_s, u"unix:"_s + m_pulseSocket);
    environment.insert(u"HOME"_s, m_pulseDir.path());
    return environment;
}

QProcess* TestSystemMicrophoneUsage::record(const QString& source)
{
    auto recorder = startQuietly(QStandardPaths::findExecutable(u"parecord"_s), {u"--raw"_s, u"--device="_s + source},
                                 clientEnvironment());
    if (!recorder)
        return nullptr;
    m_recorders.push_back(std::move(recorder));
    return m_recorders.back().get();
}

// Asked with the server's own client, independently of the provider.
int TestSystemMicrophoneUsage::sourceOutputCount() const
{
    QProcess pactl;
    pactl.setProcessEnvironment(clientEnvironment());
    pactl.start(QStandardPaths::findExecutable(u"pactl"_s), {u"list"_s, u"short"_s, u"source-outputs"_s});
    if (!pactl.waitForFinished(3000))
        return -1;
    return int(pactl.readAllStandardOutput().count('\n'));
}

void TestSystemMicrophoneUsage::alsaCountsRunningCaptureSubstreamsOnly()
{
    write(u"proc/asound/card0/id"_s, "PCH\n");
    write(u"proc/asound/card0/pcm0c/sub0/status"_s, "state: RUNNING\nowner_pid   : 1234\n");
    write(u"proc/asound/card0/pcm0p/sub0/status"_s, "state: RUNNING\n");
    write(u"proc/asound/card0/pcm2c/sub0/status"_s, "closed\n");
    write(u"proc/asound/card1/id"_s, "Webcam\n");
    write(u"proc/asound/card1/pcm0c/sub0/status"_s, "state: PREPARED\n");
    write(u"proc/asound/card1/pcm0c/sub1/status"_s, "state: RUNNING\n");
    write(u"proc/asound/card2/pcm0c/sub0/status"_s, "state: RUNNING\n");
    SystemMicrophoneUsage::Options options;
    options.proc = path(u"proc"_s);
    const SystemMicrophoneUsage microphone(options);
    QCOMPARE(microphone.alsaCaptureDevices(), (QStringList{u"hw:PCH,0"_s, u"hw:Webcam,0"_s, u"hw:2,0"_s}));
    options.proc = path(u"nothing"_s);
    QVERIFY(SystemMicrophoneUsage(options).alsaCaptureDevices().isEmpty());
}

void TestSystemMicrophoneUsage::pulseCountsRecordingsOnRealSourcesOnly()
{
    if (!startPulse())
        QSKIP("pulseaudio or parecord is not installed, or the server did not start");
    SystemMicrophoneUsage::Options options;
    options.pulseServer = "unix:" + QFile::encodeName(m_pulseSocket);
    options.proc = path(u"proc"_s);
    const SystemMicrophoneUsage microphone(options);
    QCOMPARE(microphone.pulseCaptureSources(), std::optional<QStringList>(QStringList()));
    QVERIFY(!microphone.isMicrophoneInUse());

    // Recording what goes to the speakers (a monitor source) is no microphone.
    QProcess* monitor = record(u"test_out.monitor"_s);
    QVERIFY(monitor);
    QTRY_COMPARE(sourceOutputCount(), 1); // connected, so the next check would see it
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());

    QProcess* recorder = record(u"test_mic"_s);
    QVERIFY(recorder);
    QTRY_COMPARE(microphone.activeMicrophoneIdentifiers(), QStringList{u"test_mic"_s});
    QVERIFY(microphone.isMicrophoneInUse());

    recorder->kill();
    recorder->waitForFinished();
    QTRY_VERIFY(!microphone.isMicrophoneInUse());
}

void TestSystemMicrophoneUsage::withoutASoundServerAlsaAnswersAndTheFailureIsReportedOnce()
{
    write(u"proc/asound/card0/id"_s, "PCH\n");
    write(u"proc/asound/card0/pcm0c/sub0/status"_s, "state: RUNNING\n");
    SystemMicrophoneUsage::Options options;
    options.pulseServer = "unix:" + QFile::encodeName(path(u"no-such-socket"_s));
    options.proc = path(u"proc"_s);
    const SystemMicrophoneUsage microphone(options);
    MessageCapture capture;
    for (int pass = 0; pass < 2; ++pass)
        QCOMPARE(microphone.activeMicrophoneIdentifiers(), QStringList{u"hw:PCH,0"_s});
    QCOMPARE(capture.texts().size(), 1);
    QVERIFY(capture.texts().first().contains(u"No sound server answers"_s));
}

void TestSystemMicrophoneUsage::aHungSoundServerCostsAtMostTheTimeoutAndIsAskedLessOften()
{
    // A socket that accepts connections and never says a word.
    QLocalServer silent;
    silent.setSocketOptions(QLocalServer::UserAccessOption);
    QVERIFY(silent.listen(path(u"silent"_s)));
    SystemMicrophoneUsage::Options options;
    options.pulseServer = "unix:" + QFile::encodeName(path(u"silent"_s));
    options.proc = path(u"proc"_s);
    options.firstRetryMilliseconds = 600;
    const SystemMicrophoneUsage microphone(options);
    MessageCapture capture;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed >= 200 && elapsed < 500, QByteArray::number(elapsed).constData());
    QCOMPARE(capture.texts().size(), 1);

    // Connections the server has seen so far.
    int connections = 0;
    const auto accepted = [&] {
        while (silent.waitForNewConnection(0) && silent.hasPendingConnections())
            silent.nextPendingConnection(), ++connections; // kept by the server until it goes
        return connections;
    };
    QCOMPARE(accepted(), 1);
    // Within the retry delay the server is not asked; after it, it is, and then not again for twice as long.
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());
    QCOMPARE(accepted(), 1);
    QThread::msleep(700 - int(timer.elapsed() - elapsed));
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());
    QCOMPARE(accepted(), 2);
    QThread::msleep(700);
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());
    QCOMPARE(accepted(), 2);
}

QTEST_GUILESS_MAIN(TestSystemMicrophoneUsage)
#include "tst_systemmicrophoneusage.moc"
