#include "SqliteHistoryStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLoggingCategory>
#include <QMutex>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>

#include <atomic>
#include <optional>
#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

Q_LOGGING_CATEGORY(lcHistory, "velto.history")

// SQLite's primary result codes for a damaged file and for one that is no database at all.
constexpr int sqliteCorrupt = 11;
constexpr int sqliteNotADatabase = 26;

// Each step brings the file from the version before it to its own, in one transaction. A step never changes
// once released: a file on someone's disk went through it.
const QList<QStringList>& migrations()
{
    static const QList<QStringList> steps = {
        {u"CREATE TABLE events (at_ms INTEGER NOT NULL, utc_offset INTEGER NOT NULL, kind TEXT NOT NULL, "
         u"break_type TEXT, detail TEXT NOT NULL, seconds REAL NOT NULL)"_s,
         u"CREATE INDEX events_at ON events (at_ms)"_s},
        {u"CREATE TABLE days (day TEXT PRIMARY KEY, work_seconds REAL NOT NULL, "
         u"longest_stretch_seconds REAL NOT NULL)"_s},
    };
    return steps;
}

int resultCode(const QSqlError& error)
{
    // Extended codes carry the primary one in their low byte.
    return error.nativeErrorCode().toInt() & 0xff;
}

std::atomic<int> connections = 0;

} // namespace

class SqliteHistoryStore::Worker {
public:
    struct Clear {};
    struct Prune {
        QDateTime before;
    };
    using Write = std::variant<HistoryEvent, HistoryDay, Clear, Prune>;

    Worker(QString path, Access access)
        : m_path(std::move(path))
        , m_access(access)
        , m_connectionName(u"velto-history-%1"_s.arg(++connections))
    {
        for (const HistoryEventKind kind : allCases<HistoryEventKind>())
            m_kinds.insert(rawName(kind), kind);
    }

    // Any thread. True when the queue was idle, so a drain has to be scheduled.
    bool enqueue(Write write)
    {
        const QMutexLocker lock(&m_mutex);
        m_queue.append(std::move(write));
        return !std::exchange(m_drainScheduled, true);
    }

    // The rest runs on the store's thread.
    void open();
    void drain();
    void close();
    [[nodiscard]] QList<HistoryEvent> events(const QDateTime& from, const QDateTime& to);
    [[nodiscard]] QList<HistoryDay> days(QDate first, QDate last);

private:
    // Runs a read, saying once per kind of failure that it failed.
    bool runRead(QSqlQuery& query);
    enum class Outcome { Ready, Damaged, Failed };

    Outcome setUp();
    Outcome failed(const QSqlError& error);
    bool prepare(std::optional<QSqlQuery>& query, const QString& sql);
    [[nodiscard]] QString moveAside();
    void closeConnection();
    template <typename Steps>
    std::optional<QSqlError> inTransaction(Steps steps);
    std::optional<QSqlError> carryOut(const Write& write);
    void reportOnce(const QString& key, const QString& line);

    const QString m_path;
    const Access m_access;
    const QString m_connectionName;
    QHash<QString, HistoryEventKind> m_kinds;

    QMutex m_mutex;
    QList<Write> m_queue;
    bool m_drainScheduled = false;

    QSqlDatabase m_db;
    std::optional<QSqlQuery> m_insertEvent;
    std::optional<QSqlQuery> m_upsertDay;
    std::optional<QSqlQuery> m_selectEvents;
    std::optional<QSqlQuery> m_selectDays;
    int m_version = 0;
    bool m_writable = false;
    QString m_failure;
    QSet<QString> m_reported;
};

void SqliteHistoryStore::Worker::open()
{
    // Nothing recorded yet; the reader must not leave an empty file where Velto will create its own.
    if (m_access == Access::ReadOnly && !QFileInfo::exists(m_path))
        return;
    if (m_access == Access::ReadWrite && !QDir().mkpath(QFileInfo(m_path).absolutePath())) {
        qCWarning(lcHistory).noquote()
            << u"Cannot create the folder of the break history %1; history is not kept"_s.arg(m_path);
        return;
    }
    Outcome outcome = setUp();
    if (outcome == Outcome::Damaged && m_access == Access::ReadWrite) {
        closeConnection();
        const QString aside = moveAside();
        if (!aside.isEmpty()) {
            qCWarning(lcHistory).noquote()
                << u"The break history %1 was damaged (%2); moved it to %3 and started a new one"_s.arg(
                       m_path, m_failure, aside);
            outcome = setUp();
        }
    }
    if (outcome != Outcome::Ready) {
        qCWarning(lcHistory).noquote()
            << u"Cannot open the break history %1 (%2); it reads as empty and keeps nothing"_s.arg(m_path, m_failure);
        closeConnection();
    }
}

