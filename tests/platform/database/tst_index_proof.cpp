#include "platform/database/Connection.h"
#include "platform/database/IndexPages.h"
#include "platform/database/IndexProof.h"
#include "support/CancellingProgress.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QTest>

namespace
{

const QString Table = QStringLiteral("tasks");
const QString Id = QStringLiteral("task_id");

/// A data file with many tasks, so that each index has several pages.
struct IndexedFile {
    explicit IndexedFile(int tasks = 2000)
    {
        database.sql(QStringLiteral(
            "insert into tasks(task_name,task_status,cat_id,task_due_date,reminder_on,reminder_date_time) "
            "with recursive n(i) as (select 1 where %1 > 0 union all select i+1 from n where i<%1) select "
            "'task '||i, "
            "i%4, "
            "1+i%3, '2026-01-15 11:00:00', i%2, '2026-01-'||(10+i%20)||' 11:00:00' from n")
                         .arg(tasks));
    }
    /// Does something to the tasks of which the index hears nothing.
    void behindTheBackOf(const QString& index, const QString& change)
    {
        database.sql(
            QStringLiteral("create table kept as select * from sqlite_schema where name='%1'; "
                           "pragma writable_schema=1; delete from sqlite_schema where name='%1'; "
                           "pragma writable_schema=reset; %2; pragma writable_schema=1; "
                           "insert into sqlite_schema select * from kept; pragma writable_schema=reset; "
                           "drop table kept")
                .arg(index, change));
    }
    bool isSoundForTheEngine() const
    {
        return database.sql(QStringLiteral("pragma integrity_check")).toString() == QLatin1String("ok");
    }
    bool isPossible() { return IndexProof(connection(), Table, Id).isPossible(); }
    bool isProven()
    {
        IndexProof proof(connection(), Table, Id);
        for (RecordSet rows = connection().execute(QStringLiteral("select * from tasks")); !rows.atEnd();
             rows.moveNext()) {
            proof.add(rows);
        }
        return succeeds(proof);
    }
    bool succeeds(const IndexProof& proof)
    {
        IndexPages pages(database.dataFile(), nullptr);
        return proof.succeeds(pages);
    }
    Connection& connection()
    {
        if (!m_connection) {
            m_connection.emplace(database.engine(),
                QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
            m_connection->open();
        }
        return *m_connection;
    }

    TestDatabase database;

private:
    std::optional<Connection> m_connection;
};

} // namespace

class IndexProofTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatTheProgramMakesIsProven_data();
    void whatTheProgramMakesIsProven();
    void aWrongIndexIsNotProven_data();
    void aWrongIndexIsNotProven();
    void anIndexInAnotherOrderThanItsDefinitionIsNotProven();
    void anEntryWhosePartsOverlapIsNotProven();
    void aRowThatWasNotGivenIsMissed();
    void aRowThatWasGivenTwiceIsOneTooMany();
    void whatCannotBeProvenIsLeftToTheEngine_data();
    void whatCannotBeProvenIsLeftToTheEngine();
    void aFractionIsLeftToTheEngine();
    void anIdThatIsAColumnLikeAnyOtherIsLeftToTheEngine();
    void itCanBeCancelled();
    void aMissingFileIsLeftToTheEngine();
};

void IndexProofTest::whatTheProgramMakesIsProven_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("as it is") << QStringLiteral("select 1");
    QTest::newRow("after a deletion") << QStringLiteral("delete from tasks where task_id % 7 = 0");
    QTest::newRow("after changes") << QStringLiteral(
        "update tasks set task_status=9, cat_id=-1 where task_id % 5 = 0");
    QTest::newRow("without tasks") << QStringLiteral("delete from tasks");
    QTest::newRow("without indexes") << QStringLiteral(
        "drop index tasks_by_status; drop index tasks_by_category; drop index tasks_by_reminder");
    QTest::newRow("with an index of any name") << QStringLiteral("create index \"a ] b\" on tasks (played)");
    QTest::newRow("with numbers of all sizes")
        << QStringLiteral("update tasks set task_status=(1<<(task_id%63))-1, cat_id=-(1<<(task_id%63)), "
                          "task_id=task_id+10000*(1<<(task_id%48))");
    QTest::newRow("with texts of all lengths") << QStringLiteral(
        "update tasks set reminder_date_time=substr('2026-01-15 10:00:00 and more', 1, task_id % 28)");
}

void IndexProofTest::whatTheProgramMakesIsProven()
{
    QFETCH(const QString, change);
    IndexedFile file;
    file.database.sql(change);
    QVERIFY(file.isPossible());
    QVERIFY(file.isProven());
}

void IndexProofTest::aWrongIndexIsNotProven_data()
{
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("change");
    for (const char* index : {"tasks_by_reminder", "tasks_by_status", "tasks_by_category"}) {
        const auto row = [index](const char* what, const char* change) {
            QTest::addRow("%s: %s", index, what) << QString::fromLatin1(index) << QString::fromLatin1(change);
        };
        row("a missing entry",
            "insert into tasks(task_status,cat_id,task_due_date,reminder_date_time) values(0,1,'','')");
        row("an entry without a row", "delete from tasks where task_id=77");
        row("another row in the place of one", "update tasks set task_id=5000 where task_id=77");
        row("other values", "update tasks set task_status=3, cat_id=1, dismissed=1 where task_id=1");
        row("values of two rows exchanged",
            "update tasks set task_status=3-task_status, cat_id=5-cat_id, reminder_on=1-reminder_on "
            "where task_id in (2, 3)");
    }
    QTest::newRow("a time that is a second off")
        << QStringLiteral("tasks_by_reminder")
        << QStringLiteral("update tasks set reminder_date_time='2026-01-11 11:00:01' where task_id=1");
}

