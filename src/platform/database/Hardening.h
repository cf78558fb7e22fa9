#pragma once

#include <string>
#include <string_view>

class QString;
struct sqlite3;

/// Opens an existing file for reading and writing, as sqlite3_open_v2 does, and answers its result code: also
/// after a failure there can be a handle that wants to be closed. The engine keeps no count of its memory,
/// which costs a lock for each piece; whoever uses the engine before and without this leaves it counting.
int openDatabase(const QString& file, sqlite3*& database);

/// Switches off what the program has no need for on this connection: whatever a data file could bring along
/// to act by itself (triggers, views, foreign keys, tables that code answers for), writing into the engine's
/// own tables, loading of code, and sizes beyond all use. Answers the engine's result code.
int hardenConnection(sqlite3* database);

/// Whether the table has a constraint that lets it drop or skip records by itself when two are alike.
/// `failure` is set to the engine's result code when it cannot be told.
bool mayDropRecords(sqlite3* database, const std::string& table, int& failure);

/// Whether the pragma of that name only tells something, for checking a file before it is taken over.
/// `argument` is null for none.
bool isReadingPragma(std::string_view name, const char* argument);
