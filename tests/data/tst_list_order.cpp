#include "data/ClsTask.h"
#include "data/TaskCodes.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>
#include <algorithm>
#include <random>

namespace
{

constexpr int Rounds = 12;
constexpr int FiltersEach = 40;

/// The same data each time, or other data by the number in the environment variable AMBERTASK_SEED.
quint32 seed()
{
    bool given = false;
    const int number = qEnvironmentVariableIntValue("AMBERTASK_SEED", &given);
    return given ? static_cast<quint32>(number) : 20260115;
}

struct Filter {
    qint16 cat;
    qint32 status;
    qint32 sortBy;
    bool isDateRange;
    Moment from;
    Moment to;
    qint32 taskType;
};

class Chance
{
public:
    int below(int limit) { return static_cast<int>(m_generator() % static_cast<unsigned>(limit)); }

    /// Many tasks of few categories and days: with many ties, with gaps among the ids, some without a
    /// category.
    void fill(const TestDatabase& database)
    {
        const int tasks = below(400);
        const int categories = 1 + below(5);
        const int commonStatus = below(5);
        QStringList values;
        for (int i = 0; i < tasks; ++i) {
            values.append(QStringLiteral("(%1,'%2','',%3,%4,datetime('2026-01-13','%5 minutes'),%6,%7,"
                                         "datetime('2026-01-13','%8 minutes'),%9)")
                              .arg(QString::number(1 + below(100'000)),
                                  QString(1, QChar(below(2) == 0 ? u'a' + below(4) : u'A' + below(4))),
                                  QString::number(below(3) == 0 ? below(6) : commonStatus),
                                  QString::number(1 + below(categories)), QString::number(below(12) * 480),
                                  QString::number(below(3)), QString::number(below(2)),
                                  QString::number(below(12) * 480), QString::number(below(2))));
        }
        if (tasks > 0) {
            database.sql(QLatin1String("insert or ignore into tasks(task_id,task_name,task_desc,task_status,"
                                       "cat_id,task_due_date,task_periority,reminder_on,reminder_date_time,"
                                       "dismissed) values")
                + values.join(u','));
        }
    }

    Filter filter()
    {
        const Moment first = makeMoment(std::chrono::year(2026) / 1 / 12);
        const Moment from = first + std::chrono::days(below(6));
        return {below(2) == 0 ? CategoryFilter::All : static_cast<qint16>(1 + below(6)),
            below(2) == 0 ? TaskStatus::All : below(6), below(5), below(2) == 0, from,
            from + std::chrono::days(below(4) - 1), below(3)};
    }

private:
    std::mt19937 m_generator{seed()};
};

std::vector<qint32> list(const TestDatabase& database, const Filter& filter)
{
    std::vector<qint32> ids;
    for (const ClsTask& task : ClsTask(database.engine())
                                   .GetTasks(filter.cat, filter.status, filter.sortBy, filter.isDateRange,
                                       filter.from, filter.to, filter.taskType)) {
        ids.push_back(task.Id());
    }
    return ids;
}

int count(const TestDatabase& database, const Filter& filter)
{
    return ClsTask(database.engine())
        .GetTasksCount(filter.cat, filter.status, filter.from, filter.to, filter.taskType);
}

QList<QVariantList> afterDelete(const TestDatabase& database, const Filter& filter)
{
    ClsTask(database.engine())
        .DeleteTasks(filter.cat, filter.status, filter.from, filter.to, filter.taskType);
    return database.rows(QStringLiteral("select * from tasks order by task_id"));
}

void copyData(const TestDatabase& from, const TestDatabase& to)
{
    QVERIFY(QFile::remove(to.dataFile()));
    QVERIFY(QFile::copy(from.dataFile(), to.dataFile()));
}

void dropIndexes(const TestDatabase& database)
{
    const auto names = database.rows(
        QStringLiteral("select name from sqlite_schema where type='index' and sql is not null"));
    QVERIFY(names.size() >= 3);
    for (const QVariantList& name : names) {
        database.sql(QLatin1String("drop index ") + name.first().toString());
    }
}

} // namespace

class ListOrderTest : public TestCase
{
    Q_OBJECT

private slots:
    void indexesChangeNoListNoCountAndNoDelete();
    void statisticsInTheFileDoNotChangeTheOrderOfMaking();
};

void ListOrderTest::indexesChangeNoListNoCountAndNoDelete()
{
    Chance chance;
    std::size_t listed = 0;
    for (int round = 0; round < Rounds; ++round) {
        const TestDatabase shipped;
        const TestDatabase plain;
        chance.fill(shipped);
        copyData(shipped, plain);
        dropIndexes(plain);
        for (int i = 0; i < FiltersEach; ++i) {
            const Filter filter = chance.filter();
            const std::vector<qint32> ids = list(shipped, filter);
            QCOMPARE(ids, list(plain, filter));
            QCOMPARE(count(shipped, filter), count(plain, filter));
            listed += ids.size();
        }
        const Filter filter = chance.filter();
        QCOMPARE(afterDelete(shipped, filter), afterDelete(plain, filter));
    }
    QVERIFY(listed > Rounds * FiltersEach);
}

void ListOrderTest::statisticsInTheFileDoNotChangeTheOrderOfMaking()
{
    // With statistics SQLite goes from category to category.
    const TestDatabase analyzed;
    analyzed.sql(
        QStringLiteral("with recursive n(i) as (select 1 union all select i+1 from n where i<200) "
                       "insert into tasks(task_name,task_status,cat_id,task_due_date,reminder_date_time) "
                       "select i,i%3,4-i%4,'2026-01-15 12:00:00','2026-01-15 12:00:00' from n"));
    analyzed.sql(QStringLiteral("analyze"));
    const Moment day = startOfDay(makeMoment(std::chrono::year(2026) / 1 / 15));
    for (const bool isDateRange : {false, true}) {
        const std::vector<qint32> ids = list(analyzed,
            {CategoryFilter::All, TaskStatus::All, TaskSort::None, isDateRange, day, day, TaskType::All});
        QCOMPARE(ids.size(), std::size_t(200));
        QVERIFY(std::is_sorted(ids.cbegin(), ids.cend()));
    }
}

AMBERTASK_TEST_MAIN(ListOrderTest)

#include "tst_list_order.moc"
