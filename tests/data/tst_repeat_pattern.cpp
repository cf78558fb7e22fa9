#include "SeriesTexts.h"
#include "data/RepeatPattern.h"
#include "support/TestMain.h"

#include <QTest>

using std::chrono::days;
using std::chrono::year;
using Unit = RepeatPattern::Unit;
using MonthDay = RepeatPattern::MonthDay;

namespace
{

std::bitset<7> weekdays(std::initializer_list<std::size_t> chosen)
{
    std::bitset<7> set;
    for (const std::size_t day : chosen) {
        set.set(day);
    }
    return set;
}

/// Whatever can be chosen, without an end.
std::vector<RepeatPattern> patterns()
{
    std::vector<RepeatPattern> all;
    for (const int every : {1, 2, 12, RepeatPattern::MostEvery}) {
        all.push_back({.unit = Unit::Days, .every = every});
        for (unsigned long set = 0; set < 128; ++set) {
            all.push_back({.unit = Unit::Weeks, .every = every, .weekdays = set});
        }
        for (const MonthDay day : {MonthDay::SameDay, MonthDay::LastDay, MonthDay::NthWeekday}) {
            all.push_back({.unit = Unit::Months, .every = every, .monthDay = day});
        }
        all.push_back({.unit = Unit::Years, .every = every});
    }
    return all;
}

/// Each day of a leap year and of the one after it.
std::vector<Moment> firstMoments()
{
    std::vector<Moment> moments;
    for (int day = 0; day < 731; ++day) {
        moments.push_back(momentOf("2028-01-01") + days(day));
    }
    return moments;
}

const RepeatPattern Weekly{};
const RepeatPattern Monthly{.unit = Unit::Months};
const RepeatPattern Yearly{.unit = Unit::Years};

RepeatPattern with(RepeatPattern pattern, auto change)
{
    change(pattern);
    return pattern;
}

} // namespace

Q_DECLARE_METATYPE(RepeatPattern)

class RepeatPatternTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyPatternReadsItsOwnRule();
    void everyEndIsRead();
    void rulesAsTheyAreWritten();
    void noMonthAndNoYearIsLeftOut();
    void everyMonthHasItsWeekday();
    void formsOfOtherPrograms_data();
    void formsOfOtherPrograms();
    void whatNoPatternSays_data();
    void whatNoPatternSays();
};

void RepeatPatternTest::everyPatternReadsItsOwnRule()
{
    const std::vector<RepeatPattern> all = patterns();
    for (const Moment first : firstMoments()) {
        for (const RepeatPattern& pattern : all) {
            const std::string rule = ruleOf(pattern, first);
            QVERIFY2(patternOf(rule, first) == pattern, (storedText(first) + ": " + rule).c_str());
        }
    }
    for (const RepeatPattern& pattern : all) {
        QVERIFY(RepeatRules::isUsable(ruleOf(pattern, momentOf("2028-02-29"))));
    }
}

void RepeatPatternTest::everyEndIsRead()
{
    for (const char* text : {"2026-01-31 00:00:00", "2026-01-31 09:00:00", "2026-01-31 23:59:59"}) {
        const Moment first = momentOf(text);
        for (RepeatPattern pattern : {Weekly, Monthly, Yearly}) {
            for (const int times : {1, 2, RepeatPattern::MostTimes}) {
                pattern.times = times;
                QVERIFY(patternOf(ruleOf(pattern, first), first) == pattern);
            }
            pattern.times.reset();
            for (int day = 0; day < 60; ++day) {
                pattern.until = dayOf(first + days(day));
                QVERIFY(patternOf(ruleOf(pattern, first), first) == pattern);
            }
        }
    }
}

