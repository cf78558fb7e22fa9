#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/DataFileRoad.h"
#include "data/TaskCodes.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>

namespace
{

const QLatin1String DueReminders("select * from tasks,categories  where tasks.cat_id=categories.cat_id and "
                                 "reminder_date_time <= now() and dismissed =0 and reminder_on=true");
const QLatin1String MarkPlayed(
    "update  tasks set played=1 where reminder_date_time <= now() and dismissed =0 and reminder_on=true");

/// SQLite's query plan of a statement, one step a line.
QString plan(const TestDatabase& database, const QString& statement)
{
    Connection connection = ClsDatabase(database.engine()).Connect();
    connection.open();
    QString steps;
    for (RecordSet records = connection.execute(QLatin1String("explain query plan ") + statement);
         !records.atEnd(); records.moveNext()) {
        steps += records.text(records.field("detail")) + QLatin1Char('\n');
    }
    return steps;
}

} // namespace

class ShippedDataTest : public TestCase
{
    Q_OBJECT

private slots:
    void thereIsOneSettingsRow();
    void fourCategoriesComeWithIt();
    void thereAreNoTasks();
    void theFileIsPrivateToItsOwner();
    void theFileIsInRollbackJournalMode();
    void aNewTaskIsNeitherPlayedNorDismissed();
    void nullsAreRefused();
    void theReminderCheckDoesNotScan();
    void listsKeepTheOrderOfCreation();
    void aFilterOnCategoryOrStatusReadsOnlyWhatItKeeps_data();
    void aFilterOnCategoryOrStatusReadsOnlyWhatItKeeps();
    void numbersOfDeletedRecordsAreNotUsedAgain();
};

void ShippedDataTest::thereIsOneSettingsRow()
{
    TestDatabase database;
    const auto rows = database.rows(QStringLiteral(
        "select always_on_top,start_with_windows,minimize_on_start,skin,show_task_status,show_task_due_date,"
        "show_task_periority,show_task_reminder,show_today_tasks,show_grid,show_ballon_icon from settings"));
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first(),
        (QVariantList{0LL, 1LL, 0LL, QStringLiteral("Aqua"), 1LL, 1LL, 1LL, 1LL, 0LL, 1LL, 1LL}));
    Connection connection = ClsDatabase(database.engine()).Connect();
    connection.open();
    QCOMPARE(connection.execute(QStringLiteral("select * from settings")).field("show_ballon_icon"), 10);
}

void ShippedDataTest::fourCategoriesComeWithIt()
{
    TestDatabase database;
    const auto rows =
        database.rows(QStringLiteral("select cat_id,cat_icon,custom_icon,cat_icon_name from categories"));
    QCOMPARE(rows.size(), 4);
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows.at(i), (QVariantList{i + 1LL, static_cast<qint64>(i), 0LL, QString()}));
    }
}

void ShippedDataTest::thereAreNoTasks()
{
    TestDatabase database;
    QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 0);
}

void ShippedDataTest::theFileIsPrivateToItsOwner()
{
    TestDatabase database;
    QCOMPARE(QFile::permissions(database.dataFile()),
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

void ShippedDataTest::theFileIsInRollbackJournalMode()
{
    TestDatabase database;
    QCOMPARE(database.sql(QStringLiteral("pragma journal_mode")).toString(), QStringLiteral("delete"));
    QCOMPARE(database.sql(QStringLiteral("pragma application_id")).toInt(), 0x416D6274);
    QCOMPARE(database.sql(QStringLiteral("pragma user_version")).toInt(), DataFileVersion);
    QCOMPARE(database.sql(QStringLiteral("pragma integrity_check")).toString(), QStringLiteral("ok"));
}

void ShippedDataTest::aNewTaskIsNeitherPlayedNorDismissed()
{
    TestDatabase database;
    ClsTask(database.engine()).Add();
    QCOMPARE(database.rows(QStringLiteral("select played,dismissed from tasks")).first(),
        (QVariantList{0LL, 0LL}));
}

void ShippedDataTest::nullsAreRefused()
{
    TestDatabase database;
    const auto columns = database.rows(QStringLiteral(
        "select name from pragma_table_info('tasks') where \"notnull\"=0 union all select name from "
        "pragma_table_info('categories') where \"notnull\"=0 union all select name from "
        "pragma_table_info('settings') "
        "where \"notnull\"=0"));
    QCOMPARE(columns, (QList<QVariantList>{{QStringLiteral("task_id")}, {QStringLiteral("cat_id")}}));
}

void ShippedDataTest::theReminderCheckDoesNotScan()
{
    TestDatabase database;
    for (const QString& statement : {QString(DueReminders), QString(MarkPlayed)}) {
        const QString steps = plan(database, statement);
        QVERIFY2(steps.contains(QLatin1String(
                     "tasks_by_reminder (reminder_on=? AND dismissed=? AND reminder_date_time<?)")),
            qPrintable(steps));
        QVERIFY2(!steps.contains(QLatin1String("SCAN")), qPrintable(steps));
    }
}

void ShippedDataTest::aFilterOnCategoryOrStatusReadsOnlyWhatItKeeps_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("step");
    const QString list =
        QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id where ");
    const QString category = QStringLiteral("SEARCH tasks USING INDEX tasks_by_category (cat_id=?)");
    const QString status = QStringLiteral("SEARCH tasks USING INDEX tasks_by_status (task_status=?)");
    const QString range =
        QStringLiteral("task_due_date >= #1/1/2007# and task_due_date <= #1/31/2007 23:59# ");
    QTest::newRow("category") << list + QStringLiteral("categories.cat_id= 3") << category;
    QTest::newRow("status") << list + QStringLiteral("task_status = 4") << status;
    QTest::newRow("category and status")
        << list + QStringLiteral("categories.cat_id= 3 and task_status = 4") << category;
    QTest::newRow("status and time") << list + QStringLiteral("task_status = 4 and task_due_date  <now()")
                                     << status;
    QTest::newRow("category and range")
        << list + QStringLiteral("categories.cat_id= 3 and ") + range << category;
    QTest::newRow("delete a category") << QStringLiteral("delete from tasks where cat_id = 3") << category;
    QTest::newRow("count of a status")
        << QStringLiteral("select count(*) as tasks_count from tasks  where task_status = 1 and ") + range
        << status;
    QTest::newRow("delete of a category, a status, a range")
        << QStringLiteral("delete from tasks  where cat_id= 3 and task_status = 1 and ") + range << category;
}

void ShippedDataTest::aFilterOnCategoryOrStatusReadsOnlyWhatItKeeps()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, step);
    TestDatabase database;
    const QString steps = plan(database, statement);
    QVERIFY2(steps.contains(step), qPrintable(steps));
    QVERIFY2(!steps.contains(QLatin1String("SCAN")), qPrintable(steps));
}

