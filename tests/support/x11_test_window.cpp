// A bare X11 client window for the provider tests and the benchmark: it names its process and class like
// any application, prints its window ID once the server has it, and stays until stdin closes or it is killed.
// Usage: x11_test_window [--class instance.Class] [--title text] [--geometry WxH+X+Y] [--type normal|dock]
//                        [--fullscreen] [--no-pid]
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

xcb_atom_t atom(xcb_connection_t* c, const char* name)
{
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, static_cast<uint16_t>(std::strlen(name)), name), nullptr);
    const xcb_atom_t result = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

void setString(xcb_connection_t* c, xcb_window_t w, xcb_atom_t property, xcb_atom_t type, const std::string& value)
{
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, property, type, 8, static_cast<uint32_t>(value.size()),
                        value.data());
}

} // namespace

int main(int argc, char** argv)
{
    std::string instance = "testwindow";
    std::string windowClass = "TestWindow";
    std::string title = "Test window";
    bool dock = false;
    int width = 400, height = 300, x = 10, y = 10;
    bool fullscreen = false;
    bool withPid = true;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const char* next = i + 1 < argc ? argv[i + 1] : "";
        if (argument == "--class") {
            const std::string value = next;
            const auto dot = value.find('.');
            instance = value.substr(0, dot);
            windowClass = dot == std::string::npos ? value : value.substr(dot + 1);
            ++i;
        } else if (argument == "--title") {
            title = next;
            ++i;
        } else if (argument == "--geometry") {
            std::sscanf(next, "%dx%d+%d+%d", &width, &height, &x, &y);
            ++i;
        } else if (argument == "--type") {
            dock = std::strcmp(next, "dock") == 0;
            ++i;
        } else if (argument == "--fullscreen") {
            fullscreen = true;
        } else if (argument == "--no-pid") {
            withPid = false;
        }
    }

    xcb_connection_t* c = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(c))
        return 2;
    xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    const xcb_window_t w = xcb_generate_id(c);
    const uint32_t values[] = {screen->white_pixel, XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(c, XCB_COPY_FROM_PARENT, w, screen->root, static_cast<int16_t>(x), static_cast<int16_t>(y),
                      static_cast<uint16_t>(width), static_cast<uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      screen->root_visual, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);

    std::string classValue = instance;
    classValue.push_back('\0');
    classValue += windowClass;
    classValue.push_back('\0');
    setString(c, w, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, classValue);
    setString(c, w, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, title);
    setString(c, w, atom(c, "_NET_WM_NAME"), atom(c, "UTF8_STRING"), title);
    if (withPid) {
        const uint32_t pid = static_cast<uint32_t>(getpid());
        xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, atom(c, "_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &pid);
    }
    const xcb_atom_t windowType = atom(c, dock ? "_NET_WM_WINDOW_TYPE_DOCK" : "_NET_WM_WINDOW_TYPE_NORMAL");
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, atom(c, "_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &windowType);
    if (fullscreen) {
        const xcb_atom_t state = atom(c, "_NET_WM_STATE_FULLSCREEN");
        xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, atom(c, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 1, &state);
    }
    xcb_map_window(c, w);
    xcb_flush(c);
    std::printf("%u\n", w);
    std::fflush(stdout);

    pollfd fds[2] = {{xcb_get_file_descriptor(c), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    for (;;) {
        while (xcb_generic_event_t* event = xcb_poll_for_event(c))
            std::free(event);
        if (xcb_connection_has_error(c))
            break;
        if (poll(fds, 2, -1) < 0)
            break;
        if (fds[1].revents != 0) {
            char buffer[64];
            if (read(STDIN_FILENO, buffer, sizeof buffer) <= 0)
                break;
        }
    }
    xcb_disconnect(c);
    return 0;
}
