#include "app/TaskListModel.h"

#include "data/TaskCodes.h"
#include "widgets/MomentTexts.h"
#include "widgets/PlainText.h"
#include "widgets/TaskPictures.h"

#include <algorithm>

namespace
{

QList<GridColumn> columnsFor(const TaskColumns& shown)
{
    // A column's key begins with the number of columns before it.
    const auto column = [](int field, const QString& word, const QString& header, int divisor) {
        return GridColumn{field, QStringLiteral("0") + word, header, divisor};
    };
    QList<GridColumn> columns;
    columns.append(column(TaskListModel::Id, QStringLiteral("id"), TaskListModel::tr("id"), 0));
    columns.append(column(TaskListModel::Name, QStringLiteral("name"), TaskListModel::tr("Name"), 28));
    if (shown.status) {
        columns.append(
            column(TaskListModel::Status, QStringLiteral("status"), TaskListModel::tr("Status"), 300));
    }
    if (shown.dueDate) {
        columns.append(
            column(TaskListModel::DueDate, QStringLiteral("due date"), TaskListModel::tr("Due Date"), 62));
    }
    if (shown.periority) {
        columns.append(column(
            TaskListModel::Periority, QStringLiteral("periority"), TaskListModel::tr("periority"), 180));
    }
    if (shown.reminder) {
        columns.append(
            column(TaskListModel::Reminder, QStringLiteral("reminder"), TaskListModel::tr("reminder"), 290));
    }
    return columns;
}

} // namespace

void TaskListModel::setTasks(std::vector<ClsTask> tasks, const TaskColumns& shown)
{
    beginResetModel();
    m_tasks = std::move(tasks);
    replaceColumns(columnsFor(shown));
    endResetModel();
}

void TaskListModel::removeTask(int row)
{
    beginRemoveRows({}, row, row);
    m_tasks.erase(m_tasks.begin() + row);
    endRemoveRows();
}

int TaskListModel::rowOf(qint32 id) const
{
    const auto task = std::find_if(
        m_tasks.cbegin(), m_tasks.cend(), [id](const ClsTask& candidate) { return candidate.Id() == id; });
    return task == m_tasks.cend() ? -1 : static_cast<int>(task - m_tasks.cbegin());
}

int TaskListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tasks.size());
}

QString TaskListModel::cellText(int row, int field) const
{
    const ClsTask& task = taskAt(row);
    switch (field) {
    case Id:
        return QString::number(task.Id());
    case Name:
        return beginningOf(task.taskNameUtf8());
    case DueDate:
        return dateAndLongTime(task.DueDateTime());
    default:
        return {};
    }
}

int TaskListModel::cellIcon(int row, int field) const
{
    const ClsTask& task = taskAt(row);
    switch (field) {
    case Name:
        return task.IconId();
    case Status:
        return statusPicture(task.status());
    case Periority:
        return periorityPicture(task.Periority());
    case Reminder:
        return task.ReminderOn() ? ReminderPicture : NoIcon;
    default:
        return NoIcon;
    }
}

QString TaskListModel::cellWord(int row, int field) const
{
    const ClsTask& task = taskAt(row);
    switch (field) {
    case Status:
        return statusWord(task.status());
    case Periority:
        return periorityWord(task.Periority());
    case Reminder:
        return task.ReminderOn() ? tr("Reminder on") : tr("Reminder off");
    default:
        return {};
    }
}

QString TaskListModel::cellNote(int row, int field) const
{
    if (field != Name || !m_categoryName) {
        return {};
    }
    const QString category = m_categoryName(taskAt(row).CategoryId());
    return category.isEmpty() ? QString() : tr("Category: %1").arg(category);
}
