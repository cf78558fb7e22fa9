#include "support/TestMain.h"
#include "tasks/RepeatDialog.h"
#include "widgets/Combos.h"

#include <QDateEdit>
#include <QTimeEdit>

using Unsaved = MessageBoxes::Unsaved;
using namespace std::chrono_literals;

/// How the task dialog shows and stores that a task repeats.
class TestTaskRepeat : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskThatNeverRepeatsIsStoredAsBefore();
    void aChosenEntryIsStoredFromTheDueMomentOn();
    void theLeadIsTheTimeFromTheReminderToTheDueMoment();
    void anEntryFollowsTheDueDateAsItIsTyped();
    void howATaskRepeatsIsInputThatCanBeUnsaved();
    void aStoredTaskShowsHowItRepeats();
    void aTaskStoredUntouchedGoesOnWhereItIs();
    void anotherDueMomentBeginsAnew();
    void anotherRuleBeginsAnew();
    void anotherReminderChangesTheLeadOnly();
    void neverEndsIt();
    void emptyingTheFormChoosesNever();
    void whatTheStoreDoesMeanwhileIsKept();
    void aCompletedTaskMovesOn();
};

void TestTaskRepeat::aTaskThatNeverRepeatsIsStoredAsBefore()
{
    RepeatDialog dialog;
    dialog.showValid();
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("count(*)")).toInt(), 1);
    QCOMPARE(dialog.repeat(), QVariantList());
    QVERIFY(dialog.repeating.isUsed() == false);
}

void TestTaskRepeat::aChosenEntryIsStoredFromTheDueMomentOn()
{
    RepeatDialog dialog;
    dialog.showValid();
    dialog.choose(RepeatEntry::Day);
    dialog.click("btnOk");
    const RepeatPattern daily{RepeatPattern::Unit::Days, 1, {}, {}, {}, {}};
    QCOMPARE(dialog.repeat(),
        QVariantList({QString::fromStdString(ruleOf(daily, fromStart(1h))), "2026-01-15 11:00:00", 0, 0}));
}

void TestTaskRepeat::theLeadIsTheTimeFromTheReminderToTheDueMoment()
{
    RepeatDialog dialog;
    dialog.showValid();
    dialog.choose(RepeatEntry::Day);
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(40min));
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat().value(2).toInt(), 20);
}

void TestTaskRepeat::anEntryFollowsTheDueDateAsItIsTyped()
{
    RepeatDialog dialog;
    dialog.showValid();
    dialog.choose(RepeatEntry::NthWeekday);
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every month on the third Thursday"));
    dialog.control<QDateEdit>("dtpDueDate")->setDate(QDate(2026, 2, 3));
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every month on the first Tuesday"));
}

void TestTaskRepeat::howATaskRepeatsIsInputThatCanBeUnsaved()
{
    RepeatDialog dialog;
    const qint16 id = dialog.addDaily();
    dialog.form->SetTag(id);
    dialog.show();
    QVERIFY(dialog.form->letGo());
    dialog.choose(RepeatEntry::Week);
    dialog.services.dialogs.expectUnsaved(
        QStringLiteral("The changes to 'task' are not saved."), Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
    dialog.choose(RepeatEntry::Day);
    QVERIFY(dialog.form->letGo());
}

void TestTaskRepeat::aStoredTaskShowsHowItRepeats()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Every day"));
    const qint32 other = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(other));
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
}

void TestTaskRepeat::aTaskStoredUntouchedGoesOnWhereItIs()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat(), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", 15, 3}));
}

void TestTaskRepeat::anotherDueMomentBeginsAnew()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.control<QTimeEdit>("dtpDueTime")->setTime(QTime(11, 30));
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat().mid(1), QVariantList({"2026-01-15 11:30:00", 45, 0}));
}

void TestTaskRepeat::anotherRuleBeginsAnew()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.choose(RepeatEntry::Week);
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat().mid(1), QVariantList({"2026-01-15 11:00:00", 15, 0}));
}

void TestTaskRepeat::anotherReminderChangesTheLeadOnly()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.control<QTimeEdit>("dtpReminderTime")->setTime(QTime(11, 10));
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat(), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", -10, 3}));
}

void TestTaskRepeat::neverEndsIt()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.choose(RepeatEntry::Never);
    dialog.click("btnOk");
    QCOMPARE(dialog.repeat(), QVariantList());
}

void TestTaskRepeat::emptyingTheFormChoosesNever()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.form->EmptyForm();
    QCOMPARE(dialog.text("cmbRepeat"), QStringLiteral("Never"));
}

void TestTaskRepeat::whatTheStoreDoesMeanwhileIsKept()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.services.database.sql(
        QStringLiteral("update repeats set done=4; update tasks set task_due_date='2026-01-16 11:00:00',"
                       "reminder_date_time='2026-01-16 10:45:00'"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("renamed"));
    QCOMPARE(
        dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-01-16 11:00:00"));
    QCOMPARE(dialog.repeat(), QVariantList({"FREQ=DAILY;INTERVAL=1", "2026-01-12 11:00:00", 15, 4}));
}

void TestTaskRepeat::aCompletedTaskMovesOn()
{
    RepeatDialog dialog;
    dialog.form->SetTag(dialog.addDaily());
    dialog.show();
    selectNumber(*dialog.control<QComboBox>("cmbStatus"), TaskStatus::Completed);
    dialog.click("btnOk");
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
    QCOMPARE(dialog.stored(QStringLiteral("task_status")).toInt(), int(TaskStatus::NotStarted));
    QCOMPARE(
        dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-01-16 11:00:00"));
    QCOMPARE(dialog.stored(QStringLiteral("reminder_date_time")).toString(),
        QStringLiteral("2026-01-16 10:45:00"));
    QCOMPARE(dialog.repeat().value(3).toInt(), 4);
}

AMBERTASK_TEST_MAIN(TestTaskRepeat)
#include "tst_task_repeat.moc"
