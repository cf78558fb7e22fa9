#include "app/TaskChoices.h"

#include "data/TaskCodes.h"

#include <algorithm>

QList<qint32> TaskChoices::ids() const
{
    QList<qint32> ids;
    for (const TaskState& task : m_tasks) {
        ids.append(task.id);
    }
    return ids;
}

QList<qint32> TaskChoices::idsWithReminder() const
{
    QList<qint32> ids;
    for (const TaskState& task : m_tasks) {
        if (task.reminderOn) {
            ids.append(task.id);
        }
    }
    return ids;
}

bool TaskChoices::areAllCompleted() const
{
    return !m_tasks.isEmpty() && commonStatus() == TaskStatus::Completed;
}

QString TaskChoices::completeCaption() const
{
    return areAllCompleted() ? tr("Set Ba&ck to \"Not Started\"") : tr("&Complete");
}

int TaskChoices::repeatingCount() const
{
    return static_cast<int>(
        std::count_if(m_tasks.begin(), m_tasks.end(), [](const TaskState& task) { return task.repeats; }));
}

QString TaskChoices::deleteQuestion() const
{
    const int repeating = repeatingCount();
    if (repeating > 0 && count() == 1) {
        return tr("This task repeats. Do you want to delete it this time, or all times?");
    }
    if (repeating > 0) {
        return repeating == count()
            ? tr("These tasks repeat. Do you want to delete them this time, or all times?")
            : tr("Some of the tasks repeat. Do you want to delete those this time, or all times?\n"
                 "The others are deleted.");
    }
    return count() == 1 ? tr("Are you sure you want to delete this task?")
                        : tr("Are you sure you want to delete %n tasks?", nullptr, count());
}

QString TaskChoices::statusCaption(qint32 status)
{
    switch (status) {
    case TaskStatus::NotStarted:
        return tr("&Not Started");
    case TaskStatus::InProgress:
        return tr("In &Progress");
    case TaskStatus::Completed:
        return tr("&Completed");
    case TaskStatus::Waiting:
        return tr("&Waiting on someone else");
    case TaskStatus::Deferred:
        return tr("&Deferred");
    default:
        return {};
    }
}

QString TaskChoices::periorityCaption(qint32 periority)
{
    switch (periority) {
    case TaskPeriority::High:
        return tr("&High");
    case TaskPeriority::Normal:
        return tr("&Normal");
    case TaskPeriority::Low:
        return tr("&Low");
    default:
        return {};
    }
}
