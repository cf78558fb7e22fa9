#include "support/TestMain.h"
#include "widgets/PlainText.h"

#include <QApplication>
#include <QTest>

class PlainTextTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void aToolTipShowsMarkupLetterForLetter()
    {
        QCOMPARE(plainToolTip(QStringLiteral("<b>a</b> & b\nc")),
            QStringLiteral("<qt>&lt;b&gt;a&lt;/b&gt; &amp; b<br>c</qt>"));
    }

    void aToolTipOfAWholeBookIsCut()
    {
        const QString tip = plainToolTip(QString(100'000, u'a'));
        QVERIFY(tip.size() < 3000);
        QVERIFY(tip.contains(QChar(0x2026)));
    }

    void ofALongTextABeginningIsShown()
    {
        const QString endless(100'000, u'a');
        QCOMPARE(shownPart(endless, 64), QString(64, u'a') + QChar(0x2026));
        QCOMPARE(shownPart(QString(64, u'a'), 64), QString(64, u'a'));
        QVERIFY(shownPart(endless).size() < 2000);
        QCOMPARE(shownPart(QString()), QString());
    }

    void noCharacterIsCutInTwo_data()
    {
        QTest::addColumn<QString>("character");
        QTest::newRow("two halves") << QString::fromUcs4(U"\U0001F600");
        QTest::newRow("drawn upon another") << QStringLiteral("e\u0301\u0323");
        QTest::newRow("line break") << QStringLiteral("\r\n");
    }

    void noCharacterIsCutInTwo()
    {
        QFETCH(QString, character);
        const QString text = character.repeated(1000);
        for (qsizetype most = 90; most < 120; ++most) {
            const qsizetype length = lengthOfPart(text, most);
            QVERIFY(length <= most && length > most - character.size());
            QCOMPARE(length % character.size(), 0);
        }
    }

    void aCharacterWithoutEndIsCutAllTheSame()
    {
        const QString marks = u'a' + QString(100'000, u'\u0301');
        QCOMPARE(lengthOfPart(marks, 1000), 1000);
        const QString high = QString::fromUcs4(U"\U000E0101");
        QVERIFY(shownPart(u'a' + high.repeated(1000), 101).isValidUtf16());
        QVERIFY(shownPart(u'a' + high.repeated(1000), 100).isValidUtf16());
    }

    void aLongNameWithoutBlanksCanBeBroken()
    {
        const QString name(100, u'w');
        QString broken = breakable(name);
        QCOMPARE(broken.count(QChar(0x200B)), 2);
        QCOMPARE(broken.remove(QChar(0x200B)), name);
    }

    void aTextWithBlanksStaysAsItIs()
    {
        const QString text = QStringLiteral("Are you sure you want to delete this task? ").repeated(20);
        QCOMPARE(breakable(text), text);
    }

    void theBeginningOfATextIsEnoughForWhatIsShown()
    {
        const std::string usual = "Caf\xC3\xA9";
        QCOMPARE(beginningOf(usual), QString::fromUtf8(usual.c_str()));
        QCOMPARE(beginningOf({}), QString());
        for (const char* before : {"", "x", "xx", "xxx"}) {
            const QString endless =
                QLatin1String(before) + QString::fromUcs4(U"\U0001F600").repeated(1'000'000);
            const QString beginning = beginningOf(endless.toStdString());
            QVERIFY(endless.startsWith(beginning));
            QVERIFY(beginning.size() < 20'000);
            QCOMPARE(shownPart(beginning), shownPart(endless));
            QCOMPARE(plainToolTip(beginning), plainToolTip(endless));
        }
    }

    void noCharacterIsTornApart()
    {
        const QString smileys = QString::fromUcs4(U"\U0001F600").repeated(100);
        const QString broken = breakable(smileys);
        QVERIFY(broken.contains(QChar(0x200B)));
        for (const QString& part : broken.split(QChar(0x200B))) {
            QVERIFY(part.isValidUtf16());
        }
    }

    void anEnglishTextIsSetOffFromRightToLeftOnesOnly()
    {
        const QString english = QStringLiteral("21 Nov 2026");
        const QString hebrew = QStringLiteral("\u05E9\u05DC\u05D5\u05DD");
        QCOMPARE(inOwnDirection(english), english);
        QCOMPARE(inOwnDirection(hebrew), QChar(0x2068) + hebrew + QChar(0x2069));
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(inOwnDirection(english), QChar(0x2068) + english + QChar(0x2069));
        QCOMPARE(inOwnDirection(hebrew), hebrew);
        QCOMPARE(inOwnDirection(QString()), QString());
    }
};

AMBERTASK_TEST_MAIN(PlainTextTest)
#include "tst_plaintext.moc"
