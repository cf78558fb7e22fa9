#include "data/ReminderChecker.h"
#include "data/TaskChanges.h"
#include "data/TaskCodes.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

class TestTaskChanges : public TestCase
{
    Q_OBJECT

private slots:
    void oneTaskIsDeletedByTheStoresStatement();
    void severalTasksAreOneOperation();
    void aFullHouseIsChangedAtOnce();
    void fieldsChangeOfTheNamedTasksAlone();
    void noTaskIsNoStatement();
    void aStatementThatFailsLeavesNothingOfThoseBefore();
    void postponingLeavesTheReminderOn();
    void remindingAtALaterMomentWorksOnDismissedOnes();
    void remindingLeavesTasksWithoutAReminderAlone();
    void aCopyHasEveryFieldOfItsTask();
    void aCopyForWhichThereIsNoIdIsRefusedWithAllOthers();

private:
    static int number(const TestDatabase& database, const QString& query)
    {
        return database.sql(query).toInt();
    }
};

void TestTaskChanges::oneTaskIsDeletedByTheStoresStatement()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    TaskChanges::remove(database.engine(), {id});
    QCOMPARE(database.statements().take(),
        QStringList{QStringLiteral("delete from tasks where task_id = %1").arg(id)});
}

void TestTaskChanges::severalTasksAreOneOperation()
{
    TestDatabase database;
    const qint32 first = aTask(database).add();
    const qint32 second = aTask(database).add();
    aTask(database).add();
    const int opened = database.statements().opened();
    TaskChanges::remove(database.engine(), {first, second});
    QCOMPARE(database.statements().opened(), opened + 1);
    QCOMPARE(number(database, QStringLiteral("select count(*) from tasks")), 1);
}

void TestTaskChanges::aFullHouseIsChangedAtOnce()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    database.sql(
        QStringLiteral("with recursive n(i) as (select 2 union all select i+1 from n where i<32767) insert "
                       "into tasks(task_id,"
                       "task_name,cat_id,task_due_date,reminder_date_time) select i,'t',cat_id,task_due_date,"
                       "reminder_date_time from n, tasks where task_id=%1")
            .arg(id));
    QList<qint32> ids;
    for (qint32 every = 1; every <= 32767; ++every) {
        ids.append(every);
    }
    const int opened = database.statements().opened();
    TaskChanges::complete(database.engine(), ids);
    QCOMPARE(database.statements().opened(), opened + 1);
    QCOMPARE(number(database, QStringLiteral("select count(*) from tasks where task_status=2")), 32767);
    TaskChanges::remove(database.engine(), ids);
    QCOMPARE(database.statements().opened(), opened + 2);
    QCOMPARE(number(database, QStringLiteral("select count(*) from tasks")), 0);
}

void TestTaskChanges::fieldsChangeOfTheNamedTasksAlone()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    const qint32 other = aTask(database).add();
    const qint16 category = database.addCategory(QStringLiteral("Garden"));
    TaskChanges::setStatus(database.engine(), {id}, TaskStatus::Waiting);
    TaskChanges::setPeriority(database.engine(), {id}, TaskPeriority::Low);
    TaskChanges::setCategory(database.engine(), {id}, category);
    const QString row =
        QStringLiteral("select task_status||' '||task_periority||' '||cat_id from tasks where task_id=%1");
    QCOMPARE(database.sql(row.arg(id)).toString(), QStringLiteral("3 2 %1").arg(category));
    QCOMPARE(database.sql(row.arg(other)).toString(), QStringLiteral("0 1 1"));
}

void TestTaskChanges::noTaskIsNoStatement()
{
    TestDatabase database;
    TaskChanges::remove(database.engine(), {});
    QVERIFY(database.statements().take().isEmpty());
}

void TestTaskChanges::postponingLeavesTheReminderOn()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    const qint32 id = aTask(database).remindingAt(now - 1h).played().add();
    TaskChanges::postpone(database.engine(), {id}, now + 1h);
    QCOMPARE(ReminderChecker(database.engine()).due().size(), 0U);
    database.clock().set(now + 1h);
    const auto due = ReminderChecker(database.engine()).due();
    QCOMPARE(due.size(), 1U);
    QVERIFY(!due.front().played);
}

void TestTaskChanges::remindingAtALaterMomentWorksOnDismissedOnes()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    const qint32 id = aTask(database).remindingAt(now - 1h).played().dismissed().add();
    TaskChanges::remindAt(database.engine(), {id}, now + 1h);
    database.clock().set(now + 1h);
    QCOMPARE(ReminderChecker(database.engine()).due().size(), 1U);
}

void TestTaskChanges::remindingLeavesTasksWithoutAReminderAlone()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    const auto before = database.rows(QStringLiteral("select * from tasks"));
    TaskChanges::remindAt(database.engine(), {id}, database.clock().now() + 5h);
    QCOMPARE(database.rows(QStringLiteral("select * from tasks")), before);
}

void TestTaskChanges::aCopyHasEveryFieldOfItsTask()
{
    TestDatabase database;
    const qint32 id = aTask(database)
                          .named(QStringLiteral("it's"))
                          .describedAs(QStringLiteral("so"))
                          .withStatus(TaskStatus::Waiting)
                          .withPeriority(TaskPeriority::High)
                          .remindingAt(database.clock().now() + 1h)
                          .sounding(QStringLiteral("a.wav"))
                          .starting(QStringLiteral("b.exe"))
                          .add();
    const QList<qint32> copies = TaskChanges::duplicate(database.engine(), {id});
    QCOMPARE(copies.size(), 1);
    QVERIFY(copies.first() != id);
    auto rows = database.rows(QStringLiteral("select * from tasks order by task_id"));
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows[0].mid(1), rows[1].mid(1));
}

void TestTaskChanges::aStatementThatFailsLeavesNothingOfThoseBefore()
{
    TestDatabase database;
    const qint32 id = aTask(database).remindingAt(database.clock().now() - 1min).add();
    const auto before = database.rows(QStringLiteral("select * from tasks"));
    database.statements().failAt(QStringLiteral("dismissed=1"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, TaskChanges::complete(database.engine(), {id}));
    QCOMPARE(database.rows(QStringLiteral("select * from tasks")), before);
}

void TestTaskChanges::aCopyForWhichThereIsNoIdIsRefusedWithAllOthers()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    database.sql(QStringLiteral("update sqlite_sequence set seq=32766 where name='tasks'"));
    QVERIFY_THROWS_EXCEPTION(NoRoomError, TaskChanges::duplicate(database.engine(), {id, id}));
    QCOMPARE(number(database, QStringLiteral("select count(*) from tasks")), 1);
}

AMBERTASK_TEST_MAIN(TestTaskChanges)
#include "tst_task_changes.moc"
