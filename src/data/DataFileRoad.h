#pragma once

#include "system/RuntimeError.h"

class Connection;
struct DatabaseEngine;

/// The version (`user_version`) of the data file that schema.sql creates.
inline constexpr int DataFileVersion = 4;
/// The first with the table of origins, and with that of repeats.
inline constexpr int VersionWithOrigins = 3;
inline constexpr int VersionWithRepeats = 4;

/// The data file has a later version than this program supports.
class LaterDataFileError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};

// The upgrade of data files of earlier versions. Its statements are not the program's own: neither the
// listener of `engine` nor its keeper of copies is told, but Repeating is told whether anything repeats. All
// functions throw DatabaseError.

/// The version of the file that is open. Throws LaterDataFileError, too.
int knownVersion(Connection& connection);
/// Whether the file that is open has the table, which one of an earlier version may lack.
bool hasTable(Connection& connection, const char* name);
/// Throws LaterDataFileError, too.
void refuseLaterDataFile(const DatabaseEngine& engine);
/// Whether a task of the data file may repeat, which other processes may have changed.
bool somethingRepeats(const DatabaseEngine& engine);
/// Whether the data file has an earlier version or its tasks need new ids. Throws LaterDataFileError, too,
/// and DatabaseError when it does but is damaged or cannot be written.
bool isDataFileBehind(const DatabaseEngine& engine);
/// Upgrades the data file in one transaction. Ids of tasks read before can mean other tasks afterwards. After
/// an error the file is unchanged.
void bringDataFileUp(const DatabaseEngine& engine);
