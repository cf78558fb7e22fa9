#include "SoakWorld.h"

#include <QFile>
#include <sqlite3.h>
#include <stdexcept>

namespace
{

class Query
{
public:
    Query(sqlite3* database, const char* sql)
    {
        if (sqlite3_prepare_v2(database, sql, -1, &m_statement, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(database));
        }
    }
    ~Query() { sqlite3_finalize(m_statement); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    bool next()
    {
        const int code = sqlite3_step(m_statement);
        if (code != SQLITE_ROW && code != SQLITE_DONE) {
            throw std::runtime_error(sqlite3_errstr(code));
        }
        return code == SQLITE_ROW;
    }
    int number(int column) const { return sqlite3_column_int(m_statement, column); }
    QString text(int column) const
    {
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column)),
            sqlite3_column_bytes(m_statement, column));
    }

private:
    sqlite3_stmt* m_statement = nullptr;
};

} // namespace

DataRows DataRows::read(const QString& file)
{
    sqlite3* opened = nullptr;
    const int code =
        sqlite3_open_v2(QFile::encodeName(file).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
    if (code != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(opened));
    }
    Query check(opened, "pragma integrity_check");
    if (!check.next() || check.text(0) != QLatin1String("ok")) {
        throw std::runtime_error("the file is damaged");
    }
    DataRows rows;
    for (Query tasks(opened,
             "select task_id,task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
             "reminder_date_time,reminder_sound,reminder_file,played,dismissed from tasks");
         tasks.next();) {
        rows.tasks[tasks.number(0)] = {tasks.text(1), tasks.text(2), tasks.number(3),
            static_cast<qint16>(tasks.number(4)), tasks.text(5), tasks.number(6), tasks.number(7) != 0,
            tasks.text(8), tasks.text(9), tasks.text(10), tasks.number(11) != 0, tasks.number(12) != 0};
    }
    for (Query repeats(opened,
             "select of_task,rule,first_moment,lead,done from repeats where of_task in (select task_id from "
             "tasks)");
         repeats.next();) {
        rows.repeats[repeats.number(0)] = {
            repeats.text(1), repeats.text(2), repeats.number(3), repeats.number(4)};
    }
    for (Query categories(
             opened, "select cat_id,cat_name,cat_desc,cat_icon,custom_icon,cat_icon_name from categories");
         categories.next();) {
        if (categories.number(4) != 0 || !categories.text(5).isEmpty()) {
            throw std::runtime_error("a category has a picture that nobody gave it");
        }
        rows.categories[static_cast<qint16>(categories.number(0))] = {
            categories.text(1), categories.text(2), categories.number(3)};
    }
    for (Query settings(opened,
             "select always_on_top,start_with_windows,minimize_on_start,skin,show_task_status,"
             "show_task_due_date,show_task_periority,show_task_reminder,show_today_tasks,show_grid,"
             "show_ballon_icon from settings");
         settings.next();) {
        for (int column = 0; column < 11; ++column) {
            rows.settings.append(settings.text(column));
        }
    }
    for (Query last(opened, "select name,seq from sqlite_sequence"); last.next();) {
        if (last.text(0) == QLatin1String("tasks")) {
            rows.lastTask = last.number(1);
        } else {
            rows.lastCategory = static_cast<qint16>(last.number(1));
        }
    }
    return rows;
}

QString DataRows::differenceTo(const DataRows& other) const
{
    if (settings != other.settings) {
        return QStringLiteral("settings %1, not %2").arg(settings.join(u','), other.settings.join(u','));
    }
    if (lastTask != other.lastTask || lastCategory != other.lastCategory) {
        return QStringLiteral("last ids %1 and %2, not %3 and %4")
            .arg(lastTask)
            .arg(lastCategory)
            .arg(other.lastTask)
            .arg(other.lastCategory);
    }
    if (categories != other.categories) {
        return QStringLiteral("%1 categories, not these %2")
            .arg(categories.size())
            .arg(other.categories.size());
    }
    for (const auto& [id, row] : repeats) {
        const auto found = other.repeats.find(id);
        if (found == other.repeats.end() || !(found->second == row)) {
            return QStringLiteral("task %1 does not repeat as it should: %2 from %3, lead %4, done %5")
                .arg(id)
                .arg(row.rule, row.first)
                .arg(row.lead)
                .arg(row.done);
        }
    }
    if (repeats.size() != other.repeats.size()) {
        return QStringLiteral("%1 tasks repeat, not %2").arg(repeats.size()).arg(other.repeats.size());
    }
    for (const auto& [id, row] : tasks) {
        const auto found = other.tasks.find(id);
        if (found == other.tasks.end()) {
            return QStringLiteral("task %1 is one too many").arg(id);
        }
        if (!(found->second == row)) {
            return QStringLiteral(
                "task %1 is not as it should be: on %2/%3 played %4/%5 dismissed %6/%7 reminder %8/%9, due "
                "%10/%11, status %12/%13")
                .arg(id)
                .arg(row.reminderOn)
                .arg(found->second.reminderOn)
                .arg(row.played)
                .arg(found->second.played)
                .arg(row.dismissed)
                .arg(found->second.dismissed)
                .arg(row.reminder, found->second.reminder, row.due, found->second.due,
                    QString::number(row.status), QString::number(found->second.status));
        }
    }
    return tasks.size() == other.tasks.size() ? QString() : QStringLiteral("a task is missing");
}
