#pragma once

#include "detection/DetectionProviders.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>
#include <QTimeZone>

#include <atomic>
#include <functional>
#include <memory>

// Scriptable stand-ins for the ten system providers. Each counts its calls and can run a hook inside every
// call (to block a pass or note its thread); values and hooks may be changed while a worker thread reads.

// A value the test writes and the worker thread reads.
template <typename T>
class Scripted {
public:
    Scripted() = default;
    explicit Scripted(T value)
        : m_value(std::move(value))
    {}
    void set(T value)
    {
        QMutexLocker lock(&m_mutex);
        m_value = std::move(value);
    }
    [[nodiscard]] T get() const
    {
        QMutexLocker lock(&m_mutex);
        return m_value;
    }

private:
    mutable QMutex m_mutex;
    T m_value{};
};

class FakeCalls {
public:
    // Calls to the provider's main member (for two-member providers see the counters of each).
    [[nodiscard]] int calls() const { return m_calls.load(); }
    void resetCalls() { m_calls = 0; }
    Scripted<std::function<void()>> hook;

protected:
    void called() const
    {
        ++m_calls;
        if (const auto run = hook.get())
            run();
    }

private:
    mutable std::atomic<int> m_calls{0};
};

class FakeWorkspace final : public velto::WorkspaceProviding, public FakeCalls {
public:
    [[nodiscard]] QList<velto::AppSnapshot> runningApplications() const override
    {
        called();
        return applications.get();
    }
    Scripted<QList<velto::AppSnapshot>> applications;
};

class FakeWindowList final : public velto::WindowListProviding, public FakeCalls {
public:
    [[nodiscard]] QList<velto::WindowDescriptor> onScreenWindows() const override
    {
        called();
        return windows.get();
    }
    Scripted<QList<velto::WindowDescriptor>> windows;
};

class FakeScreen final : public velto::ScreenProviding, public FakeCalls {
public:
    [[nodiscard]] QRectF mainScreenFrame() const override
    {
        called();
        return frame.get();
    }
    Scripted<QRectF> frame{QRectF(0, 0, 1920, 1080)};
};

class FakeIdleTime final : public velto::IdleTimeProviding, public FakeCalls {
public:
    [[nodiscard]] double secondsSinceLastInput() const override
    {
        called();
        return seconds.get();
    }
    Scripted<double> seconds;
};

class FakeCameraUsage final : public velto::CameraUsageProviding, public FakeCalls {
public:
    [[nodiscard]] bool isCameraInUse() const override
    {
        called();
        return !identifiers.get().isEmpty();
    }
    [[nodiscard]] QStringList activeCameraIdentifiers() const override
    {
        ++identifierCalls;
        return identifiers.get();
    }
    Scripted<QStringList> identifiers;
    mutable std::atomic<int> identifierCalls{0};
};

class FakeMicrophoneUsage final : public velto::MicrophoneUsageProviding, public FakeCalls {
public:
    [[nodiscard]] bool isMicrophoneInUse() const override
    {
        called();
        return !identifiers.get().isEmpty();
    }
    [[nodiscard]] QStringList activeMicrophoneIdentifiers() const override
    {
        ++identifierCalls;
        return identifiers.get();
    }
    Scripted<QStringList> identifiers;
    mutable std::atomic<int> identifierCalls{0};
};

class FakeVideoPlayback final : public velto::VideoPlaybackProviding, public FakeCalls {
public:
    [[nodiscard]] bool isPlaying(const QString& bundleIdentifier) const override
    {
        called();
        {
            QMutexLocker lock(&m_mutex);
            m_asked.append(bundleIdentifier);
        }
        return playing.get().contains(bundleIdentifier);
    }
    // Every identity asked, in order, since the last reset.
    [[nodiscard]] QStringList asked() const
    {
        QMutexLocker lock(&m_mutex);
        return m_asked;
    }
    void resetAsked()
    {
        QMutexLocker lock(&m_mutex);
        m_asked.clear();
        resetCalls();
    }
    Scripted<QSet<QString>> playing;

private:
    mutable QMutex m_mutex;
    mutable QStringList m_asked;
};

class FakeScreenRecordingState final : public velto::ScreenRecordingStateProviding, public FakeCalls {
public:
    [[nodiscard]] bool isScreenRecording(const QList<velto::AppSnapshot>& runningApplications) const override
    {
        called();
        lastApplications.set(runningApplications);
        return recording.get();
    }
    Scripted<bool> recording;
    mutable Scripted<QList<velto::AppSnapshot>> lastApplications;
};

class FakeAppCategory final : public velto::AppCategoryProviding, public FakeCalls {
public:
    [[nodiscard]] std::optional<QString> category(qint32 processIdentifier) const override
    {
        called();
        const auto all = categories.get();
        const auto found = all.constFind(processIdentifier);
        if (found == all.constEnd())
            return std::nullopt;
        return *found;
    }
    Scripted<QHash<qint32, QString>> categories;
};

class FakeClock final : public velto::ClockProviding, public FakeCalls {
public:
    [[nodiscard]] QDateTime now() const override
    {
        called();
        return time.get();
    }
    void advance(double seconds) { time.set(time.get().addMSecs(qRound64(seconds * 1000.0))); }
    Scripted<QDateTime> time{QDateTime(QDate(2026, 11, 23), QTime(10, 0), QTimeZone::utc())};
};

// One of each fake. take() hands ownership to a detector; the pointers here stay valid while it lives.
class FakeDetectionProviders {
public:
    FakeDetectionProviders()
    {
        m_owned.workspace.reset(workspace = new FakeWorkspace);
        m_owned.windowList.reset(windowList = new FakeWindowList);
        m_owned.screen.reset(screen = new FakeScreen);
        m_owned.idleTime.reset(idleTime = new FakeIdleTime);
        m_owned.camera.reset(camera = new FakeCameraUsage);
        m_owned.microphone.reset(microphone = new FakeMicrophoneUsage);
        m_owned.videoPlayback.reset(videoPlayback = new FakeVideoPlayback);
        m_owned.screenRecording.reset(screenRecording = new FakeScreenRecordingState);
        m_owned.appCategory.reset(appCategory = new FakeAppCategory);
        m_owned.clock.reset(clock = new FakeClock);
        m_owned.passBoundary = [boundaries = passBoundaries](bool begins) { boundaries->append(begins); };
    }

    [[nodiscard]] velto::DetectionProviders take() { return std::move(m_owned); }
    // For rules called directly, without a detector.
    [[nodiscard]] const velto::DetectionProviders& providers() const { return m_owned; }

    FakeWorkspace* workspace;
    FakeWindowList* windowList;
    FakeScreen* screen;
    FakeIdleTime* idleTime;
    FakeCameraUsage* camera;
    FakeMicrophoneUsage* microphone;
    FakeVideoPlayback* videoPlayback;
    FakeScreenRecordingState* screenRecording;
    FakeAppCategory* appCategory;
    FakeClock* clock;
    // What the pass boundary was told, in order; shared, so it outlives this object in a detector.
    std::shared_ptr<QList<bool>> passBoundaries = std::make_shared<QList<bool>>();

private:
    velto::DetectionProviders m_owned;
};

// Shorthand for a running application.
inline velto::AppSnapshot runningApp(const QString& bundleIdentifier, qint32 processIdentifier, bool isActive = false)
{
    return {bundleIdentifier, isActive, processIdentifier};
}
