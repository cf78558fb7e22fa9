#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A line of an iCalendar file, not folded: NAME;PARAMETER=value:value. Views into the text that it was made
/// of.
struct ContentLine {
    std::string_view text;
    std::string_view name; ///< in any letter case
    std::string_view parameters; ///< from the first semicolon to the colon
    std::string_view value;

    /// None when the text has no name or no colon.
    static std::optional<ContentLine> of(std::string_view text);
    bool is(std::string_view expected) const;
    /// The value of a parameter without its quotes; none when there is no such parameter.
    std::optional<std::string_view> parameter(std::string_view wanted) const;
};

bool equalsIgnoringCase(std::string_view left, std::string_view right);

/// What a value of the type TEXT says.
std::string unescaped(std::string_view value);
/// The same for a list of them: CATEGORIES.
std::vector<std::string> unescapedList(std::string_view value);

/// Whether there is nothing in the text but blanks and tabs: parsers take those for no value.
bool isBlank(std::string_view text);
/// Whether iCalendar can say the text as it is: it is not blank, and has no control characters but tabs and
/// line feeds.
bool isSayable(std::string_view text);
/// The text as a value of the type TEXT; control characters that iCalendar does not know become blanks.
std::string escaped(std::string_view text);

/// Appends the line, folded at 75 bytes between characters, to `out`.
void appendFolded(std::string& out, std::string_view line);
