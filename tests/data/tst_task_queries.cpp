#include "data/ClsTask.h"
#include "data/TaskCodes.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

namespace
{

const Moment From = makeMoment(2007y / 1 / 1);
const Moment To = makeMoment(2007y / 1 / 31);

const QString Join =
    QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

QString names(const std::vector<ClsTask>& tasks)
{
    QStringList all;
    for (const ClsTask& task : tasks) {
        all.append(task.TaskName());
    }
    return all.join(QLatin1Char(' '));
}

} // namespace

class TaskQueriesTest : public TestCase
{
    Q_OBJECT

private slots:
    void listStatements_data();
    void listStatements();
    void rangeStatements_data();
    void rangeStatements();
    void anUnknownTaskTypeIsRefused();
    void filtersByCategory();
    void filtersByStatus();
    void expiredAndActiveAreSplitByTheClock();
    void aRangeHoldsItsLastDayToTheLastMinute();
    void sortsByEachKey();
    void namesAreSortedWithoutCase();
    void countsWhatItWouldDelete();
    void deletesWhatItCounted();
    void noTasksMakeAnEmptyListAndACountOfZero();
};

void TaskQueriesTest::listStatements_data()
{
    QTest::addColumn<int>("cat");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("sortBy");
    QTest::addColumn<bool>("isDateRange");
    QTest::addColumn<int>("taskType");
    QTest::addColumn<QString>("tail");
    QTest::newRow("everything") << -2 << 5 << 4 << false << 2 << "";
    QTest::newRow("category") << 3 << 5 << 4 << false << 2 << " where categories.cat_id= 3";
    QTest::newRow("category -1") << -1 << 5 << 4 << false << 2 << " where categories.cat_id= -1";
    QTest::newRow("status") << -2 << 0 << 4 << false << 2 << " where task_status = 0";
    QTest::newRow("category and status")
        << 3 << 4 << 4 << false << 2 << " where categories.cat_id= 3 and task_status = 4";
    QTest::newRow("active") << -2 << 5 << 4 << false << 0 << " where task_due_date  >=now()";
    QTest::newRow("expired") << -2 << 5 << 4 << false << 1 << " where task_due_date  <now()";
    QTest::newRow("status and expired")
        << -2 << 1 << 4 << false << 1 << " where task_status = 1 and task_due_date  <now()";
    QTest::newRow("range") << -2 << 5 << 4 << true << 2
                           << " where task_due_date >= #1/1/2007# and task_due_date <= #1/31/2007 23:59# ";
    QTest::newRow("name") << -2 << 5 << 0 << false << 2 << " order by task_name";
    QTest::newRow("by status") << -2 << 5 << 1 << false << 2 << " order by task_status";
    QTest::newRow("by due date") << -2 << 5 << 2 << false << 2 << " order by task_due_date";
    QTest::newRow("by priority") << -2 << 5 << 3 << false << 2 << " order by task_periority";
    QTest::newRow("unknown order") << -2 << 5 << 9 << false << 2 << "";
    QTest::newRow("all of it")
        << 3 << 2 << 2 << true << 0
        << " where categories.cat_id= 3 and task_status = 2 and task_due_date  >=now() and "
           "task_due_date >= #1/1/2007# and task_due_date <= #1/31/2007 23:59#  order by "
           "task_due_date";
}

void TaskQueriesTest::listStatements()
{
    QFETCH(const int, cat);
    QFETCH(const int, status);
    QFETCH(const int, sortBy);
    QFETCH(const bool, isDateRange);
    QFETCH(const int, taskType);
    QFETCH(const QString, tail);
    TestDatabase database;
    ClsTask(database.engine())
        .GetTasks(static_cast<qint16>(cat), status, sortBy, isDateRange, From, To, taskType);
    QCOMPARE(database.statements().take(), QStringList{Join + tail});
}

