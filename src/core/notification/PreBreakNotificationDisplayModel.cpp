#include "PreBreakNotificationDisplayModel.h"

#include "Published.h"
#include "scheduling/SchedulingTypes.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

QString counted(qint64 number, const QString& singular, const QString& plural)
{
    return u"%1 %2"_s.arg(number).arg(number == 1 ? singular : plural);
}

} // namespace

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
    return breakType == BreakType::Long ? u"Deep rest coming up"_s : u"Quick break coming up"_s;
}

QString PreBreakNotificationDisplayModel::messageFor(BreakType breakType)
{
    return breakType == BreakType::Long
               ? u"Wrap up or park your task. You\u2019re nearly at a longer chance to step away."_s
               : u"Save your place and finish the thought you\u2019re on. A quick reset is almost here."_s;
}

QString PreBreakNotificationDisplayModel::countdownTextFor(double seconds)
{
    const qint64 s = wholeSeconds(seconds);
    return u"%1:%2"_s.arg(s / 60).arg(s % 60, 2, 10, QChar(u'0'));
}

QString PreBreakNotificationDisplayModel::countdownSpokenLabelFor(double seconds)
{
    const qint64 s = wholeSeconds(seconds);
    const QString second = u"second"_s;
    const QString secondsWord = u"seconds"_s;
    if (s < 60)
        return u"Break in "_s + counted(s, second, secondsWord);
    QString label = u"Break in "_s + counted(s / 60, u"minute"_s, u"minutes"_s);
    if (s % 60 != 0)
        label += u' ' + counted(s % 60, second, secondsWord);
    return label;
}

} // namespace velto
