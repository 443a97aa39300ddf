// The tray icon as a desktop's tray host sees it: Qt exports it as a StatusNotifierItem with its menu over
// the dbusmenu protocol once a StatusNotifierWatcher with a host is on the bus, however late. The test owns the watcher
// on its private session bus, reads the menu back, opens it and clicks items, as a panel would.
#include "AppDelegate.h"
#include "FakeDetectionProviders.h"
#include "FakeLaunchAtLogin.h"
#include "FakeSoundPlayer.h"
#include "FakeStatusNotifierWatcher.h"
#include "InMemoryUserDefaults.h"
#include "scheduling/BreakManager.h"
#include "tray/StatusItem.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;
using namespace velto;

namespace {

const QString watcherName = u"org.kde.StatusNotifierWatcher"_s;

struct MenuEntry {
    int id = 0;
    QString label;
    bool enabled = true;
    bool separator = false;
};

// Reads one (ia{sv}av) layout node and its children, depth first.
void readLayout(const QDBusArgument& argument, QList<MenuEntry>& entries)
{
    int id = 0;
    QVariantMap properties;
    argument.beginStructure();
    argument >> id >> properties;
    if (id != 0)
        entries.append({id, properties.value(u"label"_s).toString().remove(u'&'),
                        properties.value(u"enabled"_s, true).toBool(),
                        properties.value(u"type"_s).toString() == u"separator"_s});
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        readLayout(qvariant_cast<QDBusArgument>(child.variant()), entries);
    }
    argument.endArray();
    argument.endStructure();
}

// The exported icon and menu answer on this thread, so a blocking call from here would wait on itself.
// Plain messages rather than QDBusInterface, which introspects its peer with a blocking call first.
struct Peer {
    QDBusConnection bus;
    QString service;
    QString path;
    QString interface;
};

QDBusMessage callAndServe(const Peer& target, const QString& method, const QVariantList& arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(target.service, target.path, target.interface, method);
    message.setArguments(arguments);
    QDBusPendingCall call = target.bus.asyncCall(message);
    QDeadlineTimer deadline(5000);
    while (!call.isFinished() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return call.reply();
}

} // namespace

class TestStatusItemDBus final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::platformName(), u"xcb"_s);
        // Qt asks the watcher with blocking calls from the main thread, so it answers from a thread of its own.
        m_watcherThread.start();
        m_watcher.moveToThread(&m_watcherThread);
        m_hostSide = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"tray-host"_s);
        QVERIFY(m_hostSide->registerObject(u"/StatusNotifierWatcher"_s, &m_watcher,
                                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties));
    }

    void theTrayHostReadsAndDrivesTheMenu()
    {
        AppServices services;
        services.userDefaults = std::make_unique<InMemoryUserDefaults>();
        services.launchAtLogin = std::make_unique<FakeLaunchAtLogin>();
        services.detectionProviders = m_providers.take();
        services.sounds = std::make_unique<FakeSoundPlayer>();
        AppDelegate delegate(std::move(services));
        delegate.applicationDidFinishLaunching();
        BreakManager& breaks = *delegate.breakManager();

        // Velto starts before the panel, as at login: the icon comes when the tray host does.
        QTest::qWait(200);
        QVERIFY(!delegate.statusItem()->trayIcon());
        QVERIFY(m_hostSide->registerService(watcherName));
        QTRY_COMPARE(m_watcher.items().size(), 1);
        const QString item = m_watcher.items().first();
        const Peer properties{*m_hostSide, item.section(u'/', 0, 0), u"/StatusNotifierItem"_s,
                              u"org.freedesktop.DBus.Properties"_s};
        auto property = [&](const QString& name) {
            const QDBusMessage reply = callAndServe(properties, u"Get"_s, {u"org.kde.StatusNotifierItem"_s, name});
            return qvariant_cast<QDBusVariant>(reply.arguments().value(0)).variant();
        };
        QTRY_VERIFY(property(u"ToolTip"_s).isValid());
        const auto menuPath = qvariant_cast<QDBusObjectPath>(property(u"Menu"_s)).path();
        QVERIFY(!menuPath.isEmpty());

        const Peer menu{*m_hostSide, item.section(u'/', 0, 0), menuPath, u"com.canonical.dbusmenu"_s};
        auto openMenu = [&] {
            callAndServe(menu, u"AboutToShow"_s, {0});
            const QDBusMessage reply = callAndServe(menu, u"GetLayout"_s, {0, -1, QStringList()});
            QList<MenuEntry> entries;
            if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().size() == 2)
                readLayout(qvariant_cast<QDBusArgument>(reply.arguments().at(1)), entries);
            return entries;
        };
        auto labels = [](const QList<MenuEntry>& entries) {
            QStringList out;
            for (const auto& entry : entries)
                out << (entry.separator ? u"-"_s : entry.label);
            return out;
        };
        auto click = [&](const QList<MenuEntry>& entries, const QString& label) {
            for (const auto& entry : entries)
                if (entry.label == label) {
                    callAndServe(menu, u"Event"_s, {entry.id, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0u});
                    return true;
                }
            return false;
        };

        // The real one-second timer runs meanwhile, so the first line's time is whatever it is now.
        auto entries = openMenu();
        QVERIFY(!entries.isEmpty());
        QVERIFY(QRegularExpression(u"^(20:00|19:5\\d)  Until next break$"_s).match(entries.first().label).hasMatch());
        entries.first().label = u"status"_s;
        QCOMPARE(labels(entries),
                 (QStringList{u"status"_s, u"-"_s, u"Disable Velto"_s, u"-"_s, u"Take a Break"_s,
                              u"Pause for 15 Minutes"_s, u"-"_s, u"Settings\u2026"_s, u"-"_s, u"Quit Velto"_s}));
        QVERIFY(!entries.first().enabled);

        QVERIFY(click(entries, u"Pause for 15 Minutes"_s));
        QTRY_COMPARE(breaks.state(), BreakState::Paused);
        // Opened again, the menu is built afresh for the paused state.
        entries = openMenu();
        QVERIFY(labels(entries).contains(u"Resume"_s));
        QVERIFY(!labels(entries).contains(u"Pause for 15 Minutes"_s));
        QVERIFY(click(entries, u"Resume"_s));
        QTRY_COMPARE(breaks.state(), BreakState::Working);
    }

    void cleanupTestCase()
    {
        m_hostSide->unregisterObject(u"/StatusNotifierWatcher"_s);
        m_watcherThread.quit();
        m_watcherThread.wait();
    }

private:
    QThread m_watcherThread;
    FakeStatusNotifierWatcher m_watcher;
    FakeDetectionProviders m_providers;
    std::optional<QDBusConnection> m_hostSide;
};

QTEST_MAIN(TestStatusItemDBus)
#include "tst_statusitem_dbus.moc"
