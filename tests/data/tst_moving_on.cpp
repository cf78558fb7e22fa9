#include "RepeatsUnderTest.h"
#include "data/ReminderChecker.h"
#include "data/TaskChanges.h"
#include "data/TaskCodes.h"
#include "support/OtherProgram.h"
#include "support/TestMain.h"

#include <QTest>

using namespace std::chrono_literals;

class TestMovingOn : public TestCase
{
    Q_OBJECT

private slots:
    void aCompletedTaskIsDueAtTheNextMoment_data();
    void aCompletedTaskIsDueAtTheNextMoment();
    void theLastTimeIsCompletedForGood();
    void aRuleThatCannotBeReadIsOverAtOnce();
    void theStatusCompletedMovesOnAndOthersDoNot();
    void aDismissedReminderComesForTheNextMoment_data();
    void aDismissedReminderComesForTheNextMoment();
    void theLastReminderIsDismissedAsAny();
    void allDueRemindersAreDismissedAtOnce();
    void noReminderComesTwiceWhenTheClockIsSetBack();
    void aReminderThatHasComeStaysWhenTheTimeBeforeIsCompleted_data();
    void aReminderThatHasComeStaysWhenTheTimeBeforeIsCompleted();
    void aReminderThatIsSeenIsNotSeenAgainWhenItIsCompleted();
    void nobodyElseWritesBetweenReadingAndMovingOn();
    void postponingMovesThisReminderAlone();
    void deletingOnceMovesOnUntilTheLastTime();
    void aCopyRepeatsToo();
    void whatIsTakenBackAndDoneAgainHasEveryColumn_data();
    void whatIsTakenBackAndDoneAgainHasEveryColumn();
    void aDeletedTaskTakesItsRuleAlong();
    void otherTasksDoNotMoveOn();
    void aLeadBeyondAllMomentsEndsAtTheirEnd();
};

void TestMovingOn::aCompletedTaskIsDueAtTheNextMoment_data()
{
    QTest::addColumn<int>("dueIn"); // minutes from now
    QTest::addColumn<int>("lead");
    QTest::addColumn<QString>("state");
    QTest::newRow("overdue") << -60 << 0 << QStringLiteral("0 01-16 09:00 01-16 09:00 100 1");
    QTest::newRow("due now") << 0 << 0 << QStringLiteral("0 01-16 10:00 01-16 10:00 100 1");
    QTest::newRow("before it is due") << 60 << 15 << QStringLiteral("0 01-16 11:00 01-16 10:45 100 1");
    QTest::newRow("a day before") << 1500 << 0 << QStringLiteral("0 01-17 11:00 01-17 11:00 100 1");
    QTest::newRow("many times overdue")
        << -60 * 24 * 40 - 60 << 30 << QStringLiteral("0 01-16 09:00 01-16 08:30 100 1");
    QTest::newRow("reminding afterwards") << -60 << -90 << QStringLiteral("0 01-16 09:00 01-16 10:30 100 1");
}

void TestMovingOn::aCompletedTaskIsDueAtTheNextMoment()
{
    QFETCH(const int, dueIn);
    QFETCH(const int, lead);
    QFETCH(const QString, state);
    RepeatsUnderTest test;
    const qint32 id =
        test.add(test.now() + std::chrono::minutes(dueIn), "FREQ=DAILY", std::chrono::minutes(lead));
    const qint32 other = aTask(test.database).add();
    TaskChanges::complete(test.engine, {other, id});
    QCOMPARE(test.stateOf(id), state);
    QVERIFY(test.stateOf(other).startsWith(QLatin1String("2 ")));
}

void TestMovingOn::theLastTimeIsCompletedForGood()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 25h, "FREQ=DAILY;COUNT=3");
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-16 09:00 01-16 09:00 100 1"));
    test.database.clock().step(24h);
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("2 01-16 09:00 01-16 09:00 001"));
}

void TestMovingOn::aRuleThatCannotBeReadIsOverAtOnce()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h, "it's");
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("2 01-15 09:00 01-15 09:00 011"));
}

void TestMovingOn::theStatusCompletedMovesOnAndOthersDoNot()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    TaskChanges::setStatus(test.engine, {id}, TaskStatus::Deferred);
    QCOMPARE(test.stateOf(id), QStringLiteral("4 01-15 09:00 01-15 09:00 110 0"));
    TaskChanges::setStatus(test.engine, {id}, TaskStatus::Completed);
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-16 09:00 01-16 09:00 100 1"));
}

