#include "SeriesTexts.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QTest>

using std::chrono::hours;
using std::chrono::seconds;

class RepeatRulesTest : public TestCase
{
    Q_OBJECT

private slots:
    void daysWeeksMonthsAndYears();
    void aMonthWithoutTheDayIsLeftOut();
    void theLastDayOfEachMonth();
    void the29thOfFebruary();
    void week53IsNotInEveryYear();
    void aWeekAcrossTwoYearsHasTheNumberOfItsFourthDay();
    void theStartOfTheWeekDecidesWhichWeeksAreLeftOut();
    void aNumberedWeekdayCountsInItsMonthOrYear();
    void positionsCountInTheWholePeriod();
    void theFirstMomentIsInTheSeriesEvenIfTheRuleDoesNotNameIt();
    void theCountIncludesTheFirstMoment();
    void theCountGoesOnFromAnyMoment();
    void untilIncludesItsMoment();
    void untilAsADayIncludesTheDay();
    void anEndBeforeTheFirstMomentLeavesIt();
    void theTimeOfDayIsThatOfTheFirstMoment();
    void clocksThatAreSetChangeNothing();
    void farFromItsBeginningARuleKeepsItsPhase();
    void theYear9999IsTheLast();
    void aRuleThatNeverComesEnds();
    void theCountAgreesWithTheMoments();
    void hostileRulesAreAnsweredSoon_data();
    void hostileRulesAreAnsweredSoon();
    void whatIsNotUsable_data();
    void whatIsNotUsable();
    void whatOtherProgramsWriteIsUsable_data();
    void whatOtherProgramsWriteIsUsable();
};

void RepeatRulesTest::daysWeeksMonthsAndYears()
{
    QCOMPARE(series("FREQ=DAILY", "2026-02-27", 3), QStringList({"2026-02-27", "2026-02-28", "2026-03-01"}));
    QCOMPARE(series("FREQ=DAILY;INTERVAL=30", "2026-01-31", 3),
        QStringList({"2026-01-31", "2026-03-02", "2026-04-01"}));
    QCOMPARE(series("FREQ=WEEKLY", "2026-01-06", 3), QStringList({"2026-01-06", "2026-01-13", "2026-01-20"}));
    QCOMPARE(series("FREQ=WEEKLY;BYDAY=TU,TH", "2026-01-06", 4),
        QStringList({"2026-01-06", "2026-01-08", "2026-01-13", "2026-01-15"}));
    QCOMPARE(
        series("FREQ=MONTHLY", "2026-11-15", 3), QStringList({"2026-11-15", "2026-12-15", "2027-01-15"}));
    QCOMPARE(series("FREQ=YEARLY;INTERVAL=2", "2026-12-24", 3),
        QStringList({"2026-12-24", "2028-12-24", "2030-12-24"}));
    QCOMPARE(series("FREQ=YEARLY;BYMONTH=1,7", "2026-01-15", 3),
        QStringList({"2026-01-15", "2026-07-15", "2027-01-15"}));
    QCOMPARE(series("FREQ=DAILY;BYMONTH=1;BYDAY=SU", "2026-01-18", 3),
        QStringList({"2026-01-18", "2026-01-25", "2027-01-03"}));
    QCOMPARE(series("FREQ=YEARLY;BYYEARDAY=1,-1", "2026-01-01", 3),
        QStringList({"2026-01-01", "2026-12-31", "2027-01-01"}));
}

void RepeatRulesTest::aMonthWithoutTheDayIsLeftOut()
{
    QCOMPARE(series("FREQ=MONTHLY", "2026-01-31", 4),
        QStringList({"2026-01-31", "2026-03-31", "2026-05-31", "2026-07-31"}));
    QCOMPARE(
        series("FREQ=MONTHLY", "2026-01-29", 3), QStringList({"2026-01-29", "2026-03-29", "2026-04-29"}));
    QCOMPARE(series("FREQ=MONTHLY;BYDAY=5TH", "2026-01-29", 3),
        QStringList({"2026-01-29", "2026-04-30", "2026-07-30"}));
}

