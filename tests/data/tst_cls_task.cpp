#include "data/ClsTask.h"
#include "data/HardTexts.h"
#include "data/TaskCodes.h"
#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/OlderDataFile.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTest>

using namespace std::chrono_literals;

namespace
{

ClsTask bobsCall(const TestDatabase& database)
{
    ClsTask task(database.engine());
    task.setTaskName(QStringLiteral("Bob's call"));
    task.setDescription(QStringLiteral("about 'it'"));
    task.setStatus(TaskStatus::Waiting);
    task.setCategoryId(2);
    task.setDueDateTime(makeMoment(2007y / 1 / 31, 9h + 5min + 59s));
    task.setPeriority(TaskPeriority::Low);
    task.setReminderOn(true);
    task.setReminderDateTime(makeMoment(2007y / 1 / 30, 18h));
    task.setReminderSound(QStringLiteral("sounds/ring.wav"));
    task.setReminderFile(QStringLiteral("/bin/true"));
    return task;
}

const QLatin1String UpdateStart("update tasks set task_name='Bob''s call',task_desc='about "
                                "''it''',task_status=3,cat_id=2,task_due_date=#1/31/2007 "
                                "09:05#,task_periority=2,reminder_on=1,reminder_date_time=#1/30/2007 "
                                "18:00#,reminder_sound='sounds/ring.wav'");

} // namespace

class ClsTaskTest : public TestCase
{
    Q_OBJECT

private slots:
    void aNewTaskHasNoIdAndNoChangedDate();
    void addingSendsTheFilledTemplate();
    void addingAnswersTheIdOfTheNewTask();
    void addedFieldsAreReadBackWithoutSeconds();
    void flagsAndMomentsAreStoredPlainly();
    void updatingKeepsPlayedAndDismissed();
    void updatingWithAChangedDateArmsTheAlertAgain();
    void updatingAnUnknownIdChangesNothing();
    void anIdBeyondSixteenBitsIsWrittenByUpdate();
    void aTaskIsFoundByItsId();
    void anUnknownIdFindsNothing();
    void aTaskWithoutItsCategoryIsNotFound();
    void theIconComesFromTheCategory();
    void deletingRemovesThatTaskAlone();
    void hardTextsAreStoredAsTheyAre();
    void aMegabyteOfQuotesInEveryTextIsStoredAsItIs();
    void aDateOutOfFormIsAConversionError();
    void aCategoryIdThatDoesNotFitIsAnOverflow();
    void theLastTaskOfAFullHouseIsStoredAndTheNextIsRefused();
    void aNullTextIsAConversionError();
    void everyOperationOpensAndClosesItsOwnConnection();
    void aLockedFileLeavesTheTaskAsItWas();
    void copiesAreIndependent();
};

void ClsTaskTest::aNewTaskHasNoIdAndNoChangedDate()
{
    TestDatabase database;
    const ClsTask task(database.engine());
    QCOMPARE(task.Id(), 0);
    QVERIFY(!task.DateChanged());
    QVERIFY(!task.ReminderOn());
    QCOMPARE(task.TaskName(), QString());
}

void ClsTaskTest::addingSendsTheFilledTemplate()
{
    TestDatabase database;
    bobsCall(database).Add();
    QCOMPARE(database.statements().take(),
        QStringList{QStringLiteral(
            "insert into "
            "tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
            "reminder_date_time,reminder_sound,reminder_file) values('Bob''s call','about "
            "''it''',3,2,#1/31/2007 "
            "09:05#,2,1,#1/30/2007 18:00#,'sounds/ring.wav','/bin/true')")});
}

void ClsTaskTest::addingAnswersTheIdOfTheNewTask()
{
    TestDatabase database;
    const qint32 first = bobsCall(database).Add();
    aTask(database).named(QStringLiteral("between")).add();
    const qint32 second = bobsCall(database).Add();
    QCOMPARE(database.rows(QStringLiteral("select task_id from tasks where task_name = 'Bob''s call'")),
        (QList<QVariantList>{{qint64(first)}, {qint64(second)}}));
}

