#include "app/TextFolding.h"

#include <QList>
#include <QString>
#include <algorithm>
#include <cstring>

namespace
{

constexpr std::uint64_t EveryByte = 0x0101010101010101;

/// Letters with a stroke and joined letters, which Unicode does not take apart; the Turkish dotless i; the
/// German letter that toCaseFolded() of Qt 6.4.2 leaves as it is.
struct Relative {
    char32_t letter;
    const char* plain;
};
constexpr std::array Relatives{Relative{U'\u00df', "ss"}, Relative{U'\u00e6', "ae"}, Relative{U'\u00f8', "o"},
    Relative{U'\u0111', "d"}, Relative{U'\u0127', "h"}, Relative{U'\u0131', "i"}, Relative{U'\u0142', "l"},
    Relative{U'\u0153', "oe"}, Relative{U'\u0167', "t"}};

/// The keys of vowels and final consonants of Hangul that take several keys or, at the end of a syllable,
/// have a character of their own.
constexpr char32_t FirstFinal = 0x11A8;
constexpr std::array<const char16_t*, 27> Finals{u"\u1100", u"\u1101", u"\u1100\u1109", u"\u1102",
    u"\u1102\u110c", u"\u1102\u1112", u"\u1103", u"\u1105", u"\u1105\u1100", u"\u1105\u1106", u"\u1105\u1107",
    u"\u1105\u1109", u"\u1105\u1110", u"\u1105\u1111", u"\u1105\u1112", u"\u1106", u"\u1107", u"\u1107\u1109",
    u"\u1109", u"\u110a", u"\u110b", u"\u110c", u"\u110e", u"\u110f", u"\u1110", u"\u1111", u"\u1112"};
constexpr char32_t FirstVowel = 0x1161;
constexpr std::array<const char16_t*, 21> Vowels{nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
    nullptr, nullptr, nullptr, u"\u1169\u1161", u"\u1169\u1162", u"\u1169\u1175", nullptr, nullptr,
    u"\u116e\u1165", u"\u116e\u1166", u"\u116e\u1175", nullptr, nullptr, u"\u1173\u1175", nullptr};

const char16_t* keysOfHangul(char32_t letter)
{
    if (letter >= FirstFinal && letter < FirstFinal + Finals.size()) {
        return Finals[letter - FirstFinal];
    }
    return letter >= FirstVowel && letter < FirstVowel + Vowels.size() ? Vowels[letter - FirstVowel]
                                                                       : nullptr;
}

/// Signs that are not looked for. The vowel signs of Indian scripts, marks too, have no combining class.
bool isAccent(char32_t character)
{
    constexpr char32_t ArabicStretch = 0x0640;
    constexpr char32_t GraphemeJoiner = 0x034F;
    const QChar::Category category = QChar::category(character);
    return QChar::combiningClass(character) != 0 || category == QChar::Mark_Enclosing
        || category == QChar::Other_Format || character == ArabicStretch || character == GraphemeJoiner
        || (character >= 0xFE00 && character <= 0xFE0F) || (character >= 0xE0100 && character <= 0xE01EF);
}

using Group = std::uint64_t;
constexpr Group UpperBits = EveryByte * 0x80;

/// Folds eight ASCII letters, each a byte.
Group foldedGroup(Group letters)
{
    // The upper bit of each byte says "from A on" and "behind Z".
    const Group fromA = letters + EveryByte * (0x80 - 'A');
    const Group behindZ = letters + EveryByte * (0x80 - 'Z' - 1);
    return letters | (fromA & ~behindZ & UpperBits) >> 2U;
}

/// The character at `in`, which is moved behind it. A byte that begins no valid sequence counts as U+FFFD.
char32_t nextCharacter(const char*& in, const char* end)
{
    const auto byte = [&](std::ptrdiff_t index) {
        return static_cast<unsigned char>(in[index]);
    };
    const auto follows = [&](std::ptrdiff_t more) {
        for (std::ptrdiff_t i = 1; i <= more; ++i) {
            if (end - in <= i || (byte(i) & 0xC0U) != 0x80U) {
                return false;
            }
        }
        return true;
    };
    const std::uint32_t first = byte(0);
    char32_t character = QChar::ReplacementCharacter;
    std::ptrdiff_t size = 1;
    if (first < 0x80) {
        character = first;
    } else if (first >= 0xC2 && first < 0xE0 && follows(1)) {
        character = (first & 0x1FU) << 6U | (byte(1) & 0x3FU);
        size = 2;
    } else if (first >= 0xE0 && first < 0xF0 && follows(2)) {
        character = (first & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
        size = 3;
    } else if (first >= 0xF0 && first < 0xF5 && follows(3)) {
        character =
            (first & 0x07U) << 18U | (byte(1) & 0x3FU) << 12U | (byte(2) & 0x3FU) << 6U | (byte(3) & 0x3FU);
        size = 4;
    }
    in += size;
    return character <= QChar::LastValidCodePoint ? character : char32_t(QChar::ReplacementCharacter);
}

/// The keys of Hangul take two bytes that UTF-8 does not use, instead of three.
void appendKey(QByteArray& folding, char32_t key)
{
    constexpr char32_t FirstKey = 0x1100;
    constexpr char32_t LastKey = 0x117F;
    if (key < FirstKey || key > LastKey) {
        folding += QString::fromUcs4(&key, 1).toUtf8();
        return;
    }
    folding += static_cast<char>(0xC0U | (key - FirstKey) >> 6U);
    folding += static_cast<char>(0x80U | ((key - FirstKey) & 0x3FU));
}

QByteArray foldingOf(char32_t character)
{
    if (QChar::isSurrogate(character)) {
        return {};
    }
    QByteArray folding;
    for (const char32_t part :
        QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD).toUcs4()) {
        if (isAccent(part)) {
            continue;
        }
        if (const char16_t* keys = keysOfHangul(part)) {
            for (; *keys != 0; ++keys) {
                appendKey(folding, *keys);
            }
            continue;
        }
        if (QChar::category(part) == QChar::Number_DecimalDigit) {
            folding += static_cast<char>('0' + QChar::digitValue(part));
            continue;
        }
        for (const char32_t folded : QString::fromUcs4(&part, 1).toCaseFolded().toUcs4()) {
            const auto* relative = std::find_if(Relatives.begin(), Relatives.end(),
                [&](const Relative& one) { return one.letter == folded; });
            if (relative != Relatives.end()) {
                folding += relative->plain;
            } else {
                appendKey(folding, folded);
            }
        }
    }
    return folding;
}

} // namespace

