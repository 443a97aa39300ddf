#include "AudioService.h"

#include "scheduling/BreakEffects.h"

#include <QLoggingCategory>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace velto {
namespace {

Q_LOGGING_CATEGORY(lcAudio, "velto.audio")

} // namespace

AudioService::AudioService(QObject* parent)
    : QObject(parent)
{
    // Qt Multimedia warns for every effect it loads without an output, so loading waits for one.
    if (const QAudioDevice output = QMediaDevices::defaultAudioOutput(); !output.isNull())
        loadChimes(output);
}

QStringList AudioService::chimeNames()
{
    return {ChimeNames::preBreak.toString(), ChimeNames::breakStart.toString(), ChimeNames::breakEnd.toString()};
}

QString AudioService::resourcePath(const QString& name)
{
    return u":/velto/sounds/%1.wav"_s.arg(name);
}

void AudioService::play(const QString& name, float volume)
{
    if (!chimeNames().contains(name))
        return;
    // Asked each time: the sound server may start after Velto does, and the user may switch outputs.
    const QAudioDevice output = QMediaDevices::defaultAudioOutput();
    if (output.isNull()) {
        reportOnce(u"output"_s, u"No audio output in this session; the chimes stay silent"_s);
        return;
    }
    // An effect stays on the device it was made for, so a new default output means new effects.
    if (output != m_output)
        loadChimes(output);
    QSoundEffect* effect = m_effects.value(name);
    effect->setVolume(clampedVolume(volume));
    effect->stop();
    effect->play(); // while the chime is still decoding, it starts once it is ready
}

void AudioService::loadChimes(const QAudioDevice& output)
{
    qDeleteAll(m_effects);
    m_effects.clear();
    m_output = output;
    for (const QString& name : chimeNames()) {
        auto* effect = new QSoundEffect(output, this);
        connect(effect, &QSoundEffect::statusChanged, this, [this, effect, name] {
            if (effect->status() == QSoundEffect::Error)
                reportOnce(u"load:"_s + name, u"Could not load the %1 chime; it stays silent"_s.arg(name));
        });
        effect->setSource(QUrl(u"qrc"_s + resourcePath(name)));
        m_effects.insert(name, effect);
    }
}

void AudioService::reportOnce(const QString& key, const QString& message)
{
    if (m_reported.contains(key))
        return;
    m_reported.insert(key);
    qCWarning(lcAudio).noquote() << message;
}

} // namespace velto
