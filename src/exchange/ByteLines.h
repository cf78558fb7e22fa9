#pragma once

#include <QByteArray>
#include <cstddef>
#include <string>

class Progress;
class QIODevice;

/// Reads a device to its end, in chunks, and tells a progress.
class ByteLines
{
public:
    /// Longer lines are cut. A file may have any, of gigabytes.
    static constexpr std::size_t LongestLine = std::size_t{32} * 1024 * 1024;

    /// Both outlive the object; `progress` may be null.
    ByteLines(QIODevice& device, Progress* progress);

    /// Appends the bytes up to the next line feed, which is left out, to `line`. False at the end of the
    /// device. Throws FileError when the device cannot be read, and what the progress throws.
    bool next(std::string& line);
    /// The first byte of the next line; a zero byte at the end.
    char peek();
    /// The number of the line read last, from 1.
    qint64 number() const { return m_number; }
    /// Whether that line was longer than LongestLine.
    bool wasCut() const { return m_cut; }

private:
    bool fill();

    QIODevice& m_device;
    Progress* m_progress;
    QByteArray m_chunk;
    qsizetype m_place = 0;
    qint64 m_read = 0;
    qint64 m_number = 0;
    bool m_cut = false;
    bool m_atEnd = false;
};
