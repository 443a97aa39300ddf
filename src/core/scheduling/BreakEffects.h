#pragma once

#include <QString>

namespace velto {

class ScreenLocking;
class SettingsManager;
class SoundPlaying;

// The chime names Velto plays; the stored breakStartSound/breakEndSound choices do not change them.
namespace ChimeNames {
inline constexpr QStringView breakStart = u"Glass";
inline constexpr QStringView breakEnd = u"Blow";
inline constexpr QStringView preBreak = u"Pop";
} // namespace ChimeNames

// A volume in 0…1: below 0 (and NaN) is 0, above 1 is 1.
[[nodiscard]] float clampedVolume(float volume);

// What happens as a break begins: the start chime if the user wants it, then the screen lock if the user wants
// it and the session can lock. A null sounds or lock pointer means that effect is absent.
void playBreakStartEffects(const SettingsManager& settings, SoundPlaying* sounds, ScreenLocking* lock);
// The end chime if the user wants it.
void playBreakEndEffects(const SettingsManager& settings, SoundPlaying* sounds);
// The chime with the pre-break card; it always plays, at full volume.
void playPreBreakChime(SoundPlaying* sounds);

} // namespace velto
