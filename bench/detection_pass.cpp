// Times one detection pass with every detection on, against providers that answer at once, so the figure is
// the cost of the rules themselves. Usage: bench_detection_pass [passes, default 200000]
#include "detection/DetectionRules.h"

#include <QByteArray>
#include <QElapsedTimer>

#include <cstdio>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A desktop of a dozen applications: an editor in front, a player and a call behind it.
class Workspace final : public WorkspaceProviding {
public:
    [[nodiscard]] QList<AppSnapshot> runningApplications() const override { return m_apps; }

private:
    QList<AppSnapshot> m_apps{
        {u"org.gnome.Shell"_s, false, 100},
        {u"org.gnome.Nautilus"_s, false, 101},
        {u"firefox"_s, false, 102},
        {u"org.kde.kate"_s, true, 103},
        {u"vlc"_s, false, 104},
        {u"com.slack.Slack"_s, false, 105},
        {u"us.zoom.Zoom"_s, false, 106},
        {u"org.gnome.Terminal"_s, false, 107},
        {std::nullopt, false, 108},
        {u"org.blender.Blender"_s, false, 109},
        {u"mpv"_s, false, 110},
        {u"obs"_s, false, 111},
    };
};

class WindowList final : public WindowListProviding {
public:
    [[nodiscard]] QList<WindowDescriptor> onScreenWindows() const override { return m_windows; }

private:
    QList<WindowDescriptor> m_windows{
        {100, QRectF(0, 0, 1920, 32), 25},  {103, QRectF(0, 32, 1920, 1048), 0},  {102, QRectF(100, 100, 1200, 800), 0},
        {109, QRectF(0, 0, 1920, 1080), 0}, {105, QRectF(300, 200, 900, 700), 0},
    };
};

class Screen final : public ScreenProviding {
public:
    [[nodiscard]] QRectF mainScreenFrame() const override { return QRectF(0, 0, 1920, 1080); }
};

class IdleTime final : public IdleTimeProviding {
public:
    [[nodiscard]] double secondsSinceLastInput() const override { return 3.5; }
};

class Camera final : public CameraUsageProviding {
public:
    [[nodiscard]] bool isCameraInUse() const override { return true; }
    [[nodiscard]] QStringList activeCameraIdentifiers() const override { return {u"v4l2:/dev/video0"_s}; }
};

class Microphone final : public MicrophoneUsageProviding {
public:
    [[nodiscard]] bool isMicrophoneInUse() const override { return true; }
    [[nodiscard]] QStringList activeMicrophoneIdentifiers() const override
    {
        return {u"alsa_input.pci-0000_00_1f.3.analog-stereo"_s};
    }
};

class VideoPlayback final : public VideoPlaybackProviding {
public:
    [[nodiscard]] bool isPlaying(const QString&) const override { return false; }
};

class ScreenRecording final : public ScreenRecordingStateProviding {
public:
    [[nodiscard]] bool isScreenRecording(const QList<AppSnapshot>&) const override { return false; }
};

class AppCategory final : public AppCategoryProviding {
public:
    [[nodiscard]] std::optional<QString> category(qint32) const override { return u"Development;TextEditor;"_s; }
};

class Clock final : public ClockProviding {
public:
    [[nodiscard]] QDateTime now() const override { return m_now; }

private:
    QDateTime m_now = QDateTime::currentDateTimeUtc();
};

} // namespace

int main(int argc, char* argv[])
{
    const long long passes = argc > 1 ? std::max(1000LL, QByteArray(argv[1]).toLongLong()) : 200000;

    DetectionProviders providers{
        std::make_unique<Workspace>(),
        std::make_unique<WindowList>(),
        std::make_unique<Screen>(),
        std::make_unique<IdleTime>(),
        std::make_unique<Camera>(),
        std::make_unique<Microphone>(),
        std::make_unique<VideoPlayback>(),
        std::make_unique<ScreenRecording>(),
        std::make_unique<AppCategory>(),
        std::make_unique<Clock>(),
        {},
    };
    // Every detection on; background players asked too, and focus entries that make the probe go through the
    // whole list (the frontmost one needs a fullscreen window it does not have).
    SmartPauseSettings settings;
    settings.videoDetectionMode = VideoDetectionMode::IncludeBackground;
    settings.excludedCameras = {u"v4l2:/dev/video9"_s};
    settings.excludedMeetingApps = {u"com.example.Other"_s};
    settings.deepFocusApps = {
        {u"Kate"_s, u"org.kde.kate"_s, DeepFocusMode::WhenForegroundFullscreen},
        {u"Blender"_s, u"org.blender.Blender"_s, DeepFocusMode::WhenOpen},
    };

    // Warm the tables and caches first.
    int found = 0;
    for (int i = 0; i < 1000; ++i)
        found += DetectionRules::detectActivity(providers, settings, 60).isInMeeting ? 1 : 0;

    QElapsedTimer timer;
    timer.start();
    for (long long i = 0; i < passes; ++i)
        found += DetectionRules::detectActivity(providers, settings, 60).isInMeeting ? 1 : 0;
    const double microseconds = static_cast<double>(timer.nsecsElapsed()) / 1000.0 / static_cast<double>(passes);

    std::printf("%lld passes, all detections on: %.2f microseconds per pass (%d found a meeting)\n", passes,
                microseconds, found);
    return 0;
}
