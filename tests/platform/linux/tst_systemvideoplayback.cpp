// Playback through MPRIS on a private session bus: fake players on connections of their own, some playing,
// some paused, one hung; the provider is asked from a worker thread as detection does.
#include "FakeBusServices.h"
#include "MessageCapture.h"
#include "detection/SystemMediaProviders.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString mprisPath = u"/org/mpris/MediaPlayer2"_s;

std::unique_ptr<FakeService> player(const QString& busSuffix, const QString& desktopEntry, const QString& status)
{
    auto service = std::make_unique<FakeService>(u"org.mpris.MediaPlayer2."_s + busSuffix, mprisPath);
    service->object.properties.insert(u"DesktopEntry"_s, desktopEntry);
    service->object.properties.insert(u"PlaybackStatus"_s, status);
    return service;
}

} // namespace

class TestSystemVideoPlayback : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void identitiesWithoutAPlaybackQueryAreNeverAsked_data();
    void identitiesWithoutAPlaybackQueryAreNeverAsked();
    void thePlayerOfTheIdentityIsFoundByBusNameOrDesktopEntry();
    void onlyPlayingCounts_data();
    void onlyPlayingCounts();
    void aHungPlayerCostsOneTimeoutAndNoAnswer();
    void withoutABusPlayersAnswerFalseAndSayItOnce();
};

void TestSystemVideoPlayback::identitiesWithoutAPlaybackQueryAreNeverAsked_data()
{
    QTest::addColumn<QString>("identity");
    QTest::newRow("browser") << u"firefox"_s;
    QTest::newRow("unknown") << u"org.example.Editor"_s;
    QTest::newRow("empty") << QString();
}

void TestSystemVideoPlayback::identitiesWithoutAPlaybackQueryAreNeverAsked()
{
    QFETCH(QString, identity);
    // A player under exactly that name, playing: still not asked.
    auto browser = player(identity.isEmpty() ? u"empty"_s : identity, identity, u"Playing"_s);
    const SystemVideoPlayback playback(QDBusConnection::sessionBus());
    QVERIFY(!askOffThread([&] { return playback.isPlaying(identity); }));
    QCOMPARE(browser->object.calls.load(), 0);
}

void TestSystemVideoPlayback::thePlayerOfTheIdentityIsFoundByBusNameOrDesktopEntry()
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

void TestSystemVideoPlayback::onlyPlayingCounts_data()
{
    QTest::addColumn<QVariant>("status");
    QTest::addColumn<bool>("playing");
    QTest::newRow("Playing") << QVariant(u"Playing"_s) << true;
    QTest::newRow("Paused") << QVariant(u"Paused"_s) << false;
    QTest::newRow("lower case") << QVariant(u"playing"_s) << false;
    QTest::newRow("not a string") << QVariant(1) << false;
    QTest::newRow("missing") << QVariant() << false;
}

void TestSystemVideoPlayback::onlyPlayingCounts()
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

void TestSystemVideoPlayback::aHungPlayerCostsOneTimeoutAndNoAnswer()
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

void TestSystemVideoPlayback::withoutABusPlayersAnswerFalseAndSayItOnce()
{
    const SystemVideoPlayback playback(QDBusConnection(u"not connected"_s));
    MessageCapture capture;
    QVERIFY(!playback.isPlaying(u"vlc"_s));
    QVERIFY(!playback.isPlaying(u"mpv"_s));
    QCOMPARE(capture.texts().size(), 1);
}

QTEST_GUILESS_MAIN(TestSystemVideoPlayback)
#include "tst_systemvideoplayback.moc"
