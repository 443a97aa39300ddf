#pragma once

#include "scheduling/SoundPlaying.h"

#include <QAudioDevice>
#include <QHash>
#include <QObject>
#include <QSet>

class QSoundEffect;

namespace velto {

// The chimes through Qt Multimedia. The three sounds are compiled into the binary and decoded up front for the
// default output, so a chime starts without touching the disk; playing one again restarts it instead of
// layering a copy. Without an audio output (no sound server, no device) nothing is loaded, every chime is
// silent, and that is reported once.
class AudioService final : public QObject, public SoundPlaying {
    Q_OBJECT

public:
    explicit AudioService(QObject* parent = nullptr);

    void play(const QString& name, float volume) override;

    // The chimes this service knows, in the order of the break: pre-break, start, end.
    [[nodiscard]] static QStringList chimeNames();
    [[nodiscard]] static QString resourcePath(const QString& name);

private:
    void loadChimes(const QAudioDevice& output);
    void reportOnce(const QString& key, const QString& message);

    QAudioDevice m_output;
    QHash<QString, QSoundEffect*> m_effects;
    QSet<QString> m_reported;
};

} // namespace velto
