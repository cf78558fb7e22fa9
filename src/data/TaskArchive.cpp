#include "data/TaskArchive.h"

#include "data/ClsDatabase.h"
#include "data/ClsTask.h"
#include "data/DataFileRoad.h"
#include "data/RecordReading.h"
#include "data/SqlText.h"
#include "data/TaskRecordRows.h"
#include "data/TaskRepeats.h"

#include <QUuid>
#include <limits>
#include <unordered_set>
#include <utility>

namespace
{

const QLatin1String Everything(
    "select *,coalesce(uid,'') as known_uid,coalesce(properties,'') as known_properties from tasks inner "
    "join "
    "categories on tasks.cat_id=categories.cat_id left join task_origins on task_id=of_task");
/// For a data file in which something repeats.
const QLatin1String WithRepeats(
    "select *,coalesce(uid,'') as known_uid,coalesce(properties,'') as known_properties,coalesce(rule,'') as "
    "known_rule from tasks inner join categories on tasks.cat_id=categories.cat_id left join task_origins on "
    "task_id=task_origins.of_task left join repeats on task_id=repeats.of_task");
/// For a data file without the table of origins.
const QLatin1String WithoutOrigins("select *,'' as known_uid,'' as known_properties from tasks inner join "
                                   "categories on tasks.cat_id=categories.cat_id");
const QLatin1String InsertTasks(
    "insert into "
    "tasks(task_id,task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
    "reminder_date_time,reminder_sound,reminder_file,played,dismissed) values");
const QLatin1String InsertRepeats(
    "insert or replace into repeats(of_task,rule,first_moment,lead,done) values");
const QLatin1String InsertOrigins("insert or replace into task_origins(of_task,uid,properties) values");
constexpr qint64 LastId = std::numeric_limits<qint16>::max();
/// SQLite limits the length of a compiled statement (see Hardening.cpp); a row takes some twenty steps.
constexpr qsizetype MostRowsOfAStatement = 500;
constexpr qsizetype MostLettersOfAStatement = qsizetype(64) * 1024;

bool hasOrigins(Connection& connection)
{
    return hasTable(connection, "task_origins");
}

QLatin1String everythingIn(const DatabaseEngine& engine, Connection& connection)
{
    if (!hasOrigins(connection)) {
        return WithoutOrigins;
    }
    return TaskRepeats::isAny(engine) ? WithRepeats : Everything;
}

/// The id that the next task gets.
qint64 nextId(Connection& connection)
{
    const RecordSet last = connection.execute(
        QStringLiteral("select min(max(coalesce((select max(task_id) from tasks),0),coalesce((select seq "
                       "from sqlite_sequence where name='tasks'),0),0),32767)"));
    return qint64{last.int32(0)} + 1;
}

QString quotedText(std::string_view utf8)
{
    // Qt drops a byte order mark at the beginning, which here is a part of the text.
    constexpr std::string_view Mark("\xEF\xBB\xBF");
    QString marks;
    for (; utf8.starts_with(Mark); utf8.remove_prefix(Mark.size())) {
        marks += QChar(QChar::ByteOrderMark);
    }
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    return u'\'' + marks + EscapeSqlText(text) + u'\'';
}

QString quotedText(Moment moment)
{
    return quotedText(storedText(moment));
}

QString listOf(const QList<qint32>& ids)
{
    QStringList digits;
    for (const qint32 id : ids) {
        digits.append(QString::number(id));
    }
    return digits.join(u',');
}

Connection opened(const DatabaseEngine& engine)
{
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    return connection;
}

/// In the order in which the engine finds them.
void readChosen(const DatabaseEngine& engine, Connection& connection, QLatin1String statement,
    const QList<qint32>& ids, const std::function<void(TaskRecord&)>& take)
{
    for (qsizetype first = 0; first < ids.size(); first += MostRowsOfAStatement) {
        const QList<qint32> some = ids.mid(first, MostRowsOfAStatement);
        std::unordered_map<qint32, TaskRecord> found;
        RecordSet records =
            connection.execute(statement + QLatin1String(" where task_id in (") + listOf(some) + u')');
        TaskRecordRows reader(engine, records, statement == WithRepeats);
        for (; !records.atEnd(); records.moveNext()) {
            TaskRecord task;
            if (reader.read(records, task)) {
                const qint32 id = task.id;
                found.emplace(id, std::move(task));
            }
        }
        for (const qint32 id : some) {
            if (const auto task = found.find(id); task != found.end()) {
                take(task->second);
            }
        }
    }
}

} // namespace

