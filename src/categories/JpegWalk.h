#pragma once

#include <QByteArrayView>

/// Walks a JPEG file from marker to marker up to its end, to learn whether it is complete and how many
/// scans it has. What follows the end is ignored: phones append films there. Markers: ITU-T T.81, table
/// B.1.
class JpegWalk
{
public:
    explicit JpegWalk(QByteArrayView bytes);

    /// Whether at least one scan and the end marker are there.
    bool isComplete() const { return m_hasEnd && m_scans > 0; }
    /// Number of scans up to the end of the picture or of the file.
    int scans() const { return m_scans; }
    /// Whether the first scan holds all components from top to bottom. For other pictures the decoder keeps
    /// the whole picture in memory until the last scan.
    bool isReadLineByLine() const { return m_isReadLineByLine; }

private:
    int at(qsizetype position) const;
    /// Moves to the marker that ends the coded data at the current position.
    void skipScan();

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    int m_scans = 0;
    bool m_hasEnd = false;
    bool m_isReadLineByLine = false;
};
