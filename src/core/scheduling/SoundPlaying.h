#pragma once

#include <QString>

namespace velto {

// Plays the chimes around a break. Main thread.
class SoundPlaying {
public:
    virtual ~SoundPlaying() = default;
    // Starts the chime called name ("Glass", "Blow" or "Pop") at volume, clamped to 0…1 (a NaN plays silently),
    // and returns at once without waiting for it to sound. An unknown name, or a session without sound,
    // plays nothing and reports nothing.
    virtual void play(const QString& name, float volume) = 0;
};

} // namespace velto
