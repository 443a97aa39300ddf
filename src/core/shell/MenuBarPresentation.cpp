#include "MenuBarPresentation.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {

QString menuTimeText(double seconds)
{
    const qint64 whole = wholeSeconds(seconds);
    return u"%1:%2"_s.arg(whole / 60, 2, 10, QLatin1Char('0')).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

namespace {

QString noTimerText()
{
    return QCoreApplication::translate("TrayIcon", "No active timer");
}

QString remainingText(const QString& time)
{
    //: What a screen reader says for the tray icon's countdown; %1 is the time left, such as "24:59" or "25 min".
    return QCoreApplication::translate("TrayIcon", "%1 remaining").arg(time);
}

} // namespace

QString MenuBarPresentation::accessibilityLabel() const
{
    //: What a screen reader says for the tray icon; %1 is the status line, such as "Until next break".
    return QCoreApplication::translate("TrayIcon", "Velto, %1").arg(statusText);
}

QString MenuBarPresentation::accessibilityValue() const
{
    return timeText == noTime ? noTimerText() : remainingText(timeText);
}

namespace {

struct Row {
    QString timeText;
    QString statusText;
    QString symbolName;
    MenuBarPrimaryAction primaryAction;
};

QString readyText()
{
    //: Nothing is counted yet; shown in the tray menu and as the tray's title.
    return QCoreApplication::translate("TrayMenu", "Ready");
}

Row rowForState(const MenuBarInputs& in)
{
    switch (in.state) {
    case BreakState::Idle:
        return {MenuBarPresentation::noTime.toString(), readyText(), u"timer"_s, MenuBarPrimaryAction::TakeBreak};
    case BreakState::Working:
        //: The tray menu's status line after the countdown, as in "24:59  Until next break".
        return {menuTimeText(in.timeRemaining), QCoreApplication::translate("TrayMenu", "Until next break"), u"timer"_s,
                MenuBarPrimaryAction::TakeBreak};
    case BreakState::OnBreak:
        return {menuTimeText(in.breakTimeRemaining), QCoreApplication::translate("TrayMenu", "Break in progress"),
                u"cup.and.saucer"_s, in.allowEarlyEnd ? MenuBarPrimaryAction::EndBreak : MenuBarPrimaryAction::None};
    case BreakState::Paused:
        // The same line as a manual pause without an end.
        return {menuTimeText(in.timeRemaining), PauseReason::manuallyPaused().displayText(in.now),
                u"pause.circle.fill"_s, MenuBarPrimaryAction::Resume};
    }
    return {};
}

Row rowForPause(const MenuBarInputs& in, const PauseReason& reason)
{
    switch (reason.kind) {
    case PauseKind::ManuallyPaused:
        return {menuTimeText(in.timeRemaining), reason.displayText(in.now), u"pause.circle.fill"_s,
                MenuBarPrimaryAction::Resume};
    case PauseKind::OutsideOfficeHours:
        return {menuTimeText(in.timeRemaining), reason.displayText(in.now), u"clock.badge.xmark"_s,
                MenuBarPrimaryAction::None};
    case PauseKind::AppDisabled:
        return {MenuBarPresentation::noTime.toString(), reason.displayText(in.now), u"pause.circle"_s,
                MenuBarPrimaryAction::None};
    case PauseKind::SmartActivity:
        return {menuTimeText(in.timeRemaining),
                in.activityStatusText.isEmpty() ? reason.displayText(in.now) : in.activityStatusText,
                in.activityStatusSymbolName.isEmpty() ? u"pause.circle"_s : in.activityStatusSymbolName,
                MenuBarPrimaryAction::None};
    }
    return {};
}

} // namespace

MenuBarPresentation makeMenuBarPresentation(const MenuBarInputs& in)
{
    const Row row = in.pauseReason ? rowForPause(in, *in.pauseReason) : rowForState(in);
    MenuBarPresentation p;
    p.timeText = row.timeText;
    p.statusText = row.statusText;
    p.symbolName = row.symbolName;
    p.primaryAction = row.primaryAction;
    switch (row.primaryAction) {
    case MenuBarPrimaryAction::EndBreak:
        p.primaryActionEnabled = in.canEndBreakEarly;
        break;
    case MenuBarPrimaryAction::None:
        p.primaryActionEnabled = false;
        break;
    default:
        p.primaryActionEnabled = true;
    }
    if (in.showTimerInMenuBar && !in.pauseReason) {
        switch (in.state) {
        case BreakState::Idle:
            p.statusItemTitle = readyText();
            break;
        case BreakState::Working:
        case BreakState::OnBreak:
            p.statusItemTitle = p.timeText;
            break;
        case BreakState::Paused:
            break;
        }
    }
    return p;
}

TrayIconFace makeTrayIconFace(const MenuBarPresentation& presentation, BreakState state, double remaining, double total)
{
    TrayIconFace face;
    const bool counting = state == BreakState::Working || state == BreakState::OnBreak;
    if (!counting || presentation.statusItemTitle.isEmpty() || !std::isfinite(remaining))
        return face;
    face.showsTimer = true;
    const double left = std::max(0.0, remaining);
    const double fraction = total > 0 && std::isfinite(total) ? std::clamp(left / total, 0.0, 1.0) : 0.0;
    face.ringSteps = static_cast<int>(std::ceil(fraction * TrayIconFace::ringResolution));
    const qint64 minutes = (wholeSeconds(std::ceil(left)) + 59) / 60;
    //: Hours left, drawn inside the small tray icon from 100 minutes on: keep it to the number and a letter.
    face.label =
        minutes < 100 ? QString::number(minutes) : QCoreApplication::translate("TrayIcon", "%1h").arg(minutes / 60);
    return face;
}

TrayAccessibleTexts makeTrayAccessibleTexts(const MenuBarPresentation& presentation, double remaining)
{
    TrayAccessibleTexts texts{presentation.accessibilityLabel(), noTimerText()};
    if (presentation.timeText == MenuBarPresentation::noTime || !std::isfinite(remaining))
        return texts;
    const qint64 minutes = (wholeSeconds(std::ceil(std::max(0.0, remaining))) + 59) / 60;
    // Counted apart: lupdate stalls on arithmetic inside the count argument of a translate() call.
    const int hours = pluralCount(minutes / 60);
    const int minutesPastHour = pluralCount(minutes % 60);
    //: A duration a screen reader says for the tray icon, with "%1 remaining" around it.
    const QString minutesText = QCoreApplication::translate("TrayIcon", "%n min", nullptr, minutesPastHour);
    //: A duration a screen reader says for the tray icon, with "%1 remaining" around it.
    const QString hoursText = QCoreApplication::translate("TrayIcon", "%n h", nullptr, hours);
    QString left;
    if (hours == 0) {
        left = minutesText;
    } else if (minutesPastHour == 0) {
        left = hoursText;
    } else {
        //: Hours and minutes together, such as "2 h 5 min": %1 is the hours, %2 the minutes.
        left = QCoreApplication::translate("TrayIcon", "%1 %2").arg(hoursText, minutesText);
    }
    texts.value = remainingText(left);
    return texts;
}

QList<StatusMenuItem> makeStatusMenuItems(const MenuBarPresentation& p, const StatusMenuInputs& in)
{
    const StatusMenuItem separator{true, {}, {}, MenuAction::None, false, {}};
    QList<StatusMenuItem> items;
    // The countdown and the status are two columns of one line rather than a sentence, so they are not
    // translated as one.
    const QString statusLine =
        p.timeText == MenuBarPresentation::noTime ? p.statusText : p.timeText + u"  "_s + p.statusText;
    items.append({false, statusLine, p.symbolName, MenuAction::None, false, {}});
    if (in.isEnabled && in.dailyBreakCount > 0)
        items.append(
            {false,
             //: %n is how many breaks were taken today. English says "1 breaks today" too.
             QCoreApplication::translate("TrayMenu", "%n breaks today", nullptr, pluralCount(in.dailyBreakCount)),
             u"checkmark.circle"_s,
             MenuAction::None,
             false,
             {}});
    items.append(separator);
    items.append({false,
                  in.isEnabled ? QCoreApplication::translate("TrayMenu", "Disable Velto")
                               : QCoreApplication::translate("TrayMenu", "Enable Velto"),
                  u"power"_s,
                  MenuAction::ToggleBreakReminders,
                  true,
                  {}});
    if (p.primaryAction != MenuBarPrimaryAction::None) {
        items.append(separator);
        QString title;
        QString symbol;
        switch (p.primaryAction) {
        case MenuBarPrimaryAction::TakeBreak:
            title = QCoreApplication::translate("TrayMenu", "Take a Break");
            symbol = u"cup.and.saucer"_s;
            break;
        case MenuBarPrimaryAction::Resume:
            //: Verb: end the pause now.
            title = QCoreApplication::translate("TrayMenu", "Resume");
            symbol = u"play.fill"_s;
            break;
        case MenuBarPrimaryAction::EndBreak:
            title = QCoreApplication::translate("TrayMenu", "End Break");
            symbol = u"stop.fill"_s;
            break;
        case MenuBarPrimaryAction::None:
            break;
        }
        items.append({false, title, symbol, MenuAction::PerformPrimaryMenuAction, p.primaryActionEnabled, {}});
    }
    const bool workingFreely = in.state == BreakState::Working && !in.pauseReason;
    if (workingFreely && in.longBreakEnabled)
        items.append({false,
                      QCoreApplication::translate("TrayMenu", "Take a Long Break"),
                      u"cup.and.saucer.fill"_s,
                      MenuAction::StartLongBreakFromMenu,
                      true,
                      {}});
    if (workingFreely)
        items.append({false,
                      QCoreApplication::translate("TrayMenu", "Pause for 15 Minutes"),
                      u"pause.fill"_s,
                      MenuAction::PauseFromMenu,
                      true,
                      {}});
    items.append(separator);
    items.append({false, QCoreApplication::translate("TrayMenu", "Settings…"), u"gearshape"_s,
                  MenuAction::OpenSettingsFromMenu, true, u"Ctrl+,"_s});
    items.append(separator);
    items.append({false,
                  QCoreApplication::translate("TrayMenu", "Quit Velto"),
                  {},
                  MenuAction::QuitFromMenu,
                  true,
                  u"Ctrl+Q"_s});
    return items;
}

} // namespace velto
