#pragma once

#include "system/Moment.h"

/// The one source of the current time. Whatever needs the time is given a Clock; tests pass one that they
/// step.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;

    /// The current local date and time, to the second, in the time zone in force at the call.
    virtual Moment now() const = 0;
};

/// The local date and time of an instant, in the time zone in force at the call.
Moment localMoment(std::chrono::sys_seconds instant);

/// A clock that stands.
class FixedClock final : public Clock
{
public:
    explicit FixedClock(Moment moment) : m_moment(moment) { }
    Moment now() const override { return m_moment; }

private:
    Moment m_moment;
};

/// The machine's clock.
class SystemClock final : public Clock
{
public:
    Moment now() const override;
};
