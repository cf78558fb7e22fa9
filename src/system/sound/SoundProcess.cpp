#include "system/sound/SoundProcess.h"

#include "system/sound/WaveFile.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::milliseconds Grace = 5s;

} // namespace

SoundProcess::SoundProcess(const ProgramPath& program) : m_player(program)
{
    m_overdue.setSingleShot(true);
    QObject::connect(&m_overdue, &QTimer::timeout, &m_player, [this] { finish(); });
    QObject::connect(&m_player, &HelperProcess::lost, &m_player, [this] { finish(); });
    QObject::connect(&m_player, &HelperProcess::answered, &m_player, [this](const QByteArray& ends) {
        m_sounding -= ends.size();
        if (m_sounding <= 0) {
            finish();
        }
    });
}

void SoundProcess::play(const QString& file)
{
    const auto length = waveLength(file);
    if (!length) {
        return;
    }
    ++m_sounding;
    m_overdue.start(std::max(m_overdue.remainingTimeAsDuration(), *length + Grace));
    m_player.write(QFile::encodeName(QFileInfo(file).absoluteFilePath()) + '\0');
}

void SoundProcess::stopAll()
{
    m_sounding = 0;
    m_overdue.stop();
    m_player.end();
}

void SoundProcess::finish()
{
    stopAll();
    if (onDone) {
        onDone();
    }
}
