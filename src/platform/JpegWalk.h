#pragma once

#include <QByteArrayView>

/// Walks a JPEG from marker to marker up to its end, to see whether the picture is there as a whole and how
/// often it is passed over. What follows the end is not looked at: phones put films there.
/// Markers: ITU-T T.81, table B.1.
class JpegWalk
{
public:
    explicit JpegWalk(QByteArrayView bytes);

    /// Whether the end of the picture follows at least one scan.
    bool isComplete() const { return m_hasEnd && m_scans > 0; }
    /// Scans up to the end of the picture, or of the file.
    int scans() const { return m_scans; }
    /// Whether the first scan holds all colours, from top to bottom. Of any other picture the decoder keeps
    /// the whole in memory until the last scan.
    bool isReadLineByLine() const { return m_isReadLineByLine; }

private:
    int at(qsizetype position) const;
    /// To the marker that ends the coded data at the position.
    void skipScan();

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
    int m_scans = 0;
    bool m_hasEnd = false;
    bool m_isReadLineByLine = false;
};
