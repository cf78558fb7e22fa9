#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/OtherProgram.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "system/FileAccess.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace
{

Connection openedAt(const TestDatabase& database, const QString& path)
{
    Connection connection(
        database.engine(), QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + path);
    connection.open();
    return connection;
}

Connection opened(const TestDatabase& database)
{
    return openedAt(database, database.dataFile());
}

const QString DeleteSettings = QStringLiteral("delete from settings");
const QString CountSettings = QStringLiteral("select count(*) from settings");
const QString CountCategories = QStringLiteral("select count(*) from categories");

bool isStorageError(const std::optional<DatabaseError>& error, const TestDatabase& database)
{
    return error && error->kind() == DatabaseError::Kind::Storage
        && error->text().contains(database.dataFile());
}

/// Overwrites a page in the middle of the table `tasks`, which must be of several pages.
void damageTasks(const TestDatabase& database)
{
    const qint64 pageSize = database.sql(QStringLiteral("pragma page_size")).toLongLong();
    const qint64 pages = database.sql(QStringLiteral("pragma page_count")).toLongLong();
    QFile file(database.dataFile());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek((pages - 20) * pageSize));
    QVERIFY(file.write(QByteArray(static_cast<qsizetype>(10 * pageSize), '\xA5')) > 0);
}

} // namespace

class DeferredCommitTest : public TestCase
{
    Q_OBJECT

private slots:
    void othersSeeNothingBeforeTheClose();
    void theConnectionSeesItsOwnWriting();
    void commitMakesItVisibleBeforeTheClose();
    void aStatementErrorKeepsTheStatementsBefore();
    void aLockedFileFailsTheFirstWriting();
    void anExclusivelyLockedFileFailsToOpen();
    void aFailedCommitIsReportedByTheCloseAndChangesNothing();
    void aFailedEarlyCommitChangesNothing();
    void aStorageErrorUndoesTheStatementsBefore();
    void afterAStorageErrorTheConnectionCanOnlyBeClosed();
    void aFinishedRecordSetHoldsNoLock();
    void aReadingConnectionMayWriteWhileItsRecordSetIsOpen();
    void abandonedWritingIsGone();
    void aCopyTakenWithItsJournalInTheMiddleGoesBackToTheStart();
};

void DeferredCommitTest::othersSeeNothingBeforeTheClose()
{
    TestDatabase database;
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    connection.execute(QStringLiteral("delete from categories"));
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
    QCOMPARE(database.sql(CountCategories).toInt(), 4);
    connection.close();
    QCOMPARE(database.sql(CountSettings).toInt(), 0);
    QCOMPARE(database.sql(CountCategories).toInt(), 0);
}

void DeferredCommitTest::theConnectionSeesItsOwnWriting()
{
    TestDatabase database;
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    QVERIFY(connection.execute(QStringLiteral("select * from settings")).atEnd());
}

void DeferredCommitTest::commitMakesItVisibleBeforeTheClose()
{
    TestDatabase database;
    Connection connection = opened(database);
    connection.commit();
    connection.execute(DeleteSettings);
    connection.commit();
    QCOMPARE(database.sql(CountSettings).toInt(), 0);
    connection.execute(QStringLiteral("delete from categories"));
    QCOMPARE(database.sql(CountCategories).toInt(), 4);
    connection.close();
    QCOMPARE(database.sql(CountCategories).toInt(), 0);
}

void DeferredCommitTest::aStatementErrorKeepsTheStatementsBefore()
{
    TestDatabase database;
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    for (const char* statement :
        {"insert into categories(cat_id) values(1)", "insert into categories(cat_name) values(null)",
            "nonsense", "delete from tasks where task_due_date = #x#", "update categories set cat_id='x'"}) {
        const auto error = caught([&] { connection.execute(QString::fromLatin1(statement)); });
        QVERIFY2(error, statement);
        QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    }
    connection.execute(QStringLiteral("delete from categories where cat_id = 4"));
    connection.close();
    QCOMPARE(database.sql(CountSettings).toInt(), 0);
    QCOMPARE(database.sql(CountCategories).toInt(), 3);
}

void DeferredCommitTest::aLockedFileFailsTheFirstWriting()
{
    TestDatabase database;
    {
        const OtherProgram other(database, OtherProgram::Writing);
        QVERIFY(other.holds());
        Connection connection = opened(database);
        const auto error = caught([&] { connection.execute(DeleteSettings); });
        QVERIFY(isStorageError(error, database));
        QVERIFY2(
            error->text().contains(QLatin1String("another program is using it")), qPrintable(error->text()));
        connection.close();
    }
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
}

void DeferredCommitTest::anExclusivelyLockedFileFailsToOpen()
{
    TestDatabase database;
    const OtherProgram other(database, OtherProgram::Committing);
    QVERIFY(other.holds());
    const auto error = caught([&] { opened(database); });
    QVERIFY(isStorageError(error, database));
    QCOMPARE(database.statements().opened(), 0);
}

