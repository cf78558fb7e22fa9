#pragma once

#include "data/ClsTask.h"
#include "widgets/GridModel.h"

#include <functional>
#include <vector>

/// Which of the optional columns the task list shows.
struct TaskColumns {
    bool status = true;
    bool dueDate = true;
    bool periority = true;
    bool reminder = true;
};

/// The tasks of the list, in the order in which the store returned them.
class TaskListModel : public GridModel
{
    Q_OBJECT

public:
    enum Field { Id, Name, Status, DueDate, Periority, Reminder };

    using GridModel::GridModel;

    /// Sets how a category's name is found, empty for an unknown one; called when a cell is looked at.
    void setCategoryNames(std::function<QString(qint16 id)> nameOf) { m_categoryName = std::move(nameOf); }
    /// Replaces all rows and columns.
    void setTasks(std::vector<ClsTask> tasks, const TaskColumns& shown);
    /// Removes one row; the others keep their order.
    void removeTask(int row);
    /// The row of a task; -1 when it is not in the list.
    int rowOf(qint32 id) const;
    qint32 idAt(int row) const { return m_tasks[static_cast<std::size_t>(row)].Id(); }

    int rowCount(const QModelIndex& parent = {}) const override;

protected:
    QString cellText(int row, int field) const override;
    int cellIcon(int row, int field) const override;
    QString cellWord(int row, int field) const override;
    QString cellNote(int row, int field) const override;

private:
    const ClsTask& taskAt(int row) const { return m_tasks[static_cast<std::size_t>(row)]; }

    std::vector<ClsTask> m_tasks;
    std::function<QString(qint16 id)> m_categoryName;
};
