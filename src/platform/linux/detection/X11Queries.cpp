#include "X11Queries.h"

#include <QHash>

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>
#include <xcb/randr.h>
#include <xcb/screensaver.h>

namespace velto::X11Queries {

namespace {

constexpr uint32_t maxListLength = 4096;

xcb_get_property_cookie_t cardinalProperty(const X11Session& s, xcb_window_t window, xcb_atom_t atom)
{
    return xcb_get_property(s.connection(), 0, window, atom, XCB_ATOM_CARDINAL, 0, 1);
}

std::optional<uint32_t> cardinalReply(const X11Session& s, xcb_get_property_cookie_t cookie)
{
    auto reply = fetch(xcb_get_property_reply, s.connection(), cookie);
    if (!reply || reply->type != XCB_ATOM_CARDINAL || reply->format != 32 ||
        xcb_get_property_value_length(reply.get()) < 4)
        return std::nullopt;
    return *static_cast<const uint32_t*>(xcb_get_property_value(reply.get()));
}

QList<xcb_atom_t> atomListReply(const X11Session& s, xcb_get_property_cookie_t cookie)
{
    QList<xcb_atom_t> atoms;
    auto reply = fetch(xcb_get_property_reply, s.connection(), cookie);
    if (!reply || reply->format != 32)
        return atoms;
    const int count = xcb_get_property_value_length(reply.get()) / 4;
    const auto* values = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    atoms.reserve(count);
    for (int i = 0; i < count; ++i)
        atoms.append(values[i]);
    return atoms;
}

int layerFor(const X11Session& s, const QList<xcb_atom_t>& types)
{
    const xcb_ewmh_connection_t* e = s.ewmh();
    // The first type the window names that we know decides, as EWMH asks.
    for (const xcb_atom_t type : types) {
        if (type == e->_NET_WM_WINDOW_TYPE_NORMAL || type == e->_NET_WM_WINDOW_TYPE_DIALOG)
            return normalLayer;
        if (type == e->_NET_WM_WINDOW_TYPE_DESKTOP)
            return desktopLayer;
        if (type == e->_NET_WM_WINDOW_TYPE_DOCK)
            return dockLayer;
        if (type == e->_NET_WM_WINDOW_TYPE_NOTIFICATION)
            return notificationLayer;
        if (type == e->_NET_WM_WINDOW_TYPE_UTILITY || type == e->_NET_WM_WINDOW_TYPE_TOOLBAR ||
            type == e->_NET_WM_WINDOW_TYPE_SPLASH)
            return floatingLayer;
        if (type == e->_NET_WM_WINDOW_TYPE_MENU || type == e->_NET_WM_WINDOW_TYPE_DROPDOWN_MENU ||
            type == e->_NET_WM_WINDOW_TYPE_POPUP_MENU || type == e->_NET_WM_WINDOW_TYPE_TOOLTIP ||
            type == e->_NET_WM_WINDOW_TYPE_COMBO || type == e->_NET_WM_WINDOW_TYPE_DND)
            return popUpLayer;
    }
    return normalLayer;
}

struct WindowCookies {
    xcb_get_property_cookie_t pid;
    xcb_get_property_cookie_t wmClass;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t origin;
    xcb_get_property_cookie_t type;
    xcb_get_property_cookie_t state;
    xcb_get_property_cookie_t extents;
    xcb_get_property_cookie_t desktop;
    xcb_get_property_cookie_t netName;
    xcb_get_property_cookie_t name;

