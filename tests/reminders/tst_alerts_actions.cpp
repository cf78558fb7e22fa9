#include "AlertsFixture.h"
#include "support/TestMain.h"

#include <QDateEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimeEdit>

using namespace std::chrono_literals;

namespace
{

const QString TooEarly =
    QStringLiteral("Reminder date and time should not be earlier than current system date and time");

/// An alert window with three sounding reminders listed, the first selected; what was recorded is forgotten.
struct ThreeListed : AlertsFixture {
    ThreeListed()
    {
        for (const char* name : {"a", "b", "c"}) {
            const QString text = QString::fromLatin1(name);
            ids.append(aDueTask(text).sounding(text + QStringLiteral(".wav")).add());
        }
        tick();
        takeSounds();
        database().statements().take();
    }
    void setNewMoment(QDate date, QTime time)
    {
        control<QDateEdit>(QStringLiteral("dtpReminderDate"))->setDate(date);
        control<QTimeEdit>(QStringLiteral("dtpReminderTime"))->setTime(time);
    }
    void setNewMoment(Moment moment) { setNewMoment(toQDate(moment), toQTime(moment)); }

    QList<qint32> ids;
};

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* text : texts) {
        all.append(QString::fromLatin1(text));
    }
    return all;
}

} // namespace

class tst_alerts_actions : public TestCase
{
    Q_OBJECT

private slots:
    void aHalfTypedHourCountsAsItIsShown()
    {
        ThreeListed alerts;
        alerts.setNewMoment(QDate(2026, 1, 16), QTime(10, 0));
        auto* time = alerts.control<QTimeEdit>(QStringLiteral("dtpReminderTime"));
        time->setFocus();
        time->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(time, QStringLiteral("1"));
        // Pressed by its mnemonic, the button leaves the focus where it was.
        alerts.control<QPushButton>(QStringLiteral("btnRemindMeLater"))->click();
        QCOMPARE(
            alerts.database().sql(QStringLiteral("select max(reminder_date_time) from tasks")).toString(),
            QStringLiteral("2026-01-16 01:00:00"));
    }

    void dismissingWithNoRowSelectedWritesNothingButStopsTheSound()
    {
        ThreeListed alerts;
        const QSignalSpy dismissed(&alerts.window, &frmAlerts::remindersDismissed);
        alerts.grid()->selectOnly(-1);
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QCOMPARE(alerts.takeSounds(), list({"stop"}));
        QCOMPARE(dismissed.count(), 0);
        QCOMPARE(alerts.rows(), 3);
    }

