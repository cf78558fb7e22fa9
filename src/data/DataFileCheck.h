#pragma once

#include <QtGlobal>

struct DatabaseEngine;

/// Checks that `data.dat` in the folder of `engine` can serve as the data file: it has no later version, is
/// sound, has the program's tables, every record can be read and new records can be written. Changes nothing
/// in it. Returns the number of tasks. Throws RuntimeError that says what is wrong.
qint64 requireServiceableDataFile(const DatabaseEngine& engine);
