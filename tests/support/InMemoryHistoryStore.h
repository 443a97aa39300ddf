#pragma once

#include "history/HistoryStoring.h"

#include <QMutex>

#include <algorithm>

// A history store in memory, for logic tests and screenshots: the same contract as the real one.
class InMemoryHistoryStore final : public velto::HistoryStoring {
public:
    void append(const velto::HistoryEvent& event) override
    {
        const QMutexLocker lock(&m_mutex);
        m_events.append(event);
        ++writes;
    }
    void addToDay(const velto::HistoryDay& day) override
    {
        const QMutexLocker lock(&m_mutex);
        ++writes;
        for (velto::HistoryDay& kept : m_days) {
            if (kept.date == day.date) {
                kept.workSeconds += day.workSeconds;
                kept.longestStretchSeconds = std::max(kept.longestStretchSeconds, day.longestStretchSeconds);
                return;
            }
        }
        m_days.append(day);
        std::sort(m_days.begin(), m_days.end(), [](const auto& a, const auto& b) { return a.date < b.date; });
    }
    void clear() override
    {
        const QMutexLocker lock(&m_mutex);
        m_events.clear();
        m_days.clear();
    }
    void prune(const QDateTime& before) override
    {
        const QMutexLocker lock(&m_mutex);
        m_events.removeIf([&](const velto::HistoryEvent& event) { return event.at < before; });
        m_days.removeIf([&](const velto::HistoryDay& day) { return day.date < before.toUTC().date(); });
    }
    [[nodiscard]] QList<velto::HistoryEvent> events(const QDateTime& from, const QDateTime& to) const override
    {
        const QMutexLocker lock(&m_mutex);
        QList<velto::HistoryEvent> found;
        for (const velto::HistoryEvent& event : m_events) {
            if (event.at >= from && event.at < to)
                found.append(event);
        }
        std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.at < b.at; });
        return found;
    }
    [[nodiscard]] QList<velto::HistoryDay> days(QDate first, QDate last) const override
    {
        const QMutexLocker lock(&m_mutex);
        QList<velto::HistoryDay> found;
        for (const velto::HistoryDay& day : m_days) {
            if (day.date >= first && day.date <= last)
                found.append(day);
        }
        return found;
    }

    // Everything written, in order, for tests that look at the recorder's output.
    [[nodiscard]] QList<velto::HistoryEvent> allEvents() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_events;
    }
    int writes = 0;

private:
    mutable QMutex m_mutex;
    QList<velto::HistoryEvent> m_events;
    QList<velto::HistoryDay> m_days;
};
