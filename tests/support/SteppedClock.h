#pragma once

#include "system/Clock.h"

/// A clock that stands still until a test steps it.
class SteppedClock final : public Clock
{
public:
    explicit SteppedClock(Moment moment) : m_now(moment) { }
    Moment now() const override { return m_now; }
    void set(Moment moment) { m_now = moment; }
    void step(std::chrono::seconds by) { m_now += by; }

private:
    Moment m_now;
};
