// GNOME's typing stand-in from Mutter's idle-monitor watches, with an idle monitor the test serves on a private
// bus and fires as Mutter does.
#include "MutterInputActivity.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString monitorPath = u"/org/gnome/Mutter/IdleMonitor/Core"_s;

class FakeIdleMonitor final : public QDBusVirtualObject {
public:
    quint32 nextWatch = 1;
    quint64 idleInterval = 0;
    quint32 idleWatch = 0;
    quint32 activeWatch = 0;
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() == u"AddIdleWatch"_s) {
            idleInterval = message.arguments().value(0).toULongLong();
            idleWatch = nextWatch++;
            return connection.send(message.createReply(QVariant::fromValue(idleWatch)));
        }
        if (message.member() == u"AddUserActiveWatch"_s) {
            activeWatch = nextWatch++;
            return connection.send(message.createReply(QVariant::fromValue(activeWatch)));
        }
        return connection.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
    }
    static bool fire(const QDBusConnection& connection, quint32 watch)
    {
        auto fired = QDBusMessage::createSignal(monitorPath, u"org.gnome.Mutter.IdleMonitor"_s, u"WatchFired"_s);
        fired << watch;
        return connection.send(fired);
    }
};

} // namespace

class TestMutterInputActivity : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inputStoppingAndComingBackIsFollowed()
    {
        QVERIFY(!MutterInputActivity::start(QDBusConnection::sessionBus())); // no GNOME here yet

        QDBusConnection mutter = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"mutter"_s);
        FakeIdleMonitor monitor;
        QVERIFY(mutter.registerVirtualObject(monitorPath, &monitor));
        QVERIFY(mutter.registerService(u"org.gnome.Mutter.IdleMonitor"_s));
        {
            const auto activity = MutterInputActivity::start(QDBusConnection::sessionBus());
            QVERIFY(activity);
            QTRY_COMPARE(monitor.idleInterval, MutterInputActivity::activityWindowMs);
            QTest::qWait(200);                                  // the watch's number comes back
            QCOMPARE(activity->secondsSinceLastKeyDown(), 0.0); // typing, as far as anyone knows

            // Two seconds without input: no longer typing, and the seconds count from when input stopped.
            QVERIFY(FakeIdleMonitor::fire(mutter, monitor.idleWatch));
            QTRY_VERIFY(activity->secondsSinceLastKeyDown().value_or(0) >= 2.0);
            QVERIFY(monitor.activeWatch != 0);
            // A watch of someone else's changes nothing; input coming back does.
            QVERIFY(FakeIdleMonitor::fire(mutter, 99));
            QTest::qWait(100);
            QVERIFY(*activity->secondsSinceLastKeyDown() >= 2.0);
            QVERIFY(FakeIdleMonitor::fire(mutter, monitor.activeWatch));
            QTRY_COMPARE(activity->secondsSinceLastKeyDown(), 0.0);
            // The next pause asks for the next return of input.
            const quint32 previous = monitor.activeWatch;
            QVERIFY(FakeIdleMonitor::fire(mutter, monitor.idleWatch));
            QTRY_VERIFY(monitor.activeWatch != previous);
        }
        QDBusConnection::disconnectFromBus(u"mutter"_s);
    }
};

QTEST_GUILESS_MAIN(TestMutterInputActivity)
#include "tst_mutterinputactivity.moc"