void TaskQueriesTest::rangeStatements_data()
{
    QTest::addColumn<int>("cat");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("taskType");
    QTest::addColumn<QString>("tail");
    const QString range =
        QStringLiteral("task_due_date >= #1/1/2007# and task_due_date <= #1/31/2007 23:59# ");
    QTest::newRow("in progress") << -2 << 1 << 2 << QStringLiteral(" where task_status = 1 and ") + range;
    QTest::newRow("everything") << -2 << 5 << 2 << QStringLiteral(" where ") + range;
    QTest::newRow("category") << 3 << 5 << 2 << QStringLiteral(" where cat_id= 3 and ") + range;
    QTest::newRow("all of it") << 3 << 0 << 1
                               << QStringLiteral(
                                      " where cat_id= 3 and task_status = 0 and task_due_date  <now() and ")
            + range;
    QTest::newRow("active") << -2 << 5 << 0 << QStringLiteral(" where task_due_date  >=now() and ") + range;
}

void TaskQueriesTest::rangeStatements()
{
    QFETCH(const int, cat);
    QFETCH(const int, status);
    QFETCH(const int, taskType);
    QFETCH(const QString, tail);
    TestDatabase database;
    const ClsTask store(database.engine());
    QCOMPARE(store.GetTasksCount(static_cast<qint16>(cat), status, From, To, taskType), 0);
    store.DeleteTasks(static_cast<qint16>(cat), status, From, To, taskType);
    QCOMPARE(database.statements().take(),
        (QStringList{QStringLiteral("select count(*) as tasks_count from tasks ") + tail,
            QStringLiteral("delete from tasks ") + tail}));
}

void TaskQueriesTest::anUnknownTaskTypeIsRefused()
{
    TestDatabase database;
    aTask(database).dueAt(From).add();
    const ClsTask store(database.engine());
    const auto error = caught(
        [&] { store.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, From, To, 3); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QVERIFY2(
        error->text().endsWith(Join + QStringLiteral(" where task_due_date ")), qPrintable(error->text()));
    QVERIFY(caught([&] { store.GetTasksCount(CategoryFilter::All, TaskStatus::All, From, To, 3); }));
    QVERIFY(caught([&] { store.DeleteTasks(CategoryFilter::All, TaskStatus::All, From, To, -1); }));
    QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
}

void TaskQueriesTest::filtersByCategory()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral("a")).in(1).add();
    aTask(database).named(QStringLiteral("b")).in(2).add();
    aTask(database).named(QStringLiteral("c")).in(1).add();
    const ClsTask store(database.engine());
    QCOMPARE(names(store.GetTasks(1, TaskStatus::All, TaskSort::None, false, From, To, TaskType::All)),
        QStringLiteral("a c"));
    QCOMPARE(
        names(store.GetTasks(4, TaskStatus::All, TaskSort::None, false, From, To, TaskType::All)), QString());
}

void TaskQueriesTest::filtersByStatus()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral("a")).withStatus(TaskStatus::Completed).add();
    aTask(database).named(QStringLiteral("b")).add();
    const ClsTask store(database.engine());
    QCOMPARE(names(store.GetTasks(
                 CategoryFilter::All, TaskStatus::Completed, TaskSort::None, false, From, To, TaskType::All)),
        QStringLiteral("a"));
    QCOMPARE(names(store.GetTasks(CategoryFilter::All, TaskStatus::NotStarted, TaskSort::None, false, From,
                 To, TaskType::All)),
        QStringLiteral("b"));
}

void TaskQueriesTest::expiredAndActiveAreSplitByTheClock()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    aTask(database).named(QStringLiteral("past")).dueAt(now - 1min).add();
    aTask(database).named(QStringLiteral("now")).dueAt(now).add();
    aTask(database).named(QStringLiteral("soon")).dueAt(now + 1min).add();
    const ClsTask store(database.engine());
    const auto list = [&](qint32 type) {
        return names(
            store.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, From, To, type));
    };
    QCOMPARE(list(TaskType::Active), QStringLiteral("now soon"));
    QCOMPARE(list(TaskType::Expired), QStringLiteral("past"));
    QCOMPARE(list(TaskType::All), QStringLiteral("past now soon"));
    database.clock().step(1s);
    QCOMPARE(list(TaskType::Expired), QStringLiteral("past now"));
}

