#include "TasksPageFixture.h"
#include "support/TestMain.h"

#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <cmath>

using namespace std::chrono_literals;

class TasksPageTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskShowsItsNameDueDateAndPictures()
    {
        TasksPageFixture f;
        aTask(f.services.database)
            .named(QStringLiteral("Water the plants"))
            .in(f.home)
            .dueAt(makeMoment(std::chrono::year(2026) / 3 / 4, 9h + 5min))
            .withPeriority(TaskPeriority::High)
            .withStatus(TaskStatus::InProgress)
            .remindingAt(makeMoment(std::chrono::year(2026) / 3 / 4, 9h))
            .add();
        f.load();
        const QAbstractItemModel* model = f.page.grid()->model();
        QCOMPARE(f.names(), QStringList{QStringLiteral("Water the plants")});
        QCOMPARE(model->index(0, 3).data().toString(), QStringLiteral("3/4/2026 9:05:00 AM"));
        const auto iconKey = [&](int column) {
            return model->index(0, column).data(Qt::DecorationRole).value<QIcon>().cacheKey();
        };
        QCOMPARE(iconKey(1), f.services.images.icon(0).cacheKey());
        QCOMPARE(iconKey(2), f.services.images.icon(17).cacheKey());
        QCOMPARE(iconKey(4), f.services.images.icon(19).cacheKey());
        QCOMPARE(iconKey(5), f.services.images.icon(12).cacheKey());
        QCOMPARE(model->index(0, 5).data().toString(), QString());
    }

    void theColumnsCarryTheirKeysHeadersAndWidths()
    {
        TasksPageFixture f;
        f.load();
        QCOMPARE(f.keys(),
            QStringList({QStringLiteral("0id"), QStringLiteral("0name"), QStringLiteral("0status"),
                QStringLiteral("0due date"), QStringLiteral("0periority"), QStringLiteral("0reminder")}));
        QCOMPARE(f.headers(),
            QStringList({QStringLiteral("id"), QStringLiteral("Name"), QStringLiteral("Status"),
                QStringLiteral("Due Date"), QStringLiteral("periority"), QStringLiteral("reminder")}));
        const GridView* grid = f.page.grid();
        QVERIFY(grid->isColumnHidden(0));
        const QList<int> divisors{28, 300, 62, 180, 290};
        double all = 0;
        for (const int divisor : divisors) {
            all += 1.0 / divisor;
        }
        for (int i = 1; i < divisors.size(); ++i) {
            QCOMPARE(grid->columnWidth(i + 1),
                static_cast<int>(std::lround(grid->viewport()->width() / all / divisors[i])));
        }
        QCOMPARE(grid->horizontalHeader()->length(), grid->viewport()->width());
    }

    void theShownColumnsFillTheGrid_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("tasks");
        for (const int width : {960, 1001, 1920}) {
            QTest::addRow("%d", width) << width << 3;
            QTest::addRow("%d with a scroll bar", width) << width << 100;
        }
    }

    void theShownColumnsFillTheGrid()
    {
        QFETCH(int, width);
        QFETCH(int, tasks);
        TasksPageFixture f;
        for (int i = 0; i < tasks; ++i) {
            aTask(f.services.database).named(QStringLiteral("task")).add();
        }
        f.page.resize(width, 600);
        f.page.show();
        for (int shown = 0; shown < 16; ++shown) {
            f.columns = {(shown & 1) != 0, (shown & 2) != 0, (shown & 4) != 0, (shown & 8) != 0};
            f.load();
            QCoreApplication::processEvents();
            const GridView* grid = f.page.grid();
            QCOMPARE(grid->verticalScrollBar()->isVisible(), tasks == 100);
            QVERIFY(!grid->horizontalScrollBar()->isVisible());
            QCOMPARE(grid->horizontalHeader()->length(), grid->viewport()->width());
        }
    }

    void uncheckingTaskStatusRemovesItsColumnAtTheNextFilterChange()
    {
        TasksPageFixture f;
        f.load();
        f.columns.status = false;
        QVERIFY(f.keys().contains(QStringLiteral("0status")));
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(f.keys(),
            QStringList({QStringLiteral("0id"), QStringLiteral("0name"), QStringLiteral("0due date"),
                QStringLiteral("0periority"), QStringLiteral("0reminder")}));
    }

    void addingWithoutAnyCategoryIsRefused()
    {
        TasksPageFixture f;
        f.services.database.removeAllCategories();
        f.load();
        const QSignalSpy added(&f.page, &TasksPage::addRequested);
        f.services.dialogs.expectTell(MessageBoxes::Icon::Information,
            QStringLiteral("Please enter categories in the categories section first."));
        f.press("btnTaskAdd");
        QVERIFY(f.services.dialogs.allUsed());
        QCOMPARE(added.count(), 0);
    }

    void addingAsksForTheCategoryThatTheListShows()
    {
        TasksPageFixture f;
        f.load();
        const QSignalSpy added(&f.page, &TasksPage::addRequested);
        f.press("btnTaskAdd");
        f.choose("cmbCategories", QStringLiteral("Office"));
        f.press("btnTaskAdd");
        QCOMPARE(added.count(), 2);
        QCOMPARE(added[0][0].value<qint16>(), CategoryFilter::All);
        QCOMPARE(added[1][0].value<qint16>(), f.office);
    }

    void deletingRemovesTheRowAtOnceAndTheOthersKeepTheirOrder()
    {
        TasksPageFixture f;
        aTask(f.services.database).named(QStringLiteral("b")).in(f.home).add();
        aTask(f.services.database).named(QStringLiteral("c")).in(f.home).add();
        const qint32 last = aTask(f.services.database).named(QStringLiteral("d")).in(f.home).add();
        f.load();
        f.choose("cmbSort", QStringLiteral("Name"));
        // A sort would now put the last one first.
        f.services.database.sql(QStringLiteral("update tasks set task_name='a' where task_id=%1").arg(last));
        f.services.database.statements().take();
        f.page.grid()->selectOnly(0);
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.press("btnTaskDelete");
        QCOMPARE(f.names(), QStringList({QStringLiteral("c"), QStringLiteral("d")}));
        QCOMPARE(f.services.database.statements().take().size(), 1);
        QCOMPARE(f.services.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 2);
        QCOMPARE(f.page.grid()->selectedRow(), 0);
    }

    void answeringNoDeletesNothing()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.load();
        f.page.grid()->selectOnly(0);
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), false);
        f.press("btnTaskDelete");
        QCOMPARE(f.services.database.statements().take(), QStringList());
        QCOMPARE(f.names().size(), 1);
    }

    void aDeletionThatFailsKeepsTheRow()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.load();
        f.page.grid()->selectOnly(0);
        f.services.database.sql(QStringLiteral("alter table tasks rename to elsewhere"));
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.services.dialogs.expectError(QStringLiteral("tasks"));
        f.press("btnTaskDelete");
        QCOMPARE(f.names().size(), 1);
    }

    void theDeleteKeyAsksAndTheEnterKeyEdits()
    {
        TasksPageFixture f;
        const qint32 id = aTask(f.services.database).in(f.home).add();
        f.load();
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.page.grid()->setFocus();
        f.page.grid()->selectOnly(0);
        QTest::keyClick(f.page.grid(), Qt::Key_Return);
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited[0][0].value<qint16>(), static_cast<qint16>(id));
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        QTest::keyClick(f.page.grid(), Qt::Key_Delete);
        QCOMPARE(f.names().size(), 0);
    }

    void aDoubleClickEditsTheTask()
    {
        TasksPageFixture f;
        const qint32 id = aTask(f.services.database).in(f.home).add();
        f.load();
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        const QRect cell = f.page.grid()->visualRect(f.page.grid()->model()->index(0, 1));
        QTest::mouseClick(f.page.grid()->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(f.page.grid()->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited[0][0].value<qint16>(), static_cast<qint16>(id));
    }

    void withNoRowSelectedNothingHappens()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.load();
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.page.grid()->setFocus();
        QCOMPARE(f.page.grid()->selectedRow(), -1);
        QTest::keyClick(f.page.grid(), Qt::Key_Delete);
        QTest::keyClick(f.page.grid(), Qt::Key_Return);
        f.press("btnTaskEdit");
        f.press("btnTaskDelete");
        QCOMPARE(edited.count(), 0);
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void codesOutsideTheTablesShowNoIcon()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).withStatus(5).withPeriority(7).add();
        f.load();
        QVERIFY(f.hasIcon(0, 1));
        QVERIFY(!f.hasIcon(0, 2));
        QVERIFY(!f.hasIcon(0, 4));
        QVERIFY(!f.hasIcon(0, 5));
    }

    void anIdBeyondSixteenBitsIsAnErrorAndNeverAnotherTask()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.services.database.sql(QStringLiteral("update tasks set task_id=70000"));
        f.load();
        const QSignalSpy edited(&f.page, &TasksPage::editRequested);
        f.page.grid()->selectOnly(0);
        f.services.dialogs.expectError(QStringLiteral("Overflow"));
        f.press("btnTaskEdit");
        QCOMPARE(edited.count(), 0);
        f.services.dialogs.expectAsk(QStringLiteral("Are you sure you want to delete this task?"), true);
        f.services.dialogs.expectError(QStringLiteral("70000"));
        f.press("btnTaskDelete");
        QCOMPARE(f.services.database.statements().take(), QStringList());
        QCOMPARE(f.names().size(), 1);
    }

    void aStoreThatCannotBeReadLeavesTheListAsItWas()
    {
        TasksPageFixture f;
        aTask(f.services.database).named(QStringLiteral("kept")).in(f.home).add();
        f.load();
        f.services.database.sql(QStringLiteral("alter table tasks rename to elsewhere"));
        f.services.dialogs.expectError(QStringLiteral("tasks"));
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(f.names(), QStringList{QStringLiteral("kept")});
    }

    void aRebuiltListHasNoSelection()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.load();
        f.page.grid()->selectOnly(0);
        f.page.LoadTasks();
        QCOMPARE(f.page.grid()->selectedRow(), -1);
    }

    void theCurrentRowStaysOnItsTaskThroughARebuild()
    {
        TasksPageFixture f;
        for (const char* name : {"c", "b", "a"}) {
            aTask(f.services.database).named(QLatin1String(name)).in(f.home).add();
        }
        f.load();
        f.page.grid()->selectOnly(0);
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(f.page.grid()->currentIndex().row(), 2);
        QCOMPARE(f.page.grid()->selectedRow(), -1);
        f.services.database.sql(QStringLiteral("delete from tasks where task_name = 'c'"));
        f.page.LoadTasks();
        QVERIFY(!f.page.grid()->currentIndex().isValid());
    }

    void aTaskThatIsGoneToIsCurrentAndInSightAndNotSelected()
    {
        TasksPageFixture f;
        qint32 id = 0;
        for (int i = 0; i < 100; ++i) {
            id = aTask(f.services.database).in(f.home).add();
        }
        f.load();
        QVERIFY(f.page.goToTask(id));
        const QModelIndex current = f.page.grid()->currentIndex();
        QCOMPARE(current.row(), 99);
        QVERIFY(f.page.grid()->viewport()->rect().contains(f.page.grid()->visualRect(current).center()));
        QCOMPARE(f.page.grid()->selectedRow(), -1);
        QVERIFY(!f.page.goToTask(id + 1));
        QCOMPARE(f.page.grid()->currentIndex(), current);
    }

    void theCategoryFilterKeepsItsCategoryWhenTheListIsFilledAnew()
    {
        TasksPageFixture f;
        f.load();
        f.choose("cmbCategories", QStringLiteral("Office"));
        f.services.database.addCategory(QStringLiteral("Garden"));
        f.page.reloadCategories();
        QCOMPARE(f.control<QComboBox>("cmbCategories")->currentText(), QStringLiteral("Office"));
        f.services.database.sql(QStringLiteral("delete from categories where cat_name='Office'"));
        f.page.reloadCategories();
        QCOMPARE(f.control<QComboBox>("cmbCategories")->currentText(), QStringLiteral("All"));
    }

    void textThatLooksLikeMarkupIsShownAsItIs()
    {
        TasksPageFixture f;
        aTask(f.services.database).named(QStringLiteral("<b>bold</b>")).in(f.home).add();
        f.load();
        const QModelIndex name = f.page.grid()->model()->index(0, 1);
        QCOMPARE(name.data().toString(), QStringLiteral("<b>bold</b>"));
        QVERIFY(name.data(Qt::ToolTipRole).toString().contains(QStringLiteral("&lt;b&gt;bold")));
    }
};

AMBERTASK_TEST_MAIN(TasksPageTest)
#include "tst_taskspage.moc"
