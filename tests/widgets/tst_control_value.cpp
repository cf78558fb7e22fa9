#include "support/SteppedClock.h"
#include "support/TestMain.h"
#include "widgets/ControlValue.h"
#include "widgets/LongText.h"
#include "widgets/Pickers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimeEdit>

class TestControlValue : public TestCase
{
    Q_OBJECT

private slots:
    void anEditIsWorthItsText();
    void aMultiLineEditIsWorthItsText();
    void aComboIsWorthItsCurrentText();
    void aCheckBoxIsWorthOneOrZero();
    void pickersAreWorthWhatTheyShow();
    void aButtonIsWorthFalse();
    void noControlIsWorthNothing();
    void noBreakSpacesStayInAnEnteredText();
    void linesOfAnEnteredTextEndWithALineFeed();
};

void TestControlValue::anEditIsWorthItsText()
{
    const QLineEdit edit(QStringLiteral(" text "));
    QCOMPARE(valueOf(&edit), QStringLiteral(" text "));
}

void TestControlValue::aMultiLineEditIsWorthItsText()
{
    const QPlainTextEdit edit(QStringLiteral("one\ntwo"));
    QCOMPARE(valueOf(&edit), QStringLiteral("one\ntwo"));
}

void TestControlValue::aComboIsWorthItsCurrentText()
{
    QComboBox combo;
    combo.addItems({QStringLiteral("a"), QStringLiteral("b")});
    combo.setCurrentIndex(1);
    QCOMPARE(valueOf(&combo), QStringLiteral("b"));
    combo.setCurrentIndex(-1);
    QCOMPARE(valueOf(&combo), QString());
}

void TestControlValue::aCheckBoxIsWorthOneOrZero()
{
    QCheckBox box;
    QCOMPARE(valueOf(&box), QStringLiteral("0"));
    box.setChecked(true);
    QCOMPARE(valueOf(&box), QStringLiteral("1"));
}

void TestControlValue::pickersAreWorthWhatTheyShow()
{
    QDateEdit date;
    QTimeEdit time;
    const SteppedClock clock{Moment()};
    setUpDatePicker(date, clock);
    setUpTimePicker(time);
    setPickers(date, time, toMoment(QDate(2026, 1, 31), QTime(9, 5, 30)));
    QCOMPARE(valueOf(&date), QStringLiteral("1/31/2026"));
    QCOMPARE(valueOf(&time), QStringLiteral("09:05"));
}

void TestControlValue::aButtonIsWorthFalse()
{
    const QPushButton button(QStringLiteral("OK"));
    QCOMPARE(valueOf(&button), QStringLiteral("False"));
}

void TestControlValue::noControlIsWorthNothing()
{
    const QLabel label(QStringLiteral("text"));
    QCOMPARE(valueOf(nullptr), QString());
    QCOMPARE(valueOf(&label), QString());
}

void TestControlValue::noBreakSpacesStayInAnEnteredText()
{
    const QPlainTextEdit edit(QStringLiteral("10\u00a0\u20ac"));
    QCOMPARE(wholeText(edit), QStringLiteral("10\u00a0\u20ac"));
}

void TestControlValue::linesOfAnEnteredTextEndWithALineFeed()
{
    QPlainTextEdit edit(QStringLiteral("one\r\ntwo\u2028three\n"));
    QCOMPARE(wholeText(edit), QStringLiteral("one\ntwo\nthree\n"));
    edit.clear();
    QCOMPARE(wholeText(edit), QString());
}

AMBERTASK_TEST_MAIN(TestControlValue)
#include "tst_control_value.moc"