void TaskArchive::read(const DatabaseEngine& engine, const std::optional<QList<qint32>>& ids,
    const std::function<void(TaskRecord&)>& take)
{
    Connection connection = opened(engine);
    const QLatin1String statement = everythingIn(engine, connection);
    if (ids) {
        readChosen(engine, connection, statement, *ids, take);
    } else {
        RecordSet records = connection.execute(statement + QLatin1String(" order by task_id"));
        TaskRecordRows reader(engine, records, statement == WithRepeats);
        for (TaskRecord task; !records.atEnd(); records.moveNext()) {
            if (reader.read(records, task)) {
                take(task);
            }
        }
    }
    connection.close();
}

void TaskArchive::giveUids(const DatabaseEngine& engine, const std::optional<QList<qint32>>& ids)
{
    Connection connection = opened(engine);
    if (!hasOrigins(connection)) {
        return;
    }
    std::unordered_set<qint32> wanted;
    if (ids) {
        wanted.insert(ids->begin(), ids->end());
    }
    QList<qint32> nameless;
    for (RecordSet records = connection.execute(QStringLiteral(
             "select task_id from tasks where task_id not in (select of_task from task_origins)"));
         !records.atEnd(); records.moveNext()) {
        if (const qint32 id = records.int32(0); !ids || wanted.contains(id)) {
            nameless.append(id);
        }
    }
    for (qsizetype first = 0; first < nameless.size(); first += MostRowsOfAStatement) {
        QString rows;
        for (const qint32 id : nameless.mid(first, MostRowsOfAStatement)) {
            rows += QStringLiteral("%1(%2,'%3','')")
                        .arg(rows.isEmpty() ? QString() : QStringLiteral(","), QString::number(id),
                            QString::fromStdString(newUid()));
        }
        connection.execute(InsertOrigins + rows);
    }
    connection.close();
}

qint64 TaskArchive::count(const DatabaseEngine& engine)
{
    Connection connection = opened(engine);
    const qint64 count =
        connection
            .execute(QStringLiteral("select count(*) from tasks where cat_id in (select cat_id "
                                    "from categories)"))
            .int32(0);
    connection.close();
    return count;
}

qint32 TaskArchive::room(const DatabaseEngine& engine)
{
    Connection connection = opened(engine);
    const qint64 next = nextId(connection);
    connection.close();
    return static_cast<qint32>(std::max<qint64>(LastId + 1 - next, 0));
}

std::vector<std::string> TaskArchive::withoutCategory(
    const DatabaseEngine& engine, std::vector<std::string> names)
{
    Connection connection = opened(engine);
    std::erase_if(names, [&connection](const std::string& name) {
        return !connection
                    .execute(
                        QLatin1String("select cat_id from categories where cat_name = ") + quotedText(name))
                    .atEnd();
    });
    connection.close();
    return names;
}

std::string TaskArchive::newUid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

TaskStoring::TaskStoring(const DatabaseEngine& engine) : m_engine(engine), m_connection(opened(engine))
{
    try {
        // From here on nobody else writes: the next id stays free.
        m_connection.beginWriting();
        m_hasOrigins = hasOrigins(m_connection);
        m_nextId = nextId(m_connection);
    } catch (...) {
        m_connection.abandon();
        throw;
    }
}

TaskStoring::~TaskStoring()
{
    m_connection.abandon();
}

void TaskStoring::put(const TaskRecord& task)
{
    if (task.id == 0) {
        add(task);
    } else {
        replace(task);
    }
}

int TaskStoring::finish()
{
    insert(m_tasks, InsertTasks);
    insert(m_origins, InsertOrigins);
    insert(m_repeats, InsertRepeats);
    m_connection.close();
    return m_madeCategories;
}

