#pragma once

#include "scheduling/KeyDownTimeProviding.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QObject>

#include <memory>

namespace velto {

// GNOME's stand-in for key presses, which no Wayland client hears: Mutter's idle monitor says when input has
// stopped for two seconds and when it comes back, so "input in the last two seconds" is known without polling.
// Pointer movement counts too. Main thread.
class MutterInputActivity final : public QObject, public KeyDownTimeProviding {
    Q_OBJECT

public:
    // Null when Mutter's idle monitor does not answer on this bus.
    [[nodiscard]] static std::unique_ptr<MutterInputActivity> start(QDBusConnection bus);

    // 0 while input came in the last two seconds; else the seconds since it stopped.
    [[nodiscard]] std::optional<double> secondsSinceLastKeyDown() const override;

    static constexpr quint64 activityWindowMs = 2000;

private Q_SLOTS:
    void watchFired(quint32 id);

private:
    explicit MutterInputActivity(QDBusConnection bus);
    void watchForInput();
    void addWatch(const QDBusMessage& request, quint32 MutterInputActivity::*watch);

    QDBusConnection m_bus;
    quint32 m_idleWatch = 0;
    quint32 m_activeWatch = 0;
    bool m_idle = false;
    QElapsedTimer m_idleSince;
};

} // namespace velto
