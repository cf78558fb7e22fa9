#pragma once

#include <QString>
#include <chrono>
#include <optional>

/// How long a wave file plays, from its header. None for what is not to be played: no file, no wave of plain
/// samples, a broken header, nothing in it, or more than 64 MiB (it would be read into memory as a whole).
std::optional<std::chrono::milliseconds> waveLength(const QString& file);
