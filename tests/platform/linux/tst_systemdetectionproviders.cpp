// The providers the application builds, with and without a display.
#include "MessageCapture.h"
#include "SystemDetectionProviders.h"
#include "X11ProviderFixture.h"
#include "detection/X11KeyDownTime.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemDetectionProviders : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void theFactoryAnswersForThisSession();
};

void TestSystemDetectionProviders::theFactoryAnswersForThisSession()
{
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", m_desktop.display().toLocal8Bit());
    {
        const SystemDetection detection = makeSystemDetection(m_entries);
        QVERIFY(detection.providers.isComplete());
        QVERIFY(dynamic_cast<const X11KeyDownTime*>(detection.keyDownTime.get()));
        QCOMPARE(detection.providers.screen->mainScreenFrame(), QRectF(0, 0, 1920, 1080));
        QCOMPARE(detection.sources().value(u"typing"_s), u"x11-xinput2"_s);
    }
    qunsetenv("DISPLAY");
    {
        MessageCapture capture;
        const SystemDetection detection = makeSystemDetection(m_entries);
        const DetectionProviders& providers = detection.providers;
        QVERIFY(providers.isComplete());
        QVERIFY(detection.keyDownTime);
        QCOMPARE(detection.keyDownTime->secondsSinceLastKeyDown(), std::nullopt);
        QCOMPARE(detection.sources().value(u"windows"_s), u"none"_s);
        QVERIFY(providers.windowList->onScreenWindows().isEmpty());
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF());
        // Without a display nothing is tried, so nothing fails.
        QVERIFY(capture.texts().filter(u"X server"_s).isEmpty());
    }
    qputenv("DISPLAY", display);
}

QTEST_GUILESS_MAIN(TestSystemDetectionProviders)
#include "tst_systemdetectionproviders.moc"
