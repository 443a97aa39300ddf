#include "SchedulingTypes.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {

qint64 wholeSeconds(double seconds)
{
    constexpr double largest = 9.0e15; // well inside qint64, and beyond any day's countdown
    if (!(seconds > 0))
        return 0;
    return static_cast<qint64>(std::trunc(std::min(seconds, largest)));
}

QString PauseReason::displayText(const QDateTime& now) const
{
    switch (kind) {
    case PauseKind::ManuallyPaused:
        if (resumesAt && *resumesAt > now) {
            const double secondsLeft = static_cast<double>(now.msecsTo(*resumesAt)) / 1000.0;
            const qint64 minutes = wholeSeconds(secondsLeft) / 60 + 1;
            return u"Paused \u00B7 resumes in %1 min"_s.arg(minutes);
        }
        return u"Paused"_s;
    case PauseKind::OutsideOfficeHours:
        return u"Outside office hours"_s;
    case PauseKind::AppDisabled:
        return u"Breaks disabled"_s;
    case PauseKind::SmartActivity:
        return u"Smart Pause active"_s;
    }
    return {};
}

} // namespace velto
