// Key presses heard through XInput2 raw events while xdotool types on a private X server.
#include "MessageCapture.h"
#include "X11ProviderFixture.h"
#include "detection/X11KeyDownTime.h"

#include <atomic>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestX11KeyDownTime : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void keyPressesAreHeardOffTheMainThread();
    void withoutAServerThereIsNoListener();
    void aServerThatGoesAwayEndsTheListener();
};

void TestX11KeyDownTime::keyPressesAreHeardOffTheMainThread()
{
    std::atomic<qint64> now{5'000'000'000};
    auto keys = X11KeyDownTime::start(m_desktop.display().toLocal8Bit(), [&now] { return now.load(); });
    QVERIFY(keys);
    QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);

    QVERIFY(xdotool({u"key"_s, u"a"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 1u);
    QCOMPARE(keys->secondsSinceLastKeyDown(), 0.0);
    now += 2'500'000'000;
    QCOMPARE(keys->secondsSinceLastKeyDown(), 2.5);

    // Typing three letters is three key-downs (releases do not count); the latest resets the time.
    QVERIFY(xdotool({u"type"_s, u"abc"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 4u);
    QCOMPARE(keys->secondsSinceLastKeyDown(), 0.0);
    // Pointer input is not typing.
    QVERIFY(xdotool({u"mousemove"_s, u"300"_s, u"300"_s, u"click"_s, u"1"_s}));
    QVERIFY(xdotool({u"key"_s, u"b"_s}));
    QTRY_COMPARE(keys->keyDownCount(), 5u);
}

void TestX11KeyDownTime::withoutAServerThereIsNoListener()
{
    QVERIFY(!X11KeyDownTime::start(":199"_ba));
    NullKeyDownTime never;
    QCOMPARE(never.secondsSinceLastKeyDown(), std::nullopt);
}

void TestX11KeyDownTime::aServerThatGoesAwayEndsTheListener()
{
    XvfbDesktop shortLived;
    QVERIFY(shortLived.start(false, u"800x600x24"_s));
    auto keys = X11KeyDownTime::start(shortLived.display().toLocal8Bit());
    QVERIFY(keys);
    MessageCapture capture;
    shortLived.stop();
    QTRY_COMPARE(capture.texts().size(), 1);
    QCOMPARE(keys->secondsSinceLastKeyDown(), std::nullopt);
    keys.reset(); // the listener's thread has ended; this returns at once
}

QTEST_GUILESS_MAIN(TestX11KeyDownTime)
#include "tst_x11keydowntime.moc"
