#include "WaylandLink.h"

#include "detection/LogOnce.h"
#include "ext-idle-notify-v1-client-protocol.h"
#include "idle-client-protocol.h"
#include "plasma-window-management-client-protocol.h"
#include "wlr-foreign-toplevel-management-unstable-v1-client-protocol.h"
#include "xdg-output-unstable-v1-client-protocol.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHash>
#include <QMutex>
#include <QWaitCondition>

#include <cerrno>
#include <cstring>
#include <map>
#include <poll.h>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <wayland-client.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

struct Output {
    wl_output* output = nullptr;
    zxdg_output_v1* xdgOutput = nullptr;
    quint32 globalName = 0;
    QString name;
    QPoint position;
    QSize modeSize;
    int scale = 1;
    std::optional<QRect> logical;

    [[nodiscard]] QRect geometry() const
    {
        if (logical)
            return *logical;
        return {position, scale > 0 ? modeSize / scale : modeSize};
    }
};

// A toplevel as its events arrive; wlroots sends changes as a batch closed by "done".
struct Toplevel {
    WaylandToplevel current;
    WaylandToplevel pending;
    QList<wl_output*> outputs;
    QRect geometry; // KDE's windows tell their place instead of their output
    bool mapped = false;
};

int outputIndexFor(const std::vector<std::unique_ptr<Output>>& outputs, const QList<wl_output*>& entered,
                   const QRect& geometry)
{
    for (size_t i = 0; i < outputs.size(); ++i) {
        if (!entered.isEmpty() && entered.constFirst() == outputs[i]->output)
            return int(i);
    }
    if (geometry.isValid()) {
        for (size_t i = 0; i < outputs.size(); ++i) {
            if (outputs[i]->geometry().contains(geometry.center()))
                return int(i);
        }
    }
    return -1;
}

} // namespace

struct WaylandLink::State {
    QByteArray displayName;
    wl_display* display = nullptr;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zxdg_output_manager_v1* xdgOutputManager = nullptr;
    zwlr_foreign_toplevel_manager_v1* wlrManager = nullptr;
    org_kde_plasma_window_management* plasmaManager = nullptr;
    quint32 plasmaVersion = 0;
    ext_idle_notifier_v1* idleNotifier = nullptr;
    org_kde_kwin_idle* kdeIdle = nullptr;
    ext_idle_notification_v1* idleNotification = nullptr;
    org_kde_kwin_idle_timeout* kdeIdleTimeout = nullptr;
    std::vector<std::unique_ptr<Output>> outputs;
    std::map<void*, std::unique_ptr<Toplevel>> toplevelObjects; // by protocol object, in no useful order
    QList<void*> toplevelOrder;
    QHash<QString, qint32> standInPids;
    // KDE's windows send plain changes with no closing event, so they are taken as they come.
    bool takeChangesAsTheyCome = false;
    bool dirty = false;

    int wakeFd = -1;
    std::thread thread;

    LogOnce log;
    mutable QMutex mutex;
    mutable QWaitCondition readyChanged;
    // Guarded by the mutex: what the other threads read.
    bool ready = false;
    bool failed = false;
    bool connected = false;
    Toplevels toplevelProtocol = Toplevels::None;
    Idle idleProtocol = Idle::None;
    WaylandFacts facts;
    bool inputIdle = false;
    QElapsedTimer idleSince;
    quint64 wakeUps = 0;
    std::function<void()> onReady;

    void run();
    bool setUp();
    void tearDown();
    void publish();
    void fail(const QString& why);
    qint32 standInPid(const QString& appId);
    void removeToplevel(void* object);
    void setIdle(bool idle);
};

