#include "settings/Schedule.h"

#include <QTest>

#include <limits>

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
    void onlyActiveDaysCount();
    void minutesInside_data();
    void minutesInside();
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

void TestSchedule::onlyActiveDaysCount()
{
    const Schedule schedule = officeHours(workWeek, {9, 0}, {18, 0});
    QVERIFY(!schedule.isWithinOfficeHours(at(28, 12, 0), QTimeZone::utc())); // Saturday
    QVERIFY(schedule.isWithinOfficeHours(at(27, 12, 0), QTimeZone::utc()));  // Friday
}

void TestSchedule::minutesInside_data()
{
    QTest::addColumn<TimeOfDay>("start");
    QTest::addColumn<TimeOfDay>("end");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<bool>("inside");
    const TimeOfDay nine{9, 0};
    const TimeOfDay six{18, 0};
    QTest::newRow("start minute") << nine << six << QTime(9, 0) << true;
    QTest::newRow("second before start") << nine << six << QTime(8, 59, 59) << false;
    QTest::newRow("last second of the end minute") << nine << six << QTime(18, 0, 59) << true;
    QTest::newRow("minute after end") << nine << six << QTime(18, 1) << false;
    QTest::newRow("start equal to end") << TimeOfDay{12, 0} << TimeOfDay{12, 0} << QTime(12, 0, 30) << true;
    QTest::newRow("minute after a one-minute span") << TimeOfDay{12, 0} << TimeOfDay{12, 0} << QTime(12, 1) << false;
    // No wrap past midnight: an end before the start leaves no minute inside.
    QTest::newRow("night shift, late") << TimeOfDay{22, 0} << TimeOfDay{6, 0} << QTime(23, 0) << false;
    QTest::newRow("night shift, early") << TimeOfDay{22, 0} << TimeOfDay{6, 0} << QTime(0, 0) << false;
    // Absent components count as zero: 09:00 to 00:30, then 00:00 to 09:00.
    QTest::newRow("absent start minute") << TimeOfDay{9, {}} << TimeOfDay{{}, 30} << QTime(9, 0) << false;
    QTest::newRow("absent end minute") << TimeOfDay{} << TimeOfDay{9, {}} << QTime(9, 0) << true;
    QTest::newRow("absent end minute, a minute on") << TimeOfDay{} << TimeOfDay{9, {}} << QTime(9, 1) << false;
    // Stored hours far outside a day are used as they stand, without wrapping around.
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("huge end hour") << TimeOfDay{0, 0} << TimeOfDay{most, 0} << QTime(23, 59) << true;
    QTest::newRow("huge start hour") << TimeOfDay{most, 0} << TimeOfDay{23, 59} << QTime(12, 0) << false;
    QTest::newRow("hugely negative end hour") << TimeOfDay{least, 0} << TimeOfDay{least, 0} << QTime(0, 0) << false;
}

void TestSchedule::minutesInside()
{
    QFETCH(TimeOfDay, start);
    QFETCH(TimeOfDay, end);
    QFETCH(QTime, time);
    QFETCH(bool, inside);
    const QDateTime monday(QDate(2026, 11, 23), time, QTimeZone::utc());
    QCOMPARE(officeHours(workWeek, start, end).isWithinOfficeHours(monday, QTimeZone::utc()), inside);
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
