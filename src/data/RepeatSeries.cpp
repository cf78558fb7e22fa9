#include "data/RepeatSeries.h"

#include <algorithm>

namespace
{

using namespace std::chrono;

constexpr int DaysOfAWeek = 7;
constexpr int MonthsOfAYear = 12;
constexpr local_days FirstDay = local_days(year(0) / January / 1);
constexpr local_days LastDay = local_days(year(9999) / December / 31);

/// In how many periods the calendar repeats: after 400 years, which are whole weeks. Steps of any length meet
/// each place of it within as many steps, so a rule that has named nothing by then never does.
std::int64_t cycleOf(RuleParts::Frequency frequency)
{
    switch (frequency) {
    case RuleParts::Frequency::Daily:
        return 146'097;
    case RuleParts::Frequency::Weekly:
        return 20'871;
    case RuleParts::Frequency::Monthly:
        return 4'800;
    case RuleParts::Frequency::Yearly:
        break;
    }
    return 400;
}

local_days firstOfYear(year year)
{
    return local_days(year / January / 1);
}

/// Which one of its kind a day is, and which one from the end (negative), when it is `offset` days into a
/// time of `length` days and there is one each `step` days.
bool hasEither(const auto& numbers, std::int64_t offset, std::int64_t length, int step)
{
    return numbers.has(static_cast<int>(offset / step) + 1)
        || numbers.has(-static_cast<int>((length - 1 - offset) / step) - 1);
}

} // namespace

RepeatSeries::RepeatSeries(const RuleParts& parts, Moment first, Moment after)
    : m_parts(parts), m_first(floor<days>(first)), m_timeOfDay(timeOfDayOf(first)), m_after(after)
{
    completeFrom(dayOf(first));
    m_namesWeekdays = m_parts.namesWeekdays();
    m_number = after > LastDay + days(1) ? periodsUpTo(LastDay) : periodsUpTo(floor<days>(after));
}

bool RepeatSeries::canBegin(Moment first)
{
    return first >= FirstDay && first < LastDay + days(1);
}

/// What a rule leaves open is as on the first day.
void RepeatSeries::completeFrom(year_month_day first)
{
    const bool namesDays =
        m_parts.namesWeekdays() || !m_parts.monthDays.isEmpty() || !m_parts.yearDays.isEmpty();
    const bool isYearly = m_parts.frequency == RuleParts::Frequency::Yearly;
    if (namesDays || m_parts.frequency == RuleParts::Frequency::Daily) {
        return;
    }
    if (m_parts.frequency == RuleParts::Frequency::Weekly || !m_parts.weekNumbers.isEmpty()) {
        const unsigned weekday = std::chrono::weekday(m_first).iso_encoding() - 1;
        m_parts.weekdays.at(weekday).add(0);
        return;
    }
    m_parts.monthDays.add(static_cast<int>(static_cast<unsigned>(first.day())));
    if (isYearly && m_parts.months.none()) {
        m_parts.months.set(static_cast<unsigned>(first.month()));
    }
}

std::optional<Moment> RepeatSeries::next()
{
    for (std::int64_t empty = 0; m_place == m_days.size(); ++empty) {
        const Period current = period(m_number++);
        if (empty > cycleOf(*m_parts.frequency) || current.begin > LastDay) {
            return std::nullopt;
        }
        collect(current);
    }
    return m_days[m_place++] + m_timeOfDay;
}

