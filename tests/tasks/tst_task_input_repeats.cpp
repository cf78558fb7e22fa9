#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "tasks/TaskInput.h"

#include <QTest>

using namespace std::chrono_literals;

namespace
{

const Moment Now = std::chrono::local_days(std::chrono::January / 15 / 2026) + 10h;
const std::string Daily = "FREQ=DAILY";

TaskInput validInput()
{
    TaskInput input;
    input.taskName = QStringLiteral("task");
    input.categoryId = qint16(3);
    input.due = Now + 1h;
    input.reminder = Now + 1h;
    return input;
}

/// Due in an hour, reminding 15 minutes before.
TaskInput dailyInput()
{
    TaskInput input = validInput();
    input.rule = Daily;
    input.reminderOn = true;
    input.reminder = input.due - 15min;
    return input;
}

/// The stored task of that input, for the fourth time.
EditedTask dailyTask()
{
    return {7, true, Now + 45min, Now + 1h, Repeat{Daily, Now - 71h, 15min, 3}};
}

} // namespace

/// How the input of the task dialog says that a task repeats.
class TestTaskInputRepeats : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskThatDoesNotRepeatHasNoRepeat();
    void aNewRepeatCountsFromTheDueMoment();
    void aReminderThatIsOffGivesANewRepeatNoLead();
    void anUnchangedRepeatGoesOn();
    void anotherRuleOrDueMomentBeginsAnew();
    void anotherRepeatKeepsTheLeadOfAReminderThatIsOff();
    void anotherRepeatKeepsTheLeadOfAReminderThatWasPutOff();
    void onlyTheUsersReminderChangesTheLead();
    void theReminderOfALaterTimeTellsTheLeadOfThatTime();
    void aReminderThatHasComeGivesANewDueMomentOneOfItsOwn();
    void aReminderThatHasComeTellsTheLeadOfTheFirstRuleByItsOwnDueMoment();
    void aReminderSwitchedOnMeanwhileIsNotTheUsers();
    void aRepeatLeftAloneFollowsTheStoredTask();
    void aRepeatThatTheStoreHasEndedStaysEnded();
    void aRepeatChangedByTheUserIsKept();
    void aCompletedTaskKeepsTheDueMomentThatWasShown();
    void aTaskThatNeverRepeatsKeepsItsDueMoment();

private:
    ClsTask stored(bool reminderOn, Moment reminder)
    {
        ClsTask task(m_database.engine());
        task.setReminderOn(reminderOn);
        task.setReminderDateTime(reminder);
        return task;
    }

    TestDatabase m_database;
};

void TestTaskInputRepeats::aTaskThatDoesNotRepeatHasNoRepeat()
{
    QVERIFY(!validInput().toTask(m_database.engine(), std::nullopt).repeat());
    TaskInput input = dailyInput();
    input.rule.clear();
    QVERIFY(!input.repeat(dailyTask(), Now));
}

void TestTaskInputRepeats::aNewRepeatCountsFromTheDueMoment()
{
    TaskInput input = dailyInput();
    const auto stored = input.toTask(m_database.engine(), std::nullopt).repeat();
    QVERIFY(stored == std::optional(Repeat{Daily, Now + 1h, 15min, 0}));
    input.reminder = input.due + 10min;
    QCOMPARE(input.repeat(std::nullopt, Now)->lead, std::chrono::minutes(-10));
}

void TestTaskInputRepeats::aReminderThatIsOffGivesANewRepeatNoLead()
{
    TaskInput input = dailyInput();
    input.reminderOn = false;
    QCOMPARE(input.repeat(std::nullopt, Now)->lead, std::chrono::minutes(0));
}

void TestTaskInputRepeats::anUnchangedRepeatGoesOn()
{
    const EditedTask edited = dailyTask();
    QVERIFY(dailyInput().repeat(edited, Now) == edited.repeat);
}

void TestTaskInputRepeats::anotherRuleOrDueMomentBeginsAnew()
{
    TaskInput input = dailyInput();
    input.rule = "FREQ=WEEKLY";
    QVERIFY(input.repeat(dailyTask(), Now) == std::optional(Repeat{"FREQ=WEEKLY", Now + 1h, 15min, 0}));
    input = dailyInput();
    input.due += 24h;
    QVERIFY(input.repeat(dailyTask(), Now) == std::optional(Repeat{Daily, Now + 25h, 24h + 15min, 0}));
}

void TestTaskInputRepeats::anotherRepeatKeepsTheLeadOfAReminderThatIsOff()
{
    TaskInput input = dailyInput();
    input.due += 3h;
    input.reminderOn = false;
    QCOMPARE(input.repeat(dailyTask(), Now)->lead, std::chrono::minutes(15));
}

void TestTaskInputRepeats::anotherRepeatKeepsTheLeadOfAReminderThatWasPutOff()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    input.rule = "FREQ=WEEKLY";
    // Or that is the next one already, as this one has been seen.
    edited.reminder = input.reminder = Now + 24h + 45min;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(15));
    input.reminder = Now + 30min;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(30));
}

void TestTaskInputRepeats::onlyTheUsersReminderChangesTheLead()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    // Put off by the alert.
    edited.reminder = input.reminder = Now + 2h;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(15));
    input.reminder = Now + 55min;
    QVERIFY(input.repeat(edited, Now) == std::optional(Repeat{Daily, Now - 71h, 5min, 3}));
    edited.reminderOn = false;
    edited.reminder = input.reminder;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(5));
}

