#pragma once

#include "AppIdentityResolver.h"
#include "LogOnce.h"
#include "PipeWireCapture.h"
#include "SystemX11Providers.h"
#include "detection/AppCategoryProviding.h"
#include "detection/ClockProviding.h"
#include "detection/ScreenRecordingStateProviding.h"
#include "detection/VideoPlaybackProviding.h"

#include <QDBusConnection>

#include <memory>

namespace velto {

// Playback through MPRIS on the session bus: the player whose bus name or DesktopEntry is the application
// identity reports PlaybackStatus "Playing". Identities with no playback query (browsers, streaming
// applications, anything unknown) answer false without asking.
class SystemVideoPlayback final : public VideoPlaybackProviding {
public:
    explicit SystemVideoPlayback(QDBusConnection sessionBus);

    [[nodiscard]] bool isPlaying(const QString& bundleIdentifier) const override;

    static constexpr int callTimeout = 250;

private:
    [[nodiscard]] std::optional<QVariant> property(const QString& service, const QString& interface,
                                                   const QString& name) const;

    QDBusConnection m_bus;
    LogOnce m_log;
};

// Two tests: a window title that says so (the shared recording rule), then a screen capture in the media
// server.
class SystemScreenRecordingState final : public ScreenRecordingStateProviding {
public:
    SystemScreenRecordingState(std::shared_ptr<X11Link> x11, std::shared_ptr<PipeWireCapture> capture);
    // Titles from elsewhere (a Wayland session's toplevels).
    SystemScreenRecordingState(ScreenRecordingRule::WindowTitles titles, std::shared_ptr<PipeWireCapture> capture);

    [[nodiscard]] bool isScreenRecording(const QList<AppSnapshot>& runningApplications) const override;

private:
    ScreenRecordingRule::WindowTitles m_titles;
    std::shared_ptr<PipeWireCapture> m_capture;
};

// The categories the application's desktop file declares ("Game;ArcadeGame;"); "Game;" for a process that
// Steam started as a game (SteamAppId in its environment).
class SystemAppCategory final : public AppCategoryProviding {
public:
    SystemAppCategory(std::shared_ptr<AppIdentityResolver> identities, std::shared_ptr<WindowClassMemo> memo);

    [[nodiscard]] std::optional<QString> category(qint32 processIdentifier) const override;

private:
    std::shared_ptr<AppIdentityResolver> m_identities;
    std::shared_ptr<WindowClassMemo> m_memo;
};

class SystemClock final : public ClockProviding {
public:
    [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};

} // namespace velto
