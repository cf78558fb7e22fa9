#include "platform/database/IndexPages.h"

#include "platform/Progress.h"

#include <QtEndian>
#include <array>

namespace
{

constexpr qsizetype HeadOfFile = 100;
constexpr char InnerPage = 2;
constexpr char LeafPage = 10;
/// No file of a size that exists is that deep.
constexpr int GreatestDepth = 20;

qsizetype numberOf2Bytes(const QByteArray& bytes, qsizetype place)
{
    return qFromBigEndian<quint16>(bytes.constData() + place);
}

qint64 numberOf4Bytes(const QByteArray& bytes, qsizetype place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

} // namespace

IndexPages::IndexPages(const QString& file, Progress* progress) : m_file(file), m_progress(progress)
{
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return;
    }
    constexpr qsizetype PageSize = 16;
    constexpr qsizetype Reserved = 20;
    constexpr qsizetype Encoding = 56;
    constexpr qint64 Utf8 = 1;
    constexpr qsizetype SmallestPage = 512;
    const QByteArray head = m_file.read(HeadOfFile);
    if (head.size() == HeadOfFile && head.at(Reserved) == 0 && numberOf4Bytes(head, Encoding) == Utf8
        && numberOf2Bytes(head, PageSize) >= SmallestPage) {
        m_pageSize = numberOf2Bytes(head, PageSize);
    }
}

bool IndexPages::read(qint64 root, std::size_t parts, const Visit& visit)
{
    m_parts.resize(parts);
    return m_pageSize > 0 && readPage(root, 0, visit);
}

bool IndexPages::readPage(qint64 number, int depth, const Visit& visit)
{
    if (number < 2 || depth > GreatestDepth || !m_file.seek((number - 1) * m_pageSize)) {
        return false;
    }
    const QByteArray page = m_file.read(m_pageSize);
    if (page.size() != m_pageSize || (page.at(0) != InnerPage && page.at(0) != LeafPage)) {
        return false;
    }
    if (m_progress != nullptr) {
        m_progress->advance(0, 0);
    }
    constexpr qsizetype Entries = 3;
    constexpr qsizetype LastChild = 8;
    const bool isInner = page.at(0) == InnerPage;
    const qsizetype places = isInner ? LastChild + 4 : LastChild;
    const qsizetype entries = numberOf2Bytes(page, Entries);
    if (places + 2 * entries > m_pageSize) {
        return false;
    }
    for (qsizetype i = 0; i < entries; ++i) {
        qsizetype place = numberOf2Bytes(page, places + 2 * i);
        if (isInner) {
            if (place + 4 > m_pageSize || !readPage(numberOf4Bytes(page, place), depth + 1, visit)) {
                return false;
            }
            place += 4;
        }
        if (place >= m_pageSize || !readEntry(page, place, visit)) {
            return false;
        }
    }
    return !isInner || readPage(numberOf4Bytes(page, LastChild), depth + 1, visit);
}

// An entry is its size, the size of its head, in the head the type of each part, then the parts; they have to
// fill it to the byte.
bool IndexPages::readEntry(const QByteArray& page, qsizetype place, const Visit& visit)
{
    // What is longer goes on on other pages.
    const qsizetype longest = (m_pageSize - 12) * 64 / 255 - 23;
    const Byte* bytes = reinterpret_cast<const Byte*>(page.constData());
    Span head{bytes + place, bytes + m_pageSize};
    qsizetype size = 0;
    if (!takeSize(head, size) || size > longest || size > head.end - head.at) {
        return false;
    }
    const Byte* begin = head.at;
    head.end = begin + size;
    if (!takeSize(head, size) || size > head.end - begin) {
        return false;
    }
    Span content{begin + size, head.end};
    head.end = content.at;
    for (StoredValue& part : m_parts) {
        if (!takeSize(head, size) || !takeValue(content, size, part)) {
            return false;
        }
    }
    return head.at == head.end && content.at == content.end && visit(m_parts);
}

// One or two bytes of seven bits each: more than an entry on one page can need.
bool IndexPages::takeSize(Span& span, qsizetype& size)
{
    constexpr unsigned More = 0x80;
    if (span.at == span.end) {
        return false;
    }
    const unsigned first = *span.at++;
    if (first < More) {
        size = first;
        return true;
    }
    if (span.at == span.end || *span.at >= More) {
        return false;
    }
    size = static_cast<qsizetype>((first - More) << 7U | *span.at++);
    return true;
}

bool IndexPages::takeValue(Span& content, qsizetype type, StoredValue& value)
{
    constexpr std::array<qsizetype, 10> NumberSizes{-1, 1, 2, 3, 4, 6, 8, -1, 0, 0};
    constexpr qsizetype One = 9;
    constexpr qsizetype FirstText = 13;
    const bool isNumber = type <= One;
    const qsizetype size = isNumber ? NumberSizes.at(static_cast<std::size_t>(type)) : (type - FirstText) / 2;
    const bool isText = !isNumber && type >= FirstText && type % 2 == 1;
    if ((!isNumber && !isText) || size < 0 || size > content.end - content.at) {
        return false;
    }
    const Byte* begin = content.at;
    content.at += size;
    if (isText) {
        value = {true, 0, {reinterpret_cast<const char*>(begin), static_cast<std::size_t>(size)}};
        return true;
    }
    // The first bit is the sign.
    quint64 number = size > 0 && *begin >= 0x80 ? ~quint64(0) : type == One ? 1 : 0;
    for (qsizetype i = 0; i < size; ++i) {
        number = number << 8U | begin[i];
    }
    value = {false, static_cast<qint64>(number), {}};
    return true;
}
