#include "CommandLine.h"

#include "CommandLineTexts.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

using Command = CommandLine::Command;

const QHash<QString, Command>& commandWords()
{
    static const QHash<QString, Command> words = [] {
        QHash<QString, Command> all{{u"help"_s, Command::Help}};
        for (const CommandLine::Spec& spec : CommandLine::commands())
            all.insert(spec.name, spec.command);
        return all;
    }();
    return words;
}

bool isHelpOption(const QString& argument)
{
    return argument == u"-h"_s || argument == u"--help"_s;
}

// How many arguments a Qt start-up option at `index` takes up (the option and its value), or 0 when it is none.
qsizetype qtOptionLength(const QStringList& arguments, qsizetype index)
{
    static const QStringList withValue{
        u"platform"_s,        u"platformpluginpath"_s,
        u"platformtheme"_s,   u"plugin"_s,
        u"qmljsdebugger"_s,   u"style"_s,
        u"stylesheet"_s,      u"session"_s,
        u"display"_s,         u"geometry"_s,
        u"title"_s,           u"name"_s,
        u"qwindowgeometry"_s, u"qwindowicon"_s,
        u"qwindowtitle"_s,
    };
    static const QStringList flags{u"reverse"_s, u"widgetcount"_s, u"nograb"_s, u"dograb"_s, u"sync"_s};

    QStringView option = arguments.at(index);
    if (!option.startsWith(u'-'))
        return 0;
    option = option.mid(option.startsWith(u"--") ? 2 : 1);
    const qsizetype equals = option.indexOf(u'=');
    if (equals > 0)
        return withValue.contains(option.left(equals)) ? 1 : 0;
    if (flags.contains(option))
        return 1;
    if (withValue.contains(option))
        return index + 1 < arguments.size() ? 2 : 0;
    return 0;
}

CommandLine withCommand(Command command)
{
    CommandLine result;
    result.command = command;
    return result;
}

CommandLine invalid(QString error)
{
    CommandLine result = withCommand(Command::Invalid);
    result.error = std::move(error);
    return result;
}

} // namespace

bool CommandLine::talksToRunningInstance() const
{
    switch (command) {
    case Command::Run:
    case Command::Help:
    case Command::Version:
    case Command::History:
    case Command::GnomeExtensionStatus:
    case Command::GnomeExtensionEnable:
    case Command::Invalid:
        return false;
    default:
        return true;
    }
}

