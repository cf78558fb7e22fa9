#pragma once

#include "system/Progress.h"

/// Cancels an operation: at once, or at the first step of unknown length.
class CancellingProgress final : public Progress
{
public:
    enum class At { FirstStep, UnknownLength };

    explicit CancellingProgress(At at) : m_at(at) { }
    void advance(qint64 done, qint64 total) override
    {
        lastDone = done;
        if (m_at == At::FirstStep || total == 0) {
            throw Cancelled();
        }
    }

    qint64 lastDone = 0;

private:
    At m_at;
};
