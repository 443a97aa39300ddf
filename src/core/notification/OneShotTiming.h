#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace velto {

// A restartable one-shot timer, replaceable so tests can fire it without waiting. Main thread.
class OneShotTiming {
public:
    virtual ~OneShotTiming() = default;
    // Calls action once, seconds from now, unless stop() or another start() comes first. Negative or NaN
    // seconds fire on the next turn of the event loop.
    virtual void start(double seconds, std::function<void()> action) = 0;
    virtual void stop() = 0;
    [[nodiscard]] virtual bool isActive() const = 0;
};

// The real one: a precise QTimer on the thread that creates it.
class QtOneShotTimer final : public OneShotTiming {
public:
    QtOneShotTimer();
    void start(double seconds, std::function<void()> action) override;
    void stop() override;
    [[nodiscard]] bool isActive() const override { return m_timer.isActive(); }

private:
    QTimer m_timer;
    std::function<void()> m_action;
};

} // namespace velto
