#include "X11KeyDownTime.h"

#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

struct X11KeyDownTime::Connection {
    xcb_connection_t* connection = nullptr;
    uint8_t xinputOpcode = 0;
    ~Connection()
    {
        if (connection)
            xcb_disconnect(connection);
    }
};

std::unique_ptr<X11KeyDownTime> X11KeyDownTime::start(const QByteArray& display, MonotonicClock clock)
{
    const QByteArray name = display.isEmpty() ? qgetenv("DISPLAY") : display;
    if (name.isEmpty())
        return nullptr;
    auto connection = std::make_unique<Connection>();
    int screenNumber = 0;
    connection->connection = xcb_connect(name.constData(), &screenNumber);
    xcb_connection_t* c = connection->connection;
    if (xcb_connection_has_error(c))
        return nullptr;
    const xcb_query_extension_reply_t* xinput = xcb_get_extension_data(c, &xcb_input_id);
    if (xinput == nullptr || !xinput->present)
        return nullptr;
    // Raw events reach the root window of every client only from XInput 2.1 on.
    xcb_generic_error_t* error = nullptr;
    auto* version = xcb_input_xi_query_version_reply(c, xcb_input_xi_query_version(c, 2, 2), &error);
    const bool recent =
        version && (version->major_version > 2 || (version->major_version == 2 && version->minor_version >= 1));
    std::free(version);
    std::free(error);
    if (!recent)
        return nullptr;
    xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(c));
    for (int i = 0; it.rem > 0 && i < screenNumber; ++i)
        xcb_screen_next(&it);
    if (it.rem == 0)
        return nullptr;
    struct {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } mask{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS};
    xcb_generic_error_t* selectError =
        xcb_request_check(c, xcb_input_xi_select_events_checked(c, it.data->root, 1, &mask.head));
    if (selectError != nullptr) {
        std::free(selectError);
        return nullptr;
    }
    connection->xinputOpcode = xinput->major_opcode;

    std::unique_ptr<X11KeyDownTime> listener(new X11KeyDownTime);
    listener->m_connection = std::move(connection);
    listener->m_clock = clock ? std::move(clock) : [] {
        return static_cast<qint64>(
            std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
                .count());
    };
    listener->m_wakeFd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (listener->m_wakeFd < 0)
        return nullptr;
    listener->m_thread = std::thread([raw = listener.get()] { raw->listen(); });
    return listener;
}

X11KeyDownTime::~X11KeyDownTime()
{
    if (m_thread.joinable()) {
        const uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(m_wakeFd, &one, sizeof one);
        m_thread.join();
    }
    if (m_wakeFd >= 0)
        ::close(m_wakeFd);
}

void X11KeyDownTime::listen()
{
    xcb_connection_t* c = m_connection->connection;
    pollfd fds[2] = {{xcb_get_file_descriptor(c), POLLIN, 0}, {m_wakeFd, POLLIN, 0}};
    for (;;) {
        while (xcb_generic_event_t* event = xcb_poll_for_event(c)) {
            if ((event->response_type & 0x7f) == XCB_GE_GENERIC) {
                const auto* generic = reinterpret_cast<const xcb_ge_generic_event_t*>(event);
                if (generic->extension == m_connection->xinputOpcode &&
                    generic->event_type == XCB_INPUT_RAW_KEY_PRESS) {
                    m_lastKeyDown.store(m_clock());
                    m_count.fetch_add(1);
                }
            }
            std::free(event);
        }
        if (xcb_connection_has_error(c)) {
            m_log.warn(u"keydown-x11-lost"_s, u"The X connection for key presses broke; typing is no longer seen"_s);
            return;
        }
        fds[0].revents = fds[1].revents = 0;
        if (::poll(fds, 2, -1) < 0 && errno != EINTR)
            return;
        if (fds[1].revents != 0)
            return;
    }
}

std::optional<double> X11KeyDownTime::secondsSinceLastKeyDown() const
{
    if (m_count.load() == 0)
        return std::nullopt;
    return std::max<qint64>(0, m_clock() - m_lastKeyDown.load()) / 1e9;
}

} // namespace velto
