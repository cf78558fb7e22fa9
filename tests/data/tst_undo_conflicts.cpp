#include "data/ClsCategory.h"
#include "data/TaskArchive.h"
#include "data/TaskChanges.h"
#include "data/UndoHistory.h"
#include "store/DatabaseError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

/// What has been added since a change may stand against taking it back, though no row of it has changed.
class TestUndoConflicts : public TestCase
{
    Q_OBJECT

private slots:
    void anImportIsNotTakenBackUnderATaskThatWasAddedToItsCategory();
    void aDeletionIsNotDoneAgainOverANewTask();
    void aTaskDoesNotComeBackWithoutItsCategory();
    void tasksThatHadNoCategoryBeforeAreNoHindrance();
    void aCategoryDoesNotComeBackBesideOneOfItsName();
    void categoriesThatSharedANameBeforeStayApart();

private:
    static void import(UndoHistory& history, const std::string& category)
    {
        history.run([&](const DatabaseEngine& engine) {
            TaskRecord task;
            task.name = "theirs";
            task.category = category;
            task.due = engine.clock->now();
            task.reminder = task.due;
            TaskStoring storing(engine);
            storing.put(task);
            storing.finish();
            return QStringLiteral("imported");
        });
    }
    static void removeCategory(UndoHistory& history, qint16 id)
    {
        history.run([&](const DatabaseEngine& engine) {
            ClsCategory(engine).DeleteById(id);
            return QStringLiteral("removed category");
        });
    }
    static qint16 idOf(const TestDatabase& database, const char* category)
    {
        return static_cast<qint16>(
            database
                .sql(QStringLiteral("select cat_id from categories where cat_name='%1'")
                         .arg(QLatin1String(category)))
                .toInt());
    }
    /// Names of the tasks that lists show.
    static QStringList listed(const TestDatabase& database)
    {
        QStringList names;
        for (const QVariantList& row : database.rows(QStringLiteral(
                 "select task_name from tasks join categories using (cat_id) order by task_id"))) {
            names.append(row.first().toString());
        }
        return names;
    }
};

void TestUndoConflicts::anImportIsNotTakenBackUnderATaskThatWasAddedToItsCategory()
{
    TestDatabase database;
    UndoHistory history(database.engine());
    import(history, "Sport");
    aTask(database).in(idOf(database, "Sport")).named(QStringLiteral("mine")).add();
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(listed(database), (QStringList{QStringLiteral("theirs"), QStringLiteral("mine")}));
    QVERIFY(!history.canUndo());
    QVERIFY(!history.canRedo());
}

void TestUndoConflicts::aDeletionIsNotDoneAgainOverANewTask()
{
    TestDatabase database;
    UndoHistory history(database.engine());
    const qint16 category = idOf(database, "Personal");
    removeCategory(history, category);
    history.undo();
    aTask(database).in(category).named(QStringLiteral("call Bob")).add();
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.redo());
    QCOMPARE(listed(database), QStringList{QStringLiteral("call Bob")});
    QVERIFY(!history.canRedo());
}

void TestUndoConflicts::aTaskDoesNotComeBackWithoutItsCategory()
{
    TestDatabase database;
    const qint16 category = database.addCategory(QStringLiteral("Garden"));
    const qint32 id = aTask(database).in(category).named(QStringLiteral("mow")).add();
    UndoHistory history(database.engine());
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::remove(engine, {id});
        return QStringLiteral("removed task");
    });
    database.sql(QStringLiteral("delete from categories where cat_id=%1").arg(category));
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.undo());
    QCOMPARE(database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 0);
}

void TestUndoConflicts::tasksThatHadNoCategoryBeforeAreNoHindrance()
{
    TestDatabase database;
    aTask(database).in(77).named(QStringLiteral("stray")).add();
    UndoHistory history(database.engine());
    import(history, "Sport");
    history.undo();
    QCOMPARE(idOf(database, "Sport"), qint16(0));
    history.redo();
    QCOMPARE(listed(database), QStringList{QStringLiteral("theirs")});
}

void TestUndoConflicts::aCategoryDoesNotComeBackBesideOneOfItsName()
{
    TestDatabase database;
    const qint16 category = database.addCategory(QStringLiteral("G\u00e4rten"));
    aTask(database).in(category).named(QStringLiteral("mow")).add();
    UndoHistory history(database.engine());
    removeCategory(history, category);
    ClsCategory again(database.engine());
    again.setCatName(QStringLiteral("G\u00c4RTEN"));
    QVERIFY(!again.Add());
    const auto categories = database.rows(QStringLiteral("select * from categories"));
    history.undo();
    // What was deleted is there again, in the category that there is.
    QCOMPARE(listed(database), QStringList{QStringLiteral("mow")});
    QCOMPARE(database.rows(QStringLiteral("select * from categories")), categories);
    QVERIFY_THROWS_EXCEPTION(ChangedSinceError, history.redo());
    QCOMPARE(listed(database), QStringList{QStringLiteral("mow")});
}

void TestUndoConflicts::categoriesThatSharedANameBeforeStayApart()
{
    TestDatabase database;
    database.addCategory(QStringLiteral("Garden"));
    database.addCategory(QStringLiteral("Garden"));
    UndoHistory history(database.engine());
    import(history, "Sport");
    history.undo();
    history.redo();
    QCOMPARE(
        database.sql(QStringLiteral("select count(*) from categories where cat_name='Garden'")).toInt(), 2);
}

AMBERTASK_TEST_MAIN(TestUndoConflicts)
#include "tst_undo_conflicts.moc"
