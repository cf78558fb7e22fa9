#include "support/TestMain.h"
#include "ui/MomentTexts.h"
#include "ui/Pickers.h"

#include <QApplication>
#include <QDateEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QTimeEdit>

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

private:
    static void addLocales();
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
    setUpDatePicker(date);
    setUpTimePicker(time);
    const Moment moment = toMoment(QDate(2026, 1, 31), QTime(13, 5, 9));
    setPickers(date, time, moment);
    QCOMPARE(date.text(), shortDate(moment));
    QCOMPARE(time.text(), shortTime(moment));
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
    setUpDatePicker(date);
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
    setUpDatePicker(date);
    QVERIFY(date.calendarPopup());
}

AMBERTASK_TEST_MAIN(TestPickers)
#include "tst_pickers.moc"
