#pragma once

#include "system/Moment.h"

#include <bitset>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// A rule of repetition as people choose one. Rules of other programs can say more.
struct RepeatPattern {
    enum class Unit { Days, Weeks, Months, Years };
    /// Which day of a month or year, as seen from the first moment.
    enum class MonthDay {
        SameDay, ///< the 31st is the last day of a shorter month
        LastDay,
        NthWeekday ///< "the second Tuesday"; the fifth one is the last
    };

    Unit unit = Unit::Weeks;
    int every = 1; ///< from 1 to MostEvery
    std::bitset<7> weekdays{}; ///< of weeks, Monday first; none for that of the first moment
    int weekStart = 0; ///< with which day weeks begin, Monday 0: decides which of them are left out
    MonthDay monthDay = MonthDay::SameDay; ///< of months; years have the same day
    // At most one of them:
    std::optional<std::chrono::year_month_day> until{}; ///< the last day
    std::optional<int> times{}; ///< from 1 on

    static constexpr int MostEvery = 999;
    static constexpr int MostTimes = 9'999;

    bool operator==(const RepeatPattern&) const = default;
};

/// Whether weeks that begin with that day have these weekdays together as weeks from Monday on do.
bool isAsFromMonday(int weekStart, std::bitset<7> weekdays);

/// The pattern as the value of an RRULE.
std::string ruleOf(const RepeatPattern& pattern, Moment first);
/// The pattern that a rule says; none when it says something else.
std::optional<RepeatPattern> patternOf(std::string_view rule, Moment first);
