#pragma once

#include "support/Bench.h"
#include "system/Progress.h"

#include <QTimer>
#include <algorithm>

/// The longest time between two calls of `advance` of an operation, when no event is handled; or between
/// two rounds of the event loop, if that is watched.
class LongestStep final : public Progress
{
public:
    void watchEvents()
    {
        QObject::connect(&m_rounds, &QTimer::timeout, &m_rounds, [this] { advance(0, 0); });
        m_rounds.start(0);
    }
    void advance(qint64 /*done*/, qint64 /*total*/) override
    {
        const double now = cpuSeconds();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }

    /// In CPU time; valid when the operation has ended, which began with this object.
    double milliseconds()
    {
        advance(0, 0);
        return m_longest * 1000;
    }

private:
    QTimer m_rounds;
    double m_last = cpuSeconds();
    double m_longest = 0;
};
