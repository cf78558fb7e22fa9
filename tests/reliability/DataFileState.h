#pragma once

#include <string>

/// All rows of the data file in `folder` as a text, read with the plain engine after it has taken back what
/// an unfinished operation left. Throws std::runtime_error when the file is missing or damaged.
std::string dataFileState(const std::string& folder, const std::string& name = "data.dat");
