#pragma once

#include "history/HistorySummary.h"

#include <QDate>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QStringList>
#include <QThreadPool>
#include <QVariantList>
#include <QVariantMap>

namespace velto {

class HistoryRecorder;
class HistoryStoring;

// "1 h 05 min", "25 min": a duration of the History pane, to the nearest minute.
[[nodiscard]] QString historyDurationText(double seconds);

// What the History pane shows: today at a glance, breaks per day for the last 7 or 30 days, the streak with
// the current week, and how long the history is kept. The store is read on a thread of the model's own, since
// its reads block; the results come back to the main thread. Without a recorder the history reads as empty.
// Main thread.
class HistoryPaneModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the settings window")

    // A read is under way; what is shown is the last one's.
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    // Anything recorded in the last 30 days, or Smart Pause holding now.
    Q_PROPERTY(bool hasHistory READ hasHistory NOTIFY hasHistoryChanged)
    // {taken, skipped, longestStretchSeconds, longestStretchText, smartPauseSeconds, smartPauseText}
    Q_PROPERTY(QVariantMap today READ today NOTIFY todayChanged)
    // 7 or 30.
    Q_PROPERTY(int chartDays READ chartDays WRITE setChartDays NOTIFY chartDaysChanged)
    // One {date, label, taken, skipped, accessibleText} a day, the oldest first, today last.
    Q_PROPERTY(QVariantList chartEntries READ chartEntries NOTIFY chartEntriesChanged)
    // The value of the chart's top line: a round number at least the busiest day's breaks.
    Q_PROPERTY(int chartMaximum READ chartMaximum NOTIFY chartEntriesChanged)
    Q_PROPERTY(int streak READ streak NOTIFY streakChanged)
    // The seven days of this week in the locale's order: {date, label, mark (a DayMark), accessibleText}.
    Q_PROPERTY(QVariantList week READ week NOTIFY weekChanged)
    // Days kept, 0 for ever; the picker's options and the one shown (-1 for a value that is none of them).
    Q_PROPERTY(int retentionDays READ retentionDays NOTIFY retentionDaysChanged)
    Q_PROPERTY(QStringList retentionOptions READ retentionOptions CONSTANT)
    Q_PROPERTY(int retentionSelection READ retentionSelection NOTIFY retentionDaysChanged)
    // There is a history to keep: the picker and the clear button do something.
    Q_PROPERTY(bool available READ available CONSTANT)

public:
    enum class DayMark {
        AllTaken, // breaks came and every one was taken
        Missed,   // at least one was skipped
        NoBreaks, // none came
        ToCome,   // later this week
    };
    Q_ENUM(DayMark)

    // The days the picker offers; 0 keeps everything.
    static inline const QList<int> retentionChoices = {30, 90, 182, 365, 0};

    // The recorder is not owned; null shows an empty history.
    explicit HistoryPaneModel(HistoryRecorder* recorder, QObject* parent = nullptr);
    // Waits for a read still under way: the store it reads may go soon after the window.
    ~HistoryPaneModel() override;

    [[nodiscard]] bool loading() const { return m_loading; }
    [[nodiscard]] bool hasHistory() const { return m_hasHistory; }
    [[nodiscard]] QVariantMap today() const { return m_today; }
    [[nodiscard]] int chartDays() const { return m_chartDays; }
    void setChartDays(int days);
    [[nodiscard]] QVariantList chartEntries() const { return m_chartEntries; }
    [[nodiscard]] int chartMaximum() const { return m_chartMaximum; }
    [[nodiscard]] int streak() const { return m_streak; }
    [[nodiscard]] QVariantList week() const { return m_week; }
    [[nodiscard]] int retentionDays() const;
    [[nodiscard]] QStringList retentionOptions() const;
    [[nodiscard]] int retentionSelection() const { return int(retentionChoices.indexOf(retentionDays())); }
    [[nodiscard]] bool available() const { return !m_recorder.isNull(); }

    Q_INVOKABLE void chooseRetention(int index);
    // Reads the history afresh: when the pane opens and after it changed from here.
    Q_INVOKABLE void refresh();
    // Forgets the whole history; the pane asks first.
    Q_INVOKABLE void clearHistory();

Q_SIGNALS:
    void objectWillChange();
    void loadingChanged(bool loading);
    void hasHistoryChanged(bool hasHistory);
    void todayChanged(const QVariantMap& today);
    void chartDaysChanged(int chartDays);
    void chartEntriesChanged(const QVariantList& chartEntries);
    void streakChanged(int streak);
    void weekChanged(const QVariantList& week);
    void retentionDaysChanged(int retentionDays);

private:
    struct Snapshot {
        QDate today;
        // The last 30 days, today last.
        QList<DaySummary> days;
        int streak = 0;
    };

    [[nodiscard]] static Snapshot read(const HistoryStoring& store, const QList<HistoryEvent>& open, QDate today,
                                       int retentionDays);
    void publish(const Snapshot& snapshot);
    void publishChart();
    void setLoading(bool loading);

    QPointer<HistoryRecorder> m_recorder;
    QThreadPool m_readers;
    int m_generation = 0;
    Snapshot m_snapshot;

    bool m_loading = false;
    bool m_hasHistory = false;
    QVariantMap m_today;
    int m_chartDays = 7;
    QVariantList m_chartEntries;
    int m_chartMaximum = 2;
    int m_streak = 0;
    QVariantList m_week;
};

} // namespace velto
