#include "ProgramFixture.h"
#include "categories/frmCategoryDetails.h"
#include "reminders/frmAlerts.h"
#include "support/ClosedWindow.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "tasks/frmTaskDetails.h"
#include "widgets/WindowPlacement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>

using namespace std::chrono_literals;

class ProgramTest : public TestCase
{
    Q_OBJECT

private slots:
    void everyControlOfTheMainWindowHasItsName()
    {
        ProgramFixture f;
        f.start();
        const QStringList names =
            QString::fromLatin1("tabMain grdTasks lstViewCategories mnuTray mnuShow mnuAbout mnuHelp "
                                "mnuFeedBack mnuExit cmbCategories "
                                "cmbStatus cmbSort opnAllDate opnSpecificDate dtpDueDateFrom dtpDueDateTo "
                                "lblDateFrom lblDateTo opnAllTasks "
                                "opnActiveTasks opnExpiredTasks btnTaskAdd btnTaskEdit btnTaskDelete "
                                "btnTaskPrint btnHelpTasks btnAddCat "
                                "btnEditCat btnDeleteCat btnHelpCategories chkShowGrid "
                                "chkShowTodayTasksOnStart chkStartWithWin chkOnTop "
                                "chkMinimizeOnStart chkShowBallon chkShowPeriority chkShowDueDate "
                                "chkShowReminder chkShowStatus cmbSkins "
                                "btnBrowseNewSkin lblDownloadSkins btnSave btnHelpSettings "
                                "cmbCategoriesMaintenance cmbStatusMaintenance "
                                "opnAllTasksMaintenance opnActiveTasksMaintenance opnExpiredTasksMaintenance "
                                "dtpDateFromMaintenance "
                                "dtpDateToMaintenance btnDeleteTasksMaintenance btnBackup btnRestore "
                                "btnHelpMaintenance lblAmberHeader "
                                "lblOrganizerHeader lblVersionHeader SCLabel1 SCLabel2 SCLabel3 SCLabel4 "
                                "SCLabel5 SCLabel6 SCLabel7 SCLabel8 SCLabel9")
                .split(u' ');
        QCOMPARE(f.main().objectName(), QStringLiteral("frmMain"));
        for (const QString& name : names) {
            QVERIFY2(f.main().findChildren<QObject*>(name).size() == 1, qPrintable(name));
        }
    }

    void aDataFileThatAnotherProgramLeftInWriteAheadModeIsTurnedBack()
    {
        ProgramFixture f;
        f.database.sql(QStringLiteral("pragma journal_mode=wal"));
        f.start();
        QCOMPARE(f.database.sql(QStringLiteral("pragma journal_mode")).toString(), QStringLiteral("delete"));
    }

    void theTabsAndTheTrayMenuReadAsTheyShould()
    {
        ProgramFixture f;
        f.start();
        const auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
        QStringList captions;
        for (int i = 0; i < tabs->count(); ++i) {
            captions.append(tabs->tabText(i));
        }
        QCOMPARE(captions,
            QStringList({QStringLiteral("Tasks"), QStringLiteral("Categories"), QStringLiteral("Settings"),
                QStringLiteral("Maintenance")}));
        QCOMPARE(tabs->currentIndex(), 0);
        QStringList entries;
        for (const QAction* action : f.main().findChild<QMenu*>(QStringLiteral("mnuTray"))->actions()) {
            entries.append(action->text());
        }
        QCOMPARE(entries,
            QStringList({QStringLiteral("Hide"), QStringLiteral("About"), QStringLiteral("Help"),
                QStringLiteral("Send feedback"), QStringLiteral("Exit")}));
    }

    void startingMinimizedShowsNoWindowAndTheMenuReadsShow()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        QVERIFY(!f.main().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
    }

    void withoutANotificationAreaAHiddenStartMinimizes()
    {
        ProgramFixture f;
        f.notificationArea = false;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        QVERIFY(f.main().isMinimized());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
    }

    void startingOnTodaySelectsTheSpecificDateAndListsOnlyTasksDueToday()
    {
        ProgramFixture f;
        aTask(f.database).named(QStringLiteral("today")).add();
        aTask(f.database).named(QStringLiteral("tomorrow")).dueAt(f.database.clock().now() + 24h).add();
        f.setting(QStringLiteral("show_today_tasks"), 1);
        f.start();
        QVERIFY(f.control<QRadioButton>(f.main(), "opnSpecificDate")->isChecked());
        QCOMPARE(f.control<QDateEdit>(f.main(), "dtpDueDateFrom")->date(), QDate(2026, 1, 15));
        QCOMPARE(f.control<QDateEdit>(f.main(), "dtpDueDateTo")->date(), QDate(2026, 1, 15));
        QCOMPARE(f.grid(f.main())->model()->rowCount(), 1);
        QCOMPARE(f.grid(f.main())->model()->index(0, 1).data().toString(), QStringLiteral("today"));
    }

