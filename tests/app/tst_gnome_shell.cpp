#include "HeadlessCompositor.h"

#include <QDBusReply>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The real velto executable in a headless GNOME Shell with Velto's extension, as a GNOME user has it: the
// top-bar indicator where no tray exists, and the card kept in place without the focus.
class TestGnomeShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!HeadlessCompositor::isAvailable(HeadlessCompositor::Kind::Gnome))
            QSKIP("GNOME Shell is not installed");
        HeadlessCompositor::Options options;
        options.gnomeExtensions = {QStringLiteral(VELTO_GNOME_EXTENSION)};
        QVERIFY(m_shell.start(HeadlessCompositor::Kind::Gnome, options));
        m_bus = QDBusConnection::connectToBus(m_shell.busAddress(), u"test"_s);
        QVERIFY(m_home.isValid());
        QProcessEnvironment env = m_shell.environment();
        env.insert(u"XDG_CONFIG_HOME"_s, m_home.filePath(u"config"_s));
        env.insert(u"XDG_DATA_HOME"_s, m_home.filePath(u"data"_s));
        m_velto.setProcessEnvironment(env);
        m_velto.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_velto.start(QStringLiteral(VELTO_EXECUTABLE), {});
        QVERIFY(m_velto.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(m_bus.interface()->isServiceRegistered(u"com.velto.app"_s).value(), 15000);
    }

    void cleanupTestCase()
    {
        if (m_velto.state() != QProcess::NotRunning) {
            m_velto.terminate();
            if (!m_velto.waitForFinished(5000))
                m_velto.kill();
        }
        QDBusConnection::disconnectFromBus(u"test"_s);
    }

    void indicatorStandsInForTheTray()
    {
        QTRY_COMPARE_WITH_TIMEOUT(eval(u"!!(Main.panel.statusArea.velto && Main.panel.statusArea.velto.visible)"_s),
                                  u"true"_s, 15000);
        // The countdown: the ring's picture, and the minutes left for a screen reader.
        QTRY_COMPARE(eval(u"!!Main.panel.statusArea.velto.first_child.gicon"_s), u"true"_s);
        QTRY_VERIFY(eval(u"Main.panel.statusArea.velto.accessible_name"_s).contains(u"min remaining"_s));

        QCOMPARE(eval(u"Main.panel.statusArea.velto.menu.open(); 'open'"_s), u"\"open\""_s);
        const QString labels = u"Main.panel.statusArea.velto.menu._getMenuItems()"
                               u".map(i => i.label ? i.label.text : '-').join('|')"_s;
        QTRY_VERIFY(eval(labels).contains(u"|Take a Break|"_s));
        QVERIFY2(eval(labels).contains(u"Until next break|"_s), qPrintable(eval(labels)));
        QVERIFY(eval(labels).endsWith(u"|Quit Velto\""_s));

        eval(
            u"Main.panel.statusArea.velto.menu._getMenuItems()"
            u".find(i => i.label && i.label.text === 'Take a Break').activate(imports.gi.Clutter.get_current_event())"_s);
        QTRY_COMPARE(status().value(u"state"_s).toString(), u"onBreak"_s);
        // One break screen on each monitor, above everything.
        QTRY_COMPARE(eval(u"global.get_window_actors().map(a => a.meta_window)"
                          u".filter(w => w.get_title().startsWith('Velto Break') && w.is_above())"
                          u".map(w => w.get_monitor()).sort().join(',')"_s),
                     u"\"0,1\""_s);
        QVERIFY(control(u"setRemindersEnabled"_s, {false}));
        QVERIFY(control(u"setRemindersEnabled"_s, {true}));
        QTRY_COMPARE(status().value(u"state"_s).toString(), u"working"_s);

        // A tray appears: Velto shows there, so the indicator goes; and comes back when the tray goes.
        QVERIFY(m_bus.registerService(u"org.kde.StatusNotifierWatcher"_s));
        QTRY_COMPARE(eval(u"!!Main.panel.statusArea.velto"_s), u"false"_s);
        QVERIFY(m_bus.unregisterService(u"org.kde.StatusNotifierWatcher"_s));
        QTRY_COMPARE(eval(u"!!Main.panel.statusArea.velto"_s), u"true"_s);
    }

    void cardStaysOutOfTheWay()
    {
        QVERIFY(m_shell.openWindow(QStringLiteral(VELTO_WAYLAND_TEST_WINDOW),
                                   {u"--app-id"_s, u"org.example.Editor"_s, u"--title"_s, u"Editor"_s}));
        QTRY_COMPARE(eval(focusedTitle), u"\"Editor\""_s);
        // Every window the focus goes to from here on.
        eval(u"global._veltoFocus = []; global._veltoFocusWatch = global.display.connect('notify::focus-window',"
             u" () => global._veltoFocus.push(global.display.focus_window ? global.display.focus_window.get_title()"
             u" : ''))"_s);

        QVERIFY(control(u"triggerTestPreBreakNotification"_s));
        const QString card =
            u"global.get_window_actors().map(a => a.meta_window).find(w => w.get_title() === 'Velto')"_s;
        QTRY_COMPARE(eval(u"!!"_s + card), u"true"_s);
        const QString place = u"(w => { const r = w.get_frame_rect(); const a = "
                              u"Main.layoutManager.getWorkAreaForMonitor(0); return [r.x - a.x, r.y - a.y, "
                              u"w.get_monitor(), w.is_above(), w.is_on_all_workspaces()].join(',') })("_s +
                              card + u")"_s;
        QTRY_COMPARE(eval(place), u"\"16,20,0,true,true\""_s);
        QCOMPARE(eval(focusedTitle), u"\"Editor\""_s);
        QCOMPARE(eval(u"global._veltoFocus.filter(t => t !== 'Editor').join(',')"_s), u"\"\""_s);
        eval(u"global.display.disconnect(global._veltoFocusWatch)"_s);
    }

private:
    inline static const QString focusedTitle =
        u"global.display.focus_window ? global.display.focus_window.get_title() : ''"_s;

    QString eval(const QString& script) const { return m_shell.gnomeEval(script).value_or(u"(refused)"_s); }

    bool control(const QString& method, const QVariantList& arguments = {})
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(u"com.velto.app"_s, u"/com/velto/app"_s, u"com.velto.app.Control"_s, method);
        call.setArguments(arguments);
        return m_bus.call(call).type() == QDBusMessage::ReplyMessage;
    }

    QVariantMap status()
    {
        const QDBusReply<QVariantMap> reply = m_bus.call(QDBusMessage::createMethodCall(
            u"com.velto.app"_s, u"/com/velto/app"_s, u"com.velto.app.Control"_s, u"status"_s));
        return reply.isValid() ? reply.value() : QVariantMap();
    }

    HeadlessCompositor m_shell;
    QDBusConnection m_bus{QString()};
    QTemporaryDir m_home;
    QProcess m_velto;
};

QTEST_GUILESS_MAIN(TestGnomeShell)
#include "tst_gnome_shell.moc"
