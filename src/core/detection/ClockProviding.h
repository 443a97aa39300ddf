#pragma once

#include <QDateTime>

namespace velto {

// The current time, replaceable so tests can move it.
class ClockProviding {
public:
    virtual ~ClockProviding() = default;
    // The current wall-clock time. Called from the detection worker thread and the main thread.
    [[nodiscard]] virtual QDateTime now() const = 0;
};

} // namespace velto
