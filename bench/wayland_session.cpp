// Velto in a Wayland session: headless sway (two outputs, a bar with a tray) with 20 native windows.
// 1. One detection pass with every detection on, through the providers Velto builds for a Wayland session:
//    median and 90th percentile process CPU time per pass (the answers come from the link's memory).
// 2. The real velto binary running natively in that session: its CPU and wake-ups (voluntary plus involuntary
//    context switches of all its threads, per second) over a minute of idle running, as bench/footprint.sh
//    measures it on X11, and what `velto status` says with a meeting app, then a fullscreen game, in front.
// Usage: bench_wayland_session [passes, default 2000]
#include "HeadlessCompositor.h"
#include "ProcessUsage.h"
#include "SystemDetectionProviders.h"
#include "detection/DetectionRules.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>
#include <vector>

using namespace velto;
using bench::percentile;
using bench::processCpuMilliseconds;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Usage {
    qint64 cpuTicks = 0;
    qint64 switches = 0;
};

// Everything the process's threads have used so far, from /proc.
Usage usageOf(qint64 pid)
{
    Usage usage;
    QFile stat(u"/proc/%1/stat"_s.arg(pid));
    if (stat.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> fields = stat.readAll().split(')').last().trimmed().split(' ');
        usage.cpuTicks = fields.value(11).toLongLong() + fields.value(12).toLongLong();
    }
    for (const QString& task : QDir(u"/proc/%1/task"_s.arg(pid)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(u"/proc/%1/task/%2/status"_s.arg(pid).arg(task));
        if (!status.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.contains("ctxt_switches:"))
                usage.switches += line.split(':').last().trimmed().toLongLong();
        }
    }
    return usage;
}

