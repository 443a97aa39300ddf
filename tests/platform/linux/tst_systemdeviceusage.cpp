// Cameras through fixture /proc and /sys trees; microphones through a real PulseAudio server that the test
// starts with a null source (and a recording client, parecord), and through fixture ALSA status files.
#include "MessageCapture.h"
#include "detection/ProcessTable.h"
#include "detection/SystemDeviceUsage.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemDeviceUsage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();

    void processTableReadsWhatItCanAndSkipsTheRest();
    void flatpakIdsComeFromTheCgroupScope_data();
    void flatpakIdsComeFromTheCgroupScope();

    void noCameraMeansNoProcessIsLookedAt();
    void camerasHeldOpenByTheUserCountRealOnesOnly();
    void cameraIdentifiersPreferByIdNamesThenSysfsPaths();

    void alsaCountsRunningCaptureSubstreamsOnly();
    void pulseCountsRecordingsOnRealSourcesOnly();
    void withoutASoundServerAlsaAnswersAndTheFailureIsReportedOnce();
    void aHungSoundServerCostsAtMostTheTimeout();

private:
    void write(const QString& relativePath, const QByteArray& contents = {});
    void link(const QString& relativePath, const QString& target);
    void buildCameraTree();
    bool startPulse();
    QProcess* record(const QString& source);
    int sourceOutputCount() const;

    std::unique_ptr<QTemporaryDir> m_root;
    QString path(const QString& relative) const { return m_root->filePath(relative); }

    QTemporaryDir m_pulseDir;
    std::unique_ptr<QProcess> m_pulse;
    QString m_pulseSocket;
    std::vector<std::unique_ptr<QProcess>> m_recorders;
};

void TestSystemDeviceUsage::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
}

void TestSystemDeviceUsage::cleanupTestCase()
{
    for (auto& recorder : m_recorders) {
        recorder->kill();
        recorder->waitForFinished();
    }
    if (m_pulse) {
        m_pulse->terminate();
        if (!m_pulse->waitForFinished(3000)) {
            m_pulse->kill();
            m_pulse->waitForFinished();
        }
    }
}

