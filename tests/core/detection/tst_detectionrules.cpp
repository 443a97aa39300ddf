#include "FakeDetectionProviders.h"
#include "detection/DetectionRules.h"
#include "detection/KnownApplications.h"
#include "detection/ScreenRecordingRule.h"

#include <QTest>

using namespace velto;
using namespace velto::DetectionRules;
using namespace Qt::Literals::StringLiterals;

namespace {

WindowDescriptor window(qint32 owner, QRectF bounds, int layer = 0)
{
    return {owner, bounds, layer};
}

} // namespace

class TestDetectionRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knownApplicationTables();
    void meetingDecisionTable();
    void meetingExclusionsAndDevices();
    void videoPlayersAskedByMode();
    void screenRecordingWindowTitles();
    void screenRecordingDocumentTestOnlyWhileThePlayerRuns();
    void fullscreenGame();
    void focusApplications();
    void passAsksOnlyWhatIsSwitchedOn();
};

void TestDetectionRules::knownApplicationTables()
{
    namespace KA = KnownApplications;
    // Browsers are meeting applications; none of them can be asked about playback.
    for (const QString& browser : KA::browserBundleIdentifiers()) {
        QVERIFY2(KA::meetingAppNames().contains(browser), qPrintable(browser));
        QVERIFY2(!KA::playbackQueryBundleIdentifiers().contains(browser), qPrintable(browser));
    }

    // Lookups are exact and case-sensitive.
    QCOMPARE(KA::meetingAppName(u"us.zoom.xos"_s), u"Zoom"_s);
    QCOMPARE(KA::meetingAppName(u"COM.SLACK.SLACK"_s), std::nullopt);
}

void TestDetectionRules::meetingDecisionTable()
{
    struct Row {
        QString frontmost;
        bool camera, microphone, inMeeting;
        QString application;
    };
    const QString zoom = u"us.zoom.xos"_s;
    const QString chrome = u"com.google.Chrome"_s;
    const QString editor = u"org.kde.kate"_s;
    // A meeting application alone; a browser with a device; any other application, or none, by the devices.
    const QList<Row> rows{
        {zoom, false, false, true, zoom},    {chrome, false, false, false, {}},
        {chrome, true, false, true, chrome}, {u"firefox"_s, false, true, true, u"firefox"_s},
        {editor, true, false, true, {}},     {editor, false, false, false, {}},
        {{}, true, false, true, {}},
    };
    for (const Row& row : rows) {
        FakeDetectionProviders fakes;
        fakes.camera->identifiers.set(row.camera ? QStringList{u"cam-0"_s} : QStringList{});
        fakes.microphone->identifiers.set(row.microphone ? QStringList{u"mic-0"_s} : QStringList{});
        QList<AppSnapshot> apps{runningApp(u"org.kde.dolphin"_s, 10)};
        if (!row.frontmost.isEmpty())
            apps.append(runningApp(row.frontmost, 11, true));

        const MeetingEvidence found = detectMeeting(apps, SmartPauseSettings(), *fakes.camera, *fakes.microphone);
        const QByteArray name =
            (row.frontmost + u' ' + QString::number(row.camera) + QString::number(row.microphone)).toUtf8();
        QVERIFY2(found.isInMeeting() == row.inMeeting, name.constData());
        QVERIFY2(found.camera == row.camera && found.microphone == row.microphone, name.constData());
        QVERIFY2(found.application.value_or(QString()) == row.application, name.constData());
    }
}

