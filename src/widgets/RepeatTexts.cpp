#include "widgets/RepeatTexts.h"

#include "data/RepeatPattern.h"
#include "widgets/MomentTexts.h"

#include <QLocale>

// Without a catalogue, as in English, Qt knows of no plural.

std::bitset<7> workingWeek()
{
    std::bitset<7> days;
    for (const Qt::DayOfWeek day : QLocale().weekdays()) {
        days.set(static_cast<std::size_t>(day) - Qt::Monday);
    }
    return days;
}

QString RepeatTexts::pattern(const RepeatPattern& pattern, Moment first)
{
    QString said = interval(pattern, first);
    if (pattern.until) {
        //: %1 is how something repeats, as in "every week on Tuesday", and %2 the last day
        return tr("%1 until %2").arg(said, shortDate(makeMoment(*pattern.until)));
    }
    if (pattern.times) {
        //: %1 is how something repeats, as in "every week on Tuesday"
        return (*pattern.times == 1 ? tr("%1, once") : tr("%1, %n times", nullptr, *pattern.times)).arg(said);
    }
    return said;
}

QString RepeatTexts::other()
{
    return tr("by a rule of another program");
}

QString RepeatTexts::interval(const RepeatPattern& pattern, Moment first)
{
    const int every = pattern.every;
    switch (pattern.unit) {
    case RepeatPattern::Unit::Days:
        return every == 1 ? tr("every day") : tr("every %n days", nullptr, every);
    case RepeatPattern::Unit::Weeks: {
        std::bitset<7> weekdays = pattern.weekdays;
        if (weekdays.none()) {
            weekdays.set(static_cast<std::size_t>(toQDate(first).dayOfWeek()) - Qt::Monday);
        }
        return weeks(every, weekdays);
    }
    case RepeatPattern::Unit::Months:
        return months(pattern, first);
    case RepeatPattern::Unit::Years:
        break;
    }
    //: Day and month of a date, in the format of QLocale: "d. MMMM", "MMMM d", "d 'de' MMMM"
    const QString day = QLocale().toString(toQDate(first), tr("d MMMM"));
    //: %1 is a day and a month
    return (every == 1 ? tr("every year on %1") : tr("every %n years on %1", nullptr, every)).arg(day);
}

QString RepeatTexts::weeks(int every, std::bitset<7> weekdays)
{
    if (every == 1 && weekdays == workingWeek()) {
        //: on each day of the working week, as from Monday to Friday
        return tr("every weekday");
    }
    QStringList names;
    const int first = QLocale().firstDayOfWeek() - Qt::Monday;
    for (int place = 0; place < Qt::Sunday; ++place) {
        const int day = (first + place) % Qt::Sunday;
        if (weekdays[static_cast<std::size_t>(day)]) {
            names.append(QLocale().dayName(day + Qt::Monday));
        }
    }
    //: %1 is a weekday or several: "Monday and Thursday"
    return (every == 1 ? tr("every week on %1") : tr("every %n weeks on %1", nullptr, every))
        .arg(QLocale().createSeparatedList(names));
}

QString RepeatTexts::months(const RepeatPattern& pattern, Moment first)
{
    const int every = pattern.every;
    switch (pattern.monthDay) {
    case RepeatPattern::MonthDay::SameDay:
        //: %1 is the number of a day
        return (every == 1 ? tr("every month on day %1") : tr("every %n months on day %1", nullptr, every))
            .arg(toQDate(first).day());
    case RepeatPattern::MonthDay::LastDay:
        return every == 1 ? tr("every month on the last day")
                          : tr("every %n months on the last day", nullptr, every);
    case RepeatPattern::MonthDay::NthWeekday:
        break;
    }
    return nthWeekday(every, first);
}

QString RepeatTexts::nthWeekday(int every, Moment first)
{
    // Whole texts: the word for the number may follow the gender of the weekday, or stand behind it.
    const QString day = QLocale().dayName(toQDate(first).dayOfWeek());
    const auto said = [every](const QString& each, const QString& some) {
        return every == 1 ? each : some;
    };
    switch ((toQDate(first).day() - 1) / 7) {
    case 0:
        //: %1 is a weekday
        return said(tr("every month on the first %1"), tr("every %n months on the first %1", nullptr, every))
            .arg(day);
    case 1:
        //: %1 is a weekday
        return said(
            tr("every month on the second %1"), tr("every %n months on the second %1", nullptr, every))
            .arg(day);
    case 2:
        //: %1 is a weekday
        return said(tr("every month on the third %1"), tr("every %n months on the third %1", nullptr, every))
            .arg(day);
    case 3:
        //: %1 is a weekday
        return said(
            tr("every month on the fourth %1"), tr("every %n months on the fourth %1", nullptr, every))
            .arg(day);
    default:
        //: %1 is a weekday
        return said(tr("every month on the last %1"), tr("every %n months on the last %1", nullptr, every))
            .arg(day);
    }
}

QString repeatText(const std::string& rule, Moment first)
{
    const auto pattern = patternOf(rule, first);
    return pattern ? RepeatTexts::pattern(*pattern, first) : RepeatTexts::other();
}
