#include "FakeDetectionProviders.h"
#include "detection/ActivityDetector.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A detector on fakes. Passes are driven by the test; the clock moves only when the test moves it.
struct Rig {
    Rig()
        : detector(std::make_unique<ActivityDetector>(fakes.take()))
    {}

    // One pass on the test's (main) thread, applied at once.
    void pass() { detector->runDetectionPass(); }

    void configure(const std::function<void(SmartPauseSettings&)>& edit)
    {
        SmartPauseSettings settings = detector->settings();
        edit(settings);
        detector->setSettings(settings);
    }

    // Only meeting detection, so one device or application decides.
    void meetingsOnly()
    {
        configure([](SmartPauseSettings& s) {
            s.detectVideoPlayback = s.detectScreenRecording = s.detectFullscreenGaming = s.detectIdleTime = false;
        });
    }

    FakeDetectionProviders fakes;
    std::unique_ptr<ActivityDetector> detector;
};

// Runs the main thread's event loop, where worker passes hand over their results, until done() holds; gives
// up after a generous limit so a lost pass fails the test instead of hanging it.
bool spinUntil(const std::function<bool()>& done)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (!done() && elapsed.elapsed() < 30000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return done();
}

// The detection timer as its own thread sees it. Messages to the worker keep their order, so this shows the
// effect of every start and stop made before it.
struct TimerView {
    QList<QTimer*> timers;
    int interval = 0;
    bool active = false;
    QThread* thread = nullptr;
};

TimerView timerOnWorker(ActivityDetector* detector)
{
    TimerView view;
    QObject* const worker = detector->detectionWorker();
    QMetaObject::invokeMethod(
        worker,
        [&] {
            view.timers = worker->findChildren<QTimer*>();
            if (!view.timers.isEmpty()) {
                view.interval = view.timers.first()->interval();
                view.active = view.timers.first()->isActive();
                view.thread = view.timers.first()->thread();
            }
        },
        Qt::BlockingQueuedConnection);
    return view;
}

} // namespace

class TestActivityDetector : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyPassPublishesEveryFlag();
    void meetingFieldsDescribeTheLastPassOnly();
    void coolDownAfterActivity();
    void idleHoldsOnlyWhileItLasts();
    void statusTable_data();
    void statusTable();
    void focusStatusAsksTheWorkspaceAfresh();
    void monitoringStartsAndStopsOnce();
    void aFireRunsAPassUnlessStopped();
    void missedFiresStillGetTheirPasses();
    void theNextPassWaitsForTheResultToBeApplied();
    void passesRunOneAtATimeOnTheWorker();
    void onlyNewResultsWakeTheMainThread();
    void aRunningPassKeepsItsSettings();
    void shutdownWhileAPassWaitsForTheMainThread();
};

void TestActivityDetector::everyPassPublishesEveryFlag()
{
    Rig rig;
    QSignalSpy willChange(rig.detector.get(), &ActivityDetector::objectWillChange);
    QSignalSpy meeting(rig.detector.get(), &ActivityDetector::isInMeetingChanged);
    QSignalSpy idle(rig.detector.get(), &ActivityDetector::isIdleChanged);

    // Nothing found, still six assignments, each announced with its value.
    rig.pass();
    QCOMPARE(willChange.count(), 6);
    QCOMPARE(meeting.count(), 1);
    QCOMPARE(idle.first().first().toBool(), false);

    rig.fakes.idleTime->seconds.set(120);
    rig.fakes.screenRecording->recording.set(true);
    rig.pass();
    QCOMPARE(willChange.count(), 12);
    QCOMPARE(meeting.count(), 2);
    QCOMPARE(idle.last().first().toBool(), true);
    QVERIFY(rig.detector->isScreenRecording());

    // The will-change signal comes before the value is stored.
    bool sawOldValue = false;
    connect(rig.detector.get(), &ActivityDetector::objectWillChange, this,
            [&] { sawOldValue = sawOldValue || rig.detector->isScreenRecording(); });
    rig.fakes.screenRecording->recording.set(false);
    rig.pass();
    QVERIFY(sawOldValue);
    QVERIFY(!rig.detector->isScreenRecording());
}

