#pragma once

#include "HistoryEvent.h"

#include <QList>

namespace velto {

// Where the break history is kept.
//
// Safe to call from any thread. Writes return at once and are carried out in the order given, never blocking
// the caller; one that fails is dropped (the store says so once), and nothing is thrown. Reads block until
// every write given before them has been carried out, so call them off the main thread where they may take
// long. A store that cannot keep anything reads as empty.
class HistoryStoring {
public:
    virtual ~HistoryStoring() = default;

    virtual void append(const HistoryEvent& event) = 0;
    // Adds work time to a day and raises its longest stretch to the one given, if that is longer.
    virtual void addToDay(const HistoryDay& day) = 0;
    // Forgets everything.
    virtual void clear() = 0;
    // Forgets events that began before the moment and days before its UTC date.
    virtual void prune(const QDateTime& before) = 0;

    // Events that began in [from, to), oldest first.
    [[nodiscard]] virtual QList<HistoryEvent> events(const QDateTime& from, const QDateTime& to) const = 0;
    // Days in [first, last], oldest first; days with nothing recorded are left out.
    [[nodiscard]] virtual QList<HistoryDay> days(QDate first, QDate last) const = 0;
};

} // namespace velto
