// Smart Pause in Wayland sessions: the providers the application builds, against real headless compositors.
#include "HeadlessCompositor.h"
#include "MessageCapture.h"
#include "SystemDetectionProviders.h"
#include "detection/DetectionRules.h"
#include "wayland/GnomeShellToplevels.h"
#include "wayland/KWinScriptToplevels.h"
#include "wayland/WaylandProviders.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QTemporaryDir>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

struct FakeSource final : ToplevelSource {
    FakeSource(QString n, bool isUp)
        : sourceName(std::move(n))
        , available(isUp)
    {}
    [[nodiscard]] bool isAvailable() const override { return available; }
    [[nodiscard]] QString name() const override { return sourceName; }
    [[nodiscard]] WaylandFacts facts() const override { return {{{sourceName, {0, 0, 10, 10}}}, {}}; }
    QString sourceName;
    bool available;
};

bool writeTestFile(const QString& path, const QByteArray& contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

std::optional<AppSnapshot> appNamed(const QList<AppSnapshot>& apps, const QString& identity)
{
    for (const AppSnapshot& app : apps) {
        if (app.bundleIdentifier == identity)
            return app;
    }
    return std::nullopt;
}

} // namespace

class TestWaylandProviders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dataDir.isValid());
        QVERIFY(writeTestFile(m_dataDir.filePath(u"applications/com.example.Racer.desktop"_s),
                              "[Desktop Entry]\nType=Application\nName=Racer\nExec=racer\nCategories=Game;\n"));
        m_entries = std::make_shared<DesktopEntryIndex>(QStringList{m_dataDir.filePath(u"applications"_s)});
        m_environment = QProcessEnvironment::systemEnvironment();
    }

    void cleanup()
    {
        m_detection = {};
        m_compositor.stop();
        for (const QString& name : {u"WAYLAND_DISPLAY"_s, u"XDG_SESSION_TYPE"_s, u"DISPLAY"_s}) {
            if (m_environment.contains(name))
                qputenv(name.toLocal8Bit().constData(), m_environment.value(name).toLocal8Bit());
            else
                qunsetenv(name.toLocal8Bit().constData());
        }
    }

    void theFirstAvailableSourceAnswers()
    {
        auto late = std::make_shared<FakeSource>(u"script"_s, false);
        FirstAvailableToplevels chain(
            {std::make_shared<FakeSource>(u"protocol"_s, false), late, std::make_shared<FakeSource>(u"other"_s, true)});
        QCOMPARE(chain.name(), u"other"_s);
        late->available = true; // a source that starts working later in the session takes over by itself
        QCOMPARE(chain.name(), u"script"_s);
        QCOMPARE(chain.facts().outputs.value(0).name, u"script"_s);
        QCOMPARE(FirstAvailableToplevels({}).name(), u"none"_s);
        QVERIFY(FirstAvailableToplevels({}).facts().toplevels.isEmpty());
    }

    // wlroots: foreign toplevels (no pids) and KDE's idle protocol; two outputs of different sizes.
    void swaySeesWindowsFullscreenIdleAndTyping()
    {
        startSession(HeadlessCompositor::Kind::Sway, {});
        QCOMPARE(m_detection.sources().value(u"windows"_s), u"wlr-foreign-toplevel"_s);
        QCOMPARE(m_detection.sources().value(u"idle"_s), u"kde-idle"_s);
        const DetectionProviders& providers = m_detection.providers;

        // A meeting application in front, by its app_id; the recording rule reads the titles.
        QVERIFY(open({u"--app-id"_s, u"us.zoom.Zoom"_s, u"--title"_s, u"Zoom Meeting"_s}));
        QTRY_VERIFY(pass().isInMeeting);
        const QList<AppSnapshot> apps = providers.workspace->runningApplications();
        QCOMPARE(DetectionRules::frontmostApplication(apps)->bundleIdentifier, u"us.zoom.Zoom"_s);
        QVERIFY(!pass().isScreenRecording);
        QProcess* recorder = open({u"--app-id"_s, u"org.example.Notes"_s, u"--title"_s, u"Screen Recording 00:12"_s});
        QVERIFY(recorder);
        QTRY_VERIFY(pass().isScreenRecording);
        // A window that closes is gone from the next pass.
        m_compositor.closeWindow(recorder);
        QTRY_VERIFY(!pass().isScreenRecording);

        // A game fullscreen on the smaller second output while its other window has the focus on the first: the
        // main screen is the focused window's, which the fullscreen one does not cover.
        QVERIFY(open({u"--app-id"_s, u"com.example.Racer"_s, u"--title"_s, u"Racer launcher"_s}));
        QTRY_COMPARE(m_compositor.swayFocusedAppId(), u"com.example.Racer"_s);
        QVERIFY(open({u"--app-id"_s, u"com.example.Racer"_s, u"--title"_s, u"Racer"_s, u"--fullscreen"_s, u"--output"_s,
                      u"1"_s}));
        QTRY_COMPARE(providers.windowList->onScreenWindows().size(), 3);
        QTRY_COMPARE(providers.screen->mainScreenFrame(), QRectF(0, 0, 1920, 1080));
        QTRY_COMPARE(m_detection.focusedOutput(), u"HEADLESS-1"_s);
        QVERIFY(!pass().isInFullscreenGame);
        QVERIFY(m_compositor.swayCommand(u"[title=\"^Racer$\"] focus"_s));
        QTRY_COMPARE(providers.screen->mainScreenFrame(), QRectF(1920, 0, 1280, 720));
        QTRY_COMPARE(m_detection.focusedOutput(), u"HEADLESS-2"_s);
        QVERIFY(pass().isInFullscreenGame);
        QVERIFY(!pass().isInMeeting);

        // Input stops: idle from two seconds on, and the typing stand-in lets go; a key brings both back.
        QTRY_VERIFY_WITH_TIMEOUT(providers.idleTime->secondsSinceLastInput() >= 2.5, 6000);
        QVERIFY(pass(2.5).isIdle);
        QVERIFY(m_detection.keyDownTime->secondsSinceLastKeyDown().value_or(0) >= 2.5);
        QVERIFY(m_compositor.run(u"wtype"_s, {u"-s"_s, u"200"_s, u"x"_s}));
        QTRY_VERIFY(!pass(2.5).isIdle);
        QCOMPARE(m_detection.keyDownTime->secondsSinceLastKeyDown(), 0.0);

        // The compositor goes away mid-session: neutral answers, at once.
        MessageCapture capture;
        m_compositor.stop();
        QTRY_COMPARE(m_detection.sources().value(u"windows"_s), u"none"_s);
        QVERIFY(providers.windowList->onScreenWindows().isEmpty());
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF());
        QCOMPARE(providers.idleTime->secondsSinceLastInput(), 0.0);
        QCOMPARE(m_detection.keyDownTime->secondsSinceLastKeyDown(), std::nullopt);
        QVERIFY(!pass().isInFullscreenGame);
    }

    // KDE: plasma window management (with pids) once KWin grants it through the desktop file, ext-idle-notify.
    void kwinSeesWindowsWithTheirProcesses()
    {
        HeadlessCompositor::Options options;
        options.kwinInterfaces.insert(QCoreApplication::applicationFilePath(), {u"org_kde_plasma_window_management"_s});
        startSession(HeadlessCompositor::Kind::KWin, options);
        QCOMPARE(m_detection.sources().value(u"windows"_s), u"kde-plasma-window-management"_s);
        QCOMPARE(m_detection.sources().value(u"idle"_s), u"ext-idle-notify"_s);
        const DetectionProviders& providers = m_detection.providers;

        QProcess* meeting = open({u"--app-id"_s, u"us.zoom.Zoom"_s, u"--title"_s, u"Zoom Meeting"_s});
        QVERIFY(meeting);
        QTRY_VERIFY(pass().isInMeeting);
        const auto zoom = appNamed(providers.workspace->runningApplications(), u"us.zoom.Zoom"_s);
        QVERIFY(zoom);
        QCOMPARE(zoom->processIdentifier, qint32(meeting->processId()));

        QVERIFY(open({u"--app-id"_s, u"com.example.Racer"_s, u"--title"_s, u"Racer"_s, u"--fullscreen"_s}));
        QTRY_VERIFY(pass().isInFullscreenGame);
        QVERIFY(!pass().isInMeeting);
        QTRY_VERIFY_WITH_TIMEOUT(providers.idleTime->secondsSinceLastInput() >= 2.5, 6000);
        QVERIFY(pass(2.5).isIdle);
    }

    // Without the grant, our KWin script reports KWin's windows over KWin's bus; the outputs come from our link.
    void kwinWithoutTheGrantReportsThroughItsScript()
    {
        startSession(HeadlessCompositor::Kind::KWin, {}, /*expectWindows=*/false);
        QDBusConnection kwinBus = QDBusConnection::connectToBus(m_compositor.busAddress(), u"kwin-bus"_s);
        const auto link = WaylandLink::connect(m_compositor.socketPath().toLocal8Bit());
        QVERIFY(link && link->waitUntilReady(5000));
        QCOMPARE(link->toplevels(), WaylandLink::Toplevels::None);
        {
            KWinScriptToplevels script(kwinBus, link);
            QVERIFY(script.start());
            QProcess* game = open({u"--app-id"_s, u"com.example.Racer"_s, u"--title"_s, u"Racer"_s, u"--fullscreen"_s,
                                   u"--output"_s, u"1"_s});
            QVERIFY(game);
            QTRY_VERIFY(script.isAvailable());
            QTRY_COMPARE(script.facts().toplevels.size(), 1);
            const WaylandToplevel racer = script.facts().toplevels.constFirst();
            QCOMPARE(racer.appId, u"com.example.Racer"_s);
            QCOMPARE(racer.title, u"Racer"_s);
            QCOMPARE(racer.pid, qint32(game->processId()));
            QVERIFY(racer.activated && racer.fullscreen);
            QCOMPARE(racer.output, 1);
            m_compositor.closeWindow(game);
            QTRY_VERIFY(script.facts().toplevels.isEmpty());
        }
        QDBusConnection::disconnectFromBus(u"kwin-bus"_s);
    }

    // Without the grant KWin offers an ordinary client no window list, and Weston offers nothing at all: the
    // answers stay those of a session with no such facility.
    void withoutAProtocolTheAnswersStayNeutral_data()
    {
        QTest::addColumn<HeadlessCompositor::Kind>("kind");
        QTest::addColumn<QString>("idle");
        QTest::newRow("KWin without the grant") << HeadlessCompositor::Kind::KWin << u"ext-idle-notify"_s;
        QTest::newRow("Weston") << HeadlessCompositor::Kind::Weston << u"session-bus"_s;
    }
    void withoutAProtocolTheAnswersStayNeutral()
    {
        QFETCH(HeadlessCompositor::Kind, kind);
        QFETCH(QString, idle);
        startSession(kind, {}, /*expectWindows=*/false);
        QCOMPARE(m_detection.sources().value(u"idle"_s), idle);
        QVERIFY(open({u"--app-id"_s, u"us.zoom.Zoom"_s, u"--title"_s, u"Zoom Meeting"_s}));
        QCOMPARE(m_detection.sources().value(u"windows"_s), u"none"_s);
        QVERIFY(m_detection.providers.windowList->onScreenWindows().isEmpty());
        QVERIFY(!pass().isInMeeting);
    }

    // GNOME Shell with Velto's extension: the window facts, to the owner of Velto's name alone, and a signal
    // without data when they change.
    void gnomeExtensionTellsVeltoAlone()
    {
        if (!HeadlessCompositor::isAvailable(HeadlessCompositor::Kind::Gnome))
            QSKIP("GNOME Shell is not installed");
        HeadlessCompositor::Options options;
        options.gnomeExtensions = {QStringLiteral(VELTO_GNOME_EXTENSION)};
        QVERIFY(m_compositor.start(HeadlessCompositor::Kind::Gnome, options));
        QDBusConnection velto = QDBusConnection::connectToBus(m_compositor.busAddress(), u"velto"_s);
        QDBusConnection stranger = QDBusConnection::connectToBus(m_compositor.busAddress(), u"stranger"_s);
        QVERIFY(velto.registerService(u"com.velto.app"_s));
        const auto ask = [](QDBusConnection& bus, const QString& method) {
            return bus.call(QDBusMessage::createMethodCall(u"com.velto.app.Shell"_s, u"/com/velto/app/Shell"_s,
                                                           u"com.velto.app.Shell1"_s, method));
        };
        const auto focused = [&] {
            const QDBusMessage reply = ask(velto, u"FocusedWindow"_s);
            return qdbus_cast<QVariantMap>(reply.arguments().value(0));
        };
        QTRY_COMPARE(ask(velto, u"Windows"_s).type(), QDBusMessage::ReplyMessage);
        QVERIFY(velto.connect(u"com.velto.app.Shell"_s, u"/com/velto/app/Shell"_s, u"com.velto.app.Shell1"_s,
                              u"WindowsChanged"_s, this, SLOT(shellWindowsChanged())));
        const int& changes = m_shellChanges;

        // Velto's source, beside the extension: what it reports is what Smart Pause reads.
        const auto link = WaylandLink::connect(m_compositor.socketPath().toLocal8Bit());
        QVERIFY(link);
        GnomeShellToplevels source(velto, link);
        source.start();
        const auto front = [&source]() -> WaylandToplevel {
            for (const WaylandToplevel& toplevel : source.facts().toplevels) {
                if (toplevel.activated)
                    return toplevel;
            }
            return {};
        };

        QVERIFY(open({u"--app-id"_s, u"us.zoom.Zoom"_s, u"--title"_s, u"Zoom Meeting"_s}));
        QTRY_COMPARE(focused().value(u"appId"_s).toString(), u"us.zoom.Zoom"_s);
        QTRY_COMPARE(front().appId, u"us.zoom.Zoom"_s);
        QCOMPARE(source.name(), u"gnome-extension"_s);
        QVERIFY(front().pid > 0);
        QCOMPARE(front().output, 0);
        QTRY_VERIFY(changes > 0);
        QVariantMap window = focused();
        QCOMPARE(window.value(u"title"_s).toString(), u"Zoom Meeting"_s);
        QVERIFY(window.value(u"pid"_s).toInt() > 0);
        QVERIFY(!window.value(u"fullscreen"_s).toBool());
        QVERIFY(window.value(u"primary"_s).toBool());

        // A fullscreen game on the second monitor.
        QVERIFY(open({u"--app-id"_s, u"com.example.Racer"_s, u"--fullscreen"_s, u"--output"_s, u"1"_s}));
        QTRY_COMPARE(focused().value(u"appId"_s).toString(), u"com.example.Racer"_s);
        window = focused();
        QVERIFY(window.value(u"fullscreen"_s).toBool());
        QVERIFY(!window.value(u"primary"_s).toBool());
        QTRY_COMPARE(front().appId, u"com.example.Racer"_s);
        QVERIFY(front().fullscreen);
        QCOMPARE(front().output, 1);
        QCOMPARE(source.facts().toplevels.size(), 2);
        QStringList titles;
        const QDBusArgument list = ask(velto, u"Windows"_s).arguments().value(0).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QVariantMap each;
            list >> each;
            titles << each.value(u"appId"_s).toString();
        }
        list.endArray();
        titles.sort();
        QCOMPARE(titles, (QStringList{u"com.example.Racer"_s, u"us.zoom.Zoom"_s}));

        // Anyone else on the bus is refused.
        QCOMPARE(ask(stranger, u"FocusedWindow"_s).errorName(), u"org.freedesktop.DBus.Error.AccessDenied"_s);
        QCOMPARE(ask(stranger, u"Windows"_s).errorName(), u"org.freedesktop.DBus.Error.AccessDenied"_s);

        // Switched off, it leaves the bus; switched on again, it answers as before.
        const auto shellOwned = [&] {
            return velto.interface()->isServiceRegistered(u"com.velto.app.Shell"_s).value();
        };
        QVERIFY(m_compositor.gnomeEval(u"Main.extensionManager.disableExtension('velto@velto.app')"_s));
        QTRY_VERIFY(!shellOwned());
        QTRY_VERIFY(!source.isAvailable()); // neutral answers, as without the extension
        QVERIFY(m_compositor.gnomeEval(u"Main.extensionManager.enableExtension('velto@velto.app')"_s));
        QTRY_COMPARE(focused().value(u"appId"_s).toString(), u"com.example.Racer"_s);
        QTRY_COMPARE(front().appId, u"com.example.Racer"_s);
        QDBusConnection::disconnectFromBus(u"velto"_s);
        QDBusConnection::disconnectFromBus(u"stranger"_s);
    }

