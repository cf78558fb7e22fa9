#include "data/TaskFilter.h"

#include "data/TaskOrder.h"

std::vector<ClsTask> TaskFilter::tasks(const DatabaseEngine& engine) const
{
    std::vector<ClsTask> tasks =
        ClsTask(engine).GetTasks(category, status, sortBy, isDateRange, fromDate, toDate, taskType);
    if (isDescending) {
        turnRound(tasks, sortBy, [](const ClsTask& task) -> const ClsTask& { return task; });
    }
    return tasks;
}
