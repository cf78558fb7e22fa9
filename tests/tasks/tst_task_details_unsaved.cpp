#include "data/ClsDatabase.h"
#include "support/CaughtError.h"
#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "tasks/TaskDialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTimeEdit>

using Unsaved = MessageBoxes::Unsaved;
using namespace std::chrono_literals;

namespace
{

const QString NotSaved = QStringLiteral("The changes to 'task' are not saved.");

} // namespace

class TestTaskDetailsUnsaved : public TestCase
{
    Q_OBJECT

private slots:
    void anUntouchedFormIsLetGoWithoutAQuestion();
    void anUntouchedTaskIsLetGoWithoutAQuestion();
    void whatIsTakenBackIsNoChange();
    void keptInputStaysAsItIs();
    void discardedInputIsLetGo();
    void savedInputIsStoredAsByOk();
    void aRefusalKeepsTheInputAndDropsTheRequest();
    void aFailureKeepsTheInputAndDropsTheRequest();
    void aHalfTypedTimeIsInput();
    void inputThatWasHiddenWithTheMainWindowIsShownAndAskedAbout();
    void inputThatWasCancelledIsNotAskedAboutAgain_data();
    void inputThatWasCancelledIsNotAskedAboutAgain();
    void aCategoryThatIsGoneIsNoChangeOfTheUsers();
    void escapeOnAnUntouchedFormCancelsAtOnce();
    void escapeOnChangedInputAsks();
    void escapeSavesWhenThatIsTheAnswer();
    void anEscapeThatIsHeldIsPressedOnce();
    void whatEscapeCannotSaveIsReported();
};

void TestTaskDetailsUnsaved::anUntouchedFormIsLetGoWithoutAQuestion()
{
    TaskDialog dialog;
    QVERIFY(dialog.form->letGo());
    dialog.form->EmptyForm();
    dialog.form->selectCategory(2);
    dialog.show();
    dialog.services.database.clock().step(2h);
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::anUntouchedTaskIsLetGoWithoutAQuestion()
{
    TaskDialog dialog;
    const qint32 id = aTask(dialog.services.database)
                          .named(QStringLiteral(" two\nlines "))
                          .describedAs(QStringLiteral("a\u2028b\r\nc"))
                          .withStatus(9)
                          .remindingAt(fromStart(30s))
                          .sounding(QStringLiteral("a.wav"))
                          .add();
    dialog.form->SetTag(static_cast<qint16>(id));
    dialog.show();
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::whatIsTakenBackIsNoChange()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    QTest::keyClicks(dialog.widget("txtTask"), QStringLiteral("x"));
    QTest::keyClick(dialog.widget("txtTask"), Qt::Key_Backspace);
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::keptInputStaysAsItIs()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
    QCOMPARE(dialog.facts, QStringList());
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
}

void TestTaskDetailsUnsaved::discardedInputIsLetGo()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Discard);
    QVERIFY(dialog.form->letGo());
    QCOMPARE(dialog.services.database.statements().take(), QStringList());
}

void TestTaskDetailsUnsaved::savedInputIsStoredAsByOk()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    QVERIFY(dialog.form->letGo());
    QCOMPARE(dialog.stored(QStringLiteral("task_name")).toString(), QStringLiteral("task"));
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::aRefusalKeepsTheInputAndDropsTheRequest()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.control<QComboBox>("cmbCategories")->setCurrentIndex(-1);
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    dialog.services.dialogs.expectTell(
        MessageBoxes::Icon::Exclamation, QStringLiteral("Please select category."));
    QVERIFY(!dialog.form->letGo());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
    QCOMPARE(dialog.focused(), QStringLiteral("cmbCategories"));
}

void TestTaskDetailsUnsaved::aFailureKeepsTheInputAndDropsTheRequest()
{
    TaskDialog dialog;
    dialog.showValid();
    Connection other = ClsDatabase(dialog.services.database.engine()).Connect();
    other.open();
    other.execute(QStringLiteral("update settings set skin='Aqua'"));
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    QVERIFY(caught<RuntimeError>([&] { dialog.form->letGo(); }));
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Discard);
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::aHalfTypedTimeIsInput()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    auto* time = dialog.control<QTimeEdit>("dtpDueTime");
    time->setKeyboardTracking(false);
    time->setFocus();
    time->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(time, QStringLiteral("2"));
    dialog.services.dialogs.expectUnsaved(
        QStringLiteral("The changes to the task are not saved."), Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
}

