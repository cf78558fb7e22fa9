#include "TasksPageFixture.h"
#include "support/ContextMenu.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalSpy>

using namespace std::chrono_literals;

namespace
{

/// A list of the tasks "a", "b" and "c", made in this order.
struct ThreeTasks : TasksPageFixture {
    ThreeTasks()
    {
        for (const char* name : {"a", "b", "c"}) {
            ids.append(aTask(services.database).named(QLatin1String(name)).in(home).add());
        }
        load();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        page.focusList();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(page.grid(), static_cast<Qt::Key>(key), modifiers);
    }
    ContextMenu menu() { return {*page.grid(), "mnuList"}; }
    QString stored(qint32 id, const char* column) const
    {
        return services.database
            .sql(QStringLiteral("select %1 from tasks where task_id=%2").arg(QLatin1String(column)).arg(id))
            .toString();
    }
    QString storedOfAll(const char* column) const { return services.database.storedOfAll(column); }
    Moment now() const { return services.services.clock.now(); }
    void undo() { services.undo.undo(); }

    QList<qint32> ids;
};

using Rows = QList<int>;

} // namespace

class tst_task_actions : public TestCase
{
    Q_OBJECT

private slots:
    void ctrlDCompletesTheSelectedTasksInOneStep()
    {
        ThreeTasks f;
        const QSignalSpy told(&f.page, &TasksPage::tasksChanged);
        f.page.grid()->selectRows({0, 2});
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 0 2"));
        QCOMPARE(f.page.grid()->selectedRows(), Rows({0, 2}));
        QCOMPARE(told.count(), 1);
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("2 tasks completed"));
        f.undo();
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 0 0"));
        QVERIFY(!f.services.undo.canUndo());
    }

    void ctrlDSetsCompletedTasksBack()
    {
        ThreeTasks f;
        f.services.database.sql(QStringLiteral("update tasks set task_status=2 where task_name<>'c'"));
        f.page.LoadTasks();
        f.page.grid()->selectRows({0, 1});
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 0 0"));
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("2 tasks set back to \"Not Started\""));
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 2 0"));
    }

    void completingAMixedSelectionCompletesAll()
    {
        ThreeTasks f;
        f.services.database.sql(QStringLiteral("update tasks set task_status=2 where task_name='a'"));
        f.page.LoadTasks();
        f.page.grid()->selectRows({0, 1});
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 2 0"));
    }

    void completingTakesTheDueReminderOff()
    {
        ThreeTasks f;
        const qint32 due =
            aTask(f.services.database).named(QStringLiteral("d")).remindingAt(f.now() - 1min).add();
        const qint32 later =
            aTask(f.services.database).named(QStringLiteral("e")).remindingAt(f.now() + 1h).add();
        f.page.LoadTasks();
        f.page.grid()->selectRows({3, 4});
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.stored(due, "dismissed"), QStringLiteral("1"));
        QCOMPARE(f.stored(due, "reminder_on"), QStringLiteral("0"));
        QCOMPARE(f.stored(later, "dismissed"), QStringLiteral("0"));
        QCOMPARE(f.stored(later, "reminder_on"), QStringLiteral("1"));
    }

    void theRowInThePlaceIsSelectedWhenTheFiltersNoLongerShowTheTask()
    {
        ThreeTasks f;
        f.choose("cmbStatus", QStringLiteral("Not Started"));
        f.page.grid()->selectOnly(0);
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.names(), QStringList({QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(f.page.grid()->selectedRows(), Rows{0});
        f.page.grid()->selectRows({0, 1});
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.names(), QStringList());
        QCOMPARE(f.page.grid()->selectedRows(), Rows());
    }

    void withoutASelectionNoKeyChangesAnything()
    {
        ThreeTasks f;
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.services.database.statements().take();
        f.press(Qt::Key_D, Qt::ControlModifier);
        f.press(Qt::Key_F2);
        f.press(Qt::Key_Delete);
        f.press(Qt::Key_Z, Qt::ControlModifier);
        f.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(edited.count(), 0);
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void severalTasksAreDeletedAfterOneQuestionWithTheirNumber()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({0, 1});
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 2 tasks?"), false);
        f.press(Qt::Key_Delete);
        QCOMPARE(f.names().size(), 3);
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 2 tasks?"), true);
        f.press(Qt::Key_Delete);
        QCOMPARE(f.names(), QStringList{QStringLiteral("c")});
        QCOMPARE(f.storedOfAll("task_name"), QStringLiteral("c"));
        QCOMPARE(f.page.grid()->selectedRows(), Rows{0});
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("2 tasks deleted"));
        f.undo();
        QCOMPARE(f.storedOfAll("task_id").split(u' ').size(), 3);
    }

    void aDeletionOfSeveralThatFailsKeepsTheRows()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({0, 1});
        f.services.database.sql(QStringLiteral("alter table tasks rename to elsewhere"));
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete 2 tasks?"), true);
        f.services.dialogs.expectError(QStringLiteral("tasks"));
        f.press(Qt::Key_Delete);
        QCOMPARE(f.names().size(), 3);
        QCOMPARE(f.page.grid()->selectedRows(), Rows({0, 1}));
        QVERIFY(!f.services.undo.canUndo());
    }

    void f2EditsTheCurrentOneOfTheSelectedTasks()
    {
        ThreeTasks f;
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.page.grid()->selectOnly(1);
        f.press(Qt::Key_F2);
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited[0][0].value<qint16>(), static_cast<qint16>(f.ids[1]));
    }

    void ctrlNAddsAndCtrlPPrintsWhereverOnThePageTheFocusIs()
    {
        ThreeTasks f;
        const QSignalSpy added(&f.page, &TasksPage::addRequested);
        const QSignalSpy printed(&f.page, &TasksPage::printRequested);
        for (const char* name : {"grdTasks", "cmbSort", "btnTaskPrint", "opnAllDate"}) {
            auto* focus = f.control<QWidget>(name);
            focus->setFocus();
            QTest::keyClick(focus, Qt::Key_N, Qt::ControlModifier);
            QTest::keyClick(focus, Qt::Key_P, Qt::ControlModifier);
        }
        QCOMPARE(added.count(), 4);
        QCOMPARE(printed.count(), 4);
    }

    void theButtonsNameTheirKeys()
    {
        const ThreeTasks f;
        for (const auto& [name, keys] : {std::pair("btnTaskAdd", "Ctrl+N"), std::pair("btnTaskEdit", "F2"),
                 std::pair("btnTaskDelete", "Del"), std::pair("btnTaskPrint", "Ctrl+P")}) {
            QCOMPARE(f.page.findChild<QPushButton*>(QLatin1String(name))->toolTip(), QLatin1String(keys));
        }
    }

    void noKeyOfTheListActsInAnotherWindow()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({0, 1});
        QLineEdit other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        const QSignalSpy added(&f.page, &TasksPage::addRequested);
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.services.database.statements().take();
        for (const int key : {Qt::Key_N, Qt::Key_D, Qt::Key_P, Qt::Key_Z}) {
            QTest::keyClick(&other, static_cast<Qt::Key>(key), Qt::ControlModifier);
        }
        QTest::keyClick(&other, Qt::Key_F2);
        QTest::keyClick(&other, Qt::Key_Delete);
        QCOMPARE(added.count() + edited.count(), 0);
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void theKeysRestWhileAnotherPageIsInFront()
    {
        ThreeTasks f;
        f.page.grid()->selectOnly(0);
        QWidget window;
        f.page.setParent(&window);
        f.page.hide();
        auto* edit = new QLineEdit(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        f.services.database.statements().take();
        QTest::keyClick(edit, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.services.database.statements().take(), QStringList());
        f.page.setParent(nullptr);
    }

    void ctrlZTakesBackAndCtrlShiftZDoesAgain()
    {
        ThreeTasks f;
        f.page.grid()->selectOnly(0);
        f.press(Qt::Key_D, Qt::ControlModifier);
        f.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 0 0"));
        f.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 0 0"));
    }

    void theMenuHasItsEntriesInOrderWithTheirKeys()
    {
        ThreeTasks f;
        f.page.grid()->selectOnly(0);
        QStringList names;
        QStringList keys;
        for (const QAction* action : f.menu().open()->actions()) {
            if (!action->isSeparator() && action->isVisible()) {
                names.append(action->objectName());
                keys.append(action->shortcut().toString());
            }
        }
        QCOMPARE(names.join(u' '),
            QStringLiteral("mnuListEdit mnuListComplete mnuListPostpone mnuListStatus mnuListPeriority "
                           "mnuListCategory mnuListDuplicate mnuListCopy mnuListDelete mnuListUndo"));
        QCOMPARE(keys.join(u' '), QStringLiteral("F2 Ctrl+D      Ctrl+C Del Ctrl+Z"));
    }

    void assistiveTechnologyOpensTheMenuForTheRowOfACell()
    {
        ThreeTasks f;
        f.page.grid()->selectOnly(0);
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(f.page.grid());
        for (QAccessibleInterface* part : {seen, seen->tableInterface()->cellAt(1, 0)}) {
            part->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
            auto* menu = f.page.findChild<QMenu*>(QStringLiteral("mnuList"));
            QVERIFY(menu != nullptr && menu->isVisible());
            menu->close();
        }
        QCOMPARE(f.page.grid()->selectedRows(), Rows{1});
    }

    void theEntriesFollowTheSelection()
    {
        ThreeTasks f;
        QVERIFY(!f.menu().entry("mnuListEdit")->isEnabled());
        QVERIFY(!f.menu().entry("mnuListDelete")->isEnabled());
        QVERIFY(!f.menu().entry("mnuListUndo")->isEnabled());
        f.page.findChild<QMenu*>(QStringLiteral("mnuList"))->close();
        f.page.grid()->selectOnly(0);
        QVERIFY(f.menu().entry("mnuListEdit")->isEnabled());
        QVERIFY(f.menu().entry("mnuListDelete")->isEnabled());
        QVERIFY(!f.menu().entry("mnuListPostpone")->isEnabled());
        f.services.database.sql(QStringLiteral("update tasks set reminder_on=1 where task_name='a'"));
        f.page.LoadTasks();
        f.page.grid()->selectRows({0, 1});
        QVERIFY(f.menu().entry("mnuListPostpone")->isEnabled());
    }

    void aKeyActsAfterAMenuThatHadNothingToOffer()
    {
        ThreeTasks f;
        QVERIFY(!f.menu().entry("mnuListComplete")->isEnabled());
        f.page.findChild<QMenu*>(QStringLiteral("mnuList"))->close();
        f.page.grid()->selectOnly(0);
        f.press(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 0 0"));
    }

    void undoNamesWhatItTakesBack()
    {
        ThreeTasks f;
        f.page.grid()->selectOnly(0);
        f.menu().trigger("mnuListComplete");
        QCOMPARE(f.menu().entry("mnuListUndo")->text(), QStringLiteral("&Undo: 1 task completed"));
        QVERIFY(!f.menu().entry("mnuListRedo")->isVisible());
        f.menu().trigger("mnuListUndo");
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 0 0"));
        QVERIFY(!f.menu().entry("mnuListUndo")->isEnabled());
        QCOMPARE(f.menu().entry("mnuListRedo")->text(), QStringLiteral("&Redo: 1 task completed"));
        f.menu().trigger("mnuListRedo");
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("2 0 0"));
    }

    void fieldsOfSeveralAreChangedFromTheMenu()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({1, 2});
        f.menu().chooseFrom("mnuListStatus", QStringLiteral("&Deferred"));
        f.menu().chooseFrom("mnuListPeriority", QStringLiteral("&High"));
        f.menu().chooseFrom("mnuListCategory", QStringLiteral("Office"));
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 4 4"));
        QCOMPARE(f.storedOfAll("task_periority"), QStringLiteral("1 0 0"));
        QCOMPARE(f.storedOfAll("cat_id"), QStringLiteral("%1 %2 %2").arg(f.home).arg(f.office));
        QCOMPARE(f.page.grid()->selectedRows(), Rows({1, 2}));
        f.undo();
        f.undo();
        f.undo();
        QCOMPARE(f.storedOfAll("task_status"), QStringLiteral("0 0 0"));
        QCOMPARE(f.storedOfAll("task_periority"), QStringLiteral("1 1 1"));
        QCOMPARE(f.storedOfAll("cat_id"), QStringLiteral("%1 %1 %1").arg(f.home));
    }

    void whatAllSelectedHaveIsTicked()
    {
        ThreeTasks f;
        f.services.database.sql(QStringLiteral("update tasks set task_status=1 where task_name='a'"));
        f.page.LoadTasks();
        const auto ticked = [&f](const char* name) {
            QStringList texts;
            for (const QAction* choice : f.menu().entry(name)->menu()->actions()) {
                if (choice->isChecked()) {
                    texts.append(choice->text());
                }
            }
            return texts.join(u' ');
        };
        f.page.grid()->selectOnly(0);
        QCOMPARE(ticked("mnuListStatus"), QStringLiteral("In &Progress"));
        QCOMPARE(ticked("mnuListCategory"), QStringLiteral("Home"));
        f.page.grid()->selectRows({0, 1});
        QCOMPARE(ticked("mnuListStatus"), QString());
        QCOMPARE(ticked("mnuListPeriority"), QStringLiteral("&Normal"));
    }

    void aCategoryIsNamedLetterForLetter()
    {
        ThreeTasks f;
        f.services.database.addCategory(QStringLiteral("R&D"));
        f.page.grid()->selectOnly(0);
        f.menu().chooseFrom("mnuListCategory", QStringLiteral("R&&D"));
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("Category of 1 task changed"));
    }

    void selectedTasksWithAReminderArePostponed()
    {
        ThreeTasks f;
        const qint32 due =
            aTask(f.services.database).named(QStringLiteral("d")).remindingAt(f.now() - 1h).played().add();
        f.page.LoadTasks();
        f.page.grid()->selectRows({2, 3});
        f.menu().chooseFrom("mnuListPostpone", QStringLiteral("In 1 &hour"));
        QCOMPARE(f.stored(due, "reminder_date_time"), QStringLiteral("2026-01-15 11:00:00"));
        QCOMPARE(f.stored(due, "played"), QStringLiteral("0"));
        QCOMPARE(f.stored(f.ids[2], "reminder_on"), QStringLiteral("0"));
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("1 reminder postponed"));
    }

    void duplicatesAreSelected()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({0, 1});
        f.menu().trigger("mnuListDuplicate");
        QCOMPARE(f.names().size(), 5);
        QCOMPARE(f.page.grid()->selectedRows(), Rows({3, 4}));
        QCOMPARE(f.storedOfAll("task_name"), QStringLiteral("a b c a b"));
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("2 tasks duplicated"));
    }

    void theMenuCopiesTheRowsAsTheyAreShown()
    {
        ThreeTasks f;
        f.page.grid()->selectRows({0, 1});
        f.menu().trigger("mnuListCopy");
        QCOMPARE(QGuiApplication::clipboard()->text(),
            QStringLiteral("a\tNot Started\t1/15/2026 11:00:00 AM\tNormal\tReminder off\n"
                           "b\tNot Started\t1/15/2026 11:00:00 AM\tNormal\tReminder off"));
    }

    void theMenuDeletesAndEdits()
    {
        ThreeTasks f;
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.page.grid()->selectOnly(1);
        f.menu().trigger("mnuListEdit");
        QCOMPARE(edited.count(), 1);
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.menu().trigger("mnuListDelete");
        QCOMPARE(f.names(), QStringList({QStringLiteral("a"), QStringLiteral("c")}));
    }

    void aStoreThatCannotBeReadShowsNoMenu()
    {
        ThreeTasks f;
        f.services.database.sql(QStringLiteral("alter table categories rename to elsewhere"));
        f.services.dialogs.expectError(QStringLiteral("categories"));
        f.page.grid()->selectOnly(0);
        QVERIFY(!f.menu().open()->isVisible());
    }
};

AMBERTASK_TEST_MAIN(tst_task_actions)
#include "tst_task_actions.moc"
