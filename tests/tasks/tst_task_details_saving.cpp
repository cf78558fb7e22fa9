#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QComboBox>
#include <QLocale>

using namespace std::chrono_literals;

namespace
{

constexpr MessageBoxes::Icon Exclamation = MessageBoxes::Icon::Exclamation;

const QString TooEarly =
    QStringLiteral("Reminder date and time should not be earlier than current system date and time");

QString selectById(qint32 id)
{
    return QStringLiteral(
        "select * from tasks inner join categories on tasks.cat_id=categories.cat_id where task_id = %1")
        .arg(id);
}

} // namespace

class TestTaskDetailsSaving : public TestCase
{
    Q_OBJECT

private slots:
    void aNewTaskIsInsertedByOneStatement();
    void momentsStayMonthFirstInEveryLocale();
    void aNewTaskWithoutCategoryIsRefused();
    void aFilteredCategoryIsStored();
    void aMissingNameIsRefusedAndGetsTheFocus();
    void aReminderInTheCurrentMinuteIsRefused();
    void aReminderAtSecondZeroOfTheCurrentMinuteIsStored();
    void aReminderOneMinuteBackIsRefused();
    void aReminderMovedIntoThePastIsRefusedOnAnEdit();
    void aPastReminderLeftAsLoadedIsAcceptedOnAnEdit();
    void aSoundOfBlanksIsRefusedAndBrowseGetsTheFocus();
    void aFileOfBlanksIsRefusedAndBrowseGetsTheFocus();
    void aRefusalLeavesTheInputUntouched();
    void changingTheReminderMinuteArmsTheAlertAgain();
    void changingTheNameLeavesTheAlertSilent();
    void switchingTheReminderOnLeavesTheAlertSilent();
    void whatTheAlertPostponedMeanwhileStaysPostponed();
    void whatTheAlertDismissedMeanwhileStaysDismissed();
    void aReminderThatTheUserMovesRingsAgainWhateverTheAlertDidMeanwhile();
    void theFactsComeInTheirOrder();
    void aSavedTaskCanBeFollowedByAnother();
};

void TestTaskDetailsSaving::aNewTaskIsInsertedByOneStatement()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtTask", QStringLiteral("  Bob's call "));
    dialog.setText("txtDescription", QStringLiteral(" about\nit "));
    dialog.form->selectCategory(2);
    dialog.control<QComboBox>("cmbStatus")->setCurrentIndex(3);
    dialog.control<QComboBox>("cmbPeriorities")->setCurrentIndex(2);
    dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(400h + 5min + 59s));
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(2h));
    dialog.click("chkReminderSound");
    dialog.setText("txtReminderSound", QStringLiteral("a.wav"));
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.statements().take(),
        QStringList(QStringLiteral(
            "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,"
            "task_periority,reminder_on,reminder_date_time,reminder_sound,reminder_file) values"
            "('Bob''s call','about\nit',3,2,#2/1/2026 02:05#,0,1,#1/15/2026 12:00#,'a.wav','')")));
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("Bob's call"));
    QCOMPARE(
        dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-02-01 02:05:00"));
    QCOMPARE(dialog.stored(QStringLiteral("played + dismissed")).toInt(), 0);
    QVERIFY(!dialog.form->isVisible());
}

void TestTaskDetailsSaving::momentsStayMonthFirstInEveryLocale()
{
    for (const char* name : {"de_DE", "ar"}) {
        QLocale::setDefault(QLocale(QLatin1String(name)));
        TaskDialog dialog;
        dialog.showValid();
        dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(400h));
        dialog.click("btnOk");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const QStringList statements = dialog.services.database.statements().take();
        QCOMPARE(statements.size(), 1);
        QVERIFY(statements.first().contains(QLatin1String("#2/1/2026 02:00#")));
        QVERIFY(statements.first().contains(QLatin1String("#1/15/2026 11:00#")));
        QCOMPARE(
            dialog.stored(QStringLiteral("task_due_date")).toString(), QStringLiteral("2026-02-01 02:00:00"));
    }
}

