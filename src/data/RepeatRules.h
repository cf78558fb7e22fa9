#pragma once

#include "system/Moment.h"

#include <chrono>
#include <optional>
#include <string>

/// How a task repeats. All moments are wall-clock times without a zone: a task at 9:00 stays at 9:00 when
/// clocks are set forward or back.
struct Repeat {
    std::string rule; ///< the value of an RRULE (RFC 5545): "FREQ=WEEKLY;INTERVAL=2"
    Moment first{}; ///< the due moment from which the rule counts; it is in the series
    std::chrono::minutes lead{0}; ///< how long before it is due the task reminds; negative when afterwards
    int done = 0; ///< occurrences that are over

    bool operator==(const Repeat&) const = default;
};

/// The moments of rules, by the Gregorian calendar alone. Any thread.
namespace RepeatRules
{

/// The first moment of the series that is later than `after`; none when the series has ended by then, goes on
/// past the year 9999, or the rule cannot be read.
std::optional<Moment> next(const Repeat& repeat, Moment after);
/// How many moments of the series are later than `after` and not later than `until`; no more than `most` are
/// counted.
int count(const Repeat& repeat, Moment after, Moment until, int most);
/// Whether the rule can be read.
bool isUsable(const std::string& rule);

} // namespace RepeatRules

/// Whether anything repeats. The program has one. Thread of the windows.
class Repeating
{
public:
    /// Whether the data file may hold a task that repeats: otherwise nothing is asked about it. None when
    /// that has to be looked up.
    std::optional<bool> isUsed() const { return m_isUsed; }
    void setUsed(bool used) { m_isUsed = used; }
    /// The data file may be another one.
    void forget() { m_isUsed.reset(); }

private:
    std::optional<bool> m_isUsed;
};
