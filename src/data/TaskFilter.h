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
    bool isDescending = false; ///< the order is turned round after reading; no matter for TaskSort::None

    /// The tasks that it selects, in its order. Throws DatabaseError.
    std::vector<ClsTask> tasks(const DatabaseEngine& engine) const;
    /// Whether it leaves tasks out.
    bool isNarrow() const
    {
        return category != CategoryFilter::All || status != TaskStatus::All || isDateRange
            || taskType != TaskType::All;
    }
};
