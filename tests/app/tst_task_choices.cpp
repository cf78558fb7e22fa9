#include "app/TaskChoices.h"
#include "data/TaskCodes.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

TaskState aState(qint32 id, qint32 status = TaskStatus::NotStarted)
{
    return {id, status, TaskPeriority::Normal, 1, false};
}

} // namespace

/// What can be done with the selected tasks, decided without a window.
class tst_task_choices : public TestCase
{
    Q_OBJECT

private slots:
    void completingSetsBackOnlyWhenAllAreCompleted_data()
    {
        QTest::addColumn<QList<qint32>>("statuses");
        QTest::addColumn<bool>("setsBack");
        const qint32 done = TaskStatus::Completed;
        QTest::newRow("none") << QList<qint32>{} << false;
        QTest::newRow("a completed one") << QList<qint32>{done} << true;
        QTest::newRow("an open one") << QList<qint32>{TaskStatus::Deferred} << false;
        QTest::newRow("several completed ones") << QList<qint32>{done, done} << true;
        QTest::newRow("the first completed") << QList<qint32>{done, TaskStatus::NotStarted} << false;
        QTest::newRow("the last completed") << QList<qint32>{TaskStatus::Waiting, done} << false;
    }

    void completingSetsBackOnlyWhenAllAreCompleted()
    {
        QFETCH(QList<qint32>, statuses);
        QFETCH(bool, setsBack);
        QList<TaskState> tasks;
        for (const qint32 status : statuses) {
            tasks.append(aState(1, status));
        }
        QCOMPARE(TaskChoices(tasks).areAllCompleted(), setsBack);
        QCOMPARE(TaskChoices(tasks).completeCaption(),
            setsBack ? QStringLiteral("Set Ba&ck to \"Not Started\"") : QStringLiteral("&Complete"));
    }

    void onlyTasksWithTheirReminderOnCanBePostponed()
    {
        TaskState reminding = aState(2);
        reminding.reminderOn = true;
        const TaskChoices tasks({aState(1), reminding, aState(3)});
        QCOMPARE(tasks.ids(), QList<qint32>({1, 2, 3}));
        QCOMPARE(tasks.idsWithReminder(), QList<qint32>{2});
        QVERIFY(TaskChoices({aState(1)}).idsWithReminder().isEmpty());
    }

    void whatAllHaveInCommonIsKnown()
    {
        TaskState other = aState(2, TaskStatus::Waiting);
        other.category = 7;
        const TaskChoices tasks({aState(1), other});
        QCOMPARE(tasks.commonStatus(), std::nullopt);
        QCOMPARE(tasks.commonCategory(), std::nullopt);
        QCOMPARE(tasks.commonPeriority(), std::optional(TaskPeriority::Normal));
        QCOMPARE(TaskChoices({other}).commonCategory(), std::optional(7));
        QCOMPARE(TaskChoices({}).commonStatus(), std::nullopt);
    }

    void oneIsAskedForAsEverAndSeveralWithTheirNumber()
    {
        QCOMPARE(TaskChoices({aState(1)}).deleteQuestion(),
            QStringLiteral("Are you sure you want to delete this task?"));
        QCOMPARE(TaskChoices({aState(1), aState(2)}).deleteQuestion(),
            QStringLiteral("Are you sure you want to delete 2 tasks?"));
    }

    void ofTasksThatRepeatItIsAskedWhichTimesAreMeant()
    {
        TaskState repeating = aState(2);
        repeating.repeats = true;
        QCOMPARE(TaskChoices({aState(1)}).repeatingCount(), 0);
        QCOMPARE(TaskChoices({repeating}).deleteQuestion(),
            QStringLiteral("This task repeats. Do you want to delete it this time, or all times?"));
        const TaskChoices both({aState(1), repeating});
        QCOMPARE(both.repeatingCount(), 1);
        QCOMPARE(both.deleteQuestion(),
            QStringLiteral("Some of the tasks repeat. Do you want to delete those this time, or all times?\n"
                           "The others are deleted."));
        QCOMPARE(TaskChoices({repeating, repeating}).deleteQuestion(),
            QStringLiteral("These tasks repeat. Do you want to delete them this time, or all times?"));
    }
};

AMBERTASK_TEST_MAIN(tst_task_choices)
#include "tst_task_choices.moc"
