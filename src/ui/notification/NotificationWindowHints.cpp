#include "NotificationWindowHints.h"

#include <QGuiApplication>
#include <QWindow>

#include <array>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

namespace velto {
namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const char* name)
{
    xcb_intern_atom_cookie_t cookie =
        xcb_intern_atom(connection, /* only_if_exists */ 0, static_cast<uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    if (reply == nullptr)
        return XCB_ATOM_NONE;
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
}

} // namespace

void applyNotificationWindowHints(QWindow* window)
{
    auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (window == nullptr || x11 == nullptr || x11->connection() == nullptr)
        return;
    xcb_connection_t* connection = x11->connection();
    const auto id = static_cast<xcb_window_t>(window->winId());

    // Every desktop, the EWMH way.
    const uint32_t allDesktops = 0xFFFFFFFF;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, internAtom(connection, "_NET_WM_DESKTOP"),
                        XCB_ATOM_CARDINAL, 32, 1, &allDesktops);

    // Qt merges its own states (above, from the stays-on-top flag) into these when it maps the window.
    const std::array<xcb_atom_t, 3> states = {internAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                              internAtom(connection, "_NET_WM_STATE_SKIP_PAGER"),
                                              internAtom(connection, "_NET_WM_STATE_STICKY")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, internAtom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM,
                        32, static_cast<uint32_t>(states.size()), states.data());

    // Qt always offers WM_TAKE_FOCUS; a window manager would then hand the card the focus on map or click.
    const std::array<xcb_atom_t, 2> protocols = {internAtom(connection, "WM_DELETE_WINDOW"),
                                                 internAtom(connection, "_NET_WM_PING")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, internAtom(connection, "WM_PROTOCOLS"), XCB_ATOM_ATOM,
                        32, static_cast<uint32_t>(protocols.size()), protocols.data());
    xcb_flush(connection);
}

} // namespace velto
