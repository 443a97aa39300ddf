#pragma once

#include "ActivityDetecting.h"
#include "DetectionProviders.h"
#include "DetectionRecords.h"
#include "settings/SmartPauseSettings.h"

#include <QMutex>
#include <QObject>
#include <QThread>

#include <atomic>
#include <memory>
#include <optional>

class QTimer;

namespace velto {

// Smart Pause's eyes: every two seconds, while monitoring, one detection pass looks at meetings, video,
// screen recording, fullscreen games, focus applications and idleness, and publishes what it found.
//
// Passes run one at a time, in order, on a worker thread of their own; a pass that overruns delays the next
// instead of dropping it. Each pass hands its result to the main thread, and the worker starts nothing else
// until it is applied, so the published fields, the meeting fields and the activity time stamp are only ever
// written and read on the main thread. Settings are written on the main thread too; a pass copies them once
// at its start.
//
// The timer lives on the worker as well: a fire then wakes only the thread that does the work, not the main
// thread too, and the worker is not woken a second time just to hear that its result has been applied (the
// next pass checks that before it starts). A pass whose result is what the main thread already shows is not
// handed over at all, so a quiet desktop does not wake the main thread for detection.
class ActivityDetector final : public QObject, public ActivityDetecting {
    Q_OBJECT
    Q_INTERFACES(velto::ActivityDetecting)
    Q_PROPERTY(bool isInMeeting READ isInMeeting NOTIFY isInMeetingChanged)
    Q_PROPERTY(bool isWatchingVideo READ isWatchingVideo NOTIFY isWatchingVideoChanged)
    Q_PROPERTY(bool isScreenRecording READ isScreenRecording NOTIFY isScreenRecordingChanged)
    Q_PROPERTY(bool isInFullscreenGame READ isInFullscreenGame NOTIFY isInFullscreenGameChanged)
    Q_PROPERTY(bool isInDeepFocusApp READ isInDeepFocusApp NOTIFY isInDeepFocusAppChanged)
    Q_PROPERTY(bool isIdle READ isIdle NOTIFY isIdleChanged)

public:
    static constexpr int detectionIntervalMilliseconds = 2000;

    // All ten providers are required; they are called on the worker thread (and the workspace also on the
    // main thread, for the focus status text).
    explicit ActivityDetector(DetectionProviders providers, QObject* parent = nullptr);
    // Safe while a pass runs: a pass waiting for the main thread is released unapplied, a running one
    // finishes first, queued ones are dropped.
    ~ActivityDetector() override;

    [[nodiscard]] bool isInMeeting() const { return m_isInMeeting; }
    [[nodiscard]] bool isWatchingVideo() const { return m_isWatchingVideo; }
    [[nodiscard]] bool isScreenRecording() const { return m_isScreenRecording; }
    [[nodiscard]] bool isInFullscreenGame() const { return m_isInFullscreenGame; }
    [[nodiscard]] bool isInDeepFocusApp() const { return m_isInDeepFocusApp; }
    [[nodiscard]] bool isIdle() const { return m_isIdle; }
    // The running applications as detection sees them; safe on any thread, so others may ask it too.
    [[nodiscard]] WorkspaceProviding* workspace() const { return m_providers.workspace.get(); }

    // What the last pass saw of a meeting; nothing latches them.
    [[nodiscard]] bool meetingPauseCamera() const { return m_meetingPauseCamera; }
    [[nodiscard]] bool meetingPauseMicrophone() const { return m_meetingPauseMicrophone; }
    [[nodiscard]] std::optional<QString> meetingPauseAppBundleIdentifier() const
    {
        return m_meetingPauseAppBundleIdentifier;
    }
    // End of the last pass that found activity other than idleness; never cleared.
    [[nodiscard]] std::optional<QDateTime> lastActivityDetectedAt() const { return m_lastActivityDetectedAt; }

    // Main thread. The wiring sets both whenever the stored settings change; passes read only idleThreshold()
    // for idleness, and the next pass to start uses the new values.
    [[nodiscard]] SmartPauseSettings settings() const { return m_settings; }
    void setSettings(const SmartPauseSettings& settings);
    [[nodiscard]] double idleThreshold() const { return m_idleThreshold; }
    void setIdleThreshold(double seconds);

