#include "support/TestMain.h"
#include "tasks/RepeatChoices.h"
#include "tasks/RepeatInput.h"

#include <QTest>

using namespace std::chrono_literals;
using Unit = RepeatPattern::Unit;
using MonthDay = RepeatPattern::MonthDay;
using End = RepeatInput::End;

namespace
{

/// The second Tuesday of a month.
const Moment Tuesday = std::chrono::local_days(std::chrono::January / 13 / 2026) + 9h;
const Moment Saturday = std::chrono::local_days(std::chrono::January / 17 / 2026) + 9h;
constexpr int UsualEntries = 9;

/// The entries in the order of the list.
enum Usual { Never, Day, Weekday, Week, TwoWeeks, SameDay, LastDay, NthWeekday, Year };

RepeatPattern every(int number, Unit unit)
{
    RepeatPattern pattern;
    pattern.unit = unit;
    pattern.every = number;
    return pattern;
}

RepeatChoices choicesFor(Moment due)
{
    RepeatChoices choices;
    choices.reset(due);
    return choices;
}

RepeatChoices::Entry entryOf(const RepeatChoices& choices, int index)
{
    return choices.entries().at(static_cast<std::size_t>(index));
}

std::string chosenRule(const RepeatChoices& choices)
{
    return entryOf(choices, choices.chosen()).rule;
}

} // namespace

class TestRepeatChoice : public TestCase
{
    Q_OBJECT

private slots:
    void theUsualWaysAreOfferedAndNeverIsChosen();
    void everyEntrySaysItsOwnRule();
    void theNthWeekdayIsNamedAndFollowsTheDueMoment();
    void aChosenEntryFollowsTheDueMoment();
    void anUnusualPatternIsAnEntryOfItsOwnUntilAnotherIs();
    void aStoredRuleIsChosenAsItIs();
    void aStoredRuleThatNamesItsOwnWeekdayIsAUsualOne();
    void aStoredRuleCountsFromItsFirstMomentAndNotFromThePresentOne();
    void anotherDueMomentMakesAStoredPatternAnew();
    void aRuleThatIsNoPatternStaysAsItIs();
    void aStoredTaskIsForgotten();
    void whatIsChangedBeginsWithWhatIsChosen();

    void aPatternReadBackIsTheSame_data();
    void aPatternReadBackIsTheSame();
    void theWeekdayOfTheDueMomentIsTickedAndLeftOut();
    void onlyWhatCountsIsInThePattern();
    void aWeekWithoutADayIsRefused();
    void anEndBeforeTheDueDateIsRefused();
    void anEndOnTheDueDateIsAllowed();
    void whatDoesNotCountIsNotRefused();
    void dueMomentsBeginWithTheTasksOwn();
    void dueMomentsEndWithTheSeries();
};

void TestRepeatChoice::theUsualWaysAreOfferedAndNeverIsChosen()
{
    const RepeatChoices choices = choicesFor(Tuesday);
    QStringList captions;
    for (const RepeatChoices::Entry& entry : choices.entries()) {
        captions.append(entry.caption);
    }
    QCOMPARE(captions,
        QStringList({"Never", "Every day", "Every weekday", "Every week", "Every 2 weeks",
            "Every month on the same day", "Every month on the last day", "Every month on the second Tuesday",
            "Every year"}));
    QCOMPARE(choices.chosen(), int(Never));
    QCOMPARE(chosenRule(choices), std::string());
}

void TestRepeatChoice::everyEntrySaysItsOwnRule()
{
    const RepeatChoices choices = choicesFor(Tuesday);
    QStringList rules;
    for (const RepeatChoices::Entry& entry : choices.entries()) {
        rules.append(QString::fromStdString(entry.rule));
    }
    QCOMPARE(rules.size(), UsualEntries);
    QCOMPARE(rules.removeDuplicates(), 0);
    QCOMPARE(rules.at(Day).toStdString(), ruleOf(every(1, Unit::Days), Tuesday));
    QCOMPARE(rules.at(TwoWeeks).toStdString(), ruleOf(every(2, Unit::Weeks), Tuesday));
    QCOMPARE(rules.at(Year).toStdString(), ruleOf(every(1, Unit::Years), Tuesday));
}

void TestRepeatChoice::theNthWeekdayIsNamedAndFollowsTheDueMoment()
{
    RepeatChoices choices = choicesFor(Tuesday);
    const RepeatChoices::Entry before = entryOf(choices, NthWeekday);
    choices.setDue(Tuesday + std::chrono::days(8));
    const RepeatChoices::Entry after = entryOf(choices, NthWeekday);
    QCOMPARE(after.caption, QStringLiteral("Every month on the third Wednesday"));
    QVERIFY(after.rule != before.rule);
}

void TestRepeatChoice::aChosenEntryFollowsTheDueMoment()
{
    RepeatChoices choices = choicesFor(Tuesday);
    choices.choose(NthWeekday);
    choices.setDue(Saturday);
    QCOMPARE(choices.chosen(), int(NthWeekday));
    RepeatPattern pattern = every(1, Unit::Months);
    pattern.monthDay = MonthDay::NthWeekday;
    QCOMPARE(chosenRule(choices), ruleOf(pattern, Saturday));
}

