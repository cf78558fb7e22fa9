#pragma once

#include <string>
#include <string_view>

/// Translates a statement of the program's dialect for SQLite. A date literal `#month/day/year
/// hours:minutes#` or `#month/day/year#` outside of strings, quoted or bracketed names and comments becomes
/// its stored form between single quotes ('2007-01-31 23:59:00'); every other byte stays as it is. UTF-8
/// in, UTF-8 out. Throws DatabaseError (Statement) for a malformed or unclosed literal, which it names, and
/// for a zero character.
std::string translateDialect(std::string_view statement);

/// Whether anything but white space and comments stands in the text.
bool holdsStatement(std::string_view text);
