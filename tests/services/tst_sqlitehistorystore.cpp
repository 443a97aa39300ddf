#include "history/SqliteHistoryStore.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime t0(QDate(2024, 3, 31), QTime(0, 30, 0, 123), Qt::UTC);

HistoryEvent eventOf(HistoryEventKind kind, const QDateTime& at, std::optional<BreakType> type = {},
                     QStringView detail = {}, double seconds = 0, int offset = 3600)
{
    return {kind, at, offset, type, detail.toString(), seconds};
}

// A connection of the test's own to the file, beside the store's.
class RawConnection {
public:
    explicit RawConnection(const QString& path)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
        db.setDatabaseName(path);
        if (!db.open())
            qWarning() << db.lastError().text();
    }
    ~RawConnection()
    {
        QSqlDatabase::database(m_name).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    // Runs each statement; the first column of the last one's first row.
    QVariant run(const QStringList& statements)
    {
        QSqlQuery query(QSqlDatabase::database(m_name));
        for (const QString& statement : statements) {
            if (!query.exec(statement))
                qWarning() << statement << query.lastError().text();
        }
        return query.next() ? query.value(0) : QVariant();
    }

private:
    const QString m_name = u"test"_s;
};

} // namespace

class TestSqliteHistoryStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { m_path = m_dir.path() + u"/%1/velto/history.sqlite"_s.arg(++m_case); }

    void everyEventAndDayReadsBackAsWrittenAfterReopening();
    void pruneAndClearForgetInTheOrderGiven();
    void aVersionOneFileIsMigratedKeepingItsRows();
    void aNewerFileIsReadAndNeverWritten();
    void aDamagedFileIsMovedAsideAndANewOneStarted();
    void anUnusablePlaceKeepsNothingAndSaysSoOnce_data();
    void anUnusablePlaceKeepsNothingAndSaysSoOnce();
    void writesDoNotWaitForALockedFile();
    void theReaderSeesTheWritersFileAndCreatesNothing();

private:
    QTemporaryDir m_dir;
    QString m_path;
    int m_case = 0;
};

