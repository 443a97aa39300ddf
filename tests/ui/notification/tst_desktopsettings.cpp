#include "DesktopSettings.h"

#include <QSignalSpy>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(std::optional<bool>)
Q_DECLARE_METATYPE(std::optional<double>)

class TestDesktopSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reducedMotion_data()
    {
        QTest::addColumn<QString>("desktop");
        QTest::addColumn<std::optional<bool>>("gnome");
        QTest::addColumn<std::optional<double>>("kde");
        QTest::addColumn<bool>("reduce");
        const std::optional<bool> unknown;
        const std::optional<double> unread;
        QTest::newRow("nothing known") << u""_s << unknown << unread << false;
        QTest::newRow("GNOME, animations off") << u"GNOME"_s << std::optional<bool>(false) << unread << true;
        // GTK's setting exists in Plasma sessions too, but it is Plasma's own that counts there.
        QTest::newRow("Plasma, slow animations")
            << u"KDE"_s << std::optional<bool>(false) << std::optional<double>(2.5) << false;
        QTest::newRow("Plasma without kdeglobals") << u"KDE"_s << std::optional<bool>(false) << unread << true;
        QTest::newRow("elsewhere, only kdeglobals says") << u"XFCE"_s << unknown << std::optional<double>(0) << true;
        QTest::newRow("elsewhere, GNOME's setting first")
            << u"XFCE"_s << std::optional<bool>(true) << std::optional<double>(0) << false;
    }
    void reducedMotion()
    {
        QFETCH(QString, desktop);
        QFETCH(std::optional<bool>, gnome);
        QFETCH(std::optional<double>, kde);
        QFETCH(bool, reduce);
        DesktopSettings settings;
        settings.currentDesktop = desktop;
        settings.gnomeEnableAnimations = gnome;
        settings.kdeAnimationDurationFactor = kde;
        QCOMPARE(settings.prefersReducedMotion(), reduce);
    }

    void naturalScrolling_data()
    {
        QTest::addColumn<QString>("desktop");
        QTest::addColumn<std::optional<bool>>("gnome");
        QTest::addColumn<std::optional<bool>>("kde");
        QTest::addColumn<bool>("natural");
        const std::optional<bool> unknown;
        QTest::newRow("nothing known: traditional") << u""_s << unknown << unknown << false;
        QTest::newRow("GNOME's default") << u"GNOME"_s << std::optional<bool>(true) << unknown << true;
        QTest::newRow("Plasma's touchpad wins in Plasma")
            << u"KDE"_s << std::optional<bool>(true) << std::optional<bool>(false) << false;
        QTest::newRow("GNOME's wins elsewhere")
            << u"GNOME"_s << std::optional<bool>(false) << std::optional<bool>(true) << false;
    }
    void naturalScrolling()
    {
        QFETCH(QString, desktop);
        QFETCH(std::optional<bool>, gnome);
        QFETCH(std::optional<bool>, kde);
        QFETCH(bool, natural);
        DesktopSettings settings;
        settings.currentDesktop = desktop;
        settings.gnomeTouchpadNaturalScroll = gnome;
        settings.kdeTouchpadNaturalScroll = kde;
        QCOMPARE(settings.touchpadScrollsNaturally(), natural);
    }

    void theCacheRefreshesInTheBackground()
    {
        const DesktopSettings read = DesktopSettings::read();
        DesktopSettingsCache cache;
        QSignalSpy refreshed(&cache, &DesktopSettingsCache::refreshed);
        cache.refresh();
        // A second request while one is under way is folded into it.
        cache.refresh();
        QVERIFY(refreshed.wait(10000));
        QCOMPARE(refreshed.size(), 1);
        QCOMPARE(cache.reduceMotion(), read.prefersReducedMotion());
        QCOMPARE(cache.naturalScrolling(), read.touchpadScrollsNaturally());
        cache.refresh();
        QVERIFY(refreshed.wait(10000));
        QCOMPARE(refreshed.size(), 2);
    }
};

QTEST_MAIN(TestDesktopSettings)
#include "tst_desktopsettings.moc"
