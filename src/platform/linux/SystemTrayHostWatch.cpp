#include "SystemTrayHostWatch.h"

#include "QtX11Events.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>
#include <vector>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

const QString watcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;

} // namespace

SystemTrayHostWatch::SystemTrayHostWatch(QObject* parent)
    : QObject(parent)
{
    watchXEmbedTray();
    QDBusConnection session = QDBusConnection::sessionBus();
    if (!session.isConnected()) {
        settle(false);
        return;
    }
    m_watcher.setConnection(session);
    m_watcher.addWatchedService(watcherService);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { askWatcher(); });
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setStatusNotifierHost(false); });
    session.connect(watcherService, watcherPath, watcherService, u"StatusNotifierHostRegistered"_s, this,
                    SLOT(hostRegistered()));
    askWatcher();
}

SystemTrayHostWatch::~SystemTrayHostWatch() = default;

void SystemTrayHostWatch::hostRegistered()
{
    setStatusNotifierHost(true);
}

void SystemTrayHostWatch::askWatcher()
{
    QDBusMessage get =
        QDBusMessage::createMethodCall(watcherService, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << watcherService << u"IsStatusNotifierHostRegistered"_s;
    get.setAutoStartService(false);
    auto* call = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(get), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        // No watcher (yet) is simply no host.
        setStatusNotifierHost(reply.isValid() && reply.value().variant().toBool());
        settle(hostExists());
        finished->deleteLater();
    });
}

void SystemTrayHostWatch::watchXEmbedTray()
{
    xcb_connection_t* connection = qtX11Connection();
    if (!connection)
        return;
    const xcb_query_extension_reply_t* xfixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (!xfixes || !xfixes->present)
        return;
    // Qt's connection has agreed on an XFixes version already; asking again is harmless and makes this
    // independent of that.
    free(xcb_xfixes_query_version_reply(connection, xcb_xfixes_query_version(connection, 5, 0), nullptr));

    std::vector<xcb_window_t> roots;
    for (auto it = xcb_setup_roots_iterator(xcb_get_setup(connection)); it.rem; xcb_screen_next(&it))
        roots.push_back(it.data->root);
    std::vector<xcb_intern_atom_cookie_t> atomCookies;
    for (size_t screen = 0; screen < roots.size(); ++screen) {
        const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(qulonglong(screen));
        atomCookies.push_back(xcb_intern_atom(connection, false, name.size(), name.constData()));
    }
    std::vector<xcb_atom_t> selections;
    for (auto cookie : atomCookies) {
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(connection, cookie, nullptr);
        selections.push_back(reply ? reply->atom : XCB_NONE);
        free(reply);
    }
    bool owned = false;
    for (size_t screen = 0; screen < roots.size(); ++screen) {
        if (selections[screen] == XCB_NONE)
            continue;
        xcb_xfixes_select_selection_input(connection, roots[screen], selections[screen],
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        xcb_get_selection_owner_reply_t* owner =
            xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selections[screen]), nullptr);
        owned |= owner && owner->owner != XCB_NONE;
        free(owner);
    }
    xcb_flush(connection);
    m_xembedTray = owned;
    // A tray selection changing hands; Qt's clipboard hears the same kind of event for its own selections.
    m_x11Filter = std::make_unique<QtX11EventFilter>(
        static_cast<uint8_t>(xfixes->first_event + XCB_XFIXES_SELECTION_NOTIFY),
        [this, selections = std::move(selections)](const xcb_generic_event_t* event) {
            const auto* notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
            if (std::find(selections.begin(), selections.end(), notify->selection) != selections.end())
                setXEmbedTray(notify->owner != XCB_NONE);
        });
}

void SystemTrayHostWatch::setStatusNotifierHost(bool exists)
{
    const bool had = hostExists();
    m_statusNotifierHost = exists;
    if (!had && hostExists() && m_settled)
        Q_EMIT hostAppeared();
}

void SystemTrayHostWatch::setXEmbedTray(bool exists)
{
    const bool had = hostExists();
    m_xembedTray = exists;
    if (!had && hostExists() && m_settled)
        Q_EMIT hostAppeared();
}

void SystemTrayHostWatch::settle(bool hadHost)
{
    if (m_settled)
        return;
    m_settled = true;
    if (hadHost)
        Q_EMIT hostAppeared();
    else
        Q_EMIT noHostAtStart();
}

} // namespace velto
