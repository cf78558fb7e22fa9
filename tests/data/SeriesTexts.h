#pragma once

#include "data/RepeatRules.h"

#include <QStringList>
#include <limits>

/// The moment of a stored text, which may leave out the time of day: 9:00 then.
inline Moment momentOf(std::string text)
{
    if (text.size() == std::string_view("2026-01-31").size()) {
        text += " 09:00:00";
    }
    return momentFromStoredText(text).value();
}

/// The first moments of the series later than `after`, as days; with the time where it is not that of
/// `first`.
inline QStringList daysAfter(const std::string& rule, Moment first, Moment after, int most = 6)
{
    const Repeat repeat{.rule = rule, .first = first};
    QStringList days;
    for (auto moment = RepeatRules::next(repeat, after); moment && days.size() < most;
         moment = RepeatRules::next(repeat, *moment)) {
        const QString text = QString::fromStdString(storedText(*moment));
        days.append(timeOfDayOf(*moment) == timeOfDayOf(first) ? text.left(10) : text);
    }
    return days;
}

/// The same with the whole series.
inline QStringList series(const std::string& rule, const std::string& first, int most = 6)
{
    return daysAfter(rule, momentOf(first), momentOf(first) - std::chrono::seconds(1), most);
}

/// The same from some day on, which the rest of the series does not see.
inline QStringList seriesFrom(
    const std::string& day, const std::string& rule, const std::string& first, int most = 6)
{
    return daysAfter(rule, momentOf(first), momentOf(day) - std::chrono::seconds(1), most);
}