namespace {

// --- outputs ---

void outputGeometry(void* data, wl_output*, int32_t x, int32_t y, int32_t, int32_t, int32_t, const char*, const char*,
                    int32_t)
{
    static_cast<Output*>(data)->position = {x, y};
}
void outputMode(void* data, wl_output*, uint32_t flags, int32_t width, int32_t height, int32_t)
{
    if (flags & WL_OUTPUT_MODE_CURRENT)
        static_cast<Output*>(data)->modeSize = {width, height};
}
void outputDone(void*, wl_output*) {}
void outputScale(void* data, wl_output*, int32_t factor)
{
    static_cast<Output*>(data)->scale = factor;
}
void outputName(void* data, wl_output*, const char* name)
{
    static_cast<Output*>(data)->name = QString::fromUtf8(name);
}
void outputDescription(void*, wl_output*, const char*) {}
const wl_output_listener outputListener = {outputGeometry, outputMode, outputDone,
                                           outputScale,    outputName, outputDescription};

void xdgOutputPosition(void* data, zxdg_output_v1*, int32_t x, int32_t y)
{
    auto* output = static_cast<Output*>(data);
    output->logical = QRect(QPoint(x, y), output->logical.value_or(QRect()).size());
}
void xdgOutputSize(void* data, zxdg_output_v1*, int32_t width, int32_t height)
{
    auto* output = static_cast<Output*>(data);
    output->logical = QRect(output->logical.value_or(QRect()).topLeft(), QSize(width, height));
}
void xdgOutputDone(void*, zxdg_output_v1*) {}
void xdgOutputName(void* data, zxdg_output_v1*, const char* name)
{
    auto* output = static_cast<Output*>(data);
    if (output->name.isEmpty())
        output->name = QString::fromUtf8(name);
}
void xdgOutputDescription(void*, zxdg_output_v1*, const char*) {}
const zxdg_output_v1_listener xdgOutputListener = {xdgOutputPosition, xdgOutputSize, xdgOutputDone, xdgOutputName,
                                                   xdgOutputDescription};

// --- wlroots foreign toplevels ---

using State = WaylandLink::State;

struct HandleContext {
    State* state;
};

Toplevel* toplevelOf(State* state, void* object)
{
    const auto found = state->toplevelObjects.find(object);
    return found == state->toplevelObjects.end() ? nullptr : found->second.get();
}

void wlrTitle(void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* title)
{
    if (Toplevel* t = toplevelOf(static_cast<State*>(data), handle))
        t->pending.title = QString::fromUtf8(title);
}
void wlrAppId(void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* appId)
{
    if (Toplevel* t = toplevelOf(static_cast<State*>(data), handle))
        t->pending.appId = QString::fromUtf8(appId);
}
void wlrOutputEnter(void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_output* output)
{
    if (Toplevel* t = toplevelOf(static_cast<State*>(data), handle)) {
        t->outputs.removeAll(output);
        t->outputs.append(output);
    }
}
void wlrOutputLeave(void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_output* output)
{
    if (Toplevel* t = toplevelOf(static_cast<State*>(data), handle))
        t->outputs.removeAll(output);
}
void wlrState(void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_array* states)
{
    Toplevel* t = toplevelOf(static_cast<State*>(data), handle);
    if (!t)
        return;
    t->pending.activated = t->pending.fullscreen = t->pending.minimized = false;
    const auto* begin = static_cast<const uint32_t*>(states->data);
    for (size_t i = 0; i < states->size / sizeof(uint32_t); ++i) {
        switch (begin[i]) {
        case ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED:
            t->pending.activated = true;
            break;
        case ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_FULLSCREEN:
            t->pending.fullscreen = true;
            break;
        case ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_MINIMIZED:
            t->pending.minimized = true;
            break;
        default:
            break;
        }
    }
}
void wlrDone(void* data, zwlr_foreign_toplevel_handle_v1* handle)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, handle)) {
        t->current = t->pending;
        t->mapped = true;
        state->dirty = true;
    }
}
void wlrClosed(void* data, zwlr_foreign_toplevel_handle_v1* handle)
{
    static_cast<State*>(data)->removeToplevel(handle);
    zwlr_foreign_toplevel_handle_v1_destroy(handle);
}
void wlrParent(void*, zwlr_foreign_toplevel_handle_v1*, zwlr_foreign_toplevel_handle_v1*) {}
const zwlr_foreign_toplevel_handle_v1_listener wlrHandleListener = {wlrTitle, wlrAppId, wlrOutputEnter, wlrOutputLeave,
                                                                    wlrState, wlrDone,  wlrClosed,      wlrParent};

