#pragma once

#include "LogOnce.h"
#include "scheduling/KeyDownTimeProviding.h"

#include <QByteArray>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace velto {

// Key presses anywhere in the X session, heard as XInput2 raw key events on the root window by a thread of
// its own with its own connection; the main thread only reads the time of the latest one.
class X11KeyDownTime final : public KeyDownTimeProviding {
public:
    // Monotonic time in nanoseconds; replaceable so tests need not wait.
    using MonotonicClock = std::function<qint64()>;

    // Listening on this display (empty: $DISPLAY); null when there is no X server or it lacks XInput 2.1.
    [[nodiscard]] static std::unique_ptr<X11KeyDownTime> start(const QByteArray& display = {},
                                                               MonotonicClock clock = {});
    ~X11KeyDownTime() override;
    X11KeyDownTime(const X11KeyDownTime&) = delete;
    X11KeyDownTime& operator=(const X11KeyDownTime&) = delete;

    [[nodiscard]] std::optional<double> secondsSinceLastKeyDown() const override;
    // Key presses heard so far.
    [[nodiscard]] quint64 keyDownCount() const { return m_count.load(); }

private:
    X11KeyDownTime() = default;
    void listen();

    struct Connection;
    std::unique_ptr<Connection> m_connection;
    MonotonicClock m_clock;
    int m_wakeFd = -1;
    std::atomic<qint64> m_lastKeyDown{0};
    std::atomic<quint64> m_count{0};
    std::thread m_thread;
    LogOnce m_log;
};

// For sessions where key presses cannot be heard (Wayland, no display): never typing.
class NullKeyDownTime final : public KeyDownTimeProviding {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastKeyDown() const override { return std::nullopt; }
};

} // namespace velto
