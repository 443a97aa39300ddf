#include "MutterInputActivity.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {
const QString service = u"org.gnome.Mutter.IdleMonitor"_s;
const QString path = u"/org/gnome/Mutter/IdleMonitor/Core"_s;
const QString interface = u"org.gnome.Mutter.IdleMonitor"_s;
constexpr int callTimeout = 1000;
} // namespace

MutterInputActivity::MutterInputActivity(QDBusConnection bus)
    : m_bus(std::move(bus))
{}

std::unique_ptr<MutterInputActivity> MutterInputActivity::start(QDBusConnection bus)
{
    // Only the bus itself is asked and waited for; the monitor's own answers come when they come.
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(service).value())
        return nullptr;
    std::unique_ptr<MutterInputActivity> activity(new MutterInputActivity(bus));
    bus.connect(service, path, interface, u"WatchFired"_s, activity.get(), SLOT(watchFired(quint32)));
    auto add = QDBusMessage::createMethodCall(service, path, interface, u"AddIdleWatch"_s);
    add << activityWindowMs; // interval, milliseconds
    activity->addWatch(add, &MutterInputActivity::m_idleWatch);
    return activity;
}

void MutterInputActivity::addWatch(const QDBusMessage& request, quint32 MutterInputActivity::*watch)
{
    auto* call = new QDBusPendingCallWatcher(m_bus.asyncCall(request, callTimeout), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, watch](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<quint32> reply = *finished;
        this->*watch = reply.isError() ? 0 : reply.value();
    });
}

void MutterInputActivity::watchForInput()
{
    // One-shot on Mutter's side: asked again each time input stops.
    addWatch(QDBusMessage::createMethodCall(service, path, interface, u"AddUserActiveWatch"_s),
             &MutterInputActivity::m_activeWatch);
}

void MutterInputActivity::watchFired(quint32 id)
{
    if (id == m_idleWatch && id != 0) {
        m_idle = true;
        m_idleSince.start();
        watchForInput();
    } else if (id == m_activeWatch && id != 0) {
        m_idle = false;
        m_activeWatch = 0;
    }
}

std::optional<double> MutterInputActivity::secondsSinceLastKeyDown() const
{
    if (!m_idle)
        return 0.0;
    return (double(activityWindowMs) + double(m_idleSince.elapsed())) / 1000.0;
}

} // namespace velto
