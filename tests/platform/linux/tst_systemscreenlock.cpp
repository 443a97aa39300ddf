#include "FakeLockServices.h"
#include "MessageCapture.h"
#include "PrivateSystemBus.h"
#include "SystemScreenLock.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString screenSaverName = u"org.freedesktop.ScreenSaver"_s;
const QString logindName = u"org.freedesktop.login1"_s;

} // namespace

// Runs under dbus-run-session (see velto_add_dbus_test), so the session bus is private to this process. There is
// no system bus on a build machine, so the test starts one of its own for logind and points the process at it
// before anything connects. The fakes live on connections of their own: calls to them cross a real bus daemon.
class TestSystemScreenLock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void availabilityFollowsTheLockersOnTheBuses();
    void theScreenSaverLocksFirst_data();
    void theScreenSaverLocksFirst();
    void logindLocksWhenTheScreenSaverCannot_data();
    void logindLocksWhenTheScreenSaverCannot();
    void withoutASessionIdLogindIsAskedForOurSession();
    void failedAttemptsFinishAndReportOnce();
    void withoutAnyBusNothingIsAvailableAndNothingWaits();
    void aLockDestroyedMidAttemptIsSafe();

private:
    void offerScreenSaver(const QString& path, FakeScreenSaver::Answer answer);
    void offerLogind();
    // Starts a lock attempt and checks it returned before any locker could have been reached.
    void lockWithoutWaiting(SystemScreenLock& lock);

    PrivateSystemBus m_systemBus;
    std::optional<QDBusConnection> m_sessionSide;
    std::optional<QDBusConnection> m_systemSide;
    std::unique_ptr<FakeScreenSaver> m_screenSaver;
    std::unique_ptr<FakeLogindManager> m_logind;
    std::unique_ptr<FakeLogindSession> m_logindSession;
};

void TestSystemScreenLock::initTestCase()
{
    QVERIFY(m_systemBus.start());

    QDBusConnection sessionBus = QDBusConnection::sessionBus();
    QVERIFY2(sessionBus.isConnected(), "Run this test under dbus-run-session, as ctest does");
    // A desktop's own screen saver on the bus means this is a real session, and the tests would lock it.
    QVERIFY2(!sessionBus.interface()->isServiceRegistered(screenSaverName),
             "This session bus is not private; run the test under dbus-run-session");

    m_sessionSide = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"fake-session-lockers"_s);
    m_systemSide = QDBusConnection::connectToBus(m_systemBus.address(), u"fake-logind"_s);
    QVERIFY(m_sessionSide->isConnected() && m_systemSide->isConnected());
}

void TestSystemScreenLock::init()
{
    m_screenSaver = std::make_unique<FakeScreenSaver>();
    m_logind = std::make_unique<FakeLogindManager>();
    m_logindSession = std::make_unique<FakeLogindSession>();
    qputenv("XDG_SESSION_ID", "c7");
}

void TestSystemScreenLock::cleanup()
{
    m_sessionSide->unregisterService(screenSaverName);
    m_sessionSide->unregisterObject(u"/org/freedesktop/ScreenSaver"_s);
    m_sessionSide->unregisterObject(u"/ScreenSaver"_s);
    m_systemSide->unregisterService(logindName);
    m_systemSide->unregisterObject(u"/org/freedesktop/login1"_s, QDBusConnection::UnregisterTree);
    m_screenSaver.reset();
    m_logind.reset();
    m_logindSession.reset();
}

void TestSystemScreenLock::offerScreenSaver(const QString& path, FakeScreenSaver::Answer answer)
{
    m_screenSaver->answer = answer;
    QVERIFY(m_sessionSide->registerObject(path, m_screenSaver.get(), QDBusConnection::ExportAllSlots));
    QVERIFY(m_sessionSide->registerService(screenSaverName));
}

