// The X server's own screen saver as a display-sleep source, on a private Xvfb display.
#include "SystemSleepSignals.h"

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

} // namespace

class TestSystemSleepSignals final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theXScreenSaverSleepsAndWakesTheDisplayOnce()
    {
        QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
        SystemSleepSignals sleepSignals;
        QVERIFY(sleepSignals.listensForDisplaySleep());
        QSignalSpy sleeps(&sleepSignals, &SystemSleepSignals::willSleep);
        QSignalSpy wakes(&sleepSignals, &SystemSleepSignals::didWake);

        QVERIFY(xset({u"s"_s, u"activate"_s}));
        QTRY_COMPARE(sleeps.size(), 1);
        QCOMPARE(sleeps.first().first().value<SleepSource>(), SleepSource::Display);
        // Activating again while blank is no new transition.
        QVERIFY(xset({u"s"_s, u"activate"_s}));
        QVERIFY(xset({u"s"_s, u"reset"_s}));
        QTRY_COMPARE(wakes.size(), 1);
        QCOMPARE(wakes.first().first().value<SleepSource>(), SleepSource::Display);
        QCOMPARE(sleeps.size(), 1);
    }
};

QTEST_MAIN(TestSystemSleepSignals)
#include "tst_systemsleepsignals.moc"
