#include "AudioService.h"
#include "MessageCapture.h"

#include <QAudioDevice>
#include <QElapsedTimer>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTest>
#include <QtEndian>

#include <cmath>
#include <limits>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Wave {
    quint32 sampleRate = 0;
    QList<qint16> samples;
};

// The little of RIFF a chime needs: the sample rate and the data chunk, other chunks skipped.
std::optional<Wave> readWave(const QByteArray& bytes)
{
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE")
        return std::nullopt;
    Wave wave;
    bool sawFormat = false;
    qsizetype at = 12;
    while (at + 8 <= bytes.size()) {
        const QByteArray id = bytes.mid(at, 4);
        const auto size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        const char* body = bytes.constData() + at + 8;
        if (at + 8 + qsizetype(size) > bytes.size())
            return std::nullopt;
        if (id == "fmt " && size >= 16) {
            wave.sampleRate = qFromLittleEndian<quint32>(body + 4);
            sawFormat = true;
        } else if (id == "data") {
            for (quint32 i = 0; i + 1 < size; i += 2)
                wave.samples.append(qFromLittleEndian<qint16>(body + i));
        }
        at += 8 + size + (size % 2);
    }
    if (!sawFormat)
        return std::nullopt;
    return wave;
}

} // namespace

class TestAudioService : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theChimesAreShortGentleRecordingsInTheBinary();
    void qtDecodesEachChime();
    void withoutAnAudioServerChimesAreSilentPromptAndQuiet();
    void unknownNamesPlayNothing();
};

void TestAudioService::initTestCase()
{
    // Whatever the machine runs, these tests see a session without a sound server.
    qputenv("PULSE_SERVER", "unix:/nonexistent/velto-test/pulse-native");
    // Qt Multimedia reports a missing sound server itself, once per process, as it starts; that line is Qt's,
    // so let it out here, before anything counts what Velto prints.
    QVERIFY(QMediaDevices::audioOutputs().isEmpty());
}

void TestAudioService::theChimesAreShortGentleRecordingsInTheBinary()
{
    QCOMPARE(AudioService::chimeNames(), (QStringList{u"Pop"_s, u"Glass"_s, u"Blow"_s}));
    for (const QString& name : AudioService::chimeNames()) {
        QFile file(AudioService::resourcePath(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        const std::optional<Wave> wave = readWave(file.readAll());
        QVERIFY2(wave, qPrintable(name));
        QVERIFY(wave->sampleRate >= 22050);

        const double seconds = double(wave->samples.size()) / wave->sampleRate;
        QVERIFY2(seconds >= 0.05 && seconds <= 1.0, qPrintable(u"%1 lasts %2 s"_s.arg(name).arg(seconds)));
        int peak = 0;
        for (const qint16 sample : wave->samples)
            peak = std::max(peak, std::abs(int(sample)));
        // Audible, yet well clear of full scale.
        QVERIFY2(peak > 3000 && peak < 26000, qPrintable(u"%1 peaks at %2"_s.arg(name).arg(peak)));
        // Starting and ending at silence keeps the speaker from clicking.
        QVERIFY(std::abs(int(wave->samples.first())) < 200);
        QVERIFY(std::abs(int(wave->samples.last())) < 200);
    }
}

void TestAudioService::qtDecodesEachChime()
{
    // Decoding needs no output device (Qt complains about the missing device, which is expected here);
    // a file Qt Multimedia cannot read ends in Error instead of Ready.
    for (const QString& name : AudioService::chimeNames()) {
        QSoundEffect effect(QMediaDevices::defaultAudioOutput());
        effect.setSource(QUrl(u"qrc"_s + AudioService::resourcePath(name)));
        QTRY_VERIFY2(effect.status() != QSoundEffect::Loading, qPrintable(name));
        QCOMPARE(effect.status(), QSoundEffect::Ready);
    }
}

void TestAudioService::withoutAnAudioServerChimesAreSilentPromptAndQuiet()
{
    MessageCapture capture;
    AudioService service;
    QElapsedTimer clock;
    clock.start();
    for (int round = 0; round < 5; ++round) {
        for (const QString& name : AudioService::chimeNames())
            service.play(name, 0.7F);
    }
    QVERIFY2(clock.elapsed() < 1000, qPrintable(u"15 chimes took %1 ms"_s.arg(clock.elapsed())));
    // Nothing is loaded into a session that cannot play it.
    QVERIFY(service.findChildren<QSoundEffect*>().isEmpty());

    // Anything Qt would print from its own threads or queued events has arrived by now.
    QTest::qWait(100);
    const QList<MessageCapture::Message> messages = capture.messages();
    QVERIFY2(messages.size() == 1, qPrintable(capture.texts().join(u'\n')));
    QCOMPARE(messages.first().category, u"velto.audio"_s);
}

void TestAudioService::unknownNamesPlayNothing()
{
    AudioService service;
    MessageCapture capture;
    // In a session without sound, a known chime would report the missing output; unknown ones do not get that
    // far.
    for (const QString& name : {u"Ping"_s, u""_s, u"glass"_s, u"Glass.wav"_s, u"gentle-chime"_s})
        service.play(name, 1.0F);
    QCOMPARE(capture.texts(), QStringList());
    service.play(u"Glass"_s, 1.0F);
    QCOMPARE(capture.messages().size(), 1);
}

QTEST_GUILESS_MAIN(TestAudioService)
#include "tst_audioservice.moc"