void wlrToplevel(void* data, zwlr_foreign_toplevel_manager_v1*, zwlr_foreign_toplevel_handle_v1* handle)
{
    auto* state = static_cast<State*>(data);
    state->toplevelObjects.emplace(handle, std::make_unique<Toplevel>());
    state->toplevelOrder.append(handle);
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &wlrHandleListener, state);
}
void wlrFinished(void* data, zwlr_foreign_toplevel_manager_v1* manager)
{
    auto* state = static_cast<State*>(data);
    if (state->wlrManager == manager) {
        zwlr_foreign_toplevel_manager_v1_destroy(manager);
        state->wlrManager = nullptr;
    }
}
const zwlr_foreign_toplevel_manager_v1_listener wlrManagerListener = {wlrToplevel, wlrFinished};

// --- KDE plasma windows ---

void plasmaTitle(void* data, org_kde_plasma_window* window, const char* title)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->pending.title = QString::fromUtf8(title);
        state->dirty = true;
    }
}
void plasmaAppId(void* data, org_kde_plasma_window* window, const char* appId)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->pending.appId = QString::fromUtf8(appId);
        state->dirty = true;
    }
}
void plasmaState(void* data, org_kde_plasma_window* window, uint32_t flags)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->pending.activated = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE;
        t->pending.minimized = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_MINIMIZED;
        t->pending.fullscreen = flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_FULLSCREEN;
        state->dirty = true;
    }
}
void plasmaVirtualDesktop(void*, org_kde_plasma_window*, int32_t) {}
void plasmaIconName(void*, org_kde_plasma_window*, const char*) {}
void plasmaUnmapped(void* data, org_kde_plasma_window* window)
{
    static_cast<State*>(data)->removeToplevel(window);
    org_kde_plasma_window_destroy(window);
}
void plasmaInitialState(void* data, org_kde_plasma_window* window)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->mapped = true;
        state->dirty = true;
    }
}
void plasmaParent(void*, org_kde_plasma_window*, org_kde_plasma_window*) {}
void plasmaGeometry(void* data, org_kde_plasma_window* window, int32_t x, int32_t y, uint32_t width, uint32_t height)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->geometry = QRect(x, y, int(width), int(height));
        state->dirty = true;
    }
}
void plasmaIconChanged(void*, org_kde_plasma_window*) {}
void plasmaPid(void* data, org_kde_plasma_window* window, uint32_t pid)
{
    auto* state = static_cast<State*>(data);
    if (Toplevel* t = toplevelOf(state, window)) {
        t->pending.pid = qint32(pid);
        state->dirty = true;
    }
}
void plasmaDesktopEntered(void*, org_kde_plasma_window*, const char*) {}
void plasmaDesktopLeft(void*, org_kde_plasma_window*, const char*) {}
void plasmaApplicationMenu(void*, org_kde_plasma_window*, const char*, const char*) {}
void plasmaActivityEntered(void*, org_kde_plasma_window*, const char*) {}
void plasmaActivityLeft(void*, org_kde_plasma_window*, const char*) {}
void plasmaResourceName(void*, org_kde_plasma_window*, const char*) {}
const org_kde_plasma_window_listener plasmaWindowListener = {
    plasmaTitle,        plasmaAppId,          plasmaState,       plasmaVirtualDesktop,  plasmaIconName,
    plasmaUnmapped,     plasmaInitialState,   plasmaParent,      plasmaGeometry,        plasmaIconChanged,
    plasmaPid,          plasmaDesktopEntered, plasmaDesktopLeft, plasmaApplicationMenu, plasmaActivityEntered,
    plasmaActivityLeft, plasmaResourceName,
};

