#include "CommandLine.h"
#include "HistoryCommand.h"
#include "InMemoryHistoryStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTextStream>
#include <QTimeZone>
#include <QTranslator>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 25);

// Two days and an evening before them, in a zone an hour east of UTC.
struct Recorded {
    Recorded()
    {
        const auto add = [&](QDate date, QTime time, HistoryEventKind kind, QString detail, double seconds) {
            store.append(
                {.kind = kind,
                 .at = QDateTime(date, time, QTimeZone(3600)).toUTC(),
                 .utcOffsetSeconds = 3600,
                 .breakType = kind == HistoryEventKind::SmartPauseHold ? std::nullopt : std::optional(BreakType::Short),
                 .detail = std::move(detail),
                 .seconds = seconds});
        };
        add(today.addDays(-2), QTime(23, 30), HistoryEventKind::BreakEnded, u"completed"_s, 20);
        // Just after midnight local time: still the evening before in UTC, yet the first day shown.
        add(today.addDays(-1), QTime(0, 30), HistoryEventKind::BreakEnded, u"completed"_s, 20);
        add(today.addDays(-1), QTime(10, 0), HistoryEventKind::BreakEnded, u"skipped"_s, 4.25);
        add(today, QTime(9, 0), HistoryEventKind::SmartPauseHold, u"meeting, \"weekly\""_s, 1800);
        store.addToDay({today, 3723, 1500});
    }

    QString run(const QStringList& arguments)
    {
        const CommandLine commandLine = CommandLine::parse(QStringList{u"history"_s} + arguments);
        QString output;
        QString errors;
        QTextStream out(&output);
        QTextStream err(&errors);
        [&] { QCOMPARE(HistoryCommand(store, today).run(commandLine, out, err), ExitCode::success); }();
        return output;
    }

    InMemoryHistoryStore store;
};

} // namespace

class HistoryCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void daysAsCsvAndJson()
    {
        Recorded history;
        const QStringList csv = history.run({u"--days"_s, u"2"_s, u"--csv"_s}).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(csv, (QStringList{u"date,taken,ended_early,skipped,postponed,work_seconds,longest_stretch_seconds,"
                                   u"smart_pause_seconds,paused_seconds"_s,
                                   u"2026-11-24,1,0,1,0,0,0,0,0"_s, u"2026-11-25,0,0,0,0,3723,1500,1800,0"_s}));

        const QJsonArray days =
            QJsonDocument::fromJson(history.run({u"--json"_s}).toUtf8()).object().value(u"days"_s).toArray();
        QCOMPARE(days.size(), 7);
        QCOMPARE(days.at(5).toObject().value(u"date"_s).toString(), u"2026-11-24"_s);
        QCOMPARE(days.at(6).toObject().value(u"work_seconds"_s).toDouble(), 3723.0);
    }

    void eventsAsCsvAndJson()
    {
        Recorded history;
        const QStringList csv =
            history.run({u"--days=2"_s, u"--events"_s, u"--csv"_s}).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(csv, (QStringList{u"time_utc,utc_offset_seconds,local_time,event,break_type,detail,seconds"_s,
                                   u"2026-11-23T23:30:00.000Z,3600,2026-11-24T00:30:00,breakEnded,short,completed,20"_s,
                                   u"2026-11-24T09:00:00.000Z,3600,2026-11-24T10:00:00,breakEnded,short,skipped,4.25"_s,
                                   u"2026-11-25T08:00:00.000Z,3600,2026-11-25T09:00:00,smartPauseHold,,"
                                   u"\"meeting, \"\"weekly\"\"\",1800"_s}));

        const QJsonArray events = QJsonDocument::fromJson(history.run({u"--events"_s, u"--json"_s}).toUtf8())
                                      .object()
                                      .value(u"events"_s)
                                      .toArray();
        QCOMPARE(events.size(), 4);
        QVERIFY(events.at(3).toObject().value(u"break_type"_s).isNull());
        QCOMPARE(events.at(3).toObject().value(u"event"_s).toString(), u"smartPauseHold"_s);
    }

    void textForPeople()
    {
        Recorded history;
        const QStringList lines = history.run({u"--days"_s, u"1"_s}).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines.at(0).startsWith(u"Day"_s) && lines.at(0).endsWith(u"Smart Pause"_s), qPrintable(lines.at(0)));
        QVERIFY2(lines.at(1).contains(u"2026-11-25"_s) && lines.at(1).simplified().endsWith(u"0 0 0 1:02 0:25 0:30"_s),
                 qPrintable(lines.at(1)));
        QCOMPARE(HistoryCommand::eventsText({}), u"No events recorded in these days.\n"_s);

        // A title in double-width characters (Japanese here) takes two columns a character: over the fourteen
        // columns of "Wed 2026-11-25", "日付" is padded by ten, not twelve.
        struct Japanese final : QTranslator {
            QString translate(const char*, const char* source, const char*, int) const override
            {
                return qstrcmp(source, "Day") == 0 ? u"日付"_s : QString();
            }
        } japanese;
        QCoreApplication::installTranslator(&japanese);
        const QStringList wide = history.run({u"--days"_s, u"1"_s}).split(u'\n', Qt::SkipEmptyParts);
        QCoreApplication::removeTranslator(&japanese);
        QVERIFY2(wide.at(0).startsWith(u"日付"_s + QString(10 + 2, u' ') + u"Taken"_s), qPrintable(wide.at(0)));
        QVERIFY2(wide.at(1).startsWith(u"Wed 2026-11-25  "_s), qPrintable(wide.at(1)));
    }
};

QTEST_GUILESS_MAIN(HistoryCommandTest)
#include "tst_historycommand.moc"
