// Times one detection pass with every detection on against the real system providers: a private Xvfb with
// openbox and 20 client windows (each its own process), this machine's process table, its sound and media
// servers if any, and whatever session bus the program runs on (`make bench` gives it a private one).
// Prints the median (and 90th percentile) process CPU time and wall time per pass.
// Usage: bench_system_providers [passes, default 200]
#include "SystemDetectionProviders.h"
#include "XvfbDesktop.h"
#include "detection/DetectionRules.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

double processCpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double percentile(std::vector<double> values, double fraction)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(fraction * static_cast<double>(values.size() - 1))];
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
        u"firefox-esr.Firefox-esr"_s, u"code.Code"_s,         u"vlc.vlc"_s,           u"mpv.mpv"_s,
        u"slack.Slack"_s,             u"gnome-terminal.Gnome-terminal"_s, u"nautilus.Org.gnome.Nautilus"_s,
        u"evince.Evince"_s,           u"gimp.Gimp"_s,         u"libreoffice.libreoffice-writer"_s,
        u"thunderbird.Thunderbird"_s, u"kate.kate"_s,         u"keepassxc.KeePassXC"_s,
        u"telegram.TelegramDesktop"_s, u"spotify.Spotify"_s,  u"steam.Steam"_s,
        u"inkscape.Inkscape"_s,       u"obs.obs"_s,           u"zoom.zoom"_s,         u"xterm.XTerm"_s,
    };
    quint32 lastWindow = 0;
    for (qsizetype i = 0; i < classes.size(); ++i) {
        const QString geometry = u"%1x%2+%3+%4"_s.arg(600 + 20 * i).arg(400 + 10 * i).arg(30 * i).arg(20 * i);
        if (!desktop.openWindow(QStringLiteral(VELTO_X11_TEST_WINDOW),
                                {u"--class"_s, classes[i], u"--title"_s, u"Window %1"_s.arg(i), u"--geometry"_s, geometry},
                                &lastWindow)) {
            std::fprintf(stderr, "bench_system_providers: a test window did not open\n");
            return 1;
        }
    }
    desktop.run(u"xdotool"_s, {u"windowactivate"_s, u"--sync"_s, QString::number(lastWindow)});
    qputenv("DISPLAY", desktop.display().toLocal8Bit());

    const DetectionProviders providers = makeSystemDetectionProviders();
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

    std::vector<double> cpu;
    std::vector<double> wall;
    int busy = 0;
    for (int i = 0; i < passes; ++i) {
        const double cpuStart = processCpuMilliseconds();
        QElapsedTimer timer;
        timer.start();
        const DetectionSnapshot snapshot = DetectionRules::detectActivity(providers, settings, settings.idleThreshold);
        wall.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        cpu.push_back(processCpuMilliseconds() - cpuStart);
        busy += snapshot.activityDetectedAt ? 1 : 0;
    }
    std::printf("system providers, %d passes, %lld applications, %lld windows on screen, every detection on\n",
                passes, static_cast<long long>(applications), static_cast<long long>(windows));
    std::printf("  CPU per pass:  median %.3f ms, 90th percentile %.3f ms (target 5 ms)\n", percentile(cpu, 0.5),
                percentile(cpu, 0.9));
    std::printf("  wall per pass: median %.3f ms, 90th percentile %.3f ms (target 20 ms)\n", percentile(wall, 0.5),
                percentile(wall, 0.9));
    std::printf("  passes that found activity: %d\n", busy);
    return 0;
}