void addPlasmaWindow(State* state, org_kde_plasma_window* window)
{
    state->toplevelObjects.emplace(window, std::make_unique<Toplevel>());
    state->toplevelOrder.append(window);
    org_kde_plasma_window_add_listener(window, &plasmaWindowListener, state);
}
void plasmaShowDesktop(void*, org_kde_plasma_window_management*, uint32_t) {}
void plasmaWindow(void* data, org_kde_plasma_window_management* manager, uint32_t id)
{
    auto* state = static_cast<State*>(data);
    // Newer compositors announce each window twice; the uuid form is the one to follow there.
    if (state->plasmaVersion < ORG_KDE_PLASMA_WINDOW_MANAGEMENT_WINDOW_WITH_UUID_SINCE_VERSION)
        addPlasmaWindow(state, org_kde_plasma_window_management_get_window(manager, id));
}
void plasmaStackingOrder(void*, org_kde_plasma_window_management*, wl_array*) {}
void plasmaStackingOrderUuid(void*, org_kde_plasma_window_management*, const char*) {}
void plasmaWindowWithUuid(void* data, org_kde_plasma_window_management* manager, uint32_t, const char* uuid)
{
    addPlasmaWindow(static_cast<State*>(data), org_kde_plasma_window_management_get_window_by_uuid(manager, uuid));
}
const org_kde_plasma_window_management_listener plasmaManagerListener = {
    plasmaShowDesktop, plasmaWindow, plasmaStackingOrder, plasmaStackingOrderUuid, plasmaWindowWithUuid};

// --- idle ---

void extIdled(void* data, ext_idle_notification_v1*)
{
    static_cast<State*>(data)->setIdle(true);
}
void extResumed(void* data, ext_idle_notification_v1*)
{
    static_cast<State*>(data)->setIdle(false);
}
const ext_idle_notification_v1_listener extIdleListener = {extIdled, extResumed};

void kdeIdled(void* data, org_kde_kwin_idle_timeout*)
{
    static_cast<State*>(data)->setIdle(true);
}
void kdeResumed(void* data, org_kde_kwin_idle_timeout*)
{
    static_cast<State*>(data)->setIdle(false);
}
const org_kde_kwin_idle_timeout_listener kdeIdleListener = {kdeIdled, kdeResumed};

// --- registry ---

void registryGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t version)
{
    auto* state = static_cast<State*>(data);
    const auto is = [interface](const wl_interface& candidate) { return std::strcmp(interface, candidate.name) == 0; };
    const auto bind = [&](const wl_interface& candidate, uint32_t highest) {
        return wl_registry_bind(registry, name, &candidate, std::min(version, highest));
    };
    if (is(wl_output_interface)) {
        auto output = std::make_unique<Output>();
        output->globalName = name;
        output->output = static_cast<wl_output*>(bind(wl_output_interface, 4));
        wl_output_add_listener(output->output, &outputListener, output.get());
        if (state->xdgOutputManager) {
            output->xdgOutput = zxdg_output_manager_v1_get_xdg_output(state->xdgOutputManager, output->output);
            zxdg_output_v1_add_listener(output->xdgOutput, &xdgOutputListener, output.get());
        }
        state->outputs.push_back(std::move(output));
        state->dirty = true;
    } else if (is(zxdg_output_manager_v1_interface)) {
        state->xdgOutputManager = static_cast<zxdg_output_manager_v1*>(bind(zxdg_output_manager_v1_interface, 3));
    } else if (is(wl_seat_interface) && !state->seat) {
        state->seat = static_cast<wl_seat*>(bind(wl_seat_interface, 1));
    } else if (is(zwlr_foreign_toplevel_manager_v1_interface) && !state->wlrManager) {
        state->wlrManager =
            static_cast<zwlr_foreign_toplevel_manager_v1*>(bind(zwlr_foreign_toplevel_manager_v1_interface, 3));
    } else if (is(org_kde_plasma_window_management_interface) && !state->plasmaManager) {
        state->plasmaVersion = std::min<uint32_t>(version, 16);
        state->plasmaManager =
            static_cast<org_kde_plasma_window_management*>(bind(org_kde_plasma_window_management_interface, 16));
    } else if (is(ext_idle_notifier_v1_interface) && !state->idleNotifier) {
        state->idleNotifier = static_cast<ext_idle_notifier_v1*>(bind(ext_idle_notifier_v1_interface, 1));
    } else if (is(org_kde_kwin_idle_interface) && !state->kdeIdle) {
        state->kdeIdle = static_cast<org_kde_kwin_idle*>(bind(org_kde_kwin_idle_interface, 1));
    }
}

