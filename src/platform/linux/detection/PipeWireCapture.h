#pragma once

#include "LogOnce.h"

#include <QList>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>

namespace velto {

// What PipeWire says about one node, the fields screen capture is recognised by.
struct PipeWireNode {
    QString mediaClass;
    QString nodeName;
    QString mediaName;
    QString applicationName;
    QString processBinary;

    friend bool operator==(const PipeWireNode&, const PipeWireNode&) = default;
};

// Screen capture in progress, as the media server shows it: a video source that a desktop's screencast
// service (through the portal) or a compositor publishes, or a video recording stream of a known recorder.
// Both exist only while something captures, which also catches screen sharing in a meeting.
class PipeWireCapture final {
public:
    // The server's socket in this runtime folder (empty: $XDG_RUNTIME_DIR) under this name (empty:
    // $PIPEWIRE_REMOTE, else "pipewire-0").
    explicit PipeWireCapture(QString runtimeDir = {}, QString remoteName = {}, int timeoutMilliseconds = 250);
    ~PipeWireCapture();

    // Whether some node shows a screen capture; false without a server.
    [[nodiscard]] bool isCapturing() const;
    // Every node of the graph; none when no server answered in time. The connection stays open between
    // calls. Safe from any thread.
    [[nodiscard]] std::optional<QList<PipeWireNode>> nodes() const;

    [[nodiscard]] static bool isScreenCapture(const PipeWireNode& node);

private:
    class Watch;

    QString m_socketPath;
    QString m_remoteName;
    int m_timeout = 250;
    LogOnce m_log;
    mutable std::mutex m_mutex;
    mutable std::unique_ptr<Watch> m_watch;
};

} // namespace velto
