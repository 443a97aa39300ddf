#include "GnomeShellToplevels.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

using namespace Qt::Literals::StringLiterals;

namespace velto {

GnomeShellToplevels::GnomeShellToplevels(QDBusConnection bus, std::shared_ptr<WaylandLink> outputs, QObject* parent)
    : QObject(parent)
    , m_bus(std::move(bus))
    , m_reported(std::move(outputs))
{}

GnomeShellToplevels::~GnomeShellToplevels() = default;

void GnomeShellToplevels::start()
{
    if (!m_bus.isConnected() || m_watcher)
        return;
    m_watcher = new QDBusServiceWatcher(QString(service), m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                if (owner.isEmpty())
                    m_reported.clear();
                else
                    ask();
            });
    m_bus.connect(QString(service), QString(path), QString(interface), u"WindowsChanged"_s, this, SLOT(ask()));
    ask();
}

void GnomeShellToplevels::ask()
{
    // One question at a time; changes that come meanwhile make one more.
    if (m_asking) {
        m_askAgain = true;
        return;
    }
    m_asking = true;
    const auto call = QDBusMessage::createMethodCall(QString(service), QString(path), QString(interface), u"Windows"_s);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* reply) {
        reply->deleteLater();
        m_asking = false;
        if (reply->isError()) {
            // No extension (or not ours to ask): neutral answers, as without it.
            m_reported.clear();
        } else {
            QList<WaylandToplevel> toplevels;
            QList<QRect> frames;
            const QDBusArgument list = reply->reply().arguments().value(0).value<QDBusArgument>();
            list.beginArray();
            while (!list.atEnd()) {
                QVariantMap window;
                list >> window;
                WaylandToplevel toplevel;
                toplevel.appId = window.value(u"appId"_s).toString();
                toplevel.title = window.value(u"title"_s).toString();
                toplevel.pid = window.value(u"pid"_s).toInt();
                toplevel.activated = window.value(u"focused"_s).toBool();
                toplevel.fullscreen = window.value(u"fullscreen"_s).toBool();
                toplevel.minimized = window.value(u"minimized"_s).toBool();
                toplevels.append(toplevel);
                frames.append(QRect(window.value(u"x"_s).toInt(), window.value(u"y"_s).toInt(),
                                    window.value(u"width"_s).toInt(), window.value(u"height"_s).toInt()));
            }
            list.endArray();
            m_reported.set(std::move(toplevels), std::move(frames));
        }
        if (std::exchange(m_askAgain, false))
            ask();
    });
}

bool GnomeShellToplevels::isAvailable() const
{
    return m_reported.isAvailable();
}

QString GnomeShellToplevels::name() const
{
    return u"gnome-extension"_s;
}

WaylandFacts GnomeShellToplevels::facts() const
{
    return m_reported.facts();
}

} // namespace velto
