#include "SystemSleepSignals.h"

#include "QtX11Events.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <xcb/dpms.h>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

const QString mutterService = u"org.gnome.Mutter.DisplayConfig"_s;
const QString mutterPath = u"/org/gnome/Mutter/DisplayConfig"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const QString powerSaveMode = u"PowerSaveMode"_s;

// The DPMS level through Qt's own X connection: one short round trip, made only while the screen saver is
// on, when nothing else is drawn or asked of the server.
SystemSleepSignals::DisplayPowerProbe x11DpmsProbe()
{
    xcb_connection_t* connection = qtX11Connection();
    if (!connection)
        return {};
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_dpms_id);
    if (!extension || !extension->present)
        return {};
    return [connection]() -> std::optional<bool> {
        xcb_dpms_info_reply_t* reply = xcb_dpms_info_reply(connection, xcb_dpms_info(connection), nullptr);
        if (!reply)
            return std::nullopt;
        const bool off = reply->state && reply->power_level != XCB_DPMS_DPMS_MODE_ON;
        free(reply);
        return off;
    };
}

} // namespace

SystemSleepSignals::SystemSleepSignals(DisplayPowerProbe x11DisplaysOff, QObject* parent)
    : QObject(parent)
    , m_x11DisplaysOff(std::move(x11DisplaysOff))
{
    QDBusConnection system = QDBusConnection::systemBus();
    if (system.isConnected())
        m_system = system.connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                  u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                  SLOT(prepareForSleep(bool)));
    watchMutter();
    watchX11ScreenSaver();
}

SystemSleepSignals::~SystemSleepSignals() = default;

void SystemSleepSignals::watchMutter()
{
    QDBusConnection session = QDBusConnection::sessionBus();
    if (!session.isConnected())
        return;
    // Any sender: the name may be taken after Velto starts, and only Mutter serves this path.
    m_mutter = session.connect({}, mutterPath, propertiesInterface, u"PropertiesChanged"_s, {mutterService}, {}, this,
                               SLOT(displayConfigChanged(QDBusMessage)));
    if (!m_mutter)
        return;
    QDBusMessage get = QDBusMessage::createMethodCall(mutterService, mutterPath, propertiesInterface, u"Get"_s);
    get << mutterService << powerSaveMode;
    get.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(session.asyncCall(get), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        // Elsewhere than GNOME the name is missing: the displays count as on.
        if (reply.isValid())
            setMutterDisplaysOff(reply.value().variant().toInt());
        call->deleteLater();
    });
}

void SystemSleepSignals::displayConfigChanged(const QDBusMessage& message)
{
    const QList<QVariant> arguments = message.arguments();
    if (arguments.size() < 2 || arguments.at(0).toString() != mutterService)
        return;
    const QVariantMap changed = qdbus_cast<QVariantMap>(arguments.at(1));
    const auto mode = changed.constFind(powerSaveMode);
    if (mode != changed.constEnd())
        setMutterDisplaysOff(mode->toInt());
}

void SystemSleepSignals::setMutterDisplaysOff(int mode)
{
    // 0 on, 1 standby, 2 suspend, 3 off; -1 (unknown) counts as on.
    m_mutterOff = mode >= 1 && mode <= 3;
    updateDisplaySleep();
}

void SystemSleepSignals::watchX11ScreenSaver()
{
    xcb_connection_t* connection = qtX11Connection();
    if (!connection)
        return;
    if (!m_x11DisplaysOff)
        m_x11DisplaysOff = x11DpmsProbe();
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!m_x11DisplaysOff || !extension || !extension->present) {
        m_x11DisplaysOff = {};
        return;
    }
    for (auto it = xcb_setup_roots_iterator(xcb_get_setup(connection)); it.rem; xcb_screen_next(&it))
        xcb_screensaver_select_input(connection, it.data->root, XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    xcb_flush(connection);
    // Saver on (or cycling) and off, as the X server announces them.
    m_x11Filter = std::make_unique<QtX11EventFilter>(
        static_cast<uint8_t>(extension->first_event + XCB_SCREENSAVER_NOTIFY),
        [this](const xcb_generic_event_t* event) {
            const auto* notify = reinterpret_cast<const xcb_screensaver_notify_event_t*>(event);
            if (notify->state == XCB_SCREENSAVER_STATE_ON || notify->state == XCB_SCREENSAVER_STATE_CYCLE)
                x11ScreenSaverChanged(true);
            else if (notify->state == XCB_SCREENSAVER_STATE_OFF)
                x11ScreenSaverChanged(false);
        });
}

void SystemSleepSignals::x11ScreenSaverChanged(bool on)
{
    m_x11SaverOn = on;
    // Waking always turns the saver off; a saver that merely blanks or locks leaves DPMS on.
    m_x11Off = on && m_x11DisplaysOff().value_or(false);
    updateDisplaySleep();
}

void SystemSleepSignals::recheckDisplayPower()
{
    if (!m_x11SaverOn || !m_x11DisplaysOff)
        return;
    m_x11Off = m_x11DisplaysOff().value_or(false);
    updateDisplaySleep();
}

void SystemSleepSignals::prepareForSleep(bool start)
{
    if (start)
        Q_EMIT willSleep(SleepSource::System);
    else
        Q_EMIT didWake(SleepSource::System);
}

void SystemSleepSignals::updateDisplaySleep()
{
    // GNOME on X11 reports through both sources; only transitions of the whole count.
    const bool asleep = m_mutterOff || m_x11Off;
    if (asleep == m_displayAsleep)
        return;
    m_displayAsleep = asleep;
    if (asleep)
        Q_EMIT willSleep(SleepSource::Display);
    else
        Q_EMIT didWake(SleepSource::Display);
}

} // namespace velto
