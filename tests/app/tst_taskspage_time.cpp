#include "TasksPageFixture.h"
#include "app/TaskFilters.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"
#include "widgets/GridModel.h"

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QDateEdit>
#include <QHeaderView>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>

using namespace std::chrono_literals;

namespace
{

enum Column { Name = 1, Status, DueDate };

QVariant ask(TasksPageFixture& f, int row, int column, int role)
{
    return f.page.grid()->model()->index(row, column).data(role);
}

RowInk ink(TasksPageFixture& f, int row)
{
    return static_cast<RowInk>(ask(f, row, Name, GridModel::InkRole).toInt());
}

QFont font(TasksPageFixture& f, int row, int column)
{
    return ask(f, row, column, Qt::FontRole).value<QFont>();
}

/// What assistive technology says of a cell beside its name.
QString described(TasksPageFixture& f, int row, int column)
{
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(f.page.grid());
    return seen->tableInterface()->cellAt(row, column)->text(QAccessible::Description);
}

std::pair<QDate, QDate> dates(TasksPageFixture& f)
{
    return {f.control<QDateEdit>("dtpDueDateFrom")->date(), f.control<QDateEdit>("dtpDueDateTo")->date()};
}

std::pair<QDate, QDate> both(QDate day)
{
    return {day, day};
}

const QDate Thursday(2026, 1, 15);
const QDate Friday(2026, 1, 16);

/// The page on Thursday at ten, with a task in each state; in this order.
struct FourTasks : TasksPageFixture {
    FourTasks()
    {
        const Moment now = services.database.clock().now();
        aTask(services.database).named(QStringLiteral("late")).in(home).dueAt(now - 1s).add();
        aTask(services.database).named(QStringLiteral("today")).in(home).dueAt(now + 1h).add();
        aTask(services.database).named(QStringLiteral("tomorrow")).in(home).dueAt(now + 24h).add();
        aTask(services.database)
            .named(QStringLiteral("done"))
            .in(home)
            .dueAt(now - 24h)
            .withStatus(TaskStatus::Completed)
            .add();
        load();
    }
};

/// The page, started with today's tasks; one task is due on Thursday, one on Friday.
struct TodaysTasks : TasksPageFixture {
    TodaysTasks()
    {
        const Moment now = services.database.clock().now();
        aTask(services.database).named(QStringLiteral("Thursday")).in(home).dueAt(now).add();
        aTask(services.database).named(QStringLiteral("Friday")).in(home).dueAt(now + 24h).add();
        load();
        page.startWith(true);
    }
    void tickAt(Moment moment)
    {
        services.database.clock().set(moment);
        page.followTime();
    }
    Moment midnight() const { return startOfDay(services.services.clock.now()) + 24h; }
};

} // namespace

/// What the page does when time passes.
class TasksPageTimeTest : public TestCase
{
    Q_OBJECT

private slots:
    void lateTodayAndDoneAreToldByColourAndByFont()
    {
        FourTasks f;
        QCOMPARE(ink(f, 0), RowInk::Overdue);
        QCOMPARE(ink(f, 1), RowInk::DueToday);
        QCOMPARE(ink(f, 2), RowInk::Usual);
        QCOMPARE(ink(f, 3), RowInk::Done);
        QVERIFY(font(f, 0, Name).bold() && font(f, 0, DueDate).bold());
        QVERIFY(!font(f, 1, Name).bold() && font(f, 1, DueDate).bold());
        QVERIFY(!ask(f, 2, Name, Qt::FontRole).isValid() && !ask(f, 2, DueDate, Qt::FontRole).isValid());
        QVERIFY(font(f, 3, Name).strikeOut() && !font(f, 3, Name).bold());
    }

    void withoutTheDueDatesTodayIsALineBelowTheName()
    {
        FourTasks f;
        f.columns.dueDate = false;
        f.page.LoadTasks();
        QVERIFY(font(f, 1, Name).underline());
        QVERIFY(!font(f, 0, Name).underline() && font(f, 0, Name).bold());
    }

