#pragma once

#include <QString>

/// Copies a file in chunks of a megabyte and flushes it to the disk. Throws std::runtime_error.
void plainCopy(const QString& source, const QString& target);