void DeferredCommitTest::aFailedCommitIsReportedByTheCloseAndChangesNothing()
{
    TestDatabase database;
    {
        const OtherProgram reader(database, OtherProgram::Reading);
        QVERIFY(reader.holds());
        Connection connection = opened(database);
        connection.execute(DeleteSettings);
        const auto error = caught([&] { connection.close(); });
        QVERIFY(isStorageError(error, database));
        QCOMPARE(connection.state(), Connection::State::Closed);
        QCOMPARE(database.statements().closed(), 1);
    }
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
    // Where the system does not promise that a removed file stays so, an empty one is left.
    const QFileInfo journal(database.dataFile() + QLatin1String("-journal"));
    QVERIFY(!journal.exists() || (!flushesFolders() && journal.size() == 0));
}

void DeferredCommitTest::aFailedEarlyCommitChangesNothing()
{
    TestDatabase database;
    {
        const OtherProgram reader(database, OtherProgram::Reading);
        QVERIFY(reader.holds());
        Connection connection = opened(database);
        connection.execute(DeleteSettings);
        QVERIFY(isStorageError(caught([&] { connection.commit(); }), database));
        QVERIFY(isStorageError(caught([&] { connection.commit(); }), database));
        connection.close();
    }
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
}

void DeferredCommitTest::aStorageErrorUndoesTheStatementsBefore()
{
    TestDatabase database;
    for (int i = 0; i < 60; ++i) {
        aTask(database).named(QString(2000, QLatin1Char('x'))).add();
    }
    damageTasks(database);
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    const auto error = caught([&] { connection.execute(QStringLiteral("update tasks set played=1")); });
    QVERIFY(isStorageError(error, database));
    connection.close();
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
}

void DeferredCommitTest::afterAStorageErrorTheConnectionCanOnlyBeClosed()
{
    TestDatabase database;
    Connection connection = opened(database);
    {
        const OtherProgram other(database, OtherProgram::Writing);
        QVERIFY(caught([&] { connection.execute(DeleteSettings); }));
    }
    QVERIFY(isStorageError(caught([&] { connection.execute(DeleteSettings); }), database));
    connection.close();
    QCOMPARE(database.sql(CountSettings).toInt(), 1);
    connection.open();
    connection.execute(DeleteSettings);
    connection.close();
    QCOMPARE(database.sql(CountSettings).toInt(), 0);
}

void DeferredCommitTest::aFinishedRecordSetHoldsNoLock()
{
    TestDatabase database;
    Connection connection = opened(database);
    RecordSet records = connection.execute(QStringLiteral("select * from categories"));
    while (!records.atEnd()) {
        records.moveNext();
    }
    const OtherProgram other(database, OtherProgram::Committing);
    QVERIFY(other.holds());
    QCOMPARE(records.field("cat_id"), 0);
}

void DeferredCommitTest::aReadingConnectionMayWriteWhileItsRecordSetIsOpen()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select skin from settings"));
    connection.execute(QStringLiteral("update categories set cat_icon = 11"));
    QCOMPARE(records.text(0), QStringLiteral("Aqua"));
    connection.close();
    QCOMPARE(database.sql(QStringLiteral("select min(cat_icon) from categories")).toInt(), 11);
}

void DeferredCommitTest::aCopyTakenWithItsJournalInTheMiddleGoesBackToTheStart()
{
    TestDatabase database;
    const QString copy = database.folder() + QLatin1String("/copy.dat");
    for (int i = 0; i < 500; ++i) {
        aTask(database).named(QString(10000, QLatin1Char('x'))).add();
    }
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    // More than the page cache holds: pages reach the file before the commit.
    connection.execute(QStringLiteral("update tasks set task_name = 'y' || task_name"));
    QVERIFY(QFile::copy(database.dataFile(), copy));
    QVERIFY(QFile::copy(database.dataFile() + QLatin1String("-journal"), copy + QLatin1String("-journal")));
    connection.close();

    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("yxxxxxxxxx"));
    file.close();
    Connection second = openedAt(database, copy);
    QVERIFY(!second.execute(QStringLiteral("select * from settings")).atEnd());
    QVERIFY(second.execute(QStringLiteral("select * from tasks where task_name >= 'y'")).atEnd());
    QCOMPARE(second.execute(QStringLiteral("pragma integrity_check")).text(0), QStringLiteral("ok"));
}

void DeferredCommitTest::abandonedWritingIsGone()
{
    TestDatabase database;
    const QByteArray before = bytesOf(database.dataFile());
    Connection connection = opened(database);
    connection.execute(DeleteSettings);
    connection.abandon();
    QCOMPARE(connection.state(), Connection::State::Closed);
    connection.abandon();
    connection.close();
    QVERIFY(bytesOf(database.dataFile()) == before);
    QCOMPARE(database.statements().closed(), 1);
}

AMBERTASK_TEST_MAIN(DeferredCommitTest)
#include "tst_deferred_commit.moc"
