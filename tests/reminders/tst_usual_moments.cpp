#include "reminders/UsualMoments.h"
#include "support/TestMain.h"

#include <QKeySequence>
#include <QTest>

namespace
{

Moment at(const char* stored)
{
    return momentFromStoredText(stored).value();
}

QString shown(UsualMoment which, const char* now)
{
    const std::optional<Moment> moment = momentOf(which, at(now));
    return moment ? QString::fromStdString(storedText(*moment)) : QStringLiteral("none");
}

} // namespace

/// In Europe/London, where clocks go from 01:00 to 02:00 on 29 March 2026 and from 02:00 to 01:00 on 25
/// October.
class UsualMomentsTest : public TestCase
{
    Q_OBJECT

private slots:
    void eachMomentIsWhatItsNameSays()
    {
        // A Thursday.
        const char* now = "2026-01-15 10:20:30";
        QCOMPARE(shown(UsualMoment::In5Minutes, now), QStringLiteral("2026-01-15 10:25:00"));
        QCOMPARE(shown(UsualMoment::In15Minutes, now), QStringLiteral("2026-01-15 10:35:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, now), QStringLiteral("2026-01-15 11:20:00"));
        QCOMPARE(shown(UsualMoment::ThisEvening, now), QStringLiteral("2026-01-15 18:00:00"));
        QCOMPARE(shown(UsualMoment::TomorrowMorning, now), QStringLiteral("2026-01-16 09:00:00"));
        QCOMPARE(shown(UsualMoment::NextWeek, now), QStringLiteral("2026-01-19 09:00:00"));
    }

    void thisEveningIsLeftOutOnceItHasBegun()
    {
        QCOMPARE(
            shown(UsualMoment::ThisEvening, "2026-01-15 17:59:59"), QStringLiteral("2026-01-15 18:00:00"));
        QCOMPARE(shown(UsualMoment::ThisEvening, "2026-01-15 18:00:00"), QStringLiteral("none"));
        QCOMPARE(shown(UsualMoment::ThisEvening, "2026-01-15 23:59:59"), QStringLiteral("none"));
        QCOMPARE(
            shown(UsualMoment::ThisEvening, "2026-01-16 00:00:00"), QStringLiteral("2026-01-16 18:00:00"));
    }

    void nextWeekBeginsOnTheMondayThatFollows()
    {
        QCOMPARE(shown(UsualMoment::NextWeek, "2026-01-12 08:00:00"), QStringLiteral("2026-01-19 09:00:00"));
        QCOMPARE(shown(UsualMoment::NextWeek, "2026-01-17 12:00:00"), QStringLiteral("2026-01-19 09:00:00"));
        QCOMPARE(shown(UsualMoment::NextWeek, "2026-01-18 23:59:59"), QStringLiteral("2026-01-19 09:00:00"));
        QCOMPARE(shown(UsualMoment::NextWeek, "2026-01-19 00:00:00"), QStringLiteral("2026-01-26 09:00:00"));
    }

    void daysMonthsAndYearsEnd()
    {
        QCOMPARE(
            shown(UsualMoment::In5Minutes, "2026-12-31 23:58:59"), QStringLiteral("2027-01-01 00:03:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, "2026-01-31 23:30:00"), QStringLiteral("2026-02-01 00:30:00"));
        QCOMPARE(shown(UsualMoment::TomorrowMorning, "2026-02-28 12:00:00"),
            QStringLiteral("2026-03-01 09:00:00"));
        QCOMPARE(shown(UsualMoment::TomorrowMorning, "2028-02-28 12:00:00"),
            QStringLiteral("2028-02-29 09:00:00"));
        QCOMPARE(shown(UsualMoment::NextWeek, "2026-12-30 12:00:00"), QStringLiteral("2027-01-04 09:00:00"));
    }

    void whereClocksAreSetForwardTheMissingHourIsNeverNamed()
    {
        QCOMPARE(
            shown(UsualMoment::In5Minutes, "2026-03-29 00:54:59"), QStringLiteral("2026-03-29 00:59:00"));
        QCOMPARE(
            shown(UsualMoment::In5Minutes, "2026-03-29 00:58:30"), QStringLiteral("2026-03-29 02:03:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, "2026-03-29 00:30:00"), QStringLiteral("2026-03-29 02:30:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, "2026-03-29 02:30:00"), QStringLiteral("2026-03-29 03:30:00"));
    }

    void whereClocksAreSetBackNoMomentComesTooEarly()
    {
        QCOMPARE(
            shown(UsualMoment::In5Minutes, "2026-10-25 01:58:30"), QStringLiteral("2026-10-25 02:03:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, "2026-10-25 01:30:00"), QStringLiteral("2026-10-25 02:30:00"));
        QCOMPARE(shown(UsualMoment::In1Hour, "2026-10-25 00:30:00"), QStringLiteral("2026-10-25 01:30:00"));
    }

    void everyMomentLiesAhead()
    {
        const Moment start = at("2026-01-01 00:00:30");
        for (int hour = 0; hour < 24 * 366; ++hour) {
            const Moment now = start + std::chrono::hours(hour);
            for (const UsualMoment which : AllUsualMoments) {
                const std::optional<Moment> moment = momentOf(which, now);
                QVERIFY(!moment || *moment > now);
                QVERIFY(!moment || toMinute(*moment) == *moment);
            }
        }
    }

    void everyEntryHasAMnemonicOfItsOwn()
    {
        QStringList keys;
        for (const UsualMoment which : AllUsualMoments) {
            keys.append(QKeySequence::mnemonic(captionOf(which)).toString());
        }
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(keys.removeDuplicates(), 0);
    }
};

AMBERTASK_TEST_MAIN(UsualMomentsTest)
#include "tst_usual_moments.moc"
