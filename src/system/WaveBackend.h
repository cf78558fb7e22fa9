#pragma once

#include <QString>
#include <functional>
#include <memory>

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
