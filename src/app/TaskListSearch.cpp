#include "app/TaskListModel.h"

#include <algorithm>
#include <iterator>
#include <numeric>

// Which tasks of the list have a row while something is looked for.

bool TaskListModel::lookFor(const QString& text)
{
    if (!m_search.lookFor(text)) {
        return false;
    }
    if (isSearching()) {
        m_search.find(m_tasks);
    }
    return true;
}

bool TaskListModel::isFound(int row) const
{
    const std::vector<int>& found = m_search.lastFound();
    return !isSearching() || std::binary_search(found.begin(), found.end(), taskOf(row));
}

void TaskListModel::showFound()
{
    const std::vector<int> before = shownTasks();
    const std::vector<int> next = isSearching() ? m_search.lastFound() : allTasks();
    std::vector<int> kept;
    std::set_intersection(before.begin(), before.end(), next.begin(), next.end(), std::back_inserter(kept));
    if (kept.size() < before.size()) {
        removeRowsBut(std::move(kept));
    }
    if (shownTasks().size() < next.size()) {
        addRows(next);
    }
    if (!isSearching()) {
        m_shown.reset();
    }
    // Time may have passed for rows that were not seen.
    standNow();
    // What was found in a name is marked.
    if (rowCount() > 0) {
        emit dataChanged(
            index(0, 0), index(rowCount() - 1, columnCount() - 1), {MarksRole, InkRole, Qt::FontRole});
    }
}

std::vector<int> TaskListModel::shownTasks() const
{
    return m_shown ? *m_shown : allTasks();
}

std::vector<int> TaskListModel::allTasks() const
{
    std::vector<int> all(m_tasks.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

// Thousands of single rows may come and go. Each would take its time; moved to the end first, they are one
// block.

void TaskListModel::removeRowsBut(std::vector<int> kept)
{
    const std::vector<int> before = shownTasks();
    std::vector<int> order = kept;
    std::set_difference(before.begin(), before.end(), kept.begin(), kept.end(), std::back_inserter(order));
    putInOrder(std::move(order));
    beginRemoveRows({}, static_cast<int>(kept.size()), rowCount() - 1);
    m_shown = std::move(kept);
    endRemoveRows();
}

void TaskListModel::addRows(const std::vector<int>& all)
{
    std::vector<int> order = shownTasks();
    const std::vector<int> before = order;
    std::set_difference(all.begin(), all.end(), before.begin(), before.end(), std::back_inserter(order));
    beginInsertRows({}, static_cast<int>(before.size()), static_cast<int>(all.size()) - 1);
    m_shown = std::move(order);
    endInsertRows();
    putInOrder(all);
}

void TaskListModel::putInOrder(std::vector<int> order)
{
    const std::vector<int> before = shownTasks();
    if (order == before) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> rowOfTask(m_tasks.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        rowOfTask[static_cast<std::size_t>(order[row])] = static_cast<int>(row);
    }
    const QModelIndexList old = persistentIndexList();
    QModelIndexList moved;
    for (const QModelIndex& cell : old) {
        moved.append(index(rowOfTask[static_cast<std::size_t>(taskOf(cell.row()))], cell.column()));
    }
    m_shown = std::move(order);
    changePersistentIndexList(old, moved);
    emit layoutChanged({}, VerticalSortHint);
}

bool TaskListModel::hasTask(qint32 id) const
{
    return std::any_of(m_tasks.begin(), m_tasks.end(), [id](const ClsTask& task) { return task.Id() == id; });
}

std::vector<qint32> TaskListModel::shownIds() const
{
    std::vector<qint32> ids;
    for (int row = 0; row < rowCount(); ++row) {
        ids.push_back(idAt(row));
    }
    return ids;
}