void ClsTaskTest::addedFieldsAreReadBackWithoutSeconds()
{
    TestDatabase database;
    bobsCall(database).Add();
    const auto task = ClsTask(database.engine()).GetTaskById(1);
    QVERIFY(task);
    QCOMPARE(task->Id(), 1);
    QCOMPARE(task->TaskName(), QStringLiteral("Bob's call"));
    QCOMPARE(task->Description(), QStringLiteral("about 'it'"));
    QCOMPARE(task->status(), TaskStatus::Waiting);
    QCOMPARE(task->CategoryId(), qint16(2));
    QVERIFY(task->DueDateTime() == makeMoment(2007y / 1 / 31, 9h + 5min));
    QCOMPARE(task->Periority(), TaskPeriority::Low);
    QVERIFY(task->ReminderOn());
    QVERIFY(task->reminderDateTime() == makeMoment(2007y / 1 / 30, 18h));
    QCOMPARE(task->ReminderSound(), QStringLiteral("sounds/ring.wav"));
    QCOMPARE(task->ReminderFile(), QStringLiteral("/bin/true"));
    QVERIFY(!task->DateChanged());
}

void ClsTaskTest::flagsAndMomentsAreStoredPlainly()
{
    TestDatabase database;
    ClsTask task = bobsCall(database);
    task.Add();
    task.setReminderOn(false);
    task.Add();
    QCOMPARE(database.rows(QStringLiteral(
                 "select reminder_on,task_due_date,reminder_date_time,played,dismissed from tasks")),
        (QList<QVariantList>{
            {1LL, QStringLiteral("2007-01-31 09:05:00"), QStringLiteral("2007-01-30 18:00:00"), 0LL, 0LL},
            {0LL, QStringLiteral("2007-01-31 09:05:00"), QStringLiteral("2007-01-30 18:00:00"), 0LL, 0LL}}));
}

void ClsTaskTest::updatingKeepsPlayedAndDismissed()
{
    TestDatabase database;
    const qint32 id = aTask(database).played().dismissed().add();
    ClsTask task = bobsCall(database);
    task.setId(id);
    task.Update();
    QCOMPARE(database.statements().take(),
        QStringList{UpdateStart + QStringLiteral(",reminder_file='/bin/true' where task_id = 1")});
    QCOMPARE(database.rows(QStringLiteral("select task_name,played,dismissed from tasks")),
        (QList<QVariantList>{{QStringLiteral("Bob's call"), 1LL, 1LL}}));
}

void ClsTaskTest::updatingWithAChangedDateArmsTheAlertAgain()
{
    TestDatabase database;
    const qint32 id = aTask(database).played().dismissed().add();
    aTask(database).played().dismissed().add();
    ClsTask task = bobsCall(database);
    task.setId(id);
    task.setDateChanged(true);
    task.Update();
    QCOMPARE(database.statements().take(),
        QStringList{UpdateStart
            + QStringLiteral(",reminder_file='/bin/true', played=0,dismissed=0 where task_id = 1")});
    QCOMPARE(database.rows(QStringLiteral("select task_name,played,dismissed from tasks")),
        (QList<QVariantList>{{QStringLiteral("Bob's call"), 0LL, 0LL}, {QStringLiteral("task"), 1LL, 1LL}}));
}

void ClsTaskTest::updatingAnUnknownIdChangesNothing()
{
    TestDatabase database;
    aTask(database).add();
    const auto before = database.rows(QStringLiteral("select * from tasks"));
    ClsTask task = bobsCall(database);
    task.setId(2);
    task.Update();
    QCOMPARE(database.rows(QStringLiteral("select * from tasks")), before);
}

void ClsTaskTest::anIdBeyondSixteenBitsIsWrittenByUpdate()
{
    TestDatabase database;
    aTask(database).add();
    database.sql(QStringLiteral("update tasks set task_id = 70000"));
    ClsTask task = bobsCall(database);
    task.setId(70000);
    task.Update();
    QCOMPARE(database.sql(QStringLiteral("select task_name from tasks where task_id=70000")).toString(),
        QStringLiteral("Bob's call"));
    const auto tasks =
        task.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All);
    QCOMPARE(tasks.front().Id(), 70000);
}