    void rowsAreAsHighAsOthers()
    {
        FourTasks f;
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(f.page.grid()->rowHeight(row), f.page.grid()->verticalHeader()->defaultSectionSize());
        }
    }

    void theToolTipAndAssistiveTechnologySayWhatIsOverdueOrDueToday()
    {
        FourTasks f;
        QCOMPARE(described(f, 0, 0), QStringLiteral("Overdue\nCategory: Home"));
        QCOMPARE(described(f, 1, 0), QStringLiteral("Due today\nCategory: Home"));
        QCOMPARE(described(f, 2, 0), QStringLiteral("Category: Home"));
        QCOMPARE(described(f, 3, 0), QStringLiteral("Category: Home"));
        QCOMPARE(ask(f, 3, Status, Qt::AccessibleTextRole).toString(), QStringLiteral("Completed"));
        QCOMPARE(described(f, 0, 1), QStringLiteral("Overdue"));
        QVERIFY(ask(f, 0, Name, Qt::ToolTipRole).toString().contains(QStringLiteral("Overdue")));
        QVERIFY(ask(f, 1, DueDate, Qt::ToolTipRole).toString().contains(QStringLiteral("Due today")));
    }

    void aTaskBecomesLateWhileTheListIsShown()
    {
        FourTasks f;
        const QSignalSpy changes(f.page.grid()->model(), &QAbstractItemModel::dataChanged);
        f.services.database.clock().step(1h);
        f.page.followTime();
        QCOMPARE(ink(f, 1), RowInk::DueToday);
        QCOMPARE(changes.count(), 0);
        f.services.database.clock().step(1s);
        f.page.followTime();
        QCOMPARE(ink(f, 1), RowInk::Overdue);
        QCOMPARE(changes.count(), 1);
        f.page.followTime();
        QCOMPARE(changes.count(), 1);
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void aTaskBecomesTodaysAtMidnight()
    {
        FourTasks f;
        f.services.database.clock().set(makeMoment(2026y / 1 / 15, 24h - 1s));
        f.page.followTime();
        QCOMPARE(ink(f, 2), RowInk::Usual);
        f.services.database.clock().step(1s);
        f.page.followTime();
        QCOMPARE(ink(f, 2), RowInk::DueToday);
    }

    void aClockThatIsSetBackMakesTasksDueAgain()
    {
        FourTasks f;
        f.services.database.clock().step(-10s);
        f.page.followTime();
        QCOMPARE(ink(f, 0), RowInk::DueToday);
    }

    void timeLeavesSelectionAndScrollingAlone()
    {
        TasksPageFixture f;
        for (int i = 0; i < 100; ++i) {
            aTask(f.services.database).in(f.home).add();
        }
        f.load();
        f.page.grid()->selectOnly(70);
        QScrollBar* bar = f.page.grid()->verticalScrollBar();
        const int place = bar->maximum() / 3;
        bar->setValue(place);
        QVERIFY(place > 0);
        f.services.database.clock().step(24h);
        f.page.followTime();
        QCOMPARE(ink(f, 70), RowInk::Overdue);
        QCOMPARE(f.page.grid()->selectedRows(), QList<int>{70});
        QCOMPARE(bar->value(), place);
    }

    void todaysTasksAreThoseOfTheNewDay()
    {
        TodaysTasks f;
        QCOMPARE(f.names(), QStringList{QStringLiteral("Thursday")});
        f.tickAt(f.midnight() - 1s);
        QCOMPARE(dates(f), both(Thursday));
        f.tickAt(f.midnight());
        QCOMPARE(dates(f), both(Friday));
        QCOMPARE(f.names(), QStringList{QStringLiteral("Friday")});
        QVERIFY(f.control<QRadioButton>("opnSpecificDate")->isChecked());
        f.services.database.statements().take();
        f.tickAt(f.midnight() - 1s);
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void todaysTasksAreShownAfterDaysOfSleepAndWithAClockSetBack()
    {
        TodaysTasks f;
        f.tickAt(f.midnight() + 72h);
        QCOMPARE(dates(f), both(QDate(2026, 1, 19)));
        f.tickAt(makeMoment(2026y / 1 / 16, 3h));
        QCOMPARE(dates(f), both(Friday));
    }

    void whoHasTouchedTheDatesKeepsThem_data()
    {
        QTest::addColumn<QString>("touch");
        for (const char* touch :
            {"from", "to", "there and back", "all dates", "all and specific", "show all"}) {
            QTest::newRow(touch) << QString::fromLatin1(touch);
        }
    }
    void whoHasTouchedTheDatesKeepsThem()
    {
        QFETCH(const QString, touch);
        TodaysTasks f;
        auto* from = f.control<QDateEdit>("dtpDueDateFrom");
        auto* to = f.control<QDateEdit>("dtpDueDateTo");
        if (touch == QLatin1String("from")) {
            from->setDate(Thursday.addDays(-1));
        } else if (touch == QLatin1String("to")) {
            to->setDate(Friday);
        } else if (touch == QLatin1String("there and back")) {
            to->setDate(Friday);
            to->setDate(Thursday);
        } else if (touch == QLatin1String("show all")) {
            f.page.findChild<TaskFilters*>()->showAll();
        } else {
            f.select("opnAllDate");
            if (touch == QLatin1String("all and specific")) {
                f.select("opnSpecificDate");
            }
        }
        const auto before = dates(f);
        const QStringList names = f.names();
        f.tickAt(f.midnight());
        QCOMPARE(dates(f), before);
        QCOMPARE(f.names(), names);
    }

    void otherFiltersDoNotHoldTheDatesBack()
    {
        TodaysTasks f;
        f.choose("cmbStatus", QStringLiteral("Not Started"));
        f.select("opnActiveTasks");
        f.tickAt(f.midnight());
        QCOMPARE(dates(f), both(Friday));
        QCOMPARE(f.names(), QStringList{QStringLiteral("Friday")});
    }

    void withoutTheSettingTheDatesStay()
    {
        TodaysTasks f;
        f.page.startWith(false);
        f.tickAt(f.midnight());
        QCOMPARE(dates(f), both(Thursday));
        QCOMPARE(f.names().size(), 2);
    }

    void aStoreThatCannotBeReadIsAskedAgain()
    {
        TodaysTasks f;
        f.services.database.statements().failAt(QStringLiteral("select"));
        f.tickAt(f.midnight());
        QCOMPARE(f.names(), QStringList{QStringLiteral("Thursday")});
        f.services.database.statements().failAt({});
        f.page.followTime();
        QCOMPARE(dates(f), both(Friday));
        QCOMPARE(f.names(), QStringList{QStringLiteral("Friday")});
        f.services.database.statements().take();
        f.page.followTime();
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void aListThatCouldNotBeReadAfterAFilterIsReadByTheNextTick()
    {
        TodaysTasks f;
        f.page.startWith(false);
        f.services.database.statements().failAt(QStringLiteral("select"));
        f.services.dialogs.expectError(QStringLiteral("select"));
        f.choose("cmbSort", QStringLiteral("Name"));
        QCOMPARE(f.names().first(), QStringLiteral("Thursday"));
        f.services.database.statements().failAt({});
        f.page.followTime();
        QCOMPARE(f.names().first(), QStringLiteral("Friday"));
        f.services.database.statements().take();
        f.page.followTime();
        QCOMPARE(f.services.database.statements().take(), QStringList());
    }

    void anOpenMenuKeepsItsRowsThroughMidnight()
    {
        TodaysTasks f;
        QMenu menu;
        menu.addAction(QStringLiteral("about the selected row"));
        menu.popup({});
        f.tickAt(f.midnight());
        QCOMPARE(f.names(), QStringList{QStringLiteral("Thursday")});
        QCOMPARE(dates(f), both(Thursday));
        menu.close();
        f.page.followTime();
        QCOMPARE(f.names(), QStringList{QStringLiteral("Friday")});
        QCOMPARE(dates(f), both(Friday));
    }
};

AMBERTASK_TEST_MAIN(TasksPageTimeTest)
#include "tst_taskspage_time.moc"