void TestMovingOn::aDismissedReminderComesForTheNextMoment_data()
{
    QTest::addColumn<int>("dueIn"); // minutes from now
    QTest::addColumn<int>("lead");
    QTest::addColumn<QString>("state");
    QTest::newRow("at the moment itself") << 0 << 0 << QStringLiteral("0 01-16 10:00 01-16 10:00 100 1");
    QTest::newRow("before it is due") << 10 << 15 << QStringLiteral("1 01-15 10:10 01-16 09:55 100 0");
    QTest::newRow("days before it is due")
        << 1500 << 2880 << QStringLiteral("1 01-16 11:00 01-15 11:00 100 0");
    QTest::newRow("after it was due") << -10 << 15 << QStringLiteral("0 01-16 09:50 01-16 09:35 100 1");
    QTest::newRow("after it was due, and after the next reminder")
        << -1430 << 15 << QStringLiteral("0 01-15 10:10 01-16 09:55 100 1");
    QTest::newRow("many missed ones")
        << -60 * 24 * 40 - 60 << 0 << QStringLiteral("0 01-16 09:00 01-16 09:00 100 41");
    QTest::newRow("one that comes afterwards")
        << -60 << -60 << QStringLiteral("0 01-16 09:00 01-16 10:00 100 1");
    QTest::newRow("one that comes days afterwards")
        << -60 * 36 << -60 * 36 << QStringLiteral("0 01-14 22:00 01-16 10:00 100 1");
}

void TestMovingOn::aDismissedReminderComesForTheNextMoment()
{
    QFETCH(const int, dueIn);
    QFETCH(const int, lead);
    QFETCH(const QString, state);
    RepeatsUnderTest test;
    const qint32 id =
        test.add(test.now() + std::chrono::minutes(dueIn), "FREQ=DAILY", std::chrono::minutes(lead));
    QCOMPARE(ReminderChecker(test.engine).due().size(), 1U);
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), state);
    QCOMPARE(ReminderChecker(test.engine).due().size(), 0U);
}

void TestMovingOn::theLastReminderIsDismissedAsAny()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h, "FREQ=DAILY;COUNT=1");
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("1 01-15 09:00 01-15 09:00 011 0"));
}

void TestMovingOn::allDueRemindersAreDismissedAtOnce()
{
    RepeatsUnderTest test;
    const qint32 repeating = test.add(test.now() - 1h);
    const qint32 last = test.add(test.now() - 1h, "FREQ=DAILY;COUNT=1");
    const qint32 later = test.add(test.now() + 1h);
    const qint32 once = aTask(test.database).remindingAt(test.now() - 1h).add();
    const int opened = test.database.statements().opened();
    QCOMPARE(TaskChanges::dismissDue(test.engine), 3);
    QCOMPARE(test.database.statements().opened(), opened + 1);
    QCOMPARE(test.stateOf(repeating), QStringLiteral("0 01-16 09:00 01-16 09:00 100 1"));
    QCOMPARE(test.stateOf(last), QStringLiteral("1 01-15 09:00 01-15 09:00 011 0"));
    QCOMPARE(test.stateOf(later), QStringLiteral("1 01-15 11:00 01-15 11:00 110 0"));
    QVERIFY(test.stateOf(once).endsWith(QLatin1String("001")));
}

void TestMovingOn::noReminderComesTwiceWhenTheClockIsSetBack()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    TaskChanges::complete(test.engine, {id});
    test.database.clock().step(-48h);
    QCOMPARE(ReminderChecker(test.engine).due().size(), 0U);
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-17 09:00 01-17 09:00 100 2"));
    // Seen on the screen, and the clock is set back before it is dismissed.
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-17 09:00 01-18 09:00 100 2"));
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-17 09:00 01-19 09:00 100 2"));
    // Far forward: one step.
    test.database.clock().step(24h * 400);
    TaskChanges::dismiss(test.engine, {id});
    QVERIFY(test.stateOf(id).startsWith(QLatin1String("0 02-18 09:00 02-18 09:00 100")));
}

void TestMovingOn::aReminderThatHasComeStaysWhenTheTimeBeforeIsCompleted_data()
{
    QTest::addColumn<int>("reminder"); // minutes from now
    QTest::addColumn<QString>("state");
    QTest::newRow("shown") << -5 << QStringLiteral("0 01-15 10:10 01-15 09:55 110 1");
    QTest::newRow("about to be shown") << 0 << QStringLiteral("0 01-15 10:10 01-15 10:00 110 1");
    QTest::newRow("put off") << 90 << QStringLiteral("0 01-15 10:10 01-15 11:30 110 1");
    QTest::newRow("not yet come") << -6 << QStringLiteral("0 01-15 10:10 01-15 09:55 100 1");
}

