#include "store/Connection.h"
#include "support/CaughtError.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

Connection opened(const TestDatabase& database)
{
    Connection connection(database.engine(),
        QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.dataFile());
    connection.open();
    return connection;
}

template <typename Read> QString conversionError(Read read)
{
    const auto error = caught(read);
    return error && error->kind() == DatabaseError::Kind::Conversion ? error->text() : QString();
}

const QLatin1String Join("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

} // namespace

class RecordSetTest : public TestCase
{
    Q_OBJECT

private slots:
    void rowsAreReadFromTheFirstToTheLast();
    void anEmptyRecordSetIsAtItsEnd();
    void aDefaultRecordSetIsAtItsEnd();
    void fieldsAreFoundByNameWithoutCase();
    void aSharedNameIsReachedThroughItsTable();
    void anUnknownFieldIsNamed();
    void fieldsAreKnownWhenThereIsNoRow();
    void anAliasNamesAnExpression();
    void nullIsNoTextAndNoNumber();
    void numbersOutOfRangeNameTheirColumn();
    void aTextIsNoNumber();
    void aNumberReadAsTextIsItsDigits();
    void anyNumberButZeroIsTrue();
    void aTextThatIsNoMomentNamesItsColumn();
    void aMomentIsRead();
    void readingWithoutACurrentRecordIsAnError();
    void aFieldThatDoesNotExistIsAnError();
    void theCloseEndsARecordSetThatWasNotReadToItsEnd();
    void aRecordSetMayOutliveItsConnection();
};

void RecordSetTest::rowsAreReadFromTheFirstToTheLast()
{
    TestDatabase database;
    Connection connection = opened(database);
    RecordSet records = connection.execute(QStringLiteral("select cat_id,cat_name from categories"));
    QStringList names;
    for (; !records.atEnd(); records.moveNext()) {
        names.append(records.text(records.field("cat_name")));
    }
    QCOMPARE(names,
        (QStringList{QStringLiteral("Personal"), QStringLiteral("Work"), QStringLiteral("Shopping"),
            QStringLiteral("Appointments")}));
}

void RecordSetTest::anEmptyRecordSetIsAtItsEnd()
{
    TestDatabase database;
    Connection connection = opened(database);
    QVERIFY(connection.execute(QStringLiteral("select * from tasks")).atEnd());
    QVERIFY(connection.execute(QStringLiteral("delete from tasks")).atEnd());
}

void RecordSetTest::aDefaultRecordSetIsAtItsEnd()
{
    RecordSet records;
    QVERIFY(records.atEnd());
    QVERIFY(!conversionError([&] { records.field("x"); }).isEmpty());
    QVERIFY(!conversionError([&] { records.moveNext(); }).isEmpty());
    QVERIFY(!conversionError([&] { records.text(0); }).isEmpty());
}

void RecordSetTest::fieldsAreFoundByNameWithoutCase()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select cat_id,cat_name from categories"));
    QCOMPARE(records.field("cat_name"), 1);
    QCOMPARE(records.field("CAT_NAME"), 1);
    QCOMPARE(records.field("categories.cat_name"), 1);
}

void RecordSetTest::aSharedNameIsReachedThroughItsTable()
{
    TestDatabase database;
    aTask(database).in(2).add();
    Connection connection = opened(database);
    const RecordSet records = connection.execute(Join);
    QVERIFY(records.field("tasks.cat_id") != records.field("categories.cat_id"));
    QCOMPARE(records.int16(records.field("categories.cat_id")), qint16(2));
    const QString text = conversionError([&] { records.field("cat_id"); });
    QVERIFY2(text.contains(QLatin1String("cat_id")) && text.contains(QLatin1String("ambiguous")),
        qPrintable(text));
}

void RecordSetTest::anUnknownFieldIsNamed()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select cat_id from categories"));
    for (const char* name :
        {"cat_name", "tasks.cat_id", "cat_i", "cat_id2", "", ".", "categories.", ".cat_id"}) {
        const QString text = conversionError([&] { records.field(name); });
        QVERIFY2(text.contains(QLatin1Char('"') + QLatin1String(name) + QLatin1Char('"')), name);
    }
}

void RecordSetTest::fieldsAreKnownWhenThereIsNoRow()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(Join);
    QVERIFY(records.atEnd());
    QCOMPARE(records.field("task_id"), 0);
}

void RecordSetTest::anAliasNamesAnExpression()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records =
        connection.execute(QStringLiteral("select count(*) as tasks_count from tasks "));
    QCOMPARE(records.int32(records.field("tasks_count")), 0);
}

void RecordSetTest::nullIsNoTextAndNoNumber()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select null as missing, x'41' as bytes"));
    for (const QString& text :
        {conversionError([&] { records.text(0); }), conversionError([&] { records.utf8(0); }),
            conversionError([&] { records.int16(0); }), conversionError([&] { records.int32(0); }),
            conversionError([&] { records.flag(0); }), conversionError([&] { records.moment(0); })}) {
        QVERIFY2(text.contains(QLatin1String("missing")), qPrintable(text));
    }
    QVERIFY(conversionError([&] { records.text(1); }).contains(QLatin1String("bytes")));
}

