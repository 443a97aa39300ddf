#include "PipeWireCapture.h"

#include "detection/KnownApplications.h"

#include <QFileInfo>

#include <chrono>
#include <mutex>
#include <pipewire/impl.h>
#include <pipewire/pipewire.h>
#include <spa/utils/dict.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

// Processes that publish a captured screen as a video source.
bool namesScreenCaster(const QString& text)
{
    static const QStringList markers{u"screencast"_s,         u"screen-cast"_s, u"screen_cast"_s, u"xdpw"_s,
                                     u"xdg-desktop-portal"_s, u"kwin"_s,        u"mutter"_s,      u"gnome-shell"_s};
    const QString lower = text.toLower();
    return std::any_of(markers.cbegin(), markers.cend(), [&](const QString& m) { return lower.contains(m); });
}

bool isKnownRecorder(const QString& name)
{
    if (name.isEmpty())
        return false;
    static const QStringList extra{u"wf-recorder"_s, u"gpu-screen-recorder"_s, u"obs-studio"_s};
    const QString lower = name.toLower();
    if (extra.contains(lower))
        return true;
    const QSet<QString>& recorders = KnownApplications::screenRecorderBundleIdentifiers();
    return std::any_of(recorders.cbegin(), recorders.cend(),
                       [&](const QString& id) { return id.compare(lower, Qt::CaseInsensitive) == 0; });
}

QString dictValue(const spa_dict* props, const char* key)
{
    const char* value = props ? spa_dict_lookup(props, key) : nullptr;
    return value ? QString::fromUtf8(value) : QString();
}

} // namespace

// A connection kept open between passes with the registry bound: the server sends each node as it appears
// and goes, and those messages simply wait on the socket until the next pass reads them, so a pass makes
// no round trip and no thread of ours wakes in between. Only the first read waits, for the initial list.
class PipeWireCapture::Watch final {
public:
    explicit Watch(const QString& remoteName)
    {
        static std::once_flag initialised;
        std::call_once(initialised, [] {
            pw_init(nullptr, nullptr);
            // The library warns on stderr about a context without configuration (no modules from it, no
            // real-time scheduling). Errors still show, and the user's PIPEWIRE_DEBUG still wins.
            if (qEnvironmentVariableIsEmpty("PIPEWIRE_DEBUG"))
                pw_log_set_level(SPA_LOG_LEVEL_ERROR);
        });
        m_loop = pw_loop_new(nullptr);
        if (m_loop == nullptr)
            return;
        // No client configuration file: the protocol module is loaded by hand, so systems that ship the
        // library without its configuration still connect.
        m_context = pw_context_new(m_loop, pw_properties_new(PW_KEY_CONFIG_NAME, "null", nullptr), 0);
        if (m_context == nullptr)
            return;
        if (pw_context_load_module(m_context, "libpipewire-module-protocol-native", nullptr, nullptr) == nullptr)
            return;
        m_core = pw_context_connect(m_context,
                                    pw_properties_new(PW_KEY_REMOTE_NAME, remoteName.toUtf8().constData(), nullptr), 0);
        if (m_core == nullptr)
            return;
        static const pw_registry_events registryEvents = [] {
            pw_registry_events events{};
            events.version = PW_VERSION_REGISTRY_EVENTS;
            events.global = &Watch::onGlobal;
            events.global_remove = &Watch::onGlobalRemove;
            return events;
        }();
        static const pw_core_events coreEvents = [] {
            pw_core_events events{};
            events.version = PW_VERSION_CORE_EVENTS;
            events.done = &Watch::onDone;
            events.error = &Watch::onError;
            return events;
        }();
        // The library's method macros cast in C style.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
        pw_core_add_listener(m_core, &m_coreListener, &coreEvents, this);
        m_registry = pw_core_get_registry(m_core, PW_VERSION_REGISTRY, 0);
        if (m_registry == nullptr)
            return;
        pw_registry_add_listener(m_registry, &m_registryListener, &registryEvents, this);
        m_syncSeq = pw_core_sync(m_core, PW_ID_CORE, 0);
#pragma GCC diagnostic pop
    }
    ~Watch()
    {
        if (m_registry) {
            spa_hook_remove(&m_registryListener);
            pw_proxy_destroy(reinterpret_cast<pw_proxy*>(m_registry));
        }
        if (m_core) {
            spa_hook_remove(&m_coreListener);
            pw_core_disconnect(m_core);
        }
        if (m_context)
            pw_context_destroy(m_context);
        if (m_loop)
            pw_loop_destroy(m_loop);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    // The graph's nodes as of now; none when the connection failed or the first list did not come in time.
    std::optional<QList<PipeWireNode>> nodes(int timeoutMilliseconds)
    {
        if (m_registry == nullptr)
            return std::nullopt;
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMilliseconds);
        pw_loop_enter(m_loop);
        // Whatever the server sent since the last pass, without waiting; then, the first time, the rest of
        // the initial list.
        while (!m_failed && pw_loop_iterate(m_loop, 0) > 0) {
        }
        while (!m_synced && !m_failed) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0 || pw_loop_iterate(m_loop, static_cast<int>(left.count())) < 0)
                break;
        }
        pw_loop_leave(m_loop);
        if (!m_synced || m_failed)
            return std::nullopt;
        return m_nodes.values();
    }

