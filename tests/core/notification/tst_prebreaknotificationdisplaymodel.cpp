#include "EnglishPluralForms.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestPreBreakNotificationDisplayModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_english.install()); }
    void countdown_data();
    void countdown();
    void textsFollowTheBreakType();
    void everyAssignmentIsPublished();

private:
    EnglishPluralForms m_english;
};

void TestPreBreakNotificationDisplayModel::countdown_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("59.9 is not rounded up") << 59.9 << u"0:59"_s << u"Break in 59 seconds"_s;
    QTest::newRow("one minute") << 60.0 << u"1:00"_s << u"Break in 1 minute"_s;
    QTest::newRow("61") << 61.0 << u"1:01"_s << u"Break in 1 minute 1 second"_s;
    QTest::newRow("125") << 125.0 << u"2:05"_s << u"Break in 2 minutes 5 seconds"_s;
    QTest::newRow("below zero reads zero") << -3.5 << u"0:00"_s << u"Break in 0 seconds"_s;
    QTest::newRow("NaN reads zero") << std::numeric_limits<double>::quiet_NaN() << u"0:00"_s << u"Break in 0 seconds"_s;
}

void TestPreBreakNotificationDisplayModel::countdown()
{
    QFETCH(double, seconds);
    QFETCH(QString, text);
    QFETCH(QString, spoken);
    PreBreakNotificationDisplayModel model(BreakType::Short, seconds);
    QCOMPARE(model.countdownText(), text);
    QCOMPARE(model.countdownSpokenLabel(), spoken);
}

void TestPreBreakNotificationDisplayModel::textsFollowTheBreakType()
{
    const PreBreakNotificationDisplayModel quick(BreakType::Short, 60);
    const PreBreakNotificationDisplayModel deep(BreakType::Long, 60);
    QCOMPARE(quick.title(), u"Quick break coming up"_s);
    QCOMPARE(deep.title(), u"Deep rest coming up"_s);
    QCOMPARE(quick.message(), u"Save your place and finish the thought you’re on. A quick reset is almost here."_s);
    QCOMPARE(deep.message(), u"Wrap up or park your task. You’re nearly at a longer chance to step away."_s);
}

void TestPreBreakNotificationDisplayModel::everyAssignmentIsPublished()
{
    PreBreakNotificationDisplayModel model(BreakType::Long, 60);
    QStringList order;
    connect(&model, &PreBreakNotificationDisplayModel::objectWillChange, this,
            [&] { order.append(u"will %1"_s.arg(model.timeRemaining())); });
    connect(&model, &PreBreakNotificationDisplayModel::timeRemainingChanged, this,
            [&](double value) { order.append(u"changed %1 %2"_s.arg(value).arg(model.countdownText())); });
    model.setTimeRemaining(59);
    model.setTimeRemaining(59);
    QCOMPARE(order, QStringList({u"will 60"_s, u"changed 59 0:59"_s, u"will 59"_s, u"changed 59 0:59"_s}));
}

QTEST_GUILESS_MAIN(TestPreBreakNotificationDisplayModel)
#include "tst_prebreaknotificationdisplaymodel.moc"
