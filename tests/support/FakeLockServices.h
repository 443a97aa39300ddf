#pragma once

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QList>
#include <QObject>

// Stand-ins for the session's lockers, registered by the D-Bus tests on private buses. Each counts what it
// was asked; the screen saver can also refuse or stay silent, as broken desktops do.

class FakeScreenSaver final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    enum class Answer { Lock, Refuse, Ignore };

    Answer answer = Answer::Lock;
    int lockCalls = 0;

public Q_SLOTS:
    void Lock()
    {
        ++lockCalls;
        if (answer == Answer::Refuse)
            sendErrorReply(QDBusError::NotSupported, QStringLiteral("Locking is not supported here"));
        else if (answer == Answer::Ignore)
            setDelayedReply(true); // and never reply
    }
};

class FakeLogindSession final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")

public:
    int lockCalls = 0;

public Q_SLOTS:
    void Lock() { ++lockCalls; }
};

class FakeLogindManager final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    // The session GetSessionByPID hands out.
    QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/_37");
    bool refuse = false;
    QStringList lockedSessions;
    QList<uint> askedPids;

public Q_SLOTS:
    void LockSession(const QString& sessionId)
    {
        lockedSessions.append(sessionId);
        if (refuse)
            sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSuchSession"), QStringLiteral("No such session"));
    }
    QDBusObjectPath GetSessionByPID(uint pid)
    {
        askedPids.append(pid);
        return QDBusObjectPath(sessionPath);
    }
};
