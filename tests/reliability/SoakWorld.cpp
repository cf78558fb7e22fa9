#include "SoakWorld.h"

#include "data/TaskCodes.h"
#include "system/Moment.h"

#include <QFile>
#include <algorithm>
#include <sqlite3.h>
#include <stdexcept>

using namespace std::chrono_literals;

namespace
{

QString text(Moment moment)
{
    return QString::fromStdString(storedText(moment));
}

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
    for (const auto& [id, row] : tasks) {
        const auto found = other.tasks.find(id);
        if (found == other.tasks.end()) {
            return QStringLiteral("task %1 is one too many").arg(id);
        }
        if (!(found->second == row)) {
            return QStringLiteral(
                "task %1 is not as it should be: on %2/%3 played %4/%5 dismissed %6/%7 reminder %8/%9")
                .arg(id)
                .arg(row.reminderOn)
                .arg(found->second.reminderOn)
                .arg(row.played)
                .arg(found->second.played)
                .arg(row.dismissed)
                .arg(found->second.dismissed)
                .arg(row.reminder, found->second.reminder);
        }
    }
    return tasks.size() == other.tasks.size() ? QString() : QStringLiteral("a task is missing");
}

SoakWorld::Outcome SoakWorld::start(bool keepsBetween)
{
    Outcome outcome;
    m_listed.clear();
    m_alertVisible = false;
    m_fired.clear();
    m_soundedSinceStart.clear();
    tick(outcome, keepsBetween);
    outcome.sounds.sort();
    outcome.started.sort();
    return outcome;
}

void SoakWorld::commit(Outcome& outcome, bool keepsBetween) const
{
    if (keepsBetween) {
        outcome.between.push_back(m_rows);
    }
}

std::vector<qint32> SoakWorld::listed() const
{
    std::vector<qint32> ids;
    for (const auto& [id, moment] : m_listed) {
        ids.push_back(id);
    }
    return ids;
}

std::map<qint32, QString> SoakWorld::due() const
{
    std::map<qint32, QString> reminders;
    const QString now = text(m_now);
    for (const auto& [id, row] : m_rows.tasks) {
        if (row.reminderOn && !row.dismissed && row.reminder <= now) {
            reminders[id] = row.reminder;
        }
    }
    return reminders;
}

std::size_t SoakWorld::shownCount(const std::map<qint32, QString>& due) const
{
    // A hidden list that both holds what is no longer due and lacks what is counts as empty.
    const bool isOvertaken = !m_alertVisible
        && !std::includes(due.begin(), due.end(), m_listed.begin(), m_listed.end())
        && !std::includes(m_listed.begin(), m_listed.end(), due.begin(), due.end());
    return isOvertaken ? 0 : m_listed.size();
}

void SoakWorld::tick(Outcome& outcome, bool keepsBetween)
{
    const std::map<qint32, QString> now = due();
    const std::size_t shown = shownCount(now);
    if (now.size() == shown) {
        return;
    }
    m_listed = now;
    for (const auto& [id, moment] : now) {
        const TaskRow& row = m_rows.tasks.at(id);
        const auto fired = m_fired.find(id);
        if (row.played || (fired != m_fired.end() && fired->second == row.reminder)) {
            continue;
        }
        m_fired[id] = row.reminder;
        if (!row.sound.isEmpty()) {
            outcome.sounds.append(row.sound);
            const auto before = m_soundedSinceStart.find(id);
            m_doubled += before != m_soundedSinceStart.end() && before->second == row.reminder ? 1 : 0;
            m_soundedSinceStart[id] = row.reminder;
        }
        if (!row.file.isEmpty()) {
            outcome.started.append(row.file);
        }
    }
    if (now.size() > shown) {
        m_alertVisible = true;
        for (const auto& [id, moment] : now) {
            m_rows.tasks.at(id).played = true;
        }
        m_fired.clear();
        commit(outcome, keepsBetween);
    } else if (now.empty()) {
        m_alertVisible = false;
    }
}

TaskRow SoakWorld::rowOf(const TaskEntry& entry) const
{
    return {entry.name, entry.description, entry.status, entry.category, text(entry.due), entry.periority,
        entry.reminderOn, text(entry.reminder), entry.sound, entry.file, false, false};
}

