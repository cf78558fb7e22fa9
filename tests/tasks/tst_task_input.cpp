#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "tasks/TaskInput.h"

#include <QTest>
#include <functional>

using namespace std::chrono_literals;

namespace
{

const Moment Now = std::chrono::local_days(std::chrono::January / 15 / 2026) + 10h;

const char TooEarly[] = "Reminder date and time should not be earlier than current system date and time";

TaskInput validInput()
{
    TaskInput input;
    input.taskName = QStringLiteral("task");
    input.categoryId = qint16(3);
    input.due = Now + 1h;
    input.reminder = Now + 1h;
    return input;
}

QString messageOf(
    const TaskInput& input, const std::optional<EditedTask>& edited = std::nullopt, Moment now = Now)
{
    const auto refusal = input.refusal(edited, now);
    return refusal ? refusal->message : QString();
}

} // namespace

class TestTaskInput : public TestCase
{
    Q_OBJECT

private slots:
    void aCompleteInputIsAccepted();
    void aReminderInTheCurrentMinuteIsTooEarly();
    void aReminderAtTheVeryMomentIsInTime();
    void aReminderOneMinuteBackIsTooEarly();
    void aReminderThatIsOffIsNotChecked();
    void anEditedReminderLeftAsLoadedMayLieInThePast();
    void anEditedReminderThatWasOffIsChecked();
    void anEditedReminderOfAnotherMomentIsChecked();
    void aLoadedReminderWithSecondsIsAnotherMoment();
    void aNameOfBlanksIsRefused_data();
    void aNameOfBlanksIsRefused();
    void aMissingCategoryIsRefused();
    void aSoundOfBlanksIsRefusedWhenItsBoxIsChecked();
    void aFileOfBlanksIsRefusedWhenItsBoxIsChecked();
    void objectionsComeInTheirOrder();
    void everyFieldReachesTheTask();
    void aNameLosesTheBlanksAroundIt();
    void aNameIsOneLine();
    void aDescriptionLosesOnlyTheBlanksAroundIt();
    void pathsAreKeptAsChosen();
    void uncheckedPathsAreNotKept();
    void pathsAreKeptWhileTheReminderIsOff();
    void theReminderMomentIsKeptWhileTheReminderIsOff();
    void aNewTaskHasNoChangedDate();
    void anEditedTaskKeepsItsId();
    void onlyAnotherReminderMomentChangesTheDate();
    void everyFieldMakesAnotherInput();
    void whatIsUnsavedIsNamedAsTypedElseAsLoaded();
    void aReminderLeftAloneFollowsAPostponement();
    void aReminderLeftAloneFollowsADismissal();
    void aReminderMovedByTheUserIsKept();
    void aReminderSwitchedByTheUserStaysSoAndKeepsTheStoredMoment();

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

void TestTaskInput::aCompleteInputIsAccepted()
{
    TaskInput input = validInput();
    QVERIFY(!input.refusal(std::nullopt, Now));
    input.reminderOn = true;
    input.hasSound = true;
    input.sound = QStringLiteral("a.wav");
    input.hasFile = true;
    input.file = QStringLiteral("run");
    QVERIFY(!input.refusal(std::nullopt, Now));
}

void TestTaskInput::aReminderInTheCurrentMinuteIsTooEarly()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now;
    const auto refusal = input.refusal(std::nullopt, Now + 1s);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QLatin1String(TooEarly));
    QCOMPARE(refusal->field, TaskField::ReminderDate);
}

void TestTaskInput::aReminderAtTheVeryMomentIsInTime()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now;
    QCOMPARE(messageOf(input, std::nullopt, Now), QString());
}

void TestTaskInput::aReminderOneMinuteBackIsTooEarly()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now - 1min;
    QCOMPARE(messageOf(input), QLatin1String(TooEarly));
    QCOMPARE(messageOf(input, EditedTask{1, true, Now + 1h}), QLatin1String(TooEarly));
}

