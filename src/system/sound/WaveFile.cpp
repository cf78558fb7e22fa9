#include "system/sound/WaveFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <array>

namespace
{

constexpr qint64 LargestFile = qint64{64} * 1024 * 1024;
constexpr qint64 RiffHeaderSize = 12;
constexpr qint64 ChunkHeaderSize = 8;
constexpr qint64 FormatSize = 16;
// No sensible file has more chunks before its samples.
constexpr int MostChunks = 1000;

quint32 number32(const QByteArray& bytes, qsizetype position)
{
    return qFromLittleEndian<quint32>(bytes.constData() + position);
}

/// Bytes per second according to a format chunk; 0 when the samples are compressed or the numbers make no
/// sense.
quint32 bytesPerSecond(const QByteArray& format)
{
    constexpr std::array<quint16, 3> PlainSamples{0x0001, 0x0003, 0xfffe};
    const auto tag = qFromLittleEndian<quint16>(format.constData());
    const bool plain = std::find(PlainSamples.begin(), PlainSamples.end(), tag) != PlainSamples.end();
    return plain ? number32(format, 8) : 0;
}

} // namespace

std::optional<std::chrono::milliseconds> waveLength(const QString& file)
{
    // Opening a pipe would wait for its writer.
    if (!QFileInfo(file).isFile()) {
        return std::nullopt;
    }
    QFile wave(file);
    if (!wave.open(QIODevice::ReadOnly) || wave.size() > LargestFile) {
        return std::nullopt;
    }
    const QByteArray riff = wave.read(RiffHeaderSize);
    if (riff.size() != RiffHeaderSize || !riff.startsWith("RIFF") || !riff.endsWith("WAVE")) {
        return std::nullopt;
    }
    quint32 rate = 0;
    for (int i = 0; i < MostChunks; ++i) {
        const QByteArray header = wave.read(ChunkHeaderSize);
        if (header.size() != ChunkHeaderSize) {
            return std::nullopt;
        }
        const qint64 begin = wave.pos();
        const qint64 size = number32(header, 4);
        if (header.startsWith("fmt ")) {
            const QByteArray format = wave.read(FormatSize);
            rate = format.size() == FormatSize ? bytesPerSecond(format) : 0;
        } else if (header.startsWith("data")) {
            // An interrupted recording leaves a size beyond the end of the file.
            const qint64 samples = std::min(size, wave.size() - begin);
            if (rate == 0 || samples == 0) {
                return std::nullopt;
            }
            return std::chrono::milliseconds(samples * 1000 / rate);
        }
        if (!wave.seek(begin + size + size % 2)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}
