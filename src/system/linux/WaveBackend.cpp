#include "system/WaveBackend.h"

#include "system/Modules.h"
#include "system/sound/SoundProcess.h"

std::unique_ptr<WaveBackend> makeWaveBackend(const Modules& modules)
{
    return std::make_unique<SoundProcess>(
        [&modules] { return modules.program(QLatin1String(SoundProgram)); });
}