void TestTaskInput::aReminderThatIsOffIsNotChecked()
{
    TaskInput input = validInput();
    input.reminder = Now - 24h;
    QCOMPARE(messageOf(input), QString());
    QCOMPARE(messageOf(input, EditedTask{1, false, Now + 1h}), QString());
}

void TestTaskInput::anEditedReminderLeftAsLoadedMayLieInThePast()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now - 1min;
    QCOMPARE(messageOf(input, EditedTask{1, true, Now - 1min}), QString());
}

void TestTaskInput::anEditedReminderThatWasOffIsChecked()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now - 1min;
    QCOMPARE(messageOf(input, EditedTask{1, false, Now - 1min}), QLatin1String(TooEarly));
}

void TestTaskInput::anEditedReminderOfAnotherMomentIsChecked()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now - 2min;
    QCOMPARE(messageOf(input, EditedTask{1, true, Now - 1min}), QLatin1String(TooEarly));
}

void TestTaskInput::aLoadedReminderWithSecondsIsAnotherMoment()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.reminder = Now - 1min;
    const EditedTask edited{1, true, Now - 1min + 30s};
    QCOMPARE(messageOf(input, edited), QLatin1String(TooEarly));
    QVERIFY(input.toTask(m_database.engine(), edited).DateChanged());
}

void TestTaskInput::aNameOfBlanksIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("tab and line break") << QStringLiteral("\t\n");
}

void TestTaskInput::aNameOfBlanksIsRefused()
{
    QFETCH(QString, name);
    TaskInput input = validInput();
    input.taskName = name;
    const auto refusal = input.refusal(std::nullopt, Now);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("Please enter task name."));
    QCOMPARE(refusal->field, TaskField::TaskName);
}

void TestTaskInput::aMissingCategoryIsRefused()
{
    TaskInput input = validInput();
    input.categoryId.reset();
    const auto refusal = input.refusal(std::nullopt, Now);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("Please select category."));
    QCOMPARE(refusal->field, TaskField::Category);
}

void TestTaskInput::aSoundOfBlanksIsRefusedWhenItsBoxIsChecked()
{
    TaskInput input = validInput();
    input.sound = QStringLiteral("   ");
    QCOMPARE(messageOf(input), QString());
    input.hasSound = true;
    const auto refusal = input.refusal(std::nullopt, Now);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("Please select reminder sound."));
    QCOMPARE(refusal->field, TaskField::SoundBrowse);
}

void TestTaskInput::aFileOfBlanksIsRefusedWhenItsBoxIsChecked()
{
    TaskInput input = validInput();
    input.file = QStringLiteral("   ");
    QCOMPARE(messageOf(input), QString());
    input.hasFile = true;
    const auto refusal = input.refusal(std::nullopt, Now);
    QVERIFY(refusal);
    QCOMPARE(refusal->message, QStringLiteral("Please select reminder file."));
    QCOMPARE(refusal->field, TaskField::FileBrowse);
}

void TestTaskInput::objectionsComeInTheirOrder()
{
    TaskInput input;
    input.reminderOn = true;
    input.reminder = Now - 1min;
    input.hasSound = true;
    input.hasFile = true;
    QCOMPARE(messageOf(input), QLatin1String(TooEarly));
    input.reminder = Now + 1min;
    QCOMPARE(messageOf(input), QStringLiteral("Please enter task name."));
    input.taskName = QStringLiteral("task");
    QCOMPARE(messageOf(input), QStringLiteral("Please select category."));
    input.categoryId = qint16(1);
    QCOMPARE(messageOf(input), QStringLiteral("Please select reminder sound."));
    input.sound = QStringLiteral("a.wav");
    QCOMPARE(messageOf(input), QStringLiteral("Please select reminder file."));
    input.file = QStringLiteral("run");
    QCOMPARE(messageOf(input), QString());
}

