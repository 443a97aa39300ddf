#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace velto {

// Whether a name has an owner on a bus, kept from the bus's own announcements: asked once without waiting,
// then followed. Absent until the bus has answered, and on any failure. Main thread.
class BusNamePresence final : public QObject {
    Q_OBJECT

public:
    BusNamePresence(QDBusConnection bus, const QString& name, QObject* parent = nullptr);
    ~BusNamePresence() override;

    [[nodiscard]] bool isPresent() const { return m_present; }

Q_SIGNALS:
    void presenceChanged(bool present);

private:
    void set(bool present);

    QDBusServiceWatcher m_watcher;
    bool m_present = false;
    bool m_heard = false;
};

} // namespace velto
