#include "TasksPageFixture.h"
#include "support/TestMain.h"

#include <QDateEdit>
#include <QRadioButton>

using namespace std::chrono_literals;

namespace
{

const QString bareJoin =
    QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

}

class TasksPageFiltersTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFilterThatMatchesNothingLeavesHeadersAndSaysNothing()
    {
        TasksPageFixture f;
        aTask(f.services.database).in(f.home).add();
        f.load();
        QCOMPARE(f.names().size(), 1);
        f.choose("cmbCategories", QStringLiteral("Office"));
        QCOMPARE(f.names().size(), 0);
        QCOMPARE(f.headers().size(), 6);
    }

    void everyFilterAsksTheStoreForWhatItSays()
    {
        TasksPageFixture f;
        f.load();
        const QString join = bareJoin;
        RecordedStatements& statements = f.services.database.statements();
        f.choose("cmbCategories", QStringLiteral("Office"));
        QCOMPARE(statements.take(),
            QStringList{join + QStringLiteral(" where categories.cat_id= %1").arg(f.office)});
        f.choose("cmbCategories", QStringLiteral("All"));
        statements.take();
        f.choose("cmbStatus", QStringLiteral("Deferred"));
        QCOMPARE(statements.take(), QStringList{join + QStringLiteral(" where task_status = 4")});
        f.choose("cmbStatus", QStringLiteral("All"));
        statements.take();
        f.choose("cmbSort", QStringLiteral("Priority"));
        QCOMPARE(statements.take(), QStringList{join + QStringLiteral(" order by task_periority")});
        f.choose("cmbSort", QStringLiteral("None"));
        statements.take();
        f.select("opnActiveTasks");
        QCOMPARE(statements.take(), QStringList{join + QStringLiteral(" where task_due_date  >=now()")});
        f.select("opnExpiredTasks");
        QCOMPARE(statements.take(), QStringList{join + QStringLiteral(" where task_due_date  <now()")});
        f.select("opnAllTasks");
        QCOMPARE(statements.take(), QStringList{join});
        f.select("opnSpecificDate");
        QCOMPARE(statements.take(),
            QStringList{join
                + QStringLiteral(
                    " where task_due_date >= #1/15/2026# and task_due_date <= #1/15/2026 23:59# ")});
        f.control<QDateEdit>("dtpDueDateTo")->setDate(QDate(2026, 1, 31));
        QCOMPARE(statements.take(),
            QStringList{join
                + QStringLiteral(
                    " where task_due_date >= #1/15/2026# and task_due_date <= #1/31/2026 23:59# ")});
        f.control<QDateEdit>("dtpDueDateFrom")->setDate(QDate(2025, 12, 3));
        QCOMPARE(statements.take(),
            QStringList{join
                + QStringLiteral(
                    " where task_due_date >= #12/3/2025# and task_due_date <= #1/31/2026 23:59# ")});
    }

    void switchingBackToAllDatesDisablesThePickersAndDropsTheDateFilter()
    {
        TasksPageFixture f;
        f.load();
        f.select("opnSpecificDate");
        for (const char* name : {"lblDateFrom", "lblDateTo", "dtpDueDateFrom", "dtpDueDateTo"}) {
            QVERIFY2(f.control<QWidget>(name)->isEnabled(), name);
        }
        f.services.database.statements().take();
        f.select("opnAllDate");
        for (const char* name : {"lblDateFrom", "lblDateTo", "dtpDueDateFrom", "dtpDueDateTo"}) {
            QVERIFY2(!f.control<QWidget>(name)->isEnabled(), name);
        }
        QCOMPARE(f.services.database.statements().take(), QStringList{bareJoin});
    }

    void startingOnTodayListsOnlyTasksDueToday()
    {
        TasksPageFixture f;
        const Moment today = startOfDay(f.services.database.clock().now());
        aTask(f.services.database)
            .named(QStringLiteral("last minute"))
            .in(f.home)
            .dueAt(today + 23h + 59min)
            .add();
        aTask(f.services.database).named(QStringLiteral("midnight")).in(f.home).dueAt(today).add();
        aTask(f.services.database).named(QStringLiteral("tomorrow")).in(f.home).dueAt(today + 24h).add();
        aTask(f.services.database).named(QStringLiteral("yesterday")).in(f.home).dueAt(today - 1min).add();
        f.page.fillFilters();
        f.page.startWith(true);
        QVERIFY(f.control<QRadioButton>("opnSpecificDate")->isChecked());
        QCOMPARE(f.control<QDateEdit>("dtpDueDateFrom")->date(), QDate(2026, 1, 15));
        QCOMPARE(f.control<QDateEdit>("dtpDueDateTo")->date(), QDate(2026, 1, 15));
        QCOMPARE(f.names(), QStringList({QStringLiteral("last minute"), QStringLiteral("midnight")}));
    }

    void aListChosenWhileTheWindowIsHiddenWaitsForTheNextReload()
    {
        TasksPageFixture f;
        f.load();
        f.page.hide();
        f.choose("cmbStatus", QStringLiteral("Deferred"));
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }
};

AMBERTASK_TEST_MAIN(TasksPageFiltersTest)
#include "tst_taskspage_filters.moc"
