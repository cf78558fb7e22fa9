#include "exchange/ContentLine.h"

#include <algorithm>

namespace
{

constexpr std::size_t LongestFolded = 75;

char upper(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool isControl(char letter)
{
    return (static_cast<unsigned char>(letter) < 0x20 && letter != '\t') || letter == '\x7F';
}

/// The place of the first of `letters` outside of quotes, from `begin` on; the size when there is none.
std::size_t findUnquoted(std::string_view text, std::string_view letters, std::size_t begin)
{
    bool isQuoted = false;
    for (std::size_t i = begin; i < text.size(); ++i) {
        if (text[i] == '"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && letters.find(text[i]) != std::string_view::npos) {
            return i;
        }
    }
    return text.size();
}

/// Reads one value up to a comma that separates it from the next one, or to the end.
std::string nextUnescaped(std::string_view value, std::size_t& place, bool isList)
{
    std::string text;
    for (; place < value.size() && (!isList || value[place] != ','); ++place) {
        const char letter = value[place];
        const char next = place + 1 < value.size() ? value[place + 1] : '\0';
        if (letter != '\\' || (next != 'n' && next != 'N' && next != ',' && next != ';' && next != '\\')) {
            text += letter;
            continue;
        }
        text += next == 'n' || next == 'N' ? '\n' : next;
        ++place;
    }
    return text;
}

} // namespace

std::optional<ContentLine> ContentLine::of(std::string_view text)
{
    const std::size_t nameEnd = std::min(text.find_first_of(";:"), text.size());
    std::size_t colon = findUnquoted(text, ":", nameEnd);
    if (colon == text.size()) {
        // A quote that nobody closes.
        colon = std::min(text.find(':', nameEnd), text.size());
    }
    if (nameEnd == 0 || colon == text.size()) {
        return std::nullopt;
    }
    return ContentLine{
        text, text.substr(0, nameEnd), text.substr(nameEnd, colon - nameEnd), text.substr(colon + 1)};
}

bool ContentLine::is(std::string_view expected) const
{
    return equalsIgnoringCase(name, expected);
}

std::optional<std::string_view> ContentLine::parameter(std::string_view wanted) const
{
    for (std::size_t begin = 0; begin < parameters.size();) {
        const std::size_t end = findUnquoted(parameters, ";", begin + 1);
        const std::string_view one = parameters.substr(begin + 1, end - begin - 1);
        const std::size_t equals = one.find('=');
        if (equals != std::string_view::npos && equalsIgnoringCase(one.substr(0, equals), wanted)) {
            std::string_view found = one.substr(equals + 1);
            if (found.size() >= 2 && found.front() == '"' && found.back() == '"') {
                found = found.substr(1, found.size() - 2);
            }
            return found;
        }
        begin = end;
    }
    return std::nullopt;
}

bool equalsIgnoringCase(std::string_view left, std::string_view right)
{
    return left.size() == right.size()
        && std::equal(left.begin(), left.end(), right.begin(),
            [](char one, char other) { return upper(one) == upper(other); });
}

std::string unescaped(std::string_view value)
{
    std::size_t place = 0;
    return nextUnescaped(value, place, false);
}

std::vector<std::string> unescapedList(std::string_view value)
{
    std::vector<std::string> texts;
    for (std::size_t place = 0; place <= value.size(); ++place) {
        texts.push_back(nextUnescaped(value, place, true));
    }
    return texts;
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

bool isSayable(std::string_view text)
{
    return !isBlank(text) && std::none_of(text.begin(), text.end(), [](char letter) {
        return isControl(letter) && letter != '\n';
    });
}

std::string escaped(std::string_view text)
{
    std::string value;
    value.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char letter = text[i];
        if (letter == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        }
        if (letter == '\n' || letter == '\r') {
            value += "\\n";
        } else if (letter == '\\' || letter == ',' || letter == ';') {
            value += '\\';
            value += letter;
        } else {
            value += isControl(letter) ? ' ' : letter;
        }
    }
    return value;
}

void appendFolded(std::string& out, std::string_view line)
{
    std::size_t room = LongestFolded;
    while (line.size() > room) {
        std::size_t part = room;
        while (part > 1 && (static_cast<unsigned char>(line[part]) & 0xC0U) == 0x80U) {
            --part;
        }
        out.append(line.substr(0, part)).append("\r\n ");
        line.remove_prefix(part);
        room = LongestFolded - 1;
    }
    out.append(line).append("\r\n");
}