void RepeatPatternTest::rulesAsTheyAreWritten()
{
    const auto rule = [](const RepeatPattern& pattern, const char* first) {
        return QString::fromStdString(ruleOf(pattern, momentOf(first)));
    };
    QCOMPARE(rule({.unit = Unit::Days, .every = 3}, "2026-01-13"), QStringLiteral("FREQ=DAILY;INTERVAL=3"));
    QCOMPARE(rule({.weekdays = weekdays({0, 3})}, "2026-01-13"), QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TH"));
    // Where the beginning of the week decides which days are together.
    QCOMPARE(rule({.every = 2, .weekdays = weekdays({0, 6}), .weekStart = 6}, "2026-01-18"),
        QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU;WKST=SU"));
    QCOMPARE(rule({.every = 2, .weekdays = weekdays({0, 3}), .weekStart = 6}, "2026-01-12"),
        QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH"));
    QCOMPARE(rule({.every = 1, .weekdays = weekdays({0, 6}), .weekStart = 6}, "2026-01-18"),
        QStringLiteral("FREQ=WEEKLY;BYDAY=MO,SU"));
    QCOMPARE(rule({.times = 10}, "2026-01-13"), QStringLiteral("FREQ=WEEKLY;COUNT=10"));
    QCOMPARE(rule({.until = year(2026) / 12 / 24}, "2026-01-13"),
        QStringLiteral("FREQ=WEEKLY;UNTIL=20261224T235959"));
    QCOMPARE(rule(Monthly, "2026-01-28"), QStringLiteral("FREQ=MONTHLY"));
    QCOMPARE(rule(Monthly, "2026-01-29"), QStringLiteral("FREQ=MONTHLY;BYMONTHDAY=28,29;BYSETPOS=-1"));
    QCOMPARE(rule(Monthly, "2026-01-31"), QStringLiteral("FREQ=MONTHLY;BYMONTHDAY=28,29,30,31;BYSETPOS=-1"));
    QCOMPARE(rule({.unit = Unit::Months, .monthDay = MonthDay::LastDay}, "2026-01-13"),
        QStringLiteral("FREQ=MONTHLY;BYMONTHDAY=-1"));
    QCOMPARE(rule({.unit = Unit::Months, .monthDay = MonthDay::NthWeekday}, "2026-01-13"),
        QStringLiteral("FREQ=MONTHLY;BYDAY=2TU"));
    QCOMPARE(rule({.unit = Unit::Months, .monthDay = MonthDay::NthWeekday}, "2026-01-31"),
        QStringLiteral("FREQ=MONTHLY;BYDAY=-1SA"));
    QCOMPARE(rule(Yearly, "2026-12-31"), QStringLiteral("FREQ=YEARLY"));
    QCOMPARE(
        rule(Yearly, "2028-02-29"), QStringLiteral("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=28,29;BYSETPOS=-1"));
}

void RepeatPatternTest::noMonthAndNoYearIsLeftOut()
{
    for (const Moment first : firstMoments()) {
        const Repeat monthly{.rule = ruleOf(Monthly, first), .first = first};
        const Repeat yearly{.rule = ruleOf(Yearly, first), .first = first};
        Moment month = first;
        for (int i = 1; i <= 14; ++i) {
            month = RepeatRules::next(monthly, month).value();
            const auto wanted = dayOf(first).year() / dayOf(first).month() + std::chrono::months(i);
            QVERIFY(dayOf(month).year() / dayOf(month).month() == wanted);
            QVERIFY(dayOf(month).day() == std::min(dayOf(first).day(), (wanted / std::chrono::last).day()));
        }
        Moment inYear = first;
        for (int i = 1; i <= 5; ++i) {
            inYear = RepeatRules::next(yearly, inYear).value();
            const auto wanted = (dayOf(first).year() + std::chrono::years(i)) / dayOf(first).month();
            QVERIFY(dayOf(inYear).year() / dayOf(inYear).month() == wanted);
            QVERIFY(dayOf(inYear).day() == std::min(dayOf(first).day(), (wanted / std::chrono::last).day()));
        }
    }
}

void RepeatPatternTest::everyMonthHasItsWeekday()
{
    const RepeatPattern pattern{.unit = Unit::Months, .monthDay = MonthDay::NthWeekday};
    for (const Moment first : firstMoments()) {
        const Repeat repeat{.rule = ruleOf(pattern, first), .first = first};
        Moment moment = first;
        for (int i = 1; i <= 14; ++i) {
            moment = RepeatRules::next(repeat, moment).value();
            QVERIFY(dayOf(moment).month() == dayOf(first).month() + std::chrono::months(i));
            QCOMPARE(toQDate(moment).dayOfWeek(), toQDate(first).dayOfWeek());
        }
    }
}

void RepeatPatternTest::formsOfOtherPrograms_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<RepeatPattern>("pattern");
    const auto row = [](const char* rule, const char* first, const RepeatPattern& pattern) {
        QTest::addRow("%s from %s", rule, first) << QByteArray(rule) << QByteArray(first) << pattern;
    };
    const RepeatPattern tuesdays = with(Weekly, [](auto& p) { p.weekdays = weekdays({1}); });
    const RepeatPattern workingDays = with(Weekly, [](auto& p) { p.weekdays = weekdays({0, 1, 2, 3, 4}); });
    const RepeatPattern secondTuesday = with(Monthly, [](auto& p) { p.monthDay = MonthDay::NthWeekday; });
    row("freq=weekly;byday=tu", "2026-01-13", tuesdays);
    row("WKST=SU;BYDAY=TU;INTERVAL=1;FREQ=WEEKLY", "2026-01-13", tuesdays);
    row("FREQ=WEEKLY;BYDAY=FR,MO,TU,WE,TH", "2026-01-13", workingDays);
    row("FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR", "2026-01-13", workingDays);
    row("FREQ=DAILY;INTERVAL=1;WKST=SU", "2026-01-13", {.unit = Unit::Days});
    row("FREQ=WEEKLY;INTERVAL=2;WKST=SU;BYDAY=TU,TH", "2026-01-13",
        {.every = 2, .weekdays = weekdays({1, 3})});
    row("FREQ=WEEKLY;INTERVAL=2;WKST=SU;BYDAY=SU", "2026-01-18", {.every = 2, .weekdays = weekdays({6})});
    row("FREQ=WEEKLY;INTERVAL=2;WKST=SU", "2026-01-18", {.every = 2});
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=SU", "1997-08-05",
        {.every = 2, .weekdays = weekdays({1, 6}), .weekStart = 6});
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=SU;WKST=SU", "2026-01-13",
        {.every = 2, .weekdays = weekdays({6}), .weekStart = 6});
    row("FREQ=WEEKLY;BYDAY=TU,SU;WKST=SU", "1997-08-05", {.weekdays = weekdays({1, 6})});
    row("FREQ=MONTHLY;BYMONTHDAY=15", "2026-01-15", Monthly);
    row("FREQ=MONTHLY;INTERVAL=1", "2026-01-28", Monthly);
    row("FREQ=MONTHLY;BYMONTHDAY=30,28,29;BYSETPOS=-1", "2026-01-30", Monthly);
    row("FREQ=MONTHLY;BYMONTHDAY=-1", "2026-01-31", {.unit = Unit::Months, .monthDay = MonthDay::LastDay});
    row("FREQ=MONTHLY;BYDAY=+2TU", "2026-01-13", secondTuesday);
    row("FREQ=MONTHLY;BYDAY=TU;BYSETPOS=2", "2026-01-13", secondTuesday);
    row("FREQ=MONTHLY;BYDAY=SA;BYSETPOS=-1", "2026-01-31", secondTuesday);
    row("FREQ=YEARLY;BYMONTH=12;BYMONTHDAY=24", "2026-12-24", Yearly);
    row("FREQ=YEARLY;BYMONTHDAY=31;BYMONTH=12", "2026-12-31", Yearly);
    row("FREQ=YEARLY;BYMONTH=2", "2026-02-28", Yearly);
    row("FREQ=WEEKLY;UNTIL=20261224", "2026-01-13", {.until = year(2026) / 12 / 24});
    row("FREQ=WEEKLY;UNTIL=20261224T090000Z", "2026-01-13", {.until = year(2026) / 12 / 24});
    // It ends before the time of day.
    row("FREQ=WEEKLY;UNTIL=20261224T085959", "2026-01-13", {.until = year(2026) / 12 / 23});
}