RepeatSeries::Period RepeatSeries::period(std::int64_t number) const
{
    // Beyond the last year, steps could be too long for a calendar.
    const std::int64_t step =
        std::min<std::int64_t>(number * m_parts.interval, (LastDay - FirstDay).count() + 1);
    const auto date = year_month_day(m_first);
    switch (*m_parts.frequency) {
    case RuleParts::Frequency::Daily: {
        const Day day = m_first + days(step);
        return {day, day + days(1)};
    }
    case RuleParts::Frequency::Weekly: {
        const Day begin = m_first - days(placeInWeek(m_first)) + days(step * DaysOfAWeek);
        return {begin, begin + days(DaysOfAWeek)};
    }
    case RuleParts::Frequency::Monthly: {
        const auto months = std::min<std::int64_t>(step, std::int64_t{10'000} * MonthsOfAYear);
        const auto begin = date.year() / date.month() + std::chrono::months(months);
        return {Day(begin / 1), Day((begin + std::chrono::months(1)) / 1)};
    }
    case RuleParts::Frequency::Yearly:
        break;
    }
    const auto begin = date.year() + years(std::min<std::int64_t>(step, 10'000));
    return {firstOfYear(begin), firstOfYear(begin + years(1))};
}

/// How many periods begin before that of the day, or with it.
std::int64_t RepeatSeries::periodsUpTo(Day day) const
{
    const year_month_day from(m_first);
    const year_month_day to(day);
    std::int64_t passed = 0;
    switch (*m_parts.frequency) {
    case RuleParts::Frequency::Daily:
        passed = (day - m_first).count();
        break;
    case RuleParts::Frequency::Weekly:
        passed = (day - (m_first - days(placeInWeek(m_first)))).count() / DaysOfAWeek;
        break;
    case RuleParts::Frequency::Monthly:
        passed = (to.year() / to.month() - from.year() / from.month()).count();
        break;
    case RuleParts::Frequency::Yearly:
        passed = (to.year() - from.year()).count();
        break;
    }
    return passed / m_parts.interval;
}

void RepeatSeries::collect(const Period& period)
{
    m_days.clear();
    m_place = 0;
    for (Day day = period.begin; day < period.end;) {
        const year_month_day date(day);
        if (m_parts.months.any() && !m_parts.months[static_cast<unsigned>(date.month())]) {
            day = Day((date.year() / date.month() + months(1)) / 1);
            continue;
        }
        if (has(day, date)) {
            m_days.push_back(day);
        }
        day += days(1);
    }
    if (!m_parts.positions.isEmpty()) {
        keepPositions();
    }
    std::erase_if(m_days, [this](Day day) { return day + m_timeOfDay <= m_after || day > LastDay; });
}

void RepeatSeries::keepPositions()
{
    const auto size = static_cast<std::int64_t>(m_days.size());
    std::vector<Day> kept;
    for (std::int64_t i = 0; i < size; ++i) {
        if (hasEither(m_parts.positions, i, size, 1)) {
            kept.push_back(m_days[static_cast<std::size_t>(i)]);
        }
    }
    m_days.swap(kept);
}

/// Whether the rule names the day, whose month it does.
bool RepeatSeries::has(Day day, year_month_day date) const
{
    if (!m_parts.monthDays.isEmpty()) {
        const auto length = static_cast<unsigned>((date.year() / date.month() / last).day());
        if (!hasEither(m_parts.monthDays, static_cast<unsigned>(date.day()) - 1, length, 1)) {
            return false;
        }
    }
    if (!m_parts.yearDays.isEmpty()) {
        const Day begin = firstOfYear(date.year());
        const Day end = firstOfYear(date.year() + years(1));
        if (!hasEither(m_parts.yearDays, (day - begin).count(), (end - begin).count(), 1)) {
            return false;
        }
    }
    return (!m_namesWeekdays || hasWeekday(day, date))
        && (m_parts.weekNumbers.isEmpty() || hasWeekNumber(day));
}

bool RepeatSeries::hasWeekday(Day day, year_month_day date) const
{
    const auto& which = m_parts.weekdays[weekday(day).iso_encoding() - 1];
    if (which.isEmpty() || which.has(0)) {
        return !which.isEmpty();
    }
    // Numbers count in the year where a yearly rule names no month.
    if (m_parts.frequency == RuleParts::Frequency::Yearly && m_parts.months.none()) {
        const Day begin = firstOfYear(date.year());
        const Day end = firstOfYear(date.year() + years(1));
        return hasEither(which, (day - begin).count(), (end - begin).count(), DaysOfAWeek);
    }
    const auto length = static_cast<unsigned>((date.year() / date.month() / last).day());
    return hasEither(which, static_cast<unsigned>(date.day()) - 1, length, DaysOfAWeek);
}

/// A week belongs to the year of its fourth day, as in ISO 8601.
bool RepeatSeries::hasWeekNumber(Day day) const
{
    const Day fourth = day - days(placeInWeek(day)) + days(3);
    const year year = year_month_day(fourth).year();
    const Day begin = firstOfYear(year);
    const Day end = firstOfYear(year + years(1));
    return hasEither(m_parts.weekNumbers, (fourth - begin).count(), (end - begin).count(), DaysOfAWeek);
}

int RepeatSeries::placeInWeek(Day day) const
{
    const int weekdayNumber = static_cast<int>(weekday(day).iso_encoding()) - 1;
    return (weekdayNumber - m_parts.weekStart + DaysOfAWeek) % DaysOfAWeek;
}
