#pragma once

#include "data/RuleParts.h"

#include <vector>

/// Goes through the days that a rule names, period by period: days, weeks, months or years, each with all of
/// its days at once, as positions count in the whole period. Ends of the series are not looked at.
class RepeatSeries
{
public:
    /// Stands before the first moment that is later than `after`, which is not earlier than `first`.
    RepeatSeries(const RuleParts& parts, Moment first, Moment after);

    /// The next moment; none when there is no further one up to the year 9999.
    std::optional<Moment> next();

    /// Whether the years of the program hold the moment.
    static bool canBegin(Moment first);

private:
    using Day = std::chrono::local_days;

    struct Period {
        Day begin;
        Day end; ///< the day after it
    };

    void completeFrom(std::chrono::year_month_day first);
    Period period(std::int64_t number) const;
    std::int64_t periodsUpTo(Day day) const;
    void collect(const Period& period);
    void keepPositions();
    bool has(Day day, std::chrono::year_month_day date) const;
    bool hasWeekday(Day day, std::chrono::year_month_day date) const;
    bool hasWeekNumber(Day day) const;
    int placeInWeek(Day day) const;

    RuleParts m_parts;
    bool m_namesWeekdays;
    Day m_first;
    std::chrono::seconds m_timeOfDay;
    Moment m_after;
    std::int64_t m_number = 0; ///< of the next period, the one of the first moment being 0
    std::vector<Day> m_days; ///< of the period at hand
    std::size_t m_place = 0; ///< in `m_days`
};
