#include "system/Clock.h"

#include "system/windows/Api.h"

Moment localMoment(std::chrono::sys_seconds instant)
{
    constexpr qint64 SecondsFrom1601 = 11'644'473'600;
    constexpr qint64 TicksPerSecond = 10'000'000;
    const auto ticks =
        static_cast<quint64>((instant.time_since_epoch().count() + SecondsFrom1601) * TicksPerSecond);
    const FILETIME fileTime{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    SYSTEMTIME utc{};
    SYSTEMTIME local{};
    FileTimeToSystemTime(&fileTime, &utc);
    // By the rules of that year: those of summer time have changed in many countries. (Not by
    // SystemTimeToTzSpecificLocalTimeEx(), which Wine 8 lacks.)
    TIME_ZONE_INFORMATION zone{};
    GetTimeZoneInformationForYear(utc.wYear, nullptr, &zone);
    SystemTimeToTzSpecificLocalTime(&zone, &utc, &local);
    return makeMoment(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond);
}
