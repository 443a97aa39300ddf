#include "BreakEffects.h"

#include "ScreenLocking.h"
#include "SoundPlaying.h"
#include "settings/SettingsManager.h"

#include <cmath>

namespace velto {

float clampedVolume(float volume)
{
    if (std::isnan(volume) || volume < 0.0F)
        return 0.0F;
    return volume > 1.0F ? 1.0F : volume;
}

void playBreakStartEffects(const SettingsManager& settings, SoundPlaying* sounds, ScreenLocking* lock)
{
    const NotificationSettings& notifications = settings.notificationSettings();
    if (sounds && notifications.playSoundOnBreakStart)
        sounds->play(ChimeNames::breakStart.toString(), notifications.soundVolume);
    // Without a lock method the setting does nothing: no prompt or message as the break begins.
    if (lock && settings.breakConfiguration().lockScreenOnBreak && lock->isLockAvailable())
        lock->lockScreen();
}

void playBreakEndEffects(const SettingsManager& settings, SoundPlaying* sounds)
{
    const NotificationSettings& notifications = settings.notificationSettings();
    if (sounds && notifications.playSoundOnBreakEnd)
        sounds->play(ChimeNames::breakEnd.toString(), notifications.soundVolume);
}

void playPreBreakChime(SoundPlaying* sounds)
{
    if (sounds)
        sounds->play(ChimeNames::preBreak.toString(), 1.0F);
}

} // namespace velto
