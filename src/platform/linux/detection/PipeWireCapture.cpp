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

// One short visit to the server: connect, read the registry up to a sync, disconnect.
class RegistryVisit final {
public:
    explicit RegistryVisit(const QString& remoteName)
    {
        static std::once_flag initialised;
        std::call_once(initialised, [] {
            pw_init(nullptr, nullptr);
            // The library warns on stderr about every short-lived context (no modules from configuration, no
            // real-time scheduling); one visit per pass would flood it. Errors still show, and the user's
            // PIPEWIRE_DEBUG still wins.
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
    }
    ~RegistryVisit()
    {
        if (m_registry)
            pw_proxy_destroy(reinterpret_cast<pw_proxy*>(m_registry));
        if (m_core)
            pw_core_disconnect(m_core);
        if (m_context)
            pw_context_destroy(m_context);
        if (m_loop)
            pw_loop_destroy(m_loop);
    }
    RegistryVisit(const RegistryVisit&) = delete;
    RegistryVisit& operator=(const RegistryVisit&) = delete;

    std::optional<QList<PipeWireNode>> read(int timeoutMilliseconds)
    {
        if (m_core == nullptr)
            return std::nullopt;
        static const pw_registry_events registryEvents = [] {
            pw_registry_events events{};
            events.version = PW_VERSION_REGISTRY_EVENTS;
            events.global = &RegistryVisit::onGlobal;
            return events;
        }();
        static const pw_core_events coreEvents = [] {
            pw_core_events events{};
            events.version = PW_VERSION_CORE_EVENTS;
            events.done = &RegistryVisit::onDone;
            events.error = &RegistryVisit::onError;
            return events;
        }();
        spa_zero(m_coreListener);
        spa_zero(m_registryListener);
        // The library's method macros cast in C style.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
        pw_core_add_listener(m_core, &m_coreListener, &coreEvents, this);
        m_registry = pw_core_get_registry(m_core, PW_VERSION_REGISTRY, 0);
        if (m_registry == nullptr)
            return std::nullopt;
        pw_registry_add_listener(m_registry, &m_registryListener, &registryEvents, this);
        m_syncSeq = pw_core_sync(m_core, PW_ID_CORE, 0);
#pragma GCC diagnostic pop

        const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMilliseconds);
        pw_loop_enter(m_loop);
        while (!m_done && !m_failed) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0 || pw_loop_iterate(m_loop, static_cast<int>(left.count())) < 0)
                break;
        }
        pw_loop_leave(m_loop);
        spa_hook_remove(&m_registryListener);
        spa_hook_remove(&m_coreListener);
        if (!m_done || m_failed)
            return std::nullopt;
        return m_nodes;
    }

private:
    static void onGlobal(void* data, uint32_t, uint32_t, const char* type, uint32_t, const spa_dict* props)
    {
        if (std::strcmp(type, PW_TYPE_INTERFACE_Node) != 0)
            return;
        auto* self = static_cast<RegistryVisit*>(data);
        self->m_nodes.append({dictValue(props, PW_KEY_MEDIA_CLASS), dictValue(props, PW_KEY_NODE_NAME),
                              dictValue(props, PW_KEY_MEDIA_NAME), dictValue(props, PW_KEY_APP_NAME),
                              dictValue(props, PW_KEY_APP_PROCESS_BINARY)});
    }
    static void onDone(void* data, uint32_t id, int seq)
    {
        auto* self = static_cast<RegistryVisit*>(data);
        if (id == PW_ID_CORE && seq == self->m_syncSeq)
            self->m_done = true;
    }
    static void onError(void* data, uint32_t id, int, int, const char*)
    {
        if (id == PW_ID_CORE)
            static_cast<RegistryVisit*>(data)->m_failed = true;
    }

    pw_loop* m_loop = nullptr;
    pw_context* m_context = nullptr;
    pw_core* m_core = nullptr;
    pw_registry* m_registry = nullptr;
    spa_hook m_coreListener{};
    spa_hook m_registryListener{};
    int m_syncSeq = -1;
    bool m_done = false;
    bool m_failed = false;
    QList<PipeWireNode> m_nodes;
};

} // namespace

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

std::optional<QList<PipeWireNode>> PipeWireCapture::nodes() const
{
    // Without the socket there is no server to ask; checking first keeps such sessions free of connect attempts.
    if (!QFileInfo::exists(m_socketPath)) {
        m_log.warn(u"pipewire-absent"_s, u"No PipeWire server at %1; screen capture is not seen"_s.arg(m_socketPath));
        return std::nullopt;
    }
    RegistryVisit visit(m_socketPath);
    auto nodes = visit.read(m_timeout);
    if (!nodes)
        m_log.warn(u"pipewire-failed"_s,
                   u"The PipeWire server at %1 did not answer; screen capture is not seen"_s.arg(m_socketPath));
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
