#include "ProgramFixture.h"
#include "app/UndoBar.h"
#include "data/DataFileCopies.h"
#include "reminders/frmAlerts.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/QuietLine.h"

#include <QComboBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <array>

using namespace std::chrono_literals;

namespace
{

/// The program with two tasks, one of which reminds.
struct UndoingProgram : ProgramFixture {
    UndoingProgram()
    {
        aTask(database).named(QStringLiteral("first")).remindingAt(database.clock().now() - 1min).add();
        aTask(database).named(QStringLiteral("second")).add();
        start();
        program.loadDialogs();
    }
    UndoBar* bar() { return control<UndoBar>(main(), "barUndo"); }
    QString said() { return control<QuietLine>(main(), "lblUndo")->said(); }
    void pressUndo() { press(*bar(), "btnUndo"); }
    void deleteRow(int row)
    {
        grid(main())->selectOnly(row);
        dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        press(main(), "btnTaskDelete");
    }
    int rows() { return grid(main())->model()->rowCount(); }
};

} // namespace

/// Taking back what was done, through all windows.
class ProgramUndoTest : public TestCase
{
    Q_OBJECT

private slots:
    void thereIsNoBarBeforeAChange()
    {
        UndoingProgram f;
        QVERIFY(f.bar() == nullptr);
    }

    void aDeletedTaskComesBackIntoTheList()
    {
        UndoingProgram f;
        f.deleteRow(0);
        QCOMPARE(f.rows(), 1);
        QVERIFY(f.bar()->isVisible());
        QCOMPARE(f.said(), QStringLiteral("1 task deleted"));
        f.pressUndo();
        QCOMPARE(f.rows(), 2);
        QCOMPARE(f.said(), QStringLiteral("Undone: 1 task deleted"));
        QVERIFY(!f.control<QPushButton>(f.main(), "btnUndo")->isEnabled());
        f.press(*f.bar(), "btnRedo");
        QCOMPARE(f.rows(), 1);
        QCOMPARE(f.said(), QStringLiteral("1 task deleted"));
    }

    void theBarSaysWhatItTakesBackAsLongAsItIsThere()
    {
        UndoingProgram f;
        f.deleteRow(0);
        auto* line = f.control<QuietLine>(f.main(), "lblUndo");
        auto* undo = f.control<QPushButton>(f.main(), "btnUndo");
        QTest::keyClick(undo, Qt::Key_Home);
        QCOMPARE(line->shown(), QStringLiteral("1 task deleted"));
        f.pressUndo();
        QTest::keyClick(undo, Qt::Key_Home);
        QCOMPARE(line->shown(), QStringLiteral("Undone: 1 task deleted"));
    }