void TestDetectionRules::meetingExclusionsAndDevices()
{
    FakeDetectionProviders fakes;
    SmartPauseSettings settings;

    // A device list is read only after the in-use test says there is one.
    QVERIFY(!detectMeeting({}, settings, *fakes.camera, *fakes.microphone).isInMeeting());
    QCOMPARE(fakes.camera->identifierCalls.load(), 0);

    // Excluded devices are dropped by exact, case-sensitive identity; one other device is enough.
    fakes.camera->identifiers.set({u"usb-Logi_C920"_s});
    fakes.microphone->identifiers.set({u"alsa_input.usb-Blue"_s});
    settings.excludedCameras = {u"usb-Logi_C920"_s};
    settings.excludedMicrophones = {u"ALSA_INPUT.USB-BLUE"_s};
    MeetingEvidence found = detectMeeting({}, settings, *fakes.camera, *fakes.microphone);
    QVERIFY(!found.camera);
    QVERIFY(found.microphone);

    // An excluded meeting application is passed over; the devices still decide. Case matters here too.
    fakes.camera->identifiers.set({});
    fakes.microphone->identifiers.set({});
    const QList<AppSnapshot> slackInFront{runningApp(u"com.slack.Slack"_s, 5, true)};
    settings.excludedMeetingApps = {u"com.slack.slack"_s};
    QCOMPARE(detectMeeting(slackInFront, settings, *fakes.camera, *fakes.microphone).application, u"com.slack.Slack"_s);
    settings.excludedMeetingApps = {u"com.slack.Slack"_s};
    QVERIFY(!detectMeeting(slackInFront, settings, *fakes.camera, *fakes.microphone).isInMeeting());

    // A meeting application in the background is never the meeting application, even with devices on.
    settings = SmartPauseSettings();
    fakes.microphone->identifiers.set({u"mic"_s});
    const QList<AppSnapshot> zoomBehind{runningApp(u"us.zoom.xos"_s, 7), runningApp(u"org.kde.kate"_s, 8, true)};
    found = detectMeeting(zoomBehind, settings, *fakes.camera, *fakes.microphone);
    QVERIFY(found.isInMeeting());
    QCOMPARE(found.application, std::nullopt);
    // An application without an identity is skipped rather than taken as a match.
    const QList<AppSnapshot> anonymous{{std::nullopt, true, 3}, runningApp(u"zoom.us"_s, 4, true)};
    QCOMPARE(detectMeeting(anonymous, settings, *fakes.camera, *fakes.microphone).application, u"zoom.us"_s);
}

void TestDetectionRules::videoPlayersAskedByMode()
{
    FakeDetectionProviders fakes;
    const FakeVideoPlayback& playback = *fakes.videoPlayback;
    fakes.videoPlayback->playing.set({u"com.apple.QuickTimePlayerX"_s, u"vlc"_s});
    const QList<AppSnapshot> quickTimeBehind{
        runningApp(u"com.apple.QuickTimePlayerX"_s, 1),
        runningApp(u"org.videolan.vlc"_s, 2, true),
        runningApp(u"org.kde.kate"_s, 3),
    };

    // Front-only: exactly the frontmost player is asked; the one playing behind it is not.
    QVERIFY(!detectVideoPlayback(quickTimeBehind, VideoDetectionMode::FrontmostOnly, playback));
    QCOMPARE(fakes.videoPlayback->asked(), QStringList{u"org.videolan.vlc"_s});
    fakes.videoPlayback->resetAsked();

    // With background players, listed players are asked in order until one plays; others never.
    QVERIFY(detectVideoPlayback(quickTimeBehind, VideoDetectionMode::IncludeBackground, playback));
    QCOMPARE(fakes.videoPlayback->asked(), QStringList{u"com.apple.QuickTimePlayerX"_s});
    fakes.videoPlayback->resetAsked();
    const QList<AppSnapshot> nonePlaying{runningApp(u"org.videolan.vlc"_s, 2),
                                         runningApp(u"io.mpv.Mpv"_s, 4),
                                         runningApp(u"org.kde.kate"_s, 3, true),
                                         {std::nullopt, false, 9}};
    QVERIFY(!detectVideoPlayback(nonePlaying, VideoDetectionMode::IncludeBackground, playback));
    QCOMPARE(fakes.videoPlayback->asked(), (QStringList{u"org.videolan.vlc"_s, u"io.mpv.Mpv"_s}));
    fakes.videoPlayback->resetAsked();

    // A frontmost application that is not a player means no question at all in front-only mode.
    QVERIFY(!detectVideoPlayback(nonePlaying, VideoDetectionMode::FrontmostOnly, playback));
    QCOMPARE(fakes.videoPlayback->calls(), 0);
}

void TestDetectionRules::screenRecordingWindowTitles()
{
    const QList<AppSnapshot> apps{
        runningApp(u"org.kde.kate"_s, 10),          runningApp(u"com.obsproject.obs-studio"_s, 11),
        runningApp(u"com.apple.dt.Xcode"_s, 12),    runningApp(u"org.gnome.Nautilus"_s, 13),
        runningApp(u"com.obsproject.Studio"_s, 14),
    };
    auto titled = [&](qint32 owner, std::optional<QString> title) {
        return hasScreenRecordingWindow({{owner, std::move(title)}}, apps);
    };
    // "screen recording" anywhere, in any case, in any application but the ignored ones.
    QVERIFY(titled(10, u"notes about my SCREEN Recording plans"_s));
    QVERIFY(!titled(12, u"Screen Recording.swift"_s));
    QVERIFY(!titled(13, u"Screen Recordings"_s));
    // Recorders also by "recording", "broadcasting" or "streaming"; other applications not.
    QVERIFY(titled(11, u"OBS 30 - Streaming"_s));
    QVERIFY(titled(14, u"Recording 00:01"_s));
    QVERIFY(!titled(10, u"Streaming"_s));
    QVERIFY(!titled(14, u"Scenes"_s));
    // Withheld titles, unknown owners and windows of applications that are not running are skipped.
    QVERIFY(!titled(11, std::nullopt));
    QVERIFY(!titled(99, u"Screen Recording"_s));
    // A later window still counts after skipped ones.
    QVERIFY(hasScreenRecordingWindow({{0, u"x"_s}, {11, std::nullopt}, {11, u"recording"_s}}, apps));
}