void registryGlobalRemove(void* data, wl_registry*, uint32_t name)
{
    auto* state = static_cast<State*>(data);
    auto& outputs = state->outputs;
    for (auto it = outputs.begin(); it != outputs.end(); ++it) {
        if ((*it)->globalName != name)
            continue;
        for (auto& [object, toplevel] : state->toplevelObjects)
            toplevel->outputs.removeAll((*it)->output);
        if ((*it)->xdgOutput)
            zxdg_output_v1_destroy((*it)->xdgOutput);
        wl_output_destroy((*it)->output);
        outputs.erase(it);
        state->dirty = true;
        return;
    }
}
const wl_registry_listener registryListener = {registryGlobal, registryGlobalRemove};

} // namespace

qint32 WaylandLink::State::standInPid(const QString& appId)
{
    auto found = standInPids.constFind(appId);
    if (found == standInPids.constEnd())
        found = standInPids.insert(appId, -qint32(standInPids.size() + 1));
    return *found;
}

void WaylandLink::State::removeToplevel(void* object)
{
    toplevelObjects.erase(object);
    toplevelOrder.removeAll(object);
    dirty = true;
}

void WaylandLink::State::setIdle(bool idle)
{
    QMutexLocker lock(&mutex);
    inputIdle = idle;
    if (idle)
        idleSince.start();
}

void WaylandLink::State::publish()
{
    WaylandFacts next;
    for (const auto& output : outputs)
        next.outputs.append({output->name, output->geometry()});
    for (void* object : std::as_const(toplevelOrder)) {
        Toplevel& t = *toplevelObjects.at(object);
        if (!t.mapped)
            continue;
        if (takeChangesAsTheyCome)
            t.current = t.pending;
        WaylandToplevel toplevel = t.current;
        if (toplevel.pid <= 0)
            toplevel.pid = standInPid(toplevel.appId);
        toplevel.output = outputIndexFor(outputs, t.outputs, t.geometry);
        next.toplevels.append(toplevel);
    }
    QMutexLocker lock(&mutex);
    facts = std::move(next);
    dirty = false;
}

void WaylandLink::State::fail(const QString& why)
{
    log.warn(u"wayland-gone"_s, why);
    QMutexLocker lock(&mutex);
    failed = true;
    connected = false;
    facts = {};
    inputIdle = false;
    readyChanged.wakeAll();
}

