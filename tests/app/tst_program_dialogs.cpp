#include "ProgramFixture.h"
#include "categories/frmCategoryDetails.h"
#include "reminders/frmAlerts.h"
#include "settings/MaintenancePage.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/QuietLine.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTimeEdit>
#include <algorithm>

using namespace std::chrono_literals;

class ProgramDialogsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aNewTaskOnTheAllFilterHasNoCategory()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskAdd");
        QVERIFY(f.program.taskDetails().isVisible());
        QCOMPARE(f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")->currentIndex(), -1);
        QCOMPARE(f.program.taskDetails().windowHandle()->transientParent(), f.main().windowHandle());
    }

    void aNewTaskOnAFilteredListHasItsCategory()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        auto* filter = f.control<QComboBox>(f.main(), "cmbCategories");
        filter->setCurrentIndex(2);
        f.press(f.main(), "btnTaskAdd");
        QCOMPARE(f.control<QComboBox>(f.program.taskDetails(), "cmbCategories")->currentText(),
            filter->currentText());
    }

    void withAlwaysOnTopTheTaskDialogIsTopmostToo()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.start();
        f.press(f.main(), "btnTaskAdd");
        QVERIFY(isTopmost(&f.program.taskDetails()));
    }

    void aMinimizedWindowComesBackWithTheTaskDialogThatIsOpen()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskAdd");
        QVERIFY(f.program.taskDetails().isVisible());
        f.main().showMinimized();
        f.menu("mnuShow")->trigger();
        QVERIFY(!f.main().isMinimized());
        QVERIFY(f.program.taskDetails().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Hide"));
    }

    void theItemOpenedFromTheAlertIsOwnedByItAndNeverMadeTopmost()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        aTask(f.database).named(QStringLiteral("call")).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        QVERIFY(f.program.alerts().isVisible());
        QVERIFY(isTopmost(&f.program.alerts()));
        f.press(f.program.alerts(), "btnOpenItem");
        QVERIFY(f.program.taskDetails().isVisible());
        QVERIFY(!isTopmost(&f.program.taskDetails()));
        QCOMPARE(
            f.program.taskDetails().windowHandle()->transientParent(), f.program.alerts().windowHandle());
        QCOMPARE(f.control<QLineEdit>(f.program.taskDetails(), "txtTask")->text(), QStringLiteral("call"));
    }

    void cancelGivesTheFocusToTheAlertWhileTheMainWindowIsHidden()
    {
        ProgramFixture f;
        aTask(f.database).remindingAt(f.database.clock().now() - 1min).add();
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        f.program.loadDialogs();
        f.press(f.program.alerts(), "btnOpenItem");
        f.press(f.program.taskDetails(), "btnCancel");
        QVERIFY(!f.program.taskDetails().isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), f.grid(f.program.alerts()));
    }

    void cancelGivesTheFocusToTheListOfTheMainWindow()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskAdd");
        f.press(f.program.taskDetails(), "btnCancel");
        QTRY_COMPARE(QApplication::focusWidget(), f.grid(f.main()));
    }

    void anEditedTaskThatTheFiltersHideLeavesItsPlace_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("next");
        QTest::newRow("in the midst") << 1 << 1;
        QTest::newRow("last") << 2 << 1;
    }
    void anEditedTaskThatTheFiltersHideLeavesItsPlace()
    {
        QFETCH(const int, row);
        QFETCH(const int, next);
        ProgramFixture f;
        for (const char* name : {"a", "b", "c"}) {
            aTask(f.database).named(QString::fromLatin1(name)).add();
        }
        f.start();
        auto* filter = f.control<QComboBox>(f.main(), "cmbStatus");
        filter->setCurrentIndex(1);
        emit filter->activated(1);
        const GridView& grid = *f.grid(f.main());
        f.grid(f.main())->selectOnly(row);
        f.press(f.main(), "btnTaskEdit");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QComboBox>(dialog, "cmbStatus")->setCurrentIndex(2);
        f.press(dialog, "btnOk");
        QCOMPARE(grid.model()->rowCount(), 2);
        QCOMPARE(grid.currentIndex().row(), next);
    }

    void aNewTaskThatTheFiltersHideIsToldAtTheFootOfThePage()
    {
        ProgramFixture f;
        f.start();
        auto* filter = f.control<QComboBox>(f.main(), "cmbStatus");
        const auto showStatus = [filter](int index) {
            filter->setCurrentIndex(index);
            emit filter->activated(index);
        };
        auto* line = f.control<QuietLine>(f.main(), "lblTasksNote");
        frmTaskDetails& dialog = f.program.taskDetails();
        const auto add = [&](const QString& name) {
            f.press(f.main(), "btnTaskAdd");
            f.control<QLineEdit>(dialog, "txtTask")->setText(name);
            f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
            f.press(dialog, "btnOk");
        };
        add(QStringLiteral("seen"));
        QCOMPARE(line->said(), QString());
        showStatus(3);
        add(QStringLiteral(" <b>hidden</b> "));
        QCOMPARE(
            line->said(), QStringLiteral("The task \"<b>hidden</b>\" was added; the filters do not show it"));
        // Who edits a task knows what he has changed.
        showStatus(1);
        QCOMPARE(line->said(), QString());
        f.grid(f.main())->selectOnly(0);
        f.press(f.main(), "btnTaskEdit");
        f.control<QComboBox>(dialog, "cmbStatus")->setCurrentIndex(2);
        f.press(dialog, "btnOk");
        QCOMPARE(line->said(), QString());
    }

    void aSavedTaskDueAtOnceIsListedByAVisibleAlertWithoutWaiting()
    {
        ProgramFixture f;
        aTask(f.database).named(QStringLiteral("first")).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        QCOMPARE(f.program.alerts().windowTitle(), QStringLiteral("1 Reminder"));
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("second"));
        f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
        f.control<QCheckBox>(dialog, "chkEnableReminder")->click();
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(f.program.alerts().windowTitle(), QStringLiteral("2 Reminders"));
        QCOMPARE(f.grid(f.main())->model()->rowCount(), 2);
    }

    void aTaskThatIsAddedOrEditedIsTheCurrentRow()
    {
        ProgramFixture f;
        for (const char* name : {"a", "c", "d"}) {
            aTask(f.database).named(QLatin1String(name)).add();
        }
        f.start();
        auto* sort = f.control<QComboBox>(f.main(), "cmbSort");
        sort->setCurrentIndex(1);
        emit sort->activated(1);
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("b"));
        f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
        f.press(dialog, "btnOk");
        QCOMPARE(f.grid(f.main())->currentIndex().row(), 1);
        QCOMPARE(f.grid(f.main())->selectedRow(), -1);
        QTest::keyClick(f.grid(f.main()), Qt::Key_Down);
        QCOMPARE(f.grid(f.main())->selectedRow(), 2);
        f.press(f.main(), "btnTaskEdit");
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("e"));
        f.press(dialog, "btnOk");
        QCOMPARE(f.grid(f.main())->currentIndex().row(), 3);
        QTest::keyClick(f.grid(f.main()), Qt::Key_Up);
        QCOMPARE(f.grid(f.main())->selectedRow(), 2);
    }

    void unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew_data()
    {
        QTest::addColumn<QString>("request");
        QTest::newRow("add") << QStringLiteral("btnTaskAdd");
        QTest::newRow("edit") << QStringLiteral("btnTaskEdit");
        QTest::newRow("open item") << QStringLiteral("btnOpenItem");
    }

    void unsavedInputIsAskedAboutBeforeTheDialogIsFilledAnew()
    {
        QFETCH(QString, request);
        ProgramFixture f;
        aTask(f.database).named(QStringLiteral("call")).remindingAt(f.database.clock().now() - 1min).add();
        f.start();
        f.program.loadDialogs();
        QWidget& from =
            request == QLatin1String("btnOpenItem") ? static_cast<QWidget&>(f.program.alerts()) : f.main();
        const QByteArray button = request.toLatin1();
        f.grid(f.main())->selectOnly(0);
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        auto* name = f.control<QLineEdit>(dialog, "txtTask");
        name->setText(QStringLiteral("half"));
        const QString text = QStringLiteral("The changes to 'half' are not saved.");
        f.dialogs.expectUnsaved(text, MessageBoxes::Unsaved::Keep);
        f.press(from, button);
        QCOMPARE(name->text(), QStringLiteral("half"));
        QVERIFY(dialog.isVisible());
        f.dialogs.expectUnsaved(text, MessageBoxes::Unsaved::Discard);
        f.press(from, button);
        QCOMPARE(name->text(), request == QLatin1String("btnTaskAdd") ? QString() : QStringLiteral("call"));
        QVERIFY(dialog.isVisible());
        f.press(from, button);
        QVERIFY(f.dialogs.allUsed());
    }

    void whatIsSavedBeforeTheDialogIsFilledAnewIsInTheList()
    {
        ProgramFixture f;
        aTask(f.database).named(QStringLiteral("call")).add();
        f.start();
        f.grid(f.main())->selectOnly(0);
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        f.control<QLineEdit>(dialog, "txtTask")->setText(QStringLiteral("new"));
        f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(0);
        f.dialogs.expectUnsaved(
            QStringLiteral("The changes to 'new' are not saved."), MessageBoxes::Unsaved::Save);
        f.press(f.main(), "btnTaskEdit");
        QCOMPARE(f.grid(f.main())->model()->rowCount(), 2);
        QVERIFY(dialog.isVisible());
        QCOMPARE(f.control<QLineEdit>(dialog, "txtTask")->text(), QStringLiteral("call"));
    }

    void inputThatWentWithTheMainWindowIsNotLost()
    {
        ProgramFixture f;
        f.start();
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        auto* name = f.control<QLineEdit>(dialog, "txtTask");
        name->setText(QStringLiteral("half"));
        f.menu("mnuShow")->trigger();
        QVERIFY(!dialog.isVisible());
        f.menu("mnuShow")->trigger();
        QVERIFY(!dialog.isVisible());
        f.dialogs.expectUnsaved(
            QStringLiteral("The changes to 'half' are not saved."), MessageBoxes::Unsaved::Keep);
        f.press(f.main(), "btnTaskAdd");
        QVERIFY(dialog.isVisible());
        QCOMPARE(name->text(), QStringLiteral("half"));
    }

    void theImportWindowGoesWithTheMainWindow()
    {
        ProgramFixture f;
        f.start();
        f.exchange.prepared = samplePlan();
        f.main().tabs().setCurrentWidget(f.main().maintenancePage());
        f.dialogs.expectOpen(QStringLiteral("/home/anna/garden.ics"));
        f.press(f.main(), "btnImport");
        const auto isImportShown = [] {
            const QWidgetList windows = QApplication::topLevelWidgets();
            return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
                return window->objectName() == QLatin1String("frmImport") && window->isVisible();
            });
        };
        QVERIFY(isImportShown());
        f.menu("mnuShow")->trigger();
        QVERIFY(!isImportShown());
    }

    void theTypicalEventRunsFromStartToEnd()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnTaskAdd");
        frmTaskDetails& dialog = f.program.taskDetails();
        QTest::keyClicks(f.control<QLineEdit>(dialog, "txtTask"), QStringLiteral("Call Bob's office"));
        f.control<QComboBox>(dialog, "cmbCategories")->setCurrentIndex(1);
        f.control<QCheckBox>(dialog, "chkEnableReminder")->click();
        f.control<QTimeEdit>(dialog, "dtpReminderTime")->setTime(QTime(10, 5));
        f.control<QCheckBox>(dialog, "chkReminderSound")->click();
        f.control<QLineEdit>(dialog, "txtReminderSound")->setText(QStringLiteral("/sounds/bell.wav"));
        f.control<QCheckBox>(dialog, "chkReminderFile")->click();
        f.control<QLineEdit>(dialog, "txtReminderFile")->setText(QStringLiteral("/programs/back up.sh"));
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(
            f.grid(f.main())->model()->index(0, 1).data().toString(), QStringLiteral("Call Bob's office"));

        frmAlerts& alerts = f.program.alerts();
        alerts.tmrTasksChecker_Timer();
        QVERIFY(!alerts.isVisible());
        f.database.clock().step(5min);
        alerts.tmrTasksChecker_Timer();
        QVERIFY(alerts.isVisible());
        QCOMPARE(alerts.windowTitle(), QStringLiteral("1 Reminder"));
        QCOMPARE(f.played, QStringList{QStringLiteral("/sounds/bell.wav")});
        QCOMPARE(f.shell.started, QStringList{QStringLiteral("/programs/back up.sh")});
        alerts.tmrTasksChecker_Timer();
        QCOMPARE(f.played.size(), 1);
        QCOMPARE(f.shell.started.size(), 1);
        QCOMPARE(f.database.sql(QStringLiteral("select played from tasks")).toInt(), 1);

        f.press(alerts, "btnDismiss");
        QVERIFY(!alerts.isVisible());
        QCOMPARE(f.database.sql(QStringLiteral("select dismissed from tasks")).toInt(), 1);
        QCOMPARE(f.database.sql(QStringLiteral("select reminder_on from tasks")).toInt(), 0);
        QVERIFY(f.grid(f.main())->model()->index(0, 5).data(Qt::DecorationRole).value<QIcon>().isNull());
    }

    void aSavedCategoryAppearsInEveryList()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.press(f.main(), "btnAddCat");
        frmCategoryDetails& dialog = f.program.categoryDetails();
        QVERIFY(dialog.isVisible());
        f.control<QLineEdit>(dialog, "txtCatName")->setText(QStringLiteral("Garden"));
        f.press(dialog, "btnOk");
        QVERIFY(!dialog.isVisible());
        const auto holds = [](const QComboBox* combo) {
            return combo->findText(QStringLiteral("Garden")) >= 0;
        };
        QVERIFY(holds(f.control<QComboBox>(f.main(), "cmbCategories")));
        QVERIFY(holds(f.control<QComboBox>(f.main(), "cmbCategoriesMaintenance")));
        const auto* inDialog = f.control<QComboBox>(f.program.taskDetails(), "cmbCategories");
        QVERIFY(holds(inDialog));
        QCOMPARE(inDialog->findText(QStringLiteral("All")), -1);
        QCOMPARE(f.control<QListWidget>(f.main(), "lstViewCategories")
                     ->findItems(QStringLiteral("Garden"), Qt::MatchExactly)
                     .size(),
            1);
    }
};

AMBERTASK_TEST_MAIN(ProgramDialogsTest)
#include "tst_program_dialogs.moc"
