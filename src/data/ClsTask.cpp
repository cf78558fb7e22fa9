#include "data/ClsTask.h"

#include "data/ClsDatabase.h"
#include "data/MovingOn.h"
#include "data/SqlText.h"
#include "data/TaskCodes.h"
#include "data/TaskOrder.h"
#include "data/TaskRepeats.h"
#include "data/TaskRows.h"
#include "store/DatabaseError.h"

#include <limits>

namespace
{

const QLatin1String SelectJoin("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

/// A statement to which filters are added one by one.
class FilteredStatement
{
public:
    explicit FilteredStatement(QLatin1String start) : m_text(start) { }

    void addCategory(QLatin1String clause, qint16 cat)
    {
        if (cat != CategoryFilter::All) {
            m_text += clause + QString::number(cat);
        }
    }
    void addStatus(qint32 status)
    {
        if (status != TaskStatus::All) {
            addCondition(QLatin1String("task_status = "));
            m_text += QString::number(status);
        }
    }
    void addTaskType(qint32 taskType)
    {
        if (taskType == TaskType::All) {
            return;
        }
        addCondition(QLatin1String("task_due_date "));
        if (taskType == TaskType::Active) {
            m_text += QLatin1String(" >=now()");
        } else if (taskType == TaskType::Expired) {
            m_text += QLatin1String(" <now()");
        } else {
            // SQLite would take the unfinished clause for a condition that every task meets.
            throw DatabaseError(
                DatabaseError::Kind::Statement, ClsTask::tr("The statement is unfinished: %1").arg(m_text));
        }
    }
    void addDateRange(Moment fromDate, Moment toDate)
    {
        addCondition(QLatin1String("task_due_date >= #"));
        m_text += sqlDate(fromDate) + QLatin1String("# and task_due_date <= #") + sqlDate(toDate)
            + QLatin1String(" 23:59# ");
    }
    void addOrder(qint32 sortBy)
    {
        switch (sortBy) {
        case TaskSort::Name:
            m_text += QLatin1String(" order by task_name");
            break;
        case TaskSort::Status:
            m_text += QLatin1String(" order by task_status");
            break;
        case TaskSort::DueDate:
            m_text += QLatin1String(" order by task_due_date");
            break;
        case TaskSort::Periority:
            m_text += QLatin1String(" order by task_periority");
            break;
        default:
            break;
        }
    }
    const QString& text() const { return m_text; }

private:
    void addCondition(QLatin1String condition)
    {
        const bool hasWhere = m_text.contains(QLatin1String("where"));
        m_text += (hasWhere ? QLatin1String(" and ") : QLatin1String(" where ")) + condition;
    }

    QString m_text;
};

/// The filters common to counting and deleting, which always have a date range.
QString rangeStatement(
    QLatin1String start, qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType)
{
    FilteredStatement statement(start);
    statement.addCategory(QLatin1String(" where cat_id= "), cat);
    statement.addStatus(status);
    statement.addTaskType(taskType);
    statement.addDateRange(fromDate, toDate);
    return statement.text();
}

} // namespace

ClsTask::ClsTask(const DatabaseEngine& engine) : m_engine(&engine)
{
}

QString ClsTask::filled(const QString& pattern) const
{
    return fillMarkers(pattern,
        {{u"<task_name/>", EscapeSqlText(TaskName())}, {u"<task_desc/>", EscapeSqlText(Description())},
            {u"<task_status/>", QString::number(m_status)}, {u"<cat_id/>", QString::number(m_categoryId)},
            {u"<task_due_date_time/>", sqlDateTime(m_dueDateTime)},
            {u"<task_periority/>", QString::number(m_periority)}, {u"<reminder_on/>", sqlFlag(m_reminderOn)},
            {u"<reminder_date_time/>", sqlDateTime(m_reminderDateTime)},
            {u"<reminder_sound/>", EscapeSqlText(ReminderSound())},
            {u"<reminder_file/>", EscapeSqlText(ReminderFile())}});
}

qint32 ClsTask::insertedId(Connection& connection)
{
    const qint64 id = connection.insertedId();
    if (id > std::numeric_limits<qint16>::max()) {
        connection.abandon();
        throw NoRoomError(
            tr("The task was not stored: there is no number left for a new one. Delete tasks that "
               "you no longer need, then end Ambertask and start it again."));
    }
    return static_cast<qint32>(id);
}

qint32 ClsTask::store(const QString& statement) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.execute(statement);
    const qint32 inserted = insertedId(connection);
    const qint32 id = inserted > 0 ? inserted : m_id;
    try {
        TaskRepeats::set(*m_engine, connection, id, repeat());
        if (m_repeat && m_status == TaskStatus::Completed) {
            MovingOn(*m_engine, connection).complete({id});
        }
    } catch (...) {
        connection.abandon();
        throw;
    }
    connection.close();
    return id;
}

