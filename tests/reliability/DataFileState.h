#pragma once

#include <string>

/// All rows of the data file in `folder` as a text, read by plain SQLite after it has rolled back an
/// unfinished operation. Throws std::runtime_error when the file is missing or damaged.
std::string dataFileState(const std::string& folder, const std::string& name = "data.dat");