void TestTaskDetailsUnsaved::inputThatWasHiddenWithTheMainWindowIsShownAndAskedAbout()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.form->hide();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
}

void TestTaskDetailsUnsaved::inputThatWasCancelledIsNotAskedAboutAgain_data()
{
    QTest::addColumn<bool>("byTheCloseBox");
    QTest::newRow("button") << false;
    QTest::newRow("close box") << true;
}

void TestTaskDetailsUnsaved::inputThatWasCancelledIsNotAskedAboutAgain()
{
    QFETCH(bool, byTheCloseBox);
    TaskDialog dialog;
    dialog.showValid();
    if (byTheCloseBox) {
        QVERIFY(!closeBySystem(*dialog.form));
    } else {
        dialog.click("btnCancel");
    }
    QVERIFY(!dialog.form->isVisible());
    QVERIFY(dialog.form->letGo());
    QVERIFY(!dialog.form->isVisible());
}

void TestTaskDetailsUnsaved::aCategoryThatIsGoneIsNoChangeOfTheUsers()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.form->selectCategory(2);
    dialog.show();
    dialog.services.database.sql(QStringLiteral("delete from categories where cat_id = 2"));
    dialog.form->reloadCategories();
    QCOMPARE(dialog.control<QComboBox>("cmbCategories")->currentIndex(), -1);
    QVERIFY(dialog.form->letGo());
    dialog.control<QComboBox>("cmbCategories")->setCurrentIndex(0);
    dialog.form->reloadCategories();
    dialog.services.dialogs.expectUnsaved(
        QStringLiteral("The changes to the task are not saved."), Unsaved::Keep);
    QVERIFY(!dialog.form->letGo());
}

void TestTaskDetailsUnsaved::escapeOnAnUntouchedFormCancelsAtOnce()
{
    TaskDialog dialog;
    dialog.form->EmptyForm();
    dialog.show();
    dialog.press(Qt::Key_Escape);
    QCOMPARE(dialog.facts, QStringList("cancelled hidden"));
}

void TestTaskDetailsUnsaved::escapeOnChangedInputAsks()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Keep);
    dialog.press(Qt::Key_Escape);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Discard);
    dialog.press(Qt::Key_Escape);
    QCOMPARE(dialog.facts, QStringList("cancelled hidden"));
    QVERIFY(dialog.form->letGo());
}

void TestTaskDetailsUnsaved::escapeSavesWhenThatIsTheAnswer()
{
    TaskDialog dialog;
    dialog.showValid();
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    dialog.press(Qt::Key_Escape);
    QCOMPARE(dialog.facts, QStringList({"taskStored shown", "taskSaved hidden"}));
}

void TestTaskDetailsUnsaved::anEscapeThatIsHeldIsPressedOnce()
{
    TaskDialog dialog;
    dialog.showValid();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(dialog.widget("txtTask"), &held);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.facts, QStringList());
}

void TestTaskDetailsUnsaved::whatEscapeCannotSaveIsReported()
{
    TaskDialog dialog;
    dialog.showValid();
    Connection other = ClsDatabase(dialog.services.database.engine()).Connect();
    other.open();
    other.execute(QStringLiteral("update settings set skin='Aqua'"));
    dialog.services.dialogs.expectUnsaved(NotSaved, Unsaved::Save);
    dialog.services.dialogs.expectError(QStringLiteral("locked"));
    dialog.press(Qt::Key_Escape);
    QVERIFY(dialog.form->isVisible());
    QCOMPARE(dialog.text("txtTask"), QStringLiteral("task"));
}

AMBERTASK_TEST_MAIN(TestTaskDetailsUnsaved)
#include "tst_task_details_unsaved.moc"
