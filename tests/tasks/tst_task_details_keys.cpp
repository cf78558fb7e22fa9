#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

class TestTaskDetailsKeys : public TestCase
{
    Q_OBJECT

private slots:
    void enterSavesFromEveryControlOfAnotherValue_data();
    void enterSavesFromEveryControlOfAnotherValue();
    void enterOnTheKeypadSaves();
    void enterInTheDescriptionBreaksTheLine();
    void enterInAnEmptyDescriptionBreaksTheLine();
    void enterPassesAControlWhoseValueEqualsTheDescription();
    void enterWithNameAndDescriptionEmptyDoesNothing();
    void enterOnAButtonThatEqualsTheDescriptionDoesNotSave();
    void enterRefusesAsOkDoes();
    void enterReportsAFailure();
    void controlEnterIsNotEnter();
    void enterInAnOpenListBelongsToTheList();
    void enterInAnOpenCalendarBelongsToTheCalendar();
    void escapeCancelsFromEveryControl_data();
    void escapeCancelsFromEveryControl();
    void escapeClosesAnOpenListFirst();
    void cancelWritesNothingAndTellsAfterHiding();
    void theCloseBoxHidesAndTellsNothing();
    void theProgramCanCloseIt();
    void aComposedTextIsLeftToTheEdit();
    void tabLeavesTheDescription();
    void pressedMnemonicsLeadToTheirControls();
};

void TestTaskDetailsKeys::enterSavesFromEveryControlOfAnotherValue_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"txtTask", "cmbCategories", "dtpDueDate", "dtpDueTime", "cmbStatus",
             "cmbPeriorities", "chkEnableReminder", "cmbRepeat", "dtpReminderDate", "dtpReminderTime",
             "chkReminderSound", "txtReminderSound", "btnSoundBrowse", "chkReminderFile", "txtReminderFile",
             "btnFileBrowse", "btnOk", "btnCancel"}) {
        QTest::newRow(name) << name;
    }
}

void TestTaskDetailsKeys::enterSavesFromEveryControlOfAnotherValue()
{
    QFETCH(QString, name);
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.click("chkReminderFile");
    dialog.setText("txtReminderSound", QStringLiteral("a.wav"));
    dialog.setText("txtReminderFile", QStringLiteral("run"));
    dialog.form->findChild<QWidget*>(name)->setFocus();
    QCOMPARE(dialog.focused(), name);
    dialog.press(Qt::Key_Return);
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
    QCOMPARE(dialog.stored(QStringLiteral("count(*)")).toInt(), 1);
}

void TestTaskDetailsKeys::enterOnTheKeypadSaves()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.press(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
}

void TestTaskDetailsKeys::enterInTheDescriptionBreaksTheLine()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtDescription", QStringLiteral("one"));
    dialog.widget("txtDescription")->setFocus();
    dialog.press(Qt::Key_End);
    dialog.press(Qt::Key_Return);
    QTest::keyClicks(dialog.widget("txtDescription"), QStringLiteral("two"));
    dialog.press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(dialog.text("txtDescription"), QStringLiteral("one\ntwo\n"));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::enterInAnEmptyDescriptionBreaksTheLine()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.widget("txtDescription")->setFocus();
    dialog.press(Qt::Key_Return);
    QCOMPARE(dialog.text("txtDescription"), QStringLiteral("\n"));
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsKeys::enterPassesAControlWhoseValueEqualsTheDescription()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtDescription", QStringLiteral("task"));
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.form->isVisible());
    dialog.setText("txtDescription", QStringLiteral("Not Started"));
    dialog.widget("cmbStatus")->setFocus();
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.form->isVisible());
    dialog.setText("txtDescription", QStringLiteral("1/15/2026"));
    dialog.widget("dtpDueDate")->setFocus();
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.form->isVisible());
    dialog.setText("txtDescription", QStringLiteral("0"));
    dialog.widget("chkEnableReminder")->setFocus();
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::enterWithNameAndDescriptionEmptyDoesNothing()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    QCOMPARE(dialog.focused(), QStringLiteral("txtTask"));
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
}

void TestTaskDetailsKeys::enterOnAButtonThatEqualsTheDescriptionDoesNotSave()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.setText("txtDescription", QStringLiteral("False"));
    dialog.widget("btnOk")->setFocus();
    dialog.press(Qt::Key_Return);
    QCOMPARE(dialog.services.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 0);
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsKeys::enterRefusesAsOkDoes()
{
    TaskDialog dialog(0);
    dialog.show();
    QTest::keyClicks(dialog.widget("txtTask"), QStringLiteral("task"));
    dialog.services.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("Please select category."));
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.services.dialogs.allUsed());
    QCOMPARE(dialog.focused(), QStringLiteral("cmbCategories"));
}

