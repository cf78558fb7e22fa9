#pragma once

#include "system/Moment.h"

#include <array>
#include <bitset>
#include <optional>
#include <string_view>

/// A set of whole numbers from -Most to Most.
template <int Most> class NumberSet
{
public:
    /// False for a number out of range.
    bool add(int number)
    {
        if (number < -Most || number > Most) {
            return false;
        }
        m_numbers.set(placeOf(number));
        return true;
    }
    bool has(int number) const { return number >= -Most && number <= Most && m_numbers[placeOf(number)]; }
    bool isEmpty() const { return m_numbers.none(); }
    std::size_t size() const { return m_numbers.count(); }

    bool operator==(const NumberSet&) const = default;

private:
    static std::size_t placeOf(int number)
    {
        const int place = number + Most;
        return static_cast<std::size_t>(place);
    }

    std::bitset<2 * Most + 1> m_numbers;
};

inline constexpr std::array<std::string_view, 4> FrequencyNames{"DAILY", "WEEKLY", "MONTHLY", "YEARLY"};
/// From Monday on.
inline constexpr std::array<std::string_view, 7> WeekdayNames{"MO", "TU", "WE", "TH", "FR", "SA", "SU"};

/// The value of an RRULE (RFC 5545), taken apart. Weekdays count from 0, Monday. An empty set says nothing.
struct RuleParts {
    enum class Frequency { Daily, Weekly, Monthly, Yearly };

    std::optional<Frequency> frequency; ///< always there in what is read
    int interval = 1;
    std::optional<int> count;
    std::optional<Moment> until; ///< the last moment: of a day, its last second
    int weekStart = 0;
    std::bitset<13> months; ///< from 1
    NumberSet<31> monthDays;
    NumberSet<366> yearDays;
    NumberSet<53> weekNumbers;
    std::array<NumberSet<53>, 7> weekdays; ///< of each weekday, which ones; 0 for every one
    NumberSet<366> positions;

    bool namesWeekdays() const;
    /// Whether a weekday is wanted with a number, as in "2TU".
    bool numbersWeekdays() const;
};

/// Takes a rule apart, whatever the bytes are; none when it is not well-formed, repeats within a day or in a
/// way that the standard rules out.
std::optional<RuleParts> rulePartsOf(std::string_view rule);
