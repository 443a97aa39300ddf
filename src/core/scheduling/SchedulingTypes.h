#pragma once

#include <QDateTime>
#include <QObject>

#include <optional>

namespace velto {
namespace Scheduling {
Q_NAMESPACE

enum class BreakState {
    Idle,    // nothing is counted: reminders are off or not started
    Working, // the work countdown runs
    OnBreak, // a break runs
    Paused,  // a manual pause holds the work countdown
};
Q_ENUM_NS(BreakState)

// What holds the work countdown, when something visible does. Typing holds it too but is never shown.
enum class PauseKind { ManuallyPaused, OutsideOfficeHours, AppDisabled, SmartActivity };
Q_ENUM_NS(PauseKind)

enum class SleepSource {
    System,  // the whole machine sleeps
    Display, // the displays sleep while the machine may stay awake
};
Q_ENUM_NS(SleepSource)

// Who started a break.
enum class BreakOrigin {
    Scheduled,   // the work countdown ran out
    Menu,        // the tray menu or the top-bar indicator
    Card,        // the pre-break card's "Break now"
    CommandLine, // `velto break` and the D-Bus interface
};
Q_ENUM_NS(BreakOrigin)

// How a break ended.
enum class BreakOutcome {
    Completed,  // its countdown ran out
    EndedEarly, // "End Break" in its second half; counted like a completed one
    Skipped,
    Stopped, // reminders were switched off
};
Q_ENUM_NS(BreakOutcome)

} // namespace Scheduling

using Scheduling::BreakOrigin;
using Scheduling::BreakOutcome;
using Scheduling::BreakState;
using Scheduling::PauseKind;
using Scheduling::SleepSource;

struct PauseReason {
    Q_GADGET
    Q_PROPERTY(velto::Scheduling::PauseKind kind MEMBER kind)
    Q_PROPERTY(QDateTime resumesAt READ resumesAtOrInvalid)

public:
    PauseKind kind = PauseKind::ManuallyPaused;
    // The planned end of a timed manual pause.
    std::optional<QDateTime> resumesAt;

    [[nodiscard]] static PauseReason manuallyPaused(std::optional<QDateTime> resumesAt = std::nullopt)
    {
        return {PauseKind::ManuallyPaused, std::move(resumesAt)};
    }
    [[nodiscard]] static PauseReason outsideOfficeHours() { return {PauseKind::OutsideOfficeHours, {}}; }
    [[nodiscard]] static PauseReason appDisabled() { return {PauseKind::AppDisabled, {}}; }
    [[nodiscard]] static PauseReason smartActivity() { return {PauseKind::SmartActivity, {}}; }

    [[nodiscard]] QDateTime resumesAtOrInvalid() const { return resumesAt.value_or(QDateTime()); }
    // The status line for the menu. A timed pause counts whole minutes left, plus one, so it never reads 0.
    [[nodiscard]] QString displayText(const QDateTime& now) const;

    friend bool operator==(const PauseReason&, const PauseReason&) = default;
};

// A countdown's whole seconds for display, truncated toward zero: NaN and negative times read as zero, and a
// stored duration too large for any clock is held at a bound instead of overflowing into garbage.
[[nodiscard]] qint64 wholeSeconds(double seconds);

// A count for a text with plural forms, which Qt takes as an int: held at the largest int rather than wrapped
// (only a countdown of thousands of years gets that far).
[[nodiscard]] int pluralCount(qint64 count);

} // namespace velto
