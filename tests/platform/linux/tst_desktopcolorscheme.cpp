// The application's palette follows the settings portal's color-scheme, on a private bus with a portal that
// the test serves.
#include "DesktopColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QTest>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;

// Answers Read for the colour scheme as the portal does: a variant holding a variant holding the number.
class FakePortal final : public QDBusVirtualObject {
public:
    uint scheme = 0;
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != u"Read"_s)
            return connection.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
        const QVariant inner = QVariant::fromValue(QDBusVariant(QVariant(scheme)));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    }
};

bool paletteIsDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

} // namespace

class TestDesktopColorScheme : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAPortalQtsPaletteStands()
    {
        const QPalette before = QGuiApplication::palette();
        DesktopColorScheme scheme(QDBusConnection::sessionBus());
        scheme.start();
        QTest::qWait(300);
        QCOMPARE(scheme.preference(), DesktopColorScheme::Preference::None);
        QCOMPARE(QGuiApplication::palette(), before);
    }

    void thePaletteFollowsThePreferenceAndItsChanges()
    {
        QVERIFY(!paletteIsDark());
        QDBusConnection portalBus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
        FakePortal portal;
        portal.scheme = 1;
        QVERIFY(portalBus.registerVirtualObject(portalPath, &portal));
        QVERIFY(portalBus.registerService(u"org.freedesktop.portal.Desktop"_s));
        const QPalette light = QGuiApplication::palette();
        {
            DesktopColorScheme scheme(QDBusConnection::sessionBus());
            scheme.start();
            QTRY_COMPARE(scheme.preference(), DesktopColorScheme::Preference::Dark);
            QVERIFY(paletteIsDark());

            // The user switches the desktop back to light, then to no preference, then to dark again.
            for (const auto& [value, dark] : {std::pair{2U, false}, std::pair{0U, false}, std::pair{1U, true}}) {
                auto changed =
                    QDBusMessage::createSignal(portalPath, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
                changed << u"org.freedesktop.appearance"_s << u"color-scheme"_s
                        << QVariant::fromValue(QDBusVariant(QVariant(value)));
                QVERIFY(portalBus.send(changed));
                QTRY_COMPARE(scheme.preference(), DesktopColorScheme::Preference(value));
                QCOMPARE(paletteIsDark(), dark);
                if (!dark)
                    QCOMPARE(QGuiApplication::palette(), light); // Qt's own palette given back, not a copy
            }
        }
        QDBusConnection::disconnectFromBus(u"portal"_s);
    }
};

QTEST_MAIN(TestDesktopColorScheme)
#include "tst_desktopcolorscheme.moc"
