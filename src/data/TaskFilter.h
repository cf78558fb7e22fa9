#pragma once

#include "data/ClsTask.h"
#include "data/TaskCodes.h"

#include <vector>

/// The state of the task list's filter controls, in the codes of the task store.
struct TaskFilter {
    qint16 category = CategoryFilter::All;
    qint32 status = TaskStatus::All;
    qint32 sortBy = TaskSort::None;
    bool isDateRange = false;
    Moment fromDate{}; ///< a day without time of day
    Moment toDate{}; ///< a day without time of day; counts to its end
    qint32 taskType = TaskType::All;

    std::vector<ClsTask> tasks(const DatabaseEngine& engine) const
    {
        return ClsTask(engine).GetTasks(category, status, sortBy, isDateRange, fromDate, toDate, taskType);
    }
};