void TestActivityDetector::meetingFieldsDescribeTheLastPassOnly()
{
    Rig rig;
    rig.meetingsOnly();
    rig.fakes.camera->identifiers.set({u"cam"_s});
    rig.fakes.workspace->applications.set({runningApp(u"us.zoom.xos"_s, 1, true)});
    rig.pass();
    QVERIFY(rig.detector->isInMeeting());
    QVERIFY(rig.detector->meetingPauseCamera());
    QCOMPARE(rig.detector->meetingPauseAppBundleIdentifier(), u"us.zoom.xos"_s);
    const QDateTime seen = rig.fakes.clock->time.get();
    QCOMPARE(rig.detector->lastActivityDetectedAt(), seen);

    // Meeting detection switched off: the next pass clears the flag and all three fields, keeps the stamp.
    rig.configure([](SmartPauseSettings& s) { s.detectMeetings = false; });
    rig.fakes.clock->advance(2);
    rig.pass();
    QVERIFY(!rig.detector->meetingPauseCamera());
    QCOMPARE(rig.detector->meetingPauseAppBundleIdentifier(), std::nullopt);
    QCOMPARE(rig.detector->lastActivityDetectedAt(), seen);
    QCOMPARE(rig.fakes.camera->calls(), 1);

    // A later pass with activity moves the stamp to its own end.
    rig.configure([](SmartPauseSettings& s) { s.detectMeetings = true; });
    rig.fakes.clock->advance(2);
    rig.pass();
    QCOMPARE(rig.detector->lastActivityDetectedAt(), seen.addSecs(4));
}

void TestActivityDetector::coolDownAfterActivity()
{
    Rig rig;
    rig.meetingsOnly();
    rig.configure([](SmartPauseSettings& s) { s.cooldownAfterActivity = 60; });
    rig.fakes.microphone->identifiers.set({u"mic"_s});
    rig.pass();
    QVERIFY(rig.detector->isActivityDetected());
    rig.fakes.microphone->identifiers.set({});
    rig.fakes.clock->advance(2);
    rig.pass();
    QVERIFY(!rig.detector->isInMeeting());

    // Held for the cool-down, measured from the end of the last pass that saw the meeting.
    QVERIFY(rig.detector->isActivityDetected());
    rig.fakes.clock->advance(57.9);
    QVERIFY(rig.detector->isActivityDetected());
    rig.fakes.clock->advance(0.1);
    QVERIFY(!rig.detector->isActivityDetected());
    // The text looks only at whether a stamp exists.
    QCOMPARE(rig.detector->activityStatusText(), u"Winding down\u2026"_s);

    // A clock set back counts as within the cool-down, whatever the (unvalidated) cool-down is.
    rig.fakes.clock->advance(-3600);
    QVERIFY(rig.detector->isActivityDetected());

    // A cool-down of 0 holds exactly while a flag is set.
    rig.fakes.clock->advance(3600);
    rig.configure([](SmartPauseSettings& s) { s.cooldownAfterActivity = 0; });
    rig.fakes.microphone->identifiers.set({u"mic"_s});
    rig.pass();
    QVERIFY(rig.detector->isActivityDetected());
    rig.fakes.microphone->identifiers.set({});
    rig.pass();
    QVERIFY(!rig.detector->isActivityDetected());
}

void TestActivityDetector::idleHoldsOnlyWhileItLasts()
{
    Rig rig;
    rig.configure([](SmartPauseSettings& s) {
        s = SmartPauseSettings();
        s.detectMeetings = s.detectVideoPlayback = s.detectScreenRecording = s.detectFullscreenGaming = false;
    });
    rig.fakes.idleTime->seconds.set(59.9);
    rig.pass();
    QVERIFY(!rig.detector->isIdle());
    rig.fakes.idleTime->seconds.set(60);
    rig.pass();
    QVERIFY(rig.detector->isIdle());

    // Input resumes: released at the next pass, no cool-down, and never a stamp.
    rig.fakes.idleTime->seconds.set(0.5);
    rig.pass();
    QVERIFY(!rig.detector->isActivityDetected());
    QCOMPARE(rig.detector->lastActivityDetectedAt(), std::nullopt);
}

