#include "SystemScreenLock.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

Q_LOGGING_CATEGORY(lcScreenLock, "velto.screenlock")

constexpr int availabilityCacheMs = 2000;

const QString screenSaverService = u"org.freedesktop.ScreenSaver"_s;
const QString logindService = u"org.freedesktop.login1"_s;
// Desktops register their screen saver at one or both of these.
const QStringList screenSaverPaths{u"/org/freedesktop/ScreenSaver"_s, u"/ScreenSaver"_s};

bool hasOwner(const QDBusConnection& bus, const QString& service)
{
    if (!bus.isConnected())
        return false;
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s,  // the bus daemon itself
                                                           u"/org/freedesktop/DBus"_s, // its one object
                                                           u"org.freedesktop.DBus"_s,  // interface
                                                           u"NameHasOwner"_s);         // method
    question << service;                                                               // the well-known name
    const QDBusMessage reply = bus.call(question, QDBus::Block, SystemScreenLock::callTimeout);
    return reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool();
}

} // namespace

SystemScreenLock::SystemScreenLock(QObject* parent)
    : SystemScreenLock(QDBusConnection::sessionBus(), QDBusConnection::systemBus(), parent)
{}

SystemScreenLock::SystemScreenLock(QDBusConnection sessionBus, QDBusConnection systemBus, QObject* parent)
    : QObject(parent)
    , m_sessionBus(std::move(sessionBus))
    , m_systemBus(std::move(systemBus))
{}

bool SystemScreenLock::isLockAvailable() const
{
    if (m_availableUntil.hasExpired()) {
        m_available = hasOwner(m_sessionBus, screenSaverService) || hasOwner(m_systemBus, logindService);
        m_availableUntil.setRemainingTime(availabilityCacheMs);
    }
    return m_available;
}

void SystemScreenLock::lockScreen()
{
    tryScreenSaver(0);
}

void SystemScreenLock::tryScreenSaver(qsizetype pathIndex)
{
    if (pathIndex >= screenSaverPaths.size()) {
        tryLogind();
        return;
    }
    const QDBusMessage lock = QDBusMessage::createMethodCall(screenSaverService,               // service
                                                             screenSaverPaths.at(pathIndex),   // object
                                                             u"org.freedesktop.ScreenSaver"_s, // interface
                                                             u"Lock"_s);                       // method, no arguments
    callAsync(m_sessionBus, lock, [this, pathIndex](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            finish(true, {});
        else if (reply.errorName() == u"org.freedesktop.DBus.Error.ServiceUnknown")
            tryLogind(); // nobody owns the name, so the other path has no one to answer either
        else
            tryScreenSaver(pathIndex + 1);
    });
}

void SystemScreenLock::tryLogind()
{
    const QString sessionId = qEnvironmentVariable("XDG_SESSION_ID");
    if (!sessionId.isEmpty()) {
        QDBusMessage lock = QDBusMessage::createMethodCall(logindService,                       // service
                                                           u"/org/freedesktop/login1"_s,        // object
                                                           u"org.freedesktop.login1.Manager"_s, // interface
                                                           u"LockSession"_s);                   // method
        lock << sessionId;                                                                      // our session's id
        callAsync(m_systemBus, lock, [this](const QDBusMessage& reply) {
            finish(reply.type() == QDBusMessage::ReplyMessage, reply.errorMessage());
        });
        return;
    }
    // Started outside a login session's environment: ask logind which session this process belongs to.
    QDBusMessage find = QDBusMessage::createMethodCall(logindService,                       // service
                                                       u"/org/freedesktop/login1"_s,        // object
                                                       u"org.freedesktop.login1.Manager"_s, // interface
                                                       u"GetSessionByPID"_s);               // method
    find << static_cast<quint32>(QCoreApplication::applicationPid());                       // our process
    callAsync(m_systemBus, find, [this](const QDBusMessage& reply) {
        const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (reply.type() != QDBusMessage::ReplyMessage || path.isEmpty())
            finish(false, reply.errorMessage());
        else
            lockLogindSession(path);
    });
}

void SystemScreenLock::lockLogindSession(const QString& sessionPath)
{
    const QDBusMessage lock = QDBusMessage::createMethodCall(logindService,                       // service
                                                             sessionPath,                         // our session
                                                             u"org.freedesktop.login1.Session"_s, // interface
                                                             u"Lock"_s); // method, no arguments
    callAsync(m_systemBus, lock, [this](const QDBusMessage& reply) {
        finish(reply.type() == QDBusMessage::ReplyMessage, reply.errorMessage());
    });
}

void SystemScreenLock::finish(bool locked, const QString& error)
{
    if (!locked && !m_reportedFailure) {
        m_reportedFailure = true;
        qCWarning(lcScreenLock).noquote()
            << u"Could not lock the screen through the screen saver or logind:"_s << error;
    }
    Q_EMIT lockAttemptFinished(locked);
}

void SystemScreenLock::callAsync(const QDBusConnection& bus, const QDBusMessage& message,
                                 std::function<void(const QDBusMessage& reply)> onReply)
{
    if (!bus.isConnected()) {
        // Qt's pending call for a missing bus never finishes; answer with the error it stands for, still later.
        QMetaObject::invokeMethod(
            this,
            [onReply = std::move(onReply)] {
                onReply(QDBusMessage::createError(QDBusError::Disconnected, u"Not connected to the bus"_s));
            },
            Qt::QueuedConnection);
        return;
    }
    // The watcher belongs to this object, so a lock destroyed mid-call never runs the rest of the chain.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, callTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, onReply = std::move(onReply)] {
        watcher->deleteLater();
        onReply(watcher->reply());
    });
}

} // namespace velto