SqliteHistoryStore::Worker::Outcome SqliteHistoryStore::Worker::setUp()
{
    m_db = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connectionName);
    m_db.setDatabaseName(m_path);
    if (m_access == Access::ReadOnly)
        m_db.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
    if (!m_db.open())
        return failed(m_db.lastError());

    QSqlQuery query(m_db);
    if (m_access == Access::ReadWrite) {
        // A damaged file is found now, while it can still be moved aside, not by a write hours later.
        if (!query.exec(u"PRAGMA quick_check"_s))
            return failed(query.lastError());
        if (query.next() && query.value(0).toString() != u"ok") {
            m_failure = query.value(0).toString();
            return Outcome::Damaged;
        }
    }
    if (!query.exec(u"PRAGMA user_version"_s) || !query.next())
        return failed(query.lastError());
    m_version = query.value(0).toInt();
    query.finish();

    const int latest = int(migrations().size());
    if (m_access == Access::ReadWrite && m_version <= latest) {
        // WAL lets `velto history` read while Velto writes; NORMAL is durable enough in WAL and much cheaper.
        if (!query.exec(u"PRAGMA journal_mode = WAL"_s) || !query.exec(u"PRAGMA synchronous = NORMAL"_s))
            return failed(query.lastError());
        query.finish();
        while (m_version < latest) {
            const std::optional<QSqlError> error = inTransaction([&]() -> std::optional<QSqlError> {
                for (const QString& statement : migrations().at(m_version)) {
                    if (!query.exec(statement))
                        return query.lastError();
                }
                if (!query.exec(u"PRAGMA user_version = %1"_s.arg(m_version + 1)))
                    return query.lastError();
                return std::nullopt;
            });
            if (error)
                return failed(*error);
            ++m_version;
        }
        m_writable = true;
    } else if (m_access == Access::ReadWrite) {
        // Written by a newer Velto: read what this one understands, and never downgrade or touch it.
        query.exec(u"PRAGMA query_only = ON"_s);
        qCWarning(lcHistory).noquote()
            << u"The break history %1 is of a newer version (%2); it is read, and nothing is written to it"_s
                   .arg(m_path)
                   .arg(m_version);
    }

    const bool prepared =
        (m_version < 1 ||
         prepare(m_selectEvents, u"SELECT at_ms, utc_offset, kind, break_type, detail, seconds FROM events "
                                 u"WHERE at_ms >= ? AND at_ms < ? ORDER BY at_ms, rowid"_s)) &&
        (m_version < 2 || prepare(m_selectDays, u"SELECT day, work_seconds, longest_stretch_seconds FROM days "
                                                u"WHERE day BETWEEN ? AND ? ORDER BY day"_s)) &&
        (!m_writable ||
         (prepare(m_insertEvent, u"INSERT INTO events (at_ms, utc_offset, kind, break_type, detail, seconds) "
                                 u"VALUES (?, ?, ?, ?, ?, ?)"_s) &&
          prepare(m_upsertDay,
                  u"INSERT INTO days (day, work_seconds, longest_stretch_seconds) VALUES (?, ?, ?) "
                  u"ON CONFLICT (day) DO UPDATE SET work_seconds = work_seconds + excluded.work_seconds, "
                  u"longest_stretch_seconds = max(longest_stretch_seconds, excluded.longest_stretch_seconds)"_s)));
    if (!prepared) {
        m_writable = false;
        return Outcome::Failed;
    }
    return Outcome::Ready;
}

SqliteHistoryStore::Worker::Outcome SqliteHistoryStore::Worker::failed(const QSqlError& error)
{
    m_failure = error.text();
    const int code = resultCode(error);
    return code == sqliteCorrupt || code == sqliteNotADatabase ? Outcome::Damaged : Outcome::Failed;
}

bool SqliteHistoryStore::Worker::prepare(std::optional<QSqlQuery>& query, const QString& sql)
{
    query.emplace(m_db);
    query->setForwardOnly(true);
    if (query->prepare(sql))
        return true;
    m_failure = query->lastError().text();
    query.reset();
    return false;
}