void TestMovingOn::aReminderThatHasComeStaysWhenTheTimeBeforeIsCompleted()
{
    QFETCH(const int, reminder);
    QFETCH(const QString, state);
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 24h + 10min, "FREQ=DAILY", 15min);
    test.database.sql(
        QStringLiteral("update tasks set reminder_date_time='%1'")
            .arg(QString::fromStdString(storedText(test.now() + std::chrono::minutes(reminder)))));
    TaskChanges::complete(test.engine, {id});
    QCOMPARE(test.stateOf(id), state);
}

void TestMovingOn::aReminderThatIsSeenIsNotSeenAgainWhenItIsCompleted()
{
    RepeatsUnderTest test;
    // Due at 10:10; dismissed before that, and not completed.
    const qint32 id = test.add(test.now() + 10min, "FREQ=DAILY", 15min);
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("1 01-15 10:10 01-16 09:55 100 0"));
    test.database.clock().step(24h);
    TaskChanges::completeReminded(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-17 10:10 01-17 09:55 100 1"));
    // Put off, it is that of the same time all the same.
    test.database.clock().step(24h);
    TaskChanges::remindAt(test.engine, {id}, test.now() + 5min);
    test.database.clock().step(6min);
    TaskChanges::completeReminded(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-18 10:10 01-18 09:55 100 2"));
}

void TestMovingOn::nobodyElseWritesBetweenReadingAndMovingOn()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    class Intruder final : public StatementListener
    {
    public:
        explicit Intruder(const TestDatabase& database) : m_database(database) { }
        void connectionOpened(const QString&) override { }
        void connectionClosed() override { }
        void statementExecuted(QStringView statement) override
        {
            if (statement.startsWith(QLatin1String("select"))) {
                ++tried;
                written += OtherProgram(m_database, OtherProgram::Writing).holds() ? 1 : 0;
            }
        }
        int tried = 0;
        int written = 0;

    private:
        const TestDatabase& m_database;
    };
    Intruder intruder(test.database);
    test.engine.listener = &intruder;
    TaskChanges::complete(test.engine, {id});
    TaskChanges::dismissDue(test.engine);
    QVERIFY(intruder.tried >= 2);
    QCOMPARE(intruder.written, 0);
}

void TestMovingOn::postponingMovesThisReminderAlone()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() + 5min, "FREQ=DAILY", 5min);
    TaskChanges::postpone(test.engine, {id}, test.now() + 50h);
    QCOMPARE(test.stateOf(id), QStringLiteral("1 01-15 10:05 01-17 12:00 100 0"));
    test.database.clock().step(50h);
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-18 10:05 01-18 10:00 100 3"));
    // Reminded of it early, and that is enough.
    TaskChanges::remindAt(test.engine, {id}, test.now() + 1h);
    test.database.clock().step(2h);
    TaskChanges::dismiss(test.engine, {id});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-18 10:05 01-19 10:00 100 3"));
}

void TestMovingOn::deletingOnceMovesOnUntilTheLastTime()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    const qint32 last = test.add(test.now() - 1h, "FREQ=DAILY;COUNT=1");
    const qint32 once = aTask(test.database).add();
    TaskChanges::moveOn(test.engine, {id, last, once});
    QCOMPARE(test.stateOf(id), QStringLiteral("0 01-16 09:00 01-16 09:00 100 1"));
    QCOMPARE(test.database.sql(QStringLiteral("select count(*) from tasks")).toInt(), 1);
}

void TestMovingOn::aCopyRepeatsToo()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() + 1h, "FREQ=DAILY;INTERVAL=3", 5min);
    const qint32 copy = TaskChanges::duplicate(test.engine, {id}).constFirst();
    QVERIFY(TaskRepeats::of(test.engine, copy) && copy != id);
    QVERIFY(TaskRepeats::of(test.engine, copy) == TaskRepeats::of(test.engine, id));
}

using Change = std::function<void(const DatabaseEngine&, const QList<qint32>&)>;

