#pragma once

#include "data/ClsTask.h"
#include "data/NameOrder.h"
#include "data/TaskCodes.h"

/// Sorts tasks just read by a statement that sorts by `sortBy` into the order that users expect; `taskOf`
/// returns the task of an item. All lists share this order.
template <typename Item, typename TaskOf>
void putInOrder(std::vector<Item>& items, qint32 sortBy, TaskOf taskOf)
{
    switch (sortBy) {
    case TaskSort::Name:
        // SQLite has sorted by code points.
        NameOrder().sort(items, [&](const Item& item) { return taskOf(item).taskNameUtf8(); });
        return;
    case TaskSort::Status:
    case TaskSort::DueDate:
    case TaskSort::Periority:
        return;
    default:
        break;
    }
    // By id, the order in which they were made. SQLite does so, too, unless another tool has left
    // statistics in the file.
    const auto isEarlier = [&](const Item& one, const Item& other) {
        return taskOf(one).Id() < taskOf(other).Id();
    };
    if (!std::is_sorted(items.cbegin(), items.cend(), isEarlier)) {
        std::sort(items.begin(), items.end(), isEarlier);
    }
}
