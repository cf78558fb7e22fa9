#include "data/ClsTask.h"

#include "data/ClsDatabase.h"
#include "data/SqlText.h"
#include "data/TaskCodes.h"
#include "platform/RuntimeError.h"
#include "platform/database/DatabaseError.h"

#include <algorithm>
#include <array>

namespace
{

const QLatin1String SelectJoin("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");

/// A statement whose filters are added one after the other.
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
            // The engine would take the unfinished clause for a condition that every task meets.
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
    bool isOrdered() const { return m_text.contains(QLatin1String(" order by ")); }

private:
    void addCondition(QLatin1String condition)
    {
        const bool hasWhere = m_text.contains(QLatin1String("where"));
        m_text += (hasWhere ? QLatin1String(" and ") : QLatin1String(" where ")) + condition;
    }

    QString m_text;
};

/// The filters that counting and deleting share, always with a date range.
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

void runAlone(const DatabaseEngine& engine, const QString& statement)
{
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    connection.execute(statement);
    connection.close();
}

} // namespace

/// The columns of the table, in a record set in which they were looked up once.
class ClsTask::Columns
{
public:
    explicit Columns(const RecordSet& records)
        : m_name(records.field("task_name")), m_status(records.field("task_status")),
          m_description(records.field("task_desc")), m_due(records.field("task_due_date")),
          m_id(records.field("task_id")), m_periority(records.field("task_periority")),
          m_reminder(records.field("reminder_date_time")), m_file(records.field("reminder_file")),
          m_reminderOn(records.field("reminder_on")), m_sound(records.field("reminder_sound"))
    {
    }

    std::array<std::string_view, TextCount> texts(const RecordSet& records) const
    {
        return {
            records.utf8(m_name), records.utf8(m_description), records.utf8(m_sound), records.utf8(m_file)};
    }
    void readAllButTexts(const RecordSet& records, ClsTask& task) const
    {
        task.m_status = records.int32(m_status);
        task.m_dueDateTime = records.moment(m_due);
        task.m_id = records.int32(m_id);
        task.m_periority = records.int32(m_periority);
        task.m_reminderDateTime = records.moment(m_reminder);
        task.m_reminderOn = records.flag(m_reminderOn);
    }

private:
    int m_name;
    int m_status;
    int m_description;
    int m_due;
    int m_id;
    int m_periority;
    int m_reminder;
    int m_file;
    int m_reminderOn;
    int m_sound;
};

/// Reads tasks and what belongs to them of their categories.
class ClsTask::Reader
{
public:
    explicit Reader(const RecordSet& records)
        : m_columns(records), m_category(records.field("categories.cat_id")),
          m_icon(records.field("cat_icon"))
    {
    }

    void read(const RecordSet& records, ClsTask& task) const
    {
        task.m_categoryId =
            narrowId(records.int32(m_category), QT_TRANSLATE_NOOP("OverflowError", "category id"));
        task.m_texts.assign(m_columns.texts(records));
        m_columns.readAllButTexts(records, task);
        task.m_iconId = records.int16(m_icon);
    }

private:
    Columns m_columns;
    int m_category;
    int m_icon;
};

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

void ClsTask::Add() const
{
    runAlone(*m_engine,
        filled(QStringLiteral(
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
    runAlone(*m_engine, filled(pattern + QString::number(m_id)));
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
        Reader(records).read(records, *task);
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
    const Reader reader(records);
    for (; !records.atEnd(); records.moveNext()) {
        reader.read(records, tasks.emplace_back(*m_engine));
    }
    connection.close();
    if (!statement.isOrdered()) {
        // In the order of making. The engine reads them so, unless another tool left statistics in the file.
        const auto isEarlier = [](const ClsTask& one, const ClsTask& other) {
            return one.Id() < other.Id();
        };
        if (!std::is_sorted(tasks.cbegin(), tasks.cend(), isEarlier)) {
            std::sort(tasks.begin(), tasks.end(), isEarlier);
        }
    }
    return tasks;
}

// The join is asked for its columns alone: it would read the category with every task.
void ClsTask::readAll(const std::function<void(const RecordSet&)>& alsoSee) const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    const Reader everyColumnIsThere(connection.execute(SelectJoin + QLatin1String(" limit 0")));
    RecordSet records = connection.execute(
        QStringLiteral("select ifnull(cat_id in (select cat_id from categories), 0), * from tasks"));
    constexpr int IsShown = 0;
    const Columns columns(records);
    const int played = records.field("played");
    const int dismissed = records.field("dismissed");
    for (ClsTask task(*m_engine); !records.atEnd(); records.moveNext()) {
        if (records.flag(IsShown)) {
            columns.texts(records);
            columns.readAllButTexts(records, task);
            records.flag(played);
            records.flag(dismissed);
        }
        if (alsoSee) {
            alsoSee(records);
        }
    }
    connection.close();
}

void ClsTask::DeleteTasks(qint16 cat, qint32 status, Moment fromDate, Moment toDate, qint32 taskType) const
{
    runAlone(*m_engine,
        rangeStatement(QLatin1String("delete from tasks "), cat, status, fromDate, toDate, taskType));
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
    runAlone(*m_engine, QLatin1String("delete from tasks where task_id = ") + QString::number(Id));
}
