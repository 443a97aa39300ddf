#pragma once

#include "WaylandLink.h"
#include "detection/AppIdentityResolver.h"
#include "detection/IdleTimeProviding.h"
#include "detection/ScreenProviding.h"
#include "detection/ScreenRecordingRule.h"
#include "detection/SystemX11Providers.h"
#include "detection/WindowListProviding.h"
#include "detection/WorkspaceProviding.h"
#include "scheduling/KeyDownTimeProviding.h"

#include <QMutex>

#include <memory>
#include <vector>

namespace velto {

// Where a Wayland session's toplevel windows come from. Sources answer from memory, from any thread.
class ToplevelSource {
public:
    virtual ~ToplevelSource() = default;
    // Whether the source sees this session's windows now.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    // A short stable name for status reports ("wlr-foreign-toplevel").
    [[nodiscard]] virtual QString name() const = 0;
    // The outputs and toplevels; empty when the source is not available.
    [[nodiscard]] virtual WaylandFacts facts() const = 0;
};

// The toplevels our own Wayland connection sees through a window-management protocol.
class WaylandLinkToplevels final : public ToplevelSource {
public:
    explicit WaylandLinkToplevels(std::shared_ptr<WaylandLink> link);
    [[nodiscard]] bool isAvailable() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] WaylandFacts facts() const override;

private:
    std::shared_ptr<WaylandLink> m_link;
};

// Windows that a helper inside the compositor reported (a KWin script, a GNOME Shell extension), with their
// frames in the layout, which place each on an output of our Wayland connection. Any thread.
class ReportedToplevels final {
public:
    explicit ReportedToplevels(std::shared_ptr<WaylandLink> outputs);
    // frames[i] is toplevels[i]'s.
    void set(QList<WaylandToplevel> toplevels, QList<QRect> frames);
    // Nothing reported (the helper went away): the answers turn neutral.
    void clear();
    [[nodiscard]] bool isAvailable() const;
    [[nodiscard]] WaylandFacts facts() const;

private:
    std::shared_ptr<WaylandLink> m_outputs;
    mutable QMutex m_mutex;
    bool m_reported = false;
    QList<WaylandToplevel> m_toplevels;
    QList<QRect> m_frames;
};

// The first of several sources that is available at the time of asking, so a source that comes later in a
// session (a compositor script that starts reporting, an extension enabled after login) takes over by itself.
class FirstAvailableToplevels final : public ToplevelSource {
public:
    explicit FirstAvailableToplevels(std::vector<std::shared_ptr<ToplevelSource>> candidates);
    [[nodiscard]] bool isAvailable() const override;
    // The active source's name; "none" when no source is available.
    [[nodiscard]] QString name() const override;
    [[nodiscard]] WaylandFacts facts() const override;

private:
    [[nodiscard]] const ToplevelSource* active() const;
    std::vector<std::shared_ptr<ToplevelSource>> m_candidates;
};

// The applications with Wayland windows, one per application in the compositor's order, the one owning the
// activated toplevel active; then the Xwayland clients the X11 workspace names that are not already listed.
// Without toplevels, the fallback's answer as it stands (Xwayland clients and the applications running as the
// user's processes: the most a session that hides its windows can tell).
class WaylandWorkspace final : public WorkspaceProviding {
public:
    WaylandWorkspace(std::shared_ptr<ToplevelSource> toplevels, std::unique_ptr<WorkspaceProviding> xwayland,
                     std::unique_ptr<WorkspaceProviding> fallback, std::shared_ptr<AppIdentityResolver> identities,
                     std::shared_ptr<WindowClassMemo> memo);

    [[nodiscard]] QList<AppSnapshot> runningApplications() const override;

private:
    [[nodiscard]] std::optional<QString> resolve(const WaylandToplevel& toplevel) const;

    std::shared_ptr<ToplevelSource> m_toplevels;
    std::unique_ptr<WorkspaceProviding> m_xwayland;
    std::unique_ptr<WorkspaceProviding> m_fallback;
    std::shared_ptr<AppIdentityResolver> m_identities;
    std::shared_ptr<WindowClassMemo> m_memo;
    // Each application's identity, worked out once while its windows live.
    mutable QMutex m_mutex;
    mutable QHash<QPair<qint32, QString>, std::optional<QString>> m_identityOf;
};

// Wayland tells no client where windows are, only their state and output: a fullscreen toplevel is reported
// as covering its output, any other as an empty rectangle at its output's corner, so the fullscreen rules keep
// their meaning. Minimized toplevels are not on screen. Without toplevels, the fallback's answer.
class WaylandWindowList final : public WindowListProviding {
public:
    WaylandWindowList(std::shared_ptr<ToplevelSource> toplevels, std::unique_ptr<WindowListProviding> fallback);

    [[nodiscard]] QList<WindowDescriptor> onScreenWindows() const override;

private:
    std::shared_ptr<ToplevelSource> m_toplevels;
    std::unique_ptr<WindowListProviding> m_fallback;
};

// The toplevels' titles, for the recording rule.
[[nodiscard]] QList<TitledWindow> waylandWindowTitles(const ToplevelSource& toplevels);

// The output of the activated toplevel, else the first output; the fallback's answer without toplevels.
class WaylandScreen final : public ScreenProviding {
public:
    WaylandScreen(std::shared_ptr<ToplevelSource> toplevels, std::unique_ptr<ScreenProviding> fallback);

    [[nodiscard]] QRectF mainScreenFrame() const override;

private:
    std::shared_ptr<ToplevelSource> m_toplevels;
    std::unique_ptr<ScreenProviding> m_fallback;
};

// Idle time from the compositor's idle protocol, else from the fallback (the desktop's D-Bus idle monitor).
class WaylandIdleTime final : public IdleTimeProviding {
public:
    WaylandIdleTime(std::shared_ptr<WaylandLink> link, std::unique_ptr<IdleTimeProviding> fallback);

    [[nodiscard]] double secondsSinceLastInput() const override;

private:
    std::shared_ptr<WaylandLink> m_link;
    std::unique_ptr<IdleTimeProviding> m_fallback;
};

// No ordinary Wayland client hears key presses, so any input in the last couple of seconds stands in for
// typing: the compositor's idle notification says when input stopped. Pointer movement counts too. Without
// an idle protocol (or before the link knows), the fallback answers (Xwayland's key presses, or none).
class WaylandInputActivity final : public KeyDownTimeProviding {
public:
    WaylandInputActivity(std::shared_ptr<WaylandLink> link, std::unique_ptr<KeyDownTimeProviding> fallback);

    [[nodiscard]] std::optional<double> secondsSinceLastKeyDown() const override;

private:
    std::shared_ptr<WaylandLink> m_link;
    std::unique_ptr<KeyDownTimeProviding> m_fallback;
};

} // namespace velto