public Q_SLOTS:
    void shellWindowsChanged() { ++m_shellChanges; }

private:
    void startSession(HeadlessCompositor::Kind kind, const HeadlessCompositor::Options& options,
                      bool expectWindows = true)
    {
        if (!HeadlessCompositor::isAvailable(kind))
            QSKIP("This compositor is not installed");
        QVERIFY(m_compositor.start(kind, options));
        qputenv("WAYLAND_DISPLAY", m_compositor.socketPath().toLocal8Bit());
        qputenv("XDG_SESSION_TYPE", "wayland");
        qunsetenv("DISPLAY");
        m_detection = makeSystemDetection(m_entries);
        if (expectWindows)
            QTRY_VERIFY(m_detection.sources().value(u"windows"_s) != u"none"_s);
        else
            QTRY_VERIFY(m_detection.sources().value(u"idle"_s) != u"session-bus"_s ||
                        kind == HeadlessCompositor::Kind::Weston);
    }

    QProcess* open(const QStringList& arguments)
    {
        return m_compositor.openWindow(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW), arguments);
    }

    DetectionSnapshot pass(double idleThreshold = 300) const
    {
        SmartPauseSettings settings;
        return DetectionRules::detectActivity(m_detection.providers, settings, idleThreshold);
    }

    QTemporaryDir m_dataDir;
    std::shared_ptr<DesktopEntryIndex> m_entries;
    QProcessEnvironment m_environment;
    HeadlessCompositor m_compositor;
    SystemDetection m_detection;
    int m_shellChanges = 0;
};

QTEST_GUILESS_MAIN(TestWaylandProviders)
#include "tst_waylandproviders.moc"
