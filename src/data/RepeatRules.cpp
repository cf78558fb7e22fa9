#include "data/RepeatRules.h"

#include "data/RepeatSeries.h"

namespace
{

/// Tells `tell` the moments of the series that are later than `after`, in order, until it returns false.
template <typename Tell> void forEachLater(const Repeat& repeat, Moment after, Tell tell)
{
    const auto parts = rulePartsOf(repeat.rule);
    if (!parts || !RepeatSeries::canBegin(repeat.first)) {
        return;
    }
    if (repeat.first > after && !tell(repeat.first)) {
        return;
    }
    // What is counted has to be counted from the first moment on.
    RepeatSeries series(*parts, repeat.first, parts->count ? repeat.first : std::max(after, repeat.first));
    for (int number = 2; !parts->count || number <= *parts->count; ++number) {
        const auto moment = series.next();
        if (!moment || (parts->until && *moment > *parts->until) || (*moment > after && !tell(*moment))) {
            return;
        }
    }
}

} // namespace

std::optional<Moment> RepeatRules::next(const Repeat& repeat, Moment after)
{
    std::optional<Moment> found;
    forEachLater(repeat, after, [&found](Moment moment) {
        found = moment;
        return false;
    });
    return found;
}

int RepeatRules::count(const Repeat& repeat, Moment after, Moment until, int most)
{
    int counted = 0;
    if (most > 0) {
        forEachLater(repeat, after, [&](Moment moment) {
            counted += static_cast<int>(moment <= until);
            return moment <= until && counted < most;
        });
    }
    return counted;
}

bool RepeatRules::isUsable(const std::string& rule)
{
    return rulePartsOf(rule).has_value();
}