void ShippedDataTest::listsKeepTheOrderOfCreation()
{
    TestDatabase database;
    const Moment start = database.clock().now();
    for (int i = 0; i < 120; ++i) {
        TaskBuilder task = aTask(database);
        task.in(static_cast<qint16>(4 - i % 4)).withStatus(i % 3).withPeriority(i % 2);
        task.dueAt(start + std::chrono::hours(i % 7 - 3)).remindingAt(start - std::chrono::hours(i));
        task.add();
    }
    const ClsTask store(database.engine());
    int lists = 0;
    for (const qint16 cat : {CategoryFilter::All, qint16(2)}) {
        for (const qint32 status : {TaskStatus::All, TaskStatus::InProgress}) {
            for (const qint32 type : {TaskType::Active, TaskType::Expired, TaskType::All}) {
                for (const bool isDateRange : {false, true}) {
                    for (const qint32 sort : {TaskSort::None, TaskSort::Name, TaskSort::Status,
                             TaskSort::DueDate, TaskSort::Periority}) {
                        database.statements().take();
                        const auto tasks = store.GetTasks(cat, status, sort, isDateRange, start, start, type);
                        const QString statement = database.statements().take().constFirst();
                        const QString steps = plan(database, statement);
                        QVERIFY2(!steps.contains(QLatin1String("tasks_by_reminder")), qPrintable(steps));
                        QVERIFY2(!steps.contains(QLatin1String("AUTOMATIC")), qPrintable(steps));
                        QVERIFY2(sort != TaskSort::None || !steps.contains(QLatin1String("TEMP B-TREE")),
                            qPrintable(steps));
                        QVERIFY2(!tasks.empty(), qPrintable(statement));
                        for (std::size_t i = 1; i < tasks.size(); ++i) {
                            const auto key = [sort](const ClsTask& task) {
                                return sort == TaskSort::Status
                                    ? storedText(Moment(std::chrono::seconds(task.status())))
                                    : sort == TaskSort::DueDate   ? storedText(task.DueDateTime())
                                    : sort == TaskSort::Periority ? std::to_string(task.Periority())
                                                                  : std::string();
                            };
                            QVERIFY2(std::pair(key(tasks[i - 1]), tasks[i - 1].Id())
                                    < std::pair(key(tasks[i]), tasks[i].Id()),
                                qPrintable(statement));
                        }
                        ++lists;
                    }
                }
            }
        }
    }
    QCOMPARE(lists, 120);
}

void ShippedDataTest::numbersOfDeletedRecordsAreNotUsedAgain()
{
    TestDatabase database;
    const qint32 task = aTask(database).add();
    database.sql(QStringLiteral("delete from tasks"));
    QVERIFY(aTask(database).add() > task);
    const qint16 category = database.addCategory(QStringLiteral("gone"));
    database.removeAllCategories();
    QVERIFY(database.addCategory(QStringLiteral("new")) > category);
}

AMBERTASK_TEST_MAIN(ShippedDataTest)
#include "tst_shipped_data.moc"
