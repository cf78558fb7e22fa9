#pragma once

#include "system/Moment.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class Modules;

/// How a task repeats. All moments are wall-clock times without a zone: a task at 9:00 stays at 9:00 when
/// clocks are set forward or back.
struct Repeat {
    std::string rule; ///< the value of an RRULE (RFC 5545): "FREQ=WEEKLY;INTERVAL=2"
    Moment first{}; ///< the due moment from which the rule counts; it is in the series
    std::chrono::minutes lead{0}; ///< how long before it is due the task reminds; negative when afterwards
    int done = 0; ///< occurrences that are over

    bool operator==(const Repeat&) const = default;
};

/// Calculates the moments of rules, in a module that the first repeating task loads. Stateless; one thread.
class RepeatRules
{
public:
    RepeatRules() = default;
    virtual ~RepeatRules() = default;
    RepeatRules(const RepeatRules&) = delete;
    RepeatRules& operator=(const RepeatRules&) = delete;

    /// The first moment of the series that is later than `after`; none when the series has ended by then,
    /// goes on past the year 9999, or the rule cannot be read.
    virtual std::optional<Moment> next(const Repeat& repeat, Moment after) const = 0;
    /// How many moments of the series are later than `after` and not later than `until`; no more than `most`
    /// are counted.
    virtual int count(const Repeat& repeat, Moment after, Moment until, int most) const = 0;
    /// Whether the rule can be read and calculated in reasonable time.
    virtual bool isUsable(const std::string& rule) const = 0;
};

inline constexpr char RepeatModule[] = "ambertask_repeats";

/// Loads the module, which stays loaded. Throws RuntimeError when it is missing or damaged.
std::unique_ptr<RepeatRules> loadRepeatRules(Modules& modules);

/// Whether anything repeats, and the rules. The program has one. Thread of the windows.
class Repeating
{
public:
    using Load = std::function<std::unique_ptr<RepeatRules>()>;
    explicit Repeating(Load load) : m_load(std::move(load)) { }

    /// Whether the data file may hold a task that repeats: otherwise nothing is asked about it.
    bool isUsed() const { return m_isUsed; }
    void setUsed(bool used) { m_isUsed = used; }
    /// Loads the module at the first call. Throws RuntimeError.
    const RepeatRules& rules()
    {
        if (m_rules == nullptr) {
            m_rules = m_load();
        }
        return *m_rules;
    }

private:
    Load m_load;
    std::unique_ptr<RepeatRules> m_rules;
    bool m_isUsed = false;
};
