#include "data/RepeatPattern.h"

#include "data/RuleParts.h"

namespace
{

using std::chrono::days;
using Unit = RepeatPattern::Unit;
using MonthDay = RepeatPattern::MonthDay;

/// The last day that every month has.
constexpr int LastSafeDay = 28;

int dayOfMonth(Moment moment)
{
    return static_cast<int>(static_cast<unsigned>(dayOf(moment).day()));
}

int monthOf(Moment moment)
{
    return static_cast<int>(static_cast<unsigned>(dayOf(moment).month()));
}

std::size_t weekdayOf(Moment moment)
{
    return std::chrono::weekday(std::chrono::floor<days>(moment)).iso_encoding() - 1;
}

std::bitset<7> withThatOf(Moment first, std::bitset<7> weekdays)
{
    return weekdays.set(weekdayOf(first));
}

/// Which one of its month the weekday is; -1 for the fifth one, which not every month has.
int numberOfWeekday(Moment moment)
{
    const int number = (dayOfMonth(moment) - 1) / 7 + 1;
    return number == 5 ? -1 : number;
}

/// The day of the month, or the last one that is not after it in a shorter month.
std::string sameDayText(int day)
{
    std::string text = ";BYMONTHDAY=28";
    for (int other = LastSafeDay + 1; other <= day; ++other) {
        text += ',' + std::to_string(other);
    }
    return text + ";BYSETPOS=-1";
}

std::string daysText(const RepeatPattern& pattern, Moment first)
{
    if (pattern.unit == Unit::Weeks && pattern.weekdays.any()) {
        std::string text;
        for (std::size_t i = 0; i < WeekdayNames.size(); ++i) {
            if (pattern.weekdays[i]) {
                text += (text.empty() ? ";BYDAY=" : ",") + std::string(WeekdayNames.at(i));
            }
        }
        if (pattern.every > 1 && !isAsFromMonday(pattern.weekStart, withThatOf(first, pattern.weekdays))) {
            text += ";WKST=" + std::string(WeekdayNames.at(static_cast<std::size_t>(pattern.weekStart)));
        }
        return text;
    }
    if (pattern.unit == Unit::Months) {
        if (pattern.monthDay == MonthDay::LastDay) {
            return ";BYMONTHDAY=-1";
        }
        if (pattern.monthDay == MonthDay::NthWeekday) {
            return ";BYDAY="
                + std::to_string(numberOfWeekday(first)).append(WeekdayNames.at(weekdayOf(first)));
        }
        return dayOfMonth(first) > LastSafeDay ? sameDayText(dayOfMonth(first)) : std::string();
    }
    const bool isLeapDay = monthOf(first) == 2 && dayOfMonth(first) > LastSafeDay;
    return pattern.unit == Unit::Years && isLeapDay ? ";BYMONTH=2" + sameDayText(dayOfMonth(first))
                                                    : std::string();
}

/// Whether the rule says no more than days of the month, and BYSETPOS=-1 where `position` is wanted.
bool namesOnlyMonthDays(const RuleParts& parts, bool position)
{
    return !parts.namesWeekdays()
        && (position ? parts.positions.size() == 1 && parts.positions.has(-1) : parts.positions.isEmpty());
}

/// Whether it is the day of the first moment in each month, or the last before it.
bool isSameDay(const RuleParts& parts, int day)
{
    if (parts.monthDays.isEmpty()) {
        return day <= LastSafeDay && namesOnlyMonthDays(parts, false);
    }
    if (day <= LastSafeDay) {
        return parts.monthDays.size() == 1 && parts.monthDays.has(day) && namesOnlyMonthDays(parts, false);
    }
    NumberSet<31> wanted;
    for (int other = LastSafeDay; other <= day; ++other) {
        wanted.add(other);
    }
    return parts.monthDays == wanted && namesOnlyMonthDays(parts, true);
}

/// "2TU", or as others say it: "TU" at the second position.
bool isNthWeekday(const RuleParts& parts, Moment first)
{
    const int number = numberOfWeekday(first);
    for (std::size_t i = 0; i < parts.weekdays.size(); ++i) {
        if (i != weekdayOf(first) && !parts.weekdays.at(i).isEmpty()) {
            return false;
        }
    }
    const auto& which = parts.weekdays.at(weekdayOf(first));
    if (which.size() != 1 || !parts.monthDays.isEmpty()) {
        return false;
    }
    return which.has(0) ? parts.positions.size() == 1 && parts.positions.has(number)
                        : which.has(number) && parts.positions.isEmpty();
}

std::optional<MonthDay> monthDayOf(const RuleParts& parts, Moment first)
{
    if (parts.months.any()) {
        return std::nullopt;
    }
    if (isSameDay(parts, dayOfMonth(first))) {
        return MonthDay::SameDay;
    }
    if (parts.monthDays.size() == 1 && parts.monthDays.has(-1) && namesOnlyMonthDays(parts, false)) {
        return MonthDay::LastDay;
    }
    return isNthWeekday(parts, first) ? std::optional(MonthDay::NthWeekday) : std::nullopt;
}

bool isSameDayOfTheYear(const RuleParts& parts, Moment first)
{
    const int day = dayOfMonth(first);
    if (!parts.yearDays.isEmpty() || !parts.weekNumbers.isEmpty()) {
        return false;
    }
    if (parts.months.none()) {
        return parts.monthDays.isEmpty() && namesOnlyMonthDays(parts, false)
            && (monthOf(first) != 2 || day <= LastSafeDay);
    }
    if (parts.months.count() != 1 || !parts.months[static_cast<std::size_t>(monthOf(first))]) {
        return false;
    }
    if (monthOf(first) == 2) {
        return isSameDay(parts, day);
    }
    return namesOnlyMonthDays(parts, false)
        && (parts.monthDays.isEmpty() || (parts.monthDays.size() == 1 && parts.monthDays.has(day)));
}

/// The weekdays of a rule that names nothing else; none when it does.
std::optional<std::bitset<7>> weekdaysOf(const RuleParts& parts)
{
    if (parts.months.any() || !parts.monthDays.isEmpty() || !parts.positions.isEmpty()
        || parts.numbersWeekdays()) {
        return std::nullopt;
    }
    std::bitset<7> weekdays;
    for (std::size_t i = 0; i < weekdays.size(); ++i) {
        weekdays[i] = !parts.weekdays.at(i).isEmpty();
    }
    return weekdays;
}

bool readWeekdays(RepeatPattern& pattern, const RuleParts& parts, Moment first)
{
    const auto weekdays = weekdaysOf(parts);
    if (!weekdays) {
        return false;
    }
    pattern.weekdays = *weekdays;
    if (pattern.unit == Unit::Days && weekdays->any()) {
        // "Daily, on these weekdays" is weekly.
        pattern.unit = Unit::Weeks;
        return parts.interval == 1;
    }
    if (parts.interval > 1 && !isAsFromMonday(parts.weekStart, withThatOf(first, *weekdays))) {
        pattern.weekStart = parts.weekStart;
    }
    return true;
}

bool readDays(RepeatPattern& pattern, const RuleParts& parts, Moment first)
{
    switch (pattern.unit) {
    case Unit::Days:
    case Unit::Weeks:
        return readWeekdays(pattern, parts, first);
    case Unit::Months:
        if (const auto monthDay = monthDayOf(parts, first)) {
            pattern.monthDay = *monthDay;
            return true;
        }
        return false;
    case Unit::Years:
        break;
    }
    return isSameDayOfTheYear(parts, first);
}

} // namespace

