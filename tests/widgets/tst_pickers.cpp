#include "support/SteppedClock.h"
#include "support/TestMain.h"
#include "support/WheelTurn.h"
#include "system/Language.h"
#include "widgets/Calendar.h"
#include "widgets/MomentTexts.h"
#include "widgets/Pickers.h"

#include <QApplication>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimeEdit>

namespace
{

/// A picker in a window that has the keys, not yet the focus.
template <typename Picker> struct ShownPicker {
    ShownPicker() : button(&form), picker(&form)
    {
        picker.move(0, 60);
        picker.resize(200, 40);
    }
    bool show()
    {
        form.resize(300, 200);
        form.show();
        button.setFocus();
        return QTest::qWaitForWindowActive(&form);
    }
    /// Into the middle of what stands behind `position` of the text.
    void click(int position)
    {
        auto* edit = picker.template findChild<QLineEdit*>();
        edit->setCursorPosition(position);
        const QRect before = edit->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        QTest::mouseClick(edit, Qt::LeftButton, {}, before.center() + QPoint(3, 0));
    }
    void selectAll() { QTest::keyClick(&picker, Qt::Key_A, Qt::ControlModifier); }

    QWidget form;
    QPushButton button;
    Picker picker;
};

/// The digits of a date as its format has them, filled up with zeros.
QString digitsOf(QDate date)
{
    QString digits;
    QChar last;
    for (const QChar letter : shortDateFormat()) {
        if (letter != last && (letter == u'd' || letter == u'M' || letter == u'y')) {
            const int number = letter == u'd' ? date.day() : letter == u'M' ? date.month() : date.year();
            digits += QStringLiteral("%1").arg(number, letter == u'y' ? 4 : 2, 10, QLatin1Char('0'));
        }
        last = letter;
    }
    return digits;
}

} // namespace

class TestPickers : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void pickersShowShortDateAndShortTime_data();
    void pickersShowShortDateAndShortTime();
    void aTypedDayIsTakenInEveryLocale_data();
    void aTypedDayIsTakenInEveryLocale();
    void aTimeIsTypedFromItsHoursOn_data();
    void aTimeIsTypedFromItsHoursOn();
    void settingAPairRunsNoHandler();
    void aDateIsPickedFromACalendar();
    void aClickSelectsTheSectionAndDigitsGoOnFromThere_data();
    void aClickSelectsTheSectionAndDigitsGoOnFromThere();
    void aWholeDateIsTypedAfterAClick_data();
    void aWholeDateIsTypedAfterAClick();
    void whereAllIsSelectedDigitsBeginAtTheFirstSection_data();
    void whereAllIsSelectedDigitsBeginAtTheFirstSection();
    void aDigitBeginsAFullSectionAnew();
    void separatorsMayBeTypedOrLeftOut_data();
    void separatorsMayBeTypedOrLeftOut();
    void aMonthWithANameIsTypedByItOrByItsNumber_data();
    void aMonthWithANameIsTypedByItOrByItsNumber();
    void aNumberInPlaceOfANameIsBegunAnewAfterAClick();
    void whatCannotBeADateIsNotTaken();
    void aTypedDayIsForgottenWithTheDateThatWasMadeOfIt();
    void theWheelTurnsAPickerOnlyWithTheFocus();
    void theCalendarMarksTheDayOfTheClock();

private:
    static void addLocales();
    static void setLocale(const QString& name, bool rightToLeft);

    SteppedClock m_clock{Moment()};
};

void TestPickers::cleanup()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestPickers::addLocales()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("en_US") << "en_US" << false;
    QTest::newRow("de_DE") << "de_DE" << false;
    QTest::newRow("ar") << "ar" << true;
    QTest::newRow("ar_EG") << "ar_EG" << true;
    QTest::newRow("zh_CN") << "zh_CN" << false;
}

void TestPickers::pickersShowShortDateAndShortTime_data()
{
    addLocales();
}

void TestPickers::pickersShowShortDateAndShortTime()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    QLocale::setDefault(QLocale(locale));
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QDateEdit date;
    QTimeEdit time;
    setUpDatePicker(date, m_clock);
    setUpTimePicker(time);
    const Moment moment = toMoment(QDate(2026, 1, 31), QTime(13, 5, 9));
    setPickers(date, time, moment);
    QCOMPARE(date.text(), shortDate(moment));
    QCOMPARE(time.text(), QLocale().toString(toQTime(moment), shortTimeFormat()));
    QCOMPARE(date.date(), QDate(2026, 1, 31));
    QCOMPARE(time.time().hour(), 13);
    QCOMPARE(time.time().minute(), 5);
    QCOMPARE(date.alignment(), rightToLeft ? Qt::AlignRight : Qt::AlignLeft);
}

