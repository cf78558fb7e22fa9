#include "data/ClsDatabase.h"
#include "data/PackedTexts.h"
#include "data/SqlText.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

class SqlTextTest : public TestCase
{
    Q_OBJECT

private slots:
    void quotesAreDoubledAndNothingElse();
    void datesHaveNoLeadingZerosAndFourDigitYears();
    void momentsEndWithHoursAndMinutes();
    void datesAreTheSameInEveryLocale();
    void everyOccurrenceOfAMarkerIsReplaced();
    void aValueThatHoldsMarkerTextIsInsertedAsItIs();
    void markersAreFoundInTheirCaseOnly();
    void otherAngleBracketsStay();
    void packedTextsKeepTheirNeighbours();
    void theDataFileIsNamedDataDat();
    void aFolderThatEndsInASeparatorGetsNoSecond();
    void anotherFileNameLeadsToThatFile();
    void everyConnectIsANewClosedConnection();
};

void SqlTextTest::quotesAreDoubledAndNothingElse()
{
    QCOMPARE(EscapeSqlText(QString()), QString());
    QCOMPARE(EscapeSqlText(QStringLiteral("Bob's call")), QStringLiteral("Bob''s call"));
    QCOMPARE(EscapeSqlText(QStringLiteral("''")), QStringLiteral("''''"));
    QCOMPARE(EscapeSqlText(QStringLiteral("a\"b#c\\d%e_f`")), QStringLiteral("a\"b#c\\d%e_f`"));
}

void SqlTextTest::datesHaveNoLeadingZerosAndFourDigitYears()
{
    QCOMPARE(sqlDate(makeMoment(2007y / 1 / 31)), QStringLiteral("1/31/2007"));
    QCOMPARE(sqlDate(makeMoment(2026y / 12 / 5, 23h)), QStringLiteral("12/5/2026"));
    QCOMPARE(sqlDate(makeMoment(987y / 3 / 4)), QStringLiteral("3/4/0987"));
}

void SqlTextTest::momentsEndWithHoursAndMinutes()
{
    QCOMPARE(sqlDateTime(makeMoment(2007y / 1 / 31, 9h + 5min)), QStringLiteral("1/31/2007 09:05"));
    QCOMPARE(sqlDateTime(makeMoment(2007y / 1 / 31, 23h + 59min + 59s)), QStringLiteral("1/31/2007 23:59"));
    QCOMPARE(sqlDateTime(makeMoment(2007y / 1 / 31)), QStringLiteral("1/31/2007 00:00"));
}

void SqlTextTest::datesAreTheSameInEveryLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    const QString text = sqlDateTime(makeMoment(2007y / 1 / 31, 9h + 5min));
    QLocale::setDefault(before);
    QCOMPARE(text, QStringLiteral("1/31/2007 09:05"));
}

void SqlTextTest::everyOccurrenceOfAMarkerIsReplaced()
{
    QCOMPARE(fillMarkers(u"<a/>-<b/>-<a/>", {{u"<a/>", QStringLiteral("1")}, {u"<b/>", QStringLiteral("2")}}),
        QStringLiteral("1-2-1"));
    QCOMPARE(fillMarkers(u"<a/><a/>", {{u"<a/>", QString()}}), QString());
    QCOMPARE(fillMarkers(u"", {{u"<a/>", QStringLiteral("1")}}), QString());
}

void SqlTextTest::aValueThatHoldsMarkerTextIsInsertedAsItIs()
{
    QCOMPARE(
        fillMarkers(u"<a/><b/>", {{u"<a/>", QStringLiteral("<b/><a/>")}, {u"<b/>", QStringLiteral("<a/>")}}),
        QStringLiteral("<b/><a/><a/>"));
}

void SqlTextTest::markersAreFoundInTheirCaseOnly()
{
    QCOMPARE(fillMarkers(u"<A/><a/>", {{u"<a/>", QStringLiteral("1")}}), QStringLiteral("<A/>1"));
}

void SqlTextTest::otherAngleBracketsStay()
{
    QCOMPARE(fillMarkers(u"x<y <<a/>/> <", {{u"<a/>", QStringLiteral("1")}}), QStringLiteral("x<y <1/> <"));
}

void SqlTextTest::packedTextsKeepTheirNeighbours()
{
    PackedTexts<3> texts;
    QCOMPARE(texts.text(1), QString());
    texts.set(1, "middle");
    texts.set(0, "first");
    texts.set(2, "last");
    texts.set(1, "");
    texts.set(1, "longer middle");
    QCOMPARE(texts.text(0), QStringLiteral("first"));
    QCOMPARE(texts.text(1), QStringLiteral("longer middle"));
    QCOMPARE(texts.text(2), QStringLiteral("last"));
    texts.assign({"a", "", "ccc"});
    QCOMPARE(texts.text(0), QStringLiteral("a"));
    QCOMPARE(texts.text(1), QString());
    QCOMPARE(texts.text(2), QStringLiteral("ccc"));
}

void SqlTextTest::theDataFileIsNamedDataDat()
{
    TestDatabase database;
    const ClsDatabase store(database.engine());
    QCOMPARE(store.FileName(), QStringLiteral("data.dat"));
    QCOMPARE(store.Connect().connectionString(),
        QLatin1String("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= ") + database.folder()
            + QLatin1String("/data.dat"));
}

void SqlTextTest::aFolderThatEndsInASeparatorGetsNoSecond()
{
    DatabaseEngine engine;
    engine.programFolder = QStringLiteral("/");
    QCOMPARE(ClsDatabase(engine).Connect().connectionString(),
        QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= /data.dat"));
}

void SqlTextTest::anotherFileNameLeadsToThatFile()
{
    TestDatabase database;
    QVERIFY(QFile::rename(database.dataFile(), database.folder() + QLatin1String("/other.dat")));
    ClsDatabase store(database.engine());
    store.setFileName(QStringLiteral("other.dat"));
    QCOMPARE(store.FileName(), QStringLiteral("other.dat"));
    Connection connection = store.Connect();
    connection.open();
    QVERIFY(!connection.execute(QStringLiteral("select * from settings")).atEnd());
}

void SqlTextTest::everyConnectIsANewClosedConnection()
{
    TestDatabase database;
    const ClsDatabase store(database.engine());
    Connection first = store.Connect();
    first.open();
    QCOMPARE(store.Connect().state(), Connection::State::Closed);
    QCOMPARE(first.state(), Connection::State::Open);
}

AMBERTASK_TEST_MAIN(SqlTextTest)
#include "tst_sql_text.moc"