    void aDismissedReminderComesBackIntoTheAlert()
    {
        UndoingProgram f;
        QVERIFY(f.program.alerts().isVisible());
        f.press(f.program.alerts(), "btnDismiss");
        QVERIFY(!f.program.alerts().isVisible());
        QCOMPARE(f.said(), QStringLiteral("1 reminder dismissed"));
        f.pressUndo();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.grid(f.program.alerts())->model()->rowCount(), 1);
    }

    void allDismissedRemindersComeBack()
    {
        UndoingProgram f;
        f.database.sql(
            QStringLiteral("update tasks set reminder_on=1,reminder_date_time='2026-01-15 09:00:00'"));
        f.program.alerts().tmrTasksChecker_Timer();
        f.press(f.program.alerts(), "btnDismissAll");
        QCOMPARE(f.said(), QStringLiteral("2 reminders dismissed"));
        f.pressUndo();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.grid(f.program.alerts())->model()->rowCount(), 2);
    }

    void aDeletedCategoryComesBackIntoAllLists()
    {
        UndoingProgram f;
        auto* list = f.control<QAbstractItemView>(f.main(), "lstViewCategories");
        const int categories = list->model()->rowCount();
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(1);
        list->selectionModel()->select(list->model()->index(0, 0), QItemSelectionModel::ClearAndSelect);
        const QString name = list->model()->index(0, 0).data().toString();
        // Of the filters, the page Maintenance and the task dialog; the first two begin with "All".
        const std::array combos{f.control<QComboBox>(f.main(), "cmbCategories"),
            f.control<QComboBox>(f.main(), "cmbCategoriesMaintenance"),
            f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")};
        const auto expectInCombos = [&](int count, bool isThere) {
            for (const QComboBox* combo : combos) {
                QCOMPARE(combo->count(), combo == combos.back() ? count : count + 1);
                QCOMPARE(combo->findText(name) >= 0, isThere);
            }
        };
        expectInCombos(categories, true);
        f.dialogs.expectAsk(
            QStringLiteral("Are you sure you want to delete '%1' category, all tasks under this "
                           "category will be deleted?")
                .arg(name),
            true);
        f.press(f.main(), "btnDeleteCat");
        QCOMPARE(list->model()->rowCount(), categories - 1);
        expectInCombos(categories - 1, false);
        QCOMPARE(f.rows(), 0);
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(0);
        QVERIFY(f.bar()->isVisible());
        f.pressUndo();
        QCOMPARE(list->model()->rowCount(), categories);
        expectInCombos(categories, true);
        QCOMPARE(f.rows(), 2);
    }

    void anUndoShowsItsTasksThoughNoPictureNumberCanBeWritten()
    {
        UndoingProgram f;
        f.deleteRow(0);
        f.database.sql(QStringLiteral("update categories set custom_icon=1,cat_icon_name='icon5.gif'"));
        // Refuses the numbers of all pictures but one.
        f.database.sql(
            QStringLiteral("create unique index refuse on categories(custom_icon) where cat_icon>20"));
        f.pressUndo();
        QCOMPARE(f.rows(), 2);
        QCOMPARE(f.said(), QStringLiteral("Undone: 1 task deleted"));
    }

    void whatCannotBeTakenBackIsSaidInTheBar()
    {
        UndoingProgram f;
        f.press(f.program.alerts(), "btnDismiss");
        f.database.sql(QStringLiteral("update tasks set dismissed=0"));
        f.pressUndo();
        QVERIFY(f.bar()->isVisible());
        QCOMPARE(f.said(), QStringLiteral("Not undone: It has been changed since."));
        QVERIFY(!f.control<QWidget>(f.main(), "btnUndo")->isEnabled());
        QVERIFY(!f.control<QWidget>(f.main(), "btnRedo")->isVisible());
        auto* line = f.control<QuietLine>(f.main(), "lblUndo");
        line->hush();
        QCOMPARE(line->shown(), QString());
    }

    void aMissingDataFileIsSaidInTheBar()
    {
        UndoingProgram f;
        f.deleteRow(0);
        QVERIFY(QFile::rename(f.database.dataFile(), f.database.dataFile() + u'x'));
        f.pressUndo();
        QVERIFY(f.said().contains(QLatin1String("does not exist")));
        QVERIFY(QFile::rename(f.database.dataFile() + u'x', f.database.dataFile()));
        f.pressUndo();
        QCOMPARE(f.rows(), 2);
    }

    void aRestoreLeavesNothingToUndo()
    {
        UndoingProgram f;
        const QTemporaryDir elsewhere;
        const QString backup = elsewhere.filePath(QStringLiteral("b.abk"));
        DataFileCopies(f.database.engine()).backUpTo(backup);
        f.deleteRow(0);
        f.dialogs.expectOpen(backup);
        f.press(f.main(), "btnRestore");
        QCOMPARE(f.rows(), 2);
        QVERIFY(!f.bar()->isVisible());
        f.bar()->undo();
        QCOMPARE(f.rows(), 2);
    }

    void closingTheBarGivesTheFocusToTheList()
    {
        UndoingProgram f;
        f.main().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        f.deleteRow(0);
        auto* close = f.control<QWidget>(f.main(), "btnUndoClose");
        close->setFocus();
        QTest::keyClick(close, Qt::Key_Space);
        QVERIFY(!f.bar()->isVisible());
        QVERIFY(f.grid(f.main())->hasFocus());
    }

    void theKeysGoToTheOtherButtonOfTheBar()
    {
        UndoingProgram f;
        f.main().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        f.deleteRow(0);
        auto* undo = f.control<QWidget>(f.main(), "btnUndo");
        auto* redo = f.control<QWidget>(f.main(), "btnRedo");
        undo->setFocus();
        QTest::keyClick(undo, Qt::Key_Space);
        QCOMPARE(f.rows(), 2);
        QCOMPARE(f.main().focusWidget(), redo);
        QTest::keyClick(redo, Qt::Key_Space);
        QCOMPARE(f.rows(), 1);
        QCOMPARE(f.main().focusWidget(), undo);
    }

    void theNextChangeShowsTheBarAgain()
    {
        UndoingProgram f;
        f.deleteRow(0);
        f.control<QAbstractButton>(f.main(), "btnUndoClose")->click();
        f.deleteRow(0);
        QVERIFY(f.bar()->isVisible());
    }
};

AMBERTASK_TEST_MAIN(ProgramUndoTest)
#include "tst_program_undo.moc"
