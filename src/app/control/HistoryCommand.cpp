#include "HistoryCommand.h"

#include "CommandLine.h"
#include "CommandLineTexts.h"
#include "history/HistoryStoring.h"
#include "history/HistorySummary.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QTimeZone>

#include <cmath>
#include <cwchar>
#include <locale.h>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

// Whole milliseconds at most, without trailing zeros: 300, 12.5.
double rounded(double seconds)
{
    return std::round(seconds * 1000.0) / 1000.0;
}

QString number(double seconds)
{
    return QString::number(rounded(seconds), 'g', 15);
}

// Hours and minutes, the same in every language: 6:05.
QString hoursAndMinutes(double seconds)
{
    const qint64 minutes = qint64(std::max(0.0, seconds)) / 60;
    return u"%1:%2"_s.arg(minutes / 60).arg(minutes % 60, 2, 10, QChar(u'0'));
}

struct DayColumn {
    QString key;
    std::function<QJsonValue(const DaySummary&)> value;
};

const QList<DayColumn>& dayColumns()
{
    static const QList<DayColumn> columns{
        {u"date"_s, [](const DaySummary& d) { return d.date.toString(Qt::ISODate); }},
        {u"taken"_s, [](const DaySummary& d) { return d.taken; }},
        {u"ended_early"_s, [](const DaySummary& d) { return d.endedEarly; }},
        {u"skipped"_s, [](const DaySummary& d) { return d.skipped; }},
        {u"postponed"_s, [](const DaySummary& d) { return d.postponed; }},
        {u"work_seconds"_s, [](const DaySummary& d) { return rounded(d.workSeconds); }},
        {u"longest_stretch_seconds"_s, [](const DaySummary& d) { return rounded(d.longestStretchSeconds); }},
        {u"smart_pause_seconds"_s, [](const DaySummary& d) { return rounded(d.smartPauseSeconds); }},
        {u"paused_seconds"_s, [](const DaySummary& d) { return rounded(d.pausedSeconds); }},
    };
    return columns;
}

struct EventColumn {
    QString key;
    std::function<QJsonValue(const HistoryEvent&)> value;
};

const QList<EventColumn>& eventColumns()
{
    static const QList<EventColumn> columns{
        {u"time_utc"_s, [](const HistoryEvent& e) { return e.at.toUTC().toString(Qt::ISODateWithMs); }},
        {u"utc_offset_seconds"_s, [](const HistoryEvent& e) { return e.utcOffsetSeconds; }},
        {u"local_time"_s, [](const HistoryEvent& e) { return e.localTime().toString(u"yyyy-MM-ddTHH:mm:ss"_s); }},
        {u"event"_s, [](const HistoryEvent& e) { return rawName(e.kind); }},
        {u"break_type"_s,
         [](const HistoryEvent& e) { return e.breakType ? QJsonValue(rawValue(*e.breakType)) : QJsonValue(); }},
        {u"detail"_s, [](const HistoryEvent& e) { return e.detail.isEmpty() ? QJsonValue() : e.detail; }},
        {u"seconds"_s, [](const HistoryEvent& e) { return rounded(e.seconds); }},
    };
    return columns;
}

QString csvField(const QJsonValue& value)
{
    if (value.isNull() || value.isUndefined())
        return {};
    if (value.isDouble())
        return number(value.toDouble());
    QString text = value.toString();
    if (text.contains(u',') || text.contains(u'"') || text.contains(u'\n'))
        text = u'"' + text.replace(u"\""_s, u"\"\""_s) + u'"';
    return text;
}

template <typename Row, typename Column>
QString csv(const QList<Row>& rows, const QList<Column>& columns)
{
    QStringList header;
    for (const Column& column : columns)
        header << column.key;
    QString text = header.join(u',') + u'\n';
    for (const Row& row : rows) {
        QStringList fields;
        for (const Column& column : columns)
            fields << csvField(column.value(row));
        text += fields.join(u',') + u'\n';
    }
    return text;
}

template <typename Row, typename Column>
QString json(const QString& name, const QList<Row>& rows, const QList<Column>& columns)
{
    QJsonArray array;
    for (const Row& row : rows) {
        QJsonObject object;
        for (const Column& column : columns)
            object.insert(column.key, column.value(row));
        array.append(object);
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{name, array}}).toJson(QJsonDocument::Compact)) + u'\n';
}

// How many terminal columns the text takes: Chinese, Japanese and Korean characters take two, combining
// marks none. Asked of the C library's UTF-8 character tables, whatever the user's own locale.
qsizetype displayWidth(const QString& text)
{
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t(nullptr));
    const locale_t previous = utf8 ? uselocale(utf8) : locale_t(nullptr);
    qsizetype width = 0;
    for (const char32_t c : text.toUcs4()) {
        const int columns = wcwidth(wchar_t(c));
        width += columns < 0 ? 1 : columns;
    }
    if (utf8)
        uselocale(previous);
    return width;
}

