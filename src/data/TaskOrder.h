#pragma once

#include "data/ClsTask.h"
#include "data/NameOrder.h"
#include "data/TaskCodes.h"

/// Puts tasks, just read by a statement that sorts by `sortBy`, where people look for them; `taskOf` answers
/// the task of an item. One order for all that lists them.
template <typename Item, typename TaskOf>
void putInOrder(std::vector<Item>& items, qint32 sortBy, TaskOf taskOf)
{
    switch (sortBy) {
    case TaskSort::Name:
        // The engine has sorted by codes of letters.
        NameOrder().sort(items, [&](const Item& item) { return taskOf(item).taskNameUtf8(); });
        return;
    case TaskSort::Status:
    case TaskSort::DueDate:
    case TaskSort::Periority:
        return;
    default:
        break;
    }
    // In the order of making. The engine reads them so, unless another tool left statistics in the file.
    const auto isEarlier = [&](const Item& one, const Item& other) {
        return taskOf(one).Id() < taskOf(other).Id();
    };
    if (!std::is_sorted(items.cbegin(), items.cend(), isEarlier)) {
        std::sort(items.begin(), items.end(), isEarlier);
    }
}
