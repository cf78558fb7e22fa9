#include "exchange/ByteLines.h"

#include "exchange/ExchangeTexts.h"
#include "system/FileReplace.h"
#include "system/Progress.h"

#include <QIODevice>
#include <algorithm>
#include <cstring>

namespace
{

constexpr qsizetype ChunkOfBytes = qsizetype{64} * 1024;
constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

} // namespace

ByteLines::ByteLines(QIODevice& device, Progress* progress) : m_device(device), m_progress(progress)
{
    if (fill() && QByteArrayView(m_chunk).startsWith(ByteOrderMark)) {
        m_place = ByteOrderMark.size();
    }
}

bool ByteLines::fill()
{
    if (m_place < m_chunk.size()) {
        return true;
    }
    if (m_atEnd) {
        return false;
    }
    if (m_progress != nullptr) {
        m_progress->advance(m_read, m_device.isSequential() ? 0 : m_device.size());
    }
    m_chunk.resize(ChunkOfBytes);
    const qint64 count = m_device.read(m_chunk.data(), ChunkOfBytes);
    if (count < 0) {
        throw FileError(ExchangeTexts::tr("The file could not be read: %1.").arg(m_device.errorString()));
    }
    m_chunk.resize(count);
    m_place = 0;
    m_read += count;
    m_atEnd = count == 0;
    return !m_atEnd;
}

bool ByteLines::next(std::string& line)
{
    if (!fill()) {
        return false;
    }
    ++m_number;
    m_cut = false;
    const std::size_t before = line.size();
    while (fill()) {
        const char* begin = m_chunk.constData() + m_place;
        const auto rest = static_cast<std::size_t>(m_chunk.size() - m_place);
        const auto* end = static_cast<const char*>(std::memchr(begin, '\n', rest));
        const std::size_t found = end == nullptr ? rest : static_cast<std::size_t>(end - begin);
        const std::size_t room = LongestLine - std::min(LongestLine, line.size() - before);
        line.append(begin, std::min(found, room));
        m_cut = m_cut || found > room;
        m_place += static_cast<qsizetype>(found) + (end == nullptr ? 0 : 1);
        if (end != nullptr) {
            break;
        }
    }
    return true;
}

char ByteLines::peek()
{
    return fill() ? m_chunk.at(m_place) : '\0';
}