void RepeatRulesTest::theLastDayOfEachMonth()
{
    QCOMPARE(series("FREQ=MONTHLY;BYMONTHDAY=-1", "2027-12-31", 4),
        QStringList({"2027-12-31", "2028-01-31", "2028-02-29", "2028-03-31"}));
    QCOMPARE(series("FREQ=MONTHLY;BYMONTHDAY=28,29,30;BYSETPOS=-1", "2026-01-30", 4),
        QStringList({"2026-01-30", "2026-02-28", "2026-03-30", "2026-04-30"}));
}

void RepeatRulesTest::the29thOfFebruary()
{
    QCOMPARE(series("FREQ=YEARLY", "2096-02-29", 3), QStringList({"2096-02-29", "2104-02-29", "2108-02-29"}));
    QCOMPARE(series("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=28,29;BYSETPOS=-1", "2028-02-29", 4),
        QStringList({"2028-02-29", "2029-02-28", "2030-02-28", "2031-02-28"}));
    // Once in 400 years; and of all first years but one, never.
    QCOMPARE(series("FREQ=YEARLY;INTERVAL=100", "2000-02-29", 3),
        QStringList({"2000-02-29", "2400-02-29", "2800-02-29"}));
    QCOMPARE(
        series("FREQ=YEARLY;INTERVAL=2;BYMONTH=2;BYMONTHDAY=29", "2027-02-28"), QStringList("2027-02-28"));
}

void RepeatRulesTest::week53IsNotInEveryYear()
{
    QCOMPARE(series("FREQ=YEARLY;BYWEEKNO=53;BYDAY=TH", "2026-12-31", 3),
        QStringList({"2026-12-31", "2032-12-30", "2037-12-31"}));
    QCOMPARE(series("FREQ=YEARLY;BYWEEKNO=-1", "2026-12-31", 3),
        QStringList({"2026-12-31", "2027-12-30", "2028-12-28"}));
}

void RepeatRulesTest::aWeekAcrossTwoYearsHasTheNumberOfItsFourthDay()
{
    // The Monday of the first week of 2026 is in 2025, and that of 2027 in 2027.
    QCOMPARE(series("FREQ=YEARLY;BYWEEKNO=1;BYDAY=MO", "2025-12-29", 3),
        QStringList({"2025-12-29", "2027-01-04", "2028-01-03"}));
    // With weeks from Sunday on, the first of 2026 begins on 4 January.
    QCOMPARE(series("FREQ=YEARLY;BYWEEKNO=1;BYDAY=SU;WKST=SU", "2026-01-04", 3),
        QStringList({"2026-01-04", "2027-01-03", "2028-01-02"}));
}

void RepeatRulesTest::theStartOfTheWeekDecidesWhichWeeksAreLeftOut()
{
    // The example of the standard.
    QCOMPARE(series("FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=MO", "1997-08-05"),
        QStringList({"1997-08-05", "1997-08-10", "1997-08-19", "1997-08-24"}));
    QCOMPARE(series("FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=SU", "1997-08-05"),
        QStringList({"1997-08-05", "1997-08-17", "1997-08-19", "1997-08-31"}));
}

void RepeatRulesTest::aNumberedWeekdayCountsInItsMonthOrYear()
{
    QCOMPARE(series("FREQ=MONTHLY;BYDAY=2TU", "2026-01-13", 3),
        QStringList({"2026-01-13", "2026-02-10", "2026-03-10"}));
    QCOMPARE(series("FREQ=MONTHLY;BYDAY=-1FR", "2026-01-30", 3),
        QStringList({"2026-01-30", "2026-02-27", "2026-03-27"}));
    QCOMPARE(series("FREQ=YEARLY;BYDAY=20MO", "1997-05-19", 3),
        QStringList({"1997-05-19", "1998-05-18", "1999-05-17"}));
    QCOMPARE(series("FREQ=YEARLY;BYMONTH=11;BYDAY=4TH", "2026-11-26", 3),
        QStringList({"2026-11-26", "2027-11-25", "2028-11-23"}));
    QCOMPARE(series("FREQ=YEARLY;BYDAY=-1SU,SA;BYMONTH=2", "2026-02-22", 3),
        QStringList({"2026-02-22", "2026-02-28", "2027-02-06"}));
}

