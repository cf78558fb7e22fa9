#include "data/TaskUrgency.h"

#include "data/TaskCodes.h"

TaskUrgency urgencyOf(qint32 status, Moment due, Moment now)
{
    if (status == TaskStatus::Completed) {
        return TaskUrgency::Done;
    }
    if (due < now) {
        return TaskUrgency::Overdue;
    }
    return startOfDay(due) == startOfDay(now) ? TaskUrgency::DueToday : TaskUrgency::Later;
}

std::optional<Moment> nextUrgencyChange(qint32 status, Moment due, Moment now)
{
    switch (urgencyOf(status, due, now)) {
    case TaskUrgency::Later:
        return startOfDay(due);
    case TaskUrgency::DueToday:
        // A task is not late in the second in which it is due.
        return due + std::chrono::seconds(1);
    default:
        return std::nullopt;
    }
}