bool WaylandLink::State::setUp()
{
    display = wl_display_connect(displayName.isEmpty() ? nullptr : displayName.constData());
    if (!display) {
        fail(u"No Wayland compositor to connect to; Smart Pause sees no Wayland windows"_s);
        return false;
    }
    registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registryListener, this);
    // The first round binds the globals; the second brings each output's and toplevel's first state.
    if (wl_display_roundtrip(display) < 0) {
        fail(u"The Wayland compositor did not answer"_s);
        return false;
    }
    if (xdgOutputManager) {
        for (auto& output : outputs) {
            if (!output->xdgOutput) {
                output->xdgOutput = zxdg_output_manager_v1_get_xdg_output(xdgOutputManager, output->output);
                zxdg_output_v1_add_listener(output->xdgOutput, &xdgOutputListener, output.get());
            }
        }
    }
    Toplevels toplevelSource = Toplevels::None;
    if (wlrManager) {
        zwlr_foreign_toplevel_manager_v1_add_listener(wlrManager, &wlrManagerListener, this);
        toplevelSource = Toplevels::WlrForeignToplevel;
    } else if (plasmaManager) {
        org_kde_plasma_window_management_add_listener(plasmaManager, &plasmaManagerListener, this);
        takeChangesAsTheyCome = true;
        toplevelSource = Toplevels::PlasmaWindowManagement;
    }
    Idle idleSource = Idle::None;
    if (seat && idleNotifier) {
        idleNotification = ext_idle_notifier_v1_get_idle_notification(idleNotifier, activityWindowMs, seat);
        ext_idle_notification_v1_add_listener(idleNotification, &extIdleListener, this);
        idleSource = Idle::ExtIdleNotify;
    } else if (seat && kdeIdle) {
        kdeIdleTimeout = org_kde_kwin_idle_get_idle_timeout(kdeIdle, seat, activityWindowMs);
        org_kde_kwin_idle_timeout_add_listener(kdeIdleTimeout, &kdeIdleListener, this);
        idleSource = Idle::KdeIdle;
    }
    // Plasma windows announce themselves in one round and tell their state in the next.
    for (int round = 0; round < 2; ++round) {
        if (wl_display_roundtrip(display) < 0) {
            fail(u"The Wayland compositor did not answer"_s);
            return false;
        }
    }
    publish();
    std::function<void()> callback;
    {
        QMutexLocker lock(&mutex);
        toplevelProtocol = toplevelSource;
        idleProtocol = idleSource;
        connected = true;
        ready = true;
        readyChanged.wakeAll();
        callback = std::move(onReady);
    }
    if (callback)
        callback();
    return true;
}

void WaylandLink::State::run()
{
    if (!setUp())
        return;
    const int fd = wl_display_get_fd(display);
    for (;;) {
        while (wl_display_prepare_read(display) != 0) {
            if (wl_display_dispatch_pending(display) < 0) {
                fail(u"The Wayland connection broke: %1"_s.arg(QString::fromLocal8Bit(std::strerror(errno))));
                return;
            }
        }
        wl_display_flush(display);
        pollfd fds[2] = {{fd, POLLIN, 0}, {wakeFd, POLLIN, 0}};
        if (poll(fds, 2, -1) < 0 && errno != EINTR) {
            wl_display_cancel_read(display);
            fail(u"Waiting for the Wayland compositor failed"_s);
            return;
        }
        if (fds[1].revents & POLLIN) {
            wl_display_cancel_read(display);
            return;
        }
        {
            QMutexLocker lock(&mutex);
            ++wakeUps;
        }
        if (fds[0].revents & POLLIN) {
            if (wl_display_read_events(display) < 0) {
                fail(u"The Wayland compositor went away; Smart Pause no longer sees its windows"_s);
                return;
            }
        } else {
            wl_display_cancel_read(display);
            if (fds[0].revents & (POLLERR | POLLHUP)) {
                fail(u"The Wayland compositor went away; Smart Pause no longer sees its windows"_s);
                return;
            }
        }
        if (wl_display_dispatch_pending(display) < 0) {
            fail(u"The Wayland compositor went away; Smart Pause no longer sees its windows"_s);
            return;
        }
        if (dirty)
            publish();
    }
}

void WaylandLink::State::tearDown()
{
    if (!display)
        return;
    // Everything we made goes with the connection; the compositor drops its side when the socket closes.
    for (auto& [object, toplevel] : toplevelObjects)
        wl_proxy_destroy(static_cast<wl_proxy*>(object));
    toplevelObjects.clear();
    for (auto& output : outputs) {
        if (output->xdgOutput)
            zxdg_output_v1_destroy(output->xdgOutput);
        wl_output_destroy(output->output);
    }
    outputs.clear();
    for (void* proxy :
         {static_cast<void*>(idleNotification), static_cast<void*>(kdeIdleTimeout), static_cast<void*>(idleNotifier),
          static_cast<void*>(kdeIdle), static_cast<void*>(wlrManager), static_cast<void*>(plasmaManager),
          static_cast<void*>(xdgOutputManager), static_cast<void*>(seat), static_cast<void*>(registry)}) {
        if (proxy)
            wl_proxy_destroy(static_cast<wl_proxy*>(proxy));
    }
    wl_display_disconnect(display);
    display = nullptr;
}