void TestSystemDeviceUsage::write(const QString& relativePath, const QByteArray& contents)
{
    QVERIFY(QDir().mkpath(QFileInfo(path(relativePath)).absolutePath()));
    QFile file(path(relativePath));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

void TestSystemDeviceUsage::link(const QString& relativePath, const QString& target)
{
    QVERIFY(QDir().mkpath(QFileInfo(path(relativePath)).absolutePath()));
    QVERIFY(QFile::link(target, path(relativePath)));
}

void TestSystemDeviceUsage::processTableReadsWhatItCanAndSkipsTheRest()
{
    write(u"proc/42/environ"_s, QByteArray("HOME=/root\0SteamAppId=570\0SteamAppIdX=1\0", 40));
    write(u"proc/42/cmdline"_s, QByteArray("/usr/bin/game\0--fullscreen\0", 27));
    write(u"proc/42/comm"_s, "game-main\n");
    link(u"proc/42/exe"_s, u"/usr/lib/game/bin/game (deleted)"_s);
    write(u"proc/43/comm"_s, "kworker\n");
    write(u"proc/self-named/comm"_s, "not a process\n");
    write(u"proc/7/comm"_s, "init\n");
    const ProcessTable table(path(u"proc"_s));

    QCOMPARE(table.processesOfUser(), (QList<qint32>{7, 42, 43}));
    QCOMPARE(table.processesOfUser(::getuid() + 1), QList<qint32>());
    QCOMPARE(table.environmentValue(42, "SteamAppId"), std::optional<QByteArray>("570"));
    QCOMPARE(table.environmentValue(42, "Steam"), std::nullopt);
    QCOMPARE(table.environmentValue(43, "HOME"), std::nullopt);
    QCOMPARE(table.commandLine(42), (QStringList{u"/usr/bin/game"_s, u"--fullscreen"_s}));
    QCOMPARE(table.commandLine(43), QStringList());
    // The executable's name even after an update replaced the file; the command name without one.
    QCOMPARE(table.executableName(42), u"game"_s);
    QCOMPARE(table.executableName(43), u"kworker"_s);
    QCOMPARE(table.executableName(99), QString());
    QCOMPARE(table.readFile(0, "comm"), QByteArray());
    QCOMPARE(ProcessTable(path(u"missing"_s)).processesOfUser(), QList<qint32>());
}

void TestSystemDeviceUsage::flatpakIdsComeFromTheCgroupScope_data()
{
    QTest::addColumn<QByteArray>("cgroup");
    QTest::addColumn<QString>("id");
    QTest::newRow("scope") << "0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
                              "app-flatpak-org.videolan.VLC-2398.scope\n"_ba
                           << u"org.videolan.VLC"_s;
    QTest::newRow("dashes in the id")
        << "0::/app.slice/app-flatpak-com.github.IsmaelMartinez.teams_for_linux-77.scope"_ba
        << u"com.github.IsmaelMartinez.teams_for_linux"_s;
    QTest::newRow("not flatpak") << "0::/user.slice/user-1000.slice/session-2.scope\n"_ba << QString();
    QTest::newRow("no instance number") << "0::/app.slice/app-flatpak-org.example.App.scope"_ba << QString();
    QTest::newRow("cut short") << "0::/app.slice/app-flatpak-org.example.App-12"_ba << QString();
}

void TestSystemDeviceUsage::flatpakIdsComeFromTheCgroupScope()
{
    QFETCH(QByteArray, cgroup);
    QFETCH(QString, id);
    const auto found = ProcessTable::flatpakAppIdFromCgroup(cgroup);
    QCOMPARE(found.value_or(QString()), id);

    write(u"proc/50/cgroup"_s, cgroup);
    QCOMPARE(ProcessTable(path(u"proc"_s)).flatpakAppId(50).value_or(QString()), id);
}

// Four video devices: a USB webcam with a by-id name (video0), a loopback device in the virtual tree (video1),
// a loopback device that sits on a platform device (video2), a second webcam without a by-id name (video3).
void TestSystemDeviceUsage::buildCameraTree()
{
    const QString usb = u"sys/devices/pci0000:00/0000:00:14.0/usb1/"_s;
    write(u"sys/bus/usb/drivers/uvcvideo/.keep"_s);
    write(u"sys/bus/platform/drivers/v4l2loopback/.keep"_s);
    for (const auto& [device, number] : {std::pair{u"1-1/1-1:1.0"_s, 0}, std::pair{u"1-2/1-2:1.0"_s, 3}}) {
        const QString node = usb + device + u"/video4linux/video%1"_s.arg(number);
        write(node + u"/dev"_s, "81:%1\n"_ba.replace("%1", QByteArray::number(number)));
        write(node + u"/name"_s, "HD Webcam\n");
        link(node + u"/device"_s, path(usb + device));
        link(usb + device + u"/driver"_s, path(u"sys/bus/usb/drivers/uvcvideo"_s));
        link(u"sys/class/video4linux/video%1"_s.arg(number), path(node));
    }
    write(u"sys/devices/virtual/video4linux/video1/dev"_s, "81:1\n");
    write(u"sys/devices/virtual/video4linux/video1/name"_s, "OBS Virtual Camera\n");
    link(u"sys/class/video4linux/video1"_s, path(u"sys/devices/virtual/video4linux/video1"_s));
    const QString platform = u"sys/devices/platform/v4l2loopback.0"_s;
    write(platform + u"/video4linux/video2/dev"_s, "81:2\n");
    write(platform + u"/video4linux/video2/name"_s, "Dummy video device (0x0000)\n");
    link(platform + u"/video4linux/video2/device"_s, path(platform));
    link(platform + u"/driver"_s, path(u"sys/bus/platform/drivers/v4l2loopback"_s));
    link(u"sys/class/video4linux/video2"_s, path(platform + u"/video4linux/video2"_s));
    link(u"dev/v4l/by-id/usb-Acme_HD_Webcam_0001-video-index0"_s, u"../../video0"_s);
    write(u"proc/100/comm"_s, "editor\n");
    link(u"proc/100/fd/0"_s, u"/dev/null"_s);
    link(u"proc/100/fd/1"_s, u"socket:[1234]"_s);
}

void TestSystemDeviceUsage::noCameraMeansNoProcessIsLookedAt()
{
    write(u"proc/100/comm"_s, "meeting\n");
    link(u"proc/100/fd/5"_s, u"/dev/video0"_s);
    // No video4linux class at all: the open descriptor cannot be a camera, and nothing asks.
    const SystemCameraUsage camera({path(u"proc"_s), path(u"sys"_s), path(u"dev"_s)});
    QVERIFY(camera.activeCameraIdentifiers().isEmpty());
    QVERIFY(!camera.isCameraInUse());
}

void TestSystemDeviceUsage::camerasHeldOpenByTheUserCountRealOnesOnly()
{
    buildCameraTree();
    const SystemCameraUsage camera({path(u"proc"_s), path(u"sys"_s), path(u"dev"_s)});
    QVERIFY(!camera.isCameraInUse());

    // Loopback devices, in either place the kernel puts them, are no camera.
    link(u"proc/200/fd/7"_s, u"/dev/video1"_s);
    link(u"proc/201/fd/7"_s, u"/dev/video2"_s);
    QVERIFY(camera.activeCameraIdentifiers().isEmpty());

    link(u"proc/202/fd/3"_s, u"/dev/video0"_s);
    link(u"proc/202/fd/4"_s, u"/dev/video0"_s);
    QCOMPARE(camera.activeCameraIdentifiers(), QStringList{u"usb-Acme_HD_Webcam_0001-video-index0"_s});
    QVERIFY(camera.isCameraInUse());

    // A process directory without descriptors to read (it exited, or is not ours) is passed over.
    write(u"proc/150/comm"_s, "gone\n");
    QCOMPARE(camera.activeCameraIdentifiers().size(), 1);

    if (::getuid() == 0) {
        // Another user's process holding the second webcam is that user's business.
        link(u"proc/300/fd/3"_s, u"/dev/video3"_s);
        QVERIFY(::lchown(QFile::encodeName(path(u"proc/300"_s)).constData(), 4321, 4321) == 0);
        QCOMPARE(camera.activeCameraIdentifiers().size(), 1);
    }
}

void TestSystemDeviceUsage::cameraIdentifiersPreferByIdNamesThenSysfsPaths()
{
    buildCameraTree();
    link(u"proc/400/fd/9"_s, u"/dev/video3"_s);
    link(u"proc/401/fd/9"_s, u"/dev/video0"_s);
    const SystemCameraUsage camera({path(u"proc"_s), path(u"sys"_s), path(u"dev"_s)});
    // In device order, whatever the order of the processes.
    QCOMPARE(camera.activeCameraIdentifiers(),
             (QStringList{u"usb-Acme_HD_Webcam_0001-video-index0"_s,
                          u"/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/video4linux/video3"_s}));
}

void TestSystemDeviceUsage::alsaCountsRunningCaptureSubstreamsOnly()
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

bool TestSystemDeviceUsage::startPulse()
{
    if (m_pulse)
        return true;
    const QString pulseaudio = QStandardPaths::findExecutable(u"pulseaudio"_s);
    if (pulseaudio.isEmpty() || QStandardPaths::findExecutable(u"parecord"_s).isEmpty())
        return false;
    m_pulseSocket = m_pulseDir.filePath(u"native"_s);
    m_pulse = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_pulseDir.path());
    environment.insert(u"XDG_RUNTIME_DIR"_s, m_pulseDir.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, m_pulseDir.path());
    environment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    environment.remove(u"DISPLAY"_s);
    m_pulse->setProcessEnvironment(environment);
    m_pulse->setStandardOutputFile(QProcess::nullDevice());
    m_pulse->setStandardErrorFile(QProcess::nullDevice());
    m_pulse->start(pulseaudio,
                   {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--disable-shm=yes"_s,
                    u"--use-pid-file=no"_s, u"--system=no"_s, u"--log-target=stderr"_s, u"-L"_s,
                    u"module-native-protocol-unix auth-anonymous=1 socket="_s + m_pulseSocket, u"-L"_s,
                    u"module-null-source source_name=test_mic"_s, u"-L"_s, u"module-null-sink sink_name=test_out"_s});
    if (!m_pulse->waitForStarted(3000))
        return false;
    const QDeadlineTimer deadline(10000);
    while (!QFile::exists(m_pulseSocket) && !deadline.hasExpired() && m_pulse->state() == QProcess::Running)
        QTest::qWait(20);
    return QFile::exists(m_pulseSocket);
}

