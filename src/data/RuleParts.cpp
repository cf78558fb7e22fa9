#include "data/RuleParts.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace
{

constexpr std::size_t LongestRule = 4096;
constexpr int MostDigits = 9;
/// What is counted is gone through from the first moment on; these are days for 273 years.
constexpr int MostCount = 100'000;

/// A whole number of no more than nine digits, which may have a sign.
std::optional<int> numberOf(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && text.size() <= MostDigits
        ? std::optional(number)
        : std::nullopt;
}

template <std::size_t Size>
std::optional<int> indexOf(const std::array<std::string_view, Size>& names, std::string_view name)
{
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? std::nullopt : std::optional(static_cast<int>(found - names.begin()));
}

/// What comes before the separator, which is taken away with it.
std::string_view cutUpTo(std::string_view& rest, char separator)
{
    const std::size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return part;
}

/// Whether `add` takes each of the values between commas, of which there is one at least.
template <typename Add> bool everyOne(std::string_view values, Add add)
{
    if (values.empty() || values.back() == ',') {
        return false;
    }
    while (!values.empty()) {
        if (!add(cutUpTo(values, ','))) {
            return false;
        }
    }
    return true;
}

template <int Most> bool addNumbers(NumberSet<Most>& set, std::string_view values)
{
    return everyOne(values, [&set](std::string_view value) {
        const auto number = numberOf(value);
        return number && *number != 0 && set.add(*number);
    });
}

/// A date, or a date and time, whose zone does not matter: all moments are wall-clock times.
std::optional<Moment> untilOf(std::string_view text)
{
    constexpr std::size_t DateLength = 8;
    constexpr std::size_t DateTimeLength = 15;
    if (text.size() == DateTimeLength + 1 && text.back() == 'Z') {
        text.remove_suffix(1);
    }
    if ((text.size() != DateLength && text.size() != DateTimeLength)
        || (text.size() == DateTimeLength && text[DateLength] != 'T')) {
        return std::nullopt;
    }
    const auto digits = [text](std::size_t from, std::size_t count) {
        return std::string(text.substr(from, count));
    };
    const std::string day = digits(0, 4) + '-' + digits(4, 2) + '-' + digits(6, 2);
    return momentFromStoredText(text.size() == DateLength
            ? day + " 23:59:59"
            : day + ' ' + digits(9, 2) + ':' + digits(11, 2) + ':' + digits(13, 2));
}

bool addWeekday(RuleParts& parts, std::string_view value)
{
    if (value.size() < 2) {
        return false;
    }
    const auto weekday = indexOf(WeekdayNames, value.substr(value.size() - 2));
    const std::string_view which = value.substr(0, value.size() - 2);
    const auto number = which.empty() ? std::optional(0) : numberOf(which);
    return weekday && number && (which.empty() || *number != 0)
        && parts.weekdays.at(static_cast<std::size_t>(*weekday)).add(*number);
}

bool addMonth(RuleParts& parts, std::string_view value)
{
    const auto month = numberOf(value);
    if (!month || *month < 1 || *month > 12) {
        return false;
    }
    parts.months.set(static_cast<std::size_t>(*month));
    return true;
}

/// Whether the part could be read; `value` is in upper case.
bool readPart(RuleParts& parts, std::string_view key, std::string_view value)
{
    if (key == "FREQ") {
        const auto index = indexOf(FrequencyNames, value);
        parts.frequency = index ? std::optional(static_cast<RuleParts::Frequency>(*index)) : std::nullopt;
        return parts.frequency.has_value();
    }
    if (key == "INTERVAL") {
        const auto interval = numberOf(value);
        parts.interval = interval.value_or(0);
        return parts.interval >= 1;
    }
    if (key == "COUNT") {
        parts.count = numberOf(value);
        return parts.count && *parts.count >= 1 && *parts.count <= MostCount;
    }
    if (key == "UNTIL") {
        parts.until = untilOf(value);
        return parts.until.has_value();
    }
    if (key == "WKST") {
        const auto weekday = indexOf(WeekdayNames, value);
        parts.weekStart = weekday.value_or(0);
        return weekday.has_value();
    }
    if (key == "BYMONTH") {
        return everyOne(value, [&parts](std::string_view one) { return addMonth(parts, one); });
    }
    if (key == "BYDAY") {
        return everyOne(value, [&parts](std::string_view one) { return addWeekday(parts, one); });
    }
    return (key == "BYMONTHDAY" && addNumbers(parts.monthDays, value))
        || (key == "BYYEARDAY" && addNumbers(parts.yearDays, value))
        || (key == "BYWEEKNO" && addNumbers(parts.weekNumbers, value))
        || (key == "BYSETPOS" && addNumbers(parts.positions, value));
}

/// Whether the standard allows the parts beside each other.
bool fit(const RuleParts& parts)
{
    using Frequency = RuleParts::Frequency;
    const Frequency frequency = *parts.frequency;
    if (frequency != Frequency::Yearly && !(parts.yearDays.isEmpty() && parts.weekNumbers.isEmpty())) {
        return false;
    }
    if (frequency == Frequency::Weekly && !parts.monthDays.isEmpty()) {
        return false;
    }
    if (parts.numbersWeekdays()
        && (frequency == Frequency::Daily || frequency == Frequency::Weekly
            || !parts.weekNumbers.isEmpty())) {
        return false;
    }
    return parts.positions.isEmpty() || parts.months.any() || parts.namesWeekdays()
        || !parts.monthDays.isEmpty() || !parts.yearDays.isEmpty() || !parts.weekNumbers.isEmpty();
}

} // namespace

bool RuleParts::namesWeekdays() const
{
    return std::any_of(weekdays.begin(), weekdays.end(), [](const auto& which) { return !which.isEmpty(); });
}

bool RuleParts::numbersWeekdays() const
{
    return std::any_of(weekdays.begin(), weekdays.end(),
        [](const auto& which) { return which.size() > static_cast<std::size_t>(which.has(0)); });
}

std::optional<RuleParts> rulePartsOf(std::string_view rule)
{
    if (rule.size() > LongestRule || rule.ends_with(';')) {
        return std::nullopt;
    }
    std::string upper(rule);
    std::transform(upper.begin(), upper.end(), upper.begin(),
        [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    RuleParts parts;
    constexpr std::size_t MostParts = 10;
    std::array<std::string_view, MostParts> keys;
    std::size_t known = 0;
    for (std::string_view rest = upper; !rest.empty();) {
        std::string_view value = cutUpTo(rest, ';');
        const std::string_view key = cutUpTo(value, '=');
        const auto end = keys.begin() + static_cast<std::ptrdiff_t>(known);
        if (known == MostParts || std::find(keys.begin(), end, key) != end || !readPart(parts, key, value)) {
            return std::nullopt;
        }
        keys.at(known++) = key;
    }
    return parts.frequency && fit(parts) ? std::optional(parts) : std::nullopt;
}
