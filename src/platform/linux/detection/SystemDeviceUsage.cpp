#include "SystemDeviceUsage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <chrono>
#include <dirent.h>
#include <fcntl.h>
#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/introspect.h>
#include <pulse/mainloop.h>
#include <pulse/proplist.h>
#include <pulse/subscribe.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

// Drivers whose video devices are not cameras of their own.
bool isVirtualDriver(const QString& driver)
{
    static const QStringList virtualDrivers{u"v4l2loopback"_s, u"vivid"_s, u"akvcam"_s, u"vicodec"_s, u"vim2m"_s};
    return virtualDrivers.contains(driver);
}

struct VideoDevice {
    int number = -1;
    QString node;       // "/dev/video0"
    QString sysfsPath;  // "/devices/…/video4linux/video0", relative to the sys root
    QString devNumbers; // "81:0"
};

QByteArray readSmall(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(4096).trimmed();
}

} // namespace

SystemCameraUsage::SystemCameraUsage()
    : SystemCameraUsage(Roots{})
{}

SystemCameraUsage::SystemCameraUsage(Roots roots)
    : m_roots(std::move(roots))
    , m_processes(m_roots.proc)
{}

bool SystemCameraUsage::isCameraInUse() const
{
    return !activeCameraIdentifiers().isEmpty();
}

QStringList SystemCameraUsage::activeCameraIdentifiers() const
{
    // Real cameras first: with none attached, which is common, no process is looked at.
    const QString classDir = m_roots.sys + u"/class/video4linux"_s;
    const QString sysRoot = QFileInfo(m_roots.sys).canonicalFilePath();
    QMap<int, VideoDevice> devices;
    for (const QString& name : QDir(classDir).entryList({u"video*"_s}, QDir::AllEntries | QDir::NoDotAndDotDot)) {
        bool ok = false;
        const int number = name.mid(5).toInt(&ok);
        if (!ok)
            continue;
        const QString path = QFileInfo(classDir + u'/' + name).canonicalFilePath();
        if (path.isEmpty() || !path.startsWith(sysRoot))
            continue;
        VideoDevice device;
        device.number = number;
        device.node = u"/dev/"_s + name;
        device.sysfsPath = path.mid(sysRoot.size());
        if (device.sysfsPath.startsWith(u"/devices/virtual/"_s))
            continue;
        const QString driver = QFileInfo(QFileInfo(path + u"/device/driver"_s).canonicalFilePath()).fileName();
        if (isVirtualDriver(driver) || readSmall(path + u"/name"_s).contains("Loopback"))
            continue;
        device.devNumbers = QString::fromLatin1(readSmall(path + u"/dev"_s));
        devices.insert(number, device);
    }
    if (devices.isEmpty())
        return {};

    QHash<QByteArray, int> numberByNode;
    for (const VideoDevice& device : std::as_const(devices))
        numberByNode.insert(device.node.toLatin1(), device.number);
    QSet<int> inUse;
    const QByteArray procRoot = QFile::encodeName(m_roots.proc);
    for (const qint32 pid : m_processes.processesOfUser()) {
        const QByteArray fdDir = procRoot + '/' + QByteArray::number(pid) + "/fd";
        DIR* dir = ::opendir(fdDir.constData());
        if (dir == nullptr)
            continue; // exited, or not ours to read
        const int dirFd = ::dirfd(dir);
        char target[256];
        while (const dirent* entry = ::readdir(dir)) {
            if (entry->d_name[0] == '.')
                continue;
            const ssize_t n = ::readlinkat(dirFd, entry->d_name, target, sizeof target - 1);
            if (n < 10 || std::memcmp(target, "/dev/video", 10) != 0)
                continue;
            const auto it = numberByNode.constFind(QByteArray(target, n));
            if (it != numberByNode.constEnd())
                inUse.insert(*it);
        }
        ::closedir(dir);
        if (inUse.size() == devices.size())
            break;
    }
    if (inUse.isEmpty())
        return {};

    QHash<int, QString> byIdName;
    const QDir byId(m_roots.dev + u"/v4l/by-id"_s);
    for (const QFileInfo& link :
         byId.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System, QDir::Name)) {
        const QString target = QFileInfo(link.symLinkTarget()).fileName();
        if (target.startsWith(u"video"_s)) {
            bool ok = false;
            const int number = target.mid(5).toInt(&ok);
            if (ok && !byIdName.contains(number))
                byIdName.insert(number, link.fileName());
        }
    }
    QStringList identifiers;
    for (const VideoDevice& device : std::as_const(devices)) {
        if (!inUse.contains(device.number))
            continue;
        if (const QString name = byIdName.value(device.number); !name.isEmpty())
            identifiers.append(name);
        else if (!device.sysfsPath.isEmpty())
            identifiers.append(device.sysfsPath);
        else
            identifiers.append(u"v4l-"_s + device.devNumbers);
    }
    return identifiers;
}

