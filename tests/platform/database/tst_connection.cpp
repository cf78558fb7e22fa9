#include "platform/database/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace
{

/// A clock that is a second later every time it is asked.
class RunningClock final : public Clock
{
public:
    Moment now() const override { return m_now += std::chrono::seconds(1); }

private:
    mutable Moment m_now = std::chrono::local_days(std::chrono::January / 1 / 2026);
};

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
    void usersAndPasswordsAreRefused();
    void openingTwiceIsRefused();
    void executingOnAClosedConnectionIsRefused();
    void aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns_data();
    void aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns();
    void blanksAndCommentsBehindTheStatementAreAccepted();
    void anEmptyStatementIsRefused();
    void aStatementErrorTellsReasonAndStatement();
    void aLongStatementIsShortenedInTheError();
    void statementsBeyondReadingAndChangingRowsAreRefused_data();
    void statementsBeyondReadingAndChangingRowsAreRefused();
    void doubleQuotesNameColumnsOnly();
    void aCheckOfTheFileIsLetThrough();
    void nowIsTheInjectedClock();
    void nowIsOneValuePerStatement();
    void trueIsOne();
    void textsAreComparedWithoutCaseInEveryAlphabet();
    void textsAreSortedWithoutCase();
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

void ConnectionTest::aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns_data()
{
    QTest::addColumn<QString>("statement");
    for (const char* statement : {"delete from settings; delete from tasks", "delete from settings;;",
             "delete from settings; -- x\n select 1", "delete from settings; /* x */ nonsense"}) {
        QTest::newRow(statement) << QString::fromLatin1(statement);
    }
}

void ConnectionTest::aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns()
{
    QFETCH(const QString, statement);
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] { connection.execute(statement); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QVERIFY2(error->text().contains(QLatin1String("more than one statement")), qPrintable(error->text()));
    connection.close();
    QCOMPARE(database.sql(QStringLiteral("select count(*) from settings")).toInt(), 1);
}

void ConnectionTest::blanksAndCommentsBehindTheStatementAreAccepted()
{
    TestDatabase database;
    Connection connection = opened(database);
    for (const char* tail : {"", " ", ";", "; \r\n\t", " ; -- end", "; /* a */ -- b\n /* open"}) {
        QVERIFY(!connection.execute(QLatin1String("select * from settings") + QLatin1String(tail)).atEnd());
    }
}

void ConnectionTest::anEmptyStatementIsRefused()
{
    TestDatabase database;
    Connection connection = opened(database);
    for (const char* statement : {"", "  ", ";", "-- nothing"}) {
        const auto error = caught([&] { connection.execute(QString::fromLatin1(statement)); });
        QVERIFY(error);
        QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    }
}

void ConnectionTest::aStatementErrorTellsReasonAndStatement()
{
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] { connection.execute(QStringLiteral("select * from nowhere")); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QVERIFY(error->text().contains(QLatin1String("no such table")));
    QVERIFY(error->text().contains(QLatin1String("select * from nowhere")));
}

void ConnectionTest::aLongStatementIsShortenedInTheError()
{
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] {
        connection.execute(
            QLatin1String("selekt '") + QString(1'000'000, QLatin1Char('x')) + QLatin1Char('\''));
    });
    QVERIFY(error);
    QVERIFY(error->text().size() < 400);
    QVERIFY(error->text().contains(QLatin1String("selekt")));
}

void ConnectionTest::statementsBeyondReadingAndChangingRowsAreRefused_data()
{
    QTest::addColumn<QString>("statement");
    for (const char* statement :
        {"pragma writable_schema=on", "pragma journal_mode=off", "pragma user_version=5", "create table x(y)",
            "drop table tasks", "alter table tasks add column x", "create index x on tasks(task_name)",
            "attach ':memory:' as other", "vacuum", "begin", "commit", "rollback", "savepoint x", "reindex",
            "delete from sqlite_schema", "update sqlite_schema set sql=''", "select load_extension('x')",
            "create temp trigger x after delete on tasks begin delete from categories; end"}) {
        QTest::newRow(statement) << QString::fromLatin1(statement);
    }
}

