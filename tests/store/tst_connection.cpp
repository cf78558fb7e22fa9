#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <sys/stat.h>

namespace
{

QString connectionString(const QString& path)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + path;
}

Connection opened(const TestDatabase& database)
{
    Connection connection(database.engine(), connectionString(database.dataFile()));
    connection.open();
    return connection;
}

std::optional<DatabaseError> openError(const TestDatabase& database, const QString& path)
{
    return caught([&] { Connection(database.engine(), connectionString(path)).open(); });
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class ConnectionTest : public TestCase
{
    Q_OBJECT

private slots:
    void aNewConnectionIsClosedAndHoldsItsString();
    void openingAndClosingChangesTheState();
    void theListenerHearsOpenStatementsAndClose();
    void theListenerSeesTheStatementInTheProgramsWords();
    void theDestructorClosesToo();
    void aMovedConnectionGoesOn();
    void aPathWithBlanksAndOtherAlphabetsIsOpened();
    void aFileThatIsNoDataFileIsRefusedByNameAndReason_data();
    void aFileThatIsNoDataFileIsRefusedByNameAndReason();
    void aMissingFileIsNotCreated();
    void whatIsNoFileIsRefusedAndNeverWaitedFor_data();
    void whatIsNoFileIsRefusedAndNeverWaitedFor();
    void usersAndPasswordsAreRefused();
    void openingTwiceIsRefused();
    void executingOnAClosedConnectionIsRefused();
};

void ConnectionTest::aNewConnectionIsClosedAndHoldsItsString()
{
    TestDatabase database;
    const Connection connection(database.engine(), connectionString(database.dataFile()));
    QCOMPARE(connection.state(), Connection::State::Closed);
    QCOMPARE(static_cast<int>(connection.state()), 0);
    QCOMPARE(connection.connectionString(), connectionString(database.dataFile()));
    QCOMPARE(database.statements().opened(), 0);
}

void ConnectionTest::openingAndClosingChangesTheState()
{
    TestDatabase database;
    Connection connection = opened(database);
    QCOMPARE(connection.state(), Connection::State::Open);
    connection.close();
    QCOMPARE(connection.state(), Connection::State::Closed);
    connection.close();
    connection.open();
    QVERIFY(!connection.execute(QStringLiteral("select * from settings")).atEnd());
}

void ConnectionTest::theListenerHearsOpenStatementsAndClose()
{
    TestDatabase database;
    Connection connection = opened(database);
    QCOMPARE(database.statements().opened(), 1);
    QCOMPARE(database.statements().lastConnectionString(), connectionString(database.dataFile()));
    connection.execute(QStringLiteral("select * from settings"));
    QCOMPARE(database.statements().take(), QStringList{QStringLiteral("select * from settings")});
    QCOMPARE(database.statements().closed(), 0);
    connection.close();
    connection.close();
    QCOMPARE(database.statements().closed(), 1);
}

void ConnectionTest::theListenerSeesTheStatementInTheProgramsWords()
{
    TestDatabase database;
    const QString statement = QStringLiteral("select * from tasks  where task_due_date >= #1/1/2007# ");
    Connection connection = opened(database);
    connection.execute(statement);
    const QString broken = QStringLiteral("select #nonsense#");
    QVERIFY(caught([&] { connection.execute(broken); }));
    QCOMPARE(database.statements().take(), (QStringList{statement, broken}));
}

void ConnectionTest::theDestructorClosesToo()
{
    TestDatabase database;
    {
        Connection connection = opened(database);
        connection.execute(QStringLiteral("delete from settings"));
    }
    QCOMPARE(database.statements().closed(), 1);
    QCOMPARE(database.sql(QStringLiteral("select count(*) from settings")).toInt(), 0);
}

void ConnectionTest::aMovedConnectionGoesOn()
{
    TestDatabase database;
    Connection first = opened(database);
    RecordSet records = first.execute(QStringLiteral("select cat_id from categories"));
    Connection second = std::move(first);
    records.moveNext();
    QCOMPARE(records.int32(records.field("cat_id")), 2);
    Connection third(database.engine(), QString());
    third = std::move(second);
    QCOMPARE(third.state(), Connection::State::Open);
    QVERIFY(!third.execute(QStringLiteral("select * from settings")).atEnd());
}

void ConnectionTest::aPathWithBlanksAndOtherAlphabetsIsOpened()
{
    TestDatabase database;
    const QString path = database.folder() + QStringLiteral(u"/Ämter und \U0001F600 שלום #1?mode=memory.dat");
    QVERIFY(QFile::copy(database.dataFile(), path));
    Connection connection(database.engine(), connectionString(path));
    connection.open();
    QVERIFY(!connection.execute(QStringLiteral("select * from settings")).atEnd());
}

void ConnectionTest::aFileThatIsNoDataFileIsRefusedByNameAndReason_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing"
                             << "does not exist";
    QTest::newRow("folder") << "folder"
                            << "is a folder";
    QTest::newRow("empty") << "empty"
                           << "is empty";
    QTest::newRow("text") << "text"
                          << "not a database";
    QTest::newRow("short") << "short"
                           << "not a database";
}

