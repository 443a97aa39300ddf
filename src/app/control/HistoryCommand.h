#pragma once

#include "history/HistoryEvent.h"

#include <QList>

class QTextStream;

namespace velto {

struct CommandLine;
struct DaySummary;
class HistoryStoring;

// `velto history`: reads the history file itself, so it works with or without a running Velto (whose work time
// since its last write is not in the file yet). Days are the local days of this machine's zone.
class HistoryCommand final {
public:
    // The store is not owned; today is the last day shown.
    HistoryCommand(const HistoryStoring& store, QDate today);

    [[nodiscard]] int run(const CommandLine& commandLine, QTextStream& out, QTextStream& err) const;

    // The machine-readable forms: their columns and keys never change with the language.
    [[nodiscard]] static QString daysCsv(const QList<DaySummary>& days);
    [[nodiscard]] static QString daysJson(const QList<DaySummary>& days);
    [[nodiscard]] static QString eventsCsv(const QList<HistoryEvent>& events);
    [[nodiscard]] static QString eventsJson(const QList<HistoryEvent>& events);
    // For people, in their language.
    [[nodiscard]] static QString daysText(const QList<DaySummary>& days);
    [[nodiscard]] static QString eventsText(const QList<HistoryEvent>& events);

private:
    const HistoryStoring& m_store;
    QDate m_today;
};

} // namespace velto
