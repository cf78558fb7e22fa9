#pragma once

#include "data/TaskFilter.h"

#include <QString>

/// The query of the printed report: the tasks that the filter selects, in its order.
QString taskReportQuery(const TaskFilter& filter);
