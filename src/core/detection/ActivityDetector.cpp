#include "ActivityDetector.h"

#include "DetectionRules.h"
#include "KnownApplications.h"
#include "Published.h"

#include <QDeadlineTimer>
#include <QMetaObject>
#include <QMutexLocker>
#include <QTimer>
#include <QWaitCondition>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto {

// One pass's wait for the main thread. The destructor finishes it too, so a pass never outwaits its detector.
struct ActivityDetector::HandOver {
    QMutex mutex;
    QWaitCondition finishedCondition;
    bool finished = false;

    void finish()
    {
        QMutexLocker lock(&mutex);
        finished = true;
        finishedCondition.wakeAll();
    }

    void wait()
    {
        QMutexLocker lock(&mutex);
        while (!finished)
            finishedCondition.wait(&mutex);
    }
};

ActivityDetector::ActivityDetector(DetectionProviders providers, QObject* parent)
    : QObject(parent)
    , m_providers(std::move(providers))
    , m_worker(std::make_unique<QObject>())
{
    Q_ASSERT(m_providers.isComplete());
    m_detectionThread.setObjectName(u"com.velto.activityDetection"_s);
    m_worker->moveToThread(&m_detectionThread);
    // The timer is the worker thread's own; it goes with the thread's event loop, on that thread.
    connect(
        &m_detectionThread, &QThread::finished, m_worker.get(), [this] { stopTimerOnWorker(); }, Qt::DirectConnection);
    m_detectionThread.start(QThread::LowPriority);
}

ActivityDetector::~ActivityDetector()
{
    stopMonitoring();
    {
        QMutexLocker lock(&m_sharedMutex);
        m_shuttingDown = true;
        if (m_pendingHandOver)
            m_pendingHandOver->finish();
    }
    m_detectionThread.quit();
    m_detectionThread.wait();
    // Hand-overs still posted to this object are discarded with it.
}

void ActivityDetector::setSettings(const SmartPauseSettings& settings)
{
    QMutexLocker lock(&m_sharedMutex);
    m_settings = settings;
}

void ActivityDetector::setIdleThreshold(double seconds)
{
    QMutexLocker lock(&m_sharedMutex);
    m_idleThreshold = seconds;
}

// Timer and passes.

void ActivityDetector::startMonitoring()
{
    if (m_isMonitoring)
        return;
    m_isMonitoring = true;
    const int generation = ++m_monitoringGeneration;
    QMetaObject::invokeMethod(
        m_worker.get(), [this, generation] { startTimerOnWorker(generation); }, Qt::QueuedConnection);
}

void ActivityDetector::stopMonitoring()
{
    if (!m_isMonitoring)
        return;
    m_isMonitoring = false;
    ++m_monitoringGeneration;
    QMetaObject::invokeMethod(
        m_worker.get(), [this] { stopTimerOnWorker(); }, Qt::QueuedConnection);
}

void ActivityDetector::startTimerOnWorker(int generation)
{
    // Stopped (and perhaps started again) before this reached the worker: a later message takes over.
    if (generation != m_monitoringGeneration)
        return;
    stopTimerOnWorker();
    m_detectionTimer = new QTimer(m_worker.get());
    m_detectionTimer->setInterval(detectionIntervalMilliseconds);
    connect(m_detectionTimer, &QTimer::timeout, m_worker.get(), [this, generation] { timerFired(generation); });
    m_lastFireAt = QDeadlineTimer::current().deadline();
    m_detectionTimer->start();
}

void ActivityDetector::stopTimerOnWorker()
{
    delete m_detectionTimer;
    m_detectionTimer = nullptr;
}

int ActivityDetector::passesDue(qint64 millisecondsSinceLastFire)
{
    // A quarter interval of slack, so a fire a little early or late stands for one pass, not none or two.
    const qint64 fires =
        (millisecondsSinceLastFire + detectionIntervalMilliseconds / 4) / detectionIntervalMilliseconds;
    return static_cast<int>(std::max<qint64>(fires, 1));
}

void ActivityDetector::timerFired(int generation)
{
    const qint64 now = QDeadlineTimer::current().deadline();
    const int passes = passesDue(now - m_lastFireAt);
    m_lastFireAt = now;
    for (int i = 0; i < passes; ++i) {
        if (generation != m_monitoringGeneration)
            return;
        runDetectionPass();
    }
}

void ActivityDetector::queueDetectionPass()
{
    // Queued events are never merged, so every call gets its pass; the worker runs them one after another.
    // The worker dies with this object and takes unrun passes with it.
    QMetaObject::invokeMethod(
        m_worker.get(), [this] { runDetectionPass(); }, Qt::QueuedConnection);
}

bool ActivityDetector::awaitPendingHandOver()
{
    std::shared_ptr<HandOver> pending;
    {
        QMutexLocker lock(&m_sharedMutex);
        pending = m_pendingHandOver;
    }
    // Usually applied long ago, and then this costs no wake-up at all.
    if (pending)
        pending->wait();
    QMutexLocker lock(&m_sharedMutex);
    if (m_pendingHandOver == pending)
        m_pendingHandOver.reset();
    return !m_shuttingDown;
}

