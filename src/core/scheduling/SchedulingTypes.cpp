#include "SchedulingTypes.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velto {

qint64 wholeSeconds(double seconds)
{
    constexpr double largest = 9.0e15; // well inside qint64, and beyond any day's countdown
    if (!(seconds > 0))
        return 0;
    return static_cast<qint64>(std::trunc(std::min(seconds, largest)));
}

int pluralCount(qint64 count)
{
    return static_cast<int>(std::clamp<qint64>(count, 0, std::numeric_limits<int>::max()));
}

QString PauseReason::displayText(const QDateTime& now) const
{
    switch (kind) {
    case PauseKind::ManuallyPaused:
        if (resumesAt && *resumesAt > now) {
            const double secondsLeft = static_cast<double>(now.msecsTo(*resumesAt)) / 1000.0;
            const qint64 minutes = wholeSeconds(secondsLeft) / 60 + 1;
            //: The tray menu's status line during a timed pause; %n is the minutes until it ends.
            return QCoreApplication::translate("PauseReason", "Paused · resumes in %n min", nullptr,
                                               pluralCount(minutes));
        }
        return QCoreApplication::translate("PauseReason", "Paused");
    case PauseKind::OutsideOfficeHours:
        return QCoreApplication::translate("PauseReason", "Outside office hours");
    case PauseKind::AppDisabled:
        //: Velto's reminders are switched off.
        return QCoreApplication::translate("PauseReason", "Breaks disabled");
    case PauseKind::SmartActivity:
        //: Smart Pause is the feature's name: breaks wait while a meeting, video, game or focus app is on.
        return QCoreApplication::translate("PauseReason", "Smart Pause active");
    }
    return {};
}

} // namespace velto