void TestSqliteHistoryStore::everyEventAndDayReadsBackAsWrittenAfterReopening()
{
    // Ordered by time; the two at the same millisecond keep the order they were written in.
    const QList<HistoryEvent> expected = {
        eventOf(HistoryEventKind::BreakStarted, t0, BreakType::Short, HistoryNames::scheduled, 20, 7200),
        eventOf(HistoryEventKind::BreakEnded, t0.addMSecs(20'001), BreakType::Long, HistoryNames::endedEarly, 12.5),
        eventOf(HistoryEventKind::UpcomingBreakSkipped, t0.addSecs(600), {}, {}, 1199.25, -18000),
        eventOf(HistoryEventKind::UpcomingBreakPostponed, t0.addSecs(600), BreakType::Short, HistoryNames::card, 300),
        eventOf(HistoryEventKind::Paused, t0.addDays(1).addMSecs(-1), {}, HistoryNames::timed, 1800, 0),
    };
    const HistoryEvent atTheEnd = eventOf(HistoryEventKind::SmartPauseHold, t0.addDays(1), {}, u"meeting", 42.125);
    {
        SqliteHistoryStore store(m_path);
        for (const int i : {4, 0, 1, 2, 3})
            store.append(expected.at(i));
        store.append(atTheEnd);
        store.append(eventOf(HistoryEventKind::BreakStarted, t0.addMSecs(-1)));
        // Work adds up; the longest stretch is the longest given.
        store.addToDay({QDate(2024, 3, 31), 600, 300});
        store.addToDay({QDate(2024, 3, 31), 900, 200});
        store.addToDay({QDate(2024, 3, 31), 60, 400});
        store.addToDay({QDate(2024, 4, 2), 30.5, 30.5});
        store.addToDay({QDate(2024, 4, 3), 10, 10});
    }
    SqliteHistoryStore reopened(m_path);
    QCOMPARE(reopened.events(t0, t0.addDays(1)), expected);
    QCOMPARE(reopened.events(t0.addDays(1), t0.addDays(2)), QList{atTheEnd});
    QCOMPARE(reopened.days(QDate(2024, 3, 1), QDate(2024, 4, 2)),
             (QList<HistoryDay>{{QDate(2024, 3, 31), 1560, 400}, {QDate(2024, 4, 2), 30.5, 30.5}}));
}

void TestSqliteHistoryStore::pruneAndClearForgetInTheOrderGiven()
{
    // 01:30 at +02:00 is still the 30th in UTC: days before the 30th go, the 30th stays.
    const QDateTime before(QDate(2024, 3, 31), QTime(1, 30), Qt::OffsetFromUTC, 7200);
    const HistoryEvent old = eventOf(HistoryEventKind::BreakStarted, before.addMSecs(-1));
    const HistoryEvent kept = eventOf(HistoryEventKind::BreakEnded, before);
    const HistoryDay oldDay{QDate(2024, 3, 29), 60, 60};
    const HistoryDay keptDay{QDate(2024, 3, 30), 60, 60};

    SqliteHistoryStore store(m_path);
    const auto fill = [&] {
        for (const HistoryEvent& e : {old, kept})
            store.append(e);
        for (const HistoryDay& day : {oldDay, keptDay})
            store.addToDay(day);
    };
    const QDateTime from = t0.addDays(-10);
    fill();
    store.prune(before);
    QCOMPARE(store.events(from, t0.addDays(10)), QList{kept});
    QCOMPARE(store.days(oldDay.date, keptDay.date), QList{keptDay});

    // What is written after the clearing, even before it is carried out, stays.
    store.clear();
    fill();
    store.clear();
    store.append(kept);
    QCOMPARE(store.events(from, t0.addDays(10)), QList{kept});
    QVERIFY(store.days(oldDay.date, keptDay.date).isEmpty());
}

void TestSqliteHistoryStore::aVersionOneFileIsMigratedKeepingItsRows()
{
    QVERIFY(QDir().mkpath(QFileInfo(m_path).absolutePath()));
    RawConnection(m_path).run(
        {u"CREATE TABLE events (at_ms INTEGER NOT NULL, utc_offset INTEGER NOT NULL, kind TEXT NOT NULL, "
         u"break_type TEXT, detail TEXT NOT NULL, seconds REAL NOT NULL)"_s,
         u"CREATE INDEX events_at ON events (at_ms)"_s,
         u"INSERT INTO events VALUES (%1, 3600, 'breakEnded', 'long', 'completed', 300)"_s.arg(t0.toMSecsSinceEpoch()),
         u"PRAGMA user_version = 1"_s});
    {
        SqliteHistoryStore store(m_path);
        QCOMPARE(store.events(t0, t0.addSecs(1)),
                 QList{eventOf(HistoryEventKind::BreakEnded, t0, BreakType::Long, HistoryNames::completed, 300)});
        store.addToDay({t0.date(), 5, 5});
        QCOMPARE(store.days(t0.date(), t0.date()), (QList<HistoryDay>{{t0.date(), 5, 5}}));
    }
    RawConnection raw(m_path);
    QCOMPARE(raw.run({u"PRAGMA user_version"_s}).toInt(), 2);
    QCOMPARE(raw.run({u"PRAGMA journal_mode"_s}).toString(), u"wal"_s);
}

void TestSqliteHistoryStore::aNewerFileIsReadAndNeverWritten()
{
    const HistoryEvent kept = eventOf(HistoryEventKind::BreakStarted, t0);
    {
        SqliteHistoryStore store(m_path);
        store.append(kept);
    }
    RawConnection(m_path).run({u"PRAGMA user_version = 9"_s});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"newer version"_s));
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    {
        SqliteHistoryStore store(m_path);
        store.append(eventOf(HistoryEventKind::BreakEnded, t0.addSecs(1)));
        store.clear();
        QCOMPARE(store.events(t0, t0.addDays(1)), QList{kept});
    }
    QCOMPARE(RawConnection(m_path).run({u"PRAGMA user_version"_s}).toInt(), 9);
}

void TestSqliteHistoryStore::aDamagedFileIsMovedAsideAndANewOneStarted()
{
    const QByteArray garbage = QByteArray("not a database at all ").repeated(200);
    QVERIFY(QDir().mkpath(QFileInfo(m_path).absolutePath()));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(garbage) == garbage.size());
    file.close();

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"damaged .* moved it to .*history.sqlite.corrupt-"_s));
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    SqliteHistoryStore store(m_path);
    store.append(eventOf(HistoryEventKind::BreakStarted, t0));
    QCOMPARE(store.events(t0, t0.addSecs(1)).size(), 1);

    const QDir folder = QFileInfo(m_path).dir();
    const QStringList aside = folder.entryList({u"history.sqlite.corrupt-*"_s});
    QCOMPARE(aside.size(), 1);
    QFile moved(folder.filePath(aside.first()));
    QVERIFY(moved.open(QIODevice::ReadOnly));
    QCOMPARE(moved.readAll(), garbage);
}

