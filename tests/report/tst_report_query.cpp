#include "data/ClsDatabase.h"
#include "data/TaskReportQuery.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>
#include <algorithm>

using namespace std::chrono_literals;

namespace
{

const QString Join =
    QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

QList<int> idsOf(const std::vector<ClsTask>& tasks)
{
    QList<int> ids;
    for (const ClsTask& task : tasks) {
        ids.append(task.Id());
    }
    return ids;
}

QList<int> idsOf(const TestDatabase& database, const QString& query)
{
    Connection connection = ClsDatabase(database.engine()).Connect();
    connection.open();
    RecordSet records = connection.execute(query);
    QList<int> ids;
    for (const int id = records.field("task_id"); !records.atEnd(); records.moveNext()) {
        ids.append(records.int32(id));
    }
    connection.close();
    return ids;
}

} // namespace

class ReportQueryTest : public TestCase
{
    Q_OBJECT

private slots:
    void withoutFiltersTheQueryIsTheBareJoin() { QCOMPARE(taskReportQuery({}), Join); }

    void aStatusFilterAloneHasAWhereAndNoAnd()
    {
        TaskFilter filter;
        filter.status = TaskStatus::InProgress;
        const QString query = taskReportQuery(filter);
        QCOMPARE(query, Join + QStringLiteral(" where task_status = 1"));
        QVERIFY(!query.contains(QStringLiteral(" and ")));
    }

    void categoryAndStatusAreJoinedWithAnd()
    {
        TaskFilter filter;
        filter.category = 3;
        filter.status = TaskStatus::Deferred;
        QCOMPARE(taskReportQuery(filter),
            Join + QStringLiteral(" where categories.cat_id= 3 and task_status = 4"));
    }

    void everyPartStandsInItsPlace()
    {
        TaskFilter filter;
        filter.category = 3;
        filter.status = TaskStatus::Completed;
        filter.taskType = TaskType::Expired;
        filter.isDateRange = true;
        filter.fromDate = makeMoment(2007y / 1 / 1);
        filter.toDate = makeMoment(2007y / 12 / 31);
        filter.sortBy = TaskSort::DueDate;
        QCOMPARE(taskReportQuery(filter),
            Join
                + QStringLiteral(
                    " where categories.cat_id= 3 and task_status = 2 and task_due_date  <now() and "
                    "task_due_date >= #1/1/2007# and task_due_date <= #12/31/2007 23:59#  order by "
                    "task_due_date"));
    }

    void aDateRangeOfThreeDaysHoldsItsLastMinuteAndNotMore()
    {
        TestDatabase database;
        const qint32 first = aTask(database).dueAt(makeMoment(2026y / 5 / 1)).add();
        const qint32 last = aTask(database).dueAt(makeMoment(2026y / 5 / 3, 23h + 59min)).add();
        const qint32 later = aTask(database).dueAt(makeMoment(2026y / 5 / 3, 23h + 59min)).add();
        database.sql(QStringLiteral("update tasks set task_due_date='2026-05-03 23:59:01' where task_id=%1")
                         .arg(later));
        aTask(database).dueAt(makeMoment(2026y / 5 / 4)).add();
        aTask(database).dueAt(makeMoment(2026y / 4 / 30, 23h + 59min)).add();
        TaskFilter filter;
        filter.isDateRange = true;
        filter.fromDate = makeMoment(2026y / 5 / 1);
        filter.toDate = makeMoment(2026y / 5 / 3);
        QCOMPARE(idsOf(database, taskReportQuery(filter)), (QList<int>{first, last}));
    }

    void everyCombinationOfFiltersSelectsWhatTheListShows()
    {
        TestDatabase database;
        database.removeAllCategories();
        const QList<qint16> categories{
            database.addCategory(QStringLiteral("Home")), database.addCategory(QStringLiteral("Work"))};
        const Moment now = database.clock().now();
        int number = 0;
        for (const qint16 category : categories) {
            for (qint32 status = 0; status <= 5; ++status) {
                for (const auto& due : {now - 48h, now - 1h, now, now + 1h, now + 48h}) {
                    ++number;
                    aTask(database)
                        .named(QStringLiteral("task %1").arg(number * 37 % 60))
                        .in(category)
                        .withStatus(status)
                        .withPeriority(number % 3)
                        .dueAt(due)
                        .add();
                }
            }
        }
        int compared = 0;
        int selected = 0;
        for (const qint16 category : {CategoryFilter::All, categories[0], categories[1], qint16(9999)}) {
            for (qint32 status = 0; status <= TaskStatus::All; ++status) {
                for (const qint32 taskType : {TaskType::Active, TaskType::Expired, TaskType::All}) {
                    for (const bool isDateRange : {false, true}) {
                        for (qint32 sortBy = 0; sortBy <= TaskSort::None; ++sortBy) {
                            const TaskFilter filter{category, status, sortBy, isDateRange,
                                startOfDay(now - 24h), startOfDay(now), taskType};
                            database.statements().take();
                            QList<int> listed = idsOf(filter.tasks(database.engine()));
                            const QStringList statements = database.statements().take();
                            QCOMPARE(taskReportQuery(filter), statements.value(0));
                            QList<int> queried = idsOf(database, taskReportQuery(filter));
                            if (sortBy == TaskSort::Name) {
                                // Put where readers look names up when they have been read.
                                std::sort(listed.begin(), listed.end());
                                std::sort(queried.begin(), queried.end());
                            }
                            QCOMPARE(queried, listed);
                            ++compared;
                            selected += static_cast<int>(listed.size());
                        }
                    }
                }
            }
        }
        QCOMPARE(compared, 4 * 6 * 3 * 2 * 5);
        QVERIFY(selected > compared);
    }
};

AMBERTASK_TEST_MAIN(ReportQueryTest)
#include "tst_report_query.moc"
