#pragma once

#include <QString>
#include <chrono>
#include <optional>

/// The playing time of a wave file, from its header. None for a file that is not to be played: missing,
/// compressed, broken, empty, or larger than 64 MiB (it would be read into memory as a whole).
std::optional<std::chrono::milliseconds> waveLength(const QString& file);
