#include "exchange/CalendarParts.h"
#include "exchange/ContentLine.h"
#include "exchange/FileZones.h"
#include "support/TestMain.h"

#include <QBuffer>
#include <QTest>

namespace
{

std::string unfolded(std::string text)
{
    for (std::size_t at = 0; (at = text.find("\r\n ", at)) != std::string::npos;) {
        text.erase(at, 3);
    }
    return text;
}

} // namespace

class ContentLineTest : public TestCase
{
    Q_OBJECT

private slots:
    void aLineHasNameParametersAndValue();
    void aQuotedParameterMayHoldColonsAndSemicolons();
    void aTextComesBackFromItsEscapedForm();
    void aListIsCutAtCommasThatAreNotEscaped();
    void aFoldedLineHasAtMost75BytesAndWholeCharacters();
    void aDurationComesBackFromItsText_data();
    void aDurationComesBackFromItsText();
    void whatIsNoDurationIsNone();
};

void ContentLineTest::aLineHasNameParametersAndValue()
{
    const auto line = ContentLine::of("due;VALUE=DATE;X-A=b:20260115");
    QVERIFY(line && line->is("DUE"));
    QVERIFY(line->parameter("value") == "DATE" && line->parameter("x-a") == "b" && !line->parameter("TZID"));
    QVERIFY(line->value == "20260115");
    QVERIFY(!ContentLine::of("no colon") && !ContentLine::of(":no name") && !ContentLine::of(""));
}

void ContentLineTest::aQuotedParameterMayHoldColonsAndSemicolons()
{
    const auto line = ContentLine::of("SUMMARY;ALTREP=\"http://a;b\";LANGUAGE=en:a: b");
    QVERIFY(line && line->parameter("ALTREP") == "http://a;b" && line->parameter("LANGUAGE") == "en");
    QVERIFY(line->value == "a: b");
}

void ContentLineTest::aTextComesBackFromItsEscapedForm()
{
    for (const std::string text :
        {"a,b;c\\d", "\\n", "\\\\", "line\nline\n", " blanks ", "tab\tend", "\"q\""}) {
        QVERIFY(isSayable(text));
        QCOMPARE(unescaped(escaped(text)), text);
        QVERIFY(escaped(text).find('\n') == std::string::npos);
    }
    QVERIFY(!isSayable("") && !isSayable(" \t") && !isSayable("a\rb") && !isSayable("\x01")
        && !isSayable("\x7F"));
    QCOMPARE(unescaped(escaped("a\r\nb\rc\x01")), std::string("a\nb\nc "));
}

void ContentLineTest::aListIsCutAtCommasThatAreNotEscaped()
{
    const std::vector<std::string> wanted{"a,b", "c", ""};
    QVERIFY(unescapedList("a\\,b,c,") == wanted);
    QVERIFY(unescapedList("") == std::vector<std::string>{""});
}

void ContentLineTest::aFoldedLineHasAtMost75BytesAndWholeCharacters()
{
    for (const char* letter : {"x", "\u00e9", "\u4e2d", "\U0001F600"}) {
        for (int count = 0; count < 200; ++count) {
            std::string line = "SUMMARY:";
            for (int i = 0; i < count; ++i) {
                line += letter;
            }
            std::string folded;
            appendFolded(folded, line);
            for (const QByteArray& part : QByteArray::fromStdString(folded).split('\n')) {
                QVERIFY(part.size() <= 76); // with the carriage return
                QVERIFY(QString::fromUtf8(part).toUtf8() == part);
            }
            QCOMPARE(unfolded(folded), line + "\r\n");
        }
    }
}

void ContentLineTest::aDurationComesBackFromItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("none") << "PT0S" << qint64(0);
    QTest::newRow("a quarter of an hour before") << "-PT15M" << qint64(-900);
    QTest::newRow("a day") << "P1D" << qint64(86400);
    QTest::newRow("days and hours before") << "-P2DT3H" << qint64(-183600);
    QTest::newRow("all of it") << "P1DT2H3M4S" << qint64(93784);
    QTest::newRow("millennia") << "P3000000D" << qint64(259200000000);
}

void ContentLineTest::aDurationComesBackFromItsText()
{
    QFETCH(const QString, text);
    QFETCH(const qint64, seconds);
    QCOMPARE(QString::fromStdString(durationText(std::chrono::seconds(seconds))), text);
    const auto read = durationOf(text.toStdString());
    QVERIFY(read && read->count() == seconds);
}

void ContentLineTest::whatIsNoDurationIsNone()
{
    for (const char* text : {"", "20260115T100000Z", "P", "15M", "-", "PT999999999999S", "PXM", "now"}) {
        QVERIFY2(!durationOf(text), text);
    }
    QVERIFY(durationOf("P1W") == std::chrono::weeks(1));
}

AMBERTASK_TEST_MAIN(ContentLineTest)

#include "tst_content_line.moc"
