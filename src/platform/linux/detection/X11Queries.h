#pragma once

#include "X11Session.h"

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

namespace velto {

// The requests the X11 providers make: everything a detection pass may ask, in one round trip however many
// windows there are when the caller names the windows it expects (the last answer's), in two when they have
// changed (each batch is sent whole before the first reply is awaited). A window that vanishes between two
// requests simply drops out of the answer.
namespace X11Queries {

// Window layers in the numbers the detection rules compare: 0 is the normal application layer.
enum Layer : int {
    desktopLayer = -2147483623,
    normalLayer = 0,
    floatingLayer = 3,
    dockLayer = 20,
    notificationLayer = 25,
    popUpLayer = 101,
};

struct Client {
    xcb_window_t window = XCB_WINDOW_NONE;
    // 0 when the window does not name its process.
    qint32 pid = 0;
    QString wmInstance;
    QString wmClass;
};

struct Clients {
    // In the window manager's order (_NET_CLIENT_LIST, oldest first).
    QList<Client> clients;
    // The process of the active window; 0 when none is active or it names no process.
    qint32 activePid = 0;
};

struct OnScreenWindow {
    xcb_window_t window = XCB_WINDOW_NONE;
    qint32 pid = 0;
    // The frame (decorations included) in root-window coordinates.
    QRectF frame;
    int layer = normalLayer;
    // _NET_WM_NAME, else WM_NAME; none when the window has neither or titles were not asked for.
    std::optional<QString> title;
};

struct Snapshot {
    Clients clients;
    // Managed windows that are mapped, not minimised and on the current desktop, front to back, with titles.
    QList<OnScreenWindow> onScreenWindows;
    // The primary RandR monitor, else the first one, else the whole root window.
    QRectF primaryScreenFrame;
    // Milliseconds since the last input the server saw; none without the MIT-SCREEN-SAVER extension.
    std::optional<quint32> millisecondsSinceInput;
    // Every window asked about: the managed ones, then any others in the stacking order.
    QList<xcb_window_t> windows;
};

// With patient set, the caller (a background thread) lets the server answer the whole batch before it reads:
// the server sends each reply as it goes, and a reader that waits for them one by one wakes once per reply.
[[nodiscard]] Snapshot snapshot(const X11Session& session, const QList<xcb_window_t>& expectedWindows = {},
                                bool patient = false);

} // namespace X11Queries
} // namespace velto
