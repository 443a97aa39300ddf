// The break history at the size a year of use leaves: writes ~50,000 synthetic events into a real history file,
// then times `velto history --days 365 --csv` as a user runs it (a new process each time, the file read from the
// page cache) and the reads the History pane makes when it opens.
// Usage: bench_history [DAYS, default 365]
#include "HistorySample.h"
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
            events += writeSampleDay(store, today.addDays(-day), random);
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