void TestDetectionRules::screenRecordingDocumentTestOnlyWhileThePlayerRuns()
{
    int titleReads = 0;
    int documentTests = 0;
    bool documentAnswer = true;
    QList<TitledWindow> windows;
    const ScreenRecordingRule rule(
        [&] {
            ++titleReads;
            return windows;
        },
        [&] {
            ++documentTests;
            return documentAnswer;
        });

    // The player's documents are asked about only while it runs.
    QVERIFY(!rule.isScreenRecording({runningApp(u"org.kde.kate"_s, 1, true)}));
    QCOMPARE(documentTests, 0);
    const QList<AppSnapshot> withPlayer{runningApp(u"com.apple.QuickTimePlayerX"_s, 2)};
    QVERIFY(rule.isScreenRecording(withPlayer));
    QCOMPARE(documentTests, 1);
    documentAnswer = false;
    QVERIFY(!rule.isScreenRecording(withPlayer));
    // A window title that decides makes the document test unnecessary.
    windows = {{2, u"Screen Recording 2026-11-23"_s}};
    QVERIFY(rule.isScreenRecording(withPlayer));
    QCOMPARE(documentTests, 2);
    QCOMPARE(titleReads, 4);

    // Without a document test there is nothing to ask.
    const ScreenRecordingRule titlesOnly([] { return QList<TitledWindow>(); });
    QVERIFY(!titlesOnly.isScreenRecording(withPlayer));
}

void TestDetectionRules::fullscreenGame()
{
    FakeDetectionProviders fakes;
    const FakeScreen& screen = *fakes.screen;
    const FakeWindowList& windows = *fakes.windowList;
    const FakeAppCategory& categories = *fakes.appCategory;
    fakes.screen->frame.set(QRectF(0, 0, 1920, 1080));
    fakes.appCategory->categories.set({{40, u"Game;ActionGame;"_s}, {41, u"Development;IDE;"_s}, {42, QString()}});
    const AppSnapshot game = runningApp(u"com.valvesoftware.Steam"_s, 40, true);
    auto isGame = [&](const std::optional<AppSnapshot>& frontmost) {
        return detectFullscreenGame(frontmost, categories, screen, windows);
    };

    fakes.windowList->windows.set({window(40, QRectF(0, 0, 1920, 1080))});
    QVERIFY(isGame(game));
    // Sizes only: a larger window elsewhere still covers the screen.
    fakes.windowList->windows.set({window(40, QRectF(1920, -10, 2560, 1440))});
    QVERIFY(isGame(game));
    // No tolerance, layer 0 only, and only the game's own windows.
    fakes.windowList->windows.set({window(40, QRectF(0, 0, 1919, 1080)), window(40, QRectF(0, 0, 1920, 1079)),
                                   window(40, QRectF(0, 0, 1920, 1080), 3), window(41, QRectF(0, 0, 1920, 1080))});
    QVERIFY(!isGame(game));
    // Without a main screen any layer-0 window of the game qualifies.
    fakes.screen->frame.set(QRectF());
    fakes.windowList->windows.set({window(40, QRectF(0, 0, 300, 200))});
    QVERIFY(isGame(game));

    // The category decides before any window is read.
    fakes.windowList->resetCalls();
    QVERIFY(!isGame(runningApp(u"org.kde.kdevelop"_s, 41, true)));
    QVERIFY(!isGame(runningApp(u"no.category"_s, 43, true)));
    QCOMPARE(fakes.windowList->calls(), 0);
    fakes.appCategory->categories.set({{40, u"ArcadeGAMES"_s}});
    QVERIFY(isGame(game));

    // No frontmost application, or one without an identity: no question asked.
    fakes.appCategory->resetCalls();
    QVERIFY(!isGame(std::nullopt));
    QVERIFY(!isGame(AppSnapshot{std::nullopt, true, 40}));
    QCOMPARE(fakes.appCategory->calls(), 0);
}