CommandLine CommandLine::parse(const QStringList& arguments)
{
    qsizetype index = 0;
    while (index < arguments.size()) {
        const qsizetype length = qtOptionLength(arguments, index);
        if (length == 0)
            break;
        index += length;
    }
    if (index == arguments.size())
        return {};

    // Help wins wherever it is asked for, so `velto pause --help` explains rather than pauses.
    for (qsizetype i = index; i < arguments.size(); ++i) {
        if (isHelpOption(arguments.at(i)))
            return withCommand(Command::Help);
    }

    const QString& word = arguments.at(index);
    QStringList rest = arguments.mid(index + 1);
    if (word == u"--version"_s || word == u"-v"_s) {
        if (!rest.isEmpty())
            return invalid(CommandLineTexts::tr("unexpected argument '%1'").arg(rest.first()));
        return withCommand(Command::Version);
    }
    const auto found = commandWords().constFind(word);
    if (found == commandWords().constEnd()) {
        if (word.startsWith(u'-'))
            return invalid(CommandLineTexts::tr("unknown option '%1'").arg(word));
        return invalid(CommandLineTexts::tr("unknown command '%1'").arg(word));
    }

    CommandLine result = withCommand(found.value());
    QString name = word;
    if (result.command == Command::GnomeExtensionStatus) {
        // Two words: what to do with the extension comes second.
        const QString action = rest.value(0);
        if (action == u"enable"_s)
            result.command = Command::GnomeExtensionEnable;
        else if (action != u"status"_s)
            return invalid(action.isEmpty() ? CommandLineTexts::tr("gnome-extension needs 'status' or 'enable'")
                                            : CommandLineTexts::tr("unknown gnome-extension command '%1'").arg(action));
        name += u' ' + action;
        rest.removeFirst();
    }
    const bool takesJson = result.command == Command::Status || result.command == Command::GnomeExtensionStatus ||
                           result.command == Command::History;
    const bool history = result.command == Command::History;
    bool daysGiven = false;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QString& argument = rest.at(i);
        if (takesJson && argument == u"--json"_s && !result.json && !result.csv) {
            result.json = true;
        } else if (history && argument == u"--csv"_s && !result.json && !result.csv) {
            result.csv = true;
        } else if (history && (argument == u"--json"_s || argument == u"--csv"_s)) {
            return invalid(CommandLineTexts::tr("give only one of --json and --csv"));
        } else if (history && argument == u"--events"_s && !result.historyEvents) {
            result.historyEvents = true;
        } else if (history && !daysGiven && (argument == u"--days"_s || argument.startsWith(u"--days="_s))) {
            const bool joined = argument.startsWith(u"--days="_s);
            if (!joined && i + 1 >= rest.size())
                return invalid(CommandLineTexts::tr("--days needs a number of days"));
            const QString value = joined ? argument.mid(7) : rest.at(++i);
            bool ok = false;
            const int days = value.toInt(&ok);
            if (!ok || days < 1 || days > maximumHistoryDays)
                //: %1: the largest number allowed; %2: what was given instead.
                return invalid(CommandLineTexts::tr("--days must be a whole number from 1 to %1, not '%2'")
                                   .arg(maximumHistoryDays)
                                   .arg(value));
            result.historyDays = days;
            daysGiven = true;
        } else if (result.command == Command::TakeBreak && argument == u"--long"_s && !result.longBreak) {
            result.longBreak = true;
        } else if (result.command == Command::Pause && i == 0 && !argument.startsWith(u'-')) {
            bool ok = false;
            const int minutes = argument.toInt(&ok);
            if (!ok || minutes < 1 || minutes > maximumPauseMinutes)
                return invalid(CommandLineTexts::tr("MINUTES must be a whole number from 1 to %1, not '%2'")
                                   .arg(maximumPauseMinutes)
                                   .arg(argument));
            result.pauseMinutes = minutes;
        } else if (argument.startsWith(u'-')) {
            return invalid(CommandLineTexts::tr("unknown option '%1' for %2").arg(argument, name));
        } else {
            return invalid(CommandLineTexts::tr("unexpected argument '%1' for %2").arg(argument, name));
        }
    }
    return result;
}

