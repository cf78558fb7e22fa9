#include "data/TaskChanges.h"

#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/ReminderStatements.h"
#include "data/TaskCodes.h"

#include <QStringList>
#include <functional>

namespace
{

/// SQLite limits the length of a compiled statement (see Hardening.cpp).
constexpr qsizetype MostIdsOfAStatement = 1000;

QString conditionFor(const QList<qint32>& ids)
{
    if (ids.size() == 1) {
        return QLatin1String("task_id = ") + QString::number(ids.first());
    }
    QStringList digits;
    for (const qint32 id : ids) {
        digits.append(QString::number(id));
    }
    return QLatin1String("task_id in (") + digits.join(u',') + u')';
}

/// Runs `work` on a connection as one operation: when it throws, nothing is stored.
void run(const DatabaseEngine& engine, const std::function<void(Connection&)>& work)
{
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    try {
        work(connection);
    } catch (...) {
        connection.abandon();
        throw;
    }
    connection.close();
}

/// Runs the statements that `statementsFor` makes of a condition until it has met all ids.
void change(const DatabaseEngine& engine, const QList<qint32>& ids,
    const std::function<QStringList(const QString& which)>& statementsFor)
{
    run(engine, [&](Connection& connection) {
        for (qsizetype first = 0; first < ids.size(); first += MostIdsOfAStatement) {
            for (const QString& statement :
                statementsFor(conditionFor(ids.mid(first, MostIdsOfAStatement)))) {
                connection.execute(statement);
            }
        }
    });
}

void setColumn(const DatabaseEngine& engine, const QList<qint32>& ids, QLatin1String column, qint32 value)
{
    change(engine, ids, [&](const QString& which) {
        return QStringList{
            QStringLiteral("update tasks set %1=%2 where %3").arg(column, QString::number(value), which)};
    });
}

} // namespace

void TaskChanges::remove(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    change(engine, ids,
        [](const QString& which) { return QStringList{QLatin1String("delete from tasks where ") + which}; });
}

void TaskChanges::setStatus(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 status)
{
    setColumn(engine, ids, QLatin1String("task_status"), status);
}

void TaskChanges::setPeriority(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 periority)
{
    setColumn(engine, ids, QLatin1String("task_periority"), periority);
}

void TaskChanges::setCategory(const DatabaseEngine& engine, const QList<qint32>& ids, qint16 category)
{
    setColumn(engine, ids, QLatin1String("cat_id"), category);
}

void TaskChanges::complete(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    change(engine, ids, [](const QString& which) {
        return QStringList{QStringLiteral("update tasks set task_status=%1 where %2")
                               .arg(QString::number(TaskStatus::Completed), which),
            ReminderStatements::dismissDue() + QLatin1String(" and ") + which};
    });
}

void TaskChanges::dismiss(const DatabaseEngine& engine, const QList<qint32>& ids)
{
    change(engine, ids, [](const QString& which) { return QStringList{ReminderStatements::dismiss(which)}; });
}

int TaskChanges::dismissDue(const DatabaseEngine& engine)
{
    int dismissed = 0;
    run(engine, [&](Connection& connection) {
        connection.execute(ReminderStatements::dismissDue());
        dismissed = static_cast<int>(connection.changedRows());
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
                                   .arg(columns, conditionFor({id})));
            if (connection.changedRows() > 0) {
                copies.append(ClsTask::insertedId(connection));
            }
        }
    });
    return copies;
}
