#include "app/TasksPage.h"
#include "app/UndoBar.h"
#include "data/KeptCopies.h"
#include "reminders/frmAlerts.h"
#include "settings/frmCopies.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/ProgramFixture.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>

using namespace std::chrono_literals;

namespace
{

/// The whole program with three tasks and, where that is wanted, no place for copies.
struct CopyingProgram : ProgramFixture {
    CopyingProgram()
    {
        for (const char* name : {"one", "two", "three"}) {
            aTask(database).named(QLatin1String(name)).add();
        }
    }

    void refuseCopies() { writeText(database.folder() + QStringLiteral("/copies"), "not a folder"); }
    void begin()
    {
        start();
        program.loadDialogs();
    }
    QList<KeptCopy> copies() { return KeptCopies(database.engine()).list(); }
    QString said(const char* line) { return control<QuietLine>(main(), line)->said(); }
    void showPage(int page) { control<QTabWidget>(main(), "tabMain")->setCurrentIndex(page); }
    /// After what is queued behind a change.
    void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    void addTask(const QString& name)
    {
        press(main(), "btnTaskAdd");
        control<QLineEdit>(program.taskDetails(), "txtTask")->setText(name);
        control<QComboBox>(program.taskDetails(), "cmbCategories")->setCurrentIndex(0);
        press(program.taskDetails(), "btnOk");
        settle();
    }
    frmCopies* form()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<frmCopies*>(window)) {
                return found;
            }
        }
        return nullptr;
    }
    void openForm()
    {
        showPage(3);
        press(main(), "btnCopies");
        settle();
    }
    void restoreSelected()
    {
        dialogs.expectAsk(
            QStringLiteral(
                "Are you sure you want to restore the copy of %1? Your data as it is now is kept as "
                "another copy.")
                .arg(
                    control<GridView>(*form(), "grdCopies")->model()->index(selected(), 0).data().toString()),
            true);
        press(*form(), "btnRestoreCopy");
    }
    int selected() { return control<GridView>(*form(), "grdCopies")->selectedRow(); }
    QString names() const
    {
        return database.sql(QStringLiteral("select group_concat(task_name, ' ') from tasks")).toString();
    }
};

const QString Note = QStringLiteral("No copy was kept: it is not a folder");

} // namespace

class ProgramCopiesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aStartAndItsTicksMakeNoCopy()
    {
        CopyingProgram f;
        f.begin();
        f.program.alerts().tmrTasksChecker_Timer();
        for (int page = 3; page >= 0; --page) {
            f.showPage(page);
        }
        f.settle();
        QVERIFY(!QFileInfo::exists(f.database.folder() + QStringLiteral("/copies")));
    }

    void theFirstChangeOfTheDayIsPrecededByACopy()
    {
        CopyingProgram f;
        f.begin();
        const QByteArray before = contentOf(f.database.dataFile());
        f.addTask(QStringLiteral("four"));
        QCOMPARE(f.copies().size(), 1);
        QVERIFY(contentOf(f.copies().first().path) == before);
        QCOMPARE(f.said("lblTasksNote"), QString());
        f.addTask(QStringLiteral("five"));
        QCOMPARE(f.copies().size(), 1);
    }

    void aSoundedReminderIsAChange()
    {
        CopyingProgram f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.begin();
        QCOMPARE(f.copies().size(), 1);
        QCOMPARE(f.copies().first().occasion, CopyOccasion::Day);
    }

    void thatThereIsNoCopyIsSaidOnceOnThePageInFront()
    {
        CopyingProgram f;
        f.refuseCopies();
        f.begin();
        f.addTask(QStringLiteral("four"));
        QCOMPARE(f.said("lblTasksNote"), Note);
        QCOMPARE(f.names(), QStringLiteral("one two three four"));
        f.addTask(QStringLiteral("five"));
        QCOMPARE(f.said("lblTasksNote"), QString());
        f.database.clock().step(24h);
        f.addTask(QStringLiteral("six"));
        QCOMPARE(f.said("lblTasksNote"), Note);
    }

    void everyPageHasALineForIt_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("line");
        QTest::newRow("tasks") << 0 << QStringLiteral("lblTasksNote");
        QTest::newRow("categories") << 1 << QStringLiteral("lblCategoriesNote");
        QTest::newRow("settings") << 2 << QStringLiteral("lblSettingsNote");
        QTest::newRow("maintenance") << 3 << QStringLiteral("lblMaintenanceNote");
    }

    void everyPageHasALineForIt()
    {
        QFETCH(const int, page);
        QFETCH(const QString, line);
        CopyingProgram f;
        f.refuseCopies();
        aTask(f.database).remindingAt(f.database.clock().now() + 1min).add();
        f.begin();
        f.showPage(page);
        f.database.clock().step(2min);
        f.program.alerts().tmrTasksChecker_Timer();
        f.settle();
        QCOMPARE(f.said(qPrintable(line)), Note);
    }

    void whatTheChangeSaysIsSaidFirst()
    {
        CopyingProgram f;
        f.refuseCopies();
        f.begin();
        f.control<QComboBox>(f.main(), "cmbCategories")->setCurrentIndex(2);
        emit f.control<QComboBox>(f.main(), "cmbCategories")->activated(2);
        f.addTask(QStringLiteral("four"));
        QCOMPARE(f.said("lblTasksNote"),
            QStringLiteral("The task \"four\" was added; the filters do not show it. ") + Note);
    }

    void theFormListsTheCopies()
    {
        CopyingProgram f;
        f.begin();
        f.addTask(QStringLiteral("four"));
        QVERIFY(f.form() == nullptr);
        f.openForm();
        QVERIFY(f.form() != nullptr && f.form()->isVisible());
        QCOMPARE(f.control<GridView>(*f.form(), "grdCopies")->model()->rowCount(), 1);
        QTRY_COMPARE(f.control<GridView>(*f.form(), "grdCopies")->model()->index(0, 3).data().toString(),
            QStringLiteral("1 task added"));
        // It follows what happens in the other windows.
        f.addTask(QStringLiteral("five"));
        QTRY_COMPARE(f.control<GridView>(*f.form(), "grdCopies")->model()->index(0, 3).data().toString(),
            QStringLiteral("2 tasks added"));
        frmCopies* form = f.form();
        form->close();
        f.openForm();
        QCOMPARE(f.form(), form);
    }

    void aDeletedTaskIsSeenInTheListOfCopies()
    {
        CopyingProgram f;
        f.begin();
        f.addTask(QStringLiteral("four"));
        f.openForm();
        const QAbstractItemModel& copies = *f.control<GridView>(*f.form(), "grdCopies")->model();
        QTRY_COMPARE(copies.index(0, 3).data().toString(), QStringLiteral("1 task added"));
        f.grid(f.main())->selectOnly(3);
        f.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.press(f.main(), "btnTaskDelete");
        QTRY_VERIFY(copies.index(0, 3).data().toString() != QStringLiteral("1 task added"));
        QCOMPARE(f.names(), QStringLiteral("one two three"));
    }

    void aCopyIsRestoredAsABackupIs()
    {
        CopyingProgram f;
        f.begin();
        f.addTask(QStringLiteral("four"));
        const QByteArray replaced = contentOf(f.database.dataFile());
        f.database.clock().step(1h);
        f.openForm();
        const QString copy = f.copies().first().path;
        f.restoreSelected();
        QCOMPARE(f.names(), QStringLiteral("one two three"));
        QCOMPARE(f.grid(f.main())->model()->rowCount(), 3);
        QVERIFY(!f.form()->isVisible());
        QVERIFY2(f.said("lblMaintenanceNote")
                     .startsWith(
                         QStringLiteral("Restored 3 tasks from \"%1\"").arg(QDir::toNativeSeparators(copy))),
            qPrintable(f.said("lblMaintenanceNote")));
        QVERIFY(f.program.alerts().findChild<QTimer*>(QStringLiteral("tmrTasksChecker"))->isActive());
        QVERIFY(!f.main().tasksPage()->undoBar().isVisible());
        QCOMPARE(f.copies().size(), 2);
        QCOMPARE(f.copies().first().occasion, CopyOccasion::Restore);
        QVERIFY(contentOf(f.copies().first().path) == replaced);
        // And back again.
        f.openForm();
        f.restoreSelected();
        QCOMPARE(f.names(), QStringLiteral("one two three four"));
    }

    void aCopyThatCannotBeRestoredIsSaidInTheForm()
    {
        CopyingProgram f;
        f.begin();
        f.addTask(QStringLiteral("four"));
        f.openForm();
        writeText(f.copies().first().path, "Dear Sir or Madam");
        f.restoreSelected();
        QVERIFY(f.form()->isVisible());
        const QString said = f.control<QuietLine>(*f.form(), "lblCopiesNote")->said();
        QVERIFY2(said.startsWith(QLatin1String("Nothing was restored: ")), qPrintable(said));
        QCOMPARE(f.names(), QStringLiteral("one two three four"));
        QCOMPARE(f.said("lblMaintenanceNote"), QString());
        QVERIFY(f.program.alerts().findChild<QTimer*>(QStringLiteral("tmrTasksChecker"))->isActive());
    }

    void theFormGoesWithTheMainWindowAndIsAboveItWhereThatIsOnTop()
    {
        CopyingProgram f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.begin();
        f.openForm();
        QVERIFY(isTopmost(f.form()));
        f.menu("mnuShow")->trigger();
        QVERIFY(!f.form()->isVisible());
    }
};

AMBERTASK_TEST_MAIN(ProgramCopiesTest)
#include "tst_program_copies.moc"