bool SoakWorld::bulkMatches(const TaskRow& row, const Step& step) const
{
    const QString now = text(m_now);
    return (step.category == CategoryFilter::All || row.category == step.category)
        && (step.status == TaskStatus::All || row.status == step.status)
        && (step.taskType != TaskType::Active || row.due >= now)
        && (step.taskType != TaskType::Expired || row.due < now) && row.due >= text(step.from)
        && row.due <= text(step.to + 24h - 1min);
}

SoakWorld::Outcome SoakWorld::apply(const Step& step, bool keepsBetween)
{
    using Kind = Step::Kind;
    Outcome outcome;
    const auto removeListed = [this](qint32 id) {
        m_listed.erase(id);
        m_alertVisible = m_alertVisible && !m_listed.empty();
    };
    // The dialog lets the checker look at once while the alert is shown.
    const auto afterSaving = [&] {
        commit(outcome, keepsBetween);
        if (m_alertVisible) {
            tick(outcome, keepsBetween);
        }
    };
    switch (step.kind) {
    case Kind::Pass:
        for (int i = 0; i < step.count; ++i) {
            m_now += 10s;
            tick(outcome, keepsBetween);
        }
        break;
    case Kind::Jump:
        m_now += step.seconds;
        break;
    case Kind::AddTask:
        m_rows.tasks[++m_rows.lastTask] = rowOf(step.entry);
        afterSaving();
        break;
    case Kind::EditTask:
    case Kind::EditListed: {
        TaskRow& row = m_rows.tasks.at(step.task);
        TaskRow edited = rowOf(step.entry);
        if (edited.reminder == row.reminder) {
            edited.played = row.played;
            edited.dismissed = row.dismissed;
        }
        row = edited;
        afterSaving();
        break;
    }
    case Kind::DeleteTask:
        m_rows.tasks.erase(step.task);
        break;
    case Kind::Dismiss:
        if (const auto found = m_rows.tasks.find(step.task); found != m_rows.tasks.end()) {
            found->second.dismissed = true;
            found->second.reminderOn = false;
        }
        removeListed(step.task);
        break;
    case Kind::DismissAll:
        for (const auto& [id, moment] : due()) {
            m_rows.tasks.at(id).dismissed = true;
            m_rows.tasks.at(id).reminderOn = false;
        }
        m_alertVisible = false;
        break;
    case Kind::RemindLater:
        if (const auto found = m_rows.tasks.find(step.task); found != m_rows.tasks.end()) {
            found->second.played = false;
            found->second.reminder = text(step.moment);
        }
        m_fired.erase(step.task);
        m_soundedSinceStart.erase(step.task);
        removeListed(step.task);
        break;
    case Kind::BulkDelete:
        outcome.deleted = static_cast<qint32>(
            std::erase_if(m_rows.tasks, [&](const auto& entry) { return bulkMatches(entry.second, step); }));
        break;
    case Kind::AddCategory:
        m_rows.categories[++m_rows.lastCategory] = step.categoryRow;
        break;
    case Kind::EditCategory:
        m_rows.categories.at(step.category).description = step.categoryRow.description;
        m_rows.categories.at(step.category).icon = step.categoryRow.icon;
        break;
    case Kind::DeleteCategory:
        m_rows.categories.erase(step.category);
        std::erase_if(
            m_rows.tasks, [&](const auto& entry) { return entry.second.category == step.category; });
        break;
    case Kind::Backup:
        m_backups[step.slot] = m_rows;
        break;
    case Kind::Restore: {
        const QStringList settings = m_rows.settings;
        m_rows = m_backups.at(step.slot);
        commit(outcome, keepsBetween);
        m_rows.settings = settings;
        // What had sounded is as it was when the backup was made.
        m_soundedSinceStart.clear();
        // The next check lists what is due in it.
        m_listed.clear();
        m_fired.clear();
        m_alertVisible = false;
        break;
    }
    case Kind::Settings:
        m_rows.settings = step.settings;
        break;
    case Kind::Restart:
    case Kind::Kill:
        return start(keepsBetween);
    }
    outcome.sounds.sort();
    outcome.started.sort();
    return outcome;
}
