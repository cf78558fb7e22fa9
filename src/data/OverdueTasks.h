#pragma once

#include "store/DatabaseEngine.h"
#include "system/Moment.h"

#include <optional>

/// How many tasks are past their due moment and not completed, over the whole data file.
struct OverdueTasks {
    int count = 0;
    /// Without a change of the data the number stays until this moment has passed; for good when empty.
    std::optional<Moment> nextDue;

    /// One pass over the open tasks, on a connection of its own. Throws DatabaseError.
    static OverdueTasks read(const DatabaseEngine& engine);
};