void RepeatRulesTest::positionsCountInTheWholePeriod()
{
    // What comes before the first moment is counted, but not in the series.
    QCOMPARE(series("FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=2", "2026-01-20", 3),
        QStringList({"2026-01-20", "2026-02-03", "2026-03-03"}));
    QCOMPARE(series("FREQ=WEEKLY;BYDAY=MO,WE,FR;BYSETPOS=1,-1", "2026-01-09", 3),
        QStringList({"2026-01-09", "2026-01-12", "2026-01-16"}));
    QCOMPARE(series("FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-2", "2026-01-29", 3),
        QStringList({"2026-01-29", "2026-02-26", "2026-03-30"}));
}

void RepeatRulesTest::theFirstMomentIsInTheSeriesEvenIfTheRuleDoesNotNameIt()
{
    QCOMPARE(series("FREQ=WEEKLY;BYDAY=TU", "2026-01-05", 3),
        QStringList({"2026-01-05", "2026-01-06", "2026-01-13"}));
    QCOMPARE(seriesFrom("2025-01-01", "FREQ=MONTHLY;BYMONTHDAY=15", "2026-01-20", 2),
        QStringList({"2026-01-20", "2026-02-15"}));
}

void RepeatRulesTest::theCountIncludesTheFirstMoment()
{
    QCOMPARE(series("FREQ=DAILY;COUNT=1", "2026-01-05"), QStringList("2026-01-05"));
    QCOMPARE(
        series("FREQ=DAILY;COUNT=3", "2026-01-05"), QStringList({"2026-01-05", "2026-01-06", "2026-01-07"}));
    QCOMPARE(series("FREQ=WEEKLY;BYDAY=TU;COUNT=2", "2026-01-05"), QStringList({"2026-01-05", "2026-01-06"}));
}

void RepeatRulesTest::theCountGoesOnFromAnyMoment()
{
    QCOMPARE(seriesFrom("2026-01-09", "FREQ=DAILY;COUNT=5", "2026-01-05"), QStringList("2026-01-09"));
    QCOMPARE(seriesFrom("2026-01-10", "FREQ=DAILY;COUNT=5", "2026-01-05"), QStringList());
    QCOMPARE(seriesFrom("2026-04-15", "FREQ=MONTHLY;COUNT=5", "2026-01-31"),
        QStringList({"2026-05-31", "2026-07-31", "2026-08-31"}));
}

void RepeatRulesTest::untilIncludesItsMoment()
{
    for (const char* until : {"20260107T090000", "20260107T090000Z", "20260108T085959"}) {
        QCOMPARE(series("FREQ=DAILY;UNTIL=" + std::string(until), "2026-01-05"),
            QStringList({"2026-01-05", "2026-01-06", "2026-01-07"}));
    }
    QCOMPARE(
        series("FREQ=DAILY;UNTIL=20260107T085959", "2026-01-05"), QStringList({"2026-01-05", "2026-01-06"}));
}

void RepeatRulesTest::untilAsADayIncludesTheDay()
{
    QCOMPARE(series("FREQ=DAILY;UNTIL=20260106", "2026-01-05 23:59:59"),
        QStringList({"2026-01-05", "2026-01-06"}));
}

void RepeatRulesTest::anEndBeforeTheFirstMomentLeavesIt()
{
    QCOMPARE(series("FREQ=DAILY;UNTIL=20250101", "2026-01-05"), QStringList("2026-01-05"));
}

void RepeatRulesTest::theTimeOfDayIsThatOfTheFirstMoment()
{
    QCOMPARE(series("FREQ=DAILY", "2026-01-05 00:00:00", 2), QStringList({"2026-01-05", "2026-01-06"}));
    QCOMPARE(daysAfter("FREQ=DAILY", momentOf("2026-01-05 23:59:59"), momentOf("2026-01-06 23:59:58"), 2),
        QStringList({"2026-01-06", "2026-01-07"}));
    QCOMPARE(daysAfter("FREQ=DAILY", momentOf("2026-01-05 23:59:59"), momentOf("2026-01-06 23:59:59"), 1),
        QStringList("2026-01-07"));
}

