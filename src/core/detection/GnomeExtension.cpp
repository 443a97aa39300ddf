#include "GnomeExtension.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace velto {

namespace {

// Enabled as far as the user's settings go. The shell reads the three keys this way: disabled-extensions wins, and
// disable-user-extensions turns off everything enabled-extensions names, system-wide copies too.
bool enabledInSettings(const GnomeExtensionFacts& facts)
{
    return facts.settingsReadable && facts.listedEnabled && !facts.listedDisabled && !facts.userExtensionsOff;
}

} // namespace

GnomeExtensionState gnomeExtensionState(const GnomeExtensionFacts& facts)
{
    if (!facts.shellRunning)
        return GnomeExtensionState::NotGnome;
    if (facts.serving || facts.shellState == GnomeShellExtensionState::enabled)
        return GnomeExtensionState::Active;
    // A shell that has loaded it knows of a copy, wherever it lies.
    if (!facts.installed && !facts.shellState)
        return GnomeExtensionState::NotInstalled;
    // Without the settings, a shell that has loaded it but not started it has it off.
    if (!enabledInSettings(facts))
        return GnomeExtensionState::NotEnabled;
    if (facts.shellState == GnomeShellExtensionState::error || facts.shellState == GnomeShellExtensionState::outOfDate)
        return GnomeExtensionState::Failed;
    return GnomeExtensionState::EnabledNextLogin;
}

QString gnomeExtensionStateName(GnomeExtensionState state)
{
    switch (state) {
    case GnomeExtensionState::NotGnome:
        return u"notGnome"_s;
    case GnomeExtensionState::NotInstalled:
        return u"notInstalled"_s;
    case GnomeExtensionState::NotEnabled:
        return u"notEnabled"_s;
    case GnomeExtensionState::EnabledNextLogin:
        return u"enabledNextLogin"_s;
    case GnomeExtensionState::Failed:
        return u"failed"_s;
    case GnomeExtensionState::Active:
        return u"active"_s;
    }
    return {};
}

QString gnomeExtensionStateText(GnomeExtensionState state)
{
    switch (state) {
    case GnomeExtensionState::NotGnome:
        return {};
    case GnomeExtensionState::NotInstalled:
        return QCoreApplication::translate("GnomeExtension", "GNOME extension: not installed");
    case GnomeExtensionState::NotEnabled:
        return QCoreApplication::translate("GnomeExtension", "GNOME extension: installed, not enabled");
    case GnomeExtensionState::EnabledNextLogin:
        return QCoreApplication::translate("GnomeExtension", "GNOME extension: enabled, active after the next login");
    case GnomeExtensionState::Failed:
        return QCoreApplication::translate("GnomeExtension",
                                           "GNOME extension: enabled, but GNOME Shell could not start it");
    case GnomeExtensionState::Active:
        return QCoreApplication::translate("GnomeExtension", "GNOME extension: active");
    }
    return {};
}

QString gnomeExtensionExplanation(GnomeExtensionState state)
{
    switch (state) {
    case GnomeExtensionState::NotGnome:
    case GnomeExtensionState::Active:
        return {};
    case GnomeExtensionState::EnabledNextLogin:
        return QCoreApplication::translate("GnomeExtension",
                                           "Until then, Smart Pause cannot see which window is in front on GNOME.");
    case GnomeExtensionState::NotInstalled:
    case GnomeExtensionState::NotEnabled:
    case GnomeExtensionState::Failed:
        return QCoreApplication::translate("GnomeExtension",
                                           "Without it, Smart Pause cannot see which window is in front on GNOME.");
    }
    return {};
}

GnomeExtensionEnabling gnomeExtensionEnabling(const GnomeExtensionFacts& facts)
{
    if (gnomeExtensionState(facts) != GnomeExtensionState::NotEnabled)
        return {};
    GnomeExtensionEnabling enabling;
    // The shell's own call also writes both lists, and starts the extension at once.
    enabling.askShell = facts.shellState.has_value();
    enabling.writeLists = !enabling.askShell && facts.settingsReadable;
    enabling.turnOnUserExtensions = facts.userExtensionsOff;
    return enabling;
}

} // namespace velto
