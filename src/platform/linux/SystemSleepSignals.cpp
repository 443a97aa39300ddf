#include "SystemSleepSignals.h"

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QGuiApplication>

#include <functional>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

SystemSleepSignals::SystemSleepSignals(QObject* parent)
    : QObject(parent)
{
    QDBusConnection system = QDBusConnection::systemBus();
    if (system.isConnected())
        m_system = system.connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                  u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                  SLOT(prepareForSleep(bool)));

    QDBusConnection session = QDBusConnection::sessionBus();
    if (session.isConnected()) {
        // Desktops publish the same signal under different paths and interfaces; any sender counts.
        const struct {
            QString path;
            QString interface;
        } sources[] = {
            {u"/org/freedesktop/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s},
            {u"/ScreenSaver"_s, u"org.freedesktop.ScreenSaver"_s},
            {u"/org/gnome/ScreenSaver"_s, u"org.gnome.ScreenSaver"_s},
        };
        for (const auto& source : sources)
            m_display |= session.connect({}, source.path, source.interface, u"ActiveChanged"_s, this,
                                         SLOT(screenSaverActiveChanged(bool)));
    }
    watchX11ScreenSaver();
}

namespace {

// Hears the X server announce its screen saver on and off, through Qt's own X connection.
class ScreenSaverNotifyFilter final : public QAbstractNativeEventFilter {
public:
    ScreenSaverNotifyFilter(uint8_t notifyEvent, std::function<void(bool)> onChange)
        : m_notifyEvent(notifyEvent)
        , m_onChange(std::move(onChange))
    {}

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) override
    {
        if (eventType != "xcb_generic_event_t")
            return false;
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != m_notifyEvent)
            return false;
        const auto* notify = reinterpret_cast<const xcb_screensaver_notify_event_t*>(event);
        if (notify->state == XCB_SCREENSAVER_STATE_ON || notify->state == XCB_SCREENSAVER_STATE_CYCLE)
            m_onChange(true);
        else if (notify->state == XCB_SCREENSAVER_STATE_OFF)
            m_onChange(false);
        return false;
    }

private:
    uint8_t m_notifyEvent;
    std::function<void(bool)> m_onChange;
};

} // namespace

SystemSleepSignals::~SystemSleepSignals()
{
    if (m_x11Filter && QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(m_x11Filter.get());
}

void SystemSleepSignals::watchX11ScreenSaver()
{
    auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!app || QGuiApplication::platformName() != u"xcb"_s)
        return;
    auto* x11 = app->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection)
        return;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!extension || !extension->present)
        return;
    for (auto it = xcb_setup_roots_iterator(xcb_get_setup(connection)); it.rem; xcb_screen_next(&it))
        xcb_screensaver_select_input(connection, it.data->root, XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    xcb_flush(connection);
    m_x11Filter =
        std::make_unique<ScreenSaverNotifyFilter>(static_cast<uint8_t>(extension->first_event + XCB_SCREENSAVER_NOTIFY),
                                                  [this](bool asleep) { displaySleepChanged(asleep); });
    app->installNativeEventFilter(m_x11Filter.get());
    m_display = true;
}

void SystemSleepSignals::prepareForSleep(bool start)
{
    if (start)
        Q_EMIT willSleep(SleepSource::System);
    else
        Q_EMIT didWake(SleepSource::System);
}

void SystemSleepSignals::screenSaverActiveChanged(bool active)
{
    displaySleepChanged(active);
}

void SystemSleepSignals::displaySleepChanged(bool active)
{
    // Several sources may report one change; only transitions count.
    if (active == m_displayAsleep)
        return;
    m_displayAsleep = active;
    if (active)
        Q_EMIT willSleep(SleepSource::Display);
    else
        Q_EMIT didWake(SleepSource::Display);
}

} // namespace velto
