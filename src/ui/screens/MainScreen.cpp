#include "MainScreen.h"

#include <QGuiApplication>
#include <QScreen>

#include <cstring>
#include <xcb/xcb.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, true, uint16_t(strlen(name)), name), nullptr);
    const xcb_atom_t atom = reply ? reply->atom : XCB_NONE;
    free(reply);
    return atom;
}

// Qt places screens by their native top-left corner and scales only their size.
QRect nativeGeometry(const QScreen* screen)
{
    const QRect geometry = screen->geometry();
    return {geometry.topLeft(), geometry.size() * screen->devicePixelRatio()};
}

} // namespace

QRect focusedWindowFrame()
{
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    auto* x11 = app && QGuiApplication::platformName() == u"xcb"_s
                    ? app->nativeInterface<QNativeInterface::QX11Application>()
                    : nullptr;
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const xcb_atom_t activeWindow = internAtom(connection, "_NET_ACTIVE_WINDOW");
    if (activeWindow == XCB_NONE)
        return {};
    xcb_get_property_reply_t* property = xcb_get_property_reply(
        connection, xcb_get_property(connection, false, root, activeWindow, XCB_ATOM_WINDOW, 0, 1), nullptr);
    xcb_window_t window = XCB_NONE;
    if (property && property->type == XCB_ATOM_WINDOW && xcb_get_property_value_length(property) >= 4)
        window = *static_cast<const xcb_window_t*>(xcb_get_property_value(property));
    free(property);
    if (window == XCB_NONE)
        return {};
    // Both asked at once: one more round trip.
    const auto geometryCookie = xcb_get_geometry(connection, window);
    const auto originCookie = xcb_translate_coordinates(connection, window, root, 0, 0);
    xcb_get_geometry_reply_t* geometry = xcb_get_geometry_reply(connection, geometryCookie, nullptr);
    xcb_translate_coordinates_reply_t* origin = xcb_translate_coordinates_reply(connection, originCookie, nullptr);
    QRect frame;
    if (geometry && origin)
        frame = QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
    free(geometry);
    free(origin);
    return frame;
}

QScreen* screenHolding(const QRect& frame, const QList<QScreen*>& screens, QScreen* fallback)
{
    QScreen* best = fallback;
    qint64 bestArea = 0;
    for (QScreen* screen : screens) {
        const QRect shared = nativeGeometry(screen).intersected(frame);
        const qint64 area = shared.isEmpty() ? 0 : qint64(shared.width()) * shared.height();
        if (area > bestArea) {
            best = screen;
            bestArea = area;
        }
    }
    return best;
}

namespace {
std::function<QString()>& focusedOutputSource()
{
    static std::function<QString()> source;
    return source;
}
} // namespace

void setFocusedOutputSource(std::function<QString()> outputName)
{
    focusedOutputSource() = std::move(outputName);
}

QScreen* mainScreen()
{
    if (focusedOutputSource() && !QGuiApplication::platformName().startsWith(u"xcb"_s)) {
        const QString output = focusedOutputSource()();
        for (QScreen* screen : QGuiApplication::screens()) {
            if (!output.isEmpty() && screen->name() == output)
                return screen;
        }
        return QGuiApplication::primaryScreen();
    }
    return screenHolding(focusedWindowFrame(), QGuiApplication::screens(), QGuiApplication::primaryScreen());
}

} // namespace velto
