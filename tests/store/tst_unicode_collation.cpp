#include "store/UnicodeCollation.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

int compared(const QString& left, const QString& right)
{
    return compareIgnoringCase(left.toStdString(), right.toStdString());
}

} // namespace

class UnicodeCollationTest : public TestCase
{
    Q_OBJECT

private slots:
    void lettersOfBothCasesAreEqual_data();
    void lettersOfBothCasesAreEqual();
    void differentTextsAreOrderedByFoldedCodePoints_data();
    void differentTextsAreOrderedByFoldedCodePoints();
    void malformedBytesAreOrderedAndEqualOnlyToThemselves();
};

void UnicodeCollationTest::lettersOfBothCasesAreEqual_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("ASCII") << QStringLiteral("Shopping LIST") << QStringLiteral("shopping list");
    QTest::newRow("Latin") << QStringLiteral(u"ÄRGER") << QStringLiteral(u"ärger");
    QTest::newRow("Greek") << QStringLiteral(u"Σ") << QStringLiteral(u"σ");
    QTest::newRow("Greek at the end of a word") << QStringLiteral(u"ΟΔΟΣ") << QStringLiteral(u"οδος");
    QTest::newRow("Cyrillic") << QStringLiteral(u"РАБОТА") << QStringLiteral(u"работа");
    QTest::newRow("four bytes") << QStringLiteral(u"\U00010400") << QStringLiteral(u"\U00010428");
    QTest::newRow("ASCII and not") << QStringLiteral(u"\u212Aey") << QStringLiteral("KEY");
    QTest::newRow("sharp s") << QStringLiteral(u"\u1E9E") << QStringLiteral(u"ß");
}

void UnicodeCollationTest::lettersOfBothCasesAreEqual()
{
    QFETCH(const QString, left);
    QFETCH(const QString, right);
    QCOMPARE(compared(left, right), 0);
    QCOMPARE(compared(right, left), 0);
}

void UnicodeCollationTest::differentTextsAreOrderedByFoldedCodePoints_data()
{
    QTest::addColumn<QString>("smaller");
    QTest::addColumn<QString>("greater");
    QTest::newRow("nothing first") << QString() << QStringLiteral("a");
    QTest::newRow("prefix first") << QStringLiteral("Task") << QStringLiteral("task 1");
    QTest::newRow("case does not order") << QStringLiteral("apple") << QStringLiteral("Banana");
    QTest::newRow("between the cases") << QStringLiteral("_") << QStringLiteral("A");
    QTest::newRow("ASCII before others") << QStringLiteral("z") << QStringLiteral(u"Ä");
    QTest::newRow("two bytes") << QStringLiteral(u"Äa") << QStringLiteral(u"äb");
    QTest::newRow("above the surrogates") << QStringLiteral(u"\uFFFD") << QStringLiteral(u"\U0001F600");
}

void UnicodeCollationTest::differentTextsAreOrderedByFoldedCodePoints()
{
    QFETCH(const QString, smaller);
    QFETCH(const QString, greater);
    QVERIFY(compared(smaller, greater) < 0);
    QVERIFY(compared(greater, smaller) > 0);
}

void UnicodeCollationTest::malformedBytesAreOrderedAndEqualOnlyToThemselves()
{
    // A cut sequence, a lone continuation, overlong forms, a surrogate, beyond the last code point, no lead
    // byte.
    const std::vector<std::string> texts{"\xC3", "\x80", "\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80",
        "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "\xE2\x82", "a\xC3", "\xC3(", "\xF0\x9F\x98", "z",
        "\xC3\xA4"};
    for (const std::string& left : texts) {
        for (const std::string& right : texts) {
            QCOMPARE(compareIgnoringCase(left, right) == 0, left == right);
            QCOMPARE(compareIgnoringCase(left, right) < 0, compareIgnoringCase(right, left) > 0);
            for (const std::string& third : texts) {
                if (compareIgnoringCase(left, right) < 0 && compareIgnoringCase(right, third) < 0) {
                    QVERIFY(compareIgnoringCase(left, third) < 0);
                }
            }
        }
    }
}

AMBERTASK_TEST_MAIN(UnicodeCollationTest)
#include "tst_unicode_collation.moc"