QProcess* TestSystemDeviceUsage::record(const QString& source)
{
    auto recorder = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PULSE_SERVER"_s, u"unix:"_s + m_pulseSocket);
    environment.insert(u"HOME"_s, m_pulseDir.path());
    recorder->setProcessEnvironment(environment);
    recorder->setStandardOutputFile(QProcess::nullDevice());
    recorder->start(QStandardPaths::findExecutable(u"parecord"_s), {u"--raw"_s, u"--device="_s + source});
    if (!recorder->waitForStarted(3000))
        return nullptr;
    m_recorders.push_back(std::move(recorder));
    return m_recorders.back().get();
}

// Asked with the server's own client, independently of the provider.
int TestSystemDeviceUsage::sourceOutputCount() const
{
    QProcess pactl;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PULSE_SERVER"_s, u"unix:"_s + m_pulseSocket);
    environment.insert(u"HOME"_s, m_pulseDir.path());
    pactl.setProcessEnvironment(environment);
    pactl.start(QStandardPaths::findExecutable(u"pactl"_s), {u"list"_s, u"short"_s, u"source-outputs"_s});
    if (!pactl.waitForFinished(3000))
        return -1;
    return int(pactl.readAllStandardOutput().count('\n'));
}

void TestSystemDeviceUsage::pulseCountsRecordingsOnRealSourcesOnly()
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