const QList<CommandLine::Spec>& CommandLine::commands()
{
    static const QList<Spec> table{
        {u"status"_s,
         Command::Status,
         u"[--json]"_s,
         QT_TRANSLATE_NOOP("CommandLine", "Show the countdown, the state and today's breaks"),
         {u"--json"_s},
         {}},
        {u"break"_s,
         Command::TakeBreak,
         u"[--long]"_s,
         QT_TRANSLATE_NOOP("CommandLine", "Take a break now (a long break with --long)"),
         {u"--long"_s},
         {}},
        {u"pause"_s,
         Command::Pause,
         u"[MINUTES]"_s,
         QT_TRANSLATE_NOOP("CommandLine", "Pause reminders for MINUTES minutes (%1 if not given)"),
         {},
         {}},
        {u"resume"_s, Command::Resume, {}, QT_TRANSLATE_NOOP("CommandLine", "End a pause"), {}, {}},
        {u"skip"_s, Command::Skip, {}, QT_TRANSLATE_NOOP("CommandLine", "Skip the coming break"), {}, {}},
        {u"enable"_s, Command::Enable, {}, QT_TRANSLATE_NOOP("CommandLine", "Turn reminders on"), {}, {}},
        {u"disable"_s, Command::Disable, {}, QT_TRANSLATE_NOOP("CommandLine", "Turn reminders off"), {}, {}},
        {u"settings"_s, Command::Settings, {}, QT_TRANSLATE_NOOP("CommandLine", "Open the settings window"), {}, {}},
        {u"check-updates"_s,
         Command::CheckUpdates,
         {},
         QT_TRANSLATE_NOOP("CommandLine", "Check for a newer version and say what was found"),
         {},
         {}},
        {u"quit"_s, Command::Quit, {}, QT_TRANSLATE_NOOP("CommandLine", "Quit Velto"), {}, {}},
        {u"history"_s,
         Command::History,
         u"[--days N] [--events] [--json | --csv]"_s,
         QT_TRANSLATE_NOOP("CommandLine",
                           "Show the breaks of the last N days (%1 if not given), a line a day or every event"),
         {u"--days"_s, u"--events"_s, u"--json"_s, u"--csv"_s},
         {}},
        {u"gnome-extension"_s,
         Command::GnomeExtensionStatus, // or GnomeExtensionEnable, by the word after it
         u"status [--json] | enable"_s,
         QT_TRANSLATE_NOOP(
             "CommandLine",
             "Tell whether Velto's GNOME Shell extension is installed, enabled and running, or enable it"),
         {},
         {u"status"_s, u"enable"_s}},
    };
    return table;
}

QString CommandLine::summaryText(const Spec& spec)
{
    const QString text = CommandLineTexts::tr(spec.summary);
    if (!text.contains(u"%1"_s))
        return text;
    return text.arg(spec.command == Command::History ? defaultHistoryDays : defaultPauseMinutes);
}

QString CommandLine::usage()
{
    const auto synopsis = [](const Spec& spec) -> QString {
        return spec.arguments.isEmpty() ? spec.name : spec.name + u' ' + spec.arguments;
    };
    // A synopsis too wide for the column has a line of its own, with its summary under it.
    constexpr qsizetype widest = 24;
    qsizetype width = QStringLiteral("-v, --version").size();
    for (const Spec& spec : commands()) {
        if (synopsis(spec).size() <= widest)
            width = std::max(width, synopsis(spec).size());
    }
    const auto line = [width](const QString& left, const QString& right) -> QString {
        if (left.size() > width)
            return u"  "_s + left + u'\n' + QString(width + 5, u' ') + right + u'\n';
        return u"  "_s + left.leftJustified(width + 3) + right + u'\n';
    };
    QString forRunning;
    QString alone;
    for (const Spec& spec : commands()) {
        CommandLine commandLine;
        commandLine.command = spec.command;
        (commandLine.talksToRunningInstance() ? forRunning : alone) += line(synopsis(spec), summaryText(spec));
    }
    //: COMMAND stays as it is: it stands for one of the commands listed below
    QString text = CommandLineTexts::tr("Usage: velto [COMMAND]") + u"\n\n"_s +
                   CommandLineTexts::tr(
                       "Without a command, starts Velto; if Velto is already running, opens its settings instead.") +
                   u"\n\n"_s + CommandLineTexts::tr("Commands for the running Velto:") + u'\n' + forRunning + u'\n' +
                   CommandLineTexts::tr("Commands that work with or without a running Velto:") + u'\n' + alone;
    text += u'\n' + CommandLineTexts::tr("Options:") + u'\n' +
            line(u"-h, --help"_s, CommandLineTexts::tr("Show this help")) +
            line(u"-v, --version"_s, CommandLineTexts::tr("Show the version")) + u'\n' +
            CommandLineTexts::tr(
                "Exit status: 0 on success, 1 when Velto is not running or does not answer (or the update check\n"
                "failed, or there is no GNOME Shell or extension, or enabling it failed), 2 for bad arguments.") +
            u'\n';
    return text;
}

} // namespace velto