WaylandLink::WaylandLink()
    : m_state(std::make_unique<State>())
{}

WaylandLink::~WaylandLink()
{
    const quint64 one = 1;
    if (write(m_state->wakeFd, &one, sizeof one) < 0)
        qCWarning(lcSystemProbes) << "Could not wake the Wayland thread to stop it";
    if (m_state->thread.joinable())
        m_state->thread.join();
    m_state->tearDown();
    close(m_state->wakeFd);
}

std::shared_ptr<WaylandLink> WaylandLink::connect(const QByteArray& display)
{
    QByteArray name = display;
    if (name.isEmpty())
        name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return nullptr;
    std::shared_ptr<WaylandLink> link(new WaylandLink());
    link->m_state->displayName = name;
    link->m_state->wakeFd = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (link->m_state->wakeFd < 0)
        return nullptr;
    State* state = link->m_state.get();
    link->m_state->thread = std::thread([state] { state->run(); });
    return link;
}

bool WaylandLink::waitUntilReady(int milliseconds) const
{
    QMutexLocker lock(&m_state->mutex);
    const QDeadlineTimer deadline(milliseconds);
    while (!m_state->ready && !m_state->failed) {
        if (!m_state->readyChanged.wait(&m_state->mutex, deadline))
            break;
    }
    return m_state->ready && !m_state->failed;
}

void WaylandLink::whenReady(std::function<void()> callback)
{
    {
        QMutexLocker lock(&m_state->mutex);
        if (!m_state->ready) {
            if (!m_state->failed)
                m_state->onReady = std::move(callback);
            return;
        }
    }
    callback();
}

bool WaylandLink::isConnected() const
{
    QMutexLocker lock(&m_state->mutex);
    return m_state->connected;
}

WaylandLink::Toplevels WaylandLink::toplevels() const
{
    QMutexLocker lock(&m_state->mutex);
    return m_state->connected ? m_state->toplevelProtocol : Toplevels::None;
}

WaylandLink::Idle WaylandLink::idle() const
{
    QMutexLocker lock(&m_state->mutex);
    return m_state->connected ? m_state->idleProtocol : Idle::None;
}

WaylandFacts WaylandLink::facts() const
{
    QMutexLocker lock(&m_state->mutex);
    return m_state->facts;
}

std::optional<double> WaylandLink::secondsSinceLastInput() const
{
    QMutexLocker lock(&m_state->mutex);
    if (!m_state->connected || m_state->idleProtocol == Idle::None)
        return std::nullopt;
    if (!m_state->inputIdle)
        return 0.0;
    return (activityWindowMs + m_state->idleSince.elapsed()) / 1000.0;
}

QStringList WaylandLink::announcedInterfaces(const QByteArray& display)
{
    wl_display* connection = wl_display_connect(display.isEmpty() ? nullptr : display.constData());
    if (!connection)
        return {};
    QStringList interfaces;
    static const wl_registry_listener listener = {
        [](void* data, wl_registry*, uint32_t, const char* interface, uint32_t) {
            static_cast<QStringList*>(data)->append(QString::fromUtf8(interface));
        },
        [](void*, wl_registry*, uint32_t) {}};
    wl_registry* registry = wl_display_get_registry(connection);
    wl_registry_add_listener(registry, &listener, &interfaces);
    if (wl_display_roundtrip(connection) < 0)
        interfaces.clear();
    wl_registry_destroy(registry);
    wl_display_disconnect(connection);
    return interfaces;
}

quint64 WaylandLink::wakeUps() const
{
    QMutexLocker lock(&m_state->mutex);
    return m_state->wakeUps;
}

} // namespace velto