    // Replies (and errors) that will not be read, dropped as they come so they never reach the event queue.
    void discard(xcb_connection_t* c) const
    {
        for (const unsigned int sequence :
             {pid.sequence, wmClass.sequence, attributes.sequence, geometry.sequence, origin.sequence, type.sequence,
              state.sequence, extents.sequence, desktop.sequence, netName.sequence, name.sequence})
            xcb_discard_reply(c, sequence);
    }
};

// Sends what is queued and sleeps about as long as the server takes to answer it: one wake-up for the batch.
void awaitBatch(xcb_connection_t* c, qsizetype windows)
{
    xcb_flush(c);
    // A round trip through a local server takes some tens of microseconds, plus a few for each window asked.
    std::this_thread::sleep_for(std::chrono::microseconds(500 + 20 * std::min<qsizetype>(windows, 200)));
}

std::vector<WindowCookies> requestWindowFacts(const X11Session& s, const QList<xcb_window_t>& windows)
{
    xcb_connection_t* c = s.connection();
    const xcb_ewmh_connection_t* e = s.ewmh();
    std::vector<WindowCookies> cookies;
    cookies.reserve(size_t(windows.size()));
    for (const xcb_window_t w : windows) {
        WindowCookies k{};
        k.pid = cardinalProperty(s, w, e->_NET_WM_PID);
        k.wmClass = xcb_get_property(c, 0, w, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 256);
        k.attributes = xcb_get_window_attributes(c, w);
        k.geometry = xcb_get_geometry(c, w);
        k.origin = xcb_translate_coordinates(c, w, s.root(), 0, 0);
        k.type = xcb_get_property(c, 0, w, e->_NET_WM_WINDOW_TYPE, XCB_ATOM_ATOM, 0, 32);
        k.state = xcb_get_property(c, 0, w, e->_NET_WM_STATE, XCB_ATOM_ATOM, 0, 32);
        k.extents = xcb_get_property(c, 0, w, e->_NET_FRAME_EXTENTS, XCB_ATOM_CARDINAL, 0, 4);
        k.desktop = cardinalProperty(s, w, e->_NET_WM_DESKTOP);
        k.netName = xcb_get_property(c, 0, w, e->_NET_WM_NAME, e->UTF8_STRING, 0, 1024);
        k.name = xcb_get_property(c, 0, w, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
        cookies.push_back(k);
    }
    return cookies;
}

} // namespace

Snapshot snapshot(const X11Session& s, const QList<xcb_window_t>& expectedWindows, bool patient)
{
    xcb_connection_t* c = s.connection();
    const xcb_ewmh_connection_t* e = s.ewmh();
    Snapshot result;
    result.primaryScreenFrame = QRectF(0, 0, s.screen()->width_in_pixels, s.screen()->height_in_pixels);

    // First batch: what the root window and the extensions know.
    const auto activeCookie = xcb_get_property(c, 0, s.root(), e->_NET_ACTIVE_WINDOW, XCB_ATOM_WINDOW, 0, 1);
    const auto clientsCookie = xcb_get_property(c, 0, s.root(), e->_NET_CLIENT_LIST, XCB_ATOM_WINDOW, 0, maxListLength);
    const auto stackingCookie =
        xcb_get_property(c, 0, s.root(), e->_NET_CLIENT_LIST_STACKING, XCB_ATOM_WINDOW, 0, maxListLength);
    const auto desktopCookie = cardinalProperty(s, s.root(), e->_NET_CURRENT_DESKTOP);
    const xcb_query_extension_reply_t* saver = xcb_get_extension_data(c, &xcb_screensaver_id);
    const bool hasSaver = saver != nullptr && saver->present;
    const auto idleCookie = hasSaver ? xcb_screensaver_query_info(c, s.root()) : xcb_screensaver_query_info_cookie_t{};
    const xcb_query_extension_reply_t* randr = xcb_get_extension_data(c, &xcb_randr_id);
    const bool hasRandr = randr != nullptr && randr->present;
    // Monitors are what desktops lay out (and what a split screen shows as several); the primary one first.
    const auto monitorsCookie = hasRandr ? xcb_randr_get_monitors(c, s.root(), 1) : xcb_randr_get_monitors_cookie_t{};
    // The windows of the last look, asked in the same batch: on a desktop whose windows have not come or gone
    // since, a pass costs one round trip.
    std::vector<WindowCookies> prefetched = requestWindowFacts(s, expectedWindows);
    if (patient)
        awaitBatch(c, 1 + expectedWindows.size());

    const QList<xcb_window_t> active = atomListReply(s, activeCookie);
    const QList<xcb_window_t> clientList = atomListReply(s, clientsCookie);
    // Bottom to top; reversed below, so the frontmost window comes first.
    QList<xcb_window_t> stacking = atomListReply(s, stackingCookie);
    if (stacking.isEmpty())
        stacking = clientList;
    const std::optional<uint32_t> currentDesktop = cardinalReply(s, desktopCookie);
    if (hasSaver) {
        if (auto info = fetch(xcb_screensaver_query_info_reply, c, idleCookie))
            result.millisecondsSinceInput = info->ms_since_user_input;
    }
    if (hasRandr) {
        if (auto monitors = fetch(xcb_randr_get_monitors_reply, c, monitorsCookie)) {
            std::optional<QRectF> first;
            std::optional<QRectF> primary;
            for (auto it = xcb_randr_get_monitors_monitors_iterator(monitors.get()); it.rem > 0;
                 xcb_randr_monitor_info_next(&it)) {
                const QRectF frame(it.data->x, it.data->y, it.data->width, it.data->height);
                if (it.data->primary && !primary)
                    primary = frame;
                if (!first)
                    first = frame;
            }
            result.primaryScreenFrame = primary.value_or(first.value_or(result.primaryScreenFrame));
        }
    }

    // Every managed window's facts, from the first batch when the windows are the expected ones.
    QList<xcb_window_t> windows = clientList;
    for (const xcb_window_t w : std::as_const(stacking))
        if (!windows.contains(w))
            windows.append(w);
    result.windows = windows;
    std::vector<WindowCookies> cookies;
    if (windows == expectedWindows) {
        cookies = std::move(prefetched);
    } else {
        // The lists changed: what was asked ahead is for the wrong windows; ask again.
        for (const WindowCookies& k : prefetched)
            k.discard(c);
        cookies = requestWindowFacts(s, windows);
        if (patient)
            awaitBatch(c, windows.size());
    }

    QHash<xcb_window_t, OnScreenWindow> onScreen;
    // Every reply is collected, also for windows that turn out to be off screen, so none is left queued.
    for (qsizetype i = 0; i < windows.size(); ++i) {
        const WindowCookies& k = cookies[size_t(i)];
        const xcb_window_t w = windows[i];
        const std::optional<uint32_t> pid = cardinalReply(s, k.pid);
        auto classReply = fetch(xcb_get_property_reply, c, k.wmClass);
        auto attributes = fetch(xcb_get_window_attributes_reply, c, k.attributes);
        auto geometry = fetch(xcb_get_geometry_reply, c, k.geometry);
        auto origin = fetch(xcb_translate_coordinates_reply, c, k.origin);
        const QList<xcb_atom_t> types = atomListReply(s, k.type);
        const QList<xcb_atom_t> states = atomListReply(s, k.state);
        const QList<xcb_atom_t> extents = atomListReply(s, k.extents);
        const std::optional<uint32_t> desktop = cardinalReply(s, k.desktop);
        auto netName = fetch(xcb_get_property_reply, c, k.netName);
        auto name = fetch(xcb_get_property_reply, c, k.name);

        if (clientList.contains(w)) {
            Client client;
            client.window = w;
            client.pid = static_cast<qint32>(pid.value_or(0));
            // WM_CLASS is "instance\0class\0".
            const QList<QByteArray> parts = X11Session::propertyBytes(classReply.get()).split('\0');
            client.wmInstance = QString::fromLocal8Bit(parts.value(0));
            client.wmClass = QString::fromLocal8Bit(parts.value(1));
            if (!active.isEmpty() && active.first() == w)
                result.clients.activePid = client.pid;
            result.clients.clients.append(client);
        }

        if (!stacking.contains(w) || !attributes || !geometry || !origin || !pid || *pid == 0)
            continue;
        if (attributes->map_state != XCB_MAP_STATE_VIEWABLE || states.contains(e->_NET_WM_STATE_HIDDEN))
            continue;
        if (currentDesktop && desktop && *desktop != 0xFFFFFFFF && *desktop != *currentDesktop)
            continue;
        OnScreenWindow window;
        window.window = w;
        window.pid = static_cast<qint32>(*pid);
        const double left = extents.size() == 4 ? extents[0] : 0;
        const double right = extents.size() == 4 ? extents[1] : 0;
        const double top = extents.size() == 4 ? extents[2] : 0;
        const double bottom = extents.size() == 4 ? extents[3] : 0;
        window.frame = QRectF(origin->dst_x - left, origin->dst_y - top, geometry->width + left + right,
                              geometry->height + top + bottom);
        window.layer = layerFor(s, types);
        if (const QByteArray bytes = X11Session::propertyBytes(netName.get()); !bytes.isEmpty())
            window.title = QString::fromUtf8(bytes);
        else if (const QByteArray legacy = X11Session::propertyBytes(name.get()); !legacy.isEmpty())
            window.title = name->type == e->UTF8_STRING ? QString::fromUtf8(legacy) : QString::fromLatin1(legacy);
        onScreen.insert(w, window);
    }
    for (auto it = stacking.crbegin(); it != stacking.crend(); ++it) {
        if (const auto found = onScreen.constFind(*it); found != onScreen.constEnd())
            result.onScreenWindows.append(*found);
    }
    return result;
}

} // namespace velto::X11Queries