void TestMovingOn::whatIsTakenBackAndDoneAgainHasEveryColumn_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("complete") << Change(TaskChanges::complete);
    QTest::newRow("status") << Change([](const auto& engine, const auto& ids) {
        TaskChanges::setStatus(engine, ids, TaskStatus::Completed);
    });
    QTest::newRow("dismiss") << Change(TaskChanges::dismiss);
    QTest::newRow("dismiss all") << Change(
        [](const auto& engine, const auto&) { TaskChanges::dismissDue(engine); });
    QTest::newRow("delete once") << Change(TaskChanges::moveOn);
    QTest::newRow("delete") << Change(TaskChanges::remove);
    QTest::newRow("duplicate") << Change(
        [](const auto& engine, const auto& ids) { TaskChanges::duplicate(engine, ids); });
    QTest::newRow("edit") << Change([](const auto& engine, const auto& ids) {
        ClsTask task = *ClsTask(engine).GetTaskById(static_cast<qint16>(ids.first()));
        task.setRepeat(Repeat{"FREQ=DAILY;INTERVAL=9", task.DueDateTime(), 7min, 0});
        task.Update();
    });
}

void TestMovingOn::whatIsTakenBackAndDoneAgainHasEveryColumn()
{
    QFETCH(const Change, change);
    RepeatsUnderTest test;
    const QList<qint32> ids{test.add(test.now() - 1h), test.add(test.now() - 1h, "FREQ=DAILY;COUNT=1"),
        aTask(test.database).remindingAt(test.now() - 1h).add()};
    const auto before = test.everything();
    UndoHistory history(test.engine);
    history.run([&](const DatabaseEngine& engine) {
        change(engine, ids);
        return QString();
    });
    const auto after = test.everything();
    QVERIFY(after != before);
    // What the checker marks meanwhile keeps nothing from being taken back.
    test.database.sql(QStringLiteral("update tasks set played=1"));
    test.repeating.setUsed(false);
    history.undo();
    const auto unplayed = [](QList<QVariantList> rows) {
        constexpr int Played = 11;
        for (QVariantList& row : rows) {
            if (row.size() > Played) {
                row[Played] = 0;
            }
        }
        return rows;
    };
    QCOMPARE(unplayed(test.everything()), unplayed(before));
    history.redo();
    QCOMPARE(unplayed(test.everything()), unplayed(after));
    history.undo();
    QCOMPARE(unplayed(test.everything()), unplayed(before));
}

void TestMovingOn::aDeletedTaskTakesItsRuleAlong()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    const auto before = test.everything();
    UndoHistory history(test.engine);
    history.run([&](const DatabaseEngine& engine) {
        TaskChanges::remove(engine, {id});
        return QString();
    });
    QCOMPARE(test.database.statements().take(),
        QStringList{QStringLiteral("delete from tasks where task_id = %1").arg(id)});
    // Whatever is stored meanwhile, it is still there for the undo.
    const qint32 other = test.add(test.now());
    history.undo();
    TaskChanges::remove(test.engine, {other});
    test.database.sql(QStringLiteral("delete from repeats where of_task=%1").arg(other));
    QCOMPARE(test.everything(), before);
}

void TestMovingOn::otherTasksDoNotMoveOn()
{
    RepeatsUnderTest test;
    test.add(test.now() + 1h);
    const qint32 other = aTask(test.database).remindingAt(test.now() - 1h).add();
    QCOMPARE(TaskChanges::dismissDue(test.engine), 1);
    TaskChanges::complete(test.engine, {other});
    QVERIFY(test.stateOf(other).startsWith(QLatin1String("2 ")));
    test.repeating.setUsed(false);
    test.database.statements().take();
    TaskChanges::complete(test.engine, {other});
    QCOMPARE(test.database.statements().take().size(), 2);
}

void TestMovingOn::aLeadBeyondAllMomentsEndsAtTheirEnd()
{
    RepeatsUnderTest test;
    const qint32 id = test.add(test.now() - 1h);
    for (const char* lead : {"-2147483648", "2147483647"}) {
        for (const int count : {1, 2, 3}) {
            test.database.sql(
                QStringLiteral("update repeats set lead=%1, done=2147483647").arg(QLatin1String(lead)));
            TaskChanges::complete(test.engine, {id});
            TaskChanges::dismiss(test.engine, {id});
            QVERIFY2(ClsTask(test.engine).GetTaskById(static_cast<qint16>(id)),
                qPrintable(QString::number(count)));
        }
    }
}

AMBERTASK_TEST_MAIN(TestMovingOn)
#include "tst_moving_on.moc"
