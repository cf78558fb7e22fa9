#pragma once

#include <string_view>

struct sqlite3;

/// Compares two UTF-8 texts without regard to letter case, in every alphabet (simple case folding, code point
/// order): negative, 0 or positive. A total order for whatever bytes; allocates nothing.
int compareIgnoringCase(std::string_view left, std::string_view right);

/// Is told now and then while texts are compared: a long sort is one single step for the engine.
struct ComparisonWatch {
    void (*tell)(void* whom);
    void* whom;
    unsigned compared = 0;
};

/// Replaces the collation NOCASE of this connection, which folds A to Z alone, by `compareIgnoringCase`.
/// `watch` is not owned and outlives the connection. Answers the engine's result code.
int installUnicodeNoCase(sqlite3* database, ComparisonWatch& watch);
