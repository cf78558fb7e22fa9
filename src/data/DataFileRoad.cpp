#include "data/DataFileRoad.h"

#include "data/ClsDatabase.h"
#include "data/RepeatRules.h"

#include <QByteArray>
#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace
{

/// The step from each version to the next one. A file may have its results already.
constexpr std::array<const char*, DataFileVersion> StepFrom{"",
    "CREATE INDEX IF NOT EXISTS tasks_by_reminder ON tasks (reminder_on, dismissed, reminder_date_time);"
    "CREATE INDEX IF NOT EXISTS tasks_by_status ON tasks (task_status);"
    "CREATE INDEX IF NOT EXISTS tasks_by_category ON tasks (cat_id)",
    "CREATE TABLE IF NOT EXISTS task_origins (\n"
    "  of_task INTEGER PRIMARY KEY,\n"
    "  uid TEXT NOT NULL DEFAULT '',\n"
    "  properties TEXT NOT NULL DEFAULT ''\n"
    ")",
    "CREATE TABLE IF NOT EXISTS repeats (\n"
    "  of_task INTEGER PRIMARY KEY,\n"
    "  rule TEXT NOT NULL DEFAULT '',\n"
    "  first_moment TEXT NOT NULL DEFAULT '',\n"
    "  lead INTEGER NOT NULL DEFAULT 0,\n"
    "  done INTEGER NOT NULL DEFAULT 0\n"
    ")"};

/// The next id follows the larger of the two numbers. New ids must win back more than half of the free ones,
/// or a nearly full file would get new ids at every start.
const QLatin1String Question(
    "SELECT CASE WHEN max(number) > 30000 THEN "
    "2 * max(32767 - max(number), 0) < 32767 - (SELECT count(*) FROM tasks) ELSE 0 END, (%1) "
    "FROM (SELECT seq AS number FROM sqlite_sequence WHERE name = 'tasks' UNION ALL SELECT max(task_id) FROM "
    "tasks)");
/// In two steps through ids that no task has: the order in which SQLite updates the rows is not defined.
constexpr char GiveNewIds[] =
    "DELETE FROM task_origins WHERE of_task NOT IN (SELECT task_id FROM tasks);"
    "UPDATE task_origins SET of_task = place - 1000000000000 "
    "FROM (SELECT task_id AS old_id, row_number() OVER (ORDER BY task_id) AS place FROM tasks) "
    "WHERE of_task = old_id AND place <> old_id;"
    "UPDATE task_origins SET of_task = of_task + 1000000000000 WHERE of_task < 1;"
    "DELETE FROM repeats WHERE of_task NOT IN (SELECT task_id FROM tasks);"
    "UPDATE repeats SET of_task = place - 1000000000000 "
    "FROM (SELECT task_id AS old_id, row_number() OVER (ORDER BY task_id) AS place FROM tasks) "
    "WHERE of_task = old_id AND place <> old_id;"
    "UPDATE repeats SET of_task = of_task + 1000000000000 WHERE of_task < 1;"
    "UPDATE tasks SET task_id = place - 1000000000000 "
    "FROM (SELECT task_id AS old_id, row_number() OVER (ORDER BY task_id) AS place FROM tasks) "
    "WHERE task_id = old_id AND place <> old_id;"
    "UPDATE tasks SET task_id = task_id + 1000000000000 WHERE task_id < 1;"
    "UPDATE sqlite_sequence SET seq = (SELECT count(*) FROM tasks) WHERE name = 'tasks'";

/// Whoever upgrades keeps a copy before.
DatabaseEngine withoutCopies(const DatabaseEngine& engine)
{
    DatabaseEngine own = engine.unheard();
    own.copies = nullptr;
    return own;
}

void noteVersion(Connection& connection, int version)
{
    connection.alter("PRAGMA user_version = " + QByteArray::number(version));
}

/// What a look at the data file tells.
struct Sight {
    bool wantsNewIds;
    bool isRepeating; ///< a task may repeat
};

Sight lookAt(Connection& connection)
{
    const RecordSet found = connection.execute(QString(Question).arg(hasTable(connection, "repeats")
            ? QLatin1String("SELECT EXISTS (SELECT 1 FROM repeats)")
            : QLatin1String("SELECT 0")));
    return {found.flag(0), found.flag(1)};
}

void tell(const DatabaseEngine& engine, const Sight& sight)
{
    if (engine.repeating != nullptr) {
        engine.repeating->setUsed(sight.isRepeating);
    }
}

} // namespace

int knownVersion(Connection& connection)
{
    const int version = connection.execute(QStringLiteral("PRAGMA user_version")).int32(0);
    if (version > DataFileVersion) {
        throw LaterDataFileError(QCoreApplication::translate("DataFileRoad",
            "The data file was made by a later version of Ambertask; this version cannot use it."));
    }
    return version;
}

bool hasTable(Connection& connection, const char* name)
{
    return !connection
                .execute(
                    QStringLiteral("select name from sqlite_schema where name='%1'").arg(QLatin1String(name)))
                .atEnd();
}

void refuseLaterDataFile(const DatabaseEngine& engine)
{
    const DatabaseEngine own = withoutCopies(engine);
    Connection connection = ClsDatabase(own).Connect();
    connection.open();
    knownVersion(connection);
}

bool somethingRepeats(const DatabaseEngine& engine)
{
    const DatabaseEngine own = withoutCopies(engine);
    Connection connection = ClsDatabase(own).Connect();
    connection.open();
    return lookAt(connection).isRepeating;
}

bool isDataFileBehind(const DatabaseEngine& engine)
{
    const DatabaseEngine own = withoutCopies(engine);
    Connection connection = ClsDatabase(own).Connect();
    connection.open();
    const int version = knownVersion(connection);
    const Sight sight = lookAt(connection);
    tell(engine, sight);
    if (!sight.wantsNewIds && version == DataFileVersion) {
        return false;
    }
    // Throws when the file cannot be written: then no copy is needed.
    noteVersion(connection, version);
    connection.abandon();
    return true;
}

void bringDataFileUp(const DatabaseEngine& engine)
{
    const DatabaseEngine own = withoutCopies(engine);
    Connection connection = ClsDatabase(own).Connect();
    connection.open();
    Sight sight{};
    try {
        for (int version = std::max(knownVersion(connection), 0); version < DataFileVersion; ++version) {
            connection.alter(StepFrom[static_cast<std::size_t>(version)]);
        }
        noteVersion(connection, DataFileVersion);
        sight = lookAt(connection);
        if (sight.wantsNewIds) {
            connection.alter(GiveNewIds);
        }
    } catch (...) {
        connection.abandon();
        throw;
    }
    connection.close();
    tell(engine, sight);
}
