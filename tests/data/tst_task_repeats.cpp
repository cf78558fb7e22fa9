#include "RepeatsUnderTest.h"
#include "data/ClsDatabase.h"
#include "data/DataFileCopies.h"
#include "data/DataFileRoad.h"
#include "data/TaskChanges.h"
#include "data/TaskCodes.h"
#include "support/CaughtError.h"
#include "support/OlderDataFile.h"
#include "support/OtherProgram.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

class TestTaskRepeats : public TestCase
{
    Q_OBJECT

private slots:
    void whatWasStoredIsRead();
    void aRowThatDoesNotConvertIsNone_data();
    void aRowThatDoesNotConvertIsNone();
    void nothingIsAskedWhileNothingRepeats();
    void aTaskIsStoredWithItsRuleInOneOperation();
    void anEditedTaskCeasesToRepeat();
    void aCompletedTaskOfTheDialogMovesOn();
    void othersMayMakeSomethingRepeat();
    void aFileThatWasLockedAtTheStartIsAskedLater();
    void aFileThatCouldNotBeUpgradedKeepsTheRulesThatItHas();
    void aRuleIsRefusedWhereThereIsNoPlaceForItAndNothingElseFails();
    void missedRemindersAreCounted();
};

void TestTaskRepeats::whatWasStoredIsRead()
{
    RepeatsUnderTest test;
    const qint32 one = test.add(test.now(), "it's;X=\"<task_name/>#1/1/2007#", 15min);
    const qint32 other = test.add(test.now() + 1s, "FREQ=DAILY", -3min);
    aTask(test.database).add();
    const auto all = TaskRepeats::all(test.engine);
    QCOMPARE(all.size(), 2U);
    QVERIFY((all.at(one) == Repeat{"it's;X=\"<task_name/>#1/1/2007#", test.now(), 15min, 0}));
    QVERIFY((all.at(other) == Repeat{"FREQ=DAILY", test.now() + 1s, -3min, 0}));
    QVERIFY(TaskRepeats::of(test.engine, other) == all.at(other));
    QVERIFY(!TaskRepeats::of(test.engine, other + 1));
}

void TestTaskRepeats::aRowThatDoesNotConvertIsNone_data()
{
    QTest::addColumn<QString>("columns");
    QTest::newRow("no moment") << QStringLiteral("first_moment='soon'");
    QTest::newRow("no number") << QStringLiteral("lead='early'");
    QTest::newRow("a number too large") << QStringLiteral("done=9999999999");
}

void TestTaskRepeats::aRowThatDoesNotConvertIsNone()
{
    QFETCH(const QString, columns);
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now());
    const qint32 sound = test.add(test.now());
    test.database.sql(QStringLiteral("update repeats set %1 where of_task=%2").arg(columns).arg(id));
    QCOMPARE(TaskRepeats::all(test.engine).size(), 1U);
    QVERIFY(TaskRepeats::of(test.engine, sound) && !TaskRepeats::of(test.engine, id));
    QVERIFY(!ClsTask(test.engine).GetTaskById(static_cast<qint16>(id))->repeat());
}

void TestTaskRepeats::nothingIsAskedWhileNothingRepeats()
{
    RepeatsUnderTest test;
    const qint32 id = aTask(test.database).add();
    const int opened = test.database.statements().opened();
    QVERIFY(TaskRepeats::all(test.engine).empty() && !TaskRepeats::of(test.engine, id));
    QCOMPARE(test.database.statements().opened(), opened);
    const ClsTask task = *ClsTask(test.engine).GetTaskById(static_cast<qint16>(id));
    task.Update();
    task.Add();
    QCOMPARE(test.database.statements().take().size(), 3);
}

void TestTaskRepeats::aTaskIsStoredWithItsRuleInOneOperation()
{
    RepeatsUnderTest test;
    const Repeat repeat{"FREQ=DAILY", test.now() + 1h, 5min, 0};
    ClsTask task(test.engine);
    task.setCategoryId(1);
    task.setDueDateTime(test.now() + 1h);
    task.setReminderDateTime(test.now() + 55min);
    task.setRepeat(repeat);
    const qint32 id = task.Add();
    QCOMPARE(test.database.statements().opened(), 1);
    QVERIFY(test.repeating.isUsed() == true);
    QVERIFY(ClsTask(test.engine).GetTaskById(static_cast<qint16>(id))->repeat() == repeat);
    // What cannot be stored with its rule is not stored.
    test.database.statements().failAt(QStringLiteral("into repeats"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, task.Add());
    task.setId(id);
    task.setTaskName(QStringLiteral("other"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, task.Update());
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from tasks where task_name=''")).toInt(), 1);
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
}

void TestTaskRepeats::anEditedTaskCeasesToRepeat()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now());
    const qint32 other = test.add(test.now());
    ClsTask task = *ClsTask(test.engine).GetTaskById(static_cast<qint16>(id));
    task.setRepeat(std::nullopt);
    task.Update();
    QVERIFY(!TaskRepeats::of(test.engine, id) && TaskRepeats::of(test.engine, other));
}

