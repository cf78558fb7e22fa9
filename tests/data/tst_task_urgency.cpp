#include "data/TaskCodes.h"
#include "data/TaskUrgency.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

namespace
{

/// On 15 January 2026.
Moment at(std::chrono::seconds time)
{
    return makeMoment(2026y / 1 / 15, time);
}

const Moment Now = at(10h);

} // namespace

Q_DECLARE_METATYPE(TaskUrgency)

class TaskUrgencyTest : public TestCase
{
    Q_OBJECT

private slots:
    void aTaskIsLateFromTheSecondAfterItsMoment_data()
    {
        QTest::addColumn<Moment>("due");
        QTest::addColumn<TaskUrgency>("urgency");
        QTest::newRow("long ago") << Now - 1000 * 24h << TaskUrgency::Overdue;
        QTest::newRow("yesterday") << at(0s) - 1s << TaskUrgency::Overdue;
        QTest::newRow("this morning") << at(0s) << TaskUrgency::Overdue;
        QTest::newRow("a second ago") << Now - 1s << TaskUrgency::Overdue;
        QTest::newRow("now") << Now << TaskUrgency::DueToday;
        QTest::newRow("tonight") << at(24h) - 1s << TaskUrgency::DueToday;
        QTest::newRow("at midnight") << at(24h) << TaskUrgency::Later;
        QTest::newRow("in a year") << Now + 365 * 24h << TaskUrgency::Later;
    }
    void aTaskIsLateFromTheSecondAfterItsMoment()
    {
        QFETCH(const Moment, due);
        QFETCH(const TaskUrgency, urgency);
        for (const qint32 status :
            {TaskStatus::NotStarted, TaskStatus::InProgress, TaskStatus::Waiting, TaskStatus::Deferred, 77}) {
            QCOMPARE(urgencyOf(status, due, Now), urgency);
        }
        QCOMPARE(urgencyOf(TaskStatus::Completed, due, Now), TaskUrgency::Done);
    }

    // Another answer at that second, the same one a second before it: tasks only grow more urgent, so there
    // is no change in between.
    void theNextChangeIsTheFirst_data() { aTaskIsLateFromTheSecondAfterItsMoment_data(); }
    void theNextChangeIsTheFirst()
    {
        QFETCH(const Moment, due);
        QFETCH(const TaskUrgency, urgency);
        const std::optional<Moment> change = nextUrgencyChange(TaskStatus::NotStarted, due, Now);
        QCOMPARE(change.has_value(), urgency != TaskUrgency::Overdue);
        if (change) {
            QVERIFY(*change > Now);
            QCOMPARE(urgencyOf(TaskStatus::NotStarted, due, *change - 1s), urgency);
            QVERIFY(urgencyOf(TaskStatus::NotStarted, due, *change) != urgency);
        }
        QVERIFY(!nextUrgencyChange(TaskStatus::Completed, due, Now));
    }
};

AMBERTASK_TEST_MAIN(TaskUrgencyTest)
#include "tst_task_urgency.moc"
