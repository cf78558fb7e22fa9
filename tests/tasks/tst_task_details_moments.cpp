#include "TaskDialog.h"
#include "support/TestMain.h"
#include "widgets/MomentMenu.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QSignalSpy>
#include <QTimeEdit>

using namespace std::chrono_literals;

namespace
{

enum Due { Today, Tomorrow, NextMonday };
enum Before { AtDue, Minutes5, Minutes15, Minutes30, Hour, Day };

void choose(const TaskDialog& dialog, const char* button, int entry)
{
    QMenu* menu = dialog.control<MomentButton>(button)->menu();
    emit menu->aboutToShow();
    menu->actions().at(entry)->trigger();
}

QString due(const TaskDialog& dialog)
{
    return dialog.moment("dtpDueDate", "dtpDueTime");
}

QString reminder(const TaskDialog& dialog)
{
    return dialog.moment("dtpReminderDate", "dtpReminderTime");
}

bool isOn(const TaskDialog& dialog)
{
    return dialog.control<QCheckBox>("chkEnableReminder")->isChecked();
}

} // namespace

/// The clock stands at Thursday, 15 January 2026, 10:00:00.
class TaskDetailsMomentsTest : public TestCase
{
    Q_OBJECT

private slots:
    void theDueMomentIsSetByHand()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Today);
        QCOMPARE(due(dialog), QStringLiteral("2026-01-15 18:00:00"));
        choose(dialog, "btnSetDue", Tomorrow);
        QCOMPARE(due(dialog), QStringLiteral("2026-01-16 09:00:00"));
        choose(dialog, "btnSetDue", NextMonday);
        QCOMPARE(due(dialog), QStringLiteral("2026-01-19 09:00:00"));
        QVERIFY(!isOn(dialog));
    }

    void aMomentThatHasPassedCannotBeChosen()
    {
        TaskDialog dialog;
        dialog.services.database.clock().step(9h);
        dialog.show();
        const QString before = due(dialog);
        const QMenu* menu = dialog.control<MomentButton>("btnSetDue")->menu();
        choose(dialog, "btnSetDue", Today);
        QVERIFY(!menu->actions().at(Today)->isEnabled());
        QVERIFY(menu->actions().at(Tomorrow)->isEnabled());
        QCOMPARE(due(dialog), before);
    }

    void aReminderBeforeTheDueMomentIsSwitchedOnWithoutTheCopy()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Tomorrow);
        const QSignalSpy clicked(dialog.control<QCheckBox>("chkEnableReminder"), &QCheckBox::clicked);
        choose(dialog, "btnSetReminder", Minutes15);
        QVERIFY(isOn(dialog));
        QCOMPARE(clicked.size(), 0);
        QVERIFY(dialog.widget("dtpReminderDate")->isEnabled());
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 08:45:00"));
        choose(dialog, "btnSetReminder", AtDue);
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 09:00:00"));
    }

    void aReminderThatWouldHavePassedCannotBeChosen()
    {
        TaskDialog dialog;
        dialog.show();
        dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(10min));
        const QString before = reminder(dialog);
        choose(dialog, "btnSetReminder", Minutes15);
        QCOMPARE(reminder(dialog), before);
        QVERIFY(!isOn(dialog));
        const QMenu* menu = dialog.control<MomentButton>("btnSetReminder")->menu();
        QVERIFY(menu->actions().at(Minutes5)->isEnabled());
        QVERIFY(!menu->actions().at(Minutes15)->isEnabled());
        QVERIFY(!menu->actions().at(Day)->isEnabled());
    }

    void theReminderFollowsTheDueMoment()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Tomorrow);
        choose(dialog, "btnSetReminder", Hour);
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 08:00:00"));
        choose(dialog, "btnSetDue", NextMonday);
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-19 08:00:00"));
        dialog.control<QTimeEdit>("dtpDueTime")->setTime(QTime(14, 30));
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-19 13:30:00"));
    }

    void aReminderThatIsChangedByHandFollowsNoMore()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Tomorrow);
        choose(dialog, "btnSetReminder", Hour);
        dialog.control<QTimeEdit>("dtpReminderTime")->setTime(QTime(7, 7));
        choose(dialog, "btnSetDue", NextMonday);
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 07:07:00"));
    }

    void theClickOnTheCheckBoxProposesTheDueMomentAsEver()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Tomorrow);
        choose(dialog, "btnSetReminder", Hour);
        dialog.click("chkEnableReminder");
        dialog.click("chkEnableReminder");
        QVERIFY(isOn(dialog));
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 09:00:00"));
        choose(dialog, "btnSetDue", NextMonday);
        QCOMPARE(reminder(dialog), QStringLiteral("2026-01-16 09:00:00"));
    }

    void theNextVisitFollowsNothing()
    {
        TaskDialog dialog;
        dialog.show();
        choose(dialog, "btnSetDue", Tomorrow);
        choose(dialog, "btnSetReminder", Hour);
        dialog.form->EmptyForm();
        const QString before = reminder(dialog);
        choose(dialog, "btnSetDue", NextMonday);
        QCOMPARE(reminder(dialog), before);
    }

    void whatWasSetByHandIsStored()
    {
        TaskDialog dialog;
        dialog.showValid();
        choose(dialog, "btnSetDue", Tomorrow);
        choose(dialog, "btnSetReminder", Minutes30);
        dialog.click("btnOk");
        QCOMPARE(
            dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-01-16 09:00:00"));
        QCOMPARE(dialog.stored(QStringLiteral("reminder_date_time")).toString(),
            QStringLiteral("2026-01-16 08:30:00"));
    }

    void eachMenuHasAKeyOfItsOwn()
    {
        TaskDialog dialog;
        dialog.show();
        QCOMPARE(dialog.control<MomentButton>("btnSetDue")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
        QCOMPARE(dialog.control<MomentButton>("btnSetReminder")->shortcut(),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
        QVERIFY(dialog.control<MomentButton>("btnSetReminder")->isEnabled());
    }
};

AMBERTASK_TEST_MAIN(TaskDetailsMomentsTest)
#include "tst_task_details_moments.moc"
