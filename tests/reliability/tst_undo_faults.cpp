#include "data/ClsCategory.h"
#include "data/TaskChanges.h"
#include "data/UndoHistory.h"
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

/// Taking changes back, and doing them again, with every fault of the disk.
class TestUndoFaults : public TestCase
{
    Q_OBJECT

private slots:
    void deletedTasksComeBackAllOrNone();
    void aCategoryComesBackWithItsTasksOrNot();
    void completedTasksAreOpenAgainAllOrNone();
    void aDeletionIsDoneAgainWholeOrNot();
    void aRecordedChangeIsMadeWholeOrNot();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    static QList<qint32> addTasks(TestDatabase& database)
    {
        QList<qint32> ids;
        for (int i = 0; i < 60; ++i) {
            ids.append(aTask(database)
                           .named(QStringLiteral("task %1").arg(i))
                           .describedAs(QString(200, u'x'))
                           .remindingAt(database.clock().now() - 1min)
                           .add());
        }
        return ids;
    }
    static void run(UndoHistory& history, const std::function<void(const DatabaseEngine&)>& change)
    {
        history.run([&](const DatabaseEngine& engine) {
            change(engine);
            return QString();
        });
    }
    /// Tries `action` of a history after `before`.
    void tryAfter(const TestDatabase& database, const std::function<void(UndoHistory&)>& before,
        const std::function<void(UndoHistory&)>& action)
    {
        const std::string folder = database.folder().toStdString();
        const DiskImage start = imageOf(folder);
        std::unique_ptr<UndoHistory> history;
        const auto prepare = [&] {
            writeImage(start, folder);
            history = std::make_unique<UndoHistory>(database.engine());
            before(*history);
        };
        prepare();
        m_all.tryEverything(
            database.folder(), {[&] { return told([&] { action(*history); }); }, stateIn, prepare});
    }

    SweepTotals m_all;
};

void TestUndoFaults::deletedTasksComeBackAllOrNone()
{
    TestDatabase database;
    const QList<qint32> ids = addTasks(database);
    tryAfter(
        database,
        [&](UndoHistory& history) {
            run(history, [&](const DatabaseEngine& engine) { TaskChanges::remove(engine, ids.mid(0, 40)); });
        },
        [](UndoHistory& history) { history.undo(); });
}

void TestUndoFaults::aCategoryComesBackWithItsTasksOrNot()
{
    TestDatabase database;
    addTasks(database);
    tryAfter(
        database,
        [](UndoHistory& history) {
            run(history, [](const DatabaseEngine& engine) { ClsCategory(engine).DeleteById(1); });
        },
        [](UndoHistory& history) { history.undo(); });
}

void TestUndoFaults::completedTasksAreOpenAgainAllOrNone()
{
    TestDatabase database;
    const QList<qint32> ids = addTasks(database);
    tryAfter(
        database,
        [&](UndoHistory& history) {
            run(history, [&](const DatabaseEngine& engine) { TaskChanges::complete(engine, ids); });
        },
        [](UndoHistory& history) { history.undo(); });
}

void TestUndoFaults::aDeletionIsDoneAgainWholeOrNot()
{
    TestDatabase database;
    const QList<qint32> ids = addTasks(database);
    tryAfter(
        database,
        [&](UndoHistory& history) {
            run(history, [&](const DatabaseEngine& engine) { TaskChanges::remove(engine, ids); });
            history.undo();
        },
        [](UndoHistory& history) { history.redo(); });
}

void TestUndoFaults::aRecordedChangeIsMadeWholeOrNot()
{
    TestDatabase database;
    const QList<qint32> ids = addTasks(database);
    UndoHistory history(database.engine());
    const auto postpone = [&](const DatabaseEngine& engine) {
        TaskChanges::postpone(engine, ids, database.clock().now() + 1h);
    };
    m_all.tryEverything(database.folder(), {[&] { return told([&] { run(history, postpone); }); }, stateIn});
}

AMBERTASK_TEST_MAIN(TestUndoFaults)
#include "tst_undo_faults.moc"
