#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Folds texts so that a search finds what a reader takes for the same word: without regard to case, accents,
/// points, and width or shape of letters, in every script. It goes character by character, so the folding of
/// a text is that of its parts in a row. Not thread-safe.
///
/// A syllable of Hangul becomes the letters of its keys: one that is still being typed is the beginning of
/// what it becomes.
class TextFolding
{
public:
    TextFolding();

    /// Appends the folding of `utf8`, which may be malformed. A folding is for comparing bytes only.
    void append(std::string_view utf8, std::string& folded);
    /// The folding of one character, empty for an accent; valid until the next call.
    std::string_view of(char32_t character);

private:
    /// Most foldings stand in their entry: their bytes, and how many.
    struct Entry {
        static constexpr std::uint8_t Unknown = 0xFF;
        static constexpr std::uint8_t Long = 0xFE; ///< the bytes are the place in m_long

        std::array<char, 15> bytes{};
        std::uint8_t size = Unknown;
    };
    static constexpr std::size_t BlockSize = 256;
    using Block = std::array<Entry, BlockSize>;

    const Entry& entry(char32_t character)
    {
        const std::unique_ptr<Block>& block = m_blocks[character / BlockSize];
        if (block == nullptr || (*block)[character % BlockSize].size == Entry::Unknown) {
            makeEntry(character);
        }
        return (*block)[character % BlockSize];
    }
    void makeEntry(char32_t character);
    std::string_view longFolding(const Entry& entry) const;

    std::vector<std::unique_ptr<Block>> m_blocks; ///< by the upper bits of a character
    std::vector<std::string> m_long;
};
