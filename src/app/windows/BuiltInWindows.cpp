#include "AudioService.h"
#include "BreakWindow.h"
#include "InAppNotificationWindowPresenter.h"
#include "MainScreen.h"
#include "SettingsWindowController.h"
#include "VeltoWindows.h"

namespace velto {

namespace {

class BuiltInWindows final : public VeltoWindows {
public:
    // Chosen before any window exists: Qt only warns about a later choice.
    BuiltInWindows() { BreakWindow::useSoftwareRendering(); }

    std::unique_ptr<NotificationWindowPresenting> makeNotificationPresenter() override
    {
        return std::make_unique<InAppNotificationWindowPresenter>();
    }

    std::unique_ptr<BreakOverlay> makeBreakOverlay(SettingsManager* settings, BreakManager* breakManager,
                                                   SoundPlaying* sounds, ScreenLocking* lock) override
    {
        return std::make_unique<BreakWindow>(settings, breakManager, sounds, lock);
    }

    std::unique_ptr<SettingsWindows> makeSettingsWindows(SettingsCollaborators collaborators) override
    {
        return std::make_unique<SettingsWindowController>(std::move(collaborators));
    }

    std::unique_ptr<SoundPlaying> makeSoundPlayer() override { return std::make_unique<AudioService>(); }
    void setFocusedOutputSource(std::function<QString()> outputName) override
    {
        velto::setFocusedOutputSource(std::move(outputName));
    }
};

} // namespace

VeltoWindows* builtInVeltoWindows()
{
    static BuiltInWindows windows;
    return &windows;
}

} // namespace velto
