#include "support/TestDatabase.h"

#include "data/SqlText.h"
#include "data/TaskCodes.h"

#include <QFile>
#include <QTest>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace
{

constexpr auto Start = std::chrono::local_days(std::chrono::January / 15 / 2026) + std::chrono::hours(10);

[[noreturn]] void failTest(const QString& message)
{
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
    throw std::runtime_error(message.toStdString());
}

void require(bool condition, const QString& message)
{
    if (!condition) {
        failTest(message);
    }
}

QVariant valueOf(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default:
        return QString::fromUtf8(static_cast<const char*>(sqlite3_column_blob(statement, column)),
            sqlite3_column_bytes(statement, column));
    }
}

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + EscapeSqlText(text) + QLatin1Char('\'');
}

QString quoted(Moment moment)
{
    return quoted(QString::fromStdString(storedText(moment)));
}

} // namespace

TestDatabase::TestDatabase() : TestDatabase(QString())
{
    m_ownFolder.emplace();
    require(m_ownFolder->isValid(), m_ownFolder->errorString());
    m_folder = m_ownFolder->path();
    m_engine.programFolder = m_folder;
    QFile shipped(QStringLiteral(AMBERTASK_SHIPPED_DATA_FILE));
    require(shipped.copy(dataFile()), shipped.errorString());
}

TestDatabase::TestDatabase(const QString& folder) : m_folder(folder), m_clock(Start)
{
    m_engine.programFolder = folder;
    m_engine.clock = &m_clock;
    m_engine.listener = &m_statements;
    m_engine.repeating = &m_repeating;
    // As a start has found the file: nothing repeats.
    m_repeating.setUsed(false);
}

QVariant TestDatabase::sql(const QString& statement) const
{
    const QList<QVariantList> all = rows(statement);
    return all.isEmpty() ? QVariant() : all.first().value(0);
}

QList<QVariantList> TestDatabase::rows(const QString& statement) const
{
    sqlite3* opened = nullptr;
    const int openCode =
        sqlite3_open_v2(QFile::encodeName(dataFile()).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
    require(openCode == SQLITE_OK, QString::fromUtf8(sqlite3_errmsg(opened)));

    const QByteArray text = statement.toUtf8();
    const char* rest = text.constData();
    QList<QVariantList> all;
    while (*rest != '\0') {
        sqlite3_stmt* prepared = nullptr;
        require(sqlite3_prepare_v2(opened, rest, -1, &prepared, &rest) == SQLITE_OK,
            statement.left(200) + QLatin1String(": ") + QString::fromUtf8(sqlite3_errmsg(opened)));
        const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> owner(prepared, sqlite3_finalize);
        int code = prepared == nullptr ? SQLITE_DONE : sqlite3_step(prepared);
        for (; code == SQLITE_ROW; code = sqlite3_step(prepared)) {
            QVariantList row;
            for (int column = 0; column < sqlite3_column_count(prepared); ++column) {
                row.append(valueOf(prepared, column));
            }
            all.append(row);
        }
        require(code == SQLITE_DONE,
            statement.left(200) + QLatin1String(": ") + QString::fromUtf8(sqlite3_errmsg(opened)));
    }
    return all;
}

QString TestDatabase::storedOfAll(const char* expression) const
{
    return sql(QStringLiteral(
                   "select group_concat(value, ' ') from (select %1 as value from tasks order by task_id)")
                   .arg(QLatin1String(expression)))
        .toString();
}

void TestDatabase::removeAllCategories() const
{
    sql(QStringLiteral("delete from categories"));
}

qint16 TestDatabase::addCategory(const QString& name, int icon) const
{
    return static_cast<qint16>(
        sql(QStringLiteral("insert into categories(cat_name,cat_icon) values(%1,%2) returning cat_id")
                .arg(quoted(name), QString::number(icon)))
            .toInt());
}

TaskBuilder::TaskBuilder(TestDatabase& database) : m_database(database), m_task(database.engine())
{
    const Moment due = database.clock().now() + std::chrono::hours(1);
    m_task.setTaskName(QStringLiteral("task"));
    m_task.setCategoryId(
        static_cast<qint16>(database.sql(QStringLiteral("select min(cat_id) from categories")).toInt()));
    m_task.setStatus(TaskStatus::NotStarted);
    m_task.setPeriority(TaskPeriority::Normal);
    m_task.setDueDateTime(due);
    m_task.setReminderDateTime(due);
}

TaskBuilder& TaskBuilder::named(const QString& name)
{
    m_task.setTaskName(name);
    return *this;
}

TaskBuilder& TaskBuilder::describedAs(const QString& description)
{
    m_task.setDescription(description);
    return *this;
}

TaskBuilder& TaskBuilder::in(qint16 category)
{
    m_task.setCategoryId(category);
    return *this;
}

TaskBuilder& TaskBuilder::withStatus(qint32 status)
{
    m_task.setStatus(status);
    return *this;
}

TaskBuilder& TaskBuilder::withPeriority(qint32 periority)
{
    m_task.setPeriority(periority);
    return *this;
}

TaskBuilder& TaskBuilder::dueAt(Moment moment)
{
    m_task.setDueDateTime(moment);
    return *this;
}

TaskBuilder& TaskBuilder::remindingAt(Moment moment)
{
    m_task.setReminderDateTime(moment);
    m_task.setReminderOn(true);
    return *this;
}

TaskBuilder& TaskBuilder::sounding(const QString& wave)
{
    m_task.setReminderSound(wave);
    return *this;
}

TaskBuilder& TaskBuilder::starting(const QString& file)
{
    m_task.setReminderFile(file);
    return *this;
}

TaskBuilder& TaskBuilder::played()
{
    m_played = true;
    return *this;
}

TaskBuilder& TaskBuilder::dismissed()
{
    m_dismissed = true;
    return *this;
}

TaskBuilder& TaskBuilder::repeating(const std::string& rule)
{
    m_rule = rule;
    return *this;
}

qint32 TaskBuilder::add()
{
    const QStringList values{quoted(m_task.TaskName()), quoted(m_task.Description()),
        QString::number(m_task.status()), QString::number(m_task.CategoryId()), quoted(m_task.DueDateTime()),
        QString::number(m_task.Periority()), sqlFlag(m_task.ReminderOn()), quoted(m_task.reminderDateTime()),
        quoted(m_task.ReminderSound()), quoted(m_task.ReminderFile()), sqlFlag(m_played),
        sqlFlag(m_dismissed)};
    const qint32 id =
        m_database
            .sql(QStringLiteral(
                     "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,"
                     "reminder_on,reminder_date_time,reminder_sound,reminder_file,played,dismissed) values(")
                + values.join(QLatin1Char(',')) + QLatin1String(") returning task_id"))
            .toInt();
    if (!m_rule.empty()) {
        const auto lead =
            std::chrono::floor<std::chrono::minutes>(m_task.DueDateTime() - m_task.reminderDateTime());
        m_database.sql(
            QStringLiteral("insert into repeats(of_task,rule,first_moment,lead) values(%1,%2,%3,%4)")
                .arg(QString::number(id), quoted(QString::fromStdString(m_rule)),
                    quoted(m_task.DueDateTime()), QString::number(lead.count())));
        m_database.repeating().setUsed(true);
    }
    return id;
}

TaskBuilder aTask(TestDatabase& database)
{
    return TaskBuilder(database);
}