void RecordSetTest::numbersOutOfRangeNameTheirColumn()
{
    TestDatabase database;
    database.sql(QStringLiteral("update categories set cat_icon = 32768 where cat_id = 1"));
    Connection connection = opened(database);
    const RecordSet records =
        connection.execute(QStringLiteral("select cat_icon, 32767 as a, -32768 as b, 2147483647 as c, "
                                          "2147483648 as d, -32769 as e from categories"));
    const QString text = conversionError([&] { records.int16(0); });
    QVERIFY2(text.contains(QLatin1String("categories.cat_icon")) && text.contains(QLatin1String("32768")),
        qPrintable(text));
    QCOMPARE(records.int32(0), 32768);
    QCOMPARE(records.int16(1), qint16(32767));
    QCOMPARE(records.int16(2), qint16(-32768));
    QCOMPARE(records.int32(3), 2147483647);
    QVERIFY(!conversionError([&] { records.int32(4); }).isEmpty());
    QVERIFY(!conversionError([&] { records.int16(5); }).isEmpty());
}

void RecordSetTest::aTextIsNoNumber()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select 'x' as a, 1.5 as b"));
    QVERIFY(conversionError([&] { records.int32(0); }).contains(QLatin1String("\"a\"")));
    QVERIFY(conversionError([&] { records.int32(1); }).contains(QLatin1String("\"b\"")));
    QVERIFY(conversionError([&] { records.flag(0); }).contains(QLatin1String("\"a\"")));
}

void RecordSetTest::aNumberReadAsTextIsItsDigits()
{
    TestDatabase database;
    Connection connection = opened(database);
    QCOMPARE(connection.execute(QStringLiteral("select 42 as a")).text(0), QStringLiteral("42"));
}

void RecordSetTest::anyNumberButZeroIsTrue()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(
        QStringLiteral("select 0 as a, 1 as b, -1 as c, 4294967296 as d, 0.5 as e, 0.0 as f"));
    QVERIFY(!records.flag(0));
    QVERIFY(records.flag(1));
    QVERIFY(records.flag(2));
    QVERIFY(records.flag(3));
    QVERIFY(records.flag(4));
    QVERIFY(!records.flag(5));
}

void RecordSetTest::aTextThatIsNoMomentNamesItsColumn()
{
    TestDatabase database;
    const qint32 id = aTask(database).add();
    database.sql(QStringLiteral("update tasks set task_due_date = '31.1.2007' where task_id = %1").arg(id));
    Connection connection = opened(database);
    const RecordSet records = connection.execute(Join);
    const QString text = conversionError([&] { records.moment(records.field("task_due_date")); });
    QVERIFY2(text.contains(QLatin1String("tasks.task_due_date")) && text.contains(QLatin1String("31.1.2007")),
        qPrintable(text));
}

void RecordSetTest::aMomentIsRead()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select #1/31/2007 23:59# as moment"));
    QVERIFY(records.moment(0)
        == makeMoment(std::chrono::January / 31 / 2007, std::chrono::minutes(23 * 60 + 59)));
}

void RecordSetTest::readingWithoutACurrentRecordIsAnError()
{
    TestDatabase database;
    Connection connection = opened(database);
    RecordSet records = connection.execute(QStringLiteral("select skin from settings"));
    records.moveNext();
    QVERIFY(records.atEnd());
    QVERIFY(!conversionError([&] { records.text(0); }).isEmpty());
    QVERIFY(!conversionError([&] { records.moveNext(); }).isEmpty());
}

void RecordSetTest::aFieldThatDoesNotExistIsAnError()
{
    TestDatabase database;
    Connection connection = opened(database);
    const RecordSet records = connection.execute(QStringLiteral("select skin from settings"));
    QVERIFY(!conversionError([&] { records.text(1); }).isEmpty());
    QVERIFY(!conversionError([&] { records.text(-1); }).isEmpty());
}

void RecordSetTest::theCloseEndsARecordSetThatWasNotReadToItsEnd()
{
    TestDatabase database;
    Connection connection = opened(database);
    RecordSet records = connection.execute(QStringLiteral("select cat_id from categories"));
    connection.close();
    QVERIFY(!conversionError([&] { records.int32(0); }).isEmpty());
    QVERIFY(!conversionError([&] { records.moveNext(); }).isEmpty());
    database.addCategory(QStringLiteral("not locked out"));
}

void RecordSetTest::aRecordSetMayOutliveItsConnection()
{
    TestDatabase database;
    RecordSet records;
    {
        Connection connection = opened(database);
        records = connection.execute(QStringLiteral("select cat_id from categories"));
        QCOMPARE(records.int32(0), 1);
    }
    QVERIFY(!conversionError([&] { records.int32(0); }).isEmpty());
}

AMBERTASK_TEST_MAIN(RecordSetTest)
#include "tst_record_set.moc"
