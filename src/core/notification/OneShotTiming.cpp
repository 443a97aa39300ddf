#include "OneShotTiming.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velto {

QtOneShotTimer::QtOneShotTimer()
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        // The action may start the timer again; it must not run a replaced action.
        const std::function<void()> action = std::move(m_action);
        m_action = nullptr;
        if (action)
            action();
    });
}

void QtOneShotTimer::start(double seconds, std::function<void()> action)
{
    m_action = std::move(action);
    const double milliseconds = std::isnan(seconds) ? 0.0 : std::max(0.0, seconds * 1000.0);
    m_timer.start(static_cast<int>(std::min(std::round(milliseconds), double(std::numeric_limits<int>::max()))));
}

void QtOneShotTimer::stop()
{
    m_timer.stop();
    m_action = nullptr;
}

} // namespace velto
