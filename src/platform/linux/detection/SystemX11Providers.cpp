#include "SystemX11Providers.h"

#include "X11Queries.h"

#include <QDBusMessage>
#include <QDBusVariant>

using namespace Qt::Literals::StringLiterals;

namespace velto {

SystemWorkspace::SystemWorkspace(std::shared_ptr<X11Link> x11, std::shared_ptr<AppIdentityResolver> identities,
                                 std::shared_ptr<WindowClassMemo> memo, Scope scope)
    : m_x11(std::move(x11))
    , m_identities(std::move(identities))
    , m_memo(std::move(memo))
    , m_scope(scope)
{}

QList<AppSnapshot> SystemWorkspace::runningApplications() const
{
    {
        QMutexLocker lock(&m_refreshMutex);
        if (m_nextRefresh.hasExpired()) {
            if (m_identities->desktopEntries().refreshIfChanged())
                m_identityOfWindow.clear();
            m_nextRefresh.setRemainingTime(desktopEntryRefreshInterval);
        }
    }
    QList<AppSnapshot> applications;
    QHash<QPair<quint32, qint32>, std::optional<QString>> known;
    {
        QMutexLocker lock(&m_refreshMutex);
        known = m_identityOfWindow;
    }
    QHash<QPair<quint32, qint32>, std::optional<QString>> identities;
    QHash<qint32, WindowClassMemo::Classes> classes;
    const auto x11 = m_x11->snapshot(m_log);
    if (x11) {
        const X11Queries::Clients& clients = x11->clients;
        for (const X11Queries::Client& client : clients.clients) {
            if (client.pid <= 0 || classes.contains(client.pid))
                continue;
            classes.insert(client.pid, {client.wmInstance, client.wmClass});
            AppSnapshot app;
            app.processIdentifier = client.pid;
            app.isActive = client.pid == clients.activePid;
            const QPair<quint32, qint32> key(client.window, client.pid);
            const auto found = known.constFind(key);
            app.bundleIdentifier = found != known.constEnd()
                                       ? *found
                                       : m_identities->identity(client.pid, client.wmInstance, client.wmClass);
            identities.insert(key, app.bundleIdentifier);
            applications.append(app);
        }
    }
    m_memo->replace(std::move(classes));
    {
        QMutexLocker lock(&m_refreshMutex);
        m_identityOfWindow = std::move(identities);
    }
    if ((!x11 && m_scope != Scope::WindowsOnly) || m_scope == Scope::WindowsAndProcesses)
        appendInstalledApplications(applications);
    return applications;
}

void SystemWorkspace::appendInstalledApplications(QList<AppSnapshot>& applications) const
{
    // Without windows to go by, an application is a process of the user that is a Flatpak app or runs the
    // program an installed desktop file starts; one entry per application, its oldest process. None is
    // known to be in front.
    QSet<QString> known;
    for (const AppSnapshot& app : std::as_const(applications)) {
        if (app.bundleIdentifier)
            known.insert(*app.bundleIdentifier);
    }
    const ProcessTable& processes = m_identities->processes();
    for (const qint32 pid : processes.processesOfUser()) {
        std::optional<QString> identity = processes.flatpakAppId(pid);
        if (!identity) {
            if (const auto entry = m_identities->desktopEntries().entryForExecutable(processes.executableName(pid)))
                identity = entry->id;
        }
        if (!identity || known.contains(*identity))
            continue;
        known.insert(*identity);
        applications.append(AppSnapshot{identity, false, pid});
    }
}
SystemWindowList::SystemWindowList(std::shared_ptr<X11Link> x11)
    : m_x11(std::move(x11))
{}

QList<WindowDescriptor> SystemWindowList::onScreenWindows() const
{
    const auto x11 = m_x11->snapshot(m_log);
    if (!x11)
        return {};
    QList<WindowDescriptor> windows;
    for (const X11Queries::OnScreenWindow& window : x11->onScreenWindows)
        windows.append({window.pid, window.frame, window.layer});
    return windows;
}

QList<TitledWindow> SystemWindowList::titledWindows() const
{
    const auto x11 = m_x11->snapshot(m_log);
    if (!x11)
        return {};
    QList<TitledWindow> windows;
    for (const X11Queries::OnScreenWindow& window : x11->onScreenWindows)
        windows.append({window.pid, window.title});
    return windows;
}

SystemScreen::SystemScreen(std::shared_ptr<X11Link> x11)
    : m_x11(std::move(x11))
{}

QRectF SystemScreen::mainScreenFrame() const
{
    const auto x11 = m_x11->snapshot(m_log);
    if (!x11)
        return {};
    return x11->primaryScreenFrame;
}

SystemIdleTime::SystemIdleTime(std::shared_ptr<X11Link> x11, QDBusConnection sessionBus, Source order)
    : m_x11(std::move(x11))
    , m_bus(std::move(sessionBus))
    , m_order(order)
{}

double SystemIdleTime::secondsSinceLastInput() const
{
    if (m_order == Source::BusOnly)
        return busIdleSeconds().value_or(0.0);
    if (const auto seconds = x11IdleSeconds())
        return *seconds;
    return busIdleSeconds().value_or(0.0);
}

std::optional<double> SystemIdleTime::x11IdleSeconds() const
{
    const auto x11 = m_x11->snapshot(m_log);
    if (!x11)
        return std::nullopt;
    if (const auto milliseconds = x11->millisecondsSinceInput)
        return *milliseconds / 1000.0;
    m_log.warn(u"x11-screensaver"_s, u"The X server has no screen-saver extension"_s);
    return std::nullopt;
}

bool SystemIdleTime::countsMilliseconds(const QString& screenSaver) const
{
    // GNOME's, Xfce's and Cinnamon's screen savers answer in seconds; KDE's screen locker, the peer that also
    // owns org.kde.screensaver, in milliseconds. Asked once for each peer that answers.
    if (screenSaver != m_screenSaverPeer) {
        auto owner = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                    u"org.freedesktop.DBus"_s, u"GetNameOwner"_s);
        owner << u"org.kde.screensaver"_s; // name
        const QDBusMessage reply = m_bus.call(owner, QDBus::Block, callTimeout);
        m_screenSaverPeer = screenSaver;
        m_screenSaverCountsMilliseconds = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty() &&
                                          reply.arguments().constFirst().toString() == screenSaver;
    }
    return m_screenSaverCountsMilliseconds;
}