void TestActivityDetector::statusTable_data()
{
    QTest::addColumn<DetectionSnapshot>("snapshot");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("symbol");

    auto meeting = [](bool camera, bool microphone, std::optional<QString> app) {
        DetectionSnapshot s;
        s.isInMeeting = true;
        s.meetingPauseCamera = camera;
        s.meetingPauseMicrophone = microphone;
        s.meetingPauseAppBundleIdentifier = std::move(app);
        return s;
    };
    // Each row also carries the flags ranked below it, which must not win.
    DetectionSnapshot everything = meeting(true, true, std::nullopt);
    everything.isWatchingVideo = everything.isScreenRecording = everything.isIdle = true;
    DetectionSnapshot videoAndIdle;
    videoAndIdle.isWatchingVideo = videoAndIdle.isIdle = true;
    DetectionSnapshot recordingAndGame;
    recordingAndGame.isScreenRecording = recordingAndGame.isInFullscreenGame = true;
    DetectionSnapshot stamped;
    stamped.activityDetectedAt = QDateTime(QDate(2020, 1, 1), QTime(0, 0), QTimeZone::utc());

    QTest::newRow("listed app") << meeting(true, true, u"us.zoom.xos"_s) << u"In Zoom"_s << u"person.wave.2"_s;
    QTest::newRow("unlisted app") << meeting(false, true, u"org.example.Call"_s) << u"Meeting app active"_s
                                  << u"person.wave.2"_s;
    QTest::newRow("camera and microphone") << everything << u"Camera and microphone in use"_s << u"video.fill"_s;
    QTest::newRow("camera") << meeting(true, false, std::nullopt) << u"Camera in use"_s << u"camera.fill"_s;
    QTest::newRow("video") << videoAndIdle << u"Watching video"_s << u"play.rectangle"_s;
    QTest::newRow("recording") << recordingAndGame << u"Recording screen"_s << u"record.circle"_s;
    QTest::newRow("nothing yet") << DetectionSnapshot() << u"Smart Pause active"_s << u"pause.circle"_s;
    QTest::newRow("after activity") << stamped << u"Winding down\u2026"_s << u"hourglass"_s;
}

void TestActivityDetector::statusTable()
{
    QFETCH(DetectionSnapshot, snapshot);
    QFETCH(QString, text);
    QFETCH(QString, symbol);
    Rig rig;
    rig.detector->applySnapshot(snapshot);
    QCOMPARE(rig.detector->activityStatusText(), text);
    QCOMPARE(rig.detector->activityStatusSymbolName(), symbol);
}

void TestActivityDetector::focusStatusAsksTheWorkspaceAfresh()
{
    Rig rig;
    rig.configure([](SmartPauseSettings& s) {
        s.deepFocusApps = {{u"Kate"_s, u"org.kde.kate"_s, DeepFocusMode::WhenForegroundFullscreen},
                           {u"Blender"_s, u"org.blender.Blender"_s, DeepFocusMode::WhenOpen}};
    });
    DetectionSnapshot focused;
    focused.isInDeepFocusApp = true;
    rig.detector->applySnapshot(focused);

    rig.fakes.workspace->applications.set(
        {runningApp(u"org.blender.Blender"_s, 1), runningApp(u"org.kde.kate"_s, 2, true)});
    QCOMPARE(rig.detector->activityStatusText(), u"Kate is active"_s);
    rig.fakes.workspace->applications.set({runningApp(u"org.blender.Blender"_s, 1), runningApp(u"firefox"_s, 3, true)});
    QCOMPARE(rig.detector->activityStatusText(), u"Blender is open"_s);
    QCOMPARE(rig.fakes.workspace->calls(), 2);
    // The symbol alone needs no application list.
    QCOMPARE(rig.detector->activityStatusSymbolName(), u"scope"_s);
    QCOMPARE(rig.fakes.workspace->calls(), 2);
}

void TestActivityDetector::monitoringStartsAndStopsOnce()
{
    Rig rig;
    rig.detector->startMonitoring();
    rig.detector->startMonitoring();
    QVERIFY(rig.detector->isMonitoring());
    TimerView view = timerOnWorker(rig.detector.get());
    QCOMPARE(view.timers.size(), 1);
    QCOMPARE(view.interval, 2000);
    QVERIFY(view.active);
    // Fires wake the worker, never the main thread.
    QCOMPARE(view.thread, rig.detector->detectionWorker()->thread());
    QVERIFY(view.thread != QThread::currentThread());
    // No pass at start: the first comes one interval later.
    QCoreApplication::processEvents();
    QCOMPARE(rig.fakes.idleTime->calls(), 0);

    // Stopping keeps whatever the last pass published.
    rig.fakes.idleTime->seconds.set(3600);
    rig.pass();
    rig.detector->stopMonitoring();
    rig.detector->stopMonitoring();
    QVERIFY(!rig.detector->isMonitoring());
    QVERIFY(timerOnWorker(rig.detector.get()).timers.isEmpty());
    QVERIFY(rig.detector->isIdle());

    // Stopped and started again before the worker hears of either: still exactly one timer.
    rig.detector->startMonitoring();
    rig.detector->stopMonitoring();
    rig.detector->startMonitoring();
    view = timerOnWorker(rig.detector.get());
    QCOMPARE(view.timers.size(), 1);
    QVERIFY(view.active);
    QVERIFY(rig.detector->isMonitoring());
}

