#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QString>

#include <cstdlib>
#include <memory>
#include <optional>
#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

namespace velto {

class LogOnce;
namespace X11Queries {
struct Snapshot;
}

// One connection to the X server with the EWMH atoms resolved, shared by the X11 providers. xcb connections
// may be used from several threads at once, so the providers send their requests from the detection
// thread and the main thread alike.
class X11Session final {
public:
    ~X11Session();
    X11Session(const X11Session&) = delete;
    X11Session& operator=(const X11Session&) = delete;

    // A connection to this display (empty: $DISPLAY); null when there is no display to connect to.
    [[nodiscard]] static std::shared_ptr<X11Session> open(const QByteArray& display = {});

    [[nodiscard]] xcb_connection_t* connection() const { return m_connection; }
    [[nodiscard]] xcb_ewmh_connection_t* ewmh() const { return m_ewmh.get(); }
    [[nodiscard]] xcb_window_t root() const { return m_screen->root; }
    [[nodiscard]] const xcb_screen_t* screen() const { return m_screen; }
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }
    [[nodiscard]] const QByteArray& displayName() const { return m_display; }
    // Whether the server went away or broke the connection; a broken session answers nothing any more.
    [[nodiscard]] bool isBroken() const { return xcb_connection_has_error(m_connection) != 0; }

    // The value of a property as raw bytes from a reply, empty when there is none.
    [[nodiscard]] static QByteArray propertyBytes(xcb_get_property_reply_t* reply);

private:
    X11Session() = default;

    QByteArray m_display;
    xcb_connection_t* m_connection = nullptr;
    const xcb_screen_t* m_screen = nullptr;
    int m_screenNumber = 0;
    std::unique_ptr<xcb_ewmh_connection_t> m_ewmh;
};

// The session the providers use, reconnected when the server restarts. Without a display it answers null at
// once, so desktops without X (a Wayland session without Xwayland, a text console) cost nothing.
class X11Link final {
public:
    explicit X11Link(QByteArray display = {});

    [[nodiscard]] std::shared_ptr<X11Session> session(const LogOnce& log) const;

    // What the providers ask the server, all at once; null without a session. Between beginPass and endPass
    // it is asked once and shared, so a detection pass costs one round trip however many providers ask
    // (fewer wake-ups of the server and of the detection thread); outside a pass every call asks afresh.
    [[nodiscard]] std::shared_ptr<const X11Queries::Snapshot> snapshot(const LogOnce& log) const;
    void beginPass();
    void endPass();

private:
    QByteArray m_display;
    mutable QMutex m_mutex;
    mutable std::shared_ptr<X11Session> m_session;
    mutable QMutex m_passMutex;
    bool m_inPass = false;
    mutable std::shared_ptr<const X11Queries::Snapshot> m_passSnapshot;
    // The windows of the last answer, asked ahead in the next one.
    mutable QList<xcb_window_t> m_lastWindows;
};

// A reply that frees itself.
template <typename T>
using XcbReply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
[[nodiscard]] XcbReply<T> takeReply(T* reply)
{
    return XcbReply<T>(reply, &std::free);
}

// Waits for the reply to a request; an error (a window that vanished) is freed here and answers null, so
// errors never pile up in the shared connection's event queue.
template <typename Reply, typename Cookie>
[[nodiscard]] XcbReply<Reply> fetch(Reply* (*replyFunction)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                                    xcb_connection_t* connection, Cookie cookie)
{
    xcb_generic_error_t* error = nullptr;
    Reply* reply = replyFunction(connection, cookie, &error);
    std::free(error);
    return takeReply(reply);
}

} // namespace velto
