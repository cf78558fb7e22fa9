#include "data/TaskChanges.h"

#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/MovingOn.h"
#include "data/ReminderStatements.h"
#include "data/SqlText.h"
#include "data/TaskCodes.h"
#include "data/TaskRepeats.h"
#include "system/Clock.h"

#include <QStringList>
#include <functional>

namespace
{

/// Runs `work` on a connection as one operation: when it throws, nothing is stored.
void run(const DatabaseEngine& engine, const std::function<void(Connection&)>& work)
{
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    try {
        // What is read is changed by nobody else before it is written.
        connection.beginWriting();
        work(connection);
    } catch (...) {
        connection.abandon();
        throw;
    }
    connection.close();
}

using StatementsFor = std::function<QStringList(const QString& which)>;

/// Runs the statements that `statementsFor` makes of a condition until it has met all ids.
void change(Connection& connection, const QList<qint32>& ids, const StatementsFor& statementsFor)
{
    for (qsizetype first = 0; first < ids.size(); first += MostIdsOfAStatement) {
        for (const QString& statement : statementsFor(sqlTaskIsOneOf(ids.mid(first, MostIdsOfAStatement)))) {
            connection.execute(statement);
        }
    }
}

void change(const DatabaseEngine& engine, const QList<qint32>& ids, const StatementsFor& statementsFor)
{
    run(engine, [&](Connection& connection) { change(connection, ids, statementsFor); });
}

/// The same with what `moveOn` leaves of the ids.
void changeOrMoveOn(const DatabaseEngine& engine, const QList<qint32>& ids,
    QList<qint32> (MovingOn::*moveOn)(const QList<qint32>&), const StatementsFor& statementsFor)
{
    run(engine, [&](Connection& connection) {
        change(connection, (MovingOn(engine, connection).*moveOn)(ids), statementsFor);
    });
}

QStringList deleting(const QString& which)
{
    return {QLatin1String("delete from tasks where ") + which};
}

QStringList completing(const QString& which)
{
    return {QStringLiteral("update tasks set task_status=%1 where %2")
                .arg(QString::number(TaskStatus::Completed), which),
        ReminderStatements::dismissDue() + QLatin1String(" and ") + which};
}

StatementsFor setting(QLatin1String column, qint32 value)
{
    return [=](const QString& which) {
        return QStringList{
            QStringLiteral("update tasks set %1=%2 where %3").arg(column, QString::number(value), which)};
    };
}

} // namespace

void TaskChanges::remove(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    change(engine, ids, deleting);
}

void TaskChanges::moveOn(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    changeOrMoveOn(engine, ids, &MovingOn::complete, deleting);
}

void TaskChanges::setStatus(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 status)
{
    const StatementsFor statements = setting(QLatin1String("task_status"), status);
    if (status == TaskStatus::Completed) {
        changeOrMoveOn(engine, ids, &MovingOn::complete, statements);
    } else {
        change(engine, ids, statements);
    }
}

void TaskChanges::setPeriority(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 periority)
{
    change(engine, ids, setting(QLatin1String("task_periority"), periority));
}

void TaskChanges::setCategory(const DatabaseEngine& engine, const QList<qint32>& ids, qint16 category)
{
    change(engine, ids, setting(QLatin1String("cat_id"), category));
}

void TaskChanges::complete(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    changeOrMoveOn(engine, ids, &MovingOn::complete, completing);
}

void TaskChanges::completeReminded(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    changeOrMoveOn(engine, ids, &MovingOn::completeReminded, completing);
}

void TaskChanges::dismiss(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    changeOrMoveOn(engine, ids, &MovingOn::dismiss,
        [](const QString& which) { return QStringList{ReminderStatements::dismiss(which)}; });
}

int TaskChanges::dismissDue(const DatabaseEngine& engine)
{
    // At one moment: what has been moved on must not be due in the next statement.
    const FixedClock clock(engine.clock->now());
    DatabaseEngine present = engine;
    present.clock = &clock;
    int dismissed = 0;
    run(present, [&](Connection& connection) {
        dismissed = MovingOn(present, connection).dismissDue();
        connection.execute(ReminderStatements::dismissDue());
        dismissed += static_cast<int>(connection.changedRows());
    });
    return dismissed;
}

void TaskChanges::postpone(const DatabaseEngine& engine, const QList<qint32>& ids, Moment moment)
{
    change(engine, ids,
        [&](const QString& which) { return QStringList{ReminderStatements::postpone(which, moment)}; });
}

void TaskChanges::remindAt(const DatabaseEngine& engine, const QList<qint32>& ids, Moment moment)
{
    change(engine, ids, [&](const QString& which) {
        const QString on = which + QLatin1String(" and reminder_on=true");
        return QStringList{ReminderStatements::postpone(on, moment),
            QLatin1String("update tasks set dismissed=0 where dismissed=1 and ") + on};
    });
}

QList<qint32> TaskChanges::duplicate(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    const QLatin1String columns(
        "task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
        "reminder_date_time,reminder_sound,reminder_file,played,dismissed");
    QList<qint32> copies;
    run(engine, [&](Connection& connection) {
        for (const qint32 id : ids) {
            connection.execute(QStringLiteral("insert into tasks(%1) select %1 from tasks where %2")
                                   .arg(columns, sqlTaskIsOneOf({id})));
            if (connection.changedRows() > 0) {
                copies.append(ClsTask::insertedId(connection));
                if (const auto repeat = TaskRepeats::of(engine, connection, id)) {
                    TaskRepeats::store(engine, connection, copies.last(), *repeat);
                }
            }
        }
    });
    return copies;
}