TextFolding::TextFolding() : m_blocks(QChar::LastValidCodePoint / BlockSize + 1)
{
}

void TextFolding::makeEntry(char32_t character)
{
    std::unique_ptr<Block>& block = m_blocks[character / BlockSize];
    if (block == nullptr) {
        block = std::make_unique<Block>();
    }
    Entry& entry = (*block)[character % BlockSize];
    const QByteArray folding = foldingOf(character);
    const auto size = static_cast<std::size_t>(folding.size());
    if (size <= entry.bytes.size()) {
        std::memcpy(entry.bytes.data(), folding.constData(), size);
        entry.size = static_cast<std::uint8_t>(size);
    } else {
        const auto place = static_cast<std::uint32_t>(m_long.size());
        m_long.emplace_back(folding.constData(), size);
        std::memcpy(entry.bytes.data(), &place, sizeof place);
        entry.size = Entry::Long;
    }
}

std::string_view TextFolding::longFolding(const Entry& entry) const
{
    std::uint32_t place = 0;
    std::memcpy(&place, entry.bytes.data(), sizeof place);
    return m_long[place];
}

std::string_view TextFolding::of(char32_t character)
{
    const Entry& found = entry(character);
    return found.size == Entry::Long ? longFolding(found) : std::string_view(found.bytes.data(), found.size);
}

void TextFolding::append(std::string_view utf8, std::string& folded)
{
    std::array<char, 1024> chunk;
    char* out = chunk.data();
    char* const full = chunk.data() + chunk.size() - sizeof(Entry);
    const auto flush = [&] {
        folded.append(chunk.data(), out);
        out = chunk.data();
    };
    const char* const end = utf8.data() + utf8.size();
    for (const char* in = utf8.data(); in < end;) {
        if (out > full) {
            flush();
        }
        if (Group letters = 0; end - in >= static_cast<std::ptrdiff_t>(sizeof letters)) {
            std::memcpy(&letters, in, sizeof letters);
            if ((letters & UpperBits) == 0) {
                letters = foldedGroup(letters);
                std::memcpy(out, &letters, sizeof letters);
                in += sizeof letters;
                out += sizeof letters;
                continue;
            }
        }
        const Entry& next = entry(nextCharacter(in, end));
        if (next.size == Entry::Long) {
            flush();
            folded += longFolding(next);
        } else {
            std::memcpy(out, &next, sizeof next);
            out += next.size;
        }
    }
    flush();
}