void TestPickers::aTypedDayIsTakenInEveryLocale_data()
{
    addLocales();
}

void TestPickers::aTypedDayIsTakenInEveryLocale()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    QLocale::setDefault(QLocale(locale));
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QDateEdit date;
    QTimeEdit time;
    setUpDatePicker(date, m_clock);
    setUpTimePicker(time);
    setPickers(date, time, toMoment(QDate(2026, 1, 31), QTime(13, 5)));
    date.setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(&date, QStringLiteral("12"));
    date.interpretText();
    QCOMPARE(date.date(), QDate(2026, 1, 12));
    time.setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClicks(&time, QStringLiteral("47"));
    time.interpretText();
    QCOMPARE(time.time(), QTime(13, 47));
}

void TestPickers::aTimeIsTypedFromItsHoursOn_data()
{
    addLocales();
}

void TestPickers::aTimeIsTypedFromItsHoursOn()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    QLocale::setDefault(QLocale(locale));
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    QWidget form;
    QTimeEdit time(&form);
    setUpTimePicker(time);
    time.setTime(QTime(13, 5));
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    time.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&time, QStringLiteral("1047"));
    QCOMPARE(time.time(), QTime(10, 47));
    time.setFocus(Qt::OtherFocusReason);
    QTest::keyClick(&time, Qt::Key_Home);
    QTest::keyClick(&time, Qt::Key_Up);
    QCOMPARE(time.time(), QTime(11, 47));
}

void TestPickers::settingAPairRunsNoHandler()
{
    QDateEdit date;
    QTimeEdit time;
    const QSignalSpy dateChanged(&date, &QDateEdit::dateChanged);
    const QSignalSpy timeChanged(&time, &QTimeEdit::timeChanged);
    setPickers(date, time, toMoment(QDate(2031, 5, 6), QTime(7, 8)));
    QCOMPARE(date.date(), QDate(2031, 5, 6));
    QCOMPARE(time.time(), QTime(7, 8));
    QCOMPARE(dateChanged.count() + timeChanged.count(), 0);
}

void TestPickers::aDateIsPickedFromACalendar()
{
    QDateEdit date;
    setUpDatePicker(date, m_clock);
    QVERIFY(date.calendarPopup());
}

void TestPickers::setLocale(const QString& name, bool rightToLeft)
{
    QLocale::setDefault(QLocale(name));
    QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void TestPickers::aClickSelectsTheSectionAndDigitsGoOnFromThere_data()
{
    addLocales();
}

void TestPickers::aClickSelectsTheSectionAndDigitsGoOnFromThere()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    setLocale(locale, rightToLeft);
    ShownPicker<QTimeEdit> shown;
    setUpTimePicker(shown.picker);
    shown.picker.setTime(QTime(2, 6));
    QVERIFY(shown.show());
    for (const int position : {0, 1}) {
        shown.picker.setTime(QTime(2, 6));
        shown.click(position);
        QVERIFY(shown.picker.hasFocus());
        QCOMPARE(shown.picker.findChild<QLineEdit*>()->selectedText(), shown.picker.text().left(2));
        QTest::keyClicks(&shown.picker, QStringLiteral("0211"));
        QCOMPARE(shown.picker.time(), QTime(2, 11));
    }
    shown.click(4);
    QTest::keyClicks(&shown.picker, QStringLiteral("59"));
    QCOMPARE(shown.picker.time(), QTime(2, 59));
}

void TestPickers::aWholeDateIsTypedAfterAClick_data()
{
    addLocales();
}

void TestPickers::aWholeDateIsTypedAfterAClick()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    setLocale(locale, rightToLeft);
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    QVERIFY(shown.show());
    // A day that the shown month has and one that it has not.
    for (const QDate date : {QDate(2027, 11, 23), QDate(2028, 3, 31), QDate(2028, 2, 29)}) {
        shown.picker.setDate(QDate(2026, 2, 15));
        shown.click(0);
        QTest::keyClicks(&shown.picker, digitsOf(date));
        QCOMPARE(shown.picker.date(), date);
    }
}

void TestPickers::whereAllIsSelectedDigitsBeginAtTheFirstSection_data()
{
    addLocales();
}