void TaskQueriesTest::aRangeHoldsItsLastDayToTheLastMinute()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral("before")).dueAt(From - 1s).add();
    aTask(database).named(QStringLiteral("first")).dueAt(From).add();
    aTask(database).named(QStringLiteral("last")).dueAt(To + 23h + 59min).add();
    aTask(database).named(QStringLiteral("later")).dueAt(To + 23h + 59min + 30s).add();
    aTask(database).named(QStringLiteral("next")).dueAt(To + 24h).add();
    const ClsTask store(database.engine());
    const auto tasks = store.GetTasks(
        CategoryFilter::All, TaskStatus::All, TaskSort::None, true, From + 5h, To + 3h, TaskType::All);
    QCOMPARE(names(tasks), QStringLiteral("first last"));
    QCOMPARE(store.GetTasksCount(CategoryFilter::All, TaskStatus::All, From, To, TaskType::All), 2);
}

void TaskQueriesTest::sortsByEachKey()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    aTask(database).named(QStringLiteral("c")).withStatus(2).withPeriority(0).dueAt(now + 3h).add();
    aTask(database).named(QStringLiteral("a")).withStatus(4).withPeriority(2).dueAt(now + 2h).add();
    aTask(database).named(QStringLiteral("b")).withStatus(0).withPeriority(1).dueAt(now + 1h).add();
    const ClsTask store(database.engine());
    const auto list = [&](qint32 sort) {
        return names(
            store.GetTasks(CategoryFilter::All, TaskStatus::All, sort, false, From, To, TaskType::All));
    };
    QCOMPARE(list(TaskSort::Name), QStringLiteral("a b c"));
    QCOMPARE(list(TaskSort::Status), QStringLiteral("b c a"));
    QCOMPARE(list(TaskSort::DueDate), QStringLiteral("b a c"));
    QCOMPARE(list(TaskSort::Periority), QStringLiteral("c b a"));
    QCOMPARE(list(TaskSort::None), QStringLiteral("c a b"));
}

void TaskQueriesTest::namesAreSortedWithoutCase()
{
    TestDatabase database;
    for (const QString& name : {QStringLiteral(u"ö"), QStringLiteral("b"), QStringLiteral("A"),
             QStringLiteral(u"Ö"), QStringLiteral("C"), QStringLiteral("a"), QStringLiteral(u"Ä")}) {
        aTask(database).named(name).add();
    }
    QCOMPARE(names(ClsTask(database.engine())
                       .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::Name, false, From, To,
                           TaskType::All)),
        QStringLiteral(u"A a Ä b C ö Ö"));
}

void TaskQueriesTest::countsWhatItWouldDelete()
{
    TestDatabase database;
    aTask(database).in(1).dueAt(From).add();
    aTask(database).in(2).dueAt(From).withStatus(TaskStatus::Completed).add();
    aTask(database).in(99).dueAt(To).add();
    aTask(database).in(1).dueAt(To + 48h).add();
    const ClsTask store(database.engine());
    QCOMPARE(store.GetTasksCount(CategoryFilter::All, TaskStatus::All, From, To, TaskType::All), 3);
    QCOMPARE(store.GetTasksCount(1, TaskStatus::All, From, To, TaskType::All), 1);
    QCOMPARE(store.GetTasksCount(CategoryFilter::All, TaskStatus::Completed, From, To, TaskType::Expired), 1);
    QCOMPARE(store.GetTasksCount(CategoryFilter::All, TaskStatus::All, From, To, TaskType::Active), 0);
}

void TaskQueriesTest::deletesWhatItCounted()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral("a")).in(1).dueAt(From).add();
    aTask(database).named(QStringLiteral("b")).in(2).dueAt(From).add();
    aTask(database).named(QStringLiteral("c")).in(1).dueAt(To + 24h).add();
    const ClsTask store(database.engine());
    store.DeleteTasks(1, TaskStatus::All, From, To, TaskType::All);
    QCOMPARE(names(store.GetTasks(
                 CategoryFilter::All, TaskStatus::All, TaskSort::None, false, From, To, TaskType::All)),
        QStringLiteral("b c"));
    store.DeleteTasks(CategoryFilter::All, TaskStatus::All, From, To + 24h, TaskType::Expired);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 0);
}

void TaskQueriesTest::noTasksMakeAnEmptyListAndACountOfZero()
{
    TestDatabase database;
    const ClsTask store(database.engine());
    QVERIFY(
        store.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::Name, true, From, To, TaskType::All)
            .empty());
    QCOMPARE(store.GetTasksCount(CategoryFilter::All, TaskStatus::All, From, To, TaskType::All), 0);
}

AMBERTASK_TEST_MAIN(TaskQueriesTest)
#include "tst_task_queries.moc"