qint32 ClsTask::Add() const
{
    return store(filled(QStringLiteral(
        "insert into "
        "tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
        "reminder_date_time,reminder_sound,reminder_file) values"
        "('<task_name/>','<task_desc/>',<task_status/>,<cat_id/>,#<task_due_date_time/>#,<task_periority/"
        ">,"
        "<reminder_on/>,#<reminder_date_time/>#,'<reminder_sound/>','<reminder_file/>')")));
}

void ClsTask::Update() const
{
    QString pattern = QStringLiteral(
        "update tasks set task_name='<task_name/>',task_desc='<task_desc/>',task_status=<task_status/>"
        ",cat_id=<cat_id/>,task_due_date=#<task_due_date_time/>#,task_periority=<task_periority/>"
        ",reminder_on=<reminder_on/>,reminder_date_time=#<reminder_date_time/>#,reminder_sound="
        "'<reminder_sound/>'");
    pattern += m_dateChanged
        ? QLatin1String(",reminder_file='<reminder_file/>', played=0,dismissed=0 where task_id = ")
        : QLatin1String(",reminder_file='<reminder_file/>' where task_id = ");
    store(filled(pattern + QString::number(m_id)));
}

std::optional<ClsTask> ClsTask::GetTaskById(qint16 Id) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    std::optional<ClsTask> task;
    const RecordSet records =
        connection.execute(SelectJoin + QLatin1String(" where task_id = ") + QString::number(Id));
    if (!records.atEnd()) {
        task.emplace(*m_engine);
        TaskRows(*m_engine, records).read(records, *task);
        task->setRepeat(TaskRepeats::of(*m_engine, connection, Id));
    }
    connection.close();
    return task;
}

std::vector<ClsTask> ClsTask::GetTasks(qint16 cat, qint32 status, qint32 sortBy, bool isDateRange,
    Moment fromDate, Moment toDate, qint32 taskType) const
{
    FilteredStatement statement(SelectJoin);
    statement.addCategory(QLatin1String(" where categories.cat_id= "), cat);
    statement.addStatus(status);
    statement.addTaskType(taskType);
    if (isDateRange) {
        statement.addDateRange(fromDate, toDate);
    }
    statement.addOrder(sortBy);

    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    std::vector<ClsTask> tasks;
    RecordSet records = connection.execute(statement.text());
    TaskRows rows(*m_engine, records);
    for (; !records.atEnd(); records.moveNext()) {
        ClsTask& task = tasks.emplace_back(*m_engine);
        if (!readOrLeaveOut(*m_engine, [&] { rows.read(records, task); })) {
            tasks.pop_back();
        }
    }
    connection.close();
    putInOrder(tasks, sortBy, [](const ClsTask& task) -> const ClsTask& { return task; });
    return tasks;
}

// Selects only the columns of tasks: the join would also read the category for every task.
qint64 ClsTask::readAll() const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    const TaskRows everyColumnIsThere(*m_engine, connection.execute(SelectJoin + QLatin1String(" limit 0")));
    RecordSet records = connection.execute(
        QStringLiteral("select * from tasks where cat_id in (select cat_id from categories)"));
    const TaskFields columns(records);
    qint64 shown = 0;
    for (ClsTask task(*m_engine); !records.atEnd(); records.moveNext()) {
        ++shown;
        columns.check(records, task);
    }
    connection.close();
    return shown;
}

qint32 ClsTask::DeleteTasks(qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.execute(
        rangeStatement(QLatin1String("delete from tasks "), cat, status, fromDate, toDate, taskType));
    const auto deleted = static_cast<qint32>(connection.changedRows());
    connection.close();
    return deleted;
}

qint32 ClsTask::GetTasksCount(
    qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    const RecordSet records =
        connection.execute(rangeStatement(QLatin1String("select count(*) as tasks_count from tasks "), cat,
            status, fromDate, toDate, taskType));
    const qint32 count = records.int32(records.field("tasks_count"));
    connection.close();
    return count;
}

void ClsTask::DeleteById(qint16 Id) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.execute(QLatin1String("delete from tasks where task_id = ") + QString::number(Id));
    connection.close();
}
