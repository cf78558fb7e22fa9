#include "data/ClsCategory.h"
#include "data/ReminderChecker.h"
#include "data/TaskChanges.h"
#include "data/TaskCodes.h"
#include "data/UndoHistory.h"
#include "store/DatabaseError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

class TestUndoHistory : public TestCase
{
    Q_OBJECT

private slots:
    void deletedTasksComeBackAsTheyWere();
    void aCategoryComesBackWithItsTasks();
    void completingIsTakenBackWithItsReminder();
    void aDismissedReminderIsDueAgain();
    void aPostponedReminderIsDueAgain();
    void takingADuplicationBackRemovesTheCopies();
    void stepsAreTakenBackFromTheLast();
    void whatWasTakenBackIsDoneAgain();
    void aNewChangeEndsWhatCouldBeDoneAgain();
    void twentyStepsAreKept();
    void aChangeOfNothingIsNoStep();
    void aChangeThatFailsIsNoStep();
    void aColumnThatWasChangedSinceIsNotTakenBack();
    void otherColumnsOfTheRowMayHaveChanged();
    void whatTheProgramKeepsUpItselfMayHaveChanged();
    void aTaskWhoseIdIsTakenDoesNotComeBack();
    void oneRowThatHasChangedKeepsAllOfItsStep();
    void theStepsBeforeOneThatFailedAreStillThere();
    void aLockedDataFileLeavesTheStep();
    void clearingForgetsAllSteps();
    void aChangeIsANewStepAndTakingItBackChangesTheData();

private:
    static QList<QVariantList> tasks(const TestDatabase& database)
    {
        return database.rows(QStringLiteral("select * from tasks order by task_id"));
    }
    static void remove(UndoHistory& history, const QList<qint32>& ids)
    {
        history.run([&](const DatabaseEngine& engine) {
            TaskChanges::remove(engine, ids);
            return QStringLiteral("removed %1").arg(ids.size());
        });
    }
    static void setStatus(UndoHistory& history, qint32 id, qint32 status)
    {
        history.run([&](const DatabaseEngine& engine) {
            TaskChanges::setStatus(engine, {id}, status);
            return QStringLiteral("status %1").arg(status);
        });
    }
    static std::size_t due(const TestDatabase& database)
    {
        return ReminderChecker(database.engine()).due().size();
    }
};

void TestUndoHistory::deletedTasksComeBackAsTheyWere()
{
    TestDatabase database;
    QList<qint32> ids;
    for (int i = 0; i < 5; ++i) {
        ids.append(aTask(database)
                       .named(QStringLiteral("it's \u0639\u0631\u0628\u064a %1").arg(i))
                       .describedAs(QStringLiteral("line\nline"))
                       .remindingAt(database.clock().now() + 1h)
                       .sounding(QStringLiteral("a.wav"))
                       .add());
    }
    const auto before = tasks(database);
    UndoHistory history(database.engine());
    remove(history, {ids[1], ids[3]});
    QCOMPARE(tasks(database).size(), 3);
    QCOMPARE(history.undoText(), QStringLiteral("removed 2"));
    history.undo();
    QCOMPARE(tasks(database), before);
    QVERIFY(!history.canUndo());
}

void TestUndoHistory::aCategoryComesBackWithItsTasks()
{
    TestDatabase database;
    const qint16 category = database.addCategory(QStringLiteral("Garden"), 3);
    aTask(database).in(category).named(QStringLiteral("mow")).add();
    aTask(database).named(QStringLiteral("elsewhere")).add();
    const auto before = tasks(database);
    const auto categories = database.rows(QStringLiteral("select * from categories"));
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        ClsCategory(engine).DeleteById(category);
        return QString();
    });
    QCOMPARE(tasks(database).size(), 1);
    history.undo();
    QCOMPARE(tasks(database), before);
    QCOMPARE(database.rows(QStringLiteral("select * from categories")), categories);
}

