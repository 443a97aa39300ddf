#include "ControlService.h"

#include "ControlBus.h"
#include "ControlTarget.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QLoggingCategory>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

Q_LOGGING_CATEGORY(lcControl, "velto.control")

// The bus daemon's RequestName flags and answers.
constexpr uint doNotQueue = 0x4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;

} // namespace

ControlService::ControlService(QObject* parent)
    : QObject(parent)
{}

ControlService::~ControlService()
{
    if (!m_registered)
        return;
    QDBusConnection bus(m_connectionName);
    bus.unregisterObject(ControlBus::objectPath);
    bus.unregisterService(ControlBus::serviceName);
}

ControlService::Registration ControlService::registerOn(QDBusConnection bus)
{
    if (!bus.isConnected())
        return Registration::NoBus;
    // The object goes first: a call that arrives the moment the name is ours must find it.
    if (!bus.registerObject(ControlBus::objectPath, this, QDBusConnection::ExportScriptableSlots)) {
        qCWarning(lcControl) << "Could not export the control object on" << bus.name();
        return Registration::NoBus;
    }

    QDBusMessage request = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                          u"org.freedesktop.DBus"_s, u"RequestName"_s);
    request << ControlBus::serviceName // name
            << doNotQueue;             // flags: fail at once rather than wait for the owner to leave
    const QDBusReply<uint> reply = bus.call(request, QDBus::Block, ControlBus::callTimeoutMs);
    if (reply.isValid() && (reply.value() == primaryOwner || reply.value() == alreadyOwner)) {
        m_connectionName = bus.name();
        m_registered = true;
        return Registration::Owner;
    }
    bus.unregisterObject(ControlBus::objectPath);
    if (!reply.isValid()) {
        qCWarning(lcControl) << "Could not ask for" << ControlBus::serviceName
                             << "on the session bus:" << reply.error().message();
        return Registration::NoBus;
    }
    return Registration::AnotherInstance;
}

ControlService::Registration ControlService::registerOnSessionBus(ControlTarget& target)
{
    setTarget(&target);
    return registerOnSessionBus();
}

ControlTarget* ControlService::readyTarget()
{
    if (!m_target && calledFromDBus())
        sendErrorReply(ControlBus::notReadyError, u"Velto is still starting"_s);
    return m_target;
}

QVariantMap ControlService::status()
{
    ControlTarget* target = readyTarget();
    return target ? target->controlStatus().toVariantMap() : QVariantMap();
}

void ControlService::takeBreakNow()
{
    if (ControlTarget* target = readyTarget())
        target->takeBreakNow();
}

void ControlService::startLongBreak()
{
    if (ControlTarget* target = readyTarget())
        target->startLongBreak();
}

void ControlService::pauseFor(double seconds)
{
    // Anyone on the session bus may call this, not only our command line.
    if (!std::isfinite(seconds) || seconds <= 0 || seconds > ControlBus::longestPauseSeconds) {
        if (calledFromDBus())
            sendErrorReply(ControlBus::invalidArgumentError,
                           u"A pause lasts more than 0 and at most %1 seconds"_s.arg(ControlBus::longestPauseSeconds));
        return;
    }
    if (ControlTarget* target = readyTarget())
        target->pauseFor(seconds);
}

void ControlService::resume()
{
    if (ControlTarget* target = readyTarget())
        target->resume();
}

void ControlService::skipUpcomingBreak()
{
    if (ControlTarget* target = readyTarget())
        target->skipUpcomingBreak();
}

void ControlService::setRemindersEnabled(bool enabled)
{
    if (ControlTarget* target = readyTarget())
        target->setRemindersEnabled(enabled);
}

bool ControlService::openSettings()
{
    ControlTarget* target = readyTarget();
    return target && target->openSettings();
}

void ControlService::quit()
{
    if (!readyTarget())
        return;
    // Quitting now would end the process before the reply is on its way.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_target)
                m_target->quit();
        },
        Qt::QueuedConnection);
}

QString ControlService::checkForUpdates()
{
    ControlTarget* target = readyTarget();
    if (!target || !calledFromDBus())
        return {};
    setDelayedReply(true);
    target->checkForUpdates([bus = connection(), call = message()](bool completed, const QString& outcome) {
        bus.send(completed ? call.createReply(outcome)
                           : call.createErrorReply(ControlBus::updateCheckFailedError, outcome));
    });
    return {};
}

void ControlService::triggerTestPreBreakNotification()
{
    if (ControlTarget* target = readyTarget())
        target->triggerTestPreBreakNotification();
}

} // namespace velto
