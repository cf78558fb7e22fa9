#include "platform/WaveBackend.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>
#include <memory>
#include <utility>
#include <vector>

namespace {

class SoundEffects final : public WaveBackend
{
public:
    void play(const QString& file) override
    {
        if (!QFileInfo(file).isFile()) {
            return;
        }
        Effect effect(new QSoundEffect);
        QSoundEffect* sound = effect.get();
        m_effects.push_back(std::move(effect));
        QObject::connect(sound, &QSoundEffect::playingChanged, sound, [this, sound] {
            if (!sound->isPlaying()) {
                forget(sound);
            }
        });
        QObject::connect(sound, &QSoundEffect::statusChanged, sound, [this, sound] {
            if (sound->status() == QSoundEffect::Error) {
                forget(sound);
            }
        });
        sound->setSource(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
        sound->play();
    }

    void stopAll() override
    {
        const std::vector<Effect> stopped = std::exchange(m_effects, {});
        for (const Effect& effect : stopped) {
            QObject::disconnect(effect.get(), nullptr, effect.get(), nullptr);
            effect->stop();
        }
    }

private:
    // The effect may be the sender of the signal that is being handled.
    struct DeleteLater {
        void operator()(QSoundEffect* effect) const { effect->deleteLater(); }
    };
    using Effect = std::unique_ptr<QSoundEffect, DeleteLater>;

    void forget(const QSoundEffect* sound)
    {
        const auto removed
            = std::erase_if(m_effects, [sound](const Effect& effect) { return effect.get() == sound; });
        if (removed > 0 && m_effects.empty() && onDone) {
            onDone();
        }
    }

    std::vector<Effect> m_effects;
};

}

extern "C" Q_DECL_EXPORT WaveBackend* ambertaskMakeWaveBackend()
{
    return new SoundEffects;
}
