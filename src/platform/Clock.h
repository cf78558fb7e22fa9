#pragma once

#include "platform/Moment.h"

/// The one source of the current time. Everything that asks for the time is given a Clock; tests give a
/// stepped one.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;

    /// The current local date and time, to the second, in the time zone that is in force at the call.
    virtual Moment now() const = 0;
};

/// The local date and time of an instant, in the time zone that is in force at the call.
Moment localMoment(std::chrono::sys_seconds instant);

/// The machine's clock.
class SystemClock final : public Clock
{
public:
    Moment now() const override;
};
