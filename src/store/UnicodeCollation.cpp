#include "store/UnicodeCollation.h"

#include <QChar>
#include <algorithm>
#include <sqlite3.h>

namespace
{

using Byte = unsigned char;

constexpr char32_t FirstOfMalformed = 0x110000;

Byte byteAt(std::string_view text, std::size_t position)
{
    return static_cast<Byte>(text[position]);
}

/// The code point at `position`, which is moved behind it. A byte that begins no valid sequence stands for
/// itself, above all code points, so that different texts never compare equal.
char32_t nextCodePoint(std::string_view text, std::size_t& position)
{
    const Byte first = byteAt(text, position++);
    if (first < 0x80) {
        return first;
    }
    const std::size_t more = first >= 0xF0 && first < 0xF5 ? 3
        : first >= 0xE0 && first < 0xF0                    ? 2
        : first >= 0xC2 && first < 0xE0                    ? 1
                                                           : 0;
    if (more == 0 || text.size() - position < more) {
        return FirstOfMalformed + first;
    }
    char32_t codePoint = first & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        const Byte next = byteAt(text, position + i);
        if ((next & 0xC0U) != 0x80U) {
            return FirstOfMalformed + first;
        }
        codePoint = codePoint << 6U | (next & 0x3FU);
    }
    const bool overlong = (more == 2 && codePoint < 0x800) || (more == 3 && codePoint < 0x10000);
    if (overlong || codePoint > QChar::LastValidCodePoint || QChar::isSurrogate(codePoint)) {
        return FirstOfMalformed + first;
    }
    position += more;
    return codePoint;
}

char32_t foldAscii(Byte character)
{
    return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
}

char32_t nextFolded(std::string_view text, std::size_t& position)
{
    const char32_t codePoint = nextCodePoint(text, position);
    return codePoint < FirstOfMalformed ? QChar::toCaseFolded(codePoint) : codePoint;
}

int compareColumn(void* /*context*/, int leftSize, const void* left, int rightSize, const void* right)
{
    return compareIgnoringCase({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

} // namespace

int compareIgnoringCase(std::string_view left, std::string_view right)
{
    std::size_t l = 0;
    std::size_t r = 0;
    while (l < left.size() && r < right.size()) {
        char32_t leftFolded = 0;
        char32_t rightFolded = 0;
        if ((byteAt(left, l) | byteAt(right, r)) < 0x80) {
            leftFolded = foldAscii(byteAt(left, l++));
            rightFolded = foldAscii(byteAt(right, r++));
        } else {
            leftFolded = nextFolded(left, l);
            rightFolded = nextFolded(right, r);
        }
        if (leftFolded != rightFolded) {
            return leftFolded < rightFolded ? -1 : 1;
        }
    }
    return static_cast<int>(l < left.size()) - static_cast<int>(r < right.size());
}

QString foldedBeginning(std::string_view text, std::size_t most)
{
    QString folded;
    folded.reserve(static_cast<qsizetype>(std::min(most, text.size())));
    std::size_t position = 0;
    for (std::size_t i = 0; i < most && position < text.size(); ++i) {
        const char32_t codePoint = nextFolded(text, position);
        if (codePoint >= FirstOfMalformed) {
            folded += QChar(QChar::ReplacementCharacter);
        } else {
            folded += QChar::fromUcs4(codePoint);
        }
    }
    return folded;
}

int installUnicodeNoCase(sqlite3* database)
{
    return sqlite3_create_collation_v2(database, "NOCASE", SQLITE_UTF8, nullptr, compareColumn, nullptr);
}
