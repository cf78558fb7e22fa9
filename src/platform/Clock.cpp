#include "platform/Clock.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <ctime>
#endif

namespace
{

Moment momentOf(int year, int month, int day, int hour, int minute, int second)
{
    const std::chrono::year_month_day date(std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
    return makeMoment(date, std::chrono::seconds(hour * 3600 + minute * 60 + second));
}

} // namespace

Moment SystemClock::now() const
{
#ifdef Q_OS_WIN
    SYSTEMTIME local;
    GetLocalTime(&local);
    return momentOf(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond);
#else
    // localtime_r alone may go on with the zone that was in force when the program started.
    tzset();
    const std::time_t utc = std::time(nullptr);
    std::tm local{};
    localtime_r(&utc, &local);
    return momentOf(
        local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
#endif
}
