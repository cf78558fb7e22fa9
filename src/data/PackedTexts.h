#pragma once

#include <QString>
#include <array>
#include <string>
#include <string_view>

/// `Count` texts in one buffer: a record of a long list costs one allocation, not one a field. UTF-8 inside.
template <std::size_t Count> class PackedTexts
{
public:
    std::string_view utf8(std::size_t index) const
    {
        const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
        return std::string_view(m_buffer).substr(begin, m_ends[index] - begin);
    }
    QString text(std::size_t index) const
    {
        const std::string_view value = utf8(index);
        return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
    }
    void set(std::size_t index, std::string_view value)
    {
        const std::size_t begin = index == 0 ? 0 : m_ends[index - 1];
        const std::size_t oldSize = m_ends[index] - begin;
        m_buffer.replace(begin, oldSize, value);
        for (std::size_t i = index; i < Count; ++i) {
            m_ends[i] = static_cast<std::uint32_t>(m_ends[i] - oldSize + value.size());
        }
    }
    /// Replaces all texts at once, with one allocation.
    void assign(const std::array<std::string_view, Count>& values)
    {
        std::size_t size = 0;
        for (const std::string_view value : values) {
            size += value.size();
        }
        m_buffer.clear();
        m_buffer.reserve(size);
        for (std::size_t i = 0; i < Count; ++i) {
            m_buffer.append(values[i]);
            m_ends[i] = static_cast<std::uint32_t>(m_buffer.size());
        }
    }

private:
    std::string m_buffer;
    std::array<std::uint32_t, Count> m_ends{};
};