    void alwaysOnTopOpensTheWindowTopmost()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("always_on_top"), 1);
        f.start();
        QVERIFY(f.main().isVisible());
        QVERIFY(isTopmost(&f.main()));
    }

    void theCloseBoxHidesTheWindowAndTheProgramGoesOn()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("show_ballon_icon"), 0);
        f.start();
        const QSignalSpy ended(&f.program, &Program::endRequested);
        closeBySystem(f.main());
        QVERIFY(!f.main().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
        QCOMPARE(ended.count(), 0);
        f.menu("mnuShow")->trigger();
        QVERIFY(f.main().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Hide"));
    }

    void closingItFromCodeIsNotTheCloseBox()
    {
        ProgramFixture f;
        f.start();
        QVERIFY(f.main().close());
        QVERIFY(!closeBySystem(f.main()));
    }

    void withoutANotificationAreaTheCloseBoxMinimizes()
    {
        ProgramFixture f;
        f.notificationArea = false;
        f.start();
        closeBySystem(f.main());
        QVERIFY(f.main().isMinimized());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
        f.menu("mnuShow")->trigger();
        QVERIFY(f.main().isVisible());
        QVERIFY(!f.main().isMinimized());
    }

    void aHiddenWindowComesBackMinimizedWhenTheNotificationAreaGoes()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("show_ballon_icon"), 0);
        f.start();
        f.program.loadDialogs();
        closeBySystem(f.main());
        QVERIFY(!f.main().isVisible());
        f.notificationArea = false;
        f.program.alerts().tmrTasksChecker_Timer();
        QVERIFY(f.main().isMinimized());
    }

    void showIsRefusedWhileTheTaskDialogIsOpen()
    {
        ProgramFixture f;
        f.start();
        f.main().hide();
        f.program.taskDetails().show();
        f.menu("mnuShow")->trigger();
        QVERIFY(!f.main().isVisible());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Show"));
    }

    void hidingTheWindowHidesBothDialogs()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        f.program.taskDetails().show();
        f.program.categoryDetails().show();
        f.menu("mnuShow")->trigger();
        QVERIFY(!f.main().isVisible());
        QVERIFY(!f.program.taskDetails().isVisible());
        QVERIFY(!f.program.categoryDetails().isVisible());
    }

    void exitEndsTheProgramEvenWhileItIsHidden()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        const QSignalSpy ended(&f.program, &Program::endRequested);
        f.menu("mnuExit")->trigger();
        QCOMPARE(ended.count(), 1);
    }

    void aRequestToEndWhileTheProgramStartsIsKept()
    {
        ProgramFixture f;
        // Arrives while the list of skins is filled, which a skin that is gone makes do at once, before there
        // is an event loop to leave.
        f.database.sql(QStringLiteral("update settings set skin='Gone'"));
        QMetaObject::invokeMethod(&f.program, &Program::end, Qt::QueuedConnection);
        QVERIFY(!f.program.isEnding());
        f.start();
        QVERIFY(f.program.isEnding());
        QVERIFY(!f.main().isVisible());
    }

    void theSkinsAreListedWhenTheDialogsAreLoaded()
    {
        ProgramFixture f;
        writeFile(f.database.folder(), QStringLiteral("Skins/Other.skf"), "/*\n@name Other\n*/");
        f.start();
        auto* list = f.control<QComboBox>(f.main(), "cmbSkins");
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->currentText(), QStringLiteral("Aqua"));
        f.program.loadDialogs();
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->currentText(), QStringLiteral("Aqua"));
    }

    void theAlertIsThereEvenWhenTheDialogsCannotBeLoaded()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        aTask(f.database).remindingAt(f.database.clock().now() - 1h).add();
        f.start();
        f.database.sql(QStringLiteral("alter table categories rename to elsewhere"));
        f.dialogs.expectError(QStringLiteral("categories"));
        f.program.loadDialogs();
        QVERIFY(f.dialogs.allUsed());
        QVERIFY(!f.program.alerts().isVisible());
        f.database.sql(QStringLiteral("alter table elsewhere rename to categories"));
        f.program.alerts().tmrTasksChecker_Timer();
        QVERIFY(f.program.alerts().isVisible());
    }

    void remindersAreCheckedBeforeAnybodyHasReadWhyADialogIsMissing()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        f.start();
        f.database.sql(QStringLiteral("alter table categories rename to elsewhere"));
        bool isChecking = false;
        f.dialogs.expectError(QStringLiteral("categories"), [&f, &isChecking] {
            isChecking = f.program.alerts().findChild<QTimer*>(QStringLiteral("tmrTasksChecker"))->isActive();
        });
        f.program.loadDialogs();
        QVERIFY(isChecking);
        f.database.sql(QStringLiteral("alter table elsewhere rename to categories"));
    }

    void theFormsAreUnloadedInTheirOrder()
    {
        ProgramFixture f;
        f.start();
        f.program.loadDialogs();
        QStringList order;
        for (QWidget* form : std::initializer_list<QWidget*>{
                 &f.main(), &f.program.alerts(), &f.program.taskDetails(), &f.program.categoryDetails()}) {
            connect(
                form, &QObject::destroyed, this, [&order, name = form->objectName()] { order.append(name); });
        }
        f.program.unload();
        QCOMPARE(order,
            QStringList({QStringLiteral("frmCategoryDetails"), QStringLiteral("frmTaskDetails"),
                QStringLiteral("frmAlerts"), QStringLiteral("frmMain")}));
    }

    void aHiddenStartLoadsTheDialogsAfterTheFirstTurnAndChecksAtOnce()
    {
        ProgramFixture f;
        f.setting(QStringLiteral("minimize_on_start"), 1);
        aTask(f.database).remindingAt(f.database.clock().now() - 1h).add();
        f.start();
        f.database.statements().take();
        QCoreApplication::processEvents();
        QVERIFY(f.program.alerts().isVisible());
        QCOMPARE(f.program.alerts().windowTitle(), QStringLiteral("1 Reminder"));
    }

    void aMissingPictureOfACategoryIsToldOnceTheWindowIsThere()
    {
        ProgramFixture f;
        f.database.sql(QStringLiteral("update categories set custom_icon=1,cat_icon_name='icon77.gif' where "
                                      "cat_id=(select min(cat_id) from "
                                      "categories)"));
        f.start();
        f.dialogs.expectExclamationWith(QStringLiteral("icon77.gif"));
        QVERIFY(QTest::qWaitForWindowExposed(&f.main()));
        QTRY_VERIFY(f.dialogs.allUsed());
        QCOMPARE(f.control<QListWidget>(f.main(), "lstViewCategories")->count(), 4);
    }

    void switchingToTheSettingsDiscardsUnsavedEdits()
    {
        ProgramFixture f;
        f.start();
        auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
        auto* box = f.control<QCheckBox>(f.main(), "chkMinimizeOnStart");
        tabs->setCurrentIndex(2);
        QVERIFY(!box->isChecked());
        box->click();
        QVERIFY(box->isChecked());
        tabs->setCurrentIndex(0);
        tabs->setCurrentIndex(2);
        QVERIFY(!box->isChecked());
        QCOMPARE(f.menu("mnuShow")->text(), QStringLiteral("Hide"));
    }

    void switchingToThePagesGivesTheFocusToTheirLists()
    {
        ProgramFixture f;
        f.start();
        QVERIFY(QTest::qWaitForWindowActive(&f.main()));
        auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
        tabs->setCurrentIndex(1);
        auto* categories = f.control<QListWidget>(f.main(), "lstViewCategories");
        QCOMPARE(QApplication::focusWidget(), categories);
        QCOMPARE(categories->selectedItems().value(0), categories->item(0));
        tabs->setCurrentIndex(0);
        QCOMPARE(QApplication::focusWidget(), f.grid(f.main()));
    }

    void feedbackAndTheHeaderOpenTheVendorsPages()
    {
        ProgramFixture f;
        f.start();
        f.menu("mnuFeedBack")->trigger();
        QTest::mouseClick(f.control<QLabel>(f.main(), "lblAmberHeader"), Qt::LeftButton);
        QTest::mouseClick(f.control<QLabel>(f.main(), "lblOrganizerHeader"), Qt::LeftButton);
        QCOMPARE(f.shell.pages,
            QStringList({QStringLiteral("/support.htm?referer=p"), QStringLiteral("/index.htm?referer=p"),
                QStringLiteral("/index.htm?referer=p")}));
    }

    void theMenuKeyOnALinkOfTheHeaderOpensTheTrayMenu()
    {
        ProgramFixture f;
        f.start();
        auto* menu = f.control<QMenu>(f.main(), "mnuTray");
        for (const char* link : {"lblAmberHeader", "lblOrganizerHeader"}) {
            askForMenu(f, link, QContextMenuEvent::Keyboard);
            QVERIFY2(menu->isVisible(), link);
            QCOMPARE(menu->activeAction(), f.menu("mnuShow"));
            menu->close();
        }
        QTest::keyClick(f.control<QWidget>(f.main(), "lblAmberHeader"), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(menu->isVisible());
        menu->close();
        f.notificationArea = false;
        askForMenu(f, "lblAmberHeader", QContextMenuEvent::Keyboard);
        QVERIFY(menu->isVisible());
        menu->close();
    }

    void aRightClickOnTheHeaderOpensItOnlyWithoutANotificationArea()
    {
        ProgramFixture f;
        f.start();
        auto* menu = f.control<QMenu>(f.main(), "mnuTray");
        askForMenu(f, "lblAmberHeader", QContextMenuEvent::Mouse);
        QVERIFY(!menu->isVisible());
        f.notificationArea = false;
        askForMenu(f, "lblAmberHeader", QContextMenuEvent::Mouse);
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->activeAction(), nullptr);
        menu->close();
    }

private:
    static void askForMenu(ProgramFixture& f, const char* control, QContextMenuEvent::Reason reason)
    {
        auto* widget = f.control<QWidget>(f.main(), control);
        const QPoint place = widget->rect().center();
        QContextMenuEvent event(reason, place, widget->mapToGlobal(place));
        QCoreApplication::sendEvent(widget, &event);
    }
};

AMBERTASK_TEST_MAIN(ProgramTest)
#include "tst_program.moc"