void ConnectionTest::aFileThatIsNoDataFileIsRefusedByNameAndReason()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, reason);
    TestDatabase database;
    const QString path = database.folder() + QLatin1String("/other.dat");
    if (kind == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(path));
    } else if (kind != QLatin1String("missing")) {
        const int size = kind == QLatin1String("empty") ? 0 : kind == QLatin1String("short") ? 5 : 20000;
        writeFile(path, QByteArray(size, 'x'));
    }
    const auto error = openError(database, path);
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Storage);
    QVERIFY2(error->text().contains(path), qPrintable(error->text()));
    QVERIFY2(error->text().contains(reason), qPrintable(error->text()));
    QCOMPARE(database.statements().opened(), 0);
}

void ConnectionTest::whatIsNoFileIsRefusedAndNeverWaitedFor_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
    }
}

void ConnectionTest::whatIsNoFileIsRefusedAndNeverWaitedFor()
{
    QFETCH(const QString, suffix);
    const TestDatabase database;
    const QString path = database.dataFile() + suffix;
    QFile::remove(path);
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    const std::optional<DatabaseError> error = openError(database, database.dataFile());
    QVERIFY(error.has_value());
    QVERIFY2(error->text().contains(path) && error->text().contains(QLatin1String("it is not a file")),
        qPrintable(error->text()));
    QVERIFY(QFile::remove(path));
}

void ConnectionTest::aMissingFileIsNotCreated()
{
    TestDatabase database;
    const QString path = database.folder() + QLatin1String("/missing.dat");
    QVERIFY(openError(database, path));
    QVERIFY(!QFile::exists(path));
}

void ConnectionTest::usersAndPasswordsAreRefused()
{
    TestDatabase database;
    Connection connection(database.engine(), connectionString(database.dataFile()));
    QVERIFY(caught([&] { connection.open(QStringLiteral("admin")); }));
    QVERIFY(caught([&] { connection.open(QString(), QStringLiteral("secret")); }));
    connection.open(QString(), QString(), -1);
}

void ConnectionTest::openingTwiceIsRefused()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(caught([&] { connection.open(); }));
    QCOMPARE(connection.state(), Connection::State::Open);
}

void ConnectionTest::executingOnAClosedConnectionIsRefused()
{
    TestDatabase database;
    Connection connection(database.engine(), connectionString(database.dataFile()));
    QVERIFY(caught([&] { connection.execute(QStringLiteral("select 1")); }));
    QVERIFY(caught([&] { connection.commit(); }));
}

AMBERTASK_TEST_MAIN(ConnectionTest)
#include "tst_connection.moc"