void TestTaskInput::everyFieldReachesTheTask()
{
    TaskInput input = validInput();
    input.description = QStringLiteral("about it");
    input.status = TaskStatus::Deferred;
    input.periority = TaskPeriority::High;
    input.reminderOn = true;
    input.reminder = Now + 2h;
    input.hasSound = true;
    input.sound = QStringLiteral("a.wav");
    input.hasFile = true;
    input.file = QStringLiteral("run");
    const ClsTask task = input.toTask(m_database.engine(), std::nullopt);
    QCOMPARE(task.TaskName(), QStringLiteral("task"));
    QCOMPARE(task.CategoryId(), qint16(3));
    QCOMPARE(task.Description(), QStringLiteral("about it"));
    QCOMPARE(task.status(), TaskStatus::Deferred);
    QCOMPARE(task.Periority(), TaskPeriority::High);
    QVERIFY(task.DueDateTime() == Now + 1h);
    QVERIFY(task.ReminderOn());
    QVERIFY(task.reminderDateTime() == Now + 2h);
    QCOMPARE(task.ReminderSound(), QStringLiteral("a.wav"));
    QCOMPARE(task.ReminderFile(), QStringLiteral("run"));
    QCOMPARE(task.Id(), 0);
}

void TestTaskInput::aNameLosesTheBlanksAroundIt()
{
    TaskInput input = validInput();
    input.taskName = QStringLiteral("  two  words ");
    QCOMPARE(input.toTask(m_database.engine(), std::nullopt).TaskName(), QStringLiteral("two  words"));
}

void TestTaskInput::aNameIsOneLine()
{
    TaskInput input = validInput();
    input.taskName = QStringLiteral("one\r\ntwo\nthree\u2028four\n");
    QCOMPARE(
        input.toTask(m_database.engine(), std::nullopt).TaskName(), QStringLiteral("one two three four"));
}

void TestTaskInput::aDescriptionLosesOnlyTheBlanksAroundIt()
{
    TaskInput input = validInput();
    input.description = QStringLiteral("  \tone\n  two\n ");
    QCOMPARE(input.toTask(m_database.engine(), std::nullopt).Description(), QStringLiteral("\tone\n  two\n"));
    input.description = QStringLiteral("   ");
    QCOMPARE(input.toTask(m_database.engine(), std::nullopt).Description(), QString());
}

void TestTaskInput::pathsAreKeptAsChosen()
{
    TaskInput input = validInput();
    input.hasSound = true;
    input.sound = QStringLiteral("  a.wav ");
    input.hasFile = true;
    input.file = QStringLiteral(" run ");
    const ClsTask task = input.toTask(m_database.engine(), std::nullopt);
    QCOMPARE(task.ReminderSound(), QStringLiteral("  a.wav "));
    QCOMPARE(task.ReminderFile(), QStringLiteral(" run "));
}

void TestTaskInput::uncheckedPathsAreNotKept()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    input.sound = QStringLiteral("a.wav");
    input.file = QStringLiteral("run");
    const ClsTask task = input.toTask(m_database.engine(), std::nullopt);
    QCOMPARE(task.ReminderSound(), QString());
    QCOMPARE(task.ReminderFile(), QString());
}

void TestTaskInput::pathsAreKeptWhileTheReminderIsOff()
{
    TaskInput input = validInput();
    input.hasSound = true;
    input.sound = QStringLiteral("a.wav");
    input.hasFile = true;
    input.file = QStringLiteral("run");
    const ClsTask task = input.toTask(m_database.engine(), std::nullopt);
    QVERIFY(!task.ReminderOn());
    QCOMPARE(task.ReminderSound(), QStringLiteral("a.wav"));
    QCOMPARE(task.ReminderFile(), QStringLiteral("run"));
}

void TestTaskInput::theReminderMomentIsKeptWhileTheReminderIsOff()
{
    TaskInput input = validInput();
    input.reminder = Now - 48h;
    QVERIFY(input.toTask(m_database.engine(), std::nullopt).reminderDateTime() == Now - 48h);
}

void TestTaskInput::aNewTaskHasNoChangedDate()
{
    QVERIFY(!validInput().toTask(m_database.engine(), std::nullopt).DateChanged());
}

void TestTaskInput::anEditedTaskKeepsItsId()
{
    QCOMPARE(validInput().toTask(m_database.engine(), EditedTask{7, false, Now}).Id(), 7);
}

