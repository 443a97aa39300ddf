#include "BusNamePresence.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace velto {

BusNamePresence::BusNamePresence(QDBusConnection bus, const QString& name, QObject* parent)
    : QObject(parent)
    , m_watcher(name, bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                m_heard = true;
                set(!newOwner.isEmpty());
            });
    if (!bus.isConnected())
        return;
    const QDBusPendingCall call = bus.interface()->asyncCall(QStringLiteral("NameHasOwner"), name);
    auto* pending = new QDBusPendingCallWatcher(call, this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<bool> reply = *finished;
        // A change heard meanwhile is newer than this answer.
        if (!m_heard && reply.isValid())
            set(reply.value());
    });
}

BusNamePresence::~BusNamePresence() = default;

void BusNamePresence::set(bool present)
{
    if (present == m_present)
        return;
    m_present = present;
    Q_EMIT presenceChanged(present);
}

} // namespace velto
