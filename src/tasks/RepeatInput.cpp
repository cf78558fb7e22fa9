#include "tasks/RepeatInput.h"

#include <QLocale>

namespace
{

std::bitset<7> weekdayOf(Moment moment)
{
    const std::chrono::weekday day(std::chrono::floor<std::chrono::days>(moment));
    return std::bitset<7>().set(day.iso_encoding() - 1);
}

int weekStartOf(const RepeatPattern& pattern, std::bitset<7> weekdays)
{
    const int ofLanguage = QLocale().firstDayOfWeek() - Qt::Monday;
    const bool isOpen = pattern.every == 1
        || (isAsFromMonday(pattern.weekStart, weekdays) && isAsFromMonday(ofLanguage, weekdays));
    return isOpen ? ofLanguage : pattern.weekStart;
}

} // namespace

RepeatInput RepeatInput::of(const RepeatPattern& pattern, Moment due)
{
    constexpr std::chrono::days AYear(365);
    RepeatInput input;
    input.unit = pattern.unit;
    input.every = pattern.every;
    input.weekdays = pattern.weekdays.any() ? pattern.weekdays : weekdayOf(due);
    input.weekStart = weekStartOf(pattern, input.weekdays | weekdayOf(due));
    input.monthDay = pattern.monthDay;
    input.end = pattern.until ? End::Date : pattern.times ? End::Times : End::Never;
    input.lastDay = pattern.until.value_or(dayOf(due + AYear));
    input.times = pattern.times.value_or(input.times);
    return input;
}

std::optional<RepeatInput::Refusal> RepeatInput::refusal(Moment due) const
{
    if (unit == RepeatPattern::Unit::Weeks && weekdays.none()) {
        return Refusal{Field::Weekdays, tr("Please tick a weekday.")};
    }
    if (end == End::Date && lastDay < dayOf(due)) {
        return Refusal{Field::LastDay, tr("The last day should not be earlier than the due date.")};
    }
    return std::nullopt;
}

RepeatPattern RepeatInput::pattern(Moment due) const
{
    RepeatPattern pattern;
    pattern.unit = unit;
    pattern.every = every;
    // That of the due moment is left out, so that it follows the due moment.
    if (unit == RepeatPattern::Unit::Weeks && weekdays != weekdayOf(due)) {
        pattern.weekdays = weekdays;
        pattern.weekStart = every > 1 ? weekStart : 0;
    }
    if (unit == RepeatPattern::Unit::Months) {
        pattern.monthDay = monthDay;
    }
    if (end == End::Date) {
        pattern.until = lastDay;
    } else if (end == End::Times) {
        pattern.times = times;
    }
    return pattern;
}

std::vector<Moment> dueMoments(const Repeat& repeat, Moment due, int most)
{
    std::vector<Moment> moments{due};
    while (static_cast<int>(moments.size()) < most) {
        const std::optional<Moment> next = RepeatRules::next(repeat, moments.back());
        if (!next) {
            break;
        }
        moments.push_back(*next);
    }
    return moments;
}