void TestTaskInputRepeats::theReminderOfALaterTimeTellsTheLeadOfThatTime()
{
    // This time's has been dismissed before it was due.
    EditedTask edited = dailyTask();
    edited.reminder = Now + 24h + 45min;
    TaskInput input = dailyInput();
    input.reminder = Now + 24h + 30min;
    QVERIFY(input.repeat(edited, Now) == std::optional(Repeat{Daily, Now - 71h, 30min, 3}));
    // Before this time again.
    input.reminder = Now + 40min;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(20));
    // One that was put off is of no other time.
    edited.reminder = Now + 2h;
    input.reminder = Now + 3h;
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(-120));
}

void TestTaskInputRepeats::aReminderThatHasComeGivesANewDueMomentOneOfItsOwn()
{
    const Moment later = Now + 2h;
    const EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    input.due += 48h;
    const auto stored = [&] {
        SteppedClock clock(later);
        DatabaseEngine engine = m_database.engine();
        engine.clock = &clock;
        return input.toTask(engine, edited);
    };
    ClsTask task = stored();
    QVERIFY(task.repeat() == std::optional(Repeat{Daily, Now + 49h, 15min, 0}));
    QCOMPARE(task.reminderDateTime(), Now + 49h - 15min);
    QVERIFY(task.DateChanged());
    // One that lies ahead stays where it is seen, and so does that of a due moment that is past.
    input.due = Now + 90min;
    task = stored();
    QCOMPARE(task.reminderDateTime(), edited.reminder);
    QVERIFY(!task.DateChanged());
    input.due = Now + 49h;
    input.reminder = later + 1h;
    QCOMPARE(stored().reminderDateTime(), later + 1h);
}

void TestTaskInputRepeats::aReminderThatHasComeTellsTheLeadOfTheFirstRuleByItsOwnDueMoment()
{
    EditedTask edited = dailyTask();
    edited.repeat.reset();
    TaskInput input = dailyInput();
    input.due += 24h;
    QCOMPARE(input.repeat(edited, Now + 2h)->lead, std::chrono::minutes(15));
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(24 * 60 + 15));
    // Put off beyond its due moment.
    edited.reminder = input.reminder = Now + 90min;
    QCOMPARE(input.repeat(edited, Now + 2h)->lead, std::chrono::minutes(0));
}

void TestTaskInputRepeats::aReminderSwitchedOnMeanwhileIsNotTheUsers()
{
    EditedTask edited = dailyTask();
    edited.reminderOn = false;
    TaskInput input = dailyInput();
    input.reminderOn = false;
    input.followReminder(edited, stored(true, Now + 2h));
    QVERIFY(input.reminderOn);
    QCOMPARE(input.repeat(edited, Now)->lead, std::chrono::minutes(15));
}

void TestTaskInputRepeats::aRepeatLeftAloneFollowsTheStoredTask()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    ClsTask moved = stored(true, Now + 24h);
    moved.setDueDateTime(Now + 25h);
    moved.setRepeat(Repeat{Daily, Now - 71h, 15min, 4});
    input.followReminder(edited, moved);
    input.followRepeat(edited, moved);
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(task.DueDateTime() == Now + 25h);
    QVERIFY(task.repeat() == moved.repeat());
}

void TestTaskInputRepeats::aRepeatThatTheStoreHasEndedStaysEnded()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    ClsTask ended = stored(true, input.reminder);
    ended.setDueDateTime(edited.due);
    input.followRepeat(edited, ended);
    QVERIFY(!input.toTask(m_database.engine(), edited).repeat());
}

void TestTaskInputRepeats::aRepeatChangedByTheUserIsKept()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    input.due += 1h;
    ClsTask moved = stored(true, input.reminder);
    moved.setDueDateTime(Now + 25h);
    moved.setRepeat(Repeat{Daily, Now - 71h, 15min, 4});
    input.followRepeat(edited, moved);
    QVERIFY(input.toTask(m_database.engine(), edited).DueDateTime() == Now + 2h);
    QCOMPARE(input.repeat(edited, Now)->done, 0);
}

void TestTaskInputRepeats::aCompletedTaskKeepsTheDueMomentThatWasShown()
{
    EditedTask edited = dailyTask();
    TaskInput input = dailyInput();
    input.status = TaskStatus::Completed;
    ClsTask moved = stored(true, input.reminder);
    moved.setDueDateTime(Now + 25h);
    moved.setRepeat(Repeat{Daily, Now - 71h, 15min, 4});
    input.followRepeat(edited, moved);
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(task.DueDateTime() == Now + 1h);
    QCOMPARE(task.repeat()->done, 3);
}

void TestTaskInputRepeats::aTaskThatNeverRepeatsKeepsItsDueMoment()
{
    TaskInput input = validInput();
    EditedTask edited{7, false, input.reminder, input.due, {}};
    ClsTask moved = stored(false, input.reminder);
    moved.setDueDateTime(Now + 25h);
    input.followRepeat(edited, moved);
    QVERIFY(input.due == Now + 1h);
}

AMBERTASK_TEST_MAIN(TestTaskInputRepeats)
#include "tst_task_input_repeats.moc"
