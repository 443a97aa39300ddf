#pragma once

#include "ControlBus.h"

#include <QString>
#include <QStringList>

namespace velto {

// Exit statuses of the velto command.
namespace ExitCode {
inline constexpr int success = 0;
inline constexpr int failure = 1; // no running instance, or it did not answer
inline constexpr int usage = 2;   // bad arguments
} // namespace ExitCode

// What the command line asks for. Everything but `Run`, `Help`, `Version`, `Invalid` and the GNOME extension's
// commands (which ask GNOME Shell itself) is sent to the running instance.
struct CommandLine {
    enum class Command {
        Run, // no command: start Velto, or hand over to the one already running
        Help,
        Version,
        Status,
        TakeBreak,
        Pause,
        Resume,
        Skip,
        Enable,
        Disable,
        Settings,
        CheckUpdates,
        Quit,
        History,
        GnomeExtensionStatus,
        GnomeExtensionEnable,
        Invalid,
    };

    static constexpr int defaultPauseMinutes = 15;
    static constexpr int maximumPauseMinutes = int(ControlBus::longestPauseSeconds / 60);
    static constexpr int defaultHistoryDays = 7;
    static constexpr int maximumHistoryDays = 3660;

    Command command = Command::Run;
    bool json = false;                      // status, gnome-extension status, history
    bool csv = false;                       // history
    bool historyEvents = false;             // history: every event rather than a line a day
    int historyDays = defaultHistoryDays;   // history
    bool longBreak = false;                 // break
    int pauseMinutes = defaultPauseMinutes; // pause
    QString error;                          // Invalid: what was wrong, one line

    [[nodiscard]] bool talksToRunningInstance() const;

    // arguments without the program name. Qt's own start-up options (-platform xcb, -style=Fusion, ...) before
    // the command are passed over, so they still reach the application object.
    [[nodiscard]] static CommandLine parse(const QStringList& arguments);
    [[nodiscard]] static QString usage();

    // One command as the parser takes it, --help explains it, and the manual page and the shell completions
    // (generated from this table at build time) show it.
    struct Spec {
        QString name;
        Command command;
        QString arguments;   // after the name in the synopsis, e.g. "[--json]"
        const char* summary; // one line, untranslated: see summaryText()
        QStringList options;
        QStringList words; // the fixed words its argument may be
    };
    [[nodiscard]] static const QList<Spec>& commands();
    // A command's summary in the user's language.
    [[nodiscard]] static QString summaryText(const Spec& spec);

    friend bool operator==(const CommandLine&, const CommandLine&) = default;
};

} // namespace velto
