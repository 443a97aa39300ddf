#include "SystemDetectionProviders.h"

#include "MutterInputActivity.h"
#include "detection/SystemDeviceUsage.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"
#include "detection/X11KeyDownTime.h"
#include "wayland/GnomeShellToplevels.h"
#include "wayland/KWinScriptToplevels.h"
#include "wayland/WaylandProviders.h"

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

bool isWaylandSession()
{
    return qEnvironmentVariable("XDG_SESSION_TYPE") == u"wayland"_s || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QString idleSourceName(WaylandLink::Idle idle)
{
    switch (idle) {
    case WaylandLink::Idle::ExtIdleNotify:
        return u"ext-idle-notify"_s;
    case WaylandLink::Idle::KdeIdle:
        return u"kde-idle"_s;
    case WaylandLink::Idle::None:
        break;
    }
    return {};
}

} // namespace

SystemDetection makeSystemDetection(std::shared_ptr<DesktopEntryIndex> desktopEntries)
{
    if (!desktopEntries)
        desktopEntries = std::make_shared<DesktopEntryIndex>();
    auto x11 = std::make_shared<X11Link>();
    auto identities = std::make_shared<AppIdentityResolver>(std::move(desktopEntries), ProcessTable());
    auto memo = std::make_shared<WindowClassMemo>();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const bool hasX = !qEnvironmentVariableIsEmpty("DISPLAY");

    SystemDetection detection;
    DetectionProviders& providers = detection.providers;
    auto capture = std::make_shared<PipeWireCapture>();
    providers.camera = std::make_unique<SystemCameraUsage>();
    providers.microphone = std::make_unique<SystemMicrophoneUsage>();
    providers.videoPlayback = std::make_unique<SystemVideoPlayback>(bus);
    providers.appCategory = std::make_unique<SystemAppCategory>(identities, memo);
    providers.clock = std::make_unique<SystemClock>();
    providers.passBoundary = [x11](bool begins) {
        if (begins)
            x11->beginPass();
        else
            x11->endPass();
    };

    std::unique_ptr<KeyDownTimeProviding> x11Keys = X11KeyDownTime::start();
    const bool hearsX11Keys = x11Keys != nullptr;
    if (!isWaylandSession()) {
        providers.workspace = std::make_unique<SystemWorkspace>(x11, identities, memo);
        providers.windowList = std::make_unique<SystemWindowList>(x11);
        providers.screen = std::make_unique<SystemScreen>(x11);
        providers.idleTime = std::make_unique<SystemIdleTime>(x11, bus);
        providers.screenRecording = std::make_unique<SystemScreenRecordingState>(x11, capture);
        detection.keyDownTime = x11Keys ? std::move(x11Keys) : std::make_unique<NullKeyDownTime>();
        detection.sources = [hasX, hearsX11Keys] {
            return QVariantMap{{u"windows"_s, hasX ? u"x11"_s : u"none"_s},
                               {u"idle"_s, hasX ? u"x11-screensaver"_s : u"session-bus"_s},
                               {u"typing"_s, hearsX11Keys ? u"x11-xinput2"_s : u"none"_s},
                               {u"devices"_s, u"proc+sound-server"_s},
                               {u"media"_s, u"mpris"_s},
                               {u"capture"_s, u"pipewire"_s}};
        };
        return detection;
    }

    // Wayland: our own connection to the compositor; Xwayland's clients through X11 beside it. Xwayland sees
    // only the input that goes to X clients, so idle time never comes from it here.
    const std::shared_ptr<WaylandLink> link = WaylandLink::connect();
    std::vector<std::shared_ptr<ToplevelSource>> candidates;
    if (link) {
        candidates.push_back(std::make_shared<WaylandLinkToplevels>(link));
        // KWin without the grant: our script reports instead, started only where no protocol serves.
        auto kwin = std::make_shared<KWinScriptToplevels>(bus, link);
        candidates.push_back(kwin);
        link->whenReady([link = link.get(), kwin = std::weak_ptr<KWinScriptToplevels>(kwin)] {
            const auto script = kwin.lock();
            if (!script || link->toplevels() != WaylandLink::Toplevels::None)
                return;
            QMetaObject::invokeMethod(
                script.get(), [object = script.get()] { object->start(); }, Qt::QueuedConnection);
        });
        // GNOME: Velto's Shell extension, when installed and enabled; it may come later in the session.
        auto gnome = std::make_shared<GnomeShellToplevels>(bus, link);
        gnome->start();
        candidates.push_back(gnome);
    }
    auto toplevels = std::make_shared<FirstAvailableToplevels>(std::move(candidates));
    providers.workspace = std::make_unique<WaylandWorkspace>(
        toplevels, std::make_unique<SystemWorkspace>(x11, identities, memo, SystemWorkspace::Scope::WindowsOnly),
        std::make_unique<SystemWorkspace>(x11, identities, memo, SystemWorkspace::Scope::WindowsAndProcesses),
        identities, memo);
    providers.windowList = std::make_unique<WaylandWindowList>(toplevels, std::make_unique<SystemWindowList>(x11));
    providers.screen = std::make_unique<WaylandScreen>(toplevels, std::make_unique<SystemScreen>(x11));
    providers.idleTime = std::make_unique<WaylandIdleTime>(
        link, std::make_unique<SystemIdleTime>(x11, bus, SystemIdleTime::Source::BusOnly));
    auto x11Windows = std::make_shared<SystemWindowList>(x11);
    providers.screenRecording = std::make_unique<SystemScreenRecordingState>(
        [toplevels, x11Windows] {
            return toplevels->isAvailable() ? waylandWindowTitles(*toplevels) : x11Windows->titledWindows();
        },
        capture);

    // GNOME's compositor has no idle protocol for clients; its own idle monitor serves the same purpose.
    std::unique_ptr<KeyDownTimeProviding> typingElsewhere = MutterInputActivity::start(bus);
    const bool mutterTyping = typingElsewhere != nullptr;
    if (!typingElsewhere)
        typingElsewhere = std::move(x11Keys);
    detection.keyDownTime = std::make_unique<WaylandInputActivity>(link, std::move(typingElsewhere));

    detection.focusedOutput = [toplevels] {
        const WaylandFacts facts = toplevels->facts();
        for (const WaylandToplevel& toplevel : facts.toplevels) {
            if (toplevel.activated && toplevel.output >= 0 && toplevel.output < facts.outputs.size())
                return facts.outputs.at(toplevel.output).name;
        }
        return QString();
    };
    detection.sources = [link, toplevels, hasX, hearsX11Keys, mutterTyping] {
        const QString idle = link ? idleSourceName(link->idle()) : QString();
        QString windows = toplevels->name();
        if (hasX)
            windows = toplevels->isAvailable() ? windows + u"+xwayland"_s : u"xwayland"_s;
        return QVariantMap{{u"windows"_s, windows},
                           {u"idle"_s, idle.isEmpty() ? u"session-bus"_s : idle},
                           {u"typing"_s, !idle.isEmpty() || mutterTyping ? u"input-activity"_s
                                         : hearsX11Keys                  ? u"xwayland-xinput2"_s
                                                                         : u"none"_s},
                           {u"devices"_s, u"proc+sound-server"_s},
                           {u"media"_s, u"mpris"_s},
                           {u"capture"_s, u"pipewire"_s}};
    };
    return detection;
}

} // namespace velto