void TestRepeatChoice::anUnusualPatternIsAnEntryOfItsOwnUntilAnotherIs()
{
    RepeatChoices choices = choicesFor(Tuesday);
    choices.choose(every(3, Unit::Weeks));
    QCOMPARE(choices.entries().size(), std::size_t(UsualEntries + 1));
    QCOMPARE(choices.chosen(), UsualEntries);
    const std::string rule = ruleOf(every(3, Unit::Weeks), Tuesday);
    QCOMPARE(entryOf(choices, UsualEntries),
        (RepeatChoices::Entry{QStringLiteral("Every 3 weeks on Tuesday"), rule}));

    choices.choose(int(Day));
    QCOMPARE(choices.entries().size(), std::size_t(UsualEntries + 1));
    choices.choose(every(4, Unit::Years));
    QCOMPARE(choices.entries().size(), std::size_t(UsualEntries + 1));
    QCOMPARE(chosenRule(choices), ruleOf(every(4, Unit::Years), Tuesday));
    choices.choose(every(1, Unit::Days));
    QCOMPARE(choices.chosen(), int(Day));
}

void TestRepeatChoice::aStoredRuleIsChosenAsItIs()
{
    RepeatChoices choices;
    const Repeat daily{"FREQ=DAILY;INTERVAL=1", Tuesday - std::chrono::days(5), 15min, 5};
    choices.load(daily, Tuesday);
    QCOMPARE(choices.chosen(), int(Day));
    QCOMPARE(chosenRule(choices), daily.rule);
    QVERIFY(choices.repeatBy(choices.pattern()) == daily);
}

void TestRepeatChoice::aStoredRuleThatNamesItsOwnWeekdayIsAUsualOne()
{
    RepeatChoices choices;
    choices.load({"FREQ=WEEKLY;BYDAY=TU", Tuesday, {}, 2}, Tuesday);
    QCOMPARE(choices.chosen(), int(Week));
    QCOMPARE(chosenRule(choices), std::string("FREQ=WEEKLY;BYDAY=TU"));
    choices.load({"FREQ=WEEKLY;BYDAY=MO", Tuesday, {}, 2}, Tuesday);
    QCOMPARE(choices.chosen(), UsualEntries);
    choices.setDue(Saturday);
    QCOMPARE(entryOf(choices, UsualEntries).caption, QStringLiteral("Every week on Monday"));
}

void TestRepeatChoice::aStoredRuleCountsFromItsFirstMomentAndNotFromThePresentOne()
{
    const Moment first = std::chrono::local_days(std::chrono::January / 31 / 2026) + 9h;
    const Moment due = std::chrono::local_days(std::chrono::February / 28 / 2026) + 9h;
    const Repeat monthly{ruleOf(every(1, Unit::Months), first), first, {}, 1};
    RepeatChoices choices;
    choices.load(monthly, due);
    QCOMPARE(chosenRule(choices), monthly.rule);
    QVERIFY(chosenRule(choices) != ruleOf(every(1, Unit::Months), due));
}

void TestRepeatChoice::anotherDueMomentMakesAStoredPatternAnew()
{
    RepeatChoices choices;
    choices.load({ruleOf(every(1, Unit::Months), Tuesday), Tuesday, {}, 3}, Tuesday);
    const int chosen = choices.chosen();
    choices.setDue(Saturday);
    QCOMPARE(choices.chosen(), chosen);
    QCOMPARE(chosenRule(choices), ruleOf(every(1, Unit::Months), Saturday));
    QVERIFY(choices.repeatBy(choices.pattern()) == (Repeat{chosenRule(choices), Saturday, {}, 0}));
    choices.setDue(Tuesday);
    QCOMPARE(choices.repeatBy(choices.pattern()).done, 3);
}

void TestRepeatChoice::aRuleThatIsNoPatternStaysAsItIs()
{
    const std::string rule = "FREQ=YEARLY;BYMONTH=2,7;BYDAY=1SU,-1FR";
    QVERIFY(!patternOf(rule, Tuesday));
    RepeatChoices choices;
    choices.load({rule, Tuesday, {}, 0}, Tuesday);
    QCOMPARE(choices.chosen(), UsualEntries);
    const RepeatChoices::Entry expected{QStringLiteral("By a rule of another program"), rule};
    QCOMPARE(entryOf(choices, UsualEntries), expected);
    choices.setDue(Saturday);
    QCOMPARE(chosenRule(choices), rule);
}

void TestRepeatChoice::aStoredTaskIsForgotten()
{
    RepeatChoices choices;
    choices.load({ruleOf(every(3, Unit::Weeks), Tuesday), Tuesday, {}, 4}, Tuesday);
    choices.reset(Tuesday);
    QCOMPARE(choices.entries().size(), std::size_t(UsualEntries));
    QCOMPARE(choices.chosen(), int(Never));
    QCOMPARE(choices.repeatBy(every(3, Unit::Weeks)).done, 0);
}

