#include "system/Clock.h"

Moment SystemClock::now() const
{
    return localMoment(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
}