void TestSqliteHistoryStore::anUnusablePlaceKeepsNothingAndSaysSoOnce_data()
{
    QTest::addColumn<bool>("readOnlyFolder");
    QTest::newRow("a file where the folder should be") << false;
    QTest::newRow("a read-only folder") << true;
}

void TestSqliteHistoryStore::anUnusablePlaceKeepsNothingAndSaysSoOnce()
{
    QFETCH(bool, readOnlyFolder);
    const QString place = QFileInfo(m_path).absolutePath();
    if (readOnlyFolder) {
        if (geteuid() == 0)
            QSKIP("root writes into a read-only folder");
        QVERIFY(QDir().mkpath(place));
        QVERIFY(QFile::setPermissions(place, QFile::ReadOwner | QFile::ExeOwner));
    } else {
        QVERIFY(QDir().mkpath(QFileInfo(place).absolutePath()));
        QFile blocker(place);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
    }
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"break history"_s));
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    {
        SqliteHistoryStore store(m_path);
        for (int i = 0; i < 3; ++i)
            store.append(eventOf(HistoryEventKind::BreakStarted, t0.addSecs(i)));
        store.addToDay({t0.date(), 5, 5});
        QVERIFY(store.events(t0, t0.addDays(1)).isEmpty());
        QVERIFY(store.days(t0.date(), t0.date()).isEmpty());
    }
    QVERIFY(!QFile::exists(m_path));
    if (readOnlyFolder)
        QFile::setPermissions(place, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestSqliteHistoryStore::writesDoNotWaitForALockedFile()
{
    SqliteHistoryStore store(m_path);
    QVERIFY(store.events(t0, t0).isEmpty());
    // Another writer holds the file for now. Were appends carried out on this thread, the first would wait out
    // SQLite's busy timeout here and be dropped; queued, they go in once the lock is let go.
    RawConnection other(m_path);
    other.run({u"BEGIN EXCLUSIVE"_s});
    for (int i = 0; i < 1000; ++i)
        store.append(eventOf(HistoryEventKind::BreakStarted, t0.addMSecs(i)));
    other.run({u"ROLLBACK"_s});
    const QList<HistoryEvent> read = store.events(t0, t0.addDays(1));
    QCOMPARE(read.size(), 1000);
    QCOMPARE(read.last().at, t0.addMSecs(999));
}

void TestSqliteHistoryStore::theReaderSeesTheWritersFileAndCreatesNothing()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    {
        SqliteHistoryStore missing(m_path, SqliteHistoryStore::Access::ReadOnly);
        QVERIFY(missing.events(t0, t0.addDays(1)).isEmpty());
        QVERIFY(missing.days(t0.date(), t0.date()).isEmpty());
    }
    QVERIFY(!QFileInfo::exists(folder));

    const HistoryEvent written = eventOf(HistoryEventKind::Paused, t0, {}, HistoryNames::manual, 60);
    SqliteHistoryStore writer(m_path);
    writer.append(written);
    writer.addToDay({t0.date(), 5, 5});
    QCOMPARE(writer.events(t0, t0.addDays(1)).size(), 1);

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"open for reading"_s));
    SqliteHistoryStore reader(m_path, SqliteHistoryStore::Access::ReadOnly);
    QCOMPARE(reader.events(t0, t0.addDays(1)), QList{written});
    QCOMPARE(reader.days(t0.date(), t0.date()), (QList<HistoryDay>{{t0.date(), 5, 5}}));
    reader.append(eventOf(HistoryEventKind::BreakStarted, t0));
    QCOMPARE(reader.events(t0, t0.addDays(1)).size(), 1);
    QCOMPARE(writer.events(t0, t0.addDays(1)).size(), 1);
}

QTEST_GUILESS_MAIN(TestSqliteHistoryStore)
#include "tst_sqlitehistorystore.moc"
