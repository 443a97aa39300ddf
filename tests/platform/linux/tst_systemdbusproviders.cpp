// The providers that ask the session bus: media players through MPRIS, and idle time where there is no X
// server. Runs on a private bus (velto_add_dbus_test); fake players and idle monitors live on connections
// of their own, so every call crosses a real bus daemon. The providers are asked from a worker thread, as
// detection does, while the main thread serves the fakes.
#include "MessageCapture.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <chrono>
#include <future>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// One object that answers property reads (and, for idle monitors, method calls) by hand, so it can also stay
// silent like a hung application.
class FakeBusObject final : public QDBusVirtualObject {
public:
    QHash<QString, QVariant> properties;
    QHash<QString, QVariant> methodResults;
    std::atomic<bool> silent = false;
    std::atomic<int> calls = 0;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        ++calls;
        if (silent)
            return true; // and never reply
        if (message.interface() == u"org.freedesktop.DBus.Properties"_s && message.member() == u"Get"_s) {
            const QString name = message.arguments().value(1).toString();
            if (!properties.contains(name))
                return connection.send(message.createErrorReply(QDBusError::UnknownProperty, name));
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(properties.value(name)))));
        }
        if (methodResults.contains(message.member()))
            return connection.send(message.createReply(methodResults.value(message.member())));
        return connection.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
    }
};

// A service on a connection of its own, gone with it.
class FakeService final {
public:
    FakeService(const QString& busName, const QString& path)
        : m_connectionName(u"fake-"_s + busName)
        , m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
    {
        m_connection.registerVirtualObject(path, &object);
        m_connection.registerService(busName);
    }
    ~FakeService()
    {
        m_connection.unregisterObject(u"/"_s);
        QDBusConnection::disconnectFromBus(m_connectionName);
    }
    FakeBusObject object;

private:
    QString m_connectionName;
    QDBusConnection m_connection;
};

const QString mprisPath = u"/org/mpris/MediaPlayer2"_s;

std::unique_ptr<FakeService> player(const QString& busSuffix, const QString& desktopEntry, const QString& status)
{
    auto service = std::make_unique<FakeService>(u"org.mpris.MediaPlayer2."_s + busSuffix, mprisPath);
    service->object.properties.insert(u"DesktopEntry"_s, desktopEntry);
    service->object.properties.insert(u"PlaybackStatus"_s, status);
    return service;
}

// Runs the question on a worker thread while this thread keeps serving the fakes.
template <typename Question>
auto askOffThread(Question question, qint64* milliseconds = nullptr)
{
    QElapsedTimer timer;
    timer.start();
    auto answer = std::async(std::launch::async, question);
    while (answer.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    if (milliseconds)
        *milliseconds = timer.elapsed();
    return answer.get();
}

} // namespace

class TestSystemDBusProviders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void identitiesWithoutAPlaybackQueryAreNeverAsked_data();
    void identitiesWithoutAPlaybackQueryAreNeverAsked();
    void thePlayerOfTheIdentityIsFoundByBusNameOrDesktopEntry();
    void onlyPlayingCounts_data();
    void onlyPlayingCounts();
    void aHungPlayerCostsOneTimeoutAndNoAnswer();
    void withoutABusPlayersAnswerFalseAndSayItOnce();

    void idleTimeComesFromMutterFirstThenTheScreenSaver();
    void idleTimeIsZeroWhenNoMonitorAnswers();
};

void TestSystemDBusProviders::initTestCase()
{
    QVERIFY(QDBusConnection::sessionBus().isConnected());
}

void TestSystemDBusProviders::identitiesWithoutAPlaybackQueryAreNeverAsked_data()
{
    QTest::addColumn<QString>("identity");
    QTest::newRow("browser") << u"firefox"_s;
    QTest::newRow("browser, written identity") << u"com.google.Chrome"_s;
    QTest::newRow("streaming application") << u"com.netflix.Netflix"_s;
    QTest::newRow("unknown") << u"org.example.Editor"_s;
    QTest::newRow("empty") << QString();
}

void TestSystemDBusProviders::identitiesWithoutAPlaybackQueryAreNeverAsked()
{
    QFETCH(QString, identity);
    // A player under exactly that name, playing: still not asked.
    auto browser = player(identity.isEmpty() ? u"empty"_s : identity, identity, u"Playing"_s);
    const SystemVideoPlayback playback(QDBusConnection::sessionBus());
    QVERIFY(!askOffThread([&] { return playback.isPlaying(identity); }));
    QCOMPARE(browser->object.calls.load(), 0);
}