void TestTaskRepeats::aCompletedTaskOfTheDialogMovesOn()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h, "FREQ=DAILY;COUNT=2");
    ClsTask task = *ClsTask(test.engine).GetTaskById(static_cast<qint16>(id));
    task.setStatus(TaskStatus::Completed);
    task.Update();
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-16 09:00 01-16 09:00 100 1"));
    task = *ClsTask(test.engine).GetTaskById(static_cast<qint16>(id));
    task.setStatus(TaskStatus::Completed);
    task.Update();
    QCOMPARE(test.stateOf(id), QStringLiteral("2 01-16 09:00 01-16 09:00 100"));
}

void TestTaskRepeats::othersMayMakeSomethingRepeat()
{
    RepeatsUnderTest test;
    aTask(test.database).add();
    QVERIFY(!somethingRepeats(test.engine));
    test.database.sql(QStringLiteral("insert into repeats(of_task,rule) values(1,'FREQ=DAILY')"));
    QVERIFY(somethingRepeats(test.engine));
    test.database.sql(QStringLiteral("drop table repeats; pragma user_version=3"));
    QVERIFY(!somethingRepeats(test.engine));
    QCOMPARE(test.database.statements().opened(), 0);
}

void TestTaskRepeats::aFileThatWasLockedAtTheStartIsAskedLater()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now());
    test.repeating.setUsed(false);
    {
        const OtherProgram other(test.database, OtherProgram::Committing);
        QVERIFY(other.holds());
        DataFileCopies(test.engine).bringUp();
        QVERIFY_THROWS_EXCEPTION(RuntimeError, TaskRepeats::isAny(test.engine));
    }
    QVERIFY(TaskRepeats::of(test.engine, id));
}

void TestTaskRepeats::aFileThatCouldNotBeUpgradedKeepsTheRulesThatItHas()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now());
    test.database.sql(QStringLiteral("pragma user_version=0"));
    const OtherProgram other(test.database, OtherProgram::Writing);
    QVERIFY(other.holds());
    DataFileCopies(test.engine).bringUp();
    QVERIFY(TaskRepeats::of(test.engine, id));
}

void TestTaskRepeats::aRuleIsRefusedWhereThereIsNoPlaceForItAndNothingElseFails()
{
    RepeatsUnderTest test;
    const auto id = static_cast<qint16>(aTask(test.database).add());
    makeOlder(test.database);
    ClsTask task = *ClsTask(test.engine).GetTaskById(id);
    task.setRepeat(Repeat{"FREQ=DAILY", test.now(), 0min, 0});
    task.setTaskName(QStringLiteral("other"));
    const auto error = caught<RuntimeError>([&] { task.Update(); });
    QVERIFY(error && error->text().startsWith(QLatin1String("Tasks cannot repeat in this data file")));
    task = *ClsTask(test.engine).GetTaskById(id);
    QVERIFY(!task.repeat() && task.TaskName() != QLatin1String("other"));
    task.setTaskName(QStringLiteral("other"));
    task.Update();
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(ClsTask(test.engine).GetTaskById(id)->status(), TaskStatus::Completed);
}

void TestTaskRepeats::missedRemindersAreCounted()
{
    RepeatsUnderTest test;
    const Repeat repeat{"FREQ=DAILY", test.now() + 1h, 15min, 0};
    const Moment reminder = test.now() + 45min;
    const auto missed = [&](std::chrono::minutes since) {
        return TaskRepeats::missed(repeat, reminder, reminder + since);
    };
    QCOMPARE(missed(-1min), 0);
    QCOMPARE(missed(0min), 1);
    QCOMPARE(missed(23h + 59min), 1);
    QCOMPARE(missed(24h), 2);
    QCOMPARE(missed(24h * 365), 366);
    QCOMPARE(missed(24h * 99'999), 9999);
}

AMBERTASK_TEST_MAIN(TestTaskRepeats)
#include "tst_task_repeats.moc"
