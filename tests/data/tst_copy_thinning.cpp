#include "data/CopyThinning.h"
#include "support/TestMain.h"

#include <QTest>
#include <algorithm>
#include <limits>
#include <set>

using namespace std::chrono;

namespace
{

constexpr qint64 Unbounded = std::numeric_limits<qint64>::max();

Moment at(year_month_day day, seconds timeOfDay = 9h)
{
    return makeMoment(day, timeOfDay);
}

/// Makes the copies one after the other, each of a byte, and drops after each; returns what is left, the
/// oldest first.
std::vector<CopyInTime> keepOneByOne(
    const std::vector<Moment>& moments, qint64 room = Unbounded, qint64 size = 1)
{
    std::vector<CopyInTime> kept;
    for (const Moment moment : moments) {
        kept.push_back({moment, size});
        for (const std::size_t place : copiesToDrop(kept, moment, room)) {
            kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(place));
        }
    }
    return kept;
}

std::vector<Moment> everyDay(year_month_day from, int count, seconds timeOfDay = 9h)
{
    std::vector<Moment> moments;
    for (int i = 0; i < count; ++i) {
        moments.push_back(Moment(local_days(from) + days(i) + timeOfDay));
    }
    return moments;
}

QString textOf(const std::vector<CopyInTime>& copies)
{
    QStringList texts;
    for (const CopyInTime& copy : copies) {
        texts.append(QString::fromStdString(storedText(copy.moment)).left(13).replace(u' ', u'T'));
    }
    return texts.join(u' ');
}

} // namespace

class TestCopyThinning : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsDroppedFromNothing();
    void theLastTenOfADayStay();
    void theLastTenOfYesterdayStayToday();
    void ofDaysBeforeTheLastSevenOneAWeekStays();
    void aYearLaterSevenDaysFourWeeksAndTwelveMonthsAreThere();
    void daysWithoutACopyDoNotCount();
    void aWeekBeginsOnMonday();
    void theOrderOfTheCopiesDoesNotMatter();
    void whatIsFurtherOfADayMakesRoomFirst();
    void thenTheOldestMakesRoom();
    void theNewestStaysHoweverLittleRoomThereIs();
    void emptyCopiesAreNoReasonToKeepMore();
    void anHourSetBackDropsNothing();
    void copiesOfAWrongClockPushOutNoneOfToday();
    void aClockSetBackByYearsDropsNoMonth();
    void allCopiesTakeATenthOfWhatIsLeftFree();
    void allCopiesTakeTwoHundredMegabytesAtMost();
};

void TestCopyThinning::nothingIsDroppedFromNothing()
{
    QVERIFY(copiesToDrop({}, at(2026y / November / 22), 0).empty());
}

void TestCopyThinning::theLastTenOfADayStay()
{
    std::vector<Moment> moments;
    for (int hour = 8; hour < 20; ++hour) {
        moments.push_back(at(2026y / November / 22, hours(hour)));
    }
    const std::vector<CopyInTime> kept = keepOneByOne(moments);
    QCOMPARE(kept.size(), std::size_t(10));
    QCOMPARE(kept.front().moment, moments[2]);
    QCOMPARE(kept.back().moment, moments.back());
}

void TestCopyThinning::theLastTenOfYesterdayStayToday()
{
    std::vector<Moment> moments;
    for (int hour = 8; hour < 20; ++hour) {
        moments.push_back(at(2026y / November / 21, hours(hour)));
    }
    moments.push_back(at(2026y / November / 22));
    QCOMPARE(keepOneByOne(moments).size(), std::size_t(11));
}

void TestCopyThinning::ofDaysBeforeTheLastSevenOneAWeekStays()
{
    // 22 November 2026 is a Sunday.
    std::vector<Moment> moments = everyDay(2026y / October / 26, 28);
    // Two of one day long ago: only the later one could stay.
    moments.insert(moments.begin(), at(2026y / October / 25, 8h));
    QCOMPARE(textOf(keepOneByOne(moments)),
        QStringLiteral("2026-10-31T09 2026-11-01T09 2026-11-08T09 2026-11-15T09 2026-11-16T09 2026-11-17T09 "
                       "2026-11-18T09 2026-11-19T09 2026-11-20T09 2026-11-21T09 2026-11-22T09"));
}

void TestCopyThinning::aYearLaterSevenDaysFourWeeksAndTwelveMonthsAreThere()
{
    const std::vector<CopyInTime> kept = keepOneByOne(everyDay(2025y / January / 1, 700));
    const auto last = local_days(2025y / January / 1) + days(699);
    QCOMPARE(kept.back().moment, Moment(last + 9h));
    std::set<local_days> ofDays;
    std::set<year_month> ofMonths;
    for (const CopyInTime& copy : kept) {
        const auto day = floor<days>(copy.moment);
        ofDays.insert(day);
        ofMonths.insert(year_month_day(day).year() / year_month_day(day).month());
    }
    for (int i = 0; i < 7; ++i) {
        QVERIFY(ofDays.count(last - days(i)) == 1);
    }
    QCOMPARE(ofMonths.size(), std::size_t(12));
    // The last of seven days is of the week before, and the last copies of weeks and months coincide in part.
    QVERIFY2(kept.size() <= 7 + 4 + 12, qPrintable(textOf(kept)));
    QVERIFY2(kept.size() >= 7 + 2 + 10, qPrintable(textOf(kept)));
}

void TestCopyThinning::daysWithoutACopyDoNotCount()
{
    // Who comes back after half a year finds what was there.
    std::vector<Moment> moments = everyDay(2026y / May / 4, 6);
    moments.push_back(at(2026y / November / 22));
    QCOMPARE(keepOneByOne(moments).size(), std::size_t(7));
}