void ActivityDetector::runDetectionPass()
{
    const bool onWorker = QThread::currentThread() != thread();
    if (onWorker && !awaitPendingHandOver())
        return;
    SmartPauseSettings settings;
    double idleThreshold = 0;
    {
        QMutexLocker lock(&m_sharedMutex);
        if (m_shuttingDown)
            return;
        settings = m_settings;
        idleThreshold = m_idleThreshold;
    }
    const DetectionSnapshot snapshot = DetectionRules::detectActivity(m_providers, settings, idleThreshold);

    if (!onWorker) {
        applySnapshot(snapshot);
        return;
    }
    auto handOver = std::make_shared<HandOver>();
    {
        QMutexLocker lock(&m_sharedMutex);
        if (m_shuttingDown)
            return;
        // Nothing new to publish: the main thread is not woken. A pass that found activity always goes, as
        // its time stamp starts the cool-down afresh.
        if (!snapshot.activityDetectedAt && snapshot == m_lastApplied)
            return;
        m_pendingHandOver = handOver;
    }
    QMetaObject::invokeMethod(
        this,
        [this, handOver, snapshot] {
            applySnapshot(snapshot);
            handOver->finish();
        },
        Qt::QueuedConnection);
    // Not waited for here: the next pass waits for it before it begins, and usually finds it long applied.
}

void ActivityDetector::applySnapshot(const DetectionSnapshot& snapshot)
{
    publish(this, m_isInMeeting, snapshot.isInMeeting, &ActivityDetector::isInMeetingChanged);
    publish(this, m_isWatchingVideo, snapshot.isWatchingVideo, &ActivityDetector::isWatchingVideoChanged);
    publish(this, m_isScreenRecording, snapshot.isScreenRecording, &ActivityDetector::isScreenRecordingChanged);
    publish(this, m_isInFullscreenGame, snapshot.isInFullscreenGame, &ActivityDetector::isInFullscreenGameChanged);
    publish(this, m_isInDeepFocusApp, snapshot.isInDeepFocusApp, &ActivityDetector::isInDeepFocusAppChanged);
    publish(this, m_isIdle, snapshot.isIdle, &ActivityDetector::isIdleChanged);

    m_meetingPauseCamera = snapshot.meetingPauseCamera;
    m_meetingPauseMicrophone = snapshot.meetingPauseMicrophone;
    m_meetingPauseAppBundleIdentifier = snapshot.meetingPauseAppBundleIdentifier;
    if (snapshot.activityDetectedAt)
        m_lastActivityDetectedAt = snapshot.activityDetectedAt;
    QMutexLocker lock(&m_sharedMutex);
    m_lastApplied = snapshot;
    m_lastApplied.activityDetectedAt.reset();
}

// What the scheduler and the menu read.

bool ActivityDetector::isActivityDetected() const
{
    if (m_isInMeeting || m_isWatchingVideo || m_isScreenRecording || m_isInFullscreenGame || m_isInDeepFocusApp ||
        m_isIdle)
        return true;
    if (!m_lastActivityDetectedAt)
        return false;
    // The cool-down is worked out on each read rather than timed, so its end shows at the reader's next look.
    const double elapsed = static_cast<double>(m_lastActivityDetectedAt->msecsTo(m_providers.clock->now())) / 1000.0;
    // A clock set back makes the elapsed time negative; that still counts as within the cool-down.
    return elapsed < 0 || elapsed < m_settings.cooldownAfterActivity;
}

QString ActivityDetector::activityKind() const
{
    return status(false).kind;
}

QString ActivityDetector::activityStatusText() const
{
    return status(true).text;
}

QString ActivityDetector::activityStatusSymbolName() const
{
    return status(false).symbolName;
}

ActivityDetector::Status ActivityDetector::status(bool withText) const
{
    if (m_isInMeeting) {
        if (m_meetingPauseAppBundleIdentifier) {
            if (const auto name = KnownApplications::meetingAppName(*m_meetingPauseAppBundleIdentifier))
                //: Why breaks wait: the user is in a call; %1 is the meeting application's name, such as Zoom.
                return {tr("In %1").arg(*name), u"person.wave.2"_s, u"meeting"_s};
            return {tr("Meeting app active"), u"person.wave.2"_s, u"meeting"_s};
        }
        if (m_meetingPauseCamera && m_meetingPauseMicrophone)
            return {tr("Camera and microphone in use"), u"video.fill"_s, u"meeting"_s};
        if (m_meetingPauseCamera)
            return {tr("Camera in use"), u"camera.fill"_s, u"meeting"_s};
        if (m_meetingPauseMicrophone)
            return {tr("Microphone in use"), u"mic.fill"_s, u"meeting"_s};
        return {tr("Meeting activity detected"), u"person.wave.2"_s, u"meeting"_s};
    }
    if (m_isWatchingVideo)
        return {tr("Watching video"), u"play.rectangle"_s, u"video"_s};
    if (m_isScreenRecording)
        return {tr("Recording screen"), u"record.circle"_s, u"screenRecording"_s};
    if (m_isInFullscreenGame)
        return {tr("Playing a game"), u"gamecontroller"_s, u"fullscreenGame"_s};
    if (m_isInDeepFocusApp)
        // Worked out afresh on each read, from the applications running now.
        return {withText ? DetectionRules::deepFocusStatusText(m_providers.workspace->runningApplications(),
                                                               m_settings.deepFocusApps)
                         : QString(),
                u"scope"_s, u"focusApp"_s};
    if (m_isIdle)
        //: No keyboard or pointer input for a while.
        return {tr("Away from desk"), u"moon"_s, u"idle"_s};
    if (!m_lastActivityDetectedAt)
        //: Smart Pause is the feature's name: breaks wait while a meeting, video, game or focus app is on.
        return {tr("Smart Pause active"), u"pause.circle"_s};
    //: The activity that held breaks has ended; breaks wait a little longer before the countdown runs again.
    return {tr("Winding down…"), u"hourglass"_s};
}

} // namespace velto