    void dismissingTheOnlyRowHidesTheWindowAndTheNextTickDoesNothing()
    {
        AlertsFixture alerts;
        const qint32 id = alerts.aDueTask(QStringLiteral("Only")).add();
        alerts.tick();
        alerts.click(QStringLiteral("btnDismiss"));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 0);
        QCOMPARE(alerts.stored(id, QStringLiteral("dismissed")), QStringLiteral("1"));
        QCOMPARE(alerts.stored(id, QStringLiteral("reminder_on")), QStringLiteral("0"));
        alerts.database().statements().take();
        alerts.tick();
        QCOMPARE(alerts.database().statements().take(), QStringList(DueQuery));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
    }

    void dismissingOneOfThreeKeepsTheCaptionUntilTheCountChanges()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(1);
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.names(), list({"a", "c"}));
        QCOMPARE(alerts.caption(), QStringLiteral("3 Reminders"));
        QVERIFY(alerts.window.isVisible());
        alerts.takeSounds();
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("3 Reminders"));
        QCOMPARE(alerts.takeSounds(), QStringList());
        alerts.database().sql(QStringLiteral("delete from tasks where task_name='a'"));
        alerts.tick();
        QCOMPARE(alerts.caption(), QStringLiteral("1 Reminder"));
    }

    void dismissingIsOneStatementOnOneConnectionThatIsClosedBeforeAnyoneIsTold()
    {
        ThreeListed alerts;
        const int openedBefore = alerts.database().statements().opened();
        int closedWhenTold = -1;
        QStringList namesWhenTold;
        QStringList soundsWhenTold;
        QObject::connect(&alerts.window, &frmAlerts::remindersDismissed, &alerts.window, [&] {
            closedWhenTold = alerts.database().statements().closed();
            namesWhenTold = alerts.names();
            soundsWhenTold = alerts.sounds;
        });
        alerts.grid()->selectOnly(2);
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.database().statements().take(),
            QStringList(QStringLiteral("update tasks set dismissed=1,reminder_on=0 where task_id = %1")
                            .arg(alerts.ids[2])));
        QCOMPARE(alerts.database().statements().opened(), openedBefore + 1);
        QCOMPARE(closedWhenTold, openedBefore + 1);
        QCOMPARE(namesWhenTold, list({"a", "b"}));
        QCOMPARE(soundsWhenTold, QStringList());
        QCOMPARE(alerts.takeSounds(), list({"stop"}));
    }

    void theRowThatTakesTheDismissedOnesPlaceIsSelectedElseTheLast()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(1);
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.grid()->selectedRow(), 1);
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.grid()->selectedRow(), 0);
        QCOMPARE(alerts.names(), list({"a"}));
    }

    void dismissAllAlsoTakesTheOneThatBecameDueSinceTheLastTick()
    {
        ThreeListed alerts;
        const qint32 unseen = alerts.aDueTask(QStringLiteral("unseen")).add();
        const qint32 future = aTask(alerts.database()).remindingAt(alerts.now() + 1min).add();
        alerts.click(QStringLiteral("btnDismissAll"));
        QCOMPARE(alerts.stored(unseen, QStringLiteral("dismissed")), QStringLiteral("1"));
        QCOMPARE(alerts.stored(unseen, QStringLiteral("reminder_on")), QStringLiteral("0"));
        QCOMPARE(alerts.stored(alerts.ids[0], QStringLiteral("dismissed")), QStringLiteral("1"));
        QCOMPARE(alerts.stored(future, QStringLiteral("dismissed")), QStringLiteral("0"));
        QCOMPARE(alerts.stored(future, QStringLiteral("reminder_on")), QStringLiteral("1"));
    }

    void dismissAllHidesTheWindowAndKeepsTheRowsUntilTheNextTick()
    {
        ThreeListed alerts;
        const int openedBefore = alerts.database().statements().opened();
        int closedWhenTold = -1;
        QObject::connect(&alerts.window, &frmAlerts::remindersDismissed, &alerts.window,
            [&] { closedWhenTold = alerts.database().statements().closed(); });
        alerts.click(QStringLiteral("btnDismissAll"));
        QCOMPARE(alerts.database().statements().take(),
            list({"update  tasks set dismissed=1,reminder_on=0 where reminder_date_time <= now() and "
                  "dismissed =0 "
                  "and reminder_on=true"}));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 3);
        QCOMPARE(closedWhenTold, openedBefore + 1);
        QCOMPARE(alerts.takeSounds(), list({"stop"}));
        alerts.tick();
        QCOMPARE(alerts.rows(), 0);
        QCOMPARE(alerts.caption(), QStringLiteral("0 Reminders"));
    }

    void remindMeLaterOneMinuteAheadBringsTheReminderAndItsSoundBack()
    {
        ThreeListed alerts;
        const QSignalSpy dismissed(&alerts.window, &frmAlerts::remindersDismissed);
        alerts.setNewMoment(alerts.now() + 1min);
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QCOMPARE(alerts.names(), list({"b", "c"}));
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.takeSounds(), list({"stop"}));
        QCOMPARE(dismissed.count(), 0);
        QCOMPARE(alerts.database().statements().take(),
            QStringList(
                QStringLiteral("update tasks set played=0 ,reminder_date_time =#1/15/2026 10:01# where "
                               "task_id = %1")
                    .arg(alerts.ids[0])));
        QCOMPARE(alerts.stored(alerts.ids[0], QStringLiteral("dismissed")), QStringLiteral("0"));
        QCOMPARE(alerts.stored(alerts.ids[0], QStringLiteral("reminder_on")), QStringLiteral("1"));
        alerts.clock().step(50s);
        alerts.tick();
        QCOMPARE(alerts.names(), list({"b", "c"}));
        alerts.clock().step(10s);
        alerts.tick();
        QCOMPARE(alerts.names(), list({"b", "c", "a"}));
        QCOMPARE(alerts.takeSounds(), list({"play a.wav"}));
        QVERIFY(alerts.isPlayed(alerts.ids[0]));
    }

    void remindMeLaterWithThePickersAsTheyWereSetIsRejectedExceptAtSecondZero()
    {
        ThreeListed alerts;
        alerts.clock().step(1s);
        alerts.setNewMoment(alerts.now());
        alerts.world.dialogs.expectTell(MessageBoxes::Icon::Exclamation, TooEarly);
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QVERIFY(alerts.world.dialogs.allUsed());
        QCOMPARE(alerts.rows(), 3);
        QCOMPARE(alerts.grid()->selectedRow(), 0);
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QCOMPARE(alerts.takeSounds(), QStringList());

        alerts.clock().step(59s);
        alerts.setNewMoment(alerts.now());
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QCOMPARE(alerts.rows(), 2);
    }

    void remindMeLaterWithNoRowSelectedDoesNothingAtAll()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(-1);
        alerts.setNewMoment(alerts.now() - 24h);
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QCOMPARE(alerts.takeSounds(), QStringList());
        QCOMPARE(alerts.rows(), 3);
    }

    void remindMeLaterOnTheOnlyRowHidesTheWindow()
    {
        AlertsFixture alerts;
        alerts.aDueTask(QStringLiteral("Only")).add();
        alerts.tick();
        alerts.control<QDateEdit>(QStringLiteral("dtpReminderDate"))->setDate(QDate(2026, 2, 1));
        alerts.click(QStringLiteral("btnRemindMeLater"));
        QVERIFY(!alerts.window.isVisible());
        QCOMPARE(alerts.rows(), 0);
    }

    void theNewMomentIsWrittenMonthFirstWhateverTheLocale()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        {
            ThreeListed alerts;
            alerts.setNewMoment(QDate(2027, 2, 3), QTime(4, 5));
            alerts.click(QStringLiteral("btnRemindMeLater"));
            QCOMPARE(alerts.stored(alerts.ids[0], QStringLiteral("reminder_date_time")),
                QStringLiteral("2027-02-03 04:05:00"));
            QVERIFY(
                alerts.database().statements().take().first().contains(QStringLiteral("=#2/3/2027 04:05#")));
        }
        QLocale::setDefault(before);
    }

    void openingTheItemAsksForItsTaskAndLeavesTheWindow()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(1);
        alerts.click(QStringLiteral("btnOpenItem"));
        QCOMPARE(alerts.host.opened, QList<qint16>({static_cast<qint16>(alerts.ids[1])}));
        QVERIFY(alerts.window.isVisible());
        QCOMPARE(alerts.database().statements().take(), QStringList());
        QCOMPARE(alerts.takeSounds(), QStringList());
    }

    void openingWithNoRowSelectedDoesNothing()
    {
        ThreeListed alerts;
        alerts.grid()->selectOnly(-1);
        alerts.click(QStringLiteral("btnOpenItem"));
        QCOMPARE(alerts.host.opened, QList<qint16>());
    }

    void aDoubleClickOnARowOpensItsTask()
    {
        ThreeListed alerts;
        QVERIFY(QTest::qWaitForWindowExposed(&alerts.window));
        const QRect cell = alerts.grid()->visualRect(alerts.grid()->model()->index(2, 1));
        QTest::mouseClick(alerts.grid()->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(alerts.grid()->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(alerts.host.opened, QList<qint16>({static_cast<qint16>(alerts.ids[2])}));
    }

    void theEndOfASoundClosesTheMultimediaControl()
    {
        ThreeListed alerts;
        QVERIFY(alerts.wave != nullptr);
        alerts.wave->onDone();
        QCOMPARE(alerts.takeSounds(), list({"stop"}));
    }

    void theTickIsNotRunByAnAction()
    {
        ThreeListed alerts;
        alerts.aDueTask(QStringLiteral("d")).add();
        alerts.click(QStringLiteral("btnDismiss"));
        QCOMPARE(alerts.names(), list({"b", "c"}));
        QVERIFY(!alerts.database().statements().take().contains(DueQuery));
    }

    void theHelpButtonWorksOnceThereIsHelp()
    {
        AlertsFixture alerts;
        const QSignalSpy help(&alerts.window, &frmAlerts::helpRequested);
        alerts.click(QStringLiteral("btnHelp"));
        QCOMPARE(help.count(), 0);
        alerts.window.setHelpEnabled(true);
        alerts.click(QStringLiteral("btnHelp"));
        QCOMPARE(help.count(), 1);
    }
};

AMBERTASK_TEST_MAIN(tst_alerts_actions)
#include "tst_alerts_actions.moc"