void TestCopyThinning::aWeekBeginsOnMonday()
{
    // Of Sunday the 8th and Monday the 9th, seen from far later, both are the last ones of their week.
    std::vector<Moment> moments{at(2026y / November / 8), at(2026y / November / 9)};
    const std::vector<Moment> later = everyDay(2026y / November / 16, 7);
    moments.insert(moments.end(), later.begin(), later.end());
    QCOMPARE(keepOneByOne(moments).size(), std::size_t(9));
    // Monday and Tuesday are of one week.
    moments[0] = at(2026y / November / 9);
    moments[1] = at(2026y / November / 10);
    QCOMPARE(keepOneByOne(moments).front().moment, moments[1]);
}

void TestCopyThinning::theOrderOfTheCopiesDoesNotMatter()
{
    std::vector<CopyInTime> copies;
    for (const Moment moment : everyDay(2026y / January / 1, 300)) {
        copies.push_back({moment, 1});
    }
    const Moment now = copies.back().moment;
    const std::size_t dropped = copiesToDrop(copies, now, Unbounded).size();
    std::reverse(copies.begin(), copies.end());
    const std::vector<std::size_t> places = copiesToDrop(copies, now, Unbounded);
    QCOMPARE(places.size(), dropped);
    QVERIFY(std::is_sorted(places.rbegin(), places.rend()));
    QCOMPARE(std::count(places.begin(), places.end(), 0U), 0);
}

void TestCopyThinning::whatIsFurtherOfADayMakesRoomFirst()
{
    std::vector<Moment> moments = everyDay(2026y / November / 17, 5);
    for (int hour = 8; hour < 20; ++hour) {
        moments.push_back(at(2026y / November / 22, hours(hour)));
    }
    QCOMPARE(textOf(keepOneByOne(moments, 70, 10)),
        QStringLiteral("2026-11-17T09 2026-11-18T09 2026-11-19T09 2026-11-20T09 2026-11-21T09 2026-11-22T18 "
                       "2026-11-22T19"));
}

void TestCopyThinning::thenTheOldestMakesRoom()
{
    QCOMPARE(textOf(keepOneByOne(everyDay(2026y / November / 16, 7), 35, 10)),
        QStringLiteral("2026-11-20T09 2026-11-21T09 2026-11-22T09"));
}

void TestCopyThinning::theNewestStaysHoweverLittleRoomThereIs()
{
    QCOMPARE(
        textOf(keepOneByOne(everyDay(2026y / November / 20, 3), 0, 10)), QStringLiteral("2026-11-22T09"));
}

void TestCopyThinning::emptyCopiesAreNoReasonToKeepMore()
{
    const Moment now = at(2026y / November / 22);
    QCOMPARE(copiesToDrop({{now, 0}, {now - 24h, 5}, {now - 48h, 5}}, now, 5), std::vector<std::size_t>{2});
}

void TestCopyThinning::anHourSetBackDropsNothing()
{
    const Moment now = at(2026y / October / 25, 2h);
    std::vector<CopyInTime> copies;
    for (int i = 0; i < 5; ++i) {
        copies.push_back({now + minutes(50 - 10 * i), 1});
    }
    copies.push_back({now, 1});
    QVERIFY(copiesToDrop(copies, now, Unbounded).empty());
}

void TestCopyThinning::copiesOfAWrongClockPushOutNoneOfToday()
{
    std::vector<CopyInTime> kept;
    for (const Moment moment : everyDay(2036y / January / 1, 400)) {
        kept.push_back({moment, 1});
    }
    const std::vector<Moment> right = everyDay(2026y / November / 16, 7);
    for (const Moment moment : right) {
        kept.push_back({moment, 1});
        for (const std::size_t place : copiesToDrop(kept, moment, Unbounded)) {
            kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(place));
        }
        QCOMPARE(kept.back().moment, moment);
    }
    for (const Moment moment : right) {
        QVERIFY(std::any_of(
            kept.begin(), kept.end(), [moment](const CopyInTime& copy) { return copy.moment == moment; }));
    }
    QVERIFY(kept.size() <= 7 + 7 + 4 + 12);
}

void TestCopyThinning::aClockSetBackByYearsDropsNoMonth()
{
    const std::vector<CopyInTime> before = keepOneByOne(everyDay(2025y / November / 1, 380));
    // A machine whose clock has lost its time, over several days.
    std::vector<CopyInTime> kept = before;
    for (const Moment moment : everyDay(2020y / January / 1, 10)) {
        kept.push_back({moment, 1});
        for (const std::size_t place : copiesToDrop(kept, moment, Unbounded)) {
            kept.erase(kept.begin() + static_cast<std::ptrdiff_t>(place));
        }
    }
    const auto hasStayed = [&kept](const CopyInTime& copy) {
        return std::any_of(kept.begin(), kept.end(),
            [&copy](const CopyInTime& other) { return other.moment == copy.moment; });
    };
    QVERIFY2(std::all_of(before.begin(), before.end(), hasStayed), qPrintable(textOf(kept)));
}

void TestCopyThinning::allCopiesTakeATenthOfWhatIsLeftFree()
{
    for (const qint64 free : {qint64(0), qint64(10), qint64(11), qint64(1000), qint64(999'999'999)}) {
        const qint64 room = roomForCopies(free);
        QVERIFY(10 * room <= free - room);
        QVERIFY(10 * (room + 1) > free - (room + 1));
    }
}

void TestCopyThinning::allCopiesTakeTwoHundredMegabytesAtMost()
{
    QCOMPARE(roomForCopies(2'200'000'000), 200'000'000);
    QCOMPARE(roomForCopies(Unbounded), 200'000'000);
}

AMBERTASK_TEST_MAIN(TestCopyThinning)
#include "tst_copy_thinning.moc"