void TestPickers::whereAllIsSelectedDigitsBeginAtTheFirstSection()
{
    QFETCH(QString, locale);
    QFETCH(bool, rightToLeft);
    setLocale(locale, rightToLeft);
    ShownPicker<QTimeEdit> shown;
    setUpTimePicker(shown.picker);
    shown.picker.setTime(QTime(2, 6));
    QVERIFY(shown.show());
    shown.click(4);
    shown.selectAll();
    QTest::keyClicks(&shown.picker, QStringLiteral("0211"));
    QCOMPARE(shown.picker.time(), QTime(2, 11));
    // As the keyboard of the country writes them.
    shown.selectAll();
    for (const int number : {1, 3, 4, 5}) {
        const QChar digit(QLocale().zeroDigit().front().unicode() + number);
        QKeyEvent press(QEvent::KeyPress, digit.unicode(), Qt::NoModifier, QString(digit));
        QApplication::sendEvent(&shown.picker, &press);
    }
    QCOMPARE(shown.picker.time(), QTime(13, 45));

    ShownPicker<QDateEdit> date;
    setUpDatePicker(date.picker, m_clock);
    date.picker.setDate(QDate(2026, 2, 15));
    QVERIFY(date.show());
    date.picker.setFocus();
    date.selectAll();
    QTest::keyClicks(&date.picker, digitsOf(QDate(2027, 11, 23)));
    QCOMPARE(date.picker.date(), QDate(2027, 11, 23));
}

void TestPickers::aDigitBeginsAFullSectionAnew()
{
    ShownPicker<QTimeEdit> shown;
    setUpTimePicker(shown.picker);
    shown.picker.setTime(QTime(2, 6));
    QVERIFY(shown.show());
    shown.picker.setFocus();
    QTest::keyClick(&shown.picker, Qt::Key_Home);
    QTest::keyClicks(&shown.picker, QStringLiteral("0307"));
    QCOMPARE(shown.picker.time(), QTime(3, 7));
    // The minutes were mistyped.
    QTest::keyClicks(&shown.picker, QStringLiteral("09"));
    QCOMPARE(shown.picker.time(), QTime(3, 9));
    QTest::keyClick(&shown.picker, Qt::Key_End);
    QTest::keyClicks(&shown.picker, QStringLiteral("7"));
    QCOMPARE(shown.picker.time(), QTime(3, 7));
    // What has been begun is not begun anew.
    shown.click(4);
    QTest::keyClick(&shown.picker, Qt::Key_Backspace);
    QTest::keyClicks(&shown.picker, QStringLiteral("41"));
    QCOMPARE(shown.picker.time(), QTime(3, 41));
}

void TestPickers::separatorsMayBeTypedOrLeftOut_data()
{
    QTest::addColumn<QString>("typed");
    for (const char* typed : {"1/5/2027", "01/05/2027", "1 5 2027", "01052027", "1.5.2027", "152027"}) {
        QTest::newRow(typed) << QString::fromLatin1(typed);
    }
}

void TestPickers::separatorsMayBeTypedOrLeftOut()
{
    QFETCH(QString, typed);
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    shown.picker.setDate(QDate(2026, 12, 28));
    QVERIFY(shown.show());
    shown.click(0);
    QTest::keyClicks(&shown.picker, typed);
    QCOMPARE(shown.picker.date(), QDate(2027, 1, 5));
    QCOMPARE(shown.picker.text(), QStringLiteral("1/5/2027"));
}

void TestPickers::aMonthWithANameIsTypedByItOrByItsNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QDate>("date");
    const auto row = [](const char* typed, QDate date) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << date;
    };
    row("23Nov2027", QDate(2027, 11, 23));
    row("23112027", QDate(2027, 11, 23));
    row("23 11 2027", QDate(2027, 11, 23));
    row("23.11.2027", QDate(2027, 11, 23));
    row("03042027", QDate(2027, 4, 3));
    row("3 4 2027", QDate(2027, 4, 3));
    row("3 1 2027", QDate(2027, 1, 3));
    row("31122027", QDate(2027, 12, 31));
    row("31012027", QDate(2027, 1, 31));
}

void TestPickers::aMonthWithANameIsTypedByItOrByItsNumber()
{
    QFETCH(QString, typed);
    QLocale::setDefault(QLocale::c());
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    shown.picker.setDate(QDate(2026, 2, 15));
    QCOMPARE(shown.picker.text(), QStringLiteral("15 Feb 2026"));
    QVERIFY(shown.show());
    shown.click(0);
    QTest::keyClicks(&shown.picker, typed);
    QTEST(shown.picker.date(), "date");
}