qint32 TaskStoring::categoryOf(const std::string& name)
{
    if (const auto known = m_categories.find(name); known != m_categories.end()) {
        return known->second;
    }
    const QString text = quotedText(name);
    RecordSet found =
        m_connection.execute(QLatin1String("select cat_id from categories where cat_name = ") + text);
    if (found.atEnd()) {
        m_connection.execute(
            QStringLiteral("insert into categories(cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name) "
                           "values(%1,'',0,0,'')")
                .arg(text));
        ++m_madeCategories;
        if (m_connection.insertedId() > LastId) {
            throw NoRoomError(tr("Nothing was stored: there is no number left for a new category."));
        }
        found = m_connection.execute(QLatin1String("select cat_id from categories where cat_name = ") + text);
    }
    return m_categories.emplace(name, found.int32(0)).first->second;
}

void TaskStoring::add(const TaskRecord& task)
{
    const qint64 id = m_nextId++;
    if (id > LastId) {
        throw NoRoomError(tr("Nothing was stored: there is no room for so many tasks."));
    }
    const QString category = QString::number(categoryOf(task.category));
    m_tasks.append(QStringList{QString::number(id), quotedText(task.name), quotedText(task.description),
        QString::number(task.status), category, quotedText(task.due), QString::number(task.periority),
        sqlFlag(task.reminderOn), quotedText(task.reminder), quotedText(task.sound), quotedText(task.file),
        sqlFlag(task.played), sqlFlag(task.dismissed)}
                       .join(u','));
    if (m_tasks.isEnough()) {
        insert(m_tasks, InsertTasks);
    }
    setOrigin(static_cast<qint32>(id), task);
    setRepeat(static_cast<qint32>(id), task);
}

void TaskStoring::replace(const TaskRecord& task)
{
    m_connection.execute(QLatin1String("update tasks set task_name=") + quotedText(task.name)
        + QLatin1String(",task_desc=") + quotedText(task.description) + QLatin1String(",task_status=")
        + QString::number(task.status) + QLatin1String(",cat_id=")
        + QString::number(categoryOf(task.category)) + QLatin1String(",task_due_date=") + quotedText(task.due)
        + QLatin1String(",task_periority=") + QString::number(task.periority) + QLatin1String(",reminder_on=")
        + sqlFlag(task.reminderOn) + QLatin1String(",reminder_date_time=") + quotedText(task.reminder)
        + QLatin1String(",reminder_sound=") + quotedText(task.sound) + QLatin1String(",reminder_file=")
        + quotedText(task.file) + QLatin1String(",played=") + sqlFlag(task.played)
        + QLatin1String(",dismissed=") + sqlFlag(task.dismissed) + QLatin1String(" where task_id=")
        + QString::number(task.id));
    if (m_connection.changedRows() == 0) {
        throw RuntimeError(
            tr("Nothing was stored: the task \"%1\" has been deleted meanwhile. Choose the file again.")
                .arg(QString::fromStdString(task.name)));
    }
    setOrigin(task.id, task);
    if (!task.repeat && TaskRepeats::isAny(m_engine)) {
        TaskRepeats::remove(m_connection, task.id);
    }
    setRepeat(task.id, task);
}

void TaskStoring::setOrigin(qint32 id, const TaskRecord& task)
{
    if (!m_hasOrigins || (task.uid.empty() && task.properties.empty())) {
        return;
    }
    m_origins.append(QString::number(id) + u','
        + quotedText(task.uid.empty() ? TaskArchive::newUid() : task.uid) + u','
        + quotedText(task.properties));
    if (m_origins.isEnough()) {
        insert(m_origins, InsertOrigins);
    }
}

void TaskStoring::setRepeat(qint32 id, const TaskRecord& task)
{
    if (!task.repeat || m_engine.repeating == nullptr) {
        return;
    }
    if (!m_hasRepeats) {
        m_hasRepeats = hasTable(m_connection, "repeats");
        if (*m_hasRepeats) {
            m_engine.repeating->setUsed(true);
        }
    }
    if (*m_hasRepeats) {
        m_repeats.append(sqlRepeat(id, *task.repeat));
        if (m_repeats.isEnough()) {
            insert(m_repeats, InsertRepeats);
        }
    }
}

void TaskStoring::Rows::append(const QString& values)
{
    text += (count == 0 ? QLatin1String("(") : QLatin1String(",(")) + values + u')';
    ++count;
}

bool TaskStoring::Rows::isEnough() const
{
    return count >= MostRowsOfAStatement || text.size() > MostLettersOfAStatement;
}

void TaskStoring::insert(Rows& rows, QLatin1String statement)
{
    if (rows.count > 0) {
        m_connection.execute(statement + rows.text);
        rows = {};
    }
}
