#pragma once

#include "HistoryEvent.h"
#include "scheduling/SchedulingTypes.h"

#include <QObject>
#include <QPointer>
#include <QTimeZone>

#include <functional>
#include <optional>

namespace velto {

class ActivityDetecting;
class BreakManager;
class HistoryStoring;
class InAppNotificationManager;
class UserDefaultsStore;

namespace HistoryKeys {
// Days of history kept; 0 keeps everything.
inline constexpr QStringView retentionDays = u"historyRetentionDays";
inline constexpr int defaultRetentionDays = 365;
} // namespace HistoryKeys

// Turns what the scheduler, the card and Smart Pause do into history: breaks started and ended, upcoming breaks
// skipped or postponed, pauses and Smart Pause holds (written when they end), and each day's counted work time
// with its longest stretch without a break taken.
//
// Work time is kept in memory and written with the next event, at a day's change and when the recorder goes,
// so the store sees a few writes an hour, never one a second. A stretch ends with a break taken, a sleep, an
// idle spell and the local midnight. Main thread only.
class HistoryRecorder final : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<QDateTime()>;

    // The store must outlive the recorder, and so must the settings store that keeps the retention, if given.
    // Without a calendar zone, days follow the system's local time.
    explicit HistoryRecorder(HistoryStoring& store, UserDefaultsStore* settings = nullptr,
                             std::optional<QTimeZone> calendar = std::nullopt, Clock now = {},
                             QObject* parent = nullptr);
    // Ends the pauses and holds still open and writes the work time not yet written.
    ~HistoryRecorder() override;

    void watchScheduler(BreakManager* scheduler);
    void watchCard(InAppNotificationManager* card);
    // A QObject implementing ActivityDetecting whose objectWillChange() marks a change of what it sees.
    void watchDetector(QObject* detector);

    [[nodiscard]] HistoryStoring& store() const { return m_store; }
    // Events older than this many days are forgotten, now and at each new day; 0 keeps everything. Kept in the
    // settings store; a stored value that is no whole number of days reads as the default.
    [[nodiscard]] int retentionDays() const { return m_retentionDays; }
    void setRetentionDays(int days);
    // Forgets the whole history, what is not written yet included; what runs now starts afresh.
    void clearHistory();

    // Writes the work time counted since the last write.
    void flush();
    // The pauses and holds still running, as if they ended now; they are not in the store yet.
    [[nodiscard]] QList<HistoryEvent> openIntervals() const;
    // The local day the recorder counts work on: today, as the history splits days.
    [[nodiscard]] QDate today() const;

private Q_SLOTS:
    void detectorChanged();

private:
    struct Interval {
        HistoryEventKind kind = HistoryEventKind::Paused;
        QString detail;
        QDateTime start;
    };

    [[nodiscard]] QDateTime now() const;
    [[nodiscard]] HistoryEvent event(HistoryEventKind kind, const QDateTime& at) const;
    void append(const HistoryEvent& event);
    void countWorkSecond();
    void prune();

    void openInterval(std::optional<Interval>& slot, HistoryEventKind kind, const QString& detail);
    void closeInterval(std::optional<Interval>& slot);
    [[nodiscard]] HistoryEvent closed(const Interval& interval, const QDateTime& end) const;

    void pauseReasonChanged(const std::optional<PauseReason>& reason);

    HistoryStoring& m_store;
    UserDefaultsStore* m_settings = nullptr;
    std::optional<QTimeZone> m_calendar;
    Clock m_now;
    int m_retentionDays = HistoryKeys::defaultRetentionDays;
    QPointer<QObject> m_detector;

    std::optional<Interval> m_pause; // manual, timed, office hours, reminders off
    std::optional<Interval> m_hold;  // Smart Pause
    std::optional<Interval> m_sleep;

    QDate m_day;
    double m_unsavedWorkSeconds = 0;
    double m_stretchSeconds = 0;
    double m_longestStretchToday = 0;
    bool m_longestStretchUnsaved = false;
};

} // namespace velto
