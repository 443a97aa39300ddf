#pragma once

#include "scheduling/SchedulingTypes.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace velto {

namespace Shell {
Q_NAMESPACE

enum class MenuBarPrimaryAction { TakeBreak, Resume, EndBreak, None };
Q_ENUM_NS(MenuBarPrimaryAction)

// What a tray-menu entry does when chosen; None for the informational lines and separators.
enum class MenuAction {
    None,
    ToggleBreakReminders,
    PerformPrimaryMenuAction,
    StartLongBreakFromMenu,
    PauseFromMenu,
    OpenSettingsFromMenu,
    QuitFromMenu,
};
Q_ENUM_NS(MenuAction)
} // namespace Shell

using Shell::MenuAction;
using Shell::MenuBarPrimaryAction;

// Everything the tray icon and its menu show, derived afresh from the scheduler, the detector and the settings.
struct MenuBarPresentation {
    Q_GADGET
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString statusText MEMBER statusText)
    Q_PROPERTY(QString symbolName MEMBER symbolName)
    Q_PROPERTY(velto::Shell::MenuBarPrimaryAction primaryAction MEMBER primaryAction)
    Q_PROPERTY(bool primaryActionEnabled MEMBER primaryActionEnabled)
    Q_PROPERTY(QString statusItemTitle MEMBER statusItemTitle)

public:
    // The em dash when no countdown applies.
    static constexpr QStringView noTime = u"\u2014";

    QString timeText;
    QString statusText;
    QString symbolName;
    MenuBarPrimaryAction primaryAction = MenuBarPrimaryAction::None;
    bool primaryActionEnabled = false;
    QString statusItemTitle;

    // What assistive technology hears for the tray icon.
    [[nodiscard]] QString accessibilityLabel() const;
    [[nodiscard]] QString accessibilityValue() const;

    friend bool operator==(const MenuBarPresentation&, const MenuBarPresentation&) = default;
};

// The readings a presentation is made from; gathered by the shell, so the rules stay free of any component.
struct MenuBarInputs {
    BreakState state = BreakState::Idle;
    std::optional<PauseReason> pauseReason;
    double timeRemaining = 0;
    double breakTimeRemaining = 0;
    bool canEndBreakEarly = false;
    bool showTimerInMenuBar = true;
    bool allowEarlyEnd = true;
    // Empty when the scheduler has no detector.
    QString activityStatusText;
    QString activityStatusSymbolName;
    // For the minutes left of a timed pause.
    QDateTime now;
};

// Whole minutes and seconds, never wrapped into hours: 1500 s → "25:00", 59.9 s → "00:59", 3600 s → "60:00".
[[nodiscard]] QString menuTimeText(double seconds);

[[nodiscard]] MenuBarPresentation makeMenuBarPresentation(const MenuBarInputs& inputs);

// One entry of the tray menu, in the order shown.
struct StatusMenuItem {
    bool isSeparator = false;
    QString title;
    // An icon name from the menu's symbol set; empty for none.
    QString symbolName;
    MenuAction action = MenuAction::None;
    bool isEnabled = false;
    // A key hint such as "Ctrl+Q"; empty for none.
    QString shortcut;

    friend bool operator==(const StatusMenuItem&, const StatusMenuItem&) = default;
};

struct StatusMenuInputs {
    bool isEnabled = true;
    qint64 dailyBreakCount = 0;
    bool longBreakEnabled = false;
    BreakState state = BreakState::Idle;
    std::optional<PauseReason> pauseReason;
};

// What the tray icon draws. It changes far less often than the countdown, so the icon is only redrawn when
// this record changes.
struct TrayIconFace {
    // Steps in a full ring; a 22-pixel ring cannot show finer ones.
    static constexpr int ringResolution = 60;

    // False: the plain Velto icon.
    bool showsTimer = false;
    // How much of the ring is left, in steps of 1/ringResolution.
    int ringSteps = 0;
    // Minutes left, rounded up ("25" for 24:01); hours from 100 minutes on ("2h").
    QString label;

    friend bool operator==(const TrayIconFace&, const TrayIconFace&) = default;
};

// The icon shows the countdown exactly when the title would: working or on a break, with the timer shown.
// remaining and total are the running countdown and its full length in seconds.
[[nodiscard]] TrayIconFace makeTrayIconFace(const MenuBarPresentation& presentation, BreakState state, double remaining,
                                            double total);

// What the tray item says to assistive technology: the presentation's accessibility label and value, the
// value in whole minutes rounded up, so the texts change at most once a minute and never wake the tray host
// (which reads them from Velto over the bus) every second.
struct TrayAccessibleTexts {
    QString label;
    QString value;
};
[[nodiscard]] TrayAccessibleTexts makeTrayAccessibleTexts(const MenuBarPresentation& presentation, double remaining);

// The menu as it opens: built from a fresh presentation each time, never updated while it stays open.
[[nodiscard]] QList<StatusMenuItem> makeStatusMenuItems(const MenuBarPresentation& presentation,
                                                        const StatusMenuInputs& inputs);

} // namespace velto