bool isAsFromMonday(int weekStart, std::bitset<7> weekdays)
{
    const std::bitset<7> before((1U << static_cast<unsigned>(weekStart)) - 1);
    return (weekdays & before).none() || (weekdays & ~before).none();
}

std::string ruleOf(const RepeatPattern& pattern, Moment first)
{
    std::string rule = "FREQ=";
    rule += FrequencyNames.at(static_cast<std::size_t>(pattern.unit));
    if (pattern.every > 1) {
        rule += ";INTERVAL=" + std::to_string(pattern.every);
    }
    rule += daysText(pattern, first);
    if (pattern.times) {
        rule += ";COUNT=" + std::to_string(*pattern.times);
    } else if (pattern.until) {
        // The standard wants a time where the first moment has one.
        const std::string day = storedText(makeMoment(*pattern.until));
        rule += ";UNTIL=" + day.substr(0, 4) + day.substr(5, 2) + day.substr(8, 2) + "T235959";
    }
    return rule;
}

std::optional<RepeatPattern> patternOf(std::string_view rule, Moment first)
{
    const auto parts = rulePartsOf(rule);
    if (!parts || parts->interval > RepeatPattern::MostEvery || (parts->count && parts->until)
        || parts->count > RepeatPattern::MostTimes) {
        return std::nullopt;
    }
    RepeatPattern pattern;
    pattern.unit = static_cast<Unit>(*parts->frequency);
    pattern.every = parts->interval;
    pattern.times = parts->count;
    if (parts->until) {
        // On the day itself the series is over when it ends before the time of day.
        const bool isDayBefore = timeOfDayOf(*parts->until) < timeOfDayOf(first);
        pattern.until = dayOf(*parts->until - days(isDayBefore ? 1 : 0));
    }
    return readDays(pattern, *parts, first) ? std::optional(pattern) : std::nullopt;
}
