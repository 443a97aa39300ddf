#pragma once

// Services the D-Bus tests register on their private bus, each on a connection of its own so every call
// crosses the bus daemon; and a way to ask a provider from a worker thread, as detection does, while the
// test's thread serves the fakes.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QHash>
#include <QVariant>

#include <atomic>
#include <chrono>
#include <future>

// One object that answers property reads (and, for idle monitors, method calls) by hand, so it can also stay
// silent like a hung application.
class FakeBusObject final : public QDBusVirtualObject {
public:
    QHash<QString, QVariant> properties;
    QHash<QString, QVariant> methodResults;
    std::atomic<bool> silent = false;
    std::atomic<int> calls = 0;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        ++calls;
        if (silent)
            return true; // and never reply
        if (message.interface() == QStringLiteral("org.freedesktop.DBus.Properties") &&
            message.member() == QStringLiteral("Get")) {
            const QString name = message.arguments().value(1).toString();
            if (!properties.contains(name))
                return connection.send(message.createErrorReply(QDBusError::UnknownProperty, name));
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(properties.value(name)))));
        }
        if (methodResults.contains(message.member()))
            return connection.send(message.createReply(methodResults.value(message.member())));
        return connection.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
    }
};

// A service on a connection of its own, gone with it.
class FakeService final {
public:
    FakeService(const QString& busName, const QString& path)
        : m_connectionName(QStringLiteral("fake-") + busName)
        , m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
    {
        m_connection.registerVirtualObject(path, &object);
        m_connection.registerService(busName);
    }
    ~FakeService()
    {
        m_connection.unregisterObject(QStringLiteral("/"));
        QDBusConnection::disconnectFromBus(m_connectionName);
    }
    // A second well-known name for the same peer, as desktops that offer one service under two names do.
    void alsoOwn(const QString& busName) { m_connection.registerService(busName); }
    FakeBusObject object;

private:
    QString m_connectionName;
    QDBusConnection m_connection;
};

// Runs the question on a worker thread while this thread keeps serving the fakes.
template <typename Question>
auto askOffThread(Question question, qint64* milliseconds = nullptr)
{
    QElapsedTimer timer;
    timer.start();
    auto answer = std::async(std::launch::async, question);
    while (answer.wait_for(std::chrono::milliseconds(0)) != std::future_status::ready)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    if (milliseconds)
        *milliseconds = timer.elapsed();
    return answer.get();
}
