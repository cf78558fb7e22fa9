#pragma once

#include <QString>

struct DatabaseEngine;

/// What has become different since a copy of the data file was made.
struct CopyDifference {
    int tasks = 0; ///< in the copy
    int added = 0; ///< tasks that only the data file has
    int changed =
        0; ///< tasks of one id with other values or rules; whether a reminder has sounded does not count
    int gone = 0; ///< tasks that only the copy has
    bool hasOtherCategories = false;
    /// Why the copy cannot be restored, as a sentence; the rest means nothing then. Empty when nothing speaks
    /// against it; a restore checks more.
    QString unusable;
};

/// Compares the data file of `engine` with `copy`, a file that nobody changes meanwhile. Only reads, and
/// tells the listener nothing. Throws DatabaseError when the data file cannot be read.
CopyDifference differenceFromNow(const DatabaseEngine& engine, const QString& copy);
