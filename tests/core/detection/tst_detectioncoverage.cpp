#include "detection/DetectionCoverage.h"

#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// What the notice can say; each case expects some of these and none of the others.
const QString noWindows = u"Apps in front or fullscreen cannot be seen"_s;
const QString x11Windows = u"Only X11 apps can be seen"_s;
const QString gnomeFix = u"enable Velto's GNOME Shell extension"_s;
const QString kdeFix = u"start Velto from the application menu"_s;
const QString otherFix = u"compositor shares no window list"_s;
const QString noTyping = u"Typing cannot be seen"_s;
const QString x11Typing = u"Only typing into X11 apps"_s;
const QStringList allFragments{noWindows, x11Windows, gnomeFix, kdeFix, otherFix, noTyping, x11Typing};

} // namespace

class TestDetectionCoverage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noticeAndTypingNote_data();
    void noticeAndTypingNote();
};

void TestDetectionCoverage::noticeAndTypingNote_data()
{
    QTest::addColumn<QString>("windows");
    QTest::addColumn<QString>("typing");
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QStringList>("fragments");
    QTest::addColumn<bool>("typingCountsPointer");

    QTest::newRow("X11") << u"x11"_s << u"x11-xinput2"_s << u"GNOME"_s << QStringList() << false;
    QTest::newRow("sway") << u"wlr-foreign-toplevel"_s << u"input-activity"_s << u"sway"_s << QStringList() << true;
    QTest::newRow("KDE granted") << u"kde-plasma-window-management+xwayland"_s << u"input-activity"_s << u"KDE"_s
                                 << QStringList() << true;
    QTest::newRow("KWin script") << u"kwin-script"_s << u"input-activity"_s << u"KDE"_s << QStringList() << true;
    QTest::newRow("nothing named") << QString() << QString() << QString() << QStringList() << false;
    QTest::newRow("GNOME, nothing") << u"none"_s << u"none"_s << u"ubuntu:GNOME"_s
                                    << QStringList{noWindows, gnomeFix, noTyping} << false;
    QTest::newRow("GNOME, Xwayland") << u"xwayland"_s << u"xwayland-xinput2"_s << u"GNOME"_s
                                     << QStringList{x11Windows, gnomeFix, x11Typing} << false;
    QTest::newRow("KDE, Xwayland") << u"xwayland"_s << u"input-activity"_s << u"KDE"_s
                                   << QStringList{x11Windows, kdeFix} << true;
    QTest::newRow("KDE, nothing") << u"none"_s << u"input-activity"_s << u"KDE"_s << QStringList{noWindows, kdeFix}
                                  << true;
    QTest::newRow("Hyprland") << u"none"_s << u"input-activity"_s << u"Hyprland"_s << QStringList{noWindows, otherFix}
                              << true;
    QTest::newRow("X11 without XInput2") << u"x11"_s << u"none"_s << u"XFCE"_s << QStringList{noTyping} << false;
}

void TestDetectionCoverage::noticeAndTypingNote()
{
    QFETCH(QString, windows);
    QFETCH(QString, typing);
    QFETCH(QString, desktop);
    QFETCH(QStringList, fragments);
    QFETCH(bool, typingCountsPointer);

    QVariantMap sources{{u"idle"_s, u"session-bus"_s}, {u"devices"_s, u"proc+sound-server"_s}};
    if (!windows.isEmpty())
        sources.insert(u"windows"_s, windows);
    if (!typing.isEmpty())
        sources.insert(u"typing"_s, typing);

    const DetectionCoverage coverage = detectionCoverage(sources, desktop);
    QCOMPARE(coverage.typingCountsPointer, typingCountsPointer);
    QCOMPARE(coverage.notice.isEmpty(), fragments.isEmpty());
    // No other desktop's fix slips in.
    for (const QString& fragment : allFragments) {
        QVERIFY2(coverage.notice.contains(fragment) == fragments.contains(fragment),
                 qPrintable(fragment + u" in: "_s + coverage.notice));
    }
}

QTEST_GUILESS_MAIN(TestDetectionCoverage)
#include "tst_detectioncoverage.moc"
