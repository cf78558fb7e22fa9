#include "data/MovingOn.h"

#include "data/ReminderStatements.h"
#include "data/SqlText.h"
#include "data/TaskCodes.h"
#include "data/TaskRepeats.h"
#include "store/Connection.h"
#include "system/Clock.h"
#include "system/RuntimeError.h"

#include <QSet>
#include <algorithm>
#include <limits>

namespace
{

using namespace std::chrono_literals;

/// When the task reminds of an occurrence. Within what the data file can hold, whatever the lead.
Moment reminderOf(const Repeat& repeat, Moment occurrence)
{
    constexpr Moment First = std::chrono::local_days(std::chrono::year(1) / 1 / 1);
    constexpr Moment Last = std::chrono::local_days(std::chrono::year(9999) / 12 / 31);
    return std::clamp<Moment>(occurrence - repeat.lead, First, Last);
}

QString settingDue(Moment due)
{
    return QStringLiteral("task_status=%1,task_due_date=%2")
        .arg(QString::number(TaskStatus::NotStarted), sqlMoment(due));
}

/// Armed.
QString settingReminder(Moment reminder)
{
    return QStringLiteral("reminder_date_time=%1,played=0,dismissed=0").arg(sqlMoment(reminder));
}

QList<qint32> without(const QList<qint32>& ids, const QSet<qint32>& moved)
{
    QList<qint32> rest;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(rest),
        [&moved](qint32 id) { return !moved.contains(id); });
    return rest;
}

} // namespace

MovingOn::MovingOn(const DatabaseEngine& engine, Connection& connection)
    : m_engine(engine), m_connection(connection), m_now(engine.clock->now())
{
}

QList<qint32> MovingOn::complete(const QList<qint32>& ids)
{
    return moveEach(ids, [this](const Task& task) { return std::max(task.due, m_now); });
}

QList<qint32> MovingOn::completeReminded(const QList<qint32>& ids)
{
    return moveEach(ids, [this](const Task& task) {
        return std::max({task.due, m_now, std::min(task.reminder, m_now) + task.repeat.lead});
    });
}

QList<qint32> MovingOn::moveEach(const QList<qint32>& ids, const std::function<Moment(const Task&)>& lastOver)
{
    QSet<qint32> moved;
    for (const Task& task : repeatingAmong(ids)) {
        if (moveToNext(task, lastOver(task))) {
            moved.insert(task.id);
        } else {
            TaskRepeats::remove(m_connection, task.id);
        }
    }
    return without(ids, moved);
}

QList<qint32> MovingOn::dismiss(const QList<qint32>& ids)
{
    QSet<qint32> moved;
    for (const Task& task : repeatingAmong(ids, QStringLiteral(" and reminder_on=true"))) {
        if (remindOfNext(task)) {
            moved.insert(task.id);
        }
    }
    return without(ids, moved);
}

int MovingOn::dismissDue()
{
    const std::vector<Task> due = repeatingWhere(ReminderStatements::due());
    return static_cast<int>(
        std::count_if(due.begin(), due.end(), [this](const Task& task) { return remindOfNext(task); }));
}

std::vector<MovingOn::Task> MovingOn::repeatingWhere(const QString& condition)
{
    std::vector<Task> tasks;
    if (!TaskRepeats::isAny(m_engine)) {
        return tasks;
    }
    RecordSet records = m_connection.execute(
        QLatin1String("select task_id,task_due_date,reminder_date_time,rule,first_moment,lead,done from "
                      "tasks inner join repeats on task_id=of_task where ")
        + condition);
    const int id = records.field("task_id");
    const int due = records.field("task_due_date");
    const int reminder = records.field("reminder_date_time");
    const RepeatColumns columns(records);
    for (; !records.atEnd(); records.moveNext()) {
        const auto repeat = columns.read(records);
        try {
            if (repeat) {
                tasks.push_back({records.int32(id), records.moment(due), records.moment(reminder), *repeat});
            }
        } catch (const RuntimeError&) {
            // No list shows the task; it is changed as one that does not repeat.
        }
    }
    return tasks;
}

std::vector<MovingOn::Task> MovingOn::repeatingAmong(
    const QList<qint32>& ids, const QString& furtherCondition)
{
    std::vector<Task> tasks;
    for (qsizetype first = 0; first < ids.size(); first += MostIdsOfAStatement) {
        std::vector<Task> some =
            repeatingWhere(sqlTaskIsOneOf(ids.mid(first, MostIdsOfAStatement)) + furtherCondition);
        std::move(some.begin(), some.end(), std::back_inserter(tasks));
    }
    return tasks;
}

bool MovingOn::moveToNext(const Task& task, Moment lastOver)
{
    const auto next = RepeatRules::next(task.repeat, lastOver);
    if (!next) {
        return false;
    }
    const Moment reminder = reminderOf(task.repeat, *next);
    if (reminder <= std::min(task.reminder, m_now)) {
        // It has come already, before the last time was completed. It stays as it is, shown or dismissed.
        update(task, settingDue(*next));
    } else {
        update(task, settingDue(*next) + QLatin1Char(',') + settingReminder(reminder));
    }
    setDone(task, 1);
    return true;
}

bool MovingOn::remindOfNext(const Task& task)
{
    // A reminder that was put before its time, or has not come yet because the clock was set back, is that of
    // this occurrence all the same: it must not come twice.
    const auto next =
        RepeatRules::next(task.repeat, std::max(task.due, std::max(task.reminder, m_now) + task.repeat.lead));
    if (!next) {
        return false;
    }
    const QString reminder = settingReminder(reminderOf(task.repeat, *next));
    if (task.due > m_now) {
        update(task, reminder);
        return true;
    }
    // A moment that is still to come is not skipped, even if its reminder is the one that has been seen.
    const Moment due = std::min(*next, RepeatRules::next(task.repeat, m_now).value_or(*next));
    update(task, settingDue(due) + QLatin1Char(',') + reminder);
    setDone(task, 1 + RepeatRules::count(task.repeat, task.due, due - 1s, TaskRepeats::MostMissed));
    return true;
}

void MovingOn::update(const Task& task, const QString& columns)
{
    m_connection.execute(
        QStringLiteral("update tasks set %1 where task_id = %2").arg(columns, QString::number(task.id)));
}

void MovingOn::setDone(const Task& task, int further)
{
    const int done = std::min(task.repeat.done, std::numeric_limits<int>::max() - further) + further;
    m_connection.execute(QStringLiteral("update repeats set done=%1 where of_task = %2")
                             .arg(QString::number(done), QString::number(task.id)));
}