void TestActivityDetector::aFireRunsAPassUnlessStopped()
{
    Rig rig;
    std::atomic<bool> onMainThread{false};
    QThread* const mainThread = QThread::currentThread();
    rig.fakes.idleTime->hook.set([&] { onMainThread = onMainThread || QThread::currentThread() == mainThread; });
    rig.fakes.idleTime->seconds.set(3600);
    QSignalSpy applied(rig.detector.get(), &ActivityDetector::isIdleChanged);
    rig.detector->startMonitoring();
    QTimer* const timer = timerOnWorker(rig.detector.get()).timers.value(0);
    QVERIFY(timer);

    // A fire (made here rather than waited for) runs a pass on the worker and publishes on this thread.
    QMetaObject::invokeMethod(timer, "timeout", Qt::BlockingQueuedConnection);
    QVERIFY(spinUntil([&] { return applied.count() == 1; }));
    QVERIFY(rig.detector->isIdle());
    QVERIFY(!onMainThread);

    // A fire that comes after stopMonitoring() returned, before the worker has dropped the timer, is ignored.
    QSemaphore held;
    QSemaphore gate;
    QMetaObject::invokeMethod(
        rig.detector->detectionWorker(),
        [&] {
            held.release();
            gate.acquire();
            QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
        },
        Qt::QueuedConnection);
    held.acquire();
    rig.detector->stopMonitoring();
    gate.release();
    QVERIFY(timerOnWorker(rig.detector.get()).timers.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(rig.fakes.idleTime->calls(), 1);
    QCOMPARE(applied.count(), 1);
}

void TestActivityDetector::missedFiresStillGetTheirPasses()
{
    // On time, or a little early or late: one pass.
    QCOMPARE(ActivityDetector::passesDue(2000), 1);
    QCOMPARE(ActivityDetector::passesDue(1600), 1);
    QCOMPARE(ActivityDetector::passesDue(2450), 1);
    // The first fire after a restart of the clock, or a clock that jumped back, still runs its pass.
    QCOMPARE(ActivityDetector::passesDue(0), 1);
    QCOMPARE(ActivityDetector::passesDue(-5000), 1);
    // A pass that held the worker past one or two fires: those fires' passes follow.
    QCOMPARE(ActivityDetector::passesDue(3700), 2);
    QCOMPARE(ActivityDetector::passesDue(4100), 2);
    QCOMPARE(ActivityDetector::passesDue(6200), 3);
}

void TestActivityDetector::theNextPassWaitsForTheResultToBeApplied()
{
    Rig rig;
    QSemaphore probed;
    std::atomic<int> appliedSoFar{0};
    QList<int> appliedAtProbe;
    int passes = 0;
    rig.fakes.idleTime->hook.set([&] {
        appliedAtProbe.append(appliedSoFar.load());
        rig.fakes.idleTime->seconds.set(++passes % 2 ? 3600 : 0); // a new result each time, so each is handed over
        probed.release();
    });
    connect(rig.detector.get(), &ActivityDetector::isIdleChanged, this, [&] { ++appliedSoFar; });

    rig.detector->queueDetectionPass();
    rig.detector->queueDetectionPass();
    QVERIFY(probed.tryAcquire(1, 30000));
    // This thread has not run its event loop, so the first result is unapplied and the second pass holds.
    QVERIFY(!probed.tryAcquire(1, 300));
    QVERIFY(spinUntil([&] { return appliedSoFar.load() == 2; }));
    QCOMPARE(appliedAtProbe, (QList<int>{0, 1}));
}

void TestActivityDetector::passesRunOneAtATimeOnTheWorker()
{
    Rig rig;
    QSemaphore started;
    QSemaphore gate;
    std::atomic<int> running{0};
    std::atomic<int> mostAtOnce{0};
    std::atomic<bool> onMainThread{false};
    QThread* const mainThread = QThread::currentThread();
    rig.fakes.idleTime->hook.set([&] {
        onMainThread = onMainThread || QThread::currentThread() == mainThread;
        mostAtOnce = std::max(mostAtOnce.load(), ++running);
        rig.fakes.idleTime->seconds.set(rig.fakes.idleTime->calls() % 2 ? 3600 : 0);
        started.release();
        gate.acquire();
        --running;
    });
    QSignalSpy applied(rig.detector.get(), &ActivityDetector::isIdleChanged);

    // Three fires while the first pass is stuck: none dropped, none merged, one at a time.
    for (int i = 0; i < 3; ++i)
        rig.detector->queueDetectionPass();
    started.acquire();
    QCOMPARE(applied.count(), 0);
    gate.release(3);
    QVERIFY(spinUntil([&] { return applied.count() == 3; }));
    QCOMPARE(rig.fakes.idleTime->calls(), 3);
    QCOMPARE(mostAtOnce.load(), 1);
    QVERIFY(!onMainThread);
}

void TestActivityDetector::onlyNewResultsWakeTheMainThread()
{
    Rig rig;
    // Counts what the worker posts to the detector on this thread.
    struct PostedCalls : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::MetaCall;
            return false;
        }
    } posted;
    rig.detector->installEventFilter(&posted);
    const auto postedByPasses = [&](int passes) {
        const int before = posted.count;
        for (int i = 0; i < passes; ++i) {
            rig.detector->queueDetectionPass();
            // Passes run in order, so this returns after the pass; then its hand-over, if any, is applied.
            QMetaObject::invokeMethod(
                rig.detector->detectionWorker(), [] {}, Qt::BlockingQueuedConnection);
            QCoreApplication::processEvents();
        }
        return posted.count - before;
    };

    // What is already shown needs no hand-over, and the flags stay as they are.
    QCOMPARE(postedByPasses(2), 0);
    rig.fakes.idleTime->seconds.set(3600);
    QCOMPARE(postedByPasses(2), 1);
    QVERIFY(rig.detector->isIdle());
    // Activity always goes over: its time stamp restarts the cool-down.
    rig.fakes.screenRecording->recording.set(true);
    QCOMPARE(postedByPasses(2), 2);
    rig.fakes.screenRecording->recording.set(false);
    rig.fakes.idleTime->seconds.set(0);
    QCOMPARE(postedByPasses(2), 1);
    QVERIFY(!rig.detector->isIdle() && !rig.detector->isScreenRecording());
    QVERIFY(rig.detector->lastActivityDetectedAt());
}

