#include "system/Moment.h"

namespace
{

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;
using std::chrono::seconds;

constexpr qint64 JulianDayOfEpoch = 2440588;
constexpr std::size_t StoredLength = 19;

void writeDigits(std::string& text, std::size_t position, int count, unsigned value)
{
    for (int i = count - 1; i >= 0; --i) {
        text[position + static_cast<std::size_t>(i)] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
}

/// The number in the two digits at `position`; 100 or more when one of them is no digit.
unsigned twoDigits(std::string_view text, std::size_t position)
{
    const auto digit = [text](std::size_t place) {
        return static_cast<unsigned>(static_cast<unsigned char>(text[place])) - '0';
    };
    const unsigned tens = digit(position);
    const unsigned ones = digit(position + 1);
    return tens > 9 || ones > 9 ? 100 : tens * 10 + ones;
}

} // namespace

Moment makeMoment(std::chrono::year_month_day day, seconds timeOfDay)
{
    return Moment(local_days(day)) + timeOfDay;
}

Moment makeMoment(int year, int month, int day, int hour, int minute, int second)
{
    const std::chrono::year_month_day date(std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
    return makeMoment(date, seconds(hour * 3600 + minute * 60 + second));
}

Moment startOfDay(Moment moment)
{
    return floor<days>(moment);
}

Moment toMinute(Moment moment)
{
    return floor<std::chrono::minutes>(moment);
}

Moment whenPassed(Moment from, seconds by)
{
    const QDateTime start(toQDate(from), toQTime(from));
    // A local time that clocks skipped (start of summer time) is taken as it is.
    if (!start.isValid()) {
        return from + by;
    }
    const QDateTime passed = start.addSecs(by.count());
    return toMoment(passed.date(), passed.time());
}

std::optional<Moment> thisEvening(Moment now)
{
    const Moment evening = startOfDay(now) + Evening;
    return now < evening ? std::optional(evening) : std::nullopt;
}

Moment tomorrowMorning(Moment now)
{
    return startOfDay(now) + std::chrono::days(1) + Morning;
}

Moment nextMondayMorning(Moment now)
{
    using namespace std::chrono;
    const days ahead = Monday - weekday(dayOf(now));
    return startOfDay(now) + (ahead == days(0) ? days(7) : ahead) + Morning;
}

std::chrono::year_month_day dayOf(Moment moment)
{
    return std::chrono::year_month_day(floor<days>(moment));
}

seconds timeOfDayOf(Moment moment)
{
    return moment - floor<days>(moment);
}

std::string storedText(Moment moment)
{
    const auto day = dayOf(moment);
    const auto time = static_cast<unsigned>(timeOfDayOf(moment).count());
    std::string text = "0000-00-00 00:00:00";
    writeDigits(text, 0, 4, static_cast<unsigned>(static_cast<int>(day.year())));
    writeDigits(text, 5, 2, static_cast<unsigned>(day.month()));
    writeDigits(text, 8, 2, static_cast<unsigned>(day.day()));
    writeDigits(text, 11, 2, time / 3600);
    writeDigits(text, 14, 2, time / 60 % 60);
    writeDigits(text, 17, 2, time % 60);
    return text;
}

std::optional<Moment> momentFromStoredText(std::string_view text)
{
    if (text.size() != StoredLength || text[4] != '-' || text[7] != '-' || text[10] != ' ' || text[13] != ':'
        || text[16] != ':') {
        return std::nullopt;
    }
    const unsigned century = twoDigits(text, 0);
    const unsigned yearOfCentury = twoDigits(text, 2);
    const unsigned hour = twoDigits(text, 11);
    const unsigned minute = twoDigits(text, 14);
    const unsigned second = twoDigits(text, 17);
    if (century > 99 || yearOfCentury > 99 || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(century * 100 + yearOfCentury)),
        std::chrono::month(twoDigits(text, 5)), std::chrono::day(twoDigits(text, 8)));
    if (!date.ok()) {
        return std::nullopt;
    }
    return makeMoment(date, seconds(hour * 3600 + minute * 60 + second));
}

QDate toQDate(Moment moment)
{
    return QDate::fromJulianDay(floor<days>(moment).time_since_epoch().count() + JulianDayOfEpoch);
}

QTime toQTime(Moment moment)
{
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(timeOfDayOf(moment).count()) * 1000);
}

Moment toMoment(QDate date, QTime time)
{
    return Moment(local_days(days(date.toJulianDay() - JulianDayOfEpoch)))
        + seconds(time.msecsSinceStartOfDay() / 1000);
}

Moment composeMoment(QDate date, QTime time)
{
    return toMinute(toMoment(date, time));
}