void ConnectionTest::statementsBeyondReadingAndChangingRowsAreRefused()
{
    QFETCH(const QString, statement);
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] { connection.execute(statement); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
}

void ConnectionTest::doubleQuotesNameColumnsOnly()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral("select \"skin\" from settings")).atEnd());
    QVERIFY(caught([&] { connection.execute(QStringLiteral("select \"Aqua\" from settings")); }));
}

void ConnectionTest::aCheckOfTheFileIsLetThrough()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("pragma quick_check"));
    QCOMPARE(records.text(0), QStringLiteral("ok"));
    QCOMPARE(connection.execute(QStringLiteral("pragma user_version")).int32(0), 1);
}

void ConnectionTest::nowIsTheInjectedClock()
{
    TestDatabase database;
    Connection connection = opened(database);
    QCOMPARE(connection.execute(QStringLiteral("select now() as moment")).text(0),
        QStringLiteral("2026-01-15 10:00:00"));
    database.clock().step(std::chrono::seconds(61));
    QCOMPARE(connection.execute(QStringLiteral("select now() as moment")).text(0),
        QStringLiteral("2026-01-15 10:01:01"));
}

void ConnectionTest::nowIsOneValuePerStatement()
{
    TestDatabase database;
    const RunningClock clock;
    DatabaseEngine engine = database.engine();
    engine.clock = &clock;
    Connection connection(engine, connectionString(database.dataFile()));
    connection.open();
    RecordSet records = connection.execute(
        QStringLiteral("select now() as a, max(cat_id, now()) as b from categories where now() = now()"));
    const QString first = records.text(0);
    int rows = 0;
    for (; !records.atEnd(); records.moveNext(), ++rows) {
        QCOMPARE(records.text(0), first);
        QCOMPARE(records.text(1), first);
    }
    QCOMPARE(rows, 4);
    QVERIFY(connection.execute(QStringLiteral("select now() as a")).text(0) > first);
}

void ConnectionTest::trueIsOne()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral("select * from settings where show_grid=true")).atEnd());
    QVERIFY(connection.execute(QStringLiteral("select * from settings where always_on_top=true")).atEnd());
}

void ConnectionTest::textsAreComparedWithoutCaseInEveryAlphabet()
{
    TestDatabase database;
    database.addCategory(QStringLiteral(u"ÄRGER ΣΊΣΥΦΟΣ"));
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral(u"select * from categories where cat_name = 'ärger σίσυφος'"))
                 .atEnd());
    QVERIFY(connection.execute(QStringLiteral(u"select * from categories where cat_name = 'arger σίσυφος'"))
                .atEnd());
}

void ConnectionTest::textsAreSortedWithoutCase()
{
    TestDatabase database;
    database.removeAllCategories();
    for (const QString& name :
        {QStringLiteral(u"öl"), QStringLiteral("beta"), QStringLiteral(u"Ähre"), QStringLiteral("Alpha"),
            QStringLiteral("Gamma"), QStringLiteral(u"ÖL"), QStringLiteral("alpha")}) {
        database.addCategory(name);
    }
    Connection connection = opened(database);
    QStringList names;
    for (RecordSet records =
             connection.execute(QStringLiteral("select cat_name from categories order by cat_name"));
         !records.atEnd(); records.moveNext()) {
        names.append(records.text(0));
    }
    QCOMPARE(names,
        (QStringList{QStringLiteral("Alpha"), QStringLiteral("alpha"), QStringLiteral("beta"),
            QStringLiteral("Gamma"), QStringLiteral(u"Ähre"), QStringLiteral(u"öl"), QStringLiteral(u"ÖL")}));
}

AMBERTASK_TEST_MAIN(ConnectionTest)
#include "tst_connection.moc"
