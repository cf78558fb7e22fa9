#include "AlertsFixture.h"
#include "support/TestMain.h"

using namespace std::chrono_literals;

namespace
{

/// A reminder every day at 10:00, for which the machine was off since Monday: it is Thursday.
struct MissedReminder : AlertsFixture {
    MissedReminder()
    {
        id = aTask(database())
                 .named(QStringLiteral("Pill"))
                 .dueAt(now() - 72h)
                 .remindingAt(now() - 72h)
                 .sounding(QStringLiteral("bell.wav"))
                 .repeating()
                 .add();
        window.load();
        tick();
    }
    QString nameOf(int row) const { return cell(row, AlertListModel::Name); }
    QString state()
    {
        return database()
            .sql(QStringLiteral("select substr(task_due_date,1,16)||' '||substr(reminder_date_time,1,16)||' '"
                                "||played||dismissed from tasks"))
            .toString();
    }

    qint32 id = 0;
};

} // namespace

/// What the alert shows of reminders that come again, and does with them.
class AlertsRepeatingTest : public TestCase
{
    Q_OBJECT

private slots:
    void missedTimesAreOneRowAndOneSound()
    {
        MissedReminder f;
        QCOMPARE(f.rows(), 1);
        QCOMPARE(f.nameOf(0), QStringLiteral("Pill (4 times since Monday)"));
        QCOMPARE(f.sounds.filter(QStringLiteral("play")).size(), 1);
    }

    void theNextTimeIsCountedWhileTheReminderIsShown()
    {
        MissedReminder f;
        f.clock().step(24h);
        f.tick();
        QCOMPARE(f.nameOf(0), QStringLiteral("Pill (5 times since Monday)"));
        QCOMPARE(f.sounds.filter(QStringLiteral("play")).size(), 1);
    }

    void dismissedItComesAgainInTheFutureAtOnce()
    {
        MissedReminder f;
        f.click(QStringLiteral("btnDismiss"));
        QVERIFY(!f.window.isVisible());
        QCOMPARE(f.state(), QStringLiteral("2026-01-16 10:00 2026-01-16 10:00 00"));
        f.tick();
        QVERIFY(!f.window.isVisible());
        f.clock().step(24h);
        f.tick();
        QVERIFY(f.window.isVisible());
        QCOMPARE(f.nameOf(0), QStringLiteral("Pill"));
        QCOMPARE(f.sounds.filter(QStringLiteral("play")).size(), 2);
    }

    void dismissAllTreatsEachAsDismissDoes()
    {
        MissedReminder f;
        aTask(f.database()).named(QStringLiteral("once")).remindingAt(f.now() - 1min).add();
        f.tick();
        f.click(QStringLiteral("btnDismissAll"));
        QCOMPARE(f.database().storedOfAll("dismissed"), QStringLiteral("0 1"));
        f.tick();
        QVERIFY(!f.window.isVisible());
    }

    void aClockThatIsSetBackBringsNothingTwice()
    {
        MissedReminder f;
        f.click(QStringLiteral("btnDismiss"));
        f.clock().step(-96h);
        f.tick();
        QVERIFY(!f.window.isVisible());
        QCOMPARE(f.state(), QStringLiteral("2026-01-16 10:00 2026-01-16 10:00 00"));
    }
};

AMBERTASK_TEST_MAIN(AlertsRepeatingTest)
#include "tst_alerts_repeating.moc"