std::optional<double> SystemIdleTime::busIdleSeconds() const
{
    if (!m_bus.isConnected()) {
        m_log.warn(u"idle-bus"_s, u"No session bus; idle time reads as 0"_s);
        return std::nullopt;
    }
    auto mutter =
        QDBusMessage::createMethodCall(u"org.gnome.Mutter.IdleMonitor"_s, u"/org/gnome/Mutter/IdleMonitor/Core"_s,
                                       u"org.gnome.Mutter.IdleMonitor"_s, u"GetIdletime"_s);
    const QDBusMessage mutterReply = m_bus.call(mutter, QDBus::Block, callTimeout);
    if (mutterReply.type() == QDBusMessage::ReplyMessage && !mutterReply.arguments().isEmpty())
        return mutterReply.arguments().constFirst().toULongLong() / 1000.0; // milliseconds

    auto saver = QDBusMessage::createMethodCall(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s,
                                                u"org.freedesktop.ScreenSaver"_s, u"GetSessionIdleTime"_s);
    const QDBusMessage saverReply = m_bus.call(saver, QDBus::Block, callTimeout);
    if (saverReply.type() == QDBusMessage::ReplyMessage && !saverReply.arguments().isEmpty()) {
        const double value = saverReply.arguments().constFirst().toUInt();
        return countsMilliseconds(saverReply.service()) ? value / 1000.0 : value;
    }
    m_log.warn(u"idle-dbus"_s,
               u"Neither the Mutter idle monitor nor the screen saver answers: %1; idle time reads as 0"_s.arg(
                   saverReply.errorMessage()));
    return std::nullopt;
}

} // namespace velto
