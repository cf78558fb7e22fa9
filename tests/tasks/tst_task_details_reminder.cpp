#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QAccessible>
#include <QCheckBox>

using namespace std::chrono_literals;

class TestTaskDetailsReminder : public TestCase
{
    Q_OBJECT

private slots:
    void enablingCopiesTheDueMoment();
    void enablingByTheKeyboardCopiesTheDueMoment();
    void enablingThroughAssistiveTechnologyCopiesTheDueMoment();
    void pathsAreOpenedThroughAssistiveTechnologyToo();
    void enablingAgainCopiesTheDueMomentAgain();
    void enablingOpensThePickersAndTheTwoBoxes();
    void enablingOpensThePathsOfCheckedBoxesAlone();
    void disablingClosesEverything();
    void disablingKeepsBoxesAndPaths();
    void checkedByTheProgramTheBoxCopiesNothing();
    void theSoundBoxOpensItsPath();
    void theFileBoxOpensItsPath();

private:
    static void toggleAccessibly(const TaskDialog& dialog, const char* name)
    {
        QAccessible::queryAccessibleInterface(dialog.widget(name))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::toggleAction());
    }
};

void TestTaskDetailsReminder::enablingCopiesTheDueMoment()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(100h + 7min));
    dialog.click("chkEnableReminder");
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-19 14:07:00"));
}

void TestTaskDetailsReminder::enablingByTheKeyboardCopiesTheDueMoment()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(2h));
    dialog.widget("chkEnableReminder")->setFocus();
    dialog.press(Qt::Key_Space);
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("1"));
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 12:00:00"));
}

void TestTaskDetailsReminder::enablingThroughAssistiveTechnologyCopiesTheDueMoment()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    dialog.setMoment("dtpDueDate", "dtpDueTime", fromStart(2h));
    toggleAccessibly(dialog, "chkEnableReminder");
    QCOMPARE(dialog.text("chkEnableReminder"), QStringLiteral("1"));
    QVERIFY(dialog.widget("dtpReminderTime")->isEnabled());
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 12:00:00"));
    toggleAccessibly(dialog, "chkEnableReminder");
    QVERIFY(!dialog.widget("dtpReminderTime")->isEnabled());
}

void TestTaskDetailsReminder::pathsAreOpenedThroughAssistiveTechnologyToo()
{
    TaskDialog dialog;
    dialog.showValid();
    toggleAccessibly(dialog, "chkEnableReminder");
    toggleAccessibly(dialog, "chkReminderSound");
    QVERIFY(dialog.widget("txtReminderSound")->isEnabled());
    toggleAccessibly(dialog, "chkReminderFile");
    QVERIFY(dialog.widget("txtReminderFile")->isEnabled());
}

void TestTaskDetailsReminder::enablingAgainCopiesTheDueMomentAgain()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(5h));
    dialog.click("chkEnableReminder");
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 15:00:00"));
    dialog.click("chkEnableReminder");
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 11:00:00"));
}

void TestTaskDetailsReminder::enablingOpensThePickersAndTheTwoBoxes()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    for (const char* name : {"dtpReminderDate", "dtpReminderTime", "lblReminderDate", "lblReminderTime",
             "chkReminderSound", "chkReminderFile"}) {
        QVERIFY2(dialog.widget(name)->isEnabled(), name);
    }
    for (const char* name : {"txtReminderFile", "btnFileBrowse", "txtReminderSound", "btnSoundBrowse"}) {
        QVERIFY2(!dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsReminder::enablingOpensThePathsOfCheckedBoxesAlone()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderFile");
    dialog.click("chkEnableReminder");
    dialog.click("chkEnableReminder");
    QVERIFY(dialog.widget("txtReminderFile")->isEnabled());
    QVERIFY(dialog.widget("btnFileBrowse")->isEnabled());
    QVERIFY(!dialog.widget("txtReminderSound")->isEnabled());
    QVERIFY(!dialog.widget("btnSoundBrowse")->isEnabled());
}

void TestTaskDetailsReminder::disablingClosesEverything()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.click("chkReminderFile");
    dialog.click("chkEnableReminder");
    for (const char* name :
        {"dtpReminderDate", "dtpReminderTime", "lblReminderDate", "lblReminderTime", "chkReminderSound",
            "chkReminderFile", "txtReminderFile", "btnFileBrowse", "txtReminderSound", "btnSoundBrowse"}) {
        QVERIFY2(!dialog.widget(name)->isEnabled(), name);
    }
}

void TestTaskDetailsReminder::disablingKeepsBoxesAndPaths()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.setText("txtReminderSound", QStringLiteral("a.wav"));
    dialog.click("chkEnableReminder");
    QCOMPARE(dialog.text("chkReminderSound"), QStringLiteral("1"));
    QCOMPARE(dialog.text("txtReminderSound"), QStringLiteral("a.wav"));

    dialog.click("btnOk");
    QCOMPARE(dialog.stored(QStringLiteral("reminder_sound")).toString(), QStringLiteral("a.wav"));
    QCOMPARE(dialog.stored(QStringLiteral("reminder_on")).toInt(), 0);
}

void TestTaskDetailsReminder::checkedByTheProgramTheBoxCopiesNothing()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setMoment("dtpReminderDate", "dtpReminderTime", fromStart(5h));
    dialog.control<QCheckBox>("chkEnableReminder")->setChecked(true);
    QCOMPARE(dialog.moment("dtpReminderDate", "dtpReminderTime"), QStringLiteral("2026-01-15 15:00:00"));
}

void TestTaskDetailsReminder::theSoundBoxOpensItsPath()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    QVERIFY(dialog.widget("txtReminderSound")->isEnabled());
    QVERIFY(dialog.widget("btnSoundBrowse")->isEnabled());
    QVERIFY(!dialog.widget("txtReminderFile")->isEnabled());
    dialog.click("chkReminderSound");
    QVERIFY(!dialog.widget("txtReminderSound")->isEnabled());
    QVERIFY(!dialog.widget("btnSoundBrowse")->isEnabled());
}

void TestTaskDetailsReminder::theFileBoxOpensItsPath()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderFile");
    QVERIFY(dialog.widget("txtReminderFile")->isEnabled());
    QVERIFY(dialog.widget("btnFileBrowse")->isEnabled());
    QVERIFY(!dialog.widget("txtReminderSound")->isEnabled());
    dialog.click("chkReminderFile");
    QVERIFY(!dialog.widget("txtReminderFile")->isEnabled());
    QVERIFY(!dialog.widget("btnFileBrowse")->isEnabled());
}

AMBERTASK_TEST_MAIN(TestTaskDetailsReminder)
#include "tst_task_details_reminder.moc"
