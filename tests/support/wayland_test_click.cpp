// Clicks the left button once at a point of a wlroots compositor's layout (sway), through a virtual pointer,
// as a user's mouse would: headless sways have no pointer of their own. The pointer device goes away when the
// program ends. Usage: wayland_test_click X Y WIDTH HEIGHT, the point within the layout's bounding box of that
// size (what sway maps absolute motion onto). Exit status 64 for a wrong command line, 1 when the compositor
// offers no virtual pointers.
#include "wlr-virtual-pointer-unstable-v1-client-protocol.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <linux/input-event-codes.h>
#include <unistd.h>
#include <wayland-client.h>

namespace {

zwlr_virtual_pointer_manager_v1* manager = nullptr;

void global(void*, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    if (std::strcmp(interface, zwlr_virtual_pointer_manager_v1_interface.name) == 0)
        manager = static_cast<zwlr_virtual_pointer_manager_v1*>(
            wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1));
}
void globalRemove(void*, wl_registry*, uint32_t) {}
const wl_registry_listener registryListener = {global, globalRemove};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: wayland_test_click X Y WIDTH HEIGHT\n");
        return 64;
    }
    const auto number = [&](int i) { return uint32_t(std::strtoul(argv[i], nullptr, 10)); };
    wl_display* display = wl_display_connect(nullptr);
    if (!display)
        return 1;
    wl_registry* registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registryListener, nullptr);
    wl_display_roundtrip(display);
    if (!manager) {
        std::fprintf(stderr, "wayland_test_click: the compositor offers no virtual pointer\n");
        return 1;
    }
    zwlr_virtual_pointer_v1* pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, nullptr);
    // The compositor gives the seat a pointer for the new device; clients get a moment to bind theirs before
    // the click comes.
    wl_display_roundtrip(display);
    usleep(300 * 1000);
    zwlr_virtual_pointer_v1_motion_absolute(pointer, 0, number(1), number(2), number(3), number(4));
    zwlr_virtual_pointer_v1_frame(pointer);
    wl_display_roundtrip(display);
    for (const auto state : {WL_POINTER_BUTTON_STATE_PRESSED, WL_POINTER_BUTTON_STATE_RELEASED}) {
        zwlr_virtual_pointer_v1_button(pointer, 10, BTN_LEFT, state);
        zwlr_virtual_pointer_v1_frame(pointer);
        wl_display_roundtrip(display);
    }
    zwlr_virtual_pointer_v1_destroy(pointer);
    zwlr_virtual_pointer_manager_v1_destroy(manager);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return 0;
}
