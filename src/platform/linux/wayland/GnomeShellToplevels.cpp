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
    , m_outputs(std::move(outputs))
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
                    forget();
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
            forget();
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
            QMutexLocker lock(&m_mutex);
            m_toplevels = std::move(toplevels);
            m_frames = std::move(frames);
            m_answered = true;
        }
        if (std::exchange(m_askAgain, false))
            ask();
    });
}

void GnomeShellToplevels::forget()
{
    QMutexLocker lock(&m_mutex);
    m_answered = false;
    m_toplevels.clear();
    m_frames.clear();
}

bool GnomeShellToplevels::isAvailable() const
{
    QMutexLocker lock(&m_mutex);
    return m_answered && m_outputs && m_outputs->isConnected();
}

QString GnomeShellToplevels::name() const
{
    return u"gnome-extension"_s;
}

WaylandFacts GnomeShellToplevels::facts() const
{
    if (!isAvailable())
        return {};
    WaylandFacts facts;
    facts.outputs = m_outputs->facts().outputs;
    QMutexLocker lock(&m_mutex);
    facts.toplevels = m_toplevels;
    for (qsizetype i = 0; i < facts.toplevels.size(); ++i) {
        const QPoint centre = m_frames.at(i).center();
        for (qsizetype o = 0; o < facts.outputs.size(); ++o) {
            if (facts.outputs.at(o).geometry.contains(centre)) {
                facts.toplevels[i].output = int(o);
                break;
            }
        }
    }
    return facts;
}

} // namespace velto