void TestRepeatChoice::whatIsChangedBeginsWithWhatIsChosen()
{
    RepeatChoices choices = choicesFor(Tuesday);
    QCOMPARE(choices.pattern(), every(1, Unit::Weeks));
    choices.choose(int(Year));
    QCOMPARE(choices.pattern(), every(1, Unit::Years));
    choices.load({"FREQ=YEARLY;BYMONTH=2,7;BYDAY=1SU,-1FR", Tuesday, {}, 0}, Tuesday);
    QCOMPARE(choices.pattern(), every(1, Unit::Weeks));
}

void TestRepeatChoice::aPatternReadBackIsTheSame_data()
{
    QTest::addColumn<RepeatPattern>("pattern");
    QTest::newRow("days") << every(3, Unit::Days);
    QTest::newRow("weeks") << every(2, Unit::Weeks);
    RepeatPattern weekdays = every(1, Unit::Weeks);
    weekdays.weekdays = std::bitset<7>("0100001");
    QTest::newRow("weeks on weekdays") << weekdays;
    RepeatPattern months = every(2, Unit::Months);
    months.monthDay = MonthDay::LastDay;
    months.times = 12;
    QTest::newRow("months, some times") << months;
    RepeatPattern years = every(1, Unit::Years);
    years.until = std::chrono::May / 4 / 2031;
    QTest::newRow("years until a day") << years;
}

void TestRepeatChoice::aPatternReadBackIsTheSame()
{
    QFETCH(const RepeatPattern, pattern);
    QCOMPARE(RepeatInput::of(pattern, Tuesday).pattern(Tuesday), pattern);
}

void TestRepeatChoice::theWeekdayOfTheDueMomentIsTickedAndLeftOut()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Weeks), Tuesday);
    QCOMPARE(input.weekdays, std::bitset<7>("0000010"));
    QCOMPARE(input.pattern(Tuesday).weekdays, std::bitset<7>());
    input.weekdays.set(0);
    QCOMPARE(input.pattern(Tuesday).weekdays, std::bitset<7>("0000011"));
}

void TestRepeatChoice::onlyWhatCountsIsInThePattern()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Days), Tuesday);
    input.weekdays.set();
    input.monthDay = MonthDay::LastDay;
    QCOMPARE(input.pattern(Tuesday), every(1, Unit::Days));
    input.end = End::Times;
    QCOMPARE(input.pattern(Tuesday).times, std::optional(10));
    QVERIFY(!input.pattern(Tuesday).until);
    input.end = End::Date;
    QVERIFY(!input.pattern(Tuesday).times);
    QCOMPARE(input.pattern(Tuesday).until, std::optional(dayOf(Tuesday + std::chrono::days(365))));
}

void TestRepeatChoice::aWeekWithoutADayIsRefused()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Weeks), Tuesday);
    QVERIFY(!input.refusal(Tuesday));
    input.weekdays.reset();
    const auto refusal = input.refusal(Tuesday);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("Please tick a weekday."));
    QVERIFY(refusal->field == RepeatInput::Field::Weekdays);
}

void TestRepeatChoice::anEndBeforeTheDueDateIsRefused()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Days), Tuesday);
    input.end = End::Date;
    input.lastDay = dayOf(Tuesday - std::chrono::days(1));
    const auto refusal = input.refusal(Tuesday);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("The last day should not be earlier than the due date."));
    QVERIFY(refusal->field == RepeatInput::Field::LastDay);
}

void TestRepeatChoice::anEndOnTheDueDateIsAllowed()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Days), Tuesday);
    input.end = End::Date;
    input.lastDay = dayOf(Tuesday);
    QVERIFY(!input.refusal(Tuesday));
}

void TestRepeatChoice::whatDoesNotCountIsNotRefused()
{
    RepeatInput input = RepeatInput::of(every(1, Unit::Months), Tuesday);
    input.weekdays.reset();
    input.lastDay = dayOf(Tuesday - std::chrono::days(1));
    QVERIFY(!input.refusal(Tuesday));
}

void TestRepeatChoice::dueMomentsBeginWithTheTasksOwn()
{
    const Repeat repeat{"FREQ=DAILY;INTERVAL=2", Tuesday, {}, 0};
    const std::vector<Moment> expected{
        Tuesday, Tuesday + std::chrono::days(2), Tuesday + std::chrono::days(4)};
    QVERIFY(dueMoments(repeat, Tuesday, 3) == expected);
    const std::vector<Moment> later{expected[2], Tuesday + std::chrono::days(6)};
    QVERIFY(dueMoments(repeat, expected[2], 2) == later);
}

void TestRepeatChoice::dueMomentsEndWithTheSeries()
{
    QCOMPARE(dueMoments({"FREQ=DAILY;COUNT=2", Tuesday, {}, 0}, Tuesday, 5).size(), std::size_t(2));
    QCOMPARE(dueMoments({"FREQ=NEVER", Tuesday, {}, 0}, Tuesday, 5).size(), std::size_t(1));
}

AMBERTASK_TEST_MAIN(TestRepeatChoice)
#include "tst_repeat_choice.moc"