void TestUndoHistory::completingIsTakenBackWithItsReminder()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    const qint32 id = aTask(database).remindingAt(now - 1h).played().add();
    const qint32 later = aTask(database).remindingAt(now + 1h).add();
    const auto before = tasks(database);
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::complete(engine, {id, later});
        return QString();
    });
    QCOMPARE(due(database), 0U);
    QCOMPARE(database.sql(QStringLiteral("select sum(task_status) from tasks")).toInt(), 4);
    // What is not due yet still comes.
    database.clock().set(now + 2h);
    QCOMPARE(due(database), 1U);
    history.undo();
    QCOMPARE(tasks(database), before);
    QCOMPARE(due(database), 2U);
}

void TestUndoHistory::aDismissedReminderIsDueAgain()
{
    TestDatabase database;
    const qint32 id = aTask(database).remindingAt(database.clock().now() - 1h).played().add();
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::dismiss(engine, {id});
        return QString();
    });
    QCOMPARE(due(database), 0U);
    history.undo();
    QCOMPARE(due(database), 1U);
    history.redo();
    QCOMPARE(due(database), 0U);
}

void TestUndoHistory::aPostponedReminderIsDueAgain()
{
    TestDatabase database;
    const Moment now = database.clock().now();
    const qint32 id = aTask(database).remindingAt(now - 1h).played().add();
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::postpone(engine, {id}, now + 1h);
        return QString();
    });
    QCOMPARE(due(database), 0U);
    history.undo();
    QCOMPARE(due(database), 1U);
}

void TestUndoHistory::takingADuplicationBackRemovesTheCopies()
{
    TestDatabase database;
    const qint32 id = aTask(database).named(QStringLiteral("once")).add();
    const auto before = tasks(database);
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::duplicate(engine, {id});
        return QString();
    });
    QCOMPARE(tasks(database).size(), 2);
    history.undo();
    QCOMPARE(tasks(database), before);
}

void TestUndoHistory::stepsAreTakenBackFromTheLast()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::InProgress);
    setStatus(history, id, TaskStatus::Waiting);
    history.undo();
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::InProgress);
    history.undo();
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::NotStarted);
    history.undo();
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::NotStarted);
}

void TestUndoHistory::whatWasTakenBackIsDoneAgain()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::InProgress);
    remove(history, {id});
    history.undo();
    history.undo();
    QCOMPARE(history.redoText(), QStringLiteral("status 1"));
    history.redo();
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::InProgress);
    history.redo();
    QVERIFY(tasks(database).isEmpty());
    QVERIFY(!history.canRedo());
    history.undo();
    QCOMPARE(tasks(database).size(), 1);
}

void TestUndoHistory::aNewChangeEndsWhatCouldBeDoneAgain()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::InProgress);
    history.undo();
    setStatus(history, id, TaskStatus::Waiting);
    QVERIFY(!history.canRedo());
    QCOMPARE(history.undoText(), QStringLiteral("status 3"));
}

void TestUndoHistory::twentyStepsAreKept()
{
    TestDatabase database;
    QList<qint32> ids;
    for (int i = 0; i < 21; ++i) {
        ids.append(aTask(database).add());
    }
    UndoHistory history(database.engine());
    for (const qint32 id : ids) {
        remove(history, {id});
    }
    int taken = 0;
    for (; history.canUndo(); ++taken) {
        history.undo();
    }
    QCOMPARE(taken, 20);
    QCOMPARE(database.sql(QStringLiteral("select min(task_id) from tasks")).toInt(), ids[1]);
}

void TestUndoHistory::aChangeOfNothingIsNoStep()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    remove(history, {id + 1});
    setStatus(history, id, TaskStatus::NotStarted);
    QVERIFY(!history.canUndo());
}

void TestUndoHistory::aChangeThatFailsIsNoStep()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    database.statements().failAt(QStringLiteral("delete"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, remove(history, {id}));
    QVERIFY(!history.canUndo());
    QCOMPARE(tasks(database).size(), 1);
}

void TestUndoHistory::aColumnThatWasChangedSinceIsNotTakenBack()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::Completed);
    database.sql(QStringLiteral("update tasks set task_status=4"));
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::Deferred);
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
}

void TestUndoHistory::otherColumnsOfTheRowMayHaveChanged()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::Completed);
    database.sql(QStringLiteral("update tasks set task_name='new name', played=1"));
    history.undo();
    QCOMPARE(database.sql(QStringLiteral("select task_status from tasks")).toInt(), TaskStatus::NotStarted);
    QCOMPARE(
        database.sql(QStringLiteral("select task_name from tasks")).toString(), QStringLiteral("new name"));
}

