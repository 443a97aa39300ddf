// Times one detection pass with every detection on against the real system providers: a private Xvfb with
// openbox and 20 client windows (each its own process), this machine's process table, its sound and media
// servers if any, and whatever session bus the program runs on (`make bench` gives it a private one).
// Prints the median (and 90th percentile) process CPU time and wall time per pass.
// Usage: bench_system_providers [passes, default 200]
#include "ProcessUsage.h"
#include "SystemDetectionProviders.h"
#include "XvfbDesktop.h"
#include "detection/DetectionRules.h"
#include "detection/SystemDeviceUsage.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace velto;
using bench::percentile;
using bench::processCpuMilliseconds;
using namespace Qt::Literals::StringLiterals;

namespace {

// A background server of the session (sound, media), stopped with the benchmark.
std::unique_ptr<QProcess> startServer(const QString& program, const QStringList& arguments,
                                      const QProcessEnvironment& environment, const QString& socket)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return nullptr;
    auto server = std::make_unique<QProcess>();
    server->setProcessEnvironment(environment);
    server->setStandardOutputFile(QProcess::nullDevice());
    server->setStandardErrorFile(QProcess::nullDevice());
    server->start(path, arguments);
    if (!server->waitForStarted(3000))
        return nullptr;
    const QDeadlineTimer deadline(10000);
    while (!QFile::exists(socket) && !deadline.hasExpired())
        QThread::msleep(20);
    return QFile::exists(socket) ? std::move(server) : nullptr;
}

void stopServer(std::unique_ptr<QProcess>& server)
{
    if (!server)
        return;
    server->terminate();
    if (!server->waitForFinished(3000))
        server->kill();
    server->waitForFinished();
}

