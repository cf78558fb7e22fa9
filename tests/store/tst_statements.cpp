#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

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

} // namespace

class StatementsTest : public TestCase
{
    Q_OBJECT

private slots:
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

void StatementsTest::aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns_data()
{
    QTest::addColumn<QString>("statement");
    for (const char* statement : {"delete from settings; delete from tasks", "delete from settings;;",
             "delete from settings; -- x\n select 1", "delete from settings; /* x */ nonsense"}) {
        QTest::newRow(statement) << QString::fromLatin1(statement);
    }
}

void StatementsTest::aSecondStatementInTheTextIsRefusedBeforeTheFirstRuns()
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

void StatementsTest::blanksAndCommentsBehindTheStatementAreAccepted()
{
    TestDatabase database;
    Connection connection = opened(database);
    for (const char* tail : {"", " ", ";", "; \r\n\t", " ; -- end", "; /* a */ -- b\n /* open"}) {
        QVERIFY(!connection.execute(QLatin1String("select * from settings") + QLatin1String(tail)).atEnd());
    }
}

void StatementsTest::anEmptyStatementIsRefused()
{
    TestDatabase database;
    Connection connection = opened(database);
    for (const char* statement : {"", "  ", ";", "-- nothing"}) {
        const auto error = caught([&] { connection.execute(QString::fromLatin1(statement)); });
        QVERIFY(error);
        QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    }
}

void StatementsTest::aStatementErrorTellsReasonAndStatement()
{
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] { connection.execute(QStringLiteral("select * from nowhere")); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QVERIFY(error->text().contains(QLatin1String("no such table")));
    QVERIFY(error->text().contains(QLatin1String("select * from nowhere")));
}

void StatementsTest::aLongStatementIsShortenedInTheError()
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

void StatementsTest::statementsBeyondReadingAndChangingRowsAreRefused_data()
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

void StatementsTest::statementsBeyondReadingAndChangingRowsAreRefused()
{
    QFETCH(const QString, statement);
    TestDatabase database;
    Connection connection = opened(database);
    const auto error = caught([&] { connection.execute(statement); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
}

void StatementsTest::doubleQuotesNameColumnsOnly()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral("select \"skin\" from settings")).atEnd());
    QVERIFY(caught([&] { connection.execute(QStringLiteral("select \"Aqua\" from settings")); }));
}

void StatementsTest::aCheckOfTheFileIsLetThrough()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("pragma quick_check"));
    QCOMPARE(records.text(0), QStringLiteral("ok"));
    QCOMPARE(connection.execute(QStringLiteral("pragma user_version")).int32(0), 4);
}

void StatementsTest::nowIsTheInjectedClock()
{
    TestDatabase database;
    Connection connection = opened(database);
    QCOMPARE(connection.execute(QStringLiteral("select now() as moment")).text(0),
        QStringLiteral("2026-01-15 10:00:00"));
    database.clock().step(std::chrono::seconds(61));
    QCOMPARE(connection.execute(QStringLiteral("select now() as moment")).text(0),
        QStringLiteral("2026-01-15 10:01:01"));
}

void StatementsTest::nowIsOneValuePerStatement()
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

void StatementsTest::trueIsOne()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral("select * from settings where show_grid=true")).atEnd());
    QVERIFY(connection.execute(QStringLiteral("select * from settings where always_on_top=true")).atEnd());
}

void StatementsTest::textsAreComparedWithoutCaseInEveryAlphabet()
{
    TestDatabase database;
    database.addCategory(QStringLiteral(u"ÄRGER ΣΊΣΥΦΟΣ"));
    Connection connection = opened(database);
    QVERIFY(!connection.execute(QStringLiteral(u"select * from categories where cat_name = 'ärger σίσυφος'"))
                 .atEnd());
    QVERIFY(connection.execute(QStringLiteral(u"select * from categories where cat_name = 'arger σίσυφος'"))
                .atEnd());
}

void StatementsTest::textsAreSortedWithoutCase()
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

AMBERTASK_TEST_MAIN(StatementsTest)
#include "tst_statements.moc"