void ClsTaskTest::aTaskIsFoundByItsId()
{
    TestDatabase database;
    aTask(database).named(QStringLiteral("first")).add();
    aTask(database).named(QStringLiteral("second")).add();
    QCOMPARE(ClsTask(database.engine()).GetTaskById(2)->TaskName(), QStringLiteral("second"));
    QCOMPARE(database.statements().take(),
        QStringList{QStringLiteral("select * from tasks inner join categories on "
                                   "tasks.cat_id=categories.cat_id where task_id = 2")});
}

void ClsTaskTest::anUnknownIdFindsNothing()
{
    TestDatabase database;
    aTask(database).add();
    QVERIFY(!ClsTask(database.engine()).GetTaskById(2));
    QVERIFY(!ClsTask(database.engine()).GetTaskById(-1));
}

void ClsTaskTest::aTaskWithoutItsCategoryIsNotFound()
{
    TestDatabase database;
    aTask(database).in(99).add();
    QVERIFY(!ClsTask(database.engine()).GetTaskById(1));
    QVERIFY(ClsTask(database.engine())
                .GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All)
                .empty());
}

void ClsTaskTest::theIconComesFromTheCategory()
{
    TestDatabase database;
    aTask(database).in(database.addCategory(QStringLiteral("x"), 9)).add();
    QCOMPARE(ClsTask(database.engine()).GetTaskById(1)->IconId(), qint16(9));
}

void ClsTaskTest::deletingRemovesThatTaskAlone()
{
    TestDatabase database;
    aTask(database).add();
    aTask(database).add();
    ClsTask(database.engine()).DeleteById(1);
    QCOMPARE(
        database.statements().take(), QStringList{QStringLiteral("delete from tasks where task_id = 1")});
    QCOMPARE(database.rows(QStringLiteral("select task_id from tasks")), (QList<QVariantList>{{2LL}}));
}

void ClsTaskTest::hardTextsAreStoredAsTheyAre()
{
    TestDatabase database;
    const QStringList texts = hardTexts();
    for (int i = 0; i < texts.size(); ++i) {
        ClsTask task = bobsCall(database);
        task.Add();
        task.setTaskName(texts.at(i));
        task.setDescription(texts.at((i + 1) % texts.size()));
        task.setReminderSound(texts.at((i + 2) % texts.size()));
        task.setReminderFile(texts.at((i + 3) % texts.size()));
        task.setId(2 * i + 1);
        task.Update();
        task.Add();
        for (const int id : {2 * i + 1, 2 * i + 2}) {
            const auto read = task.GetTaskById(static_cast<qint16>(id));
            QVERIFY(read);
            QCOMPARE(read->TaskName(), task.TaskName());
            QCOMPARE(read->Description(), task.Description());
            QCOMPARE(read->ReminderSound(), task.ReminderSound());
            QCOMPARE(read->ReminderFile(), task.ReminderFile());
            QCOMPARE(read->status(), TaskStatus::Waiting);
            QVERIFY(read->reminderDateTime() == task.reminderDateTime());
        }
        QCOMPARE(database.sql(QStringLiteral("select task_name from tasks where task_id=%1").arg(2 * i + 1))
                     .toString(),
            texts.at(i));
    }
}

void ClsTaskTest::aMegabyteOfQuotesInEveryTextIsStoredAsItIs()
{
    TestDatabase database;
    const QString text = longTextOfQuotes();
    ClsTask task = bobsCall(database);
    task.setTaskName(text);
    task.setDescription(text);
    task.setReminderSound(text);
    task.setReminderFile(text);
    task.Add();
    const auto read = task.GetTaskById(1);
    QVERIFY(read->TaskName() == text);
    QVERIFY(read->Description() == text);
    QVERIFY(read->ReminderSound() == text);
    QVERIFY(read->ReminderFile() == text);
}