void TestTaskDetailsSaving::aNewTaskWithoutCategoryIsRefused()
{
    TaskDialog dialog(0);
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("task"));
    dialog.services.dialogs.expectTell(Exclamation, QStringLiteral("Please select category."));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("cmbCategories"));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsSaving::aFilteredCategoryIsStored()
{
    TaskDialog dialog(3);
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("task"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("cat_id")).toInt(), 3);
}

void TestTaskDetailsSaving::aMissingNameIsRefusedAndGetsTheFocus()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtTask", QStringLiteral("   "));
    dialog.services.dialogs.expectTell(Exclamation, QStringLiteral("Please enter task name."));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("txtTask"));
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsSaving::aReminderInTheCurrentMinuteIsRefused()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(0s));
    dialog.services.database.clock().step(1s);
    dialog.services.dialogs.expectTell(Exclamation, TooEarly);
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("dtpReminderDate"));
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsSaving::aReminderAtSecondZeroOfTheCurrentMinuteIsStored()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(0s));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("reminder_date_time")).toString(),
        QStringLiteral("2026-01-15 10:00:00"));
}

void TestTaskDetailsSaving::aReminderOneMinuteBackIsRefused()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(-1min));
    dialog.services.dialogs.expectTell(Exclamation, TooEarly);
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
}

void TestTaskDetailsSaving::aReminderMovedIntoThePastIsRefusedOnAnEdit()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).remindingAt(fromStart(1h)).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(-1min));
    dialog.services.dialogs.expectTell(Exclamation, TooEarly);
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsSaving::aPastReminderLeftAsLoadedIsAcceptedOnAnEdit()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).remindingAt(fromStart(-1min)).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("renamed"));
    QVERIFY(!dialog.form->isVisible());
}

void TestTaskDetailsSaving::aSoundOfBlanksIsRefusedAndBrowseGetsTheFocus()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.setText("txtReminderSound", QStringLiteral("   "));
    dialog.services.dialogs.expectTell(Exclamation, QStringLiteral("Please select reminder sound."));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("btnSoundBrowse"));
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("   "));
}

void TestTaskDetailsSaving::aFileOfBlanksIsRefusedAndBrowseGetsTheFocus()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderFile");
    dialog.services.dialogs.expectTell(Exclamation, QStringLiteral("Please select reminder file."));
    dialog.click("btnOk");
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("btnFileBrowse"));
}

void TestTaskDetailsSaving::aRefusalLeavesTheInputUntouched()
{
    TaskDialog dialog(0);
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("  name "));
    dialog.setText("txtDescription", QStringLiteral(" about it "));
    dialog.services.dialogs.expectTell(Exclamation, QStringLiteral("Please select category."));
    dialog.click("btnOk");
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("  name "));
    QCOMPARE(dialog.text("txtDescription"), QStringLiteral(" about it "));
    dialog.form->selectCategory(1);
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("task_desc")).toString(), QStringLiteral("about it"));
}

void TestTaskDetailsSaving::changingTheReminderMinuteArmsTheAlertAgain()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database)
                          .dueAt(fromStart(2h))
                          .remindingAt(fromStart(1h))
                          .played()
                          .dismissed()
                          .add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(1h + 1min));
    dialog.services.database.statements().take();
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.statements().take(),
        QStringList({selectById(id),
            QStringLiteral("update tasks set task_name='task',task_desc='',task_status=0,cat_id=1,"
                           "task_due_date=#1/15/2026 12:00#,task_periority=1,reminder_on=1,"
                           "reminder_date_time=#1/15/2026 11:01#,reminder_sound='',reminder_file='', "
                           "played=0,dismissed=0 where task_id = %1")
                .arg(id)}));
    QCOMPARE(dialog.stored(QStringLiteral("played + dismissed")).toInt(), 0);
}

