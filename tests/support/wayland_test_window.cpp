// A bare Wayland client window (xdg-shell, shared-memory buffers) for tests against headless compositors: it
// names its app_id and title like any application, prints "mapped WIDTHxHEIGHT" once the compositor has its
// first frame, then "key CODE" for every key pressed while it has the keyboard focus (evdev codes), and stays
// until stdin closes, the compositor closes it, or it is killed.
// Usage: wayland_test_window [--app-id ID] [--title TEXT] [--fullscreen] [--output INDEX|NAME]
// --output picks the output to go fullscreen on, by its place in the compositor's announcements (from 0) or by
// its name (wl_output 4); xdg-shell lets a client choose an output only when fullscreen, so it needs --fullscreen.
#include "xdg-shell-client-protocol.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>
#include <wayland-client.h>

namespace {

struct Output {
    wl_output* proxy = nullptr;
    std::string name;
};

struct Window {
    wl_compositor* compositor = nullptr;
    wl_shm* shm = nullptr;
    xdg_wm_base* shell = nullptr;
    std::vector<Output> outputs;
    wl_seat* seat = nullptr;
    wl_keyboard* keyboard = nullptr;
    wl_surface* surface = nullptr;
    xdg_surface* xdgSurface = nullptr;
    xdg_toplevel* toplevel = nullptr;
    wl_buffer* buffer = nullptr;
    int bufferWidth = 0;
    int bufferHeight = 0;
    int width = 400; // what the next frame uses; a configure with a size replaces it
    int height = 300;
    int pendingWidth = 0;
    int pendingHeight = 0;
    bool configured = false;
    bool closed = false;
};

void outputName(void* data, wl_output*, const char* name)
{
    static_cast<Output*>(data)->name = name;
}

void outputGeometry(void*, wl_output*, int32_t, int32_t, int32_t, int32_t, int32_t, const char*, const char*, int32_t)
{}
void outputMode(void*, wl_output*, uint32_t, int32_t, int32_t, int32_t) {}
void outputDone(void*, wl_output*) {}
void outputScale(void*, wl_output*, int32_t) {}
void outputDescription(void*, wl_output*, const char*) {}
const wl_output_listener outputListener = {outputGeometry, outputMode, outputDone,
                                           outputScale,    outputName, outputDescription};

void keymap(void*, wl_keyboard*, uint32_t, int32_t fd, uint32_t)
{
    close(fd);
}
void enter(void*, wl_keyboard*, uint32_t, wl_surface*, wl_array*) {}
void leave(void*, wl_keyboard*, uint32_t, wl_surface*) {}
void key(void*, wl_keyboard*, uint32_t, uint32_t, uint32_t code, uint32_t state)
{
    if (state == WL_KEYBOARD_KEY_STATE_PRESSED) {
        std::printf("key %u\n", code);
        std::fflush(stdout);
    }
}
void modifiers(void*, wl_keyboard*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t) {}
void repeatInfo(void*, wl_keyboard*, int32_t, int32_t) {}
const wl_keyboard_listener keyboardListener = {keymap, enter, leave, key, modifiers, repeatInfo};

void seatCapabilities(void* data, wl_seat* seat, uint32_t capabilities)
{
    auto* window = static_cast<Window*>(data);
    if ((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0 && !window->keyboard) {
        window->keyboard = wl_seat_get_keyboard(seat);
        wl_keyboard_add_listener(window->keyboard, &keyboardListener, window);
    }
}
void seatName(void*, wl_seat*, const char*) {}
const wl_seat_listener seatListener = {seatCapabilities, seatName};

void ping(void*, xdg_wm_base* shell, uint32_t serial)
{
    xdg_wm_base_pong(shell, serial);
}
const xdg_wm_base_listener shellListener = {ping};

void global(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    auto* window = static_cast<Window*>(data);
    if (std::strcmp(interface, wl_compositor_interface.name) == 0) {
        window->compositor = static_cast<wl_compositor*>(wl_registry_bind(registry, name, &wl_compositor_interface, 1));
    } else if (std::strcmp(interface, wl_shm_interface.name) == 0) {
        window->shm = static_cast<wl_shm*>(wl_registry_bind(registry, name, &wl_shm_interface, 1));
    } else if (std::strcmp(interface, xdg_wm_base_interface.name) == 0) {
        window->shell = static_cast<xdg_wm_base*>(wl_registry_bind(registry, name, &xdg_wm_base_interface, 1));
        xdg_wm_base_add_listener(window->shell, &shellListener, window);
    } else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !window->seat) {
        window->seat =
            static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, std::min(version, 4u)));
        wl_seat_add_listener(window->seat, &seatListener, window);
    } else if (std::strcmp(interface, wl_output_interface.name) == 0) {
        // Outputs are only listed here; the listener is added once the vector stops moving.
        const uint32_t bound = version < 4 ? version : 4;
        window->outputs.push_back(
            {static_cast<wl_output*>(wl_registry_bind(registry, name, &wl_output_interface, bound)), {}});
    }
}
void globalRemove(void*, wl_registry*, uint32_t) {}
const wl_registry_listener registryListener = {global, globalRemove};

