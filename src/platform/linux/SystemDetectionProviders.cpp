#include "SystemDetectionProviders.h"

#include "detection/SystemDeviceUsage.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"
#include "detection/X11KeyDownTime.h"

namespace velto {

namespace {
bool isWaylandSession()
{
    return qEnvironmentVariable("XDG_SESSION_TYPE") == QStringLiteral("wayland") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}
} // namespace

DetectionProviders makeSystemDetectionProviders(std::shared_ptr<DesktopEntryIndex> desktopEntries)
{
    if (!desktopEntries)
        desktopEntries = std::make_shared<DesktopEntryIndex>();
    auto x11 = std::make_shared<X11Link>();
    auto identities = std::make_shared<AppIdentityResolver>(std::move(desktopEntries), ProcessTable());
    auto memo = std::make_shared<WindowClassMemo>();
    const QDBusConnection bus = QDBusConnection::sessionBus();

    DetectionProviders providers;
    const bool wayland = isWaylandSession();
    providers.workspace = std::make_unique<SystemWorkspace>(
        x11, identities, memo, wayland ? SystemWorkspace::Scope::WindowsAndProcesses : SystemWorkspace::Scope::Windows);
    providers.windowList = std::make_unique<SystemWindowList>(x11);
    providers.screen = std::make_unique<SystemScreen>(x11);
    providers.idleTime = std::make_unique<SystemIdleTime>(
        x11, bus, wayland ? SystemIdleTime::Source::BusOnly : SystemIdleTime::Source::X11First);
    providers.camera = std::make_unique<SystemCameraUsage>();
    providers.microphone = std::make_unique<SystemMicrophoneUsage>();
    providers.videoPlayback = std::make_unique<SystemVideoPlayback>(bus);
    providers.screenRecording = std::make_unique<SystemScreenRecordingState>(x11, std::make_shared<PipeWireCapture>());
    providers.appCategory = std::make_unique<SystemAppCategory>(identities, memo);
    providers.clock = std::make_unique<SystemClock>();
    providers.passBoundary = [x11](bool begins) {
        if (begins)
            x11->beginPass();
        else
            x11->endPass();
    };
    return providers;
}

std::unique_ptr<KeyDownTimeProviding> makeSystemKeyDownTime()
{
    if (auto listener = X11KeyDownTime::start())
        return listener;
    return std::make_unique<NullKeyDownTime>();
}

} // namespace velto
