#pragma once

#include "data/ClsTask.h"
#include "data/NameOrder.h"
#include "data/TaskCodes.h"
#include "store/UnicodeCollation.h"

#include <algorithm>

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

/// Whether the order by `sortBy` says nothing about these two. Names are equal without regard to case.
inline bool isTied(const ClsTask& one, const ClsTask& other, qint32 sortBy)
{
    switch (sortBy) {
    case TaskSort::Name:
        return compareIgnoringCase(one.taskNameUtf8(), other.taskNameUtf8()) == 0;
    case TaskSort::Status:
        return one.status() == other.status();
    case TaskSort::DueDate:
        return one.DueDateTime() == other.DueDateTime();
    case TaskSort::Periority:
        return one.Periority() == other.Periority();
    default:
        return true;
    }
}

/// Turns items that are in the order by `sortBy` round; those that are tied in it keep their order.
template <typename Item, typename TaskOf>
void turnRound(std::vector<Item>& items, qint32 sortBy, TaskOf taskOf)
{
    std::reverse(items.begin(), items.end());
    for (auto first = items.begin(); first != items.end();) {
        const auto last = std::find_if(first + 1, items.end(),
            [&](const Item& item) { return !isTied(taskOf(*first), taskOf(item), sortBy); });
        std::reverse(first, last);
        first = last;
    }
}