QString SqliteHistoryStore::Worker::moveAside()
{
    const QString aside = m_path + u".corrupt-"_s + QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss"_s);
    QFile file(m_path);
    if (!file.rename(aside)) {
        m_failure = file.errorString();
        return {};
    }
    for (const QString& suffix : {u"-wal"_s, u"-shm"_s}) {
        // A log left beside the new file would be replayed into it.
        if (QFile::exists(m_path + suffix) && !QFile::rename(m_path + suffix, aside + suffix))
            QFile::remove(m_path + suffix);
    }
    return aside;
}

void SqliteHistoryStore::Worker::closeConnection()
{
    m_insertEvent.reset();
    m_upsertDay.reset();
    m_selectEvents.reset();
    m_selectDays.reset();
    m_writable = false;
    if (!m_db.isValid())
        return;
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void SqliteHistoryStore::Worker::close()
{
    closeConnection();
}

template <typename Steps>
std::optional<QSqlError> SqliteHistoryStore::Worker::inTransaction(Steps steps)
{
    if (!m_db.transaction())
        return m_db.lastError();
    std::optional<QSqlError> error = steps();
    if (!error && !m_db.commit())
        error = m_db.lastError();
    if (error)
        m_db.rollback();
    return error;
}

std::optional<QSqlError> SqliteHistoryStore::Worker::carryOut(const Write& write)
{
    const auto run = [](QSqlQuery& query) -> std::optional<QSqlError> {
        if (query.exec())
            return std::nullopt;
        return query.lastError();
    };
    if (const auto* event = std::get_if<HistoryEvent>(&write)) {
        QSqlQuery& query = *m_insertEvent;
        query.bindValue(0, event->at.toMSecsSinceEpoch());
        query.bindValue(1, event->utcOffsetSeconds);
        query.bindValue(2, rawName(event->kind));
        query.bindValue(3, event->breakType ? QVariant(rawValue(*event->breakType)) : QVariant());
        query.bindValue(4, event->detail.isNull() ? u""_s : event->detail);
        query.bindValue(5, event->seconds);
        return run(query);
    }
    if (const auto* day = std::get_if<HistoryDay>(&write)) {
        QSqlQuery& query = *m_upsertDay;
        query.bindValue(0, day->date.toString(Qt::ISODate));
        query.bindValue(1, day->workSeconds);
        query.bindValue(2, day->longestStretchSeconds);
        return run(query);
    }
    QSqlQuery forgetEvents(m_db);
    QSqlQuery forgetDays(m_db);
    if (const auto* prune = std::get_if<Prune>(&write)) {
        forgetEvents.prepare(u"DELETE FROM events WHERE at_ms < ?"_s);
        forgetEvents.bindValue(0, prune->before.toMSecsSinceEpoch());
        forgetDays.prepare(u"DELETE FROM days WHERE day < ?"_s);
        forgetDays.bindValue(0, prune->before.toUTC().date().toString(Qt::ISODate));
    } else {
        forgetEvents.prepare(u"DELETE FROM events"_s);
        forgetDays.prepare(u"DELETE FROM days"_s);
    }
    if (auto error = run(forgetEvents))
        return error;
    return run(forgetDays);
}

void SqliteHistoryStore::Worker::drain()
{
    QList<Write> batch;
    {
        const QMutexLocker lock(&m_mutex);
        batch.swap(m_queue);
        m_drainScheduled = false;
    }
    if (batch.isEmpty())
        return;
    if (!m_writable) {
        // Why a writable store keeps nothing was said when it opened.
        if (m_access == Access::ReadOnly)
            reportOnce(u"read only"_s, u"The break history %1 is open for reading; writes are dropped"_s.arg(m_path));
        return;
    }
    // Whatever queued up since the last wake-up goes in one transaction, which is what makes bulk writes cheap.
    if (batch.size() > 1) {
        const std::optional<QSqlError> error = inTransaction([&]() -> std::optional<QSqlError> {
            for (const Write& write : batch) {
                if (auto failure = carryOut(write))
                    return failure;
            }
            return std::nullopt;
        });
        if (!error)
            return;
    }
    // Something in it failed and the lot was rolled back: once more one by one, so only what fails is lost.
    for (const Write& write : batch) {
        if (const std::optional<QSqlError> error = inTransaction([&] { return carryOut(write); })) {
            reportOnce(
                u"write %1"_s.arg(resultCode(*error)),
                u"Cannot write to the break history %1 (%2); what fails so is dropped"_s.arg(m_path, error->text()));
        }
    }
}

bool SqliteHistoryStore::Worker::runRead(QSqlQuery& query)
{
    if (query.exec())
        return true;
    const QSqlError error = query.lastError();
    reportOnce(u"read %1"_s.arg(resultCode(error)),
               u"Cannot read the break history %1 (%2)"_s.arg(m_path, error.text()));
    return false;
}

QList<HistoryEvent> SqliteHistoryStore::Worker::events(const QDateTime& from, const QDateTime& to)
{
    QList<HistoryEvent> found;
    if (!m_selectEvents)
        return found;
    QSqlQuery& query = *m_selectEvents;
    query.bindValue(0, from.toMSecsSinceEpoch());
    query.bindValue(1, to.toMSecsSinceEpoch());
    if (!runRead(query))
        return found;
    while (query.next()) {
        const auto kind = m_kinds.constFind(query.value(2).toString());
        // A kind only a newer Velto knows.
        if (kind == m_kinds.cend())
            continue;
        HistoryEvent event;
        event.kind = *kind;
        event.at = QDateTime::fromMSecsSinceEpoch(query.value(0).toLongLong(), Qt::UTC);
        event.utcOffsetSeconds = query.value(1).toInt();
        const QVariant breakType = query.value(3);
        if (!breakType.isNull())
            event.breakType = fromRawValue<BreakType>(breakType.toString());
        event.detail = query.value(4).toString();
        event.seconds = query.value(5).toDouble();
        found.append(std::move(event));
    }
    query.finish();
    return found;
}

QList<HistoryDay> SqliteHistoryStore::Worker::days(QDate first, QDate last)
{
    QList<HistoryDay> found;
    if (!m_selectDays)
        return found;
    QSqlQuery& query = *m_selectDays;
    query.bindValue(0, first.toString(Qt::ISODate));
    query.bindValue(1, last.toString(Qt::ISODate));
    if (!runRead(query))
        return found;
    while (query.next()) {
        found.append({QDate::fromString(query.value(0).toString(), Qt::ISODate), query.value(1).toDouble(),
                      query.value(2).toDouble()});
    }
    query.finish();
    return found;
}

void SqliteHistoryStore::Worker::reportOnce(const QString& key, const QString& line)
{
    if (m_reported.contains(key))
        return;
    m_reported.insert(key);
    qCWarning(lcHistory).noquote() << line;
}

SqliteHistoryStore::SqliteHistoryStore(const QString& path, Access access)
    : m_context(std::make_unique<QObject>())
    , m_worker(std::make_unique<Worker>(path, access))
{
    m_thread.setObjectName(u"velto-history"_s);
    m_context->moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        m_context.get(), [worker = m_worker.get()] { worker->open(); }, Qt::QueuedConnection);
    m_thread.start();
}