void TestTaskDetailsKeys::enterReportsAFailure()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database).add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    dialog.services.database.sql(QStringLiteral("delete from tasks"));
    dialog.services.dialogs.expectError(QStringLiteral("The task no longer exists."));
    dialog.press(Qt::Key_Return);
    QVERIFY(dialog.services.dialogs.allUsed());
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsKeys::controlEnterIsNotEnter()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(dialog.form->isVisible());
}

void TestTaskDetailsKeys::enterInAnOpenListBelongsToTheList()
{
    TaskDialog dialog;
    dialog.showValid();
    auto* combo = dialog.control<QComboBox>("cmbStatus");
    combo->setFocus();
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    QTRY_VERIFY(!combo->view()->isVisible());
    QCOMPARE(combo->currentText(), QStringLiteral("In Progress"));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::enterInAnOpenCalendarBelongsToTheCalendar()
{
    TaskDialog dialog;
    dialog.showValid();
    auto* picker = dialog.control<QDateEdit>("dtpDueDate");
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Down, Qt::AltModifier);
    QTest::mouseClick(picker, Qt::LeftButton, {}, QPoint(picker->width() - 5, picker->height() / 2));
    auto* calendar = picker->calendarWidget();
    QTRY_VERIFY(calendar->isVisible());
    auto* days = calendar->findChild<QAbstractItemView*>();
    QVERIFY(days != nullptr);
    QTest::keyClick(days, Qt::Key_Right);
    QTest::keyClick(days, Qt::Key_Return);
    QTRY_VERIFY(!calendar->isVisible());
    QCOMPARE(picker->date(), QDate(2026, 1, 16));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::escapeCancelsFromEveryControl_data()
{
    enterSavesFromEveryControlOfAnotherValue_data();
    QTest::newRow("txtDescription") << "txtDescription";
}

void TestTaskDetailsKeys::escapeCancelsFromEveryControl()
{
    QFETCH(QString, name);
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("chkEnableReminder");
    dialog.click("chkReminderSound");
    dialog.click("chkReminderFile");
    dialog.form->findChild<QWidget*>(name)->setFocus();
    QCOMPARE(dialog.focused(), name);
    dialog.services.dialogs.expectUnsaved(
        QStringLiteral("The changes to 'task' are not saved."), MessageBoxes::Unsaved::Discard);
    dialog.press(Qt::Key_Escape);
    QCOMPARE(dialog.facts, QStringList("cancelled hidden"));
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
}

void TestTaskDetailsKeys::escapeClosesAnOpenListFirst()
{
    TaskDialog dialog;
    dialog.showValid();
    auto* combo = dialog.control<QComboBox>("cmbStatus");
    combo->setFocus();
    combo->showPopup();
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Escape);
    QTRY_VERIFY(!combo->view()->isVisible());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::cancelWritesNothingAndTellsAfterHiding()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.click("btnCancel");
    QCOMPARE(dialog.facts, QStringList("cancelled hidden"));
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
}

void TestTaskDetailsKeys::theCloseBoxHidesAndTellsNothing()
{
    TaskDialog dialog;
    dialog.showValid();
    QVERIFY(!closeBySystem(*dialog.form));
    QVERIFY(!dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
    dialog.form->show();
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
}

void TestTaskDetailsKeys::theProgramCanCloseIt()
{
    TaskDialog dialog;
    dialog.showValid();
    QVERIFY(dialog.form->close());
    QVERIFY(!dialog.form->isVisible());
}

void TestTaskDetailsKeys::aComposedTextIsLeftToTheEdit()
{
    TaskDialog dialog;
    dialog.showValid();
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QCoreApplication::sendEvent(dialog.widget("txtTask"), &composing);
    QVERIFY(dialog.form->isVisible());
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("\u4f60"));
    QCoreApplication::sendEvent(dialog.widget("txtTask"), &composed);
    QVERIFY(dialog.text("txtTask").contains(QStringLiteral("\u4f60")));
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsKeys::tabLeavesTheDescription()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.widget("txtDescription")->setFocus();
    dialog.press(Qt::Key_Tab);
    QCOMPARE(dialog.focused(), QStringLiteral("dtpDueDate"));
    QCOMPARE(dialog.text("txtDescription"), QString());
    dialog.press(Qt::Key_Backtab);
    QCOMPARE(dialog.focused(), QStringLiteral("txtDescription"));
}

void TestTaskDetailsKeys::pressedMnemonicsLeadToTheirControls()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(dialog.focused(), QStringLiteral("txtDescription"));
    dialog.press(Qt::Key_T, Qt::AltModifier);
    QCOMPARE(dialog.focused(), QStringLiteral("txtTask"));
    dialog.press(Qt::Key_E, Qt::AltModifier);
    // A button shows the press for a moment before it is clicked.
    QTRY_COMPARE(dialog.text("chkEnableReminder"), QStringLiteral("1"));
    dialog.press(Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsKeys)
#include "tst_task_details_keys.moc"
