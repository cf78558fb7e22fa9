#include "TasksPageFixture.h"
#include "app/UndoBar.h"
#include "support/TestMain.h"

using namespace std::chrono_literals;

namespace
{

using Times = MessageBoxes::Times;

/// A list of "once" and of "daily", which is due tomorrow at 10:00 and then every day.
struct RepeatingList : TasksPageFixture {
    RepeatingList()
    {
        once = aTask(services.database).named(QStringLiteral("once")).in(home).add();
        daily = aTask(services.database)
                    .named(QStringLiteral("daily"))
                    .in(home)
                    .dueAt(now() + 24h)
                    .remindingAt(now() + 23h)
                    .repeating()
                    .add();
        load();
        page.focusList();
    }
    Moment now() { return services.services.clock.now(); }
    QModelIndex cell(int row, TaskListModel::Field field) { return page.grid()->model()->index(row, field); }
    QString dueOf(qint32 id)
    {
        return services.database
            .sql(QStringLiteral("select substr(task_due_date,1,16) from tasks where task_id=%1").arg(id))
            .toString();
    }
    void deleteSelected(const char* question, Times answer)
    {
        services.dialogs.expectWhichTimes(QLatin1String(question), answer);
        press("btnTaskDelete");
    }
    static constexpr char OneRepeats[] =
        "This task repeats. Do you want to delete it this time, or all times?";

    qint32 once = 0;
    qint32 daily = 0;
};

} // namespace

/// What the list shows of tasks that repeat, and does with them.
class RepeatingTasksTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskThatRepeatsHasASignThatIsToldInWords()
    {
        RepeatingList f;
        const QModelIndex sign = f.cell(1, TaskListModel::Reminder);
        QVERIFY(sign.data(Qt::ToolTipRole).toString().contains(QLatin1String("Repeats every day")));
        QVERIFY(sign.data(Qt::AccessibleDescriptionRole).toString().contains(QLatin1String("every day")));
        QCOMPARE(sign.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Reminder on"));
        QVERIFY(f.cell(1, TaskListModel::Name)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QLatin1String("Repeats every day")));
        QVERIFY(!f.cell(0, TaskListModel::Reminder)
                     .data(Qt::ToolTipRole)
                     .toString()
                     .contains(QLatin1String("epeats")));
        const auto picture = [&f](int row) {
            return f.cell(row, TaskListModel::Reminder).data(Qt::DecorationRole).value<QIcon>();
        };
        QVERIFY(picture(0).isNull());
        QVERIFY(!picture(1).isNull());
        QVERIFY(picture(1).cacheKey() != f.services.images.icon(12).cacheKey());
    }

    void deletedThisTimeItMovesOn()
    {
        RepeatingList f;
        f.page.grid()->selectOnly(1);
        f.deleteSelected(RepeatingList::OneRepeats, Times::This);
        QCOMPARE(f.names(), QStringList({QStringLiteral("once"), QStringLiteral("daily")}));
        QCOMPARE(f.dueOf(f.daily), QStringLiteral("2026-01-17 10:00"));
        QCOMPARE(f.services.undo.undoText(), QStringLiteral("1 task moved on to its next time"));
        f.services.undo.undo();
        QCOMPARE(f.dueOf(f.daily), QStringLiteral("2026-01-16 10:00"));
    }

    void deletedForAllTimesItIsGoneAndComesBackAsItRepeated()
    {
        RepeatingList f;
        f.page.grid()->selectOnly(1);
        f.deleteSelected(RepeatingList::OneRepeats, Times::All);
        QCOMPARE(f.names(), QStringList(QStringLiteral("once")));
        f.services.undo.undo();
        f.page.LoadTasks();
        QVERIFY(f.cell(1, TaskListModel::Reminder)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QLatin1String("Repeats every day")));
    }

    void cancelledNothingIsDeleted()
    {
        RepeatingList f;
        f.page.grid()->selectOnly(1);
        f.deleteSelected(RepeatingList::OneRepeats, Times::None);
        QCOMPARE(f.names().size(), 2);
        QVERIFY(!f.services.undo.canUndo());
    }

    void ofSeveralTheOthersAreDeleted()
    {
        RepeatingList f;
        f.page.grid()->selectRows({0, 1});
        f.deleteSelected("Some of the tasks repeat. Do you want to delete those this time, or all times?\n"
                         "The others are deleted.",
            Times::This);
        QCOMPARE(f.names(), QStringList(QStringLiteral("daily")));
        QCOMPARE(f.dueOf(f.daily), QStringLiteral("2026-01-17 10:00"));
    }

    void completedByItsKeyItMovesOnAndStaysOpen()
    {
        RepeatingList f;
        f.page.grid()->selectOnly(1);
        f.page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.page));
        QTest::keyClick(f.page.grid(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(f.dueOf(f.daily), QStringLiteral("2026-01-17 10:00"));
        QCOMPARE(f.services.database.storedOfAll("task_status"), QStringLiteral("0 0"));
        QCOMPARE(f.services.database.storedOfAll("substr(reminder_date_time,9,5)").section(u' ', -2),
            QStringLiteral("17 09"));
    }
};

AMBERTASK_TEST_MAIN(RepeatingTasksTest)
#include "tst_repeating_tasks.moc"
