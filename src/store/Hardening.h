#pragma once

#include <string>
#include <string_view>

class QString;
struct sqlite3;

/// Opens an existing file for reading and writing as sqlite3_open_v2 does and returns its result code; even
/// after a failure there may be a handle to close. Switches SQLite's memory statistics off, which cost a
/// lock for each allocation, unless SQLite was used before.
/// An immutable file is opened for reading only, without a look at what lies beside it (see DatabaseEngine).
int openDatabase(const QString& file, sqlite3*& database, bool isImmutable = false);

/// Switches off what the program does not need on this connection: whatever a data file could bring along
/// that acts by itself (triggers, views, foreign keys, virtual tables), writing to SQLite's own tables,
/// loading of extensions, and excessive sizes. Returns SQLite's result code.
int hardenConnection(sqlite3* database);

/// Lets a commit end with emptying the journal, which is brought to the disk, instead of removing it: for
/// systems that cannot bring the removal of a file to the disk. A file in write-ahead mode stays in it.
/// Returns SQLite's result code.
int emptyJournals(sqlite3* database);

/// Whether the table has a constraint that lets SQLite drop or skip duplicate records by itself. `failure`
/// is SQLite's result code when that cannot be told.
bool mayDropRecords(sqlite3* database, const std::string& table, int& failure);

/// Whether that pragma only reads, for checking a file before a restore. `argument` is null for none.
bool isReadingPragma(std::string_view name, const char* argument);