SystemMicrophoneUsage::SystemMicrophoneUsage()
    : SystemMicrophoneUsage(Options{})
{}

SystemMicrophoneUsage::SystemMicrophoneUsage(Options options)
    : m_options(std::move(options))
{}

bool SystemMicrophoneUsage::isMicrophoneInUse() const
{
    return !activeMicrophoneIdentifiers().isEmpty();
}

QStringList SystemMicrophoneUsage::activeMicrophoneIdentifiers() const
{
    if (auto sources = pulseCaptureSources())
        return *sources;
    return alsaCaptureDevices();
}

// A connection to the sound server kept open between passes and subscribed to changes of sources and
// recording streams. The server's notices wait on the socket until the next pass reads them without
// waiting; only then, and only when something changed, are the lists asked for again. No thread of ours
// wakes in between, and a quiet pass makes no round trip.
class SystemMicrophoneUsage::PulseWatch final {
public:
    explicit PulseWatch(const QByteArray& server)
    {
        m_loop = pa_mainloop_new();
        if (m_loop == nullptr)
            return;
        pa_proplist* properties = pa_proplist_new();
        pa_proplist_sets(properties, PA_PROP_APPLICATION_NAME, "Velto");
        pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "com.velto.app");
        m_context = pa_context_new_with_proplist(pa_mainloop_get_api(m_loop), "Velto", properties);
        pa_proplist_free(properties);
        if (m_context == nullptr)
            return;
        if (pa_context_connect(m_context, server.isEmpty() ? nullptr : server.constData(), PA_CONTEXT_NOAUTOSPAWN,
                               nullptr) < 0)
            m_failure = QString::fromUtf8(pa_strerror(pa_context_errno(m_context)));
    }
    ~PulseWatch()
    {
        if (m_context != nullptr) {
            pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
            pa_context_disconnect(m_context);
            pa_context_unref(m_context);
        }
        if (m_loop != nullptr)
            pa_mainloop_free(m_loop);
    }
    PulseWatch(const PulseWatch&) = delete;
    PulseWatch& operator=(const PulseWatch&) = delete;

    // The sources recorded from now; none, with the reason, when the server cannot be reached or did not
    // answer in time.
    std::optional<QStringList> recordedSources(int timeoutMilliseconds, QString* failure)
    {
        m_deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMilliseconds);
        if (m_context == nullptr || !m_failure.isEmpty()) {
            *failure = m_failure.isEmpty() ? u"no sound server client"_s : m_failure;
            return std::nullopt;
        }
        if (!iterateUntil([this] {
                const pa_context_state_t state = pa_context_get_state(m_context);
                return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
            }) ||
            pa_context_get_state(m_context) != PA_CONTEXT_READY) {
            *failure = QString::fromUtf8(pa_strerror(pa_context_errno(m_context)));
            return std::nullopt;
        }
        if (!m_subscribed) {
            pa_context_set_subscribe_callback(m_context, &PulseWatch::onChange, this);
            pa_operation* subscribe = pa_context_subscribe(
                m_context,
                static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT),
                nullptr, nullptr);
            if (subscribe)
                pa_operation_unref(subscribe);
            m_subscribed = true;
        }
        // What the server said since the last pass, without waiting for more.
        int dispatched = 0;
        while ((dispatched = pa_mainloop_iterate(m_loop, 0, nullptr)) > 0) {
        }
        if (dispatched < 0 || pa_context_get_state(m_context) != PA_CONTEXT_READY) {
            *failure = u"the connection to the server ended"_s;
            return std::nullopt;
        }
        if (m_changed && !list(failure))
            return std::nullopt;
        return m_recorded;
    }

