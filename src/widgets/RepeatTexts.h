#pragma once

#include "system/Moment.h"

#include <QCoreApplication>
#include <bitset>
#include <string>

struct RepeatPattern;

/// How a task repeats, in words. Names of weekdays and months follow the system, as all dates do.
class RepeatTexts
{
    Q_DECLARE_TR_FUNCTIONS(RepeatTexts)

public:
    static QString pattern(const RepeatPattern& pattern, Moment first);
    /// What is said of a rule that is no pattern.
    static QString other();

private:
    static QString interval(const RepeatPattern& pattern, Moment first);
    static QString weeks(int every, std::bitset<7> weekdays);
    static QString months(const RepeatPattern& pattern, Moment first);
    static QString nthWeekday(int every, Moment first);
};

/// The days on which people work where the language is spoken, Monday first.
std::bitset<7> workingWeek();
/// The rule in words: "every 2 weeks on Monday and Thursday until 12/24/2026".
QString repeatText(const std::string& rule, Moment first);
