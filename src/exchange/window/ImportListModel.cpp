#include "exchange/window/ImportListModel.h"

#include "exchange/Exchange.h"
#include "widgets/MomentTexts.h"
#include "widgets/PlainText.h"

namespace
{

QString wordFor(ImportedTask::Outcome outcome)
{
    switch (outcome) {
    case ImportedTask::Outcome::New:
        return ImportListModel::tr("New");
    case ImportedTask::Outcome::Changed:
        return ImportListModel::tr("Changed");
    case ImportedTask::Outcome::Same:
        return ImportListModel::tr("Same");
    }
    return {};
}

} // namespace

void ImportListModel::show(const ImportPlan* plan)
{
    beginResetModel();
    m_plan = plan;
    replaceColumns({{Outcome, QStringLiteral("outcome"), tr("Import"), 120},
        {Name, QStringLiteral("name"), tr("Name"), 28},
        {DueDate, QStringLiteral("due date"), tr("Due Date"), 42},
        {Category, QStringLiteral("category"), tr("Category"), 70}});
    endResetModel();
}

int ImportListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_plan == nullptr ? 0 : static_cast<int>(m_plan->tasks.size());
}

QString ImportListModel::cellText(int row, int field) const
{
    const ImportedTask& imported = m_plan->tasks[static_cast<std::size_t>(row)];
    switch (field) {
    case Outcome:
        return wordFor(imported.outcome);
    case Name:
        return beginningOf(imported.task.name);
    case DueDate:
        return dateAndLongTime(imported.task.due);
    case Category:
        return beginningOf(imported.task.category);
    default:
        return {};
    }
}
