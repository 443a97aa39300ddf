#include "PreBreakNotificationDisplayModel.h"

#include "Published.h"
#include "scheduling/SchedulingTypes.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {

PreBreakNotificationDisplayModel::PreBreakNotificationDisplayModel(BreakType breakType, double timeRemaining,
                                                                   QObject* parent)
    : QObject(parent)
    , m_breakType(breakType)
    , m_timeRemaining(timeRemaining)
{}

void PreBreakNotificationDisplayModel::setTimeRemaining(double value)
{
    publish(this, m_timeRemaining, value, &PreBreakNotificationDisplayModel::timeRemainingChanged);
}

QString PreBreakNotificationDisplayModel::titleFor(BreakType breakType)
{
    //: The title of the notice shown shortly before a break.
    return breakType == BreakType::Long ? tr("Deep rest coming up") : tr("Quick break coming up");
}

QString PreBreakNotificationDisplayModel::messageFor(BreakType breakType)
{
    return breakType == BreakType::Long
               ? tr("Wrap up or park your task. You’re nearly at a longer chance to step away.")
               : tr("Save your place and finish the thought you’re on. A quick reset is almost here.");
}

QString PreBreakNotificationDisplayModel::countdownTextFor(double seconds)
{
    const qint64 s = wholeSeconds(seconds);
    return u"%1:%2"_s.arg(s / 60).arg(s % 60, 2, 10, QChar(u'0'));
}

QString PreBreakNotificationDisplayModel::countdownSpokenLabelFor(double seconds)
{
    const qint64 s = wholeSeconds(seconds);
    const int minutes = pluralCount(s / 60);
    const int secondsPastMinute = pluralCount(s % 60);
    if (minutes == 0) {
        //: What a screen reader says for the notice's countdown.
        return tr("Break in %n seconds", nullptr, secondsPastMinute);
    }
    if (secondsPastMinute == 0) {
        //: What a screen reader says for the notice's countdown.
        return tr("Break in %n minutes", nullptr, minutes);
    }
    //: The minutes of "Break in %1 %2".
    const QString minutesText = tr("%n minutes", nullptr, minutes);
    //: The seconds of "Break in %1 %2".
    const QString secondsText = tr("%n seconds", nullptr, secondsPastMinute);
    //: What a screen reader says for the notice's countdown, such as "Break in 2 minutes 5 seconds": %1 is the
    //: minutes, %2 the seconds.
    return tr("Break in %1 %2").arg(minutesText, secondsText);
}

} // namespace velto
