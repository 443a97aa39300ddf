#pragma once

#include "settings/SettingsEnums.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace velto {

class ApplicationInfoProviding;
class BreakManager;
class GnomeExtensionControlling;
class HistoryRecorder;
class NotificationWindowPresenting;
class ScreenLocking;
class SettingsManager;
class SoundPlaying;
class StoreWriteState;
class UpdateAvailabilityModel;
class WorkspaceProviding;

// The break screen as the shell drives it. Main thread.
class BreakOverlay {
public:
    virtual ~BreakOverlay() = default;
    // Covers the target screens for a break of this type, then the start chime and the lock.
    virtual void show(BreakType breakType) = 0;
    // The end chime, then the windows fade out and go.
    virtual void hide() = 0;
    // Whether windows of a break are up (fading ones that are leaving do not count).
    [[nodiscard]] virtual bool isShowing() const = 0;
};

// The settings window as the shell opens it. Main thread.
class SettingsWindows {
public:
    virtual ~SettingsWindows() = default;
    // Brings the open window forward, or builds a new one for these settings.
    virtual void showSettings(SettingsManager* settingsManager, BreakManager* breakManager) = 0;
};

// Everything Velto shows or sounds: the break screen, the pre-break card, the settings window and the chimes.
// It lives in a module of its own that is loaded the first time something is shown, so a Velto that counts
// down quietly in the tray never maps Qt Quick, the QML engine or Qt Multimedia. What a make… call returns is
// owned by the caller; the collaborators are not. Main thread.
class VeltoWindows {
public:
    struct SettingsCollaborators {
        ScreenLocking* lock = nullptr;
        WorkspaceProviding* workspace = nullptr;
        ApplicationInfoProviding* applications = nullptr;
        UpdateAvailabilityModel* updates = nullptr;
        const StoreWriteState* storeWriteState = nullptr;
        // Which mechanism serves each detection capability in this session, asked as the window opens, and the
        // desktop's name (XDG_CURRENT_DESKTOP): the panes tell what these cannot see. None tells nothing.
        std::function<QVariantMap()> detectionSources{};
        QString desktop{};
        // Velto's GNOME Shell extension, where Smart Pause needs it (GNOME on Wayland): the Smart Pause pane tells
        // its state and offers to enable it. None tells nothing.
        GnomeExtensionControlling* gnomeExtension = nullptr;
        // The break history the History pane shows and clears; none shows an empty history.
        HistoryRecorder* history = nullptr;
    };

    virtual ~VeltoWindows() = default;
    [[nodiscard]] virtual std::unique_ptr<NotificationWindowPresenting> makeNotificationPresenter() = 0;
    [[nodiscard]] virtual std::unique_ptr<BreakOverlay> makeBreakOverlay(SettingsManager* settings,
                                                                         BreakManager* breakManager,
                                                                         SoundPlaying* sounds, ScreenLocking* lock) = 0;
    [[nodiscard]] virtual std::unique_ptr<SettingsWindows> makeSettingsWindows(SettingsCollaborators collaborators) = 0;
    [[nodiscard]] virtual std::unique_ptr<SoundPlaying> makeSoundPlayer() = 0;
    // Where the session hides where the focused window is (Wayland), who knows the name of its output; the card
    // and a main-screen break go there. Windows that cannot use it ignore it.
    virtual void setFocusedOutputSource(std::function<QString()> /*outputName*/) {}
};

// The windows linked into this binary, made on first call and kept for the life of the process.
[[nodiscard]] VeltoWindows* builtInVeltoWindows();

// The module's one exported function: extern "C" VeltoWindows* velto_windows(), the same as builtInVeltoWindows().
inline constexpr char veltoWindowsEntryPoint[] = "velto_windows";

} // namespace velto
