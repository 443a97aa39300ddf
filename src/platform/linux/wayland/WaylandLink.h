#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace velto {

// One output as the compositor lays it out, in logical (device-independent) pixels.
struct WaylandOutput {
    QString name;
    QRect geometry;

    friend bool operator==(const WaylandOutput&, const WaylandOutput&) = default;
};

// One toplevel window as a window-management protocol reports it.
struct WaylandToplevel {
    QString appId;
    QString title;
    // The process where the protocol names it; otherwise a negative number that stands for the app_id, the
    // same for every window of that app_id for the life of the link (wlroots gives no pids).
    qint32 pid = 0;
    bool activated = false;
    bool fullscreen = false;
    bool minimized = false;
    // Index into WaylandFacts::outputs of the output it is shown on; -1 when not known.
    int output = -1;

    friend bool operator==(const WaylandToplevel&, const WaylandToplevel&) = default;
};

// What the compositor has told us so far.
struct WaylandFacts {
    QList<WaylandOutput> outputs;
    // In the order the compositor announced them; Wayland tells clients nothing of stacking.
    QList<WaylandToplevel> toplevels;
};

// Our own connection to the Wayland compositor, apart from Qt's, served by a thread of its own that sleeps
// until the compositor sends something. It keeps the toplevels (wlroots' foreign-toplevel protocol, else
// KDE's plasma window management), the outputs and whether input stopped for a couple of seconds (the
// ext-idle-notify protocol, else KDE's idle protocol), and answers every question from memory at once,
// from any thread. When the compositor goes away the answers turn neutral and stay so.
class WaylandLink final {
public:
    enum class Toplevels { None, WlrForeignToplevel, PlasmaWindowManagement };
    enum class Idle { None, ExtIdleNotify, KdeIdle };

    // Connects to that display (empty: $WAYLAND_DISPLAY) and starts the thread; null when there is no Wayland
    // display to connect to. The globals are bound on the link's thread: until ready() the link knows nothing.
    [[nodiscard]] static std::shared_ptr<WaylandLink> connect(const QByteArray& display = {});
    ~WaylandLink();
    WaylandLink(const WaylandLink&) = delete;
    WaylandLink& operator=(const WaylandLink&) = delete;

    // Whether the first exchange with the compositor is done (globals bound, current toplevels known), waiting up
    // to that many milliseconds for it. False for good when the compositor did not answer.
    bool waitUntilReady(int milliseconds) const;
    [[nodiscard]] bool isConnected() const;
    // Runs once the first exchange is done (on the link's thread, or at once on the caller's when it already
    // is); never when the compositor did not answer.
    void whenReady(std::function<void()> callback);

    [[nodiscard]] Toplevels toplevels() const;
    [[nodiscard]] Idle idle() const;
    [[nodiscard]] WaylandFacts facts() const;

    // Seconds since the compositor last saw input on the seat: 0 within the last activityWindowMs, exact
    // from then on (the compositor's own timer says when that window passed). None without an idle protocol.
    [[nodiscard]] std::optional<double> secondsSinceLastInput() const;
    static constexpr int activityWindowMs = 2000;

    // The interfaces the compositor at that display (empty: $WAYLAND_DISPLAY) announces, asked in one round
    // trip on a connection of their own; empty when none answers. For decisions made before Qt connects.
    [[nodiscard]] static QStringList announcedInterfaces(const QByteArray& display = {});

    // How many times the compositor's events woke the link's thread; for the benchmarks.
    [[nodiscard]] quint64 wakeUps() const;

    struct State;

private:
    WaylandLink();
    std::unique_ptr<State> m_state;
};

} // namespace velto
