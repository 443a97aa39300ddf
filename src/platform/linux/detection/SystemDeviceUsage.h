#pragma once

#include "LogOnce.h"
#include "ProcessTable.h"
#include "detection/CameraUsageProviding.h"
#include "detection/MicrophoneUsageProviding.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

namespace velto {

// Cameras held open by the user's processes: video4linux devices that a process of this user has an open
// file descriptor on. Loopback and other virtual devices are left out (they carry no real camera). The
// roots are parameters so tests can point them at fixture trees.
class SystemCameraUsage final : public CameraUsageProviding {
public:
    struct Roots {
        QString proc = QStringLiteral("/proc");
        QString sys = QStringLiteral("/sys");
        QString dev = QStringLiteral("/dev");
    };
    SystemCameraUsage();
    explicit SystemCameraUsage(Roots roots);

    [[nodiscard]] bool isCameraInUse() const override;
    // By device number. Each is the device's /dev/v4l/by-id name, else its sysfs device path, else
    // "v4l-" with its major:minor device number.
    [[nodiscard]] QStringList activeCameraIdentifiers() const override;

private:
    Roots m_roots;
    ProcessTable m_processes;
};

// Microphones being recorded from. Asks the PulseAudio server (PipeWire's pulse server too) for recording
// streams that run on a source which is no monitor of an output; the identifier is the source name. When no
// server answers, ALSA capture substreams in the RUNNING state count instead, named "hw:<card id>,<device>".
class SystemMicrophoneUsage final : public MicrophoneUsageProviding {
public:
    struct Options {
        // Empty: the client library's own choice ($PULSE_SERVER, then the user's runtime socket).
        QByteArray pulseServer;
        QString proc = QStringLiteral("/proc");
        int timeoutMilliseconds = 250;
        // After a failed connection the next try waits this long, twice as long after each further failure,
        // up to a minute; meanwhile ALSA answers.
        int firstRetryMilliseconds = 2000;
    };
    SystemMicrophoneUsage();
    explicit SystemMicrophoneUsage(Options options);
    ~SystemMicrophoneUsage() override;

    [[nodiscard]] bool isMicrophoneInUse() const override;
    [[nodiscard]] QStringList activeMicrophoneIdentifiers() const override;

    // Recording sources as the sound server reports them; none when no server answered in time. The
    // connection stays open between calls. Safe from any thread.
    [[nodiscard]] std::optional<QStringList> pulseCaptureSources() const;
    // Running ALSA capture substreams under the proc root.
    [[nodiscard]] QStringList alsaCaptureDevices() const;

private:
    class PulseWatch;

    Options m_options;
    LogOnce m_log;
    mutable std::mutex m_pulseMutex;
    mutable std::unique_ptr<PulseWatch> m_pulse;
    mutable std::chrono::steady_clock::time_point m_pulseRetryAt;
    mutable std::chrono::milliseconds m_pulseRetryDelay{0};
};

} // namespace velto
