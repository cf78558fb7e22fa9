#pragma once

#include "system/HelperProcess.h"
#include "system/WaveBackend.h"

#include <QTimer>

/// Plays waves in a separate process, which runs only while something sounds. Sound libraries abort or hang
/// without their server; that ends a sound and nothing else. A file that is no wave is never passed on.
class SoundProcess final : public WaveBackend
{
public:
    /// `program` answers the path of the player's executable.
    explicit SoundProcess(const ProgramPath& program);

    void play(const QString& file) override;
    void stopAll() override;

private:
    void finish();

    HelperProcess m_player;
    qsizetype m_sounding = 0;
    /// Without a sound server a sound never ends: fires when the last one should have ended long ago.
    QTimer m_overdue;
};
