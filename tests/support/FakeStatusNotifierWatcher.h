#pragma once

#include <QMutex>
#include <QObject>
#include <QStringList>

// The smallest tray host a tray icon accepts: a StatusNotifierWatcher that says a host is registered and keeps
// the items that register. Qt asks it with blocking calls from the main thread, so in the same process it must
// live on a thread of its own; it is safe to read from any thread.
class FakeStatusNotifierWatcher final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    [[nodiscard]] bool isHostRegistered() const { return true; }
    [[nodiscard]] int protocolVersion() const { return 0; }
    [[nodiscard]] QStringList items() const
    {
        QMutexLocker lock(&m_mutex);
        return m_items;
    }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service)
    {
        QMutexLocker lock(&m_mutex);
        m_items.append(service);
    }
    void RegisterStatusNotifierHost(const QString&) {}

private:
    mutable QMutex m_mutex;
    QStringList m_items;
};