// Figures line up on the right, words on the left.
QString table(const QStringList& header, const QList<QStringList>& rows, const QList<bool>& rightAligned)
{
    QList<qsizetype> widths;
    for (const QString& title : header)
        widths << displayWidth(title);
    for (const QStringList& row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], displayWidth(row[i]));
    }
    auto line = [&](const QStringList& cells) -> QString {
        QString text;
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QString padding(widths[i] - displayWidth(cells[i]), u' ');
            text += rightAligned.value(i) ? padding + cells[i] : cells[i] + padding;
            if (i + 1 < cells.size())
                text += u"  "_s;
        }
        while (text.endsWith(u' '))
            text.chop(1);
        return text + u'\n';
    };
    QString text = line(header);
    for (const QStringList& row : rows)
        text += line(row);
    return text;
}

} // namespace

HistoryCommand::HistoryCommand(const HistoryStoring& store, QDate today)
    : m_store(store)
    , m_today(today)
{}

int HistoryCommand::run(const CommandLine& commandLine, QTextStream& out, QTextStream& err) const
{
    Q_UNUSED(err)
    const QDate first = m_today.addDays(1 - commandLine.historyDays);
    // Every zone's day is within fourteen hours of UTC's; the local dates sort out the rest.
    const QDateTime from = QDateTime(first, QTime(0, 0), QTimeZone::utc()).addSecs(-14 * 3600);
    const QDateTime to = QDateTime(m_today.addDays(1), QTime(0, 0), QTimeZone::utc()).addSecs(14 * 3600);
    QList<HistoryEvent> events = m_store.events(from, to);
    events.removeIf([&](const HistoryEvent& event) {
        const QDate date = event.localDate();
        return date < first || date > m_today;
    });
    if (commandLine.historyEvents) {
        out << (commandLine.csv ? eventsCsv(events) : commandLine.json ? eventsJson(events) : eventsText(events));
    } else {
        const QList<DaySummary> days = HistorySummary::summarize(events, m_store.days(first, m_today), first, m_today);
        out << (commandLine.csv ? daysCsv(days) : commandLine.json ? daysJson(days) : daysText(days));
    }
    out.flush();
    return ExitCode::success;
}

QString HistoryCommand::daysCsv(const QList<DaySummary>& days)
{
    return csv(days, dayColumns());
}

QString HistoryCommand::daysJson(const QList<DaySummary>& days)
{
    return json(u"days"_s, days, dayColumns());
}

QString HistoryCommand::eventsCsv(const QList<HistoryEvent>& events)
{
    return csv(events, eventColumns());
}

QString HistoryCommand::eventsJson(const QList<HistoryEvent>& events)
{
    return json(u"events"_s, events, eventColumns());
}

QString HistoryCommand::daysText(const QList<DaySummary>& days)
{
    const QStringList header{
        //: Column titles of `velto history`: the day, breaks taken, skipped and postponed, the work time counted,
        //: the longest work without a break and the time Smart Pause held breaks (the last three as hours:minutes).
        CommandLineTexts::tr("Day"),        CommandLineTexts::tr("Taken"), CommandLineTexts::tr("Skipped"),
        CommandLineTexts::tr("Postponed"),  CommandLineTexts::tr("Work"),  CommandLineTexts::tr("Longest stretch"),
        CommandLineTexts::tr("Smart Pause")};
    QList<QStringList> rows;
    const QLocale locale;
    for (const DaySummary& day : days) {
        rows.append({locale.toString(day.date, u"ddd "_s) + day.date.toString(Qt::ISODate), QString::number(day.taken),
                     QString::number(day.skipped), QString::number(day.postponed), hoursAndMinutes(day.workSeconds),
                     hoursAndMinutes(day.longestStretchSeconds), hoursAndMinutes(day.smartPauseSeconds)});
    }
    return table(header, rows, {false, true, true, true, true, true, true});
}

QString HistoryCommand::eventsText(const QList<HistoryEvent>& events)
{
    if (events.isEmpty())
        //: `velto history --events` when nothing was recorded in the days asked for.
        return CommandLineTexts::tr("No events recorded in these days.") + u'\n';
    QList<QStringList> rows;
    for (const HistoryEvent& event : events) {
        rows.append({event.localTime().toString(u"yyyy-MM-dd HH:mm:ss"_s), rawName(event.kind),
                     event.breakType ? rawValue(*event.breakType) : QString(), event.detail, number(event.seconds)});
    }
    //: Column titles of `velto history --events`: local time, what happened, short or long break, more about it,
    //: and a length in seconds. The values under them stay in English, for scripts.
    return table({CommandLineTexts::tr("Time"), CommandLineTexts::tr("Event"), CommandLineTexts::tr("Break"),
                  CommandLineTexts::tr("Detail"), CommandLineTexts::tr("Seconds")},
                 rows, {false, false, false, false, true});
}

} // namespace velto
