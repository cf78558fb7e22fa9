#include "data/ClsDatabase.h"
#include "data/DataFileRoad.h"
#include "data/RepeatRules.h"
#include "data/TaskCodes.h"
#include "store/DatabaseError.h"
#include "support/CaughtError.h"
#include "support/OlderDataFile.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>

namespace
{

/// What the engine knows of the file's tables and indexes, without where they lie.
QList<QVariantList> schemaOf(const TestDatabase& database)
{
    return database.rows(QStringLiteral("select type,name,tbl_name,sql from sqlite_schema order by name"));
}

QList<QVariantList> recordsOf(const TestDatabase& database)
{
    QList<QVariantList> records;
    for (const char* table : {"settings", "categories", "tasks", "sqlite_sequence"}) {
        records += database.rows(QStringLiteral("select * from ") + QLatin1String(table));
    }
    return records;
}

int versionOf(const TestDatabase& database)
{
    return database.sql(QStringLiteral("pragma user_version")).toInt();
}

QByteArray contentOf(const TestDatabase& database)
{
    QFile file(database.dataFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Names of the tasks of a category as a list shows them.
QStringList listed(const TestDatabase& database, qint32 sortBy)
{
    QStringList names;
    for (const ClsTask& task :
        ClsTask(database.engine()).GetTasks(2, TaskStatus::All, sortBy, false, {}, {}, TaskType::All)) {
        names.append(task.TaskName());
    }
    return names;
}

/// Names of the tasks as the alert lists them.
QStringList reminded(const TestDatabase& database)
{
    Connection connection = ClsDatabase(database.engine()).Connect();
    connection.open();
    QStringList names;
    for (RecordSet records = connection.execute(QStringLiteral(
             "select * from tasks,categories  where tasks.cat_id=categories.cat_id and reminder_date_time <= "
             "now() and dismissed =0 and reminder_on=true"));
         !records.atEnd(); records.moveNext()) {
        names.append(records.text(records.field("task_name")));
    }
    return names;
}

} // namespace

class DataFileRoadTest : public TestCase
{
    Q_OBJECT

private slots:
    void thePresentFileIsWhatItShouldBe();
    void everyOlderFileBecomesAsThePresentOne_data();
    void everyOlderFileBecomesAsThePresentOne();
    void theProgramsOwnStatementsAreNotJoinedByOthers();
    void aLaterFileIsRefusedAndStays();
    void whenNewIdsAreWanted_data();
    void whenNewIdsAreWanted();
    void newIdsFollowEachOtherFromOneAndTheNextIsTheOneBehindThem();
    void newIdsChangeNoOtherColumnAndNoList();
    void howTasksRepeatFollowsTheirNewIds();
    void theLookTellsWhetherAnythingRepeats_data();
    void theLookTellsWhetherAnythingRepeats();
    void anOlderFileGetsItsNewIdsAtOnce();
    void oneTaskWithTheLastIdGetsTheFirst();
    void idsBelowOneAreGivenAnew();
    void aDamagedFileIsNotWrittenTo();
    void aDatabaseOfAnotherProgramIsNotWrittenTo();
    void whatFailsHalfWayLeavesTheFileAsItWas();
};

void DataFileRoadTest::thePresentFileIsWhatItShouldBe()
{
    TestDatabase database;
    aTask(database).add();
    const QByteArray before = contentOf(database);
    QVERIFY(!isDataFileBehind(database.engine()));
    refuseLaterDataFile(database.engine());
    QVERIFY(contentOf(database) == before);
}

void DataFileRoadTest::everyOlderFileBecomesAsThePresentOne_data()
{
    QTest::addColumn<QString>("sql");
    for (const OlderDataFile& older : OlderDataFiles) {
        QTest::newRow(older.name) << QString::fromLatin1(older.sql);
    }
}

void DataFileRoadTest::everyOlderFileBecomesAsThePresentOne()
{
    QFETCH(const QString, sql);
    TestDatabase database;
    addTasksUpTo(database, 500, 4000);
    const QList<QVariantList> schema = schemaOf(database);
    const QList<QVariantList> records = recordsOf(database);
    database.sql(sql);
    QVERIFY(isDataFileBehind(database.engine()));
    bringDataFileUp(database.engine());
    QCOMPARE(schemaOf(database), schema);
    QCOMPARE(recordsOf(database), records);
    QCOMPARE(versionOf(database), DataFileVersion);
    QCOMPARE(database.sql(QStringLiteral("pragma integrity_check")).toString(), QStringLiteral("ok"));
    QVERIFY(!isDataFileBehind(database.engine()));
}

void DataFileRoadTest::theProgramsOwnStatementsAreNotJoinedByOthers()
{
    TestDatabase database;
    makeOlder(database);
    addTasksUpTo(database, 3, 30001);
    QVERIFY(isDataFileBehind(database.engine()));
    bringDataFileUp(database.engine());
    QCOMPARE(database.statements().take(), QStringList());
    QCOMPARE(database.statements().opened(), 0);
}

void DataFileRoadTest::aLaterFileIsRefusedAndStays()
{
    for (const int version : {DataFileVersion + 1, 2147483647}) {
        TestDatabase database;
        database.sql(QStringLiteral("drop table tasks; pragma user_version=%1").arg(version));
        const QByteArray before = contentOf(database);
        for (const auto& action :
            std::initializer_list<std::function<void()>>{[&] { refuseLaterDataFile(database.engine()); },
                [&] { isDataFileBehind(database.engine()); },
                [&] {
                    bringDataFileUp(database.engine());
                }}) {
            const auto error = caught<LaterDataFileError>(action);
            QVERIFY(error && error->text().contains(QLatin1String("later version")));
        }
        QVERIFY(contentOf(database) == before);
    }
}

void DataFileRoadTest::whenNewIdsAreWanted_data()
{
    QTest::addColumn<int>("tasks");
    QTest::addColumn<int>("highest");
    QTest::addColumn<qint64>("used"); // by tasks that are gone
    QTest::addColumn<bool>("wanted");
    QTest::newRow("no task was ever made") << 0 << 0 << qint64(0) << false;
    QTest::newRow("few ids are used") << 3 << 30000 << qint64(0) << false;
    QTest::newRow("many ids are used") << 3 << 30001 << qint64(0) << true;
    QTest::newRow("by tasks that are gone") << 3 << 7 << qint64(30001) << true;
    QTest::newRow("by tasks that are all gone") << 0 << 0 << qint64(32767) << true;
    QTest::newRow("more than there are") << 3 << 7 << (qint64(1) << 60) << true;
    QTest::newRow("without a gap") << 31000 << 31000 << qint64(0) << false;
    QTest::newRow("with few gaps") << 30500 << 31000 << qint64(0) << false;
    QTest::newRow("with a gap for half of the room") << 30500 << 31634 << qint64(0) << true;
    QTest::newRow("one place is left") << 32766 << 32767 << qint64(0) << true;
    QTest::newRow("full") << 32767 << 32767 << qint64(0) << false;
    QTest::newRow("full, the last id used twice over") << 32767 << 70000 << qint64(0) << false;
    QTest::newRow("more tasks than ids") << 40000 << 40000 << qint64(0) << false;
}

void DataFileRoadTest::whenNewIdsAreWanted()
{
    QFETCH(const int, tasks);
    QFETCH(const int, highest);
    QFETCH(const qint64, used);
    QFETCH(const bool, wanted);
    TestDatabase database;
    database.sql(
        QStringLiteral("insert into tasks(task_id,cat_id,task_due_date,reminder_date_time) "
                       "with recursive n(i) as (select 1 where %1>0 union all select i+1 from n where i<%1) "
                       "select iif(i=%1,%2,i),1,'2026-01-15 11:00:00','2026-01-15 11:00:00' from n")
            .arg(tasks)
            .arg(highest));
    if (used > 0) {
        database.sql(QStringLiteral("delete from sqlite_sequence where name='tasks'; "
                                    "insert into sqlite_sequence(name,seq) values('tasks',%1)")
                         .arg(used));
    }
    QCOMPARE(isDataFileBehind(database.engine()), wanted);
}

void DataFileRoadTest::newIdsFollowEachOtherFromOneAndTheNextIsTheOneBehindThem()
{
    TestDatabase database;
    addTasksUpTo(database, 1000, 32767);
    bringDataFileUp(database.engine());
    QVERIFY(!isDataFileBehind(database.engine()));
    QCOMPARE(database.rows(QStringLiteral("select min(task_id),max(task_id),count(*) from tasks")).first(),
        (QVariantList{1LL, 1000LL, 1000LL}));
    ClsTask task(database.engine());
    task.setCategoryId(1);
    QCOMPARE(task.Add(), 1001);
    QCOMPARE(database.sql(QStringLiteral("pragma integrity_check")).toString(), QStringLiteral("ok"));
}

void DataFileRoadTest::newIdsChangeNoOtherColumnAndNoList()
{
    TestDatabase database;
    addTasksUpTo(database, 1000, 32767);
    const QList<QVariantList> tasks = tasksWithoutIds(database);
    const QStringList made = listed(database, TaskSort::None);
    const QStringList byStatus = listed(database, TaskSort::Status);
    const QStringList due = reminded(database);
    bringDataFileUp(database.engine());
    QCOMPARE(tasksWithoutIds(database), tasks);
    QVERIFY(made.size() == 250 && due.size() > 100);
    QCOMPARE(reminded(database), due);
    QCOMPARE(listed(database, TaskSort::None), made);
    QCOMPARE(listed(database, TaskSort::Status), byStatus);
}

void DataFileRoadTest::howTasksRepeatFollowsTheirNewIds()
{
    TestDatabase database;
    addTasksUpTo(database, 100, 32767);
    database.sql(
        QStringLiteral("insert into repeats select task_id,task_name,'2026-01-15 10:00:00',15,3 from "
                       "tasks where task_id%2=0 or task_id>30000; insert into repeats(of_task) values(4)"));
    const QString all = QStringLiteral("select task_name,repeats.* from tasks join repeats on "
                                       "task_id=of_task order by task_id");
    const QList<QVariantList> before = database.rows(all);
    QVERIFY(before.size() > 40);
    bringDataFileUp(database.engine());
    const QList<QVariantList> after = database.rows(all);
    QCOMPARE(after.size(), before.size());
    for (qsizetype i = 0; i < after.size(); ++i) {
        QCOMPARE(after.at(i).at(0), after.at(i).at(2));
        QCOMPARE(after.at(i).mid(2), before.at(i).mid(2));
    }
    // The rows of tasks that are gone are.
    QCOMPARE(database.sql(QStringLiteral("select count(*) from repeats")).toInt(), after.size());
}

void DataFileRoadTest::theLookTellsWhetherAnythingRepeats_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<bool>("isUsed");
    const QString row = QStringLiteral("insert into repeats(of_task,rule) values(1,'FREQ=DAILY');");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("a task") << row << true;
    QTest::newRow("an older file") << QStringLiteral("drop table repeats; pragma user_version=3") << false;
    QTest::newRow("an older file that has the table")
        << row + QStringLiteral("pragma user_version=3") << true;
    QTest::newRow("a file that gets new ids")
        << row + QStringLiteral("update tasks set task_id=30001; update repeats set of_task=30001") << true;
}

void DataFileRoadTest::theLookTellsWhetherAnythingRepeats()
{
    QFETCH(const QString, sql);
    QFETCH(const bool, isUsed);
    TestDatabase database;
    aTask(database).add();
    database.sql(sql);
    Repeating repeating;
    repeating.setUsed(!isUsed);
    DatabaseEngine engine = database.engine();
    engine.repeating = &repeating;
    if (isDataFileBehind(engine)) {
        bringDataFileUp(engine);
    }
    QCOMPARE(repeating.isUsed(), isUsed);
    QCOMPARE(database.statements().opened(), 0);
}

void DataFileRoadTest::anOlderFileGetsItsNewIdsAtOnce()
{
    TestDatabase database;
    addTasksUpTo(database, 10, 32767);
    makeOlder(database);
    bringDataFileUp(database.engine());
    QCOMPARE(versionOf(database), DataFileVersion);
    QCOMPARE(database.sql(QStringLiteral("select max(task_id) from tasks")).toInt(), 10);
}

void DataFileRoadTest::oneTaskWithTheLastIdGetsTheFirst()
{
    TestDatabase database;
    addTasksUpTo(database, 1, 32767);
    bringDataFileUp(database.engine());
    QCOMPARE(ClsTask(database.engine()).GetTaskById(1)->TaskName(), QStringLiteral("task 0"));
}

void DataFileRoadTest::idsBelowOneAreGivenAnew()
{
    TestDatabase database;
    addTasksUpTo(database, 5, 32767);
    database.sql(QStringLiteral("update tasks set task_id=-task_id where task_id<8"));
    const QList<QVariantList> tasks = tasksWithoutIds(database);
    bringDataFileUp(database.engine());
    QCOMPARE(tasksWithoutIds(database), tasks);
    QCOMPARE(database.sql(QStringLiteral("select min(task_id) from tasks")).toInt(), 1);
}

void DataFileRoadTest::aDamagedFileIsNotWrittenTo()
{
    TestDatabase database;
    addTasksUpTo(database, 2000, 32767);
    makeOlder(database);
    constexpr int PageSize = 4096;
    const int page =
        database.sql(QStringLiteral("select rootpage from sqlite_schema where name='tasks_by_reminder'"))
            .toInt();
    QFile file(database.dataFile());
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * PageSize + 3));
    QVERIFY(file.write(QByteArray(9, '\x55')) == 9);
    file.close();
    const QByteArray before = contentOf(database);
    bool sound = false;
    DatabaseEngine engine = database.engine();
    engine.knownSound = &sound;
    QVERIFY(caught<DatabaseError>([&] { isDataFileBehind(engine); }));
    QVERIFY(caught<DatabaseError>([&] { bringDataFileUp(engine); }));
    QVERIFY(!sound);
    QVERIFY(contentOf(database) == before);
}

void DataFileRoadTest::aDatabaseOfAnotherProgramIsNotWrittenTo()
{
    TestDatabase database;
    database.sql(QStringLiteral("drop table tasks; drop table categories; pragma user_version=0"));
    const QByteArray before = contentOf(database);
    QVERIFY(caught<DatabaseError>([&] { isDataFileBehind(database.engine()); }));
    QVERIFY(caught<DatabaseError>([&] { bringDataFileUp(database.engine()); }));
    QVERIFY(contentOf(database) == before);
}

void DataFileRoadTest::whatFailsHalfWayLeavesTheFileAsItWas()
{
    TestDatabase database;
    makeOlder(database);
    // The last of the indexes cannot be made: its name is taken by a table.
    database.sql(QStringLiteral("create table tasks_by_category(a)"));
    const QByteArray before = contentOf(database);
    QVERIFY(caught<DatabaseError>([&] { bringDataFileUp(database.engine()); }));
    QVERIFY(contentOf(database) == before);
    QCOMPARE(database.statements().opened(), 0);
}

AMBERTASK_TEST_MAIN(DataFileRoadTest)
#include "tst_data_file_road.moc"