void toplevelConfigure(void* data, xdg_toplevel*, int32_t width, int32_t height, wl_array*)
{
    auto* window = static_cast<Window*>(data);
    window->pendingWidth = width;
    window->pendingHeight = height;
}

void toplevelClose(void* data, xdg_toplevel*)
{
    static_cast<Window*>(data)->closed = true;
}
void toplevelBounds(void*, xdg_toplevel*, int32_t, int32_t) {}
void toplevelCapabilities(void*, xdg_toplevel*, wl_array*) {}
const xdg_toplevel_listener toplevelListener = {toplevelConfigure, toplevelClose, toplevelBounds, toplevelCapabilities};

// A solid buffer of the window's size, in a memfd: nothing else the test needs to see is drawn.
wl_buffer* createBuffer(wl_shm* shm, int width, int height)
{
    const int stride = width * 4;
    const size_t size = size_t(stride) * size_t(height);
    const int fd = memfd_create("wayland_test_window", MFD_CLOEXEC);
    if (fd < 0 || ftruncate(fd, off_t(size)) < 0)
        return nullptr;
    void* pixels = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
    if (pixels == MAP_FAILED) {
        close(fd);
        return nullptr;
    }
    auto* words = static_cast<uint32_t*>(pixels);
    std::fill(words, words + size / 4, 0xff3a7bd5u);
    munmap(pixels, size);
    wl_shm_pool* pool = wl_shm_create_pool(shm, fd, int32_t(size));
    wl_buffer* buffer = wl_shm_pool_create_buffer(pool, 0, width, height, stride, WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    close(fd);
    return buffer;
}

bool draw(Window& window)
{
    if (!window.buffer || window.bufferWidth != window.width || window.bufferHeight != window.height) {
        if (window.buffer)
            wl_buffer_destroy(window.buffer);
        window.buffer = createBuffer(window.shm, window.width, window.height);
        if (!window.buffer)
            return false;
        window.bufferWidth = window.width;
        window.bufferHeight = window.height;
    }
    wl_surface_attach(window.surface, window.buffer, 0, 0);
    wl_surface_damage(window.surface, 0, 0, window.width, window.height);
    wl_surface_commit(window.surface);
    return true;
}

void surfaceConfigure(void* data, xdg_surface* surface, uint32_t serial)
{
    auto* window = static_cast<Window*>(data);
    if (window->pendingWidth > 0 && window->pendingHeight > 0) {
        window->width = window->pendingWidth;
        window->height = window->pendingHeight;
    }
    xdg_surface_ack_configure(surface, serial);
    window->configured = true;
    draw(*window);
}
const xdg_surface_listener surfaceListener = {surfaceConfigure};

// Exit status 64 for a wrong command line, 1 for a compositor that cannot show the window.
int fail(int status, const std::string& message)
{
    std::fprintf(stderr, "wayland_test_window: %s\n", message.c_str());
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    std::string appId = "org.velto.TestWindow";
    std::string title = "Test window";
    std::string outputArgument;
    bool fullscreen = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool hasValue = i + 1 < argc;
        if (argument == "--app-id" && hasValue) {
            appId = argv[++i];
        } else if (argument == "--title" && hasValue) {
            title = argv[++i];
        } else if (argument == "--output" && hasValue) {
            outputArgument = argv[++i];
        } else if (argument == "--fullscreen") {
            fullscreen = true;
        } else {
            return fail(64, "unknown argument " + argument);
        }
    }
    if (!outputArgument.empty() && !fullscreen)
        return fail(64, "--output needs --fullscreen");

    wl_display* display = wl_display_connect(nullptr);
    if (!display)
        return fail(1, "cannot connect to the Wayland display");
    Window window;
    wl_registry* registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registryListener, &window);
    wl_display_roundtrip(display);
    if (!window.compositor || !window.shm || !window.shell)
        return fail(1, "the compositor lacks wl_compositor, wl_shm or xdg_wm_base");
    for (Output& output : window.outputs)
        wl_output_add_listener(output.proxy, &outputListener, &output);
    wl_display_roundtrip(display);

    wl_output* target = nullptr;
    if (!outputArgument.empty()) {
        char* end = nullptr;
        const long index = std::strtol(outputArgument.c_str(), &end, 10);
        for (size_t i = 0; i < window.outputs.size() && !target; ++i) {
            if (*end == '\0' ? long(i) == index : window.outputs[i].name == outputArgument)
                target = window.outputs[i].proxy;
        }
        if (!target)
            return fail(1, "no output " + outputArgument);
    }

    window.surface = wl_compositor_create_surface(window.compositor);
    window.xdgSurface = xdg_wm_base_get_xdg_surface(window.shell, window.surface);
    xdg_surface_add_listener(window.xdgSurface, &surfaceListener, &window);
    window.toplevel = xdg_surface_get_toplevel(window.xdgSurface);
    xdg_toplevel_add_listener(window.toplevel, &toplevelListener, &window);
    xdg_toplevel_set_app_id(window.toplevel, appId.c_str());
    xdg_toplevel_set_title(window.toplevel, title.c_str());
    // Asked before the first commit, so the window is mapped already fullscreen and never shows elsewhere.
    if (fullscreen)
        xdg_toplevel_set_fullscreen(window.toplevel, target);
    wl_surface_commit(window.surface);

    while (!window.configured && !window.closed) {
        if (wl_display_dispatch(display) < 0)
            return 1;
    }
    // The round trip returns once the compositor has handled the commit with the first buffer: mapped.
    if (!window.buffer || wl_display_roundtrip(display) < 0)
        return 1;
    std::printf("mapped %dx%d\n", window.width, window.height);
    std::fflush(stdout);

    pollfd fds[2] = {{wl_display_get_fd(display), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    int status = 0;
    while (!window.closed) {
        if (wl_display_flush(display) < 0 && errno != EAGAIN) {
            status = 1;
            break;
        }
        if (poll(fds, 2, -1) < 0 && errno != EINTR)
            break;
        if (fds[0].revents != 0 && wl_display_dispatch(display) < 0) {
            status = 1;
            break;
        }
        if (fds[1].revents != 0) {
            char buffer[64];
            if (read(STDIN_FILENO, buffer, sizeof buffer) <= 0)
                break;
        }
    }
    if (window.buffer)
        wl_buffer_destroy(window.buffer);
    xdg_toplevel_destroy(window.toplevel);
    xdg_surface_destroy(window.xdgSurface);
    wl_surface_destroy(window.surface);
    wl_display_disconnect(display);
    return status;
}