    [[nodiscard]] bool isActivityDetected() const override;
    [[nodiscard]] QString activityStatusText() const override;
    [[nodiscard]] QString activityStatusSymbolName() const override;
    [[nodiscard]] QString activityKind() const override;

    // The first pass comes one interval after starting; starting again while monitoring changes nothing.
    Q_INVOKABLE void startMonitoring();
    // Leaves the published state as it is; passes already queued still run and publish. No fire of the timer
    // starts a pass once this has returned.
    Q_INVOKABLE void stopMonitoring();
    [[nodiscard]] bool isMonitoring() const { return m_isMonitoring; }

    // The object that passes and the detection timer live on, in the worker thread; for tests that look at
    // the timer (from that thread).
    [[nodiscard]] QObject* detectionWorker() const { return m_worker.get(); }
    // How many passes a fire stands for when the last one was this long ago: a worker held up by a slow pass
    // misses fires, and each missed fire still gets its pass, as a queue of fires would.
    [[nodiscard]] static int passesDue(qint64 millisecondsSinceLastFire);

    // Queues one pass on the worker thread, as a fire of the timer does. Public so tests can drive passes.
    void queueDetectionPass();
    // One pass. On the worker thread it first waits until the previous pass's result has been applied, then
    // hands its own result to the main thread; called on the main thread (tests) it applies directly. Never
    // call it on the main thread while passes are queued on the worker.
    void runDetectionPass();
    // Main thread: publishes a pass's result.
    void applySnapshot(const DetectionSnapshot& snapshot);

Q_SIGNALS:
    void objectWillChange();
    void isInMeetingChanged(bool isInMeeting);
    void isWatchingVideoChanged(bool isWatchingVideo);
    void isScreenRecordingChanged(bool isScreenRecording);
    void isInFullscreenGameChanged(bool isInFullscreenGame);
    void isInDeepFocusAppChanged(bool isInDeepFocusApp);
    void isIdleChanged(bool isIdle);

private:
    struct HandOver;
    struct Status {
        QString text;
        QString symbolName;
        QString kind; // the history's raw name; empty for the cool-down and for nothing
    };

    // The first row of the status table that holds. The focus text asks the workspace, so only when wanted.
    [[nodiscard]] Status status(bool withText) const;

    // Worker thread: the timer's side of starting and stopping, and one fire.
    void startTimerOnWorker(int generation);
    void stopTimerOnWorker();
    void timerFired(int generation);
    // Worker thread: waits for the main thread to apply the previous pass; false once shutting down.
    bool awaitPendingHandOver();

    bool m_isInMeeting = false;
    bool m_isWatchingVideo = false;
    bool m_isScreenRecording = false;
    bool m_isInFullscreenGame = false;
    bool m_isInDeepFocusApp = false;
    bool m_isIdle = false;

    bool m_meetingPauseCamera = false;
    bool m_meetingPauseMicrophone = false;
    std::optional<QString> m_meetingPauseAppBundleIdentifier;
    std::optional<QDateTime> m_lastActivityDetectedAt;

    // Declared before the thread so they outlive every pass.
    const DetectionProviders m_providers;

    // Guards the settings, the idle threshold, the shutdown flag and the pending hand-over against the worker.
    mutable QMutex m_sharedMutex;
    SmartPauseSettings m_settings;
    double m_idleThreshold = 60;
    bool m_shuttingDown = false;
    std::shared_ptr<HandOver> m_pendingHandOver;
    // The last result published, without its time stamp.
    DetectionSnapshot m_lastApplied;

    bool m_isMonitoring = false;
    // Changed by every start and stop, so a fire from a timer that has been stopped is recognised as such on
    // the worker even before the stop itself reaches it.
    std::atomic<int> m_monitoringGeneration = 0;
    // Worker thread only.
    QTimer* m_detectionTimer = nullptr;
    qint64 m_lastFireAt = 0;

    QThread m_detectionThread;
    // Lives on the detection thread; passes are queued to it, so they run there in order.
    std::unique_ptr<QObject> m_worker;
};

} // namespace velto