void TestTaskInput::onlyAnotherReminderMomentChangesTheDate()
{
    TaskInput input = validInput();
    const EditedTask edited{7, true, input.reminder};
    input.taskName = QStringLiteral("another name");
    input.due += 24h;
    input.reminderOn = false;
    QVERIFY(!input.toTask(m_database.engine(), edited).DateChanged());
    input.reminder += 1min;
    QVERIFY(input.toTask(m_database.engine(), edited).DateChanged());
}

void TestTaskInput::everyFieldMakesAnotherInput()
{
    const TaskInput filled = validInput();
    QVERIFY(validInput() == filled);
    const QList<std::function<void(TaskInput&)>> changes{[](TaskInput& i) { i.taskName += u'x'; },
        [](TaskInput& i) { i.categoryId = qint16(4); }, [](TaskInput& i) { i.categoryId.reset(); },
        [](TaskInput& i) { i.description += u'x'; }, [](TaskInput& i) { i.due += 1min; },
        [](TaskInput& i) { i.status = TaskStatus::Deferred; },
        [](TaskInput& i) { i.periority = TaskPeriority::High; }, [](TaskInput& i) { i.rule = "FREQ=DAILY"; },
        [](TaskInput& i) { i.reminderOn = true; }, [](TaskInput& i) { i.reminder += 1min; },
        [](TaskInput& i) { i.hasSound = true; }, [](TaskInput& i) { i.sound += u'x'; },
        [](TaskInput& i) { i.hasFile = true; },
        [](TaskInput& i) {
            i.file += u'x';
        }};
    for (const auto& change : changes) {
        TaskInput input = validInput();
        change(input);
        QVERIFY(input != filled);
    }
}

void TestTaskInput::whatIsUnsavedIsNamedAsTypedElseAsLoaded()
{
    TaskInput filled = validInput();
    TaskInput input = filled;
    input.taskName = QStringLiteral(" <b>tea\nand %1</b> ");
    QCOMPARE(input.unsavedText(filled), QStringLiteral("The changes to '<b>tea and %1</b>' are not saved."));
    input.taskName = QStringLiteral("  ");
    QCOMPARE(input.unsavedText(filled), QStringLiteral("The changes to 'task' are not saved."));
    filled.taskName.clear();
    QCOMPARE(input.unsavedText(filled), QStringLiteral("The changes to the task are not saved."));
}

void TestTaskInput::aReminderLeftAloneFollowsAPostponement()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    EditedTask edited{7, true, input.reminder};
    input.followReminder(edited, stored(true, Now + 3h));
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(task.reminderDateTime() == Now + 3h);
    QVERIFY(task.ReminderOn());
    QVERIFY(!task.DateChanged());
}

void TestTaskInput::aReminderLeftAloneFollowsADismissal()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    EditedTask edited{7, true, input.reminder};
    input.followReminder(edited, stored(false, input.reminder));
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(!task.ReminderOn());
    QVERIFY(!task.DateChanged());
}

void TestTaskInput::aReminderMovedByTheUserIsKept()
{
    TaskInput input = validInput();
    input.reminderOn = true;
    EditedTask edited{7, true, input.reminder};
    input.reminder += 5min;
    input.followReminder(edited, stored(false, Now + 3h));
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(task.ReminderOn());
    QVERIFY(task.reminderDateTime() == input.reminder);
    QVERIFY(task.DateChanged());
}

void TestTaskInput::aReminderSwitchedByTheUserStaysSoAndKeepsTheStoredMoment()
{
    TaskInput input = validInput();
    EditedTask edited{7, true, input.reminder};
    input.reminderOn = false;
    input.followReminder(edited, stored(true, Now + 3h));
    const ClsTask task = input.toTask(m_database.engine(), edited);
    QVERIFY(!task.ReminderOn());
    QVERIFY(task.reminderDateTime() == Now + 3h);
    QVERIFY(!task.DateChanged());
}

AMBERTASK_TEST_MAIN(TestTaskInput)
#include "tst_task_input.moc"