template <typename Pass>
void report(const char* title, int passes, Pass pass)
{
    std::vector<double> cpu;
    std::vector<double> wall;
    for (int i = 0; i < passes; ++i) {
        const double cpuStart = processCpuMilliseconds();
        QElapsedTimer timer;
        timer.start();
        pass();
        wall.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        cpu.push_back(processCpuMilliseconds() - cpuStart);
    }
    std::printf("%s\n", title);
    std::printf("  CPU per pass:  median %.3f ms, 90th percentile %.3f ms\n", percentile(cpu, 0.5),
                percentile(cpu, 0.9));
    std::printf("  wall per pass: median %.3f ms, 90th percentile %.3f ms\n", percentile(wall, 0.5),
                percentile(wall, 0.9));
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int passes = argc > 1 ? std::max(20, QByteArray(argv[1]).toInt()) : 200;

    XvfbDesktop desktop;
    if (!XvfbDesktop::isAvailable() || !desktop.start()) {
        std::fprintf(stderr, "bench_system_providers: needs Xvfb and openbox\n");
        return 1;
    }
    // A desktop's worth of applications, two of them players that the video probe asks over MPRIS.
    const QStringList classes{
        u"firefox-esr.Firefox-esr"_s,
        u"code.Code"_s,
        u"vlc.vlc"_s,
        u"mpv.mpv"_s,
        u"slack.Slack"_s,
        u"gnome-terminal.Gnome-terminal"_s,
        u"nautilus.Org.gnome.Nautilus"_s,
        u"evince.Evince"_s,
        u"gimp.Gimp"_s,
        u"libreoffice.libreoffice-writer"_s,
        u"thunderbird.Thunderbird"_s,
        u"kate.kate"_s,
        u"keepassxc.KeePassXC"_s,
        u"telegram.TelegramDesktop"_s,
        u"spotify.Spotify"_s,
        u"steam.Steam"_s,
        u"inkscape.Inkscape"_s,
        u"obs.obs"_s,
        u"zoom.zoom"_s,
        u"xterm.XTerm"_s,
    };
    quint32 lastWindow = 0;
    for (qsizetype i = 0; i < classes.size(); ++i) {
        const QString geometry = u"%1x%2+%3+%4"_s.arg(600 + 20 * i).arg(400 + 10 * i).arg(30 * i).arg(20 * i);
        if (!desktop.openWindow(
                QStringLiteral(VELTO_X11_TEST_WINDOW),
                {u"--class"_s, classes[i], u"--title"_s, u"Window %1"_s.arg(i), u"--geometry"_s, geometry},
                &lastWindow)) {
            std::fprintf(stderr, "bench_system_providers: a test window did not open\n");
            return 1;
        }
    }
    desktop.run(u"xdotool"_s, {u"windowactivate"_s, u"--sync"_s, QString::number(lastWindow)});
    qputenv("DISPLAY", desktop.display().toLocal8Bit());

    // A sound server with a microphone and a media server, as a desktop session runs them, in a runtime
    // folder of our own. Without them the probes still run and answer at once.
    QTemporaryDir runtime;
    QProcessEnvironment serverEnvironment = QProcessEnvironment::systemEnvironment();
    serverEnvironment.insert(u"XDG_RUNTIME_DIR"_s, runtime.path());
    serverEnvironment.insert(u"HOME"_s, runtime.path());
    serverEnvironment.remove(u"DBUS_SESSION_BUS_ADDRESS"_s);
    const QString pulseSocket = runtime.filePath(u"pulse-native"_s);
    auto pulse = startServer(
        u"pulseaudio"_s,
        {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--disable-shm=yes"_s, u"--use-pid-file=no"_s,
         u"--system=no"_s, u"-L"_s, u"module-native-protocol-unix auth-anonymous=1 socket="_s + pulseSocket, u"-L"_s,
         u"module-null-source source_name=bench_mic"_s, u"-L"_s, u"module-null-sink sink_name=bench_out"_s},
        serverEnvironment, pulseSocket);
    QFile config(runtime.filePath(u"pipewire.conf"_s));
    if (config.open(QIODevice::WriteOnly)) {
        config.write("context.properties = { core.daemon = true core.name = pipewire-0 support.dbus = false }\n"
                     "context.spa-libs = { support.* = support/libspa-support }\n"
                     "context.modules = [ { name = libpipewire-module-protocol-native }"
                     " { name = libpipewire-module-access } ]\n");
        config.close();
    }
    auto pipewire =
        startServer(u"pipewire"_s, {u"-c"_s, config.fileName()}, serverEnvironment, runtime.filePath(u"pipewire-0"_s));
    if (pulse)
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(pulseSocket));
    if (pipewire)
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    std::printf("sound server: %s, media server: %s\n", pulse ? "PulseAudio" : "none", pipewire ? "PipeWire" : "none");

    const SystemDetection detection = makeSystemDetection();
    const DetectionProviders& providers = detection.providers;
    SmartPauseSettings settings;
    settings.videoDetectionMode = VideoDetectionMode::IncludeBackground;
    settings.deepFocusApps = {
        {u"Kate"_s, u"kate"_s, DeepFocusMode::WhenForegroundFullscreen},
        {u"Blender"_s, u"org.blender.Blender"_s, DeepFocusMode::WhenOpen},
    };

    const qsizetype applications = providers.workspace->runningApplications().size();
    const qsizetype windows = providers.windowList->onScreenWindows().size();
    for (int i = 0; i < 5; ++i)
        (void)DetectionRules::detectActivity(providers, settings, settings.idleThreshold);

    int busy = 0;
    std::printf("%lld applications, %lld windows on screen\n", static_cast<long long>(applications),
                static_cast<long long>(windows));
    report("one detection pass, every detection on (targets: 5 ms CPU, 20 ms wall)", passes, [&] {
        busy += DetectionRules::detectActivity(providers, settings, settings.idleThreshold).activityDetectedAt ? 1 : 0;
    });
    std::printf("  passes that found activity: %d\n", busy);

    // Where the time goes: each provider on its own.
    const QList<AppSnapshot> running = providers.workspace->runningApplications();
    const qint32 frontPid = DetectionRules::frontmostApplication(running).value_or(AppSnapshot{}).processIdentifier;
    const int each = std::max(20, passes / 4);
    std::printf("each provider alone (CPU median, wall median), %d calls:\n", each);
    const auto one = [&](const char* name, auto call) {
        std::vector<double> cpu;
        std::vector<double> wall;
        for (int i = 0; i < each; ++i) {
            const double cpuStart = processCpuMilliseconds();
            QElapsedTimer timer;
            timer.start();
            call();
            wall.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
            cpu.push_back(processCpuMilliseconds() - cpuStart);
        }
        std::printf("  %-34s %.3f ms, %.3f ms\n", name, percentile(cpu, 0.5), percentile(wall, 0.5));
    };
    one("workspace (20 clients, identities)", [&] { (void)providers.workspace->runningApplications(); });
    one("window list", [&] { (void)providers.windowList->onScreenWindows(); });
    one("main screen", [&] { (void)providers.screen->mainScreenFrame(); });
    one("idle time", [&] { (void)providers.idleTime->secondsSinceLastInput(); });
    one("cameras (none attached)", [&] { (void)providers.camera->activeCameraIdentifiers(); });
    one("microphones", [&] { (void)providers.microphone->activeMicrophoneIdentifiers(); });
    one("video playback (vlc, over MPRIS)", [&] { (void)providers.videoPlayback->isPlaying(u"vlc"_s); });
    one("screen recording (titles, PipeWire)", [&] { (void)providers.screenRecording->isScreenRecording(running); });
    one("category of the frontmost", [&] { (void)providers.appCategory->category(frontPid); });

    // This machine has no camera, so the pass above never walks the process table for open devices. With one
    // attached (a fixture device tree here) it reads every descriptor of every process of the user.
    QTemporaryDir sys;
    const QString node = sys.filePath(u"devices/pci0000:00/usb1/1-1/1-1:1.0/video4linux/video0"_s);
    QDir().mkpath(node);
    QDir().mkpath(sys.filePath(u"class/video4linux"_s));
    QFile::link(node, sys.filePath(u"class/video4linux/video0"_s));
    const SystemCameraUsage camera({u"/proc"_s, sys.path(), sys.filePath(u"dev"_s)});
    int processes = 0;
    for (const QString& entry : QDir(u"/proc"_s).entryList(QDir::Dirs))
        processes += entry.toInt() > 0 ? 1 : 0;
    std::printf("camera probe with a camera attached, %d processes in /proc:\n", processes);
    report("  (scans every open descriptor)", passes, [&] { (void)camera.isCameraInUse(); });

    stopServer(pipewire);
    stopServer(pulse);
    return 0;
}
