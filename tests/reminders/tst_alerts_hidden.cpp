#include "AlertsFixture.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

/// An alert that the user has closed, or that was emptied at once, still lists what it listed until a check.
class HiddenAlertsTest : public TestCase
{
    Q_OBJECT

private slots:
    void asManyOtherRemindersAsWereDismissedComeUpAndSound()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.click(QStringLiteral("btnDismissAll"));
        QCOMPARE(alerts.rows(), 2);
        const qint32 fresh = alerts.aDueTask(QStringLiteral("c")).sounding(QStringLiteral("c.wav")).add();
        alerts.aDueTask(QStringLiteral("d")).add();
        alerts.takeSounds();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("c"), QStringLiteral("d")}));
        QCOMPARE(alerts.caption(), QStringLiteral("2 Reminders"));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play c.wav")));
        QVERIFY(alerts.isPlayed(fresh));
    }

    void fewerOthersThanTheHiddenGridListsComeUpToo()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.click(QStringLiteral("btnDismissAll"));
        const qint32 fresh = alerts.aDueTask(QStringLiteral("c")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QVERIFY(alerts.isPlayed(fresh));
    }

    void aReminderThatTakesThePlaceOfADeletedOneInAClosedAlertComesUp()
    {
        AlertsFixture alerts;
        const qint32 gone = alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).sounding(QStringLiteral("b.wav")).add();
        alerts.tick();
        alerts.takeSounds();
        alerts.window.hide();
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(gone));
        alerts.aDueTask(QStringLiteral("c")).sounding(QStringLiteral("c.wav")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play c.wav")));
    }

    void aTaskOfAClosedAlertThatRemindsAtAnotherMomentComesUpAgain()
    {
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("a")).sounding(QStringLiteral("a.wav")).add();
        alerts.tick();
        alerts.takeSounds();
        alerts.window.hide();
        // As the task dialog does, and the moment has come before the next check.
        alerts.database().sql(
            QStringLiteral("update tasks set played=0,reminder_date_time='2026-01-15 10:00:00' "
                           "where task_id=%1")
                .arg(id));
        alerts.clock().step(1min);
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play a.wav")));
    }

    void aClosedAlertWhoseRemindersAreAllStillDueStaysClosed()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("a")).add();
        alerts.aDueTask(QStringLiteral("b")).add();
        alerts.tick();
        alerts.window.hide();
        alerts.tick();
        QVERIFY(!alerts.window.isVisible());
    }
};

AMBERTASK_TEST_MAIN(HiddenAlertsTest)
#include "tst_alerts_hidden.moc"
