#include "platform/WaveBackend.h"
#include "platform/sound/WaveFile.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace
{

using namespace std::chrono_literals;

// Without a sound server an effect says that it plays and never ends; one that is this much overdue is given
// up.
constexpr auto Grace = 5s;
constexpr std::size_t MostAtOnce = 32;

class SoundEffects final : public WaveBackend
{
public:
    ~SoundEffects() override { stopAll(); }

    void play(const QString& file) override
    {
        const auto length = waveLength(file);
        if (!length) {
            return;
        }
        if (m_effects.size() >= MostAtOnce) {
            take(m_effects.front().get());
        }
        m_effects.push_back(Effect(new QSoundEffect));
        QSoundEffect* sound = m_effects.back().get();
        QObject::connect(sound, &QSoundEffect::playingChanged, sound, [this, sound] {
            if (!sound->isPlaying()) {
                finish(sound);
            }
        });
        QObject::connect(sound, &QSoundEffect::statusChanged, sound, [this, sound] {
            if (sound->status() == QSoundEffect::Error) {
                finish(sound);
            }
        });
        QTimer::singleShot(*length + Grace, sound, [this, sound] { finish(sound); });
        sound->setSource(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
        sound->play();
    }

    void stopAll() override
    {
        while (!m_effects.empty()) {
            take(m_effects.back().get());
        }
    }

private:
    // The effect may be the sender of the signal that is being handled.
    struct Retire {
        void operator()(QSoundEffect* effect) const
        {
            effect->disconnect();
            effect->stop();
            effect->deleteLater();
        }
    };
    using Effect = std::unique_ptr<QSoundEffect, Retire>;

    /// Ends one sound; false when it has ended before.
    bool take(const QSoundEffect* sound)
    {
        return std::erase_if(m_effects, [sound](const Effect& effect) { return effect.get() == sound; }) > 0;
    }

    void finish(const QSoundEffect* sound)
    {
        if (take(sound) && m_effects.empty() && onDone) {
            onDone();
        }
    }

    std::vector<Effect> m_effects;
};

} // namespace

extern "C" Q_DECL_EXPORT WaveBackend* ambertaskMakeWaveBackend()
{
    return new SoundEffects;
}
