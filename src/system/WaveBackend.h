#pragma once

#include <QString>
#include <functional>
#include <memory>

class Modules;

/// The helper program that plays sounds where a sound library is not to be loaded into this one.
inline constexpr char SoundProgram[] = "ambertask_sound";

/// Plays wave files. Interface thread only.
class WaveBackend
{
public:
    WaveBackend() = default;
    virtual ~WaveBackend() = default;
    WaveBackend(const WaveBackend&) = delete;
    WaveBackend& operator=(const WaveBackend&) = delete;

    /// Starts playing at once; sounds may overlap. A file that cannot be played is skipped silently.
    virtual void play(const QString& file) = 0;
    virtual void stopAll() = 0;
    /// Called when the last playing sound has ended by itself.
    std::function<void()> onDone;
};

/// Makes the backend; null where sounds cannot be played.
using WaveBackendFactory = std::function<std::unique_ptr<WaveBackend>()>;

/// Plays waves on this machine; silent where what plays them is missing. `modules` outlives it.
std::unique_ptr<WaveBackend> makeWaveBackend(const Modules& modules);
