// A process beside the program that plays waves, so that a sound library that crashes or hangs harms
// nothing else. It reads file names, each followed by a zero byte, plays every one at once and writes a
// line break for each sound that has ended. It ends with its input.

#include <QCoreApplication>
#include <QFile>
#include <QSoundEffect>
#include <QUrl>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr std::size_t MostAtOnce = 32;

class Player
{
public:
    void play(const QString& file)
    {
        if (m_effects.size() >= MostAtOnce) {
            finish(m_effects.front().get());
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
        sound->setSource(QUrl::fromLocalFile(file));
        sound->play();
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

    void finish(const QSoundEffect* sound)
    {
        if (std::erase_if(m_effects, [sound](const Effect& effect) { return effect.get() == sound; }) > 0) {
            std::putchar('\n');
            std::fflush(stdout);
        }
    }

    std::vector<Effect> m_effects;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Player player;
    std::thread([&player] {
        for (std::string name; std::getline(std::cin, name, '\0');) {
            QMetaObject::invokeMethod(
                qApp, [&player, name] { player.play(QFile::decodeName(name.c_str())); },
                Qt::QueuedConnection);
        }
        // Workaround: no destructors, as Qt Multimedia 6.4.2 disconnects from the sound server beside the
        // thread that serves it, which can abort or hang (tst_soundprocess,
        // thePlayerOfThisBuildEndsWithItsInputWhateverItDoes).
        std::_Exit(0);
    }).detach();
    return QCoreApplication::exec();
}