void TestSystemDBusProviders::thePlayerOfTheIdentityIsFoundByBusNameOrDesktopEntry()
{
    auto mpv = player(u"mpv"_s, u"mpv"_s, u"Paused"_s);
    // Bus names with an instance suffix, as VLC registers them.
    auto vlc = player(u"vlc.instance4242"_s, u"vlc"_s, u"Playing"_s);
    // A sandboxed player named on the bus by its short name; its DesktopEntry is the Flatpak ID.
    auto celluloid = player(u"GnomeMpv"_s, u"io.github.celluloid_player.Celluloid"_s, u"Playing"_s);
    const SystemVideoPlayback playback(QDBusConnection::sessionBus());

    QVERIFY(askOffThread([&] { return playback.isPlaying(u"vlc"_s); }));
    QVERIFY(askOffThread([&] { return playback.isPlaying(u"io.github.celluloid_player.Celluloid"_s); }));
    // VLC plays, mpv does not: each identity answers for its own player only.
    QVERIFY(!askOffThread([&] { return playback.isPlaying(u"mpv"_s); }));
    QVERIFY(!askOffThread([&] { return playback.isPlaying(u"org.gnome.Totem"_s); }));

    vlc.reset();
    QVERIFY(!askOffThread([&] { return playback.isPlaying(u"vlc"_s); }));
}

void TestSystemDBusProviders::onlyPlayingCounts_data()
{
    QTest::addColumn<QVariant>("status");
    QTest::addColumn<bool>("playing");
    QTest::newRow("Playing") << QVariant(u"Playing"_s) << true;
    QTest::newRow("Paused") << QVariant(u"Paused"_s) << false;
    QTest::newRow("Stopped") << QVariant(u"Stopped"_s) << false;
    QTest::newRow("lower case") << QVariant(u"playing"_s) << false;
    QTest::newRow("not a string") << QVariant(1) << false;
    QTest::newRow("missing") << QVariant() << false;
}

void TestSystemDBusProviders::onlyPlayingCounts()
{
    QFETCH(QVariant, status);
    QFETCH(bool, playing);
    auto totem = player(u"totem"_s, u"org.gnome.Totem"_s, QString());
    totem->object.properties.remove(u"PlaybackStatus"_s);
    if (status.isValid())
        totem->object.properties.insert(u"PlaybackStatus"_s, status);
    const SystemVideoPlayback playback(QDBusConnection::sessionBus());
    QCOMPARE(askOffThread([&] { return playback.isPlaying(u"totem"_s); }), playing);
}

void TestSystemDBusProviders::aHungPlayerCostsOneTimeoutAndNoAnswer()
{
    auto hung = player(u"haruna"_s, u"org.kde.haruna"_s, u"Playing"_s);
    hung->object.silent = true;
    auto vlc = player(u"vlc"_s, u"vlc"_s, u"Playing"_s);
    const SystemVideoPlayback playback(QDBusConnection::sessionBus());
    MessageCapture capture;

    qint64 elapsed = 0;
    QVERIFY(!askOffThread([&] { return playback.isPlaying(u"haruna"_s); }, &elapsed));
    QVERIFY2(elapsed >= SystemVideoPlayback::callTimeout - 50 && elapsed < 2 * SystemVideoPlayback::callTimeout,
             QByteArray::number(elapsed).constData());

    // Another identity must ask the hung player for its DesktopEntry: one more timeout, then the right answer.
    QVERIFY(askOffThread([&] { return playback.isPlaying(u"vlc"_s); }, &elapsed));
    QVERIFY2(elapsed < 3 * SystemVideoPlayback::callTimeout, QByteArray::number(elapsed).constData());
    QCOMPARE(capture.texts().size(), 1);
}

void TestSystemDBusProviders::withoutABusPlayersAnswerFalseAndSayItOnce()
{
    const SystemVideoPlayback playback(QDBusConnection(u"not connected"_s));
    MessageCapture capture;
    QVERIFY(!playback.isPlaying(u"vlc"_s));
    QVERIFY(!playback.isPlaying(u"mpv"_s));
    QCOMPARE(capture.texts().size(), 1);
}

void TestSystemDBusProviders::idleTimeComesFromMutterFirstThenTheScreenSaver()
{
    MessageCapture capture;
    auto noDisplay = std::make_shared<X11Link>(":198"_ba);
    const SystemIdleTime idle(noDisplay, QDBusConnection::sessionBus());
    auto saver = std::make_unique<FakeService>(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s);
    saver->object.methodResults.insert(u"GetSessionIdleTime"_s, QVariant::fromValue(17u));
    QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }), 17.0);

    auto mutter =
        std::make_unique<FakeService>(u"org.gnome.Mutter.IdleMonitor"_s, u"/org/gnome/Mutter/IdleMonitor/Core"_s);
    mutter->object.methodResults.insert(u"GetIdletime"_s, QVariant::fromValue(quint64(4200)));
    QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }), 4.2);
    QCOMPARE(saver->object.calls.load(), 1);
}

void TestSystemDBusProviders::idleTimeIsZeroWhenNoMonitorAnswers()
{
    MessageCapture capture;
    const SystemIdleTime idle(std::make_shared<X11Link>(":198"_ba), QDBusConnection::sessionBus());
    auto saver = std::make_unique<FakeService>(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s);
    saver->object.silent = true;
    qint64 elapsed = 0;
    for (int pass = 0; pass < 2; ++pass)
        QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }, &elapsed), 0.0);
    QVERIFY2(elapsed < 2 * SystemIdleTime::callTimeout, QByteArray::number(elapsed).constData());
    // No X server and no monitor: each said once.
    QCOMPARE(capture.texts().size(), 2);
}

QTEST_GUILESS_MAIN(TestSystemDBusProviders)
#include "tst_systemdbusproviders.moc"