private:
    static void onGlobal(void* data, uint32_t id, uint32_t, const char* type, uint32_t, const spa_dict* props)
    {
        if (std::strcmp(type, PW_TYPE_INTERFACE_Node) != 0)
            return;
        static_cast<Watch*>(data)->m_nodes.insert(
            id, {dictValue(props, PW_KEY_MEDIA_CLASS), dictValue(props, PW_KEY_NODE_NAME),
                 dictValue(props, PW_KEY_MEDIA_NAME), dictValue(props, PW_KEY_APP_NAME),
                 dictValue(props, PW_KEY_APP_PROCESS_BINARY)});
    }
    static void onGlobalRemove(void* data, uint32_t id)
    {
        static_cast<Watch*>(data)->m_nodes.remove(id);
    }
    static void onDone(void* data, uint32_t id, int seq)
    {
        auto* self = static_cast<Watch*>(data);
        if (id == PW_ID_CORE && seq == self->m_syncSeq)
            self->m_synced = true;
    }
    // Also how a server that went away is told.
    static void onError(void* data, uint32_t id, int, int, const char*)
    {
        if (id == PW_ID_CORE)
            static_cast<Watch*>(data)->m_failed = true;
    }

    pw_loop* m_loop = nullptr;
    pw_context* m_context = nullptr;
    pw_core* m_core = nullptr;
    pw_registry* m_registry = nullptr;
    spa_hook m_coreListener{};
    spa_hook m_registryListener{};
    int m_syncSeq = -1;
    bool m_synced = false;
    bool m_failed = false;
    QMap<uint32_t, PipeWireNode> m_nodes;
};

PipeWireCapture::PipeWireCapture(QString runtimeDir, QString remoteName, int timeoutMilliseconds)
    : m_timeout(timeoutMilliseconds)
{
    if (runtimeDir.isEmpty())
        runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (remoteName.isEmpty())
        remoteName = qEnvironmentVariable("PIPEWIRE_REMOTE", u"pipewire-0"_s);
    m_remoteName = remoteName;
    m_socketPath = QFileInfo(remoteName).isAbsolute() ? remoteName : runtimeDir + u'/' + remoteName;
}

PipeWireCapture::~PipeWireCapture() = default;

std::optional<QList<PipeWireNode>> PipeWireCapture::nodes() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_watch) {
        // Without the socket there is no server to ask; checking first keeps such sessions free of connect
        // attempts.
        if (!QFileInfo::exists(m_socketPath)) {
            m_log.warn(u"pipewire-absent"_s,
                       u"No PipeWire server at %1; screen capture is not seen"_s.arg(m_socketPath));
            return std::nullopt;
        }
        m_watch = std::make_unique<Watch>(m_socketPath);
    }
    auto nodes = m_watch->nodes(m_timeout);
    if (!nodes) {
        // Connected afresh on the next pass, as after a restart of the server.
        m_watch.reset();
        m_log.warn(u"pipewire-failed"_s,
                   u"The PipeWire server at %1 did not answer; screen capture is not seen"_s.arg(m_socketPath));
    }
    return nodes;
}

bool PipeWireCapture::isCapturing() const
{
    const auto all = nodes();
    return all && std::any_of(all->cbegin(), all->cend(), &PipeWireCapture::isScreenCapture);
}

bool PipeWireCapture::isScreenCapture(const PipeWireNode& node)
{
    if (node.mediaClass == u"Video/Source"_s || node.mediaClass == u"Stream/Output/Video"_s) {
        return namesScreenCaster(node.nodeName) || namesScreenCaster(node.mediaName) ||
               namesScreenCaster(node.applicationName) || namesScreenCaster(node.processBinary);
    }
    if (node.mediaClass == u"Stream/Input/Video"_s)
        return isKnownRecorder(node.processBinary) || isKnownRecorder(node.applicationName);
    return false;
}

} // namespace velto