void RepeatRulesTest::clocksThatAreSetChangeNothing()
{
    // Runs in zones of each of these: hours that were left out or came twice, and a day that never was.
    QCOMPARE(series("FREQ=DAILY", "2026-03-28 02:30:00", 3),
        QStringList({"2026-03-28", "2026-03-29", "2026-03-30"}));
    QCOMPARE(series("FREQ=DAILY", "2026-10-24 02:30:00", 3),
        QStringList({"2026-10-24", "2026-10-25", "2026-10-26"}));
    QCOMPARE(series("FREQ=WEEKLY", "2026-03-01 02:30:00", 3),
        QStringList({"2026-03-01", "2026-03-08", "2026-03-15"}));
    QCOMPARE(series("FREQ=WEEKLY", "2026-10-25 01:30:00", 3),
        QStringList({"2026-10-25", "2026-11-01", "2026-11-08"}));
    QCOMPARE(series("FREQ=DAILY", "2011-12-29 12:00:00", 3),
        QStringList({"2011-12-29", "2011-12-30", "2011-12-31"}));
    QCOMPARE(series("FREQ=WEEKLY", "2026-09-27 02:15:00", 3),
        QStringList({"2026-09-27", "2026-10-04", "2026-10-11"}));
}

void RepeatRulesTest::farFromItsBeginningARuleKeepsItsPhase()
{
    for (const char* rule :
        {"FREQ=DAILY;INTERVAL=11", "FREQ=WEEKLY;INTERVAL=3;BYDAY=MO,SU;WKST=WE", "FREQ=MONTHLY;INTERVAL=7",
            "FREQ=YEARLY;INTERVAL=3;BYMONTH=2;BYMONTHDAY=29", "FREQ=WEEKLY;INTERVAL=5;WKST=SU"}) {
        const Repeat repeat{.rule = rule, .first = momentOf("1971-03-07")};
        const Repeat counted{.rule = std::string(rule) + ";COUNT=100000", .first = repeat.first};
        // Steps of one moment after the other, and questions in between.
        Moment before = repeat.first;
        for (int i = 0; i < 300; ++i) {
            const auto moment = RepeatRules::next(repeat, before);
            QVERIFY(moment && *moment > before);
            QVERIFY(RepeatRules::next(counted, before) == moment);
            QVERIFY(RepeatRules::next(repeat, *moment - seconds(1)) == moment);
            QVERIFY(RepeatRules::next(repeat, before + (*moment - before) / 2) == moment);
            before = *moment;
        }
    }
}

void RepeatRulesTest::theYear9999IsTheLast()
{
    QCOMPARE(seriesFrom("9999-12-30", "FREQ=DAILY", "1970-01-01"), QStringList({"9999-12-30", "9999-12-31"}));
    QCOMPARE(seriesFrom("9999-12-30", "FREQ=WEEKLY;BYDAY=FR,SA", "1970-01-01"), QStringList("9999-12-31"));
    QCOMPARE(series("FREQ=YEARLY;INTERVAL=999999999", "2026-01-01"), QStringList("2026-01-01"));
    QCOMPARE(series("FREQ=MONTHLY;INTERVAL=999999999", "2026-01-01"), QStringList("2026-01-01"));
    QCOMPARE(series("FREQ=WEEKLY;INTERVAL=999999999", "2026-01-01"), QStringList("2026-01-01"));
    QCOMPARE(series("FREQ=DAILY;INTERVAL=999999999", "2026-01-01"), QStringList("2026-01-01"));
    QCOMPARE(series("FREQ=YEARLY;INTERVAL=4000", "0000-01-01"),
        QStringList({"0000-01-01", "4000-01-01", "8000-01-01"}));
    const Repeat daily{.rule = "FREQ=DAILY", .first = momentOf("2026-01-01")};
    QVERIFY(!RepeatRules::next(daily, Moment::max()));
    QVERIFY(RepeatRules::next(daily, Moment::min()) == daily.first);
    for (const Moment first : {Moment::min(), Moment::max(), momentOf("9999-12-31 23:59:59") + seconds(1)}) {
        QVERIFY(!RepeatRules::next({.rule = "FREQ=DAILY", .first = first}, daily.first));
    }
}

