#include "system/Clock.h"

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

Moment localMoment(std::chrono::sys_seconds instant)
{
    const auto sinceEpoch = instant.time_since_epoch().count();
#ifdef Q_OS_WIN
    constexpr qint64 SecondsFrom1601 = 11'644'473'600;
    constexpr qint64 TicksPerSecond = 10'000'000;
    const auto ticks = static_cast<quint64>((sinceEpoch + SecondsFrom1601) * TicksPerSecond);
    const FILETIME fileTime{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME utc;
    SYSTEMTIME local;
    FileTimeToSystemTime(&fileTime, &utc);
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    return momentOf(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond);
#else
    // localtime_r alone may keep using the time zone that was in force when the program started.
    tzset();
    const auto utc = static_cast<std::time_t>(sinceEpoch);
    std::tm local{};
    localtime_r(&utc, &local);
    return momentOf(
        local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
#endif
}

Moment SystemClock::now() const
{
    return localMoment(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
}
