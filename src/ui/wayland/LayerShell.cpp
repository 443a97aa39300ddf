#include "LayerShell.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHash>
#include <QLoggingCategory>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <cstring>
#include <wayland-client.h>

// The generated header names a parameter "namespace".
#define namespace namespace_
#include "wlr-layer-shell-unstable-v1-client-protocol.h"
#undef namespace

Q_LOGGING_CATEGORY(lcLayerShell, "velto.ui.layershell")

using namespace Qt::Literals::StringLiterals;

namespace velto::LayerShell {

namespace {

struct Surface {
    zwlr_layer_surface_v1* layer = nullptr;
    QSize configured;
    bool hasConfigure = false;
    bool closed = false;
};

// Our own queue on Qt's connection: waiting for our configure never runs Qt's handlers out of turn.
struct Shell {
    wl_display* display = nullptr;
    wl_event_queue* queue = nullptr;
    zwlr_layer_shell_v1* shell = nullptr;
    QHash<QWindow*, Surface*> surfaces;
};

void registryGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    auto* shell = static_cast<Shell*>(data);
    if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0 && !shell->shell)
        shell->shell = static_cast<zwlr_layer_shell_v1*>(
            wl_registry_bind(registry, name, &zwlr_layer_shell_v1_interface, std::min<uint32_t>(version, 2)));
}
void registryGlobalRemove(void*, wl_registry*, uint32_t) {}
const wl_registry_listener registryListener = {registryGlobal, registryGlobalRemove};

void configure(void* data, zwlr_layer_surface_v1* layer, uint32_t serial, uint32_t width, uint32_t height)
{
    auto* surface = static_cast<Surface*>(data);
    surface->configured = QSize(int(width), int(height));
    surface->hasConfigure = true;
    zwlr_layer_surface_v1_ack_configure(layer, serial);
}
void closed(void* data, zwlr_layer_surface_v1*)
{
    static_cast<Surface*>(data)->closed = true;
}
const zwlr_layer_surface_v1_listener surfaceListener = {configure, closed};

Shell* shell()
{
    static Shell* instance = [] {
        auto* made = new Shell;
        if (!QGuiApplication::platformName().startsWith(u"wayland"_s) ||
            !qEnvironmentVariableIsSet("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT"))
            return made;
        QPlatformNativeInterface* native = QGuiApplication::platformNativeInterface();
        made->display = native ? static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display")) : nullptr;
        if (!made->display)
            return made;
        made->queue = wl_display_create_queue(made->display);
        auto* wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(made->display));
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), made->queue);
        wl_registry* registry = wl_display_get_registry(wrapper);
        wl_proxy_wrapper_destroy(wrapper);
        wl_registry_add_listener(registry, &registryListener, made);
        wl_display_roundtrip_queue(made->display, made->queue);
        wl_registry_destroy(registry);
        if (!made->shell)
            qCInfo(lcLayerShell, "The compositor has no layer shell; windows are shown as ordinary ones");
        return made;
    }();
    return instance;
}

zwlr_layer_shell_v1_layer layerOf(Layer layer)
{
    return layer == Layer::Overlay ? ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY : ZWLR_LAYER_SHELL_V1_LAYER_TOP;
}

uint32_t anchorsOf(Qt::Edges edges)
{
    uint32_t anchors = 0;
    if (edges & Qt::TopEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP;
    if (edges & Qt::BottomEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM;
    if (edges & Qt::LeftEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT;
    if (edges & Qt::RightEdge)
        anchors |= ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
    return anchors;
}

// The layer goes before the surface Qt made: Qt drops its surface when the window hides or is destroyed.
class SurfaceKeeper final : public QObject {
public:
    explicit SurfaceKeeper(QWindow* window)
        : QObject(window)
        , m_window(window)
    {
        window->installEventFilter(this);
    }
    ~SurfaceKeeper() override { release(); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool goes =
            event->type() == QEvent::Hide || (event->type() == QEvent::PlatformSurface &&
                                              static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
                                                  QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed);
        if (goes)
            release();
        return false;
    }

private:
    void release()
    {
        Shell* s = shell();
        Surface* surface = s->surfaces.take(m_window);
        if (!surface)
            return;
        zwlr_layer_surface_v1_destroy(surface->layer);
        wl_display_flush(s->display);
        delete surface;
    }

    QWindow* m_window;
};

} // namespace

bool isAvailable()
{
    return shell()->shell != nullptr;
}

bool place(QWindow* window, QScreen* screen, const Placement& placement)
{
    Shell* s = shell();
    if (!s->shell || !window || window->isVisible() || s->surfaces.contains(window))
        return false;
    window->create();
    QPlatformNativeInterface* native = QGuiApplication::platformNativeInterface();
    auto* surface = static_cast<wl_surface*>(native->nativeResourceForWindow("surface", window));
    auto* output = screen ? static_cast<wl_output*>(native->nativeResourceForScreen("output", screen)) : nullptr;
    if (!surface) {
        qCWarning(lcLayerShell, "Qt gave the window no Wayland surface; it is shown as an ordinary one");
        return false;
    }
    auto* layered = new Surface;
    layered->layer =
        zwlr_layer_shell_v1_get_layer_surface(s->shell, surface, output, layerOf(placement.layer), "velto");
    zwlr_layer_surface_v1_add_listener(layered->layer, &surfaceListener, layered);
    zwlr_layer_surface_v1_set_anchor(layered->layer, anchorsOf(placement.anchors));
    zwlr_layer_surface_v1_set_size(layered->layer, uint32_t(std::max(0, placement.size.width())),
                                   uint32_t(std::max(0, placement.size.height())));
    zwlr_layer_surface_v1_set_exclusive_zone(layered->layer, placement.exclusiveZone);
    const QMargins& m = placement.margins;
    zwlr_layer_surface_v1_set_margin(layered->layer, m.top(), m.right(), m.bottom(), m.left());
    zwlr_layer_surface_v1_set_keyboard_interactivity(layered->layer, placement.takesKeyboard ? 1 : 0);
    wl_surface_commit(surface);
    // The first configure says the size; nothing may be drawn before it.
    for (int round = 0; round < 5 && !layered->hasConfigure; ++round) {
        if (wl_display_roundtrip_queue(s->display, s->queue) < 0)
            break;
    }
    if (!layered->hasConfigure || layered->closed) {
        qCWarning(lcLayerShell, "The compositor did not place the window on its layer");
        zwlr_layer_surface_v1_destroy(layered->layer);
        delete layered;
        return false;
    }
    s->surfaces.insert(window, layered);
    new SurfaceKeeper(window);
    QSize size = layered->configured;
    if (size.width() <= 0)
        size.setWidth(placement.size.width());
    if (size.height() <= 0)
        size.setHeight(placement.size.height());
    if (screen)
        window->setGeometry(QRect(screen->geometry().topLeft(), size));
    else
        window->resize(size);
    return true;
}

bool isPlaced(QWindow* window)
{
    return shell()->surfaces.contains(window);
}

void setMargins(QWindow* window, const QMargins& margins)
{
    Shell* s = shell();
    Surface* surface = s->surfaces.value(window);
    if (!surface)
        return;
    wl_display_dispatch_queue_pending(s->display, s->queue);
    zwlr_layer_surface_v1_set_margin(surface->layer, margins.top(), margins.right(), margins.bottom(), margins.left());
    window->requestUpdate();
}

} // namespace velto::LayerShell