void TestPickers::aNumberInPlaceOfANameIsBegunAnewAfterAClick()
{
    QLocale::setDefault(QLocale::c());
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    shown.picker.setDate(QDate(2026, 5, 15));
    QVERIFY(shown.show());
    shown.click(4);
    QTest::keyClicks(&shown.picker, QStringLiteral("1"));
    QCOMPARE(shown.picker.date(), QDate(2026, 1, 15));
    shown.click(4);
    QTest::keyClicks(&shown.picker, QStringLiteral("2"));
    QCOMPARE(shown.picker.date(), QDate(2026, 2, 15));
}

void TestPickers::whatCannotBeADateIsNotTaken()
{
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    shown.picker.setDate(QDate(2026, 12, 28));
    QVERIFY(shown.show());
    shown.click(0);
    QTest::keyClicks(&shown.picker, QStringLiteral("x00"));
    QTest::keyClick(&shown.picker, Qt::Key_Tab);
    QTest::keyClicks(&shown.picker, QStringLiteral("32"));
    QCOMPARE(shown.picker.date().day(), 3);
    shown.picker.setDate(QDate(2026, 12, 28));
    shown.picker.setSelectedSection(QDateTimeEdit::YearSection);
    // Before the calendar.
    QTest::keyClicks(&shown.picker, QStringLiteral("0026"));
    QCOMPARE(shown.picker.date(), QDate(2026, 12, 28));
    ShownPicker<QTimeEdit> time;
    setUpTimePicker(time.picker);
    QVERIFY(time.show());
    time.click(0);
    QTest::keyClicks(&time.picker, QStringLiteral("24:61"));
    QVERIFY(time.picker.time().isValid());
}

void TestPickers::aTypedDayIsForgottenWithTheDateThatWasMadeOfIt()
{
    setLocale(QStringLiteral("de_DE"), false);
    ShownPicker<QDateEdit> shown;
    setUpDatePicker(shown.picker, m_clock);
    shown.picker.setDate(QDate(2026, 2, 15));
    QVERIFY(shown.show());
    shown.click(0);
    QTest::keyClicks(&shown.picker, QStringLiteral("31"));
    QCOMPARE(shown.picker.date(), QDate(2026, 2, 28));
    shown.picker.setDate(QDate(2026, 2, 27));
    QTest::keyClicks(&shown.picker, QStringLiteral("03"));
    QCOMPARE(shown.picker.date(), QDate(2026, 3, 27));
}

void TestPickers::theWheelTurnsAPickerOnlyWithTheFocus()
{
    ShownPicker<QTimeEdit> shown;
    setUpTimePicker(shown.picker);
    shown.picker.setTime(QTime(2, 6));
    QVERIFY(shown.show());
    QVERIFY(!turnWheel(shown.picker));
    QCOMPARE(shown.picker.time(), QTime(2, 6));
    QVERIFY((shown.picker.focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
    shown.click(0);
    QVERIFY(turnWheel(shown.picker));
    QCOMPARE(shown.picker.time(), QTime(3, 6));
}

void TestPickers::theCalendarMarksTheDayOfTheClock()
{
    m_clock.set(toMoment(QDate(2031, 5, 6), QTime(7, 8)));
    Calendar calendar(m_clock);
    calendar.setSelectedDate(QDate(2031, 5, 20));
    calendar.resize(400, 300);
    calendar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&calendar));
    const QImage marked = calendar.grab().toImage();
    m_clock.set(toMoment(QDate(2031, 7, 6), QTime(7, 8)));
    const QImage plain = calendar.grab().toImage();
    QRect differs;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            if (plain.pixel(x, y) != marked.pixel(x, y)) {
                differs |= QRect(x, y, 1, 1);
            }
        }
    }
    // A ring, in the second row of the days.
    QVERIFY(!differs.isEmpty() && differs.width() < calendar.width() / 6);
    QCOMPARE(plain.pixel(differs.center()), marked.pixel(differs.center()));
    // The frame.
    const QRgb line = calendar.palette().color(QPalette::Mid).rgb();
    for (const QPoint corner : {QPoint(0, 0), QPoint(399, 299), QPoint(200, 0), QPoint(0, 150)}) {
        QCOMPARE(plain.pixel(corner), line);
    }
}

AMBERTASK_TEST_MAIN(TestPickers)
#include "tst_pickers.moc"
