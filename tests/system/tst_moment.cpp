#include "support/TestMain.h"
#include "system/Clock.h"
#include "system/Moment.h"

#include <QTest>
#include <ctime>

using namespace std::chrono_literals;
using std::chrono::local_days;

namespace
{

Moment at(std::chrono::year_month_day day, std::chrono::seconds time = 0s)
{
    return makeMoment(day, time);
}

} // namespace

class MomentTest : public TestCase
{
    Q_OBJECT

private slots:
    void aStoredTextIsReadBackAsTheSameMoment();
    void storedTextsHaveFixedWidth();
    void onlyTheStoredFormOfAnExistingMomentIsRead_data();
    void onlyTheStoredFormOfAnExistingMomentIsRead();
    void dayAndTimeOfDayPutTheMomentTogether();
    void secondsAreDroppedToTheMinute();
    void pickersSpeakTheSameDayAndTime();
    void momentsBeforeTheEpochKeepTheirDay();
    void theSystemClockTellsLocalTime();
    void theSystemClockNoticesAChangedZone();
};

void MomentTest::aStoredTextIsReadBackAsTheSameMoment()
{
    for (const Moment moment : {at(2007y / 1 / 31, 23h + 59min), at(2024y / 2 / 29, 1s), at(0y / 1 / 1),
             at(9999y / 12 / 31, 23h + 59min + 59s)}) {
        QVERIFY(momentFromStoredText(storedText(moment)) == moment);
    }
}

void MomentTest::storedTextsHaveFixedWidth()
{
    QCOMPARE(storedText(at(2007y / 1 / 3, 4h + 5min + 6s)), std::string("2007-01-03 04:05:06"));
    QCOMPARE(storedText(at(987y / 12 / 31)), std::string("0987-12-31 00:00:00"));
}

void MomentTest::onlyTheStoredFormOfAnExistingMomentIsRead_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "2007-01-31", "2007-01-31 23:59", "2007-01-31T23:59:00",
             "2007-1-31 23:59:00 ", "2007-02-29 00:00:00", "2007-13-01 00:00:00", "2007-00-01 00:00:00",
             "2007-01-00 00:00:00", "2007-01-31 24:00:00", "2007-01-31 23:60:00", "2007-01-31 23:59:60",
             "2007-01-31 23:59:0x", "-007-01-31 23:59:00", "2007-01-31 23:59:000", "20o7-01-31 23:59:00"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void MomentTest::onlyTheStoredFormOfAnExistingMomentIsRead()
{
    QFETCH(const QString, text);
    QVERIFY(!momentFromStoredText(text.toStdString()));
}

void MomentTest::dayAndTimeOfDayPutTheMomentTogether()
{
    const Moment moment = at(2026y / 1 / 15, 10h + 20min + 30s);
    QVERIFY(dayOf(moment) == 2026y / 1 / 15);
    QVERIFY(timeOfDayOf(moment) == 10h + 20min + 30s);
    QVERIFY(startOfDay(moment) == Moment(local_days(2026y / 1 / 15)));
}

void MomentTest::secondsAreDroppedToTheMinute()
{
    QVERIFY(toMinute(at(2026y / 1 / 15, 10h + 20min + 59s)) == at(2026y / 1 / 15, 10h + 20min));
}

void MomentTest::pickersSpeakTheSameDayAndTime()
{
    const Moment moment = at(2024y / 2 / 29, 23h + 59min + 58s);
    QCOMPARE(toQDate(moment), QDate(2024, 2, 29));
    QCOMPARE(toQTime(moment), QTime(23, 59, 58));
    QVERIFY(toMoment(QDate(2024, 2, 29), QTime(23, 59, 58)) == moment);
    QVERIFY(toMoment(QDate(2024, 2, 29)) == startOfDay(moment));
}

void MomentTest::momentsBeforeTheEpochKeepTheirDay()
{
    const Moment moment = at(1899y / 12 / 30, 6h);
    QCOMPARE(storedText(moment), std::string("1899-12-30 06:00:00"));
    QCOMPARE(toQDate(moment), QDate(1899, 12, 30));
    QCOMPARE(toQTime(moment), QTime(6, 0));
}

void MomentTest::theSystemClockTellsLocalTime()
{
    const QDateTime before = QDateTime::currentDateTime();
    const Moment now = SystemClock().now();
    const QDateTime after = QDateTime::currentDateTime();
    const QDateTime told(toQDate(now), toQTime(now));
    QVERIFY(told >= before.addSecs(-1));
    QVERIFY(told <= after);
}

void MomentTest::theSystemClockNoticesAChangedZone()
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "AAA-3");
    const Moment east = SystemClock().now();
    qputenv("TZ", "BBB+5");
    const Moment west = SystemClock().now();
    qputenv("TZ", zone);
    tzset();
    QVERIFY(east - west >= 8h - 2s);
    QVERIFY(east - west <= 8h);
}

AMBERTASK_TEST_MAIN(MomentTest)
#include "tst_moment.moc"
