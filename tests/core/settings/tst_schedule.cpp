#include "settings/Schedule.h"

#include <QTest>

using namespace velto;

namespace {

const std::set<Weekday> workWeek{Weekday::Monday, Weekday::Tuesday, Weekday::Wednesday, Weekday::Thursday,
                                 Weekday::Friday};

Schedule officeHours(std::set<Weekday> days, TimeOfDay start, TimeOfDay end)
{
    Schedule schedule;
    schedule.isEnabled = true;
    schedule.activeDays = std::move(days);
    schedule.startTime = start;
    schedule.endTime = end;
    return schedule;
}

// 2026-11-23 is a Monday.
QDateTime at(int dayOfMonth, int hour, int minute, int second = 0, const QTimeZone& zone = QTimeZone::utc())
{
    return QDateTime(QDate(2026, 11, dayOfMonth), QTime(hour, minute, second), zone);
}

} // namespace

class TestSchedule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offMeansAlwaysWithin();
    void daysAndInclusiveMinuteEdges();
    void noWrapPastMidnight();
    void absentComponentsCountAsZero();
    void weekdayAndTimeAreTakenInTheGivenZone();
    void membershipEdits();
};

void TestSchedule::offMeansAlwaysWithin()
{
    Schedule schedule = officeHours({}, {9, 0}, {9, 0});
    schedule.isEnabled = false;
    for (int day = 22; day <= 28; ++day)
        QVERIFY(schedule.isWithinOfficeHours(at(day, 23, 59), QTimeZone::utc()));
    // On with no active day: nothing is within.
    schedule.isEnabled = true;
    for (int day = 22; day <= 28; ++day)
        QVERIFY(!schedule.isWithinOfficeHours(at(day, 12, 0), QTimeZone::utc()));
}

void TestSchedule::daysAndInclusiveMinuteEdges()
{
    const Schedule schedule = officeHours(workWeek, {9, 0}, {18, 0});
    const QTimeZone utc = QTimeZone::utc();
    QVERIFY(!schedule.isWithinOfficeHours(at(28, 12, 0), utc)); // Saturday
    QVERIFY(schedule.isWithinOfficeHours(at(23, 9, 0), utc));
    QVERIFY(!schedule.isWithinOfficeHours(at(23, 8, 59, 59), utc));
    QVERIFY(schedule.isWithinOfficeHours(at(23, 18, 0, 59), utc));
    QVERIFY(!schedule.isWithinOfficeHours(at(23, 18, 1), utc));

    const Schedule oneMinute = officeHours(workWeek, {12, 0}, {12, 0});
    QVERIFY(oneMinute.isWithinOfficeHours(at(24, 12, 0, 30), utc));
    QVERIFY(!oneMinute.isWithinOfficeHours(at(24, 11, 59, 59), utc));
    QVERIFY(!oneMinute.isWithinOfficeHours(at(24, 12, 1), utc));
}

void TestSchedule::noWrapPastMidnight()
{
    const Schedule nightShift = officeHours(workWeek, {22, 0}, {6, 0});
    for (const int hour : {0, 6, 22, 23})
        QVERIFY2(!nightShift.isWithinOfficeHours(at(24, hour, 0), QTimeZone::utc()), qPrintable(QString::number(hour)));
}

void TestSchedule::absentComponentsCountAsZero()
{
    const Schedule schedule = officeHours(workWeek, {9, std::nullopt}, {std::nullopt, 30});
    // Start is 09:00, end is 00:30: nothing is inside.
    QVERIFY(!schedule.isWithinOfficeHours(at(24, 9, 0), QTimeZone::utc()));
    const Schedule morning = officeHours(workWeek, {std::nullopt, std::nullopt}, {9, std::nullopt});
    QVERIFY(morning.isWithinOfficeHours(at(24, 9, 0), QTimeZone::utc()));
    QVERIFY(!morning.isWithinOfficeHours(at(24, 9, 1), QTimeZone::utc()));
}

void TestSchedule::weekdayAndTimeAreTakenInTheGivenZone()
{
    const Schedule schedule = officeHours({Weekday::Monday}, {9, 0}, {10, 0});
    const QTimeZone plusTen = QTimeZone(10 * 3600);
    // Sunday 23:30 UTC is Monday 09:30 ten hours east.
    const QDateTime moment = at(22, 23, 30);
    QVERIFY(!schedule.isWithinOfficeHours(moment, QTimeZone::utc()));
    QVERIFY(schedule.isWithinOfficeHours(moment, plusTen));
    QVERIFY(!schedule.isWithinOfficeHours(QDateTime(), plusTen));
}

void TestSchedule::membershipEdits()
{
    Schedule schedule;
    schedule.removeDay(Weekday::Sunday);
    schedule.removeDay(Weekday::Sunday);
    QVERIFY(!schedule.isActiveOn(Weekday::Sunday));
    QCOMPARE(schedule.activeDays.size(), 6u);
    schedule.insertDay(Weekday::Sunday);
    schedule.insertDay(Weekday::Sunday);
    QCOMPARE(schedule, Schedule());
}

QTEST_GUILESS_MAIN(TestSchedule)
#include "tst_schedule.moc"
