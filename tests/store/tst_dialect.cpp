#include "store/Dialect.h"
#include "support/CaughtError.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

QString translated(const QString& statement)
{
    return QString::fromStdString(translateDialect(statement.toStdString()));
}

} // namespace

class DialectTest : public TestCase
{
    Q_OBJECT

private slots:
    void dateLiteralsBecomeStoredMoments_data();
    void dateLiteralsBecomeStoredMoments();
    void everyOtherByteStaysAsItIs_data();
    void everyOtherByteStaysAsItIs();
    void malformedLiteralsAreRefusedByName_data();
    void malformedLiteralsAreRefusedByName();
    void aLongMalformedLiteralIsShortened();
    void aZeroCharacterIsRefused();
    void literalsBesideStringsAndCommentsAreTranslated();
    void aStatementOfTenMegabytesIsWalkedOnce();
};

void DialectTest::dateLiteralsBecomeStoredMoments_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    QTest::newRow("date and time") << "select #1/31/2007 23:59# "
                                   << "select '2007-01-31 23:59:00' ";
    QTest::newRow("bare date") << "select #1/1/2007#"
                               << "select '2007-01-01 00:00:00'";
    QTest::newRow("leading zeros") << "#01/02/2007 03:04#"
                                   << "'2007-01-02 03:04:00'";
    QTest::newRow("one-digit hour") << "#12/31/1999 0:00#"
                                    << "'1999-12-31 00:00:00'";
    QTest::newRow("leap day") << "#2/29/2024#"
                              << "'2024-02-29 00:00:00'";
    QTest::newRow("two literals") << "a>=#1/1/2007# and a<=#1/31/2007 23:59#,"
                                  << "a>='2007-01-01 00:00:00' and a<='2007-01-31 23:59:00',";
    QTest::newRow("side by side") << "#1/1/2007##1/2/2007#"
                                  << "'2007-01-01 00:00:00''2007-01-02 00:00:00'";
}

void DialectTest::dateLiteralsBecomeStoredMoments()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, expected);
    QCOMPARE(translated(statement), expected);
}

void DialectTest::everyOtherByteStaysAsItIs_data()
{
    QTest::addColumn<QString>("statement");
    for (const char* statement :
        {"", "select now(), true", "values('#1/1/2007#')", "values('it''s #1','#')", "\"na#me\"", "`na#me`",
            "[na#me]", "select 1 -- #1/1/2007#", "select 1 -- it's # \n, 2", "/* # ' */ 1", "1-2/3",
            "'open # string", "/* open # comment", "[open # name", "''''", "'a'''", "a - b / c"}) {
        QTest::newRow(statement) << QString::fromLatin1(statement);
    }
    QTest::newRow("other alphabets") << QStringLiteral(u"values('שלום # \U0001F600 ä')");
}

void DialectTest::everyOtherByteStaysAsItIs()
{
    QFETCH(const QString, statement);
    QCOMPARE(translated(statement), statement);
}

void DialectTest::malformedLiteralsAreRefusedByName_data()
{
    QTest::addColumn<QString>("literal");
    for (const char* literal :
        {"##", "# #", "#1/1/07#", "#1/1/20070#", "#2007-01-01#", "#1.1.2007#", "#13/1/2007#", "#0/1/2007#",
            "#1/0/2007#", "#2/29/2007#", "#4/31/2007#", "#1/1/2007 #", "#1/1/2007  1:00#", "#1/1/2007 1:0#",
            "#1/1/2007 24:00#", "#1/1/2007 12:60#", "#1/1/2007 12:00:00#", "#1/1/2007 12:00 #", "# 1/1/2007#",
            "#001/1/2007#", "#1/1/2007 1:00 PM#", "#a/b/cdef#", "#-1/1/2007#"}) {
        QTest::newRow(literal) << QString::fromLatin1(literal);
    }
}

void DialectTest::malformedLiteralsAreRefusedByName()
{
    QFETCH(const QString, literal);
    const auto error = caught([&] { translated(QLatin1String("select ") + literal + QLatin1String(", 1")); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
    QVERIFY2(error->text().contains(literal), qPrintable(error->text()));
}

void DialectTest::aLongMalformedLiteralIsShortened()
{
    const auto error =
        caught([] { translated(QLatin1String("select #") + QString(100000, QLatin1Char('x'))); });
    QVERIFY(error);
    QVERIFY(error->text().contains(QLatin1String("#xxx")));
    QVERIFY(error->text().contains(QLatin1String("is not closed")));
    QVERIFY(error->text().size() < 200);
}

void DialectTest::aZeroCharacterIsRefused()
{
    const auto error =
        caught([] { translated(QStringLiteral("select 'a") + QChar(0) + QStringLiteral("b'")); });
    QVERIFY(error);
    QCOMPARE(error->kind(), DatabaseError::Kind::Statement);
}

void DialectTest::literalsBesideStringsAndCommentsAreTranslated()
{
    QCOMPARE(translated(QStringLiteral("'a''#'#1/1/2007#[#]\"#\"`#`/*#*/#1/2/2007#--#\n#1/3/2007#")),
        QStringLiteral(
            "'a''#''2007-01-01 00:00:00'[#]\"#\"`#`/*#*/'2007-01-02 00:00:00'--#\n'2007-01-03 00:00:00'"));
}

void DialectTest::aStatementOfTenMegabytesIsWalkedOnce()
{
    const std::string quotes(10'000'000, '\'');
    const std::string dashes(10'000'000, '-');
    std::string literals;
    for (int i = 0; i < 500'000; ++i) {
        literals += "#1/31/2007 23:59#,[";
        literals += "],";
    }
    // A walk that began anew at every quote would take hours.
    QCOMPARE(translateDialect(quotes).size(), quotes.size());
    QCOMPARE(translateDialect(dashes).size(), dashes.size());
    QCOMPARE(translateDialect(literals).size(), literals.size() + 500'000 * 4);
}

AMBERTASK_TEST_MAIN(DialectTest)
#include "tst_dialect.moc"
