#include "TemporaryFile.h"
#include "system/sound/WaveFile.h"

#include <cstdint>

// Any bytes as a wave: no length, or one that its bytes can fill.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFile file(QStringLiteral("a.wav"));
    file.write(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const auto length = waveLength(file.path());
    require(!length || (length->count() >= 0 && *length <= std::chrono::seconds(size)),
        "a wave is no longer than its bytes");
    return 0;
}
