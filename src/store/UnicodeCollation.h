#pragma once

#include <QString>
#include <string_view>

struct sqlite3;

/// Compares two UTF-8 texts without regard to case in every alphabet (simple case folding, order of code
/// points): negative, 0 or positive. A total order of all byte sequences; allocates nothing.
int compareIgnoringCase(std::string_view left, std::string_view right);
/// The first `most` characters of a UTF-8 text, case-folded; the same for texts that compare equal above.
/// Malformed bytes become U+FFFD.
QString foldedBeginning(std::string_view text, std::size_t most);

/// Replaces NOCASE on this connection, which folds only A to Z, by `compareIgnoringCase`. Returns SQLite's
/// result code.
int installUnicodeNoCase(sqlite3* database);
