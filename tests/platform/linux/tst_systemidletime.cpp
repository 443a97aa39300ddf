// Idle time from the X server, and from the desktop's idle monitors on a private session bus (fakes on
// connections of their own, asked from a worker thread as detection does).
#include "FakeBusServices.h"
#include "MessageCapture.h"
#include "X11ProviderFixture.h"
#include "detection/SystemX11Providers.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemIdleTime : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void idleTimeIsResetByInput();
    void idleTimeComesFromMutterFirstThenTheScreenSaver();
    void idleTimeIsZeroWhenNoMonitorAnswers();
    void withoutAServerOrABusIdleTimeIsZeroAndSaidOnce();
};

void TestSystemIdleTime::idleTimeIsResetByInput()
{
    SystemIdleTime idle(m_link, QDBusConnection(u"none"_s));
    // The server's own clock runs here; wait until it shows some idleness, then touch a key.
    QTRY_VERIFY(idle.secondsSinceLastInput() >= 0.3);
    const double before = idle.secondsSinceLastInput();
    QVERIFY(xdotool({u"key"_s, u"shift"_s}));
    QVERIFY(idle.secondsSinceLastInput() < before);
    QVERIFY(idle.secondsSinceLastInput() < 0.3);

    // In a Wayland session the X server's count is not the user's: without an idle monitor on the bus the
    // answer is 0, never idle.
    SystemIdleTime wayland(m_link, QDBusConnection(u"none"_s), SystemIdleTime::Source::BusOnly);
    QTRY_VERIFY(idle.secondsSinceLastInput() >= 0.3);
    QCOMPARE(wayland.secondsSinceLastInput(), 0.0);
}

void TestSystemIdleTime::idleTimeComesFromMutterFirstThenTheScreenSaver()
{
    MessageCapture capture;
    auto noDisplay = std::make_shared<X11Link>(":198"_ba);
    const SystemIdleTime idle(noDisplay, QDBusConnection::sessionBus());
    auto saver = std::make_unique<FakeService>(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s);
    saver->object.methodResults.insert(u"GetSessionIdleTime"_s, QVariant::fromValue(17u));
    QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }), 17.0);
    // KDE's screen locker, which also owns org.kde.screensaver, answers the same call in milliseconds.
    saver.reset();
    saver = std::make_unique<FakeService>(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s);
    saver->alsoOwn(u"org.kde.screensaver"_s);
    saver->object.methodResults.insert(u"GetSessionIdleTime"_s, QVariant::fromValue(17500u));
    QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }), 17.5);

    auto mutter =
        std::make_unique<FakeService>(u"org.gnome.Mutter.IdleMonitor"_s, u"/org/gnome/Mutter/IdleMonitor/Core"_s);
    mutter->object.methodResults.insert(u"GetIdletime"_s, QVariant::fromValue(quint64(4200)));
    QCOMPARE(askOffThread([&] { return idle.secondsSinceLastInput(); }), 4.2);
    QCOMPARE(saver->object.calls.load(), 1);
}

void TestSystemIdleTime::idleTimeIsZeroWhenNoMonitorAnswers()
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

void TestSystemIdleTime::withoutAServerOrABusIdleTimeIsZeroAndSaidOnce()
{
    MessageCapture capture;
    const SystemIdleTime idle(std::make_shared<X11Link>(":199"_ba), QDBusConnection(u"none"_s));
    for (int pass = 0; pass < 2; ++pass)
        QCOMPARE(idle.secondsSinceLastInput(), 0.0);
    // No X server, no bus: each said once.
    QCOMPARE(capture.texts().size(), 2);
}

QTEST_GUILESS_MAIN(TestSystemIdleTime)
#include "tst_systemidletime.moc"