void TestTaskDetailsSaving::changingTheNameLeavesTheAlertSilent()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database)
                          .dueAt(fromStart(2h))
                          .remindingAt(fromStart(1h))
                          .played()
                          .dismissed()
                          .add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.services.database.statements().take();
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.statements().take(),
        QStringList({selectById(id),
            QStringLiteral("update tasks set task_name='renamed',task_desc='',task_status=0,cat_id=1,"
                           "task_due_date=#1/15/2026 12:00#,task_periority=1,reminder_on=1,"
                           "reminder_date_time=#1/15/2026 11:00#,reminder_sound='',reminder_file='' "
                           "where task_id = %1")
                .arg(id)}));
    QCOMPARE(dialog.stored(QStringLiteral("played + dismissed")).toInt(), 2);
}

void TestTaskDetailsSaving::switchingTheReminderOnLeavesTheAlertSilent()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).played().dismissed().add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.click("chkEnableReminder");
    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("reminder_on")).toInt(), 1);
    QCOMPARE(dialog.stored(QStringLiteral("played + dismissed")).toInt(), 2);
}

void TestTaskDetailsSaving::whatTheAlertPostponedMeanwhileStaysPostponed()
{
    TaskDialog dialog;
    const qint32 id =
        aTask(dialog.services.database).dueAt(fromStart(2h)).remindingAt(fromStart(-1min)).played().add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.services.database.sql(
        QStringLiteral("update tasks set played=0,reminder_date_time='2026-01-15 11:30:00'"));
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.services.database.statements().take();
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.statements().take(),
        QStringList({selectById(id),
            QStringLiteral("update tasks set task_name='renamed',task_desc='',task_status=0,cat_id=1,"
                           "task_due_date=#1/15/2026 12:00#,task_periority=1,reminder_on=1,"
                           "reminder_date_time=#1/15/2026 11:30#,reminder_sound='',reminder_file='' "
                           "where task_id = %1")
                .arg(id)}));
}

void TestTaskDetailsSaving::whatTheAlertDismissedMeanwhileStaysDismissed()
{
    TaskDialog dialog;
    const qint32 id =
        aTask(dialog.services.database).dueAt(fromStart(2h)).remindingAt(fromStart(-1min)).played().add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.services.database.sql(QStringLiteral("update tasks set dismissed=1,reminder_on=0"));
    dialog.setText("txtTask", QStringLiteral("renamed"));
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.rows(
                 QStringLiteral("select task_name,reminder_on,dismissed,reminder_date_time from tasks")),
        (QList<QVariantList>{{QStringLiteral("renamed"), 0LL, 1LL, QStringLiteral("2026-01-15 09:59:00")}}));
}

void TestTaskDetailsSaving::aReminderThatTheUserMovesRingsAgainWhateverTheAlertDidMeanwhile()
{
    TaskDialog dialog;
    const qint32 id =
        aTask(dialog.services.database).dueAt(fromStart(2h)).remindingAt(fromStart(-1min)).played().add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.services.database.sql(QStringLiteral("update tasks set dismissed=1,reminder_on=0"));
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(1h));
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.rows(
                 QStringLiteral("select reminder_on,played,dismissed,reminder_date_time from tasks")),
        (QList<QVariantList>{{1LL, 0LL, 0LL, QStringLiteral("2026-01-15 11:00:00")}}));
}

void TestTaskDetailsSaving::theFactsComeInTheirOrder()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("btnOk");
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
}

void TestTaskDetailsSaving::aSavedTaskCanBeFollowedByAnother()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("btnOk");
    dialog.showValid();
    QCOMPARE(dialog.focused(), QStringLiteral("txtTask"));
    dialog.setText("txtTask", QStringLiteral("second"));
    dialog.click("btnOk");
    QCOMPARE(dialog.services.database.rows(QStringLiteral("select task_name from tasks order by task_id")),
        QList<QVariantList>({{QStringLiteral("task")}, {QStringLiteral("second")}}));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsSaving)
#include "tst_task_details_saving.moc"