void IndexProofTest::aWrongIndexIsNotProven()
{
    QFETCH(const QString, index);
    QFETCH(const QString, change);
    IndexedFile file;
    file.behindTheBackOf(index, change);
    QVERIFY(!file.isSoundForTheEngine());
    QCOMPARE(file.database.sql(QStringLiteral("pragma quick_check")).toString(), QStringLiteral("ok"));
    QVERIFY(file.isPossible());
    QVERIFY(!file.isProven());
}

// All entries are there: only a search would not find them.
void IndexProofTest::anIndexInAnotherOrderThanItsDefinitionIsNotProven()
{
    IndexedFile file;
    file.database.sql(QStringLiteral(
        "drop index tasks_by_status; create index tasks_by_status on tasks (task_status desc); "
        "pragma writable_schema=1; update sqlite_schema set sql=replace(sql, ' desc', '') where "
        "name='tasks_by_status'; pragma writable_schema=reset"));
    QVERIFY(!file.isSoundForTheEngine());
    QCOMPARE(file.database.sql(QStringLiteral("pragma quick_check")).toString(), QStringLiteral("ok"));
    QVERIFY(file.isPossible());
    QVERIFY(!file.isProven());
}

// To the engine it says what it should as long as nobody searches for it.
void IndexProofTest::anEntryWhosePartsOverlapIsNotProven()
{
    IndexedFile file;
    QByteArray bytes = bytesOf(file.database.dataFile());
    // Category 1, held by its type alone, of task 288: two bytes.
    const QByteArray entry("\x05\x03\x09\x02\x01\x20");
    QCOMPARE(bytes.count(entry), 1);
    writeFile(file.database.folder(), QStringLiteral("data.dat"),
        bytes.replace(entry, QByteArray("\x05\x03\x01\x02\x01\x20")));
    QVERIFY(!file.isSoundForTheEngine());
    QCOMPARE(file.database
                 .sql(QStringLiteral("select cat_id from tasks indexed by tasks_by_category where rowid=288"))
                 .toInt(),
        1);
    QVERIFY(!file.isProven());
}

void IndexProofTest::aRowThatWasNotGivenIsMissed()
{
    IndexedFile file(1);
    QVERIFY(!file.succeeds(IndexProof(file.connection(), Table, Id)));
}

void IndexProofTest::aRowThatWasGivenTwiceIsOneTooMany()
{
    IndexedFile file(1);
    IndexProof proof(file.connection(), Table, Id);
    const RecordSet rows = file.connection().execute(QStringLiteral("select * from tasks"));
    proof.add(rows);
    proof.add(rows);
    QVERIFY(!file.succeeds(proof));
}

void IndexProofTest::whatCannotBeProvenIsLeftToTheEngine_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("an index of another table") << QStringLiteral("create index i on categories (cat_icon)");
    QTest::newRow("one of names, whose order is ours")
        << QStringLiteral("create index i on tasks (task_name)");
    QTest::newRow("one that allows no equals")
        << QStringLiteral("create unique index i on tasks (task_id, played)");
    QTest::newRow("one from the last to the first")
        << QStringLiteral("create index i on tasks (played desc)");
    QTest::newRow("one of some tasks") << QStringLiteral("create index i on tasks (played) where played=1");
    QTest::newRow("one of an expression") << QStringLiteral("create index i on tasks (played+1)");
    QTest::newRow("a table in the order of its key")
        << QStringLiteral("create table t(a integer primary key, b) without rowid");
    QTest::newRow("a table with a key") << QStringLiteral("create table t(a text primary key)");
}

void IndexProofTest::whatCannotBeProvenIsLeftToTheEngine()
{
    QFETCH(const QString, change);
    IndexedFile file(10);
    QVERIFY(file.isPossible());
    IndexedFile other(10);
    other.database.sql(change);
    QVERIFY(!other.isPossible());
    QVERIFY(!other.isProven());
}

void IndexProofTest::aFractionIsLeftToTheEngine()
{
    IndexedFile file(10);
    file.database.sql(QStringLiteral("update tasks set task_status=1.5 where task_id=3"));
    QVERIFY(file.isSoundForTheEngine());
    QVERIFY(!file.isProven());
}

// The entries hold the number of the row, which is then not the id.
void IndexProofTest::anIdThatIsAColumnLikeAnyOtherIsLeftToTheEngine()
{
    IndexedFile file(10);
    file.database.sql(QStringLiteral("alter table tasks rename to t; create table tasks as select * from t; "
                                     "drop table t; create index i on tasks (played); "
                                     "update tasks set task_id=task_id+1"));
    QVERIFY(file.isSoundForTheEngine());
    QVERIFY(!file.isProven());
}

void IndexProofTest::itCanBeCancelled()
{
    IndexedFile file(10);
    const IndexProof proof(file.connection(), Table, Id);
    CancellingProgress progress(CancellingProgress::At::UnknownLength);
    IndexPages pages(file.database.dataFile(), &progress);
    QVERIFY(caught<Cancelled>([&] { proof.succeeds(pages); }));
}

void IndexProofTest::aMissingFileIsLeftToTheEngine()
{
    IndexedFile file(0);
    const IndexProof proof(file.connection(), Table, Id);
    QVERIFY(file.succeeds(proof));
    IndexPages pages(file.database.dataFile() + QStringLiteral(".missing"), nullptr);
    QVERIFY(!proof.succeeds(pages));
}

AMBERTASK_TEST_MAIN(IndexProofTest)
#include "tst_index_proof.moc"
