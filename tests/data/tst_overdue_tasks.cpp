#include "data/OverdueTasks.h"
#include "data/TaskCodes.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

class OverdueTasksTest : public TestCase
{
    Q_OBJECT

private slots:
    void anEmptyFileHasNoneAndNeverWill()
    {
        TestDatabase database;
        const OverdueTasks tasks = OverdueTasks::read(database.engine());
        QCOMPARE(tasks.count, 0);
        QVERIFY(!tasks.nextDue);
    }

    void openTasksPastTheirMomentCount()
    {
        TestDatabase database;
        const Moment now = database.clock().now();
        for (const qint32 status :
            {TaskStatus::NotStarted, TaskStatus::InProgress, TaskStatus::Waiting, TaskStatus::Deferred}) {
            aTask(database).withStatus(status).dueAt(now - 1s).add();
        }
        aTask(database).withStatus(TaskStatus::Completed).dueAt(now - 24h).add();
        aTask(database).dueAt(now).add();
        QCOMPARE(OverdueTasks::read(database.engine()).count, 4);
    }

    void theNextMomentIsThatOfAnOpenTask()
    {
        TestDatabase database;
        const Moment now = database.clock().now();
        aTask(database).dueAt(now + 2h).add();
        aTask(database).dueAt(now + 90min).add();
        aTask(database).withStatus(TaskStatus::Completed).dueAt(now + 1h).add();
        aTask(database).dueAt(now - 1h).add();
        const OverdueTasks tasks = OverdueTasks::read(database.engine());
        QCOMPARE(tasks.nextDue.value_or(Moment{}), now + 90min);
        database.clock().set(*tasks.nextDue);
        QCOMPARE(OverdueTasks::read(database.engine()).count, 1);
        database.clock().step(1s);
        QCOMPARE(OverdueTasks::read(database.engine()).count, 2);
    }

    void aTaskWithoutACategoryIsInNoListAndDoesNotCount()
    {
        TestDatabase database;
        aTask(database).in(99).dueAt(database.clock().now() - 1h).add();
        QCOMPARE(OverdueTasks::read(database.engine()).count, 0);
    }

    void aTaskWithoutAReadableDueDateIsInNoListAndDoesNotCount()
    {
        TestDatabase database;
        aTask(database).add();
        database.sql(QStringLiteral("update tasks set task_due_date=''"));
        const OverdueTasks tasks = OverdueTasks::read(database.engine());
        QCOMPARE(tasks.count, 0);
        QVERIFY(!tasks.nextDue);
    }

    void itIsOneStatementOnAConnectionThatIsClosed()
    {
        TestDatabase database;
        OverdueTasks::read(database.engine());
        QCOMPARE(database.statements().take().size(), 1);
        QCOMPARE(database.statements().opened(), 1);
        QCOMPARE(database.statements().closed(), 1);
    }
};

AMBERTASK_TEST_MAIN(OverdueTasksTest)
#include "tst_overdue_tasks.moc"