void TestUndoHistory::whatTheProgramKeepsUpItselfMayHaveChanged()
{
    TestDatabase database;
    const qint32 id = aTask(database).remindingAt(database.clock().now() - 1min).add();
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::duplicate(engine, {id});
        return QStringLiteral("copied");
    });
    database.sql(QStringLiteral("update tasks set played=1"));
    history.undo();
    QCOMPARE(tasks(database).size(), 1);
    history.redo();
    QCOMPARE(tasks(database).size(), 2);
    database.sql(QStringLiteral("update tasks set played=1, task_name='mine now'"));
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(tasks(database).size(), 2);

    // A category's picture gets another place in the image list whenever the categories are read.
    const qint16 category = database.addCategory(QStringLiteral("Garden"), 3);
    history.run([&](const DatabaseEngine& engine) {
        ClsCategory(engine).DeleteById(category);
        return QStringLiteral("removed");
    });
    history.undo();
    database.sql(QStringLiteral("update categories set cat_icon=77 where cat_id=%1").arg(category));
    history.redo();
    QCOMPARE(
        database.sql(QStringLiteral("select count(*) from categories where cat_id=%1").arg(category)).toInt(),
        0);
}

void TestUndoHistory::aTaskWhoseIdIsTakenDoesNotComeBack()
{
    TestDatabase database;
    const qint32 id = aTask(database).named(QStringLiteral("mine")).add();
    UndoHistory history(database.engine());
    remove(history, {id});
    database.sql(
        QStringLiteral("insert into tasks(task_id,task_name,cat_id,task_due_date,reminder_date_time) "
                       "values(%1,'theirs',1,'2026-01-01 00:00:00','2026-01-01 00:00:00')")
            .arg(id));
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(
        database.sql(QStringLiteral("select task_name from tasks")).toString(), QStringLiteral("theirs"));
}

void TestUndoHistory::oneRowThatHasChangedKeepsAllOfItsStep()
{
    TestDatabase database;
    const qint32 first = aTask(database).add();
    const qint32 second = aTask(database).add();
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::setStatus(engine, {first, second}, TaskStatus::Completed);
        return QString();
    });
    database.sql(QStringLiteral("update tasks set task_status=4 where task_id=%1").arg(second));
    const auto before = tasks(database);
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(tasks(database), before);
}

void TestUndoHistory::theStepsBeforeOneThatFailedAreStillThere()
{
    TestDatabase database;
    const qint32 first = aTask(database).add();
    const qint32 second = aTask(database).add();
    UndoHistory history(database.engine());
    remove(history, {first});
    setStatus(history, second, TaskStatus::Completed);
    database.sql(QStringLiteral("update tasks set task_status=4"));
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    history.undo();
    QCOMPARE(tasks(database).size(), 2);
}

void TestUndoHistory::aLockedDataFileLeavesTheStep()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    remove(history, {id});
    {
        Connection other(database.engine(),
            QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
        other.open();
        other.execute(QStringLiteral("update categories set cat_desc=''"));
        QVERIFY_THROWS_EXCEPTION(DatabaseError, history.undo());
    }
    QVERIFY(history.canUndo());
    history.undo();
    QCOMPARE(tasks(database).size(), 1);
}

void TestUndoHistory::clearingForgetsAllSteps()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    setStatus(history, id, TaskStatus::InProgress);
    setStatus(history, id, TaskStatus::Waiting);
    history.undo();
    history.clear();
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
}

void TestUndoHistory::aChangeIsANewStepAndTakingItBackChangesTheData()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    UndoHistory history(database.engine());
    const QSignalSpy steps(&history, &UndoHistory::stepsChanged);
    const QSignalSpy data(&history, &UndoHistory::dataChanged);
    remove(history, {id});
    QCOMPARE(steps.size(), 1);
    QCOMPARE(data.size(), 0);
    history.undo();
    QCOMPARE(steps.size(), 2);
    QCOMPARE(data.size(), 1);
}

AMBERTASK_TEST_MAIN(TestUndoHistory)
#include "tst_undo_history.moc"
