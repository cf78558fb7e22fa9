#include "app/TaskListModel.h"

#include "app/FixedPictures.h"
#include "data/TaskCodes.h"
#include "widgets/MomentTexts.h"
#include "widgets/PlainText.h"
#include "widgets/RepeatTexts.h"
#include "widgets/TaskPictures.h"

#include <algorithm>
#include <array>

namespace
{

struct ColumnSort {
    int field;
    qint32 sortBy;
};
constexpr std::array Sorts{ColumnSort{TaskListModel::Name, TaskSort::Name},
    ColumnSort{TaskListModel::Status, TaskSort::Status},
    ColumnSort{TaskListModel::DueDate, TaskSort::DueDate},
    ColumnSort{TaskListModel::Periority, TaskSort::Periority}};

QList<GridColumn> columnsFor(const TaskColumns& shown)
{
    // A column's key begins with the number of columns before it.
    const auto column = [](int field, const QString& word, const QString& header, int divisor) {
        const bool isSortable = TaskListModel::sortOf(field) != TaskSort::None;
        return GridColumn{field, QStringLiteral("0") + word, header, divisor, isSortable};
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

qint32 TaskListModel::sortOf(int field)
{
    const auto* sort = std::find_if(
        Sorts.begin(), Sorts.end(), [field](const ColumnSort& one) { return one.field == field; });
    return sort == Sorts.end() ? TaskSort::None : sort->sortBy;
}

int TaskListModel::fieldOf(qint32 sortBy)
{
    const auto* sort = std::find_if(
        Sorts.begin(), Sorts.end(), [sortBy](const ColumnSort& one) { return one.sortBy == sortBy; });
    return sort == Sorts.end() ? -1 : sort->field;
}

TaskListModel::TaskListModel(const Clock& clock, QObject* parent)
    : TaskGridModel(clock, Name, DueDate, parent)
{
}

void TaskListModel::setTasks(
    std::vector<ClsTask> tasks, const TaskColumns& shown, std::map<qint32, Repeat> repeats)
{
    beginResetModel();
    m_tasks = std::move(tasks);
    m_repeats = std::move(repeats);
    if (!m_repeats.empty() && m_repeating.isNull()) {
        m_repeating = repeatingIcon(false);
        m_reminderRepeating = repeatingIcon(true);
    }
    m_shown.reset();
    standNow();
    m_search.listReplaced();
    if (isSearching()) {
        m_shown = m_search.find(m_tasks);
    }
    replaceColumns(columnsFor(shown));
    endResetModel();
}

void TaskListModel::removeTask(int row)
{
    const int task = taskOf(row);
    beginRemoveRows({}, row, row);
    m_tasks.erase(m_tasks.begin() + task);
    m_search.taskRemoved(task);
    if (m_shown) {
        m_shown->erase(m_shown->begin() + row);
        std::for_each(m_shown->begin() + row, m_shown->end(), [](int& later) { --later; });
    }
    endRemoveRows();
}

int TaskListModel::rowOf(qint32 id) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (idAt(row) == id) {
            return row;
        }
    }
    return -1;
}

int TaskListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown ? m_shown->size() : m_tasks.size());
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

QVariant TaskListModel::cellPicture(int row, int field) const
{
    if (field == Reminder && repeats(row)) {
        return taskAt(row).ReminderOn() ? m_reminderRepeating : m_repeating;
    }
    return TaskGridModel::cellPicture(row, field);
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
    QStringList notes{urgencyWord(row)};
    if (field == Name && m_categoryName) {
        const QString category = m_categoryName(taskAt(row).CategoryId());
        notes.append(category.isEmpty() ? QString() : tr("Category: %1").arg(category));
    }
    if (const auto repeat = m_repeats.find(idAt(row));
        repeat != m_repeats.end() && (field == Name || field == Reminder)) {
        notes.append(tr("Repeats %1").arg(repeatText(repeat->second.rule, repeat->second.first)));
    }
    notes.removeAll(QString());
    return notes.join(u'\n');
}

QList<TextPart> TaskListModel::cellMarks(int row, int field) const
{
    return field == Name && isSearching() ? m_search.found(cellText(row, field)) : QList<TextPart>();
}
