// Display sleep is the displays powering down, never a lock or a blank screen: the X server's screen saver
// on a private Xvfb display (whose DPMS level the test plays, since Xvfb has no DPMS) and GNOME's
// DisplayConfig on the private session bus.
#include "SystemSleepSignals.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

bool xset(const QStringList& arguments)
{
    QProcess process;
    process.start(u"xset"_s, arguments);
    return process.waitForFinished(5000) && process.exitCode() == 0;
}

void roundTrip(QDBusConnection bus)
{
    bus.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                            u"org.freedesktop.DBus"_s, u"GetId"_s));
}

// Sent from a connection of its own, as a desktop's service would, and delivered before this returns: the
// bus keeps each connection's messages in order.
void emitOnBus(const QString& path, const QString& interface, const QString& name, const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, name);
    message.setArguments(arguments);
    QDBusConnection desktop = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
    QVERIFY(desktop.send(message));
    roundTrip(desktop);
    roundTrip(QDBusConnection::sessionBus());
    QCoreApplication::processEvents();
}

struct Fixture {
    bool displaysOff = false;
    SystemSleepSignals signals_{[this] { return std::optional<bool>(displaysOff); }};
    QSignalSpy sleeps{&signals_, &SystemSleepSignals::willSleep};
    QSignalSpy wakes{&signals_, &SystemSleepSignals::didWake};

    [[nodiscard]] bool onlyDisplay() const
    {
        for (const QSignalSpy* spy : {&sleeps, &wakes})
            for (const auto& call : *spy)
                if (call.first().value<SleepSource>() != SleepSource::Display)
                    return false;
        return true;
    }
};

} // namespace

class TestSystemSleepSignals final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theXScreenSaverAloneIsNoSleepButDisplaysPoweredDownUnderItAre()
    {
        QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
        Fixture f;
        QVERIFY(f.signals_.listensForDisplaySleep());

        // A blank or locked screen, DPMS still on: the countdown goes on.
        QVERIFY(xset({u"s"_s, u"activate"_s}));
        QTest::qWait(300);
        f.signals_.recheckDisplayPower();
        QCOMPARE(f.sleeps.size(), 0);
        // The displays power down later, with no event of their own: the next tick finds it, once.
        f.displaysOff = true;
        f.signals_.recheckDisplayPower();
        f.signals_.recheckDisplayPower();
        QCOMPARE(f.sleeps.size(), 1);
        // Waking turns the saver off.
        f.displaysOff = false;
        QVERIFY(xset({u"s"_s, u"reset"_s}));
        QTRY_COMPARE(f.wakes.size(), 1);

        // Powering down straight from a lit screen turns the saver on with it.
        f.displaysOff = true;
        QVERIFY(xset({u"s"_s, u"activate"_s}));
        QTRY_COMPARE(f.sleeps.size(), 2);
        f.displaysOff = false;
        QVERIFY(xset({u"s"_s, u"reset"_s}));
        QTRY_COMPARE(f.wakes.size(), 2);
        // With the saver off a tick asks nothing, whatever the level would say.
        f.displaysOff = true;
        f.signals_.recheckDisplayPower();
        QCOMPARE(f.sleeps.size(), 2);
        QVERIFY(f.onlyDisplay());
    }

    void gnomeReportsPowerSaveModeAndALockIsNoSleep()
    {
        Fixture f;
        const QString interface = u"org.gnome.Mutter.DisplayConfig"_s;
        auto powerSave = [&](int mode) {
            emitOnBus(u"/org/gnome/Mutter/DisplayConfig"_s, u"org.freedesktop.DBus.Properties"_s,
                      u"PropertiesChanged"_s, {interface, QVariantMap{{u"PowerSaveMode"_s, mode}}, QStringList{}});
        };
        const struct {
            int mode;
            qsizetype sleeps, wakes;
        } steps[] = {{0, 0, 0}, {1, 1, 0}, {3, 1, 0}, {-1, 1, 1}, {2, 2, 1}, {0, 2, 2}};
        for (const auto& step : steps) {
            powerSave(step.mode);
            QCOMPARE(f.sleeps.size(), step.sleeps);
            QCOMPARE(f.wakes.size(), step.wakes);
        }

        // Other properties of the interface, and the screen savers' lock signals, say nothing of power.
        emitOnBus(u"/org/gnome/Mutter/DisplayConfig"_s, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                  {interface, QVariantMap{{u"ApplyMonitorsConfigAllowed"_s, false}}, QStringList{}});
        emitOnBus(u"/org/gnome/ScreenSaver"_s, u"org.gnome.ScreenSaver"_s, u"ActiveChanged"_s, {true});
        emitOnBus(u"/org/freedesktop/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s, u"ActiveChanged"_s, {true});
        QCOMPARE(f.sleeps.size(), 2);
        QVERIFY(f.onlyDisplay());
    }
};

QTEST_MAIN(TestSystemSleepSignals)
#include "tst_systemsleepsignals.moc"