SqliteHistoryStore::~SqliteHistoryStore()
{
    QMetaObject::invokeMethod(
        m_context.get(),
        [worker = m_worker.get()] {
            worker->drain();
            worker->close();
        },
        Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

QString SqliteHistoryStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/velto/history.sqlite"_s;
}

template <typename Write>
void SqliteHistoryStore::post(Write write)
{
    if (m_worker->enqueue(std::move(write))) {
        QMetaObject::invokeMethod(
            m_context.get(), [worker = m_worker.get()] { worker->drain(); }, Qt::QueuedConnection);
    }
}

template <typename Read>
auto SqliteHistoryStore::read(Read reading) const
{
    // A read sees every write given before it: the queue is drained first, on the store's thread.
    if (QThread::currentThread() == &m_thread) {
        m_worker->drain();
        return reading();
    }
    decltype(reading()) result;
    QMetaObject::invokeMethod(
        m_context.get(),
        [&] {
            m_worker->drain();
            result = reading();
        },
        Qt::BlockingQueuedConnection);
    return result;
}

void SqliteHistoryStore::append(const HistoryEvent& event)
{
    post(event);
}

void SqliteHistoryStore::addToDay(const HistoryDay& day)
{
    post(day);
}

void SqliteHistoryStore::clear()
{
    post(Worker::Clear{});
}

void SqliteHistoryStore::prune(const QDateTime& before)
{
    post(Worker::Prune{before});
}

QList<HistoryEvent> SqliteHistoryStore::events(const QDateTime& from, const QDateTime& to) const
{
    return read([&] { return m_worker->events(from, to); });
}

QList<HistoryDay> SqliteHistoryStore::days(QDate first, QDate last) const
{
    return read([&] { return m_worker->days(first, last); });
}

} // namespace velto
