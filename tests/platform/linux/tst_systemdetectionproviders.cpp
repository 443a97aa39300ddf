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
        const DetectionProviders providers = makeSystemDetectionProviders(m_entries);
        QVERIFY(providers.isComplete());
        const auto keys = makeSystemKeyDownTime();
        QVERIFY(dynamic_cast<const X11KeyDownTime*>(keys.get()));
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF(0, 0, 1920, 1080));
    }
    qunsetenv("DISPLAY");
    {
        MessageCapture capture;
        const DetectionProviders providers = makeSystemDetectionProviders(m_entries);
        QVERIFY(providers.isComplete());
        const auto keys = makeSystemKeyDownTime();
        QVERIFY(keys);
        QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);
        QVERIFY(providers.windowList->onScreenWindows().isEmpty());
        QCOMPARE(providers.screen->mainScreenFrame(), QRectF());
        // Without a display nothing is tried, so nothing fails.
        QVERIFY(capture.texts().filter(u"X server"_s).isEmpty());
    }
    qputenv("DISPLAY", display);
}

QTEST_GUILESS_MAIN(TestSystemDetectionProviders)
#include "tst_systemdetectionproviders.moc"
