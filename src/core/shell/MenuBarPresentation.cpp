#include "MenuBarPresentation.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace velto {

QString menuTimeText(double seconds)
{
    const qint64 whole = wholeSeconds(seconds);
    return u"%1:%2"_s.arg(whole / 60, 2, 10, QLatin1Char('0')).arg(whole % 60, 2, 10, QLatin1Char('0'));
}

QString MenuBarPresentation::accessibilityLabel() const
{
    return u"Velto, "_s + statusText;
}

QString MenuBarPresentation::accessibilityValue() const
{
    return timeText == noTime ? u"No active timer"_s : timeText + u" remaining"_s;
}

namespace {

struct Row {
    QString timeText;
    QString statusText;
    QString symbolName;
    MenuBarPrimaryAction primaryAction;
};

Row rowForState(const MenuBarInputs& in)
{
    switch (in.state) {
    case BreakState::Idle:
        return {MenuBarPresentation::noTime.toString(), u"Ready"_s, u"timer"_s, MenuBarPrimaryAction::TakeBreak};
    case BreakState::Working:
        return {menuTimeText(in.timeRemaining), u"Until next break"_s, u"timer"_s, MenuBarPrimaryAction::TakeBreak};
    case BreakState::OnBreak:
        return {menuTimeText(in.breakTimeRemaining), u"Break in progress"_s, u"cup.and.saucer"_s,
                in.allowEarlyEnd ? MenuBarPrimaryAction::EndBreak : MenuBarPrimaryAction::None};
    case BreakState::Paused:
        return {menuTimeText(in.timeRemaining), u"Paused"_s, u"pause.circle.fill"_s, MenuBarPrimaryAction::Resume};
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
        return {menuTimeText(in.timeRemaining), u"Outside office hours"_s, u"clock.badge.xmark"_s,
                MenuBarPrimaryAction::None};
    case PauseKind::AppDisabled:
        return {MenuBarPresentation::noTime.toString(), u"Breaks disabled"_s, u"pause.circle"_s,
                MenuBarPrimaryAction::None};
    case PauseKind::SmartActivity:
        return {menuTimeText(in.timeRemaining),
                in.activityStatusText.isEmpty() ? u"Smart Pause active"_s : in.activityStatusText,
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
            p.statusItemTitle = u"Ready"_s;
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
    face.label = minutes < 100 ? QString::number(minutes) : QString::number(minutes / 60) + u"h"_s;
    return face;
}

TrayAccessibleTexts makeTrayAccessibleTexts(const MenuBarPresentation& presentation, double remaining)
{
    TrayAccessibleTexts texts{presentation.accessibilityLabel(), u"No active timer"_s};
    if (presentation.timeText == MenuBarPresentation::noTime || !std::isfinite(remaining))
        return texts;
    const qint64 minutes = (wholeSeconds(std::ceil(std::max(0.0, remaining))) + 59) / 60;
    QString left;
    if (minutes < 60)
        left = QString::number(minutes) + u" min"_s;
    else if (minutes % 60 == 0)
        left = QString::number(minutes / 60) + u" h"_s;
    else
        left = QString::number(minutes / 60) + u" h "_s + QString::number(minutes % 60) + u" min"_s;
    texts.value = left + u" remaining"_s;
    return texts;
}

QList<StatusMenuItem> makeStatusMenuItems(const MenuBarPresentation& p, const StatusMenuInputs& in)
{
    const StatusMenuItem separator{true, {}, {}, MenuAction::None, false, {}};
    QList<StatusMenuItem> items;
    const QString statusLine =
        p.timeText == MenuBarPresentation::noTime ? p.statusText : p.timeText + u"  "_s + p.statusText;
    items.append({false, statusLine, p.symbolName, MenuAction::None, false, {}});
    if (in.isEnabled && in.dailyBreakCount > 0)
        items.append({false,
                      QString::number(in.dailyBreakCount) + u" breaks today"_s,
                      u"checkmark.circle"_s,
                      MenuAction::None,
                      false,
                      {}});
    items.append(separator);
    items.append({false,
                  in.isEnabled ? u"Disable Velto"_s : u"Enable Velto"_s,
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
            title = u"Take a Break"_s;
            symbol = u"cup.and.saucer"_s;
            break;
        case MenuBarPrimaryAction::Resume:
            title = u"Resume"_s;
            symbol = u"play.fill"_s;
            break;
        case MenuBarPrimaryAction::EndBreak:
            title = u"End Break"_s;
            symbol = u"stop.fill"_s;
            break;
        case MenuBarPrimaryAction::None:
            break;
        }
        items.append({false, title, symbol, MenuAction::PerformPrimaryMenuAction, p.primaryActionEnabled, {}});
    }
    const bool workingFreely = in.state == BreakState::Working && !in.pauseReason;
    if (workingFreely && in.longBreakEnabled)
        items.append(
            {false, u"Take a Long Break"_s, u"cup.and.saucer.fill"_s, MenuAction::StartLongBreakFromMenu, true, {}});
    if (workingFreely)
        items.append({false, u"Pause for 15 Minutes"_s, u"pause.fill"_s, MenuAction::PauseFromMenu, true, {}});
    items.append(separator);
    items.append({false, u"Settings\u2026"_s, u"gearshape"_s, MenuAction::OpenSettingsFromMenu, true, u"Ctrl+,"_s});
    items.append(separator);
    items.append({false, u"Quit Velto"_s, {}, MenuAction::QuitFromMenu, true, u"Ctrl+Q"_s});
    return items;
}

} // namespace velto
