#pragma once

#include <QtGlobal>

struct DatabaseEngine;

/// Makes sure that `data.dat` in the folder of `engine` can serve as the program's data file: it is sound and
/// holds the program's tables, every record is one that the program can read, and it takes new records as the
/// program writes them. Changes nothing in it. How many tasks it holds. Throws RuntimeError that says what is
/// wrong.
qint64 requireServiceableDataFile(const DatabaseEngine& engine);