void ClsTaskTest::aDateOutOfFormIsAConversionError()
{
    TestDatabase database;
    aTask(database).add();
    database.sql(QStringLiteral("update tasks set reminder_date_time = '2026-02-30 00:00:00'"));
    const auto error = caught([&] { ClsTask(database.engine()).GetTaskById(1); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Conversion);
    QVERIFY2(error->text().contains(QLatin1String("reminder_date_time")), qPrintable(error->text()));
}

void ClsTaskTest::theLastTaskOfAFullHouseIsStoredAndTheNextIsRefused()
{
    TestDatabase database;
    addTasksUpTo(database, 7, 32766);
    ClsTask task(database.engine());
    task.setCategoryId(1);
    QCOMPARE(task.Add(), 32767);
    QVERIFY(caught<NoRoomError>([&] { task.Add(); }));
    QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 8);
    QCOMPARE(
        database.sql(QStringLiteral("select seq from sqlite_sequence where name='tasks'")).toInt(), 32767);
    QVERIFY(task.GetTaskById(32767));
}

void ClsTaskTest::aCategoryIdThatDoesNotFitIsAnOverflow()
{
    TestDatabase database;
    database.sql(QStringLiteral("insert into categories(cat_id,cat_name) values(32768,'too many')"));
    aTask(database).add();
    database.sql(QStringLiteral("update tasks set cat_id = 32768"));
    const ClsTask store(database.engine());
    const auto error = caught([&] { store.GetTaskById(1); });
    QVERIFY(error);
    QVERIFY2(error->text().contains(QLatin1String("Overflow: the cat_id 32768")), qPrintable(error->text()));
    QVERIFY(caught([&] {
        store.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All);
    }));
}

void ClsTaskTest::aNullTextIsAConversionError()
{
    TestDatabase database;
    database.sql(QStringLiteral("alter table tasks drop column reminder_file"));
    database.sql(QStringLiteral("alter table tasks add column reminder_file text"));
    database.sql(
        QStringLiteral("insert into tasks(cat_id,task_due_date,reminder_date_time) values(1,'2026-01-15 "
                       "10:00:00','2026-01-15 10:00:00')"));
    const auto error = caught([&] { ClsTask(database.engine()).GetTaskById(1); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Conversion);
    QVERIFY2(error->text().contains(QLatin1String("reminder_file")), qPrintable(error->text()));
}

void ClsTaskTest::everyOperationOpensAndClosesItsOwnConnection()
{
    TestDatabase database;
    ClsTask task = bobsCall(database);
    task.Add();
    task.setId(1);
    task.Update();
    task.GetTaskById(1);
    task.GetTaskById(2);
    task.GetTasks(CategoryFilter::All, TaskStatus::All, TaskSort::None, false, {}, {}, TaskType::All);
    task.GetTasksCount(
        CategoryFilter::All, TaskStatus::All, task.DueDateTime(), task.DueDateTime(), TaskType::All);
    task.DeleteTasks(
        CategoryFilter::All, TaskStatus::All, task.DueDateTime(), task.DueDateTime(), TaskType::All);
    task.DeleteById(1);
    QCOMPARE(database.statements().opened(), 8);
    QCOMPARE(database.statements().closed(), 8);
}

void ClsTaskTest::aLockedFileLeavesTheTaskAsItWas()
{
    TestDatabase database;
    aTask(database).add();
    const auto before = database.rows(QStringLiteral("select * from tasks"));
    ClsTask task = bobsCall(database);
    task.setId(1);
    {
        Connection writer(database.engine(),
            QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
        writer.open();
        writer.execute(QStringLiteral("update settings set skin='Aqua'"));
        const auto error = caught([&] { task.Update(); });
        QVERIFY(error);
        QCOMPARE(error->kind(), DatabaseError::Kind::Storage);
    }
    QCOMPARE(database.rows(QStringLiteral("select * from tasks")), before);
}

void ClsTaskTest::copiesAreIndependent()
{
    TestDatabase database;
    ClsTask task = bobsCall(database);
    ClsTask copy = task;
    copy.setTaskName(QStringLiteral("other"));
    QCOMPARE(task.TaskName(), QStringLiteral("Bob's call"));
    task = copy;
    QCOMPARE(task.TaskName(), QStringLiteral("other"));
    QCOMPARE(task.Description(), QStringLiteral("about 'it'"));
}

AMBERTASK_TEST_MAIN(ClsTaskTest)
#include "tst_cls_task.moc"