void TestDetectionRules::focusApplications()
{
    FakeDetectionProviders fakes;
    const auto& screen = *fakes.screen;
    const auto& windows = *fakes.windowList;
    fakes.windowList->windows.set({window(20, QRectF(0, 0, 800, 600))});
    const QList<DeepFocusApp> entries{
        {u"Krita"_s, u"org.kde.krita"_s, DeepFocusMode::WhenForegroundFullscreen},
        {u"Kate"_s, u"org.kde.kate"_s, DeepFocusMode::WhenForeground},
        {u"Blender"_s, u"org.blender.Blender"_s, DeepFocusMode::WhenOpen},
    };
    auto inFocus = [&](const QList<AppSnapshot>& apps) {
        return detectDeepFocusApp(apps, frontmostApplication(apps), entries, screen, windows);
    };
    const AppSnapshot kritaFront = runningApp(u"org.kde.krita"_s, 20, true);
    const AppSnapshot blenderBehind = runningApp(u"org.blender.Blender"_s, 30);
    const AppSnapshot kateBehind = runningApp(u"org.kde.kate"_s, 31);

    // The frontmost entry decides alone: not fullscreen means no, even with a "when open" entry running.
    QVERIFY(!inFocus({blenderBehind, kritaFront}));
    fakes.windowList->windows.set({window(20, QRectF(0, 0, 1920, 1080))});
    QVERIFY(inFocus({blenderBehind, kritaFront}));

    // An unlisted application in front: a running "when open" entry holds, a "when foreground" one does not.
    const AppSnapshot browser = runningApp(u"firefox"_s, 40, true);
    QVERIFY(inFocus({browser, blenderBehind}));
    QVERIFY(!inFocus({browser, kateBehind}));
    // Without a frontmost application, or one without an identity, nothing is examined.
    QVERIFY(!inFocus({AppSnapshot{std::nullopt, true, 50}, blenderBehind}));

    // The first entry for an application is the one that counts.
    const QList<DeepFocusApp> twice{{u"A"_s, u"org.kde.kate"_s, DeepFocusMode::WhenForegroundFullscreen},
                                    {u"B"_s, u"org.kde.kate"_s, DeepFocusMode::WhenForeground}};
    fakes.windowList->windows.set({});
    const QList<AppSnapshot> kateFront{runningApp(u"org.kde.kate"_s, 31, true)};
    QVERIFY(!detectDeepFocusApp(kateFront, frontmostApplication(kateFront), twice, screen, windows));
}

void TestDetectionRules::passAsksOnlyWhatIsSwitchedOn()
{
    FakeDetectionProviders fakes;
    fakes.workspace->applications.set({runningApp(u"us.zoom.xos"_s, 1, true)});
    fakes.idleTime->seconds.set(600);
    fakes.camera->identifiers.set({u"cam"_s});
    fakes.screenRecording->recording.set(true);

    // Everything off: no question at all, nothing found, no time stamp.
    SmartPauseSettings settings;
    settings.detectMeetings = settings.detectVideoPlayback = settings.detectScreenRecording = false;
    settings.detectFullscreenGaming = settings.detectIdleTime = false;
    QCOMPARE(detectActivity(fakes.providers(), settings, 60), DetectionSnapshot());
    const std::initializer_list<const FakeCalls*> all{
        fakes.workspace,       fakes.idleTime,    fakes.camera,     fakes.microphone, fakes.videoPlayback,
        fakes.screenRecording, fakes.appCategory, fakes.windowList, fakes.screen,     fakes.clock};
    for (const FakeCalls* fake : all)
        QCOMPARE(fake->calls(), 0);

    // Idle alone: one question, no application list, and idleness never stamps the time.
    settings.detectIdleTime = true;
    DetectionSnapshot found = detectActivity(fakes.providers(), settings, 60);
    QVERIFY(found.isIdle);
    QCOMPARE(found.activityDetectedAt, std::nullopt);
    QCOMPARE(fakes.idleTime->calls(), 1);
    QCOMPARE(fakes.workspace->calls(), 0);

    // Everything on: one application list, the recording provider gets that same list, one time stamp.
    fakes.workspace->resetCalls();
    fakes.clock->resetCalls();
    settings = SmartPauseSettings();
    found = detectActivity(fakes.providers(), settings, 60);
    QCOMPARE(fakes.workspace->calls(), 1);
    QCOMPARE(fakes.screenRecording->lastApplications.get(), fakes.workspace->applications.get());
    QCOMPARE(fakes.clock->calls(), 1);
    QVERIFY(found.isInMeeting && found.isScreenRecording && found.isIdle && found.meetingPauseCamera);
    QCOMPARE(found.meetingPauseAppBundleIdentifier, u"us.zoom.xos"_s);
    // Each pass, even one that asks nothing, is opened and closed once around its questions.
    QCOMPARE(*fakes.passBoundaries, (QList<bool>{true, false, true, false, true, false}));
}

QTEST_GUILESS_MAIN(TestDetectionRules)
#include "tst_detectionrules.moc"
