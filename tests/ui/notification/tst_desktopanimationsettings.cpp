#include "DesktopMotion.h"

#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(std::optional<bool>)
Q_DECLARE_METATYPE(std::optional<double>)

class TestDesktopAnimationSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reducedMotion_data();
    void reducedMotion();
    void theCachedSettingRefreshesInTheBackground();
};

void TestDesktopAnimationSettings::reducedMotion_data()
{
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<std::optional<bool>>("gnome");
    QTest::addColumn<std::optional<double>>("kde");
    QTest::addColumn<bool>("reduce");
    const std::optional<bool> unknown;
    const std::optional<double> unread;
    QTest::newRow("nothing known") << u""_s << unknown << unread << false;
    QTest::newRow("GNOME, animations off") << u"GNOME"_s << std::optional<bool>(false) << unread << true;
    QTest::newRow("GNOME, animations on") << u"ubuntu:GNOME"_s << std::optional<bool>(true) << unread << false;
    QTest::newRow("Plasma, factor 0") << u"KDE"_s << std::optional<bool>(true) << std::optional<double>(0) << true;
    // GTK's setting exists in Plasma sessions too, but it is Plasma's own that counts there.
    QTest::newRow("Plasma, slow animations")
        << u"KDE"_s << std::optional<bool>(false) << std::optional<double>(2.5) << false;
    QTest::newRow("Plasma without kdeglobals") << u"KDE"_s << std::optional<bool>(false) << unread << true;
    QTest::newRow("elsewhere, only kdeglobals says") << u"XFCE"_s << unknown << std::optional<double>(0) << true;
    QTest::newRow("elsewhere, GNOME's setting first")
        << u"XFCE"_s << std::optional<bool>(true) << std::optional<double>(0) << false;
}

void TestDesktopAnimationSettings::reducedMotion()
{
    QFETCH(QString, desktop);
    QFETCH(std::optional<bool>, gnome);
    QFETCH(std::optional<double>, kde);
    QFETCH(bool, reduce);
    const DesktopAnimationSettings settings{desktop, gnome, kde};
    QCOMPARE(settings.prefersReducedMotion(), reduce);
}

void TestDesktopAnimationSettings::theCachedSettingRefreshesInTheBackground()
{
    // With no kdeglobals in the test home and gsettings unset or absent, the desktop asks for nothing.
    ReduceMotionSetting setting;
    QSignalSpy refreshed(&setting, &ReduceMotionSetting::refreshed);
    setting.refresh();
    // A second request while one is under way is folded into it.
    setting.refresh();
    QVERIFY(refreshed.wait(10000));
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(setting.value(), refreshed.first().first().toBool());
    setting.refresh();
    QVERIFY(refreshed.wait(10000));
    QCOMPARE(refreshed.size(), 2);
}

QTEST_MAIN(TestDesktopAnimationSettings)
#include "tst_desktopanimationsettings.moc"
