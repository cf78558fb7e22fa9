#include "categories/JpegWalk.h"

namespace
{

constexpr int MarkerBegin = 0xFF;
constexpr int Baseline = 0xC0;
constexpr int Sequential = 0xC1;
constexpr int StartOfScan = 0xDA;
constexpr int EndOfPicture = 0xD9;
constexpr int FirstRestart = 0xD0;
constexpr int StartOfPicture = 0xD8;
constexpr int PastEnd = -1;

/// Markers that have no length and no content.
bool standsAlone(int marker)
{
    constexpr int temporary = 0x01;
    return marker == temporary || (marker >= FirstRestart && marker <= StartOfPicture);
}

} // namespace

JpegWalk::JpegWalk(QByteArrayView bytes) : m_bytes(bytes)
{
    int colours = PastEnd; ///< components of a frame that is stored from top to bottom
    while (at(m_position) == MarkerBegin) {
        const int marker = at(++m_position);
        if (marker == MarkerBegin) {
            continue; // any number of fill bytes may precede a marker
        }
        ++m_position;
        if (marker == EndOfPicture) {
            m_hasEnd = true;
            return;
        }
        if (standsAlone(marker)) {
            continue;
        }
        const int high = at(m_position);
        const int low = at(m_position + 1);
        constexpr int ownLength = 2;
        const qsizetype content = m_position + ownLength;
        if (marker == Baseline || marker == Sequential) {
            constexpr qsizetype precisionAndSize = 5;
            colours = at(content + precisionAndSize);
        }
        if (low == PastEnd || high * 256 + low < ownLength) {
            return;
        }
        m_position += high * 256 + low;
        if (marker == StartOfScan) {
            m_isReadLineByLine = m_isReadLineByLine || (m_scans == 0 && at(content) == colours);
            ++m_scans;
            skipScan();
        }
    }
}

int JpegWalk::at(qsizetype position) const
{
    return position < m_bytes.size() ? static_cast<unsigned char>(m_bytes[position]) : PastEnd;
}

void JpegWalk::skipScan()
{
    // In coded data 0xFF is followed by 0; restart markers belong to the scan.
    for (; m_position < m_bytes.size(); ++m_position) {
        const int next = at(m_position) == MarkerBegin ? at(m_position + 1) : 0;
        if (next != 0 && (next < FirstRestart || next >= StartOfPicture)) {
            return;
        }
    }
}
