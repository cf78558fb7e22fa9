#pragma once

#include "system/Clock.h"

#include <QHash>
#include <QtGlobal>
#include <chrono>

/// Clocks are set in a time zone.
struct ClockChange {
    std::chrono::sys_seconds instant;
    std::chrono::minutes by; ///< negative when they are put back

    /// What they would show then if they were not set.
    Moment unset() const { return localMoment(instant - std::chrono::seconds(1)) + std::chrono::seconds(1); }
    /// Whether this process lives in a zone in which it is so.
    bool isReal() const { return localMoment(instant) - unset() == by; }
};

/// When the clocks of the zone of this process are put forward.
inline ClockChange forwardInThisZone()
{
    using namespace std::chrono;
    const QHash<QByteArray, ClockChange> changes{
        {"Europe/London", {sys_days(2026y / 3 / 29) + 1h, 60min}},
        {"Europe/Berlin", {sys_days(2026y / 3 / 29) + 1h, 60min}},
        {"America/New_York", {sys_days(2026y / 3 / 8) + 7h, 60min}},
        {"Australia/Lord_Howe", {sys_days(2026y / 10 / 3) + 15h + 30min, 30min}},
        // There was no 30 December that year.
        {"Pacific/Apia", {sys_days(2011y / 12 / 30) + 10h, 24h}},
        // No change here: an ordinary night.
        {"UTC", {sys_days(2026y / 3 / 29) + 1h, 0min}},
    };
    return changes.value(qgetenv("TZ"));
}

/// When they are put back.
inline ClockChange backInThisZone()
{
    using namespace std::chrono;
    const QHash<QByteArray, ClockChange> changes{
        {"Europe/London", {sys_days(2026y / 10 / 25) + 1h, -60min}},
        {"Europe/Berlin", {sys_days(2026y / 10 / 25) + 1h, -60min}},
        {"America/New_York", {sys_days(2026y / 11 / 1) + 6h, -60min}},
        {"Australia/Lord_Howe", {sys_days(2026y / 4 / 4) + 15h, -30min}},
        {"Pacific/Apia", {sys_days(2012y / 3 / 31) + 14h, -60min}},
        {"UTC", {sys_days(2026y / 10 / 25) + 1h, 0min}},
    };
    return changes.value(qgetenv("TZ"));
}
