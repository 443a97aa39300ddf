#pragma once

#include "history/HistoryStoring.h"

#include <QThread>

#include <memory>

namespace velto {

// The break history in one SQLite file, written on a thread of the store's own (HistoryStoring states the
// contract). A damaged file is moved aside and a new one started; a file written by a newer Velto is only read.
class SqliteHistoryStore final : public HistoryStoring {
public:
    enum class Access {
        // Creates the file and its folder, brings the tables up to date and moves a damaged file aside.
        ReadWrite,
        // For reading while Velto may be writing the file: never creates, changes or moves it; a missing or
        // unreadable file reads as empty and writes are dropped.
        ReadOnly,
    };

    explicit SqliteHistoryStore(const QString& path, Access access = Access::ReadWrite);
    // Carries out the writes still queued, then closes the file. Not to be called on the store's own thread.
    ~SqliteHistoryStore() override;

    SqliteHistoryStore(const SqliteHistoryStore&) = delete;
    SqliteHistoryStore& operator=(const SqliteHistoryStore&) = delete;

    // $XDG_DATA_HOME/velto/history.sqlite
    [[nodiscard]] static QString defaultPath();

    void append(const HistoryEvent& event) override;
    void addToDay(const HistoryDay& day) override;
    void clear() override;
    void prune(const QDateTime& before) override;

    [[nodiscard]] QList<HistoryEvent> events(const QDateTime& from, const QDateTime& to) const override;
    [[nodiscard]] QList<HistoryDay> days(QDate first, QDate last) const override;

private:
    class Worker;

    template <typename Write>
    void post(Write write);
    template <typename Read>
    auto read(Read read) const;

    QThread m_thread;
    // Lives on m_thread: what queued and blocking calls are delivered to.
    std::unique_ptr<QObject> m_context;
    std::unique_ptr<Worker> m_worker;
};

} // namespace velto
