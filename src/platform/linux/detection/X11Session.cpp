#include "X11Session.h"

#include "LogOnce.h"
#include "X11Queries.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace velto {

Q_LOGGING_CATEGORY(lcSystemProbes, "velto.detection.system")

X11Session::~X11Session()
{
    if (m_ewmh)
        xcb_ewmh_connection_wipe(m_ewmh.get());
    if (m_connection)
        xcb_disconnect(m_connection);
}

std::shared_ptr<X11Session> X11Session::open(const QByteArray& display)
{
    const QByteArray name = display.isEmpty() ? qgetenv("DISPLAY") : display;
    if (name.isEmpty())
        return nullptr;
    std::shared_ptr<X11Session> session(new X11Session);
    session->m_display = name;
    session->m_connection = xcb_connect(name.constData(), &session->m_screenNumber);
    if (session->isBroken())
        return nullptr;
    xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(session->m_connection));
    for (int i = 0; it.rem > 0 && i < session->m_screenNumber; ++i)
        xcb_screen_next(&it);
    if (it.rem == 0)
        return nullptr;
    session->m_screen = it.data;
    session->m_ewmh = std::make_unique<xcb_ewmh_connection_t>();
    xcb_intern_atom_cookie_t* cookies = xcb_ewmh_init_atoms(session->m_connection, session->m_ewmh.get());
    if (cookies == nullptr || xcb_ewmh_init_atoms_replies(session->m_ewmh.get(), cookies, nullptr) == 0) {
        session->m_ewmh.reset();
        return nullptr;
    }
    return session;
}

QByteArray X11Session::propertyBytes(xcb_get_property_reply_t* reply)
{
    if (reply == nullptr || reply->type == XCB_NONE)
        return {};
    const int length = xcb_get_property_value_length(reply);
    if (length <= 0)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply)), length);
}

X11Link::X11Link(QByteArray display)
    : m_display(display.isEmpty() ? qgetenv("DISPLAY") : std::move(display))
{}

std::shared_ptr<X11Session> X11Link::session(const LogOnce& log) const
{
    if (m_display.isEmpty())
        return nullptr;
    QMutexLocker lock(&m_mutex);
    if (m_session && !m_session->isBroken()) {
        // Nobody selects events on this connection; only stray errors could arrive. Drop them.
        while (xcb_generic_event_t* event = xcb_poll_for_event(m_session->connection()))
            std::free(event);
        return m_session;
    }
    if (m_session)
        log.warn(u"x11-lost"_s,
                 u"The connection to the X server %1 broke; reconnecting"_s.arg(QString::fromLocal8Bit(m_display)));
    m_session = X11Session::open(m_display);
    if (!m_session)
        log.warn(u"x11-open"_s, u"Cannot connect to the X server %1; window and idle queries answer nothing"_s.arg(
                                    QString::fromLocal8Bit(m_display)));
    return m_session;
}

std::shared_ptr<const X11Queries::Snapshot> X11Link::snapshot(const LogOnce& log) const
{
    QMutexLocker lock(&m_passMutex);
    if (m_passSnapshot)
        return m_passSnapshot;
    const auto current = session(log);
    if (!current)
        return nullptr;
    auto fresh = std::make_shared<const X11Queries::Snapshot>(X11Queries::snapshot(*current, m_lastWindows, m_inPass));
    m_lastWindows = fresh->windows;
    if (m_inPass)
        m_passSnapshot = fresh;
    return fresh;
}

void X11Link::beginPass()
{
    QMutexLocker lock(&m_passMutex);
    m_inPass = true;
    m_passSnapshot.reset();
}

void X11Link::endPass()
{
    QMutexLocker lock(&m_passMutex);
    m_inPass = false;
    m_passSnapshot.reset();
}

} // namespace velto