void RepeatPatternTest::formsOfOtherPrograms()
{
    QFETCH(QByteArray, rule);
    QFETCH(QByteArray, first);
    QFETCH(RepeatPattern, pattern);
    const Moment begin = momentOf(first.toStdString());
    QVERIFY(patternOf(rule.toStdString(), begin) == pattern);
    // Saying it our way does not change a day.
    const auto daysOf = [begin](const std::string& said) {
        return daysAfter(said, begin, begin - std::chrono::seconds(1), 40);
    };
    QCOMPARE(daysOf(ruleOf(pattern, begin)), daysOf(rule.toStdString()));
}

void RepeatPatternTest::whatNoPatternSays_data()
{
    QTest::addColumn<QByteArray>("rule");
    QTest::addColumn<QByteArray>("first");
    const auto row = [](const char* rule, const char* first) {
        QTest::addRow("%s from %s", rule, first) << QByteArray(rule) << QByteArray(first);
    };
    row("rubbish", "2026-01-13");
    row("FREQ=HOURLY", "2026-01-13");
    row("FREQ=DAILY;INTERVAL=1000", "2026-01-13");
    row("FREQ=DAILY;COUNT=10000", "2026-01-13");
    row("FREQ=DAILY;COUNT=3;UNTIL=20270101", "2026-01-13");
    row("FREQ=DAILY;INTERVAL=2;BYDAY=MO", "2026-01-13");
    row("FREQ=DAILY;BYMONTH=1", "2026-01-13");
    row("FREQ=DAILY;BYMONTHDAY=1", "2026-01-13");
    row("FREQ=WEEKLY;BYDAY=MO,TU;BYSETPOS=1", "2026-01-13");
    row("FREQ=WEEKLY;BYMONTH=1", "2026-01-13");
    row("FREQ=MONTHLY", "2026-01-29");
    row("FREQ=MONTHLY;BYMONTHDAY=31", "2026-01-31");
    row("FREQ=MONTHLY;BYMONTHDAY=15", "2026-01-16");
    row("FREQ=MONTHLY;BYMONTHDAY=1,15", "2026-01-15");
    row("FREQ=MONTHLY;BYMONTHDAY=-2", "2026-01-30");
    row("FREQ=MONTHLY;BYMONTHDAY=28,29,30;BYSETPOS=-1", "2026-01-29");
    row("FREQ=MONTHLY;BYMONTHDAY=28,29;BYSETPOS=1", "2026-01-29");
    row("FREQ=MONTHLY;BYMONTHDAY=-1;BYSETPOS=1", "2026-01-29");
    row("FREQ=MONTHLY;BYMONTHDAY=13;BYDAY=TU", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=2TU", "2026-01-14");
    row("FREQ=MONTHLY;BYDAY=3TU", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=2TU,3TU", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=2TU,2WE", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=TU", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=TU,WE;BYSETPOS=2", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=2TU;BYSETPOS=1", "2026-01-13");
    row("FREQ=MONTHLY;BYDAY=5TH", "2026-01-29");
    row("FREQ=MONTHLY;BYMONTH=1", "2026-01-13");
    row("FREQ=YEARLY", "2028-02-29");
    row("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=29", "2028-02-29");
    row("FREQ=YEARLY;BYMONTHDAY=13", "2026-01-13");
    row("FREQ=YEARLY;BYMONTH=1,2", "2026-01-13");
    row("FREQ=YEARLY;BYMONTH=2", "2026-01-13");
    row("FREQ=YEARLY;BYMONTH=1;BYDAY=2TU", "2026-01-13");
    row("FREQ=YEARLY;BYDAY=2TU", "2026-01-13");
    row("FREQ=YEARLY;BYMONTH=2;BYDAY=2TU", "2026-02-10");
    row("FREQ=YEARLY;BYYEARDAY=13", "2026-01-13");
    row("FREQ=YEARLY;BYWEEKNO=3", "2026-01-13");
    row("FREQ=YEARLY;BYMONTH=1;BYMONTHDAY=13;BYSETPOS=1", "2026-01-13");
}

void RepeatPatternTest::whatNoPatternSays()
{
    QFETCH(QByteArray, rule);
    QFETCH(QByteArray, first);
    QVERIFY(!patternOf(rule.toStdString(), momentOf(first.toStdString())));
}

AMBERTASK_TEST_MAIN(RepeatPatternTest)

#include "tst_repeat_pattern.moc"
