// The main screen of an X session: the whole root window, or the primary RandR monitor.
#include "MessageCapture.h"
#include "X11ProviderFixture.h"
#include "detection/SystemX11Providers.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemScreen : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void theWholeScreenWithoutMonitorsAndNothingWithoutAServer();
    void theMainScreenIsThePrimaryMonitor();
};

void TestSystemScreen::theWholeScreenWithoutMonitorsAndNothingWithoutAServer()
{
    const SystemScreen screen(m_link);
    QCOMPARE(screen.mainScreenFrame(), QRectF(0, 0, 1920, 1080));
    MessageCapture capture;
    const SystemScreen none(std::make_shared<X11Link>(":199"_ba));
    QCOMPARE(none.mainScreenFrame(), QRectF());
    QCOMPARE(none.mainScreenFrame(), QRectF());
    QCOMPARE(capture.texts().size(), 1);
}

void TestSystemScreen::theMainScreenIsThePrimaryMonitor()
{
    if (QStandardPaths::findExecutable(u"xrandr"_s).isEmpty())
        QSKIP("xrandr is not installed");
    // One wide screen split into two monitors, the right one primary, as a desk with two displays looks.
    XvfbDesktop desk;
    QVERIFY(desk.start(false, u"2560x800x24"_s));
    QVERIFY(desk.run(u"xrandr"_s, {u"--setmonitor"_s, u"LEFT"_s, u"1280/338x800/211+0+0"_s, u"none"_s}));
    QVERIFY(desk.run(u"xrandr"_s, {u"--setmonitor"_s, u"*RIGHT"_s, u"1280/338x800/211+1280+0"_s, u"none"_s}));
    const SystemScreen screen(std::make_shared<X11Link>(desk.display().toLocal8Bit()));
    QCOMPARE(screen.mainScreenFrame(), QRectF(1280, 0, 1280, 800));
}

QTEST_GUILESS_MAIN(TestSystemScreen)
#include "tst_systemscreen.moc"
