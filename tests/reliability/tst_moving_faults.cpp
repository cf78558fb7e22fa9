#include "data/RepeatRules.h"
#include "data/TaskChanges.h"
#include "data/TaskRepeats.h"
#include "reliability/DataFileState.h"
#include "reliability/Sweep.h"
#include "support/TestDatabase.h"
#include "support/TestMain.h"

#include <QTest>

namespace
{

using namespace std::chrono_literals;

std::string stateIn(const std::string& folder)
{
    return dataFileState(folder);
}

} // namespace

/// Moving repeating tasks on with every fault of the disk: the task and what is known of its series change
/// together or not at all.
class TestMovingFaults : public TestCase
{
    Q_OBJECT

private slots:
    void completedTasksMoveOnAllOrNone() { tryChange(TaskChanges::complete); }
    void dismissedRemindersMoveOnAllOrNone() { tryChange(TaskChanges::dismiss); }
    void deletingOnceIsDoneWholeOrNot() { tryChange(TaskChanges::moveOn); }
    void aTaskIsStoredWithItsRuleOrNot();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    using Change = void (*)(const DatabaseEngine&, const QList<qint32>&);
    void tryChange(Change change);

    SweepTotals m_all;
};

void TestMovingFaults::tryChange(Change change)
{
    TestDatabase database;
    Repeating repeating;
    repeating.setUsed(true);
    DatabaseEngine engine = database.engine();
    engine.repeating = &repeating;
    const Moment now = database.clock().now();
    QList<qint32> ids;
    for (int i = 0; i < 40; ++i) {
        ids.append(
            aTask(database).describedAs(QString(200, u'x')).dueAt(now - 1h).remindingAt(now - 1h).add());
        // Of every third the last time, of every third none.
        if (i % 3 > 0) {
            database.sql(QStringLiteral("insert into repeats values(%1,'FREQ=DAILY;COUNT=%2','2026-01-15 "
                                        "09:00:00',0,0)")
                             .arg(ids.last())
                             .arg(i % 3));
        }
    }
    m_all.tryEverything(database.folder(), {[&] { return told([&] { change(engine, ids); }); }, stateIn});
}

void TestMovingFaults::aTaskIsStoredWithItsRuleOrNot()
{
    TestDatabase database;
    Repeating repeating;
    DatabaseEngine engine = database.engine();
    engine.repeating = &repeating;
    ClsTask task(engine);
    task.setId(aTask(database).add());
    task.setCategoryId(1);
    task.setDueDateTime(database.clock().now());
    task.setReminderDateTime(database.clock().now());
    task.setRepeat(Repeat{"FREQ=DAILY", database.clock().now(), 0min, 0});
    const auto update = [&] {
        repeating.setUsed(false);
        return told([&] { task.Update(); });
    };
    m_all.tryEverything(database.folder(), {update, stateIn});
}

AMBERTASK_TEST_MAIN(TestMovingFaults)
#include "tst_moving_faults.moc"