void RepeatRulesTest::aRuleThatNeverComesEnds()
{
    for (const char* rule : {"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", "FREQ=DAILY;INTERVAL=7;BYDAY=TU",
             "FREQ=MONTHLY;INTERVAL=12;BYMONTH=3", "FREQ=MONTHLY;BYDAY=2MO;BYMONTHDAY=1",
             "FREQ=YEARLY;BYYEARDAY=366;BYMONTHDAY=30", "FREQ=YEARLY;BYWEEKNO=20;BYYEARDAY=1",
             "FREQ=DAILY;BYDAY=MO;BYSETPOS=2"}) {
        QCOMPARE(series(rule, "2026-01-05"), QStringList("2026-01-05"));
    }
}

void RepeatRulesTest::theCountAgreesWithTheMoments()
{
    const Moment first = momentOf("2026-01-05");
    const Repeat daily{.rule = "FREQ=DAILY;COUNT=10", .first = first};
    QCOMPARE(RepeatRules::count(daily, first - hours(1), first, 100), 1);
    QCOMPARE(RepeatRules::count(daily, first, first, 100), 0);
    QCOMPARE(RepeatRules::count(daily, first, momentOf("2026-01-07"), 100), 2);
    QCOMPARE(RepeatRules::count(daily, first, momentOf("2026-01-07 08:59:59"), 100), 1);
    QCOMPARE(RepeatRules::count(daily, first - hours(1), Moment::max(), 100), 10);
    QCOMPARE(RepeatRules::count(daily, first - hours(1), Moment::max(), 4), 4);
    QCOMPARE(RepeatRules::count(daily, first, Moment::max(), 0), 0);
    QCOMPARE(RepeatRules::count(daily, first, Moment::max(), -1), 0);
    QCOMPARE(RepeatRules::count(daily, momentOf("2027-01-01"), Moment::max(), 100), 0);
    QCOMPARE(RepeatRules::count({.rule = "rubbish", .first = first}, Moment::min(), Moment::max(), 100), 0);
}

void RepeatRulesTest::hostileRulesAreAnsweredSoon_data()
{
    QTest::addColumn<QByteArray>("rule");
    for (const char* rule :
        {"FREQ=SECONDLY", "FREQ=DAILY;BYSECOND=0,1,2,3,4,5", "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30",
            "FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30", "FREQ=DAILY;COUNT=999999999", "FREQ=DAILY;COUNT=100000",
            "FREQ=DAILY;INTERVAL=999999999;COUNT=100000", "FREQ=YEARLY;BYYEARDAY=366;BYWEEKNO=20",
            "FREQ=WEEKLY;INTERVAL=52;BYMONTH=7", "FREQ=DAILY;INTERVAL=7;BYDAY=TU;COUNT=5",
            "FREQ=YEARLY;BYDAY=53MO;BYYEARDAY=1;COUNT=9",
            "FREQ=YEARLY;BYDAY=MO,TU,WE,TH,FR,SA,SU;COUNT=100000"}) {
        QTest::newRow(rule) << QByteArray(rule);
    }
}

void RepeatRulesTest::hostileRulesAreAnsweredSoon()
{
    QFETCH(QByteArray, rule);
    QElapsedTimer timer;
    timer.start();
    const Repeat repeat{.rule = rule.toStdString(), .first = momentOf("1970-01-05")};
    RepeatRules::next(repeat, momentOf("2026-01-05"));
    // It takes a few milliseconds, with sanitizers on a busy machine a hundred times as long; a calculation
    // that goes through every day for ever never ends.
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
}

