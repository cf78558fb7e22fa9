#pragma once

#include "app/TaskSearch.h"
#include "data/ClsTask.h"
#include "data/RepeatRules.h"
#include "widgets/TaskGridModel.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

/// The ids of the tasks that a search shows; none when all are shown.
using ShownTasks = std::optional<std::vector<qint32>>;

/// Which of the optional columns the task list shows.
struct TaskColumns {
    bool status = true;
    bool dueDate = true;
    bool periority = true;
    bool reminder = true;
};

/// The tasks of the list, in the order in which the store returned them. While something is looked for its
/// rows are those that were found.
class TaskListModel : public TaskGridModel
{
    Q_OBJECT

public:
    enum Field { Id, Name, Status, DueDate, Periority, Reminder };

    /// `clock` outlives the model; it decides what is late.
    explicit TaskListModel(const Clock& clock, QObject* parent = nullptr);

    /// The order that a click on the column of `field` asks for; TaskSort::None for none.
    static qint32 sortOf(int field);
    /// The field by whose column an order sorts; -1 for none.
    static int fieldOf(qint32 sortBy);

    /// Sets how a category's name is found, empty for an unknown one; called when a cell is looked at.
    void setCategoryNames(std::function<QString(qint16 id)> nameOf) { m_categoryName = std::move(nameOf); }
    /// Replaces all tasks and columns; what is looked for stays. `repeats` are those of tasks by their ids,
    /// listed or not.
    void setTasks(
        std::vector<ClsTask> tasks, const TaskColumns& shown, std::map<qint32, Repeat> repeats = {});
    /// Removes one row; the others keep their order.
    void removeTask(int row);
    /// The row of a task; -1 when no row shows it.
    int rowOf(qint32 id) const;
    const ClsTask& taskAt(int row) const { return m_tasks[static_cast<std::size_t>(taskOf(row))]; }
    qint32 idAt(int row) const override { return taskAt(row).Id(); }
    bool repeats(int row) const { return m_repeats.contains(idAt(row)); }

    /// Makes ready for a search, a part at a call that takes some milliseconds. Whether there is more to do.
    bool prepareSearch() { return m_search.prepare(m_tasks, 1000); }
    /// Looks for the words of `text` (TaskSearch). False when nothing changes; otherwise the rows stay as
    /// they are until `showFound`.
    bool lookFor(const QString& text);
    /// Whether the row will be seen after `showFound`.
    bool isFound(int row) const;
    /// Shows the tasks that were found, or all when nothing is looked for. Rows that stay keep their
    /// persistent indexes.
    void showFound();
    bool isSearching() const { return m_search.isActive(); }
    /// The number of tasks, found or not.
    int taskCount() const { return static_cast<int>(m_tasks.size()); }
    /// Whether the task is one of them, shown or not.
    bool hasTask(qint32 id) const;
    /// The ids of the tasks that rows show.
    std::vector<qint32> shownIds() const;
    /// Gives back memory that only a search needs; to be called while nothing is looked for.
    void restSearch() { m_search.rest(); }

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int row, int field) const override;
    QVariant cellPicture(int row, int field) const override;
    QString cellWord(int row, int field) const override;
    QString cellNote(int row, int field) const override;
    qint32 statusAt(int row) const override { return taskAt(row).status(); }
    Moment dueAt(int row) const override { return taskAt(row).DueDateTime(); }
    QList<TextPart> cellMarks(int row, int field) const override;

private:
    int taskOf(int row) const { return m_shown ? (*m_shown)[static_cast<std::size_t>(row)] : row; }
    std::vector<int> shownTasks() const;
    std::vector<int> allTasks() const;
    void removeRowsBut(std::vector<int> kept);
    void addRows(const std::vector<int>& all);
    void putInOrder(std::vector<int> order);

    std::vector<ClsTask> m_tasks;
    std::map<qint32, Repeat> m_repeats;
    QIcon m_repeating; ///< made when something repeats, as is the next one
    QIcon m_reminderRepeating;
    TaskSearch m_search;
    /// The tasks of the rows, as places in m_tasks; none while every task has its row.
    std::optional<std::vector<int>> m_shown;
    std::function<QString(qint16 id)> m_categoryName;
};
