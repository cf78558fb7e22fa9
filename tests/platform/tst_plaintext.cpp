#include "platform/PlainText.h"
#include "support/TestMain.h"

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