void TestSystemScreenLock::offerLogind()
{
    QVERIFY(
        m_systemSide->registerObject(u"/org/freedesktop/login1"_s, m_logind.get(), QDBusConnection::ExportAllSlots));
    QVERIFY(
        m_systemSide->registerObject(m_logind->sessionPath, m_logindSession.get(), QDBusConnection::ExportAllSlots));
    QVERIFY(m_systemSide->registerService(logindName));
}

void TestSystemScreenLock::lockWithoutWaiting(SystemScreenLock& lock)
{
    QElapsedTimer clock;
    clock.start();
    lock.lockScreen();
    // Waiting on a locker served by this very thread would last a whole call timeout.
    QVERIFY2(clock.elapsed() < SystemScreenLock::callTimeout,
             qPrintable(u"lockScreen() took %1 ms"_s.arg(clock.elapsed())));
    // The fakes answer on this thread, so a call that had been waited for would already show here.
    QCOMPARE(m_screenSaver->lockCalls, 0);
    QVERIFY(m_logind->lockedSessions.isEmpty() && m_logind->askedPids.isEmpty());
}

void TestSystemScreenLock::availabilityFollowsTheLockersOnTheBuses()
{
    // Each answer is remembered for a moment, so each situation gets a fresh lock.
    QVERIFY(!SystemScreenLock().isLockAvailable());

    offerScreenSaver(u"/org/freedesktop/ScreenSaver"_s, FakeScreenSaver::Answer::Lock);
    QVERIFY(SystemScreenLock().isLockAvailable());

    QVERIFY(m_sessionSide->unregisterService(screenSaverName));
    QVERIFY(!SystemScreenLock().isLockAvailable());

    offerLogind();
    QVERIFY(SystemScreenLock().isLockAvailable());

    // Asking never locks anything.
    QCOMPARE(m_screenSaver->lockCalls, 0);
    QVERIFY(m_logind->lockedSessions.isEmpty());
}

void TestSystemScreenLock::theScreenSaverLocksFirst_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("freedesktop path") << u"/org/freedesktop/ScreenSaver"_s;
    QTest::newRow("short path") << u"/ScreenSaver"_s;
}

void TestSystemScreenLock::theScreenSaverLocksFirst()
{
    QFETCH(QString, path);
    offerScreenSaver(path, FakeScreenSaver::Answer::Lock);
    offerLogind();

    SystemScreenLock lock;
    QSignalSpy finished(&lock, &SystemScreenLock::lockAttemptFinished);
    lockWithoutWaiting(lock);
    QVERIFY(finished.wait());
    QCOMPARE(finished.takeFirst(), QVariantList{true});
    QCOMPARE(m_screenSaver->lockCalls, 1);
    // Once the screen saver has locked, logind is left alone.
    QVERIFY(m_logind->lockedSessions.isEmpty() && m_logind->askedPids.isEmpty());
    QCOMPARE(m_logindSession->lockCalls, 0);
}

void TestSystemScreenLock::logindLocksWhenTheScreenSaverCannot_data()
{
    QTest::addColumn<FakeScreenSaver::Answer>("answer");
    QTest::newRow("screen saver refuses") << FakeScreenSaver::Answer::Refuse;
    QTest::newRow("screen saver never answers") << FakeScreenSaver::Answer::Ignore;
}

void TestSystemScreenLock::logindLocksWhenTheScreenSaverCannot()
{
    QFETCH(FakeScreenSaver::Answer, answer);
    offerScreenSaver(u"/org/freedesktop/ScreenSaver"_s, answer);
    offerLogind();

    SystemScreenLock lock;
    QSignalSpy finished(&lock, &SystemScreenLock::lockAttemptFinished);
    QElapsedTimer clock;
    clock.start();
    lockWithoutWaiting(lock);
    QVERIFY(finished.wait());
    QCOMPARE(finished.takeFirst(), QVariantList{true});
    QCOMPARE(m_logind->lockedSessions, QStringList{u"c7"_s});
    QCOMPARE(m_screenSaver->lockCalls, 1);
    // A silent screen saver costs each of its two paths one call timeout, no more.
    QVERIFY2(clock.elapsed() < 4 * SystemScreenLock::callTimeout,
             qPrintable(u"locking took %1 ms"_s.arg(clock.elapsed())));
}

