#include "system/Clock.h"

#include <ctime>

Moment localMoment(std::chrono::sys_seconds instant)
{
    // localtime_r alone may keep using the time zone that was in force when the program started.
    tzset();
    const auto utc = static_cast<std::time_t>(instant.time_since_epoch().count());
    std::tm local{};
    localtime_r(&utc, &local);
    return makeMoment(
        local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}
