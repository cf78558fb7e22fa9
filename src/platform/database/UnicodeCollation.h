#pragma once

#include <QString>
#include <string_view>

struct sqlite3;

/// Compares two UTF-8 texts without regard to letter case, in every alphabet (simple case folding, code point
/// order): negative, 0 or positive. A total order for whatever bytes; allocates nothing.
int compareIgnoringCase(std::string_view left, std::string_view right);
/// The first `most` characters of a UTF-8 text, folded as above; the same for texts that are equal above.
/// What is malformed has become U+FFFD.
QString foldedBeginning(std::string_view text, std::size_t most);

/// Replaces the collation NOCASE of this connection, which folds A to Z alone, by `compareIgnoringCase`.
/// Answers the engine's result code.
int installUnicodeNoCase(sqlite3* database);
