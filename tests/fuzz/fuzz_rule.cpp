#include "Require.h"
#include "data/RepeatPattern.h"
#include "data/RepeatRules.h"

#include <chrono>
#include <cstdint>
#include <ctime>

namespace
{

const Moment Now(std::chrono::seconds(1'768'471'200));
constexpr int Most = 20;

/// The processor's time that has passed since, in seconds.
double passedSince(std::clock_t begin)
{
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

} // namespace

// Any bytes as a rule: refused, or moments that come one after the other, as many as are counted, and soon.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string rule(reinterpret_cast<const char*>(data), size);
    const std::clock_t begin = std::clock();
    for (const auto ago : {std::chrono::days(0), std::chrono::days(56 * 365 + 13)}) {
        const Repeat repeat{.rule = rule, .first = Now - ago};
        Moment last = Now - std::chrono::seconds(1);
        int found = 0;
        for (auto moment = RepeatRules::next(repeat, last); moment && found < Most;
             moment = RepeatRules::next(repeat, last)) {
            require(*moment > last, "the next moment is a later one");
            require(timeOfDayOf(*moment) == timeOfDayOf(repeat.first), "the time of day stays");
            last = *moment;
            ++found;
        }
        require(RepeatRules::isUsable(rule) || found == 0, "a rule that cannot be used has no moments");
        require(RepeatRules::count(repeat, Now - std::chrono::seconds(1), last, Most) == found,
            "as many as are counted");
        if (const auto pattern = patternOf(rule, repeat.first)) {
            require(
                patternOf(ruleOf(*pattern, repeat.first), repeat.first) == pattern, "a pattern reads itself");
            require(RepeatRules::next({.rule = ruleOf(*pattern, repeat.first), .first = repeat.first}, Now)
                    == RepeatRules::next(repeat, Now),
                "a pattern says the same moments");
        }
    }
    require(passedSince(begin) < 1, "the rule is answered soon");
    return 0;
}
