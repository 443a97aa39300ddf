#pragma once

#include "scheduling/SoundPlaying.h"

#include <QList>

// Records every chime asked for, with the volume exactly as passed.
class FakeSoundPlayer final : public velto::SoundPlaying {
public:
    struct Played {
        QString name;
        float volume = 0;
    };

    void play(const QString& name, float volume) override { played.append({name, volume}); }

    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (const Played& p : played)
            result.append(p.name);
        return result;
    }

    QList<Played> played;
};