void TestActivityDetector::aRunningPassKeepsItsSettings()
{
    Rig rig;
    rig.fakes.workspace->applications.set({runningApp(u"vlc"_s, 1, true)});
    rig.fakes.idleTime->seconds.set(30);
    rig.fakes.screenRecording->recording.set(true); // activity: every pass is handed over
    QSemaphore started;
    QSemaphore gate;
    rig.fakes.camera->hook.set([&] {
        started.release();
        gate.acquire();
    });
    QSignalSpy applied(rig.detector.get(), &ActivityDetector::isIdleChanged);

    rig.detector->queueDetectionPass();
    started.acquire();
    // Written while the pass is in its meeting probe, which comes before the video and idle probes.
    rig.configure([](SmartPauseSettings& s) { s.detectVideoPlayback = false; });
    rig.detector->setIdleThreshold(5);
    rig.fakes.camera->hook.set({});
    gate.release();
    QVERIFY(spinUntil([&] { return applied.count() == 1; }));
    QCOMPARE(rig.fakes.videoPlayback->calls(), 1);
    QVERIFY(!rig.detector->isIdle());

    // The next pass sees the new values.
    rig.detector->queueDetectionPass();
    QVERIFY(spinUntil([&] { return applied.count() == 2; }));
    QCOMPARE(rig.fakes.videoPlayback->calls(), 1);
    QVERIFY(rig.detector->isIdle());
}

void TestActivityDetector::shutdownWhileAPassWaitsForTheMainThread()
{
    // The worker reaches the hand-over at a moment this thread cannot see, so try it many times; each
    // destruction must return with the worker released, and the unapplied result must never arrive.
    for (int round = 0; round < 50; ++round) {
        auto rig = std::make_unique<Rig>();
        QSemaphore probed;
        rig->fakes.idleTime->hook.set([&] { probed.release(); });
        rig->fakes.screenRecording->recording.set(true);
        int applied = 0;
        connect(rig->detector.get(), &ActivityDetector::isIdleChanged, this, [&] { ++applied; });
        rig->detector->queueDetectionPass();
        probed.acquire();
        rig.reset();
        QCoreApplication::processEvents();
        QCOMPARE(applied, 0);
    }
}

QTEST_GUILESS_MAIN(TestActivityDetector)
#include "tst_activitydetector.moc"