void TestSystemScreenLock::withoutASessionIdLogindIsAskedForOurSession()
{
    qunsetenv("XDG_SESSION_ID");
    offerLogind();

    SystemScreenLock lock;
    QSignalSpy finished(&lock, &SystemScreenLock::lockAttemptFinished);
    lockWithoutWaiting(lock);
    QVERIFY(finished.wait());
    QCOMPARE(finished.takeFirst(), QVariantList{true});
    QCOMPARE(m_logind->askedPids, QList<uint>{uint(QCoreApplication::applicationPid())});
    QCOMPARE(m_logindSession->lockCalls, 1);
    QVERIFY(m_logind->lockedSessions.isEmpty());
}

void TestSystemScreenLock::failedAttemptsFinishAndReportOnce()
{
    offerScreenSaver(u"/org/freedesktop/ScreenSaver"_s, FakeScreenSaver::Answer::Refuse);
    offerLogind();
    m_logind->refuse = true;

    MessageCapture capture;
    SystemScreenLock lock;
    QSignalSpy finished(&lock, &SystemScreenLock::lockAttemptFinished);
    lock.lockScreen();
    QVERIFY(finished.wait());
    lock.lockScreen();
    QVERIFY(finished.wait());
    QCOMPARE(finished.size(), 2);
    QCOMPARE(finished.at(0), QVariantList{false});
    QCOMPARE(finished.at(1), QVariantList{false});
    QCOMPARE(m_logind->lockedSessions, (QStringList{u"c7"_s, u"c7"_s}));

    const QList<MessageCapture::Message> messages = capture.messages();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().category, u"velto.screenlock"_s);
}

void TestSystemScreenLock::withoutAnyBusNothingIsAvailableAndNothingWaits()
{
    // What sessionBus() and systemBus() give when their addresses lead nowhere.
    const QString nowhere = u"unix:path=/nonexistent/velto-test/bus"_s;
    QDBusConnection noSessionBus = QDBusConnection::connectToBus(nowhere, u"no-session-bus"_s);
    QDBusConnection noSystemBus = QDBusConnection::connectToBus(nowhere, u"no-system-bus"_s);
    QVERIFY(!noSessionBus.isConnected() && !noSystemBus.isConnected());

    SystemScreenLock lock(noSessionBus, noSystemBus);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!lock.isLockAvailable());
    QSignalSpy finished(&lock, &SystemScreenLock::lockAttemptFinished);
    lock.lockScreen();
    QVERIFY(clock.elapsed() < SystemScreenLock::callTimeout);
    QVERIFY(finished.wait(1000));
    QCOMPARE(finished.takeFirst(), QVariantList{false});

    QDBusConnection::disconnectFromBus(u"no-session-bus"_s);
    QDBusConnection::disconnectFromBus(u"no-system-bus"_s);
}

void TestSystemScreenLock::aLockDestroyedMidAttemptIsSafe()
{
    offerScreenSaver(u"/org/freedesktop/ScreenSaver"_s, FakeScreenSaver::Answer::Ignore);
    offerLogind();

    auto lock = std::make_unique<SystemScreenLock>();
    lock->lockScreen();
    QTRY_COMPARE(m_screenSaver->lockCalls, 1);
    lock.reset();
    // Past both screen-saver timeouts: nothing may go on to logind on behalf of the destroyed lock.
    QTest::qWait(3 * SystemScreenLock::callTimeout);
    QVERIFY(m_logind->lockedSessions.isEmpty());
}

QTEST_GUILESS_MAIN(TestSystemScreenLock)
#include "tst_systemscreenlock.moc"