void TestSystemDeviceUsage::withoutASoundServerAlsaAnswersAndTheFailureIsReportedOnce()
{
    write(u"proc/asound/card0/id"_s, "PCH\n");
    write(u"proc/asound/card0/pcm0c/sub0/status"_s, "state: RUNNING\n");
    SystemMicrophoneUsage::Options options;
    options.pulseServer = "unix:" + QFile::encodeName(path(u"no-such-socket"_s));
    options.proc = path(u"proc"_s);
    const SystemMicrophoneUsage microphone(options);
    MessageCapture capture;
    for (int pass = 0; pass < 3; ++pass)
        QCOMPARE(microphone.activeMicrophoneIdentifiers(), QStringList{u"hw:PCH,0"_s});
    QCOMPARE(capture.texts().size(), 1);
    QVERIFY(capture.texts().first().contains(u"No sound server answers"_s));
}

void TestSystemDeviceUsage::aHungSoundServerCostsAtMostTheTimeout()
{
    // A socket that accepts connections and never says a word.
    QLocalServer silent;
    silent.setSocketOptions(QLocalServer::UserAccessOption);
    QVERIFY(silent.listen(path(u"silent"_s)));
    SystemMicrophoneUsage::Options options;
    options.pulseServer = "unix:" + QFile::encodeName(path(u"silent"_s));
    options.proc = path(u"proc"_s);
    const SystemMicrophoneUsage microphone(options);
    MessageCapture capture;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(microphone.activeMicrophoneIdentifiers().isEmpty());
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed >= 200 && elapsed < 500, QByteArray::number(elapsed).constData());
    QCOMPARE(capture.texts().size(), 1);
}

QTEST_GUILESS_MAIN(TestSystemDeviceUsage)
#include "tst_systemdeviceusage.moc"