void RepeatRulesTest::whatIsNotUsable_data()
{
    QTest::addColumn<QByteArray>("rule");
    for (const char* rule : {"", ";", "FREQ", "FREQ=", "FREQ=DAILY;", ";FREQ=DAILY", "FREQ=DAILY;;INTERVAL=2",
             "INTERVAL=2", "FREQ=SECONDLY", "FREQ=MINUTELY", "FREQ=HOURLY", "FREQ=DAILY;FREQ=DAILY",
             "FREQ=DAILY;BYHOUR=9", "FREQ=DAILY;BYMINUTE=0", "FREQ=DAILY;BYSECOND=0", "FREQ=DAILY;INTERVAL=0",
             "FREQ=DAILY;INTERVAL=-1", "FREQ=DAILY;INTERVAL=", "FREQ=DAILY;INTERVAL=1x",
             "FREQ=DAILY;INTERVAL=99999999999999999999", "FREQ=DAILY;COUNT=0", "FREQ=DAILY;COUNT=-1",
             "FREQ=DAILY;COUNT=100001", "FREQ=DAILY;UNTIL=2026", "FREQ=DAILY;UNTIL=20260230",
             "FREQ=DAILY;UNTIL=20260101T250000", "FREQ=DAILY;UNTIL=20260101X000000",
             "FREQ=DAILY;UNTIL=20260101Z", "FREQ=MONTHLY;BYMONTHDAY=0", "FREQ=MONTHLY;BYMONTHDAY=32",
             "FREQ=MONTHLY;BYMONTHDAY=1,", "FREQ=MONTHLY;BYMONTHDAY=,1", "FREQ=MONTHLY;BYMONTHDAY=+-1",
             "FREQ=YEARLY;BYMONTH=13", "FREQ=YEARLY;BYMONTH=0", "FREQ=YEARLY;BYMONTH=-1",
             "FREQ=YEARLY;BYYEARDAY=367", "FREQ=YEARLY;BYWEEKNO=54", "FREQ=MONTHLY;BYDAY=54MO",
             "FREQ=MONTHLY;BYDAY=0MO", "FREQ=MONTHLY;BYDAY=M", "FREQ=MONTHLY;BYDAY=XX",
             "FREQ=MONTHLY;BYDAY=", "FREQ=WEEKLY;BYDAY=2MO", "FREQ=DAILY;BYDAY=2MO",
             "FREQ=WEEKLY;BYMONTHDAY=1", "FREQ=MONTHLY;BYYEARDAY=1", "FREQ=MONTHLY;BYWEEKNO=1",
             "FREQ=YEARLY;BYWEEKNO=1;BYDAY=2MO", "FREQ=MONTHLY;BYSETPOS=1", "FREQ=DAILY;WKST=1",
             "FREQ=DAILY;X-NAME=1", "RSCALE=GREGORIAN;FREQ=DAILY", "FREQ=YEARLY;SKIP=OMIT", " FREQ=DAILY",
             "FREQ = DAILY", "FREQ=D\xc3\x84ILY"}) {
        QTest::newRow(rule) << QByteArray(rule);
    }
    QTest::newRow("a zero byte") << QByteArray("FREQ=DAILY\0", 11);
    QTest::newRow("too long") << "FREQ=MONTHLY;BYMONTHDAY=1" + QByteArray(",1").repeated(5000);
}

void RepeatRulesTest::whatIsNotUsable()
{
    QFETCH(QByteArray, rule);
    QVERIFY(!RepeatRules::isUsable(rule.toStdString()));
    QVERIFY(!RepeatRules::next({.rule = rule.toStdString(), .first = momentOf("2026-01-01")}, Moment::min()));
}

void RepeatRulesTest::whatOtherProgramsWriteIsUsable_data()
{
    QTest::addColumn<QByteArray>("rule");
    for (const char* rule : {"freq=daily", "FREQ=WEEKLY;WKST=SU;UNTIL=20270101T000000Z;BYDAY=MO",
             "INTERVAL=2;FREQ=WEEKLY", "FREQ=MONTHLY;BYDAY=+1MO", "FREQ=MONTHLY;BYDAY=MO;BYSETPOS=2",
             "FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU", "FREQ=YEARLY;BYMONTH=01;BYMONTHDAY=01",
             "FREQ=YEARLY;UNTIL=20270101;COUNT=3"}) {
        QTest::newRow(rule) << QByteArray(rule);
    }
}

void RepeatRulesTest::whatOtherProgramsWriteIsUsable()
{
    QFETCH(QByteArray, rule);
    QVERIFY(RepeatRules::isUsable(rule.toStdString()));
}

AMBERTASK_TEST_MAIN(RepeatRulesTest)

#include "tst_repeat_rules.moc"
