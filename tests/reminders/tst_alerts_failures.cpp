#include "AlertsFixture.h"
#include "support/OtherProgram.h"
#include "support/TestMain.h"

#include <QTest>

class tst_alerts_failures : public TestCase
{
    Q_OBJECT

private slots:
    void aLockedDataFileLeavesTheListAsItWasAndTheNextTickTriesAgain()
    {
        AlertsFixture alerts;
        const qint32 first = alerts.aDueTask(QStringLiteral("First")).add();
        alerts.tick();
        alerts.aDueTask(QStringLiteral("Second")).sounding(QStringLiteral("s.wav")).add();
        {
            const OtherProgram other(alerts.database(), OtherProgram::Committing);
            QVERIFY(other.holds());
            alerts.tick();
            QCOMPARE(alerts.names(), QStringList(QStringLiteral("First")));
            QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
            QCOMPARE(alerts.grid()->selectedRow(), 0);
            QCOMPARE(alerts.takeSounds(), QStringList());
        }
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("First"), QStringLiteral("Second")}));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play s.wav")));
        QVERIFY(alerts.isPlayed(first));
    }

    void aMissingDataFileIsNotReportedAndTheTimerStaysAlive()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).add();
        const QString away = alerts.database().dataFile() + QStringLiteral(".away");
        QVERIFY(QFile::rename(alerts.database().dataFile(), away));
        alerts.window.load();
        QVERIFY(!alerts.window.isVisible());
        QVERIFY(alerts.control<QTimer>(QStringLiteral("tmrTasksChecker"))->isActive());
        QVERIFY(QFile::rename(away, alerts.database().dataFile()));
        alerts.tick();
        QCOMPARE(alerts.rows(), 1);
    }

    void aRecordThatCannotBeReadHidesNoOtherReminder()
    {
        AlertsFixture alerts;
        const qint32 bad = alerts.aDueTask(QStringLiteral("Bad")).sounding(QStringLiteral("b.wav")).add();
        alerts.database().sql(
            QStringLiteral("update tasks set task_periority='urgent' where task_id=%1").arg(bad));
        const qint32 good = alerts.aDueTask(QStringLiteral("Good")).sounding(QStringLiteral("g.wav")).add();
        alerts.tick();
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Good")));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play g.wav")));
        QVERIFY(alerts.isPlayed(good));

        alerts.aDueTask(QStringLiteral("Last")).sounding(QStringLiteral("l.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("Good"), QStringLiteral("Last")}));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play l.wav")));
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void aRecordThatCanBeReadAgainIsListed()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("Good")).add();
        const qint32 bad = alerts.aDueTask(QStringLiteral("Bad")).add();
        const QString update = QStringLiteral("update tasks set task_due_date='%1' where task_id=%2");
        alerts.database().sql(update.arg(QStringLiteral("soon")).arg(bad));
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("Good")));
        alerts.database().sql(update.arg(QStringLiteral("2026-01-15 09:00:00")).arg(bad));
        alerts.tick();
        QCOMPARE(alerts.names(), QStringList({QStringLiteral("Good"), QStringLiteral("Bad")}));
    }

    void aMarkThatFailedIsMadeUpForByTheNextTickWithoutASecondSound_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::newRow("at the statement") << QByteArray(OtherProgram::Writing);
        QTest::newRow("at the commit") << QByteArray(OtherProgram::Reading);
    }

    void aMarkThatFailedIsMadeUpForByTheNextTickWithoutASecondSound()
    {
        QFETCH(QByteArray, lock);
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("x")).sounding(QStringLiteral("x.wav")).add();
        {
            const OtherProgram other(alerts.database(), lock.constData());
            QVERIFY(other.holds());
            alerts.tick();
            QVERIFY(alerts.window.isVisible());
        }
        QVERIFY(!alerts.isPlayed(id));
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
        alerts.database().statements().take();
        alerts.tick();
        QVERIFY(alerts.isPlayed(id));
        QCOMPARE(alerts.takeSounds(), QStringList());
        QCOMPARE(alerts.database().statements().take(), QStringList({DueQuery, MarkPlayed}));
        alerts.tick();
        QCOMPARE(alerts.database().statements().take(), QStringList(DueQuery));
    }

    void aMarkThatFailedNeverSilencesAReminderThatWasNotListed()
    {
        AlertsFixture alerts;
        const qint32 listed = alerts.aDueTask(QStringLiteral("x")).add();
        {
            const OtherProgram other(alerts.database(), OtherProgram::Writing);
            QVERIFY(other.holds());
            alerts.tick();
        }
        alerts.database().sql(QStringLiteral("delete from tasks where task_id=%1").arg(listed));
        const qint32 swapped = alerts.aDueTask(QStringLiteral("y")).sounding(QStringLiteral("y.wav")).add();
        alerts.tick();
        QVERIFY(!alerts.isPlayed(swapped));
    }

    void aMarkThatFailedMakesNothingSoundTwiceWhenAnotherFallsDue()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).sounding(QStringLiteral("x.wav")).add();
        {
            const OtherProgram other(alerts.database(), OtherProgram::Writing);
            QVERIFY(other.holds());
            alerts.tick();
        }
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
        const qint32 next = alerts.aDueTask(QStringLiteral("y")).sounding(QStringLiteral("y.wav")).add();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play y.wav")));
        QVERIFY(alerts.isPlayed(next));
    }

    void aReminderPostponedBeforeItCouldBeMarkedSoundsAgainAtItsNewMoment()
    {
        AlertsFixture alerts;
        // On the minute, so that the moment that the pickers show is not in the past.
        alerts.clock().set(toMinute(alerts.now()));
        aTask(alerts.database())
            .named(QStringLiteral("x"))
            .remindingAt(alerts.now())
            .sounding(QStringLiteral("x.wav"))
            .add();
        {
            const OtherProgram other(alerts.database(), OtherProgram::Writing);
            QVERIFY(other.holds());
            alerts.tick();
        }
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QCOMPARE(alerts.rows(), 0);
        alerts.takeSounds();
        alerts.tick();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
    }

    void aReminderFiresAgainWhenTheProgramDiedBetweenShowingAndMarking()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("x")).sounding(QStringLiteral("x.wav")).add();
        {
            const OtherProgram other(alerts.database(), OtherProgram::Writing);
            QVERIFY(other.holds());
            alerts.tick();
        }
        frmAlerts afterRestart(alerts.world.services, alerts.host,
            [&alerts] { return std::make_unique<RecordedWave>(alerts.sounds); });
        alerts.takeSounds();
        afterRestart.load();
        QCOMPARE(alerts.takeSounds(), QStringList(QStringLiteral("play x.wav")));
    }

    void aStatementThatFailsIsReportedAndLeavesTheList_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("lock");
        for (const char* button : {"btnDismiss", "btnDismissAll", "btnRemindMeLater"}) {
            QTest::addRow("%s, at the statement", button)
                << QString::fromLatin1(button) << QByteArray(OtherProgram::Writing);
            QTest::addRow("%s, at the commit", button)
                << QString::fromLatin1(button) << QByteArray(OtherProgram::Reading);
        }
    }

    void aStatementThatFailsIsReportedAndLeavesTheList()
    {
        QFETCH(QString, button);
        QFETCH(QByteArray, lock);
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("x")).add();
        alerts.tick();
        bool told = false;
        QObject::connect(
            &alerts.window, &frmAlerts::remindersDismissed, &alerts.window, [&told] { told = true; });
        {
            const OtherProgram other(alerts.database(), lock.constData());
            QVERIFY(other.holds());
            alerts.world.dialogs.expectError(QStringLiteral("another program is using it"));
            alerts.click(button);
        }
        QVERIFY(alerts.world.dialogs.allUsed());
        QCOMPARE(alerts.names(), QStringList(QStringLiteral("x")));
        QVERIFY(alerts.window.isVisible());
        QVERIFY(!told);
        QCOMPARE(alerts.stored(id, QStringLiteral("dismissed")), QStringLiteral("0"));
        QCOMPARE(alerts.stored(id, QStringLiteral("played")), QStringLiteral("1"));
    }

    void aTaskIdBeyondSixteenBitsIsReportedByNumber()
    {
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("x")).add();
        alerts.database().sql(QStringLiteral("update tasks set task_id=40000 where task_id=%1").arg(id));
        alerts.tick();
        alerts.database().statements().take();
        alerts.world.dialogs.expectError(QStringLiteral("40000"));
        alerts.click(QStringLiteral("btnOpenItem"));
        QVERIFY(alerts.world.dialogs.allUsed());
        QCOMPARE(alerts.host.opened, QList<qint16>());
        QCOMPARE(alerts.database().statements().take(), QStringList());
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_failures)
#include "tst_alerts_failures.moc"
