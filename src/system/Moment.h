#pragma once

#include <QDateTime>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>

/// A local date and time without a zone, to the second.
using Moment = std::chrono::local_seconds;

/// The moment of a calendar day and a time of day. The day must be valid.
Moment makeMoment(std::chrono::year_month_day day, std::chrono::seconds timeOfDay = {});
/// The same from the fields of a calendar: months and days count from 1.
Moment makeMoment(int year, int month, int day, int hour, int minute, int second);
/// 00:00:00 of the moment's day.
Moment startOfDay(Moment moment);
/// The moment without its seconds.
Moment toMinute(Moment moment);

/// The local time when `by` has passed since `from`. Not the plain sum on a day on which clocks are set
/// forward or back. Needs a time zone look-up.
Moment whenPassed(Moment from, std::chrono::seconds by);

// The moments of a day for which things are usually put off.

inline constexpr std::chrono::hours Morning(9);
inline constexpr std::chrono::hours Evening(18);
/// 18:00 of the day of `now`; none from then on.
std::optional<Moment> thisEvening(Moment now);
/// 9:00 of the next day.
Moment tomorrowMorning(Moment now);
/// 9:00 of the next Monday, never of the day of `now`.
Moment nextMondayMorning(Moment now);

std::chrono::year_month_day dayOf(Moment moment);
std::chrono::seconds timeOfDayOf(Moment moment);

/// A moment as the data file stores it: "YYYY-MM-DD HH:MM:SS". Years 0 to 9999.
std::string storedText(Moment moment);
/// The moment that a stored text denotes; none when the text has another form or no such day or time
/// exists.
std::optional<Moment> momentFromStoredText(std::string_view text);

// For widgets: pickers use QDate and QTime.
QDate toQDate(Moment moment);
QTime toQTime(Moment moment);
Moment toMoment(QDate date, QTime time = QTime(0, 0));
/// The moment of a picker's day and another picker's time of day; seconds are dropped.
Moment composeMoment(QDate date, QTime time);
