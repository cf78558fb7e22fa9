#include "platform/Moment.h"

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

/// The number in `count` digits at `position`; -1 when one of them is no digit.
int readDigits(std::string_view text, std::size_t position, std::size_t count)
{
    int value = 0;
    for (const char c : text.substr(position, count)) {
        if (c < '0' || c > '9') {
            return -1;
        }
        value = value * 10 + (c - '0');
    }
    return value;
}

} // namespace

Moment makeMoment(std::chrono::year_month_day day, seconds timeOfDay)
{
    return Moment(local_days(day)) + timeOfDay;
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
    // A moment that the clock of this place never showed is taken as it stands.
    if (!start.isValid()) {
        return from + by;
    }
    const QDateTime passed = start.addSecs(by.count());
    return toMoment(passed.date(), passed.time());
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
    const int year = readDigits(text, 0, 4);
    const int month = readDigits(text, 5, 2);
    const int day = readDigits(text, 8, 2);
    const int hour = readDigits(text, 11, 2);
    const int minute = readDigits(text, 14, 2);
    const int second = readDigits(text, 17, 2);
    if (year < 0 || month < 0 || day < 0 || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0
        || second > 59) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date(std::chrono::year(year),
        std::chrono::month(static_cast<unsigned>(month)), std::chrono::day(static_cast<unsigned>(day)));
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
