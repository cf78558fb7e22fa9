#include "data/ClsDatabase.h"
#include "store/ForeignChanges.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>
#include <utility>

namespace
{

const QString Rename = QStringLiteral("update categories set cat_name=cat_name||'x' where cat_id=1");
const QString ChangeNothing = QStringLiteral("delete from tasks where task_id=-5");

/// A data file, and a process that tells others' changes from its own.
class Watcher
{
public:
    Watcher() : m_engine(database.engine())
    {
        m_engine.foreign = &changes;
        run(QStringLiteral("select * from settings"));
    }

    void run(const QString& statement)
    {
        Connection connection = ClsDatabase(m_engine).Connect();
        connection.open();
        connection.execute(statement);
        connection.close();
    }
    /// After another look, as the check for reminders takes one every ten seconds.
    bool seesChanges()
    {
        run(QStringLiteral("select * from settings"));
        return changes.arePending();
    }
    Connection open()
    {
        Connection connection = ClsDatabase(m_engine).Connect();
        connection.open();
        return connection;
    }

    TestDatabase database;
    ForeignChanges changes;

private:
    DatabaseEngine m_engine;
};

/// More than SQLite keeps in memory: it writes into the file before the end.
void insertMuch(Connection& connection)
{
    const QString values = QStringLiteral("('%1')").arg(QString(8000, u'x'));
    const QString statement =
        QStringLiteral("insert into categories(cat_name) values") + QStringList(100, values).join(u',');
    for (int i = 0; i < 5; ++i) {
        connection.execute(statement);
    }
}

} // namespace

/// What other processes have changed in the data file, as the connections of this one see it.
class ForeignChangesTest : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsPendingAtFirst()
    {
        Watcher watcher;
        QVERIFY(!watcher.changes.arePending());
        QVERIFY(!watcher.seesChanges());
    }

    void ownChangesAreNotOthers()
    {
        Watcher watcher;
        for (int i = 0; i < 3; ++i) {
            watcher.run(Rename);
            watcher.run(ChangeNothing);
            QVERIFY(!watcher.seesChanges());
        }
    }

    void severalCommitsOfOneConnectionAreOwn()
    {
        Watcher watcher;
        Connection connection = watcher.open();
        connection.execute(Rename);
        connection.commit();
        connection.execute(ChangeNothing);
        connection.commit();
        connection.execute(Rename);
        connection.close();
        QVERIFY(!watcher.seesChanges());
    }

    void whatIsAbandonedIsNoChange()
    {
        Watcher watcher;
        Connection connection = watcher.open();
        insertMuch(connection);
        connection.abandon();
        QVERIFY(!watcher.seesChanges());
    }

    void aLargeOwnChangeIsOwn()
    {
        Watcher watcher;
        Connection connection = watcher.open();
        insertMuch(connection);
        connection.close();
        QVERIFY(!watcher.seesChanges());
    }

    void aChangeOfAnotherIsSeenOnce()
    {
        Watcher watcher;
        watcher.database.sql(Rename);
        QVERIFY(watcher.seesChanges());
        QVERIFY(watcher.seesChanges());
        watcher.changes.setShown(watcher.changes.latest());
        QVERIFY(!watcher.seesChanges());
    }

    void aChangeBetweenOwnOnesIsSeen()
    {
        Watcher watcher;
        watcher.run(Rename);
        watcher.database.sql(Rename);
        watcher.run(Rename);
        QVERIFY(watcher.changes.arePending());
    }

    void aChangeDuringTheReloadIsSeenAfterIt()
    {
        Watcher watcher;
        watcher.database.sql(Rename);
        QVERIFY(watcher.seesChanges());
        const quint32 seen = watcher.changes.latest();
        watcher.database.sql(Rename);
        watcher.changes.setShown(seen);
        QVERIFY(watcher.seesChanges());
    }

    void anotherReaderChangesNothing()
    {
        Watcher watcher;
        watcher.database.sql(QStringLiteral("select * from tasks"));
        QVERIFY(!watcher.seesChanges());
    }

    void everyCommitMakesAnotherState()
    {
        Watcher watcher;
        quint32 last = watcher.changes.state();
        const auto isNew = [&] {
            const quint32 before = std::exchange(last, watcher.changes.state());
            return last != before;
        };
        watcher.run(ChangeNothing);
        watcher.seesChanges();
        QVERIFY(!isNew());
        watcher.run(Rename);
        QVERIFY(isNew());
        watcher.seesChanges();
        QVERIFY(!isNew());
        watcher.database.sql(Rename);
        watcher.seesChanges();
        QVERIFY(isNew());
    }

    void aFileWithAnOlderCounterIsAnotherState()
    {
        ForeignChanges changes;
        changes.look(7);
        changes.addOwn();
        changes.look(8);
        const quint32 before = changes.state();
        // Another file in its place, and a commit to that.
        changes.look(7);
        changes.addOwn();
        changes.look(8);
        QVERIFY(changes.state() != before);
    }

    void aFileInWriteAheadModeIsNotJudged()
    {
        Watcher watcher;
        watcher.database.sql(QStringLiteral("pragma journal_mode=wal"));
        watcher.run(Rename);
        watcher.run(Rename);
        QVERIFY(!watcher.seesChanges());
    }

    void theCounterStartsAnewAfterItsLastNumber()
    {
        ForeignChanges changes;
        changes.look(0xffffffffU);
        changes.addOwn();
        changes.look(0);
        QVERIFY(!changes.arePending());
        changes.look(1);
        QVERIFY(changes.arePending());
    }
};

AMBERTASK_TEST_MAIN(ForeignChangesTest)
#include "tst_foreign_changes.moc"