private:
    bool list(QString* failure)
    {
        m_changed = false;
        m_sourceNames.clear();
        m_monitorSources.clear();
        m_recordedSources.clear();
        m_sourcesDone = m_outputsDone = m_failed = false;
        pa_operation* sources = pa_context_get_source_info_list(m_context, &PulseWatch::onSource, this);
        pa_operation* outputs = pa_context_get_source_output_info_list(m_context, &PulseWatch::onSourceOutput, this);
        const bool finished = iterateUntil([this] { return m_sourcesDone && m_outputsDone; });
        if (sources)
            pa_operation_unref(sources);
        if (outputs)
            pa_operation_unref(outputs);
        if (!finished || m_failed) {
            *failure = finished ? u"the server refused to list its sources"_s : u"the server did not answer in time"_s;
            return false;
        }
        m_recorded.clear();
        for (auto it = m_sourceNames.cbegin(); it != m_sourceNames.cend(); ++it) {
            if (m_recordedSources.contains(it.key()) && !m_monitorSources.contains(it.key()))
                m_recorded.append(it.value());
        }
        return true;
    }

    template <typename Done>
    bool iterateUntil(Done done)
    {
        while (!done()) {
            const auto left =
                std::chrono::duration_cast<std::chrono::microseconds>(m_deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0)
                return false;
            if (pa_mainloop_prepare(m_loop, static_cast<int>(left.count())) < 0 || pa_mainloop_poll(m_loop) < 0 ||
                pa_mainloop_dispatch(m_loop) < 0)
                return false;
        }
        return true;
    }

    static void onChange(pa_context*, pa_subscription_event_type_t, uint32_t, void* userdata)
    {
        static_cast<PulseWatch*>(userdata)->m_changed = true;
    }

    static void onSource(pa_context*, const pa_source_info* info, int eol, void* userdata)
    {
        auto* self = static_cast<PulseWatch*>(userdata);
        if (eol != 0) {
            self->m_failed = self->m_failed || eol < 0;
            self->m_sourcesDone = true;
            return;
        }
        self->m_sourceNames.insert(info->index, QString::fromUtf8(info->name));
        if (info->monitor_of_sink != PA_INVALID_INDEX)
            self->m_monitorSources.insert(info->index);
    }

    static void onSourceOutput(pa_context*, const pa_source_output_info* info, int eol, void* userdata)
    {
        auto* self = static_cast<PulseWatch*>(userdata);
        if (eol != 0) {
            self->m_failed = self->m_failed || eol < 0;
            self->m_outputsDone = true;
            return;
        }
        // A corked (paused) recording holds the device without taking sound from it.
        if (!info->corked)
            self->m_recordedSources.insert(info->source);
    }

    std::chrono::steady_clock::time_point m_deadline;
    pa_mainloop* m_loop = nullptr;
    pa_context* m_context = nullptr;
    QString m_failure;
    bool m_subscribed = false;
    // The first pass lists; later ones only after the server told of a change.
    bool m_changed = true;
    QStringList m_recorded;
    QMap<uint32_t, QString> m_sourceNames;
    QSet<uint32_t> m_monitorSources;
    QSet<uint32_t> m_recordedSources;
    bool m_sourcesDone = false;
    bool m_outputsDone = false;
    bool m_failed = false;
};

SystemMicrophoneUsage::~SystemMicrophoneUsage() = default;

std::optional<QStringList> SystemMicrophoneUsage::pulseCaptureSources() const
{
    const std::lock_guard lock(m_pulseMutex);
    const auto now = std::chrono::steady_clock::now();
    if (!m_pulse) {
        // A session without a sound server (or with a hung one) is not asked every pass: each try sets up a
        // client with its memory pool, or waits out the timeout.
        if (now < m_pulseRetryAt)
            return std::nullopt;
        m_pulse = std::make_unique<PulseWatch>(m_options.pulseServer);
    }
    QString failure;
    auto sources = m_pulse->recordedSources(m_options.timeoutMilliseconds, &failure);
    if (sources) {
        m_pulseRetryDelay = std::chrono::milliseconds(0);
        return sources;
    }
    // Connected afresh later, as after a restart of the server.
    m_pulse.reset();
    m_pulseRetryDelay = std::clamp(
        2 * m_pulseRetryDelay, std::chrono::milliseconds(m_options.firstRetryMilliseconds),
        std::max(std::chrono::milliseconds(60000), std::chrono::milliseconds(m_options.firstRetryMilliseconds)));
    m_pulseRetryAt = std::chrono::steady_clock::now() + m_pulseRetryDelay;
    m_log.warn(u"pulse"_s, u"No sound server answers (%1); reading ALSA capture streams instead"_s.arg(failure));
    return sources;
}

QStringList SystemMicrophoneUsage::alsaCaptureDevices() const
{
    QStringList devices;
    const QDir asound(m_options.proc + u"/asound"_s);
    for (const QString& card : asound.entryList({u"card*"_s}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString cardPath = asound.filePath(card);
        const QString cardId = QString::fromUtf8(readSmall(cardPath + u"/id"_s));
        for (const QString& pcm : QDir(cardPath).entryList({u"pcm*c"_s}, QDir::Dirs, QDir::Name)) {
            bool running = false;
            for (const QString& sub : QDir(cardPath + u'/' + pcm).entryList({u"sub*"_s}, QDir::Dirs, QDir::Name)) {
                if (readSmall(cardPath + u'/' + pcm + u'/' + sub + u"/status"_s).startsWith("state: RUNNING")) {
                    running = true;
                    break;
                }
            }
            if (running) {
                const QString device = pcm.mid(3, pcm.size() - 4); // "pcm0c" → "0"
                devices.append(u"hw:%1,%2"_s.arg(cardId.isEmpty() ? card.mid(4) : cardId, device));
            }
        }
    }
    return devices;
}

} // namespace velto
