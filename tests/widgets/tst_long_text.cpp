#include "support/TestMain.h"
#include "widgets/ControlValue.h"
#include "widgets/LongText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace
{

constexpr qsizetype Endless = 10'000'000;

struct Edit {
    Edit() { takeLongTexts(edit); }

    QLineEdit edit;
};

} // namespace

class LongTextTest : public TestCase
{
    Q_OBJECT

private slots:
    void aUsualTextIsShownWhole()
    {
        Edit f;
        const QString text(20'000, u'w');
        setWholeText(f.edit, text);
        QCOMPARE(f.edit.text(), text);
        QCOMPARE(wholeText(f.edit), text);
        QCOMPARE(f.edit.toolTip(), QString());
    }

    void ofAnEndlessTextTheBeginningIsShownAndTheWholeIsKept()
    {
        Edit f;
        const QString text = QString(Endless, u'\u0628') + QStringLiteral(" end");
        setWholeText(f.edit, text);
        QVERIFY(f.edit.text().size() < 20'000);
        QVERIFY(text.startsWith(f.edit.text().chopped(1)));
        QVERIFY(!f.edit.toolTip().isEmpty());
        QVERIFY(wholeText(f.edit) == text);
        QVERIFY(valueOf(&f.edit) == text);
    }

    void theRestStaysBehindWhatIsWritten()
    {
        Edit f;
        const QString text(Endless, u'w');
        setWholeText(f.edit, text);
        f.edit.home(false);
        QTest::keyClicks(&f.edit, QStringLiteral("New "));
        QVERIFY(wholeText(f.edit) == QStringLiteral("New ") + text);
        QTest::keyClick(&f.edit, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(wholeText(f.edit) == text);
    }

    void whatIsWrittenAtTheEndStandsBehindTheRest()
    {
        Edit f;
        const QString text(Endless, u'w');
        setWholeText(f.edit, text);
        f.edit.end(false);
        QTest::keyClicks(&f.edit, QStringLiteral(" more"));
        QVERIFY(wholeText(f.edit) == text + QStringLiteral(" more"));

        QPlainTextEdit description;
        setWholeText(description, text);
        description.moveCursor(QTextCursor::End);
        QTest::keyClicks(&description, QStringLiteral(" more"));
        QVERIFY(wholeText(description) == text + QStringLiteral(" more"));
    }

    void deletingTheMarkDeletesTheRest()
    {
        Edit f;
        setWholeText(f.edit, QString(Endless, u'w'));
        const QString shown = f.edit.text();
        f.edit.end(false);
        QTest::keyClick(&f.edit, Qt::Key_Backspace);
        QCOMPARE(f.edit.text(), shown.chopped(1));
        QCOMPARE(wholeText(f.edit), shown.chopped(1));
        QVERIFY(QFontMetrics(f.edit.font()).horizontalAdvance(shown.back()) > 0);
    }

    void anotherTextReplacesTheRest()
    {
        Edit f;
        setWholeText(f.edit, QString(Endless, u'w'));
        f.edit.selectAll();
        QTest::keyClicks(&f.edit, QStringLiteral("Milk"));
        QCOMPARE(wholeText(f.edit), QStringLiteral("Milk"));
        f.edit.setText(QStringLiteral("Milk\u2026"));
        QCOMPARE(wholeText(f.edit), QStringLiteral("Milk\u2026"));
    }

    void theNextTextHasNothingOfTheRest()
    {
        Edit f;
        setWholeText(f.edit, QString(Endless, u'w'));
        const QString shown = f.edit.text();
        setWholeText(f.edit, {});
        QCOMPARE(f.edit.toolTip(), QString());
        f.edit.setText(shown);
        QCOMPARE(wholeText(f.edit), shown);
    }

    void whatIsPastedIsKeptWhole()
    {
        Edit f;
        setWholeText(f.edit, QStringLiteral("before  behind"));
        f.edit.setCursorPosition(7);
        const QString pasted(Endless, u'w');
        QGuiApplication::clipboard()->setText(pasted);
        f.edit.paste();
        QVERIFY(f.edit.text().size() < 20'000);
        QVERIFY(wholeText(f.edit) == QStringLiteral("before ") + pasted + QStringLiteral(" behind"));
        // Once more, into what is shown of it.
        f.edit.home(false);
        f.edit.paste();
        QVERIFY(wholeText(f.edit) == pasted + QStringLiteral("before ") + pasted + QStringLiteral(" behind"));
    }

    void aDescriptionIsCutInItsLongParagraph()
    {
        QPlainTextEdit edit;
        const QString text =
            QStringLiteral("first\n\n") + QString(Endless, u'\u0628') + QStringLiteral("\nlast");
        setWholeText(edit, text);
        QVERIFY(edit.toPlainText().size() < 20'000);
        QVERIFY(edit.toPlainText().startsWith(QStringLiteral("first\n\n")));
        QVERIFY(wholeText(edit) == text);
        QVERIFY(valueOf(&edit) == text);
        edit.moveCursor(QTextCursor::Start);
        QTest::keyClicks(&edit, QStringLiteral("New "));
        QVERIFY(wholeText(edit) == QStringLiteral("New ") + text);
        setWholeText(edit, {});
        QCOMPARE(wholeText(edit), QString());
    }

    void aDescriptionOfManyLinesIsShownWhole()
    {
        QPlainTextEdit edit;
        const QString text = QString(80, u'w').append(u'\n').repeated(5000);
        setWholeText(edit, text);
        QCOMPARE(edit.toPlainText().size(), text.size());
        setWholeText(edit, text.repeated(30));
        QVERIFY(edit.toPlainText().size() < 1'500'000);
        QVERIFY(wholeText(edit) == text.repeated(30));
    }
};

AMBERTASK_TEST_MAIN(LongTextTest)
#include "tst_long_text.moc"