QString veltoStatus(const QString& velto, const QProcessEnvironment& env)
{
    QProcess status;
    status.setProcessEnvironment(env);
    status.start(velto, {u"status"_s});
    status.waitForFinished(10000);
    return QString::fromUtf8(status.readAllStandardOutput()).section(u'\n', 0, 0);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const int passes = argc > 1 ? std::max(20, std::atoi(argv[1])) : 2000;
    HeadlessCompositor sway;
    HeadlessCompositor::Options options;
    options.swayBar = true;
    if (!HeadlessCompositor::isAvailable(HeadlessCompositor::Kind::Sway) ||
        !sway.start(HeadlessCompositor::Kind::Sway, options)) {
        std::fprintf(stderr, "sway could not be started (make test installs it)\n");
        return 1;
    }
    for (int i = 0; i < 20; ++i) {
        if (!sway.openWindow(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW),
                             {u"--app-id"_s, u"org.example.App%1"_s.arg(i), u"--title"_s, u"Window %1"_s.arg(i)})) {
            std::fprintf(stderr, "window %d did not open\n", i);
            return 1;
        }
    }

    qputenv("WAYLAND_DISPLAY", sway.socketPath().toLocal8Bit());
    qputenv("XDG_SESSION_TYPE", "wayland");
    qunsetenv("DISPLAY");
    {
        const SystemDetection detection = makeSystemDetection();
        const QDeadlineTimer ready(5000);
        while (detection.providers.windowList->onScreenWindows().size() < 20 && !ready.hasExpired())
            QThread::msleep(10);
        SmartPauseSettings settings;
        settings.videoDetectionMode = VideoDetectionMode::IncludeBackground;
        std::printf(
            "sway, %lld native windows; sources: %s\n",
            static_cast<long long>(detection.providers.windowList->onScreenWindows().size()),
            QJsonDocument(QJsonObject::fromVariantMap(detection.sources())).toJson(QJsonDocument::Compact).constData());
        std::vector<double> cpu;
        for (int i = 0; i < passes; ++i) {
            const double start = processCpuMilliseconds();
            (void)DetectionRules::detectActivity(detection.providers, settings, settings.idleThreshold);
            cpu.push_back(processCpuMilliseconds() - start);
        }
        std::printf("one detection pass, every detection on (target 0.2 ms CPU): median %.3f ms, p90 %.3f ms\n",
                    percentile(cpu, 0.5), percentile(cpu, 0.9));
        // Where the time goes: each provider on its own.
        const auto one = [&](const char* name, auto call) {
            std::vector<double> each;
            for (int i = 0; i < 200; ++i) {
                const double start = processCpuMilliseconds();
                call();
                each.push_back(processCpuMilliseconds() - start);
            }
            std::printf("  %-24s %.3f ms\n", name, percentile(each, 0.5));
        };
        const DetectionProviders& p = detection.providers;
        const QList<AppSnapshot> running = p.workspace->runningApplications();
        one("workspace", [&] { (void)p.workspace->runningApplications(); });
        one("window list", [&] { (void)p.windowList->onScreenWindows(); });
        one("main screen", [&] { (void)p.screen->mainScreenFrame(); });
        one("idle time", [&] { (void)p.idleTime->secondsSinceLastInput(); });
        one("cameras", [&] { (void)p.camera->activeCameraIdentifiers(); });
        one("microphones", [&] { (void)p.microphone->activeMicrophoneIdentifiers(); });
        one("screen recording", [&] { (void)p.screenRecording->isScreenRecording(running); });
        one("category", [&] { (void)p.appCategory->category(running.value(0).processIdentifier); });
    }

    // The application itself, natively on the compositor.
    const QString velto = QCoreApplication::applicationDirPath() + u"/../bin/velto"_s;
    QTemporaryDir home;
    QProcessEnvironment env = sway.environment();
    env.insert(u"HOME"_s, home.path());
    env.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u".config"_s));
    env.insert(u"XDG_DATA_HOME"_s, home.filePath(u".local/share"_s));
    env.insert(u"XDG_DATA_DIRS"_s, home.filePath(u"share"_s));
    // The meeting app and the game as installed applications, so they are named the way users have them.
    QDir().mkpath(home.filePath(u"share/applications"_s));
    QFile game(home.filePath(u"share/applications/com.example.Racer.desktop"_s));
    if (game.open(QIODevice::WriteOnly))
        game.write("[Desktop Entry]\nType=Application\nName=Racer\nExec=racer\nCategories=Game;\n");
    game.close();
    QProcess process;
    process.setProcessEnvironment(env);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(home.filePath(u"velto.log"_s));
    process.start(velto, {});
    if (!process.waitForStarted(5000)) {
        std::fprintf(stderr, "velto did not start\n");
        return 1;
    }
    QThread::sleep(30);
    const Usage before = usageOf(process.processId());
    QElapsedTimer span;
    span.start();
    QThread::sleep(60);
    const Usage after = usageOf(process.processId());
    const double seconds = double(span.elapsed()) / 1000.0;
    std::printf("velto idle on sway, %d s: CPU %.3f %%, wake-ups %.2f /s\n", int(seconds),
                100.0 * double(after.cpuTicks - before.cpuTicks) / double(sysconf(_SC_CLK_TCK)) / seconds,
                double(after.switches - before.switches) / seconds);

    std::printf("velto status, nothing in front: %s\n", qPrintable(veltoStatus(velto, env)));
    sway.openWindow(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW),
                    {u"--app-id"_s, u"us.zoom.Zoom"_s, u"--title"_s, u"Zoom Meeting"_s});
    QThread::sleep(3);
    std::printf("velto status, Zoom in front: %s\n", qPrintable(veltoStatus(velto, env)));
    sway.openWindow(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW),
                    {u"--app-id"_s, u"com.example.Racer"_s, u"--title"_s, u"Racer"_s, u"--fullscreen"_s});
    QThread::sleep(33); // a meeting's cool-down is a minute by default; the game holds on its own
    std::printf("velto status, a fullscreen game in front: %s\n", qPrintable(veltoStatus(velto, env)));
    process.terminate();
    process.waitForFinished(5000);
    return 0;
}
