#include "ProgramFixture.h"
#include "app/TaskListModel.h"
#include "reminders/AlertListModel.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"

#include <QLineEdit>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The program, and another process that changes how tasks of the data file repeat.
struct WatchingProgram : ProgramFixture {
    WatchingProgram()
    {
        start();
        program.loadDialogs();
        // A test ticks.
        control<QTimer>(program.alerts(), "tmrTasksChecker")->setInterval(24h);
    }
    Moment now() { return database.clock().now(); }
    void tick() { program.alerts().tmrTasksChecker_Timer(); }
    /// A task whose reminder has come three days ago, and since then every day.
    qint32 addDaily()
    {
        return aTask(database)
            .named(QStringLiteral("daily"))
            .dueAt(now() - 72h)
            .remindingAt(now() - 72h)
            .sounding(QStringLiteral("bell.wav"))
            .repeating()
            .add();
    }
    QString alerted()
    {
        const QAbstractItemModel& model = *grid(program.alerts())->model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, AlertListModel::Name).data().toString());
        }
        return names.join(u',');
    }
    QString signOf(int row)
    {
        return grid(main())->model()->index(row, TaskListModel::Reminder).data(Qt::ToolTipRole).toString();
    }
    /// Due moment, reminder, whether it is on, and how often the task is done.
    QString state()
    {
        return database
            .sql(QStringLiteral(
                "select substr(task_due_date,6,11)||' '||substr(reminder_date_time,6,11)||' '||reminder_on"
                "||coalesce(' '||done,'') from tasks left join repeats on task_id=of_task"))
            .toString();
    }
    void dismiss()
    {
        grid(program.alerts())->selectOnly(0);
        press(program.alerts(), "btnDismiss");
    }
    /// As another copy would when it dismisses the reminder.
    void moveOnElsewhere()
    {
        database.sql(QStringLiteral(
            "update tasks set task_due_date='2026-01-16 10:00:00',reminder_date_time='2026-01-16 10:00:00',"
            "played=0; update repeats set done=4"));
    }
};

} // namespace

/// Tasks that repeat, in a running copy, while another process changes them.
class ProgramForeignRepeatsTest : public TestCase
{
    Q_OBJECT

private slots:
    void theFirstTaskThatRepeatsIsShownAndCountedAtTheNextTick()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        QVERIFY2(f.signOf(0).contains(QLatin1String("Repeats every day")), qPrintable(f.signOf(0)));
        QCOMPARE(f.alerted(), QStringLiteral("daily (4 times since Monday)"));
        QCOMPARE(f.played.size(), 1);
        f.dismiss();
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-16 10:00 1 4"));
    }

    void theFirstTaskThatRepeatsIsMovedOnEvenBeforeTheNextTick()
    {
        WatchingProgram f;
        aTask(f.database).named(QStringLiteral("daily")).dueAt(f.now()).remindingAt(f.now()).add();
        f.tick();
        f.database.sql(QStringLiteral(
            "insert into repeats(of_task,rule,first_moment,lead) select task_id,'FREQ=DAILY',task_due_date,0 "
            "from tasks"));
        f.dismiss();
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-16 10:00 1 1"));
    }

    void whatIsDismissedElsewhereGoesAndComesForItsNextTime()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        f.moveOnElsewhere();
        f.tick();
        QVERIFY(!f.program.alerts().isVisible());
        f.database.clock().step(24h);
        f.tick();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.alerted(), QStringLiteral("daily"));
        QCOMPARE(f.played.size(), 2);
    }

    void anotherRuleCountsAndMovesOnFromTheNextTickOn()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        f.database.sql(QStringLiteral("update repeats set rule='FREQ=DAILY;INTERVAL=2'"));
        f.tick();
        QCOMPARE(f.alerted(), QStringLiteral("daily (2 times since Monday)"));
        QCOMPARE(f.played.size(), 1);
        f.dismiss();
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-16 10:00 1 2"));
    }

    void whatNoLongerRepeatsIsDismissedForGood()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        f.database.sql(QStringLiteral("delete from repeats"));
        f.tick();
        QCOMPARE(f.alerted(), QStringLiteral("daily"));
        QCOMPARE(f.played.size(), 1);
        f.dismiss();
        QCOMPARE(f.state(), QStringLiteral("01-12 10:00 01-12 10:00 0"));
    }

    void anOpenDialogLeavesTheTaskWhereItHasMovedOnTo()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        f.grid(f.program.alerts())->selectOnly(0);
        f.press(f.program.alerts(), "btnOpenItem");
        f.control<QLineEdit>(f.program.taskDetails(), "txtTask")->setText(QStringLiteral("renamed"));
        f.moveOnElsewhere();
        f.tick();
        f.press(f.program.taskDetails(), "btnOk");
        QCOMPARE(f.database.storedOfAll("task_name"), QStringLiteral("renamed"));
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-16 10:00 1 4"));
        f.tick();
        QVERIFY(!f.program.alerts().isVisible());
    }

    void whatHasMovedOnElsewhereIsNotTakenBack()
    {
        WatchingProgram f;
        f.addDaily();
        f.tick();
        f.dismiss();
        f.database.sql(QStringLiteral(
            "update tasks set reminder_date_time='2026-01-17 10:00:00'; update repeats set done=5"));
        f.tick();
        f.main().findChild<QAction*>(QStringLiteral("mnuListUndo"))->trigger();
        QCOMPARE(f.state(), QStringLiteral("01-16 10:00 01-17 10:00 1 5"));
    }
};

AMBERTASK_TEST_MAIN(ProgramForeignRepeatsTest)
#include "tst_program_foreign_repeats.moc"
