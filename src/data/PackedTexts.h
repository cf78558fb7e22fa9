#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

/// `Count` UTF-8 texts in one buffer, so that a record of a long list needs one allocation instead of one
/// for each field. Copyable; after a move all texts are empty.
template <std::size_t Count> class PackedTexts
{
public:
    PackedTexts() = default;
    PackedTexts(PackedTexts&&) noexcept = default;
    PackedTexts& operator=(PackedTexts&&) noexcept = default;
    ~PackedTexts() = default;
    PackedTexts(const PackedTexts& other) { assign(other.all()); }
    PackedTexts& operator=(const PackedTexts& other)
    {
        if (this != &other) {
            assign(other.all());
        }
        return *this;
    }

    std::string_view utf8(std::size_t index) const
    {
        if (m_buffer == nullptr) {
            return {};
        }
        const std::uint32_t begin = index == 0 ? 0 : m_buffer[index - 1];
        return {reinterpret_cast<const char*>(&m_buffer[Count]) + begin, m_buffer[index] - begin};
    }
    QString text(std::size_t index) const
    {
        const std::string_view value = utf8(index);
        return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
    }
    void set(std::size_t index, std::string_view value)
    {
        std::array<std::string_view, Count> values = all();
        values[index] = value;
        assign(values);
    }
    /// Replaces all texts with one allocation. `values` may refer to texts of this object.
    void assign(const std::array<std::string_view, Count>& values)
    {
        std::size_t size = 0;
        for (const std::string_view value : values) {
            size += value.size();
        }
        // The buffer holds the ends of the texts, then the texts.
        std::unique_ptr<std::uint32_t[]> buffer(new std::uint32_t[Count + (size + WordSize - 1) / WordSize]);
        char* texts = reinterpret_cast<char*>(&buffer[Count]);
        std::uint32_t end = 0;
        for (std::size_t i = 0; i < Count; ++i) {
            values[i].copy(texts + end, values[i].size());
            end += static_cast<std::uint32_t>(values[i].size());
            buffer[i] = end;
        }
        m_buffer = std::move(buffer);
    }

private:
    static constexpr std::size_t WordSize = sizeof(std::uint32_t);

    std::array<std::string_view, Count> all() const
    {
        std::array<std::string_view, Count> values;
        for (std::size_t i = 0; i < Count; ++i) {
            values[i] = utf8(i);
        }
        return values;
    }

    std::unique_ptr<std::uint32_t[]> m_buffer; ///< null when all texts are empty
};
