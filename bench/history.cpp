// The break history at the size a year of use leaves: writes ~50,000 synthetic events into a real history file,
// then times `velto history --days 365 --csv` as a user runs it (a new process each time, the file read from the
// page cache) and the reads the History pane makes when it opens.
// Usage: bench_history [DAYS, default 365]
#include "history/HistorySummary.h"
#include "history/SqliteHistoryStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

// A very long working day, 7:00 to 21:00, with breaks every 20 minutes, some skipped or postponed, Smart Pause holds
// for meetings and short spells away, a few pauses: about 140 events.
int writeDay(SqliteHistoryStore& store, QDate date, QRandomGenerator& random)
{
    const int offset = 3600;
    QDateTime moment(date, QTime(7, 0), QTimeZone(offset));
    int written = 0;
    auto add = [&](HistoryEventKind kind, std::optional<BreakType> type, QString detail, double seconds) {
        store.append({kind, moment.toUTC(), offset, type, std::move(detail), seconds});
        ++written;
    };
    double stretch = 0;
    double work = 0;
    double longest = 0;
    while (moment.time() < QTime(21, 0)) {
        moment = moment.addSecs(20 * 60);
        work += 1200;
        stretch += 1200;
        longest = std::max(longest, stretch);
        const quint32 roll = random.bounded(100);
        if (roll < 8) {
            add(HistoryEventKind::UpcomingBreakSkipped, BreakType::Short, {}, 45);
            continue;
        }
        if (roll < 16) {
            add(HistoryEventKind::UpcomingBreakPostponed, BreakType::Short, {}, 180);
            add(HistoryEventKind::Paused, std::nullopt, u"timed"_s, 180);
            moment = moment.addSecs(180);
        }
        if (roll < 30) {
            add(HistoryEventKind::SmartPauseHold, std::nullopt, roll < 22 ? u"meeting"_s : u"idle"_s, 900);
            moment = moment.addSecs(900);
        }
        add(HistoryEventKind::BreakStarted, BreakType::Short, roll < 90 ? u"scheduled"_s : u"menu"_s, 20);
        moment = moment.addSecs(20);
        const bool skipped = roll >= 95;
        add(HistoryEventKind::BreakEnded, BreakType::Short, skipped ? u"skipped"_s : u"completed"_s, skipped ? 6 : 20);
        if (!skipped)
            stretch = 0;
        if (roll < 70)
            add(HistoryEventKind::SmartPauseHold, std::nullopt, u"idle"_s, 75);
        add(HistoryEventKind::Paused, std::nullopt, u"manual"_s, 60);
    }
    store.addToDay({date, work, longest});
    return written;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const int days = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 365;
    QTemporaryDir home;
    const QString path = home.filePath(u"velto/history.sqlite"_s);
    const QDate today = QDate::currentDate();

    QElapsedTimer timer;
    timer.start();
    int events = 0;
    {
        SqliteHistoryStore store(path);
        QRandomGenerator random(20261125);
        for (int day = days - 1; day >= 0; --day)
            events += writeDay(store, today.addDays(-day), random);
        (void)store.days(today, today); // waits for the writes
    }
    std::printf("wrote %d events over %d days in %.0f ms; file %.1f MB\n", events, days, double(timer.elapsed()),
                double(QFileInfo(path).size()) / 1e6);

    // What the History pane reads as it opens: 30 days of events and days, then their summaries.
    QList<double> paneReads;
    {
        const SqliteHistoryStore store(path, SqliteHistoryStore::Access::ReadOnly);
        for (int run = 0; run < 7; ++run) {
            timer.restart();
            const QDate first = today.addDays(-29);
            const QList<HistoryEvent> recent =
                store.events(QDateTime(first, QTime(0, 0)).addDays(-1), QDateTime(today.addDays(2), QTime(0, 0)));
            const QList<DaySummary> summaries =
                HistorySummary::summarize(recent, store.days(first, today), first, today);
            paneReads.append(double(timer.nsecsElapsed()) / 1e6);
            if (summaries.size() != 30)
                return 1;
        }
    }
    std::printf("History pane's reads and summaries (30 days): median %.1f ms\n", median(paneReads));

    // The command as a user runs it, in a process of its own.
    const QString velto = QString::fromUtf8(VELTO_BINARY);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, home.path());
    QList<double> runs;
    qsizetype lines = 0;
    for (int run = 0; run < 7; ++run) {
        QProcess process;
        process.setProcessEnvironment(environment);
        timer.restart();
        process.start(velto, {u"history"_s, u"--days"_s, QString::number(days), u"--csv"_s});
        process.waitForFinished(60000);
        runs.append(double(timer.nsecsElapsed()) / 1e6);
        lines = process.readAllStandardOutput().count('\n');
        if (process.exitCode() != 0)
            return 1;
    }
    timer.restart();
    QProcess events365;
    events365.setProcessEnvironment(environment);
    events365.start(velto, {u"history"_s, u"--days"_s, QString::number(days), u"--events"_s, u"--csv"_s});
    events365.waitForFinished(60000);
    const double eventsMs = double(timer.nsecsElapsed()) / 1e6;
    const qsizetype eventLines = events365.readAllStandardOutput().count('\n');
    std::printf("velto history --days %d --csv: median %.0f ms (%lld lines); with --events: %.0f ms (%lld lines)\n",
                days, median(runs), qlonglong(lines), eventsMs, qlonglong(eventLines));
    return 0;
}
