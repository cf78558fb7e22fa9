#pragma once

#include "system/Moment.h"

#include <optional>

/// How a task stands to the present moment.
enum class TaskUrgency {
    Later, ///< due after today
    DueToday, ///< due now or later today
    Overdue, ///< past its due moment and not completed
    Done ///< completed, whenever it is due
};

TaskUrgency urgencyOf(qint32 status, Moment due, Moment now);
/// The first moment after `now` at which the answer for that task is another one; none when it never is.
std::optional<Moment> nextUrgencyChange(qint32 status, Moment due, Moment now);
