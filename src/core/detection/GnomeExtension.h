#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace velto {

// What this session tells of Velto's GNOME Shell extension (uuid velto@velto.app).
struct GnomeExtensionFacts {
    // GNOME Shell is on the session bus.
    bool shellRunning = false;
    // A copy lies in gnome-shell/extensions under one of the data folders (the user's or the system's).
    bool installed = false;
    // GNOME Shell's settings schema (org.gnome.shell) is there; without it the three below are unknown (false).
    bool settingsReadable = false;
    bool listedEnabled = false;  // in enabled-extensions
    bool listedDisabled = false; // in disabled-extensions, which wins over enabled-extensions
    // disable-user-extensions: the shell then starts no extension it was told of by enabled-extensions.
    bool userExtensionsOff = false;
    // The running shell's state for it (GetExtensionInfo's "state"); none when the shell has not loaded it, as
    // when it was installed after login.
    std::optional<int> shellState;
    // The extension holds its own bus name: it runs.
    bool serving = false;

    friend bool operator==(const GnomeExtensionFacts&, const GnomeExtensionFacts&) = default;
};

// GNOME Shell's numbers for an extension's state, as GetExtensionInfo gives them.
namespace GnomeShellExtensionState {
inline constexpr int enabled = 1;
inline constexpr int disabled = 2;
inline constexpr int error = 3;
inline constexpr int outOfDate = 4;
inline constexpr int initialized = 6;
} // namespace GnomeShellExtensionState

enum class GnomeExtensionState {
    NotGnome,         // no GNOME Shell: nothing to tell
    NotInstalled,     // no copy anywhere the shell looks
    NotEnabled,       // installed, but the user's settings keep it off
    EnabledNextLogin, // enabled, but this shell has not loaded it (installed after login): it starts next time
    Failed,           // enabled and loaded, but the shell could not start it (an error, or too new a shell)
    Active,           // it runs
};

[[nodiscard]] GnomeExtensionState gnomeExtensionState(const GnomeExtensionFacts& facts);

// "notGnome", "notInstalled", "notEnabled", "enabledNextLogin", "failed", "active": for scripts.
[[nodiscard]] QString gnomeExtensionStateName(GnomeExtensionState state);
// One line saying the state, as "GNOME extension: active"; empty when there is no GNOME Shell.
[[nodiscard]] QString gnomeExtensionStateText(GnomeExtensionState state);
// Why the state matters, where the extension does not run; empty otherwise.
[[nodiscard]] QString gnomeExtensionExplanation(GnomeExtensionState state);

// How enabling goes from these facts. A shell that has loaded the extension is asked to enable it, which it does
// at once; otherwise the user's settings are written and the shell starts it at the next login.
struct GnomeExtensionEnabling {
    bool askShell = false;             // EnableExtension on the running shell
    bool writeLists = false;           // add to enabled-extensions, remove from disabled-extensions
    bool turnOnUserExtensions = false; // disable-user-extensions off (through the shell when askShell)

    [[nodiscard]] bool possible() const { return askShell || writeLists || turnOnUserExtensions; }
    friend bool operator==(const GnomeExtensionEnabling&, const GnomeExtensionEnabling&) = default;
};

// Nothing to do unless the state is NotEnabled; possible() is whether Velto offers to enable it.
[[nodiscard]] GnomeExtensionEnabling gnomeExtensionEnabling(const GnomeExtensionFacts& facts);

// Velto's GNOME Shell extension as this session has it, and the way to enable it. Never waits on the session:
// answers come later, through factsGathered(). Main thread.
class GnomeExtensionControlling : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~GnomeExtensionControlling() override = default;

    // The facts last gathered; none before the first gathering is done.
    [[nodiscard]] virtual std::optional<GnomeExtensionFacts> facts() const = 0;
    // Gathers the facts afresh.
    virtual void refresh() = 0;
    // Enables the extension as gnomeExtensionEnabling() says, then gathers the facts afresh. done comes after
    // that gathering, with an empty string, or one line saying why the extension could not be enabled.
    virtual void enable(std::function<void(const QString& error)> done) = 0;

Q_SIGNALS:
    // After each gathering, whether or not the facts changed.
    void factsGathered();
};

} // namespace velto
