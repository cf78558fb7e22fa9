#include "data/TaskReportQuery.h"

#include "data/SqlText.h"

namespace
{

/// The word that joins a further condition to the query.
QLatin1String joinTo(const QString& query)
{
    return query.contains(QLatin1String("where"), Qt::CaseInsensitive) ? QLatin1String(" and ")
                                                                       : QLatin1String(" where ");
}

QLatin1String orderOf(qint32 sortBy)
{
    switch (sortBy) {
    case TaskSort::Name:
        return QLatin1String(" order by task_name");
    case TaskSort::Status:
        return QLatin1String(" order by task_status");
    case TaskSort::DueDate:
        return QLatin1String(" order by task_due_date");
    case TaskSort::Periority:
        return QLatin1String(" order by task_periority");
    default:
        return {};
    }
}

} // namespace

QString taskReportQuery(const TaskFilter& filter)
{
    QString query =
        QStringLiteral("select * from tasks inner join categories on tasks.cat_id=categories.cat_id");
    if (filter.category != CategoryFilter::All) {
        query += QLatin1String(" where categories.cat_id= ") + QString::number(filter.category);
    }
    if (filter.status != TaskStatus::All) {
        query += joinTo(query) + QLatin1String("task_status = ") + QString::number(filter.status);
    }
    if (filter.taskType != TaskType::All) {
        query += joinTo(query) + QLatin1String("task_due_date ");
        if (filter.taskType == TaskType::Active) {
            query += QLatin1String(" >=now()");
        } else if (filter.taskType == TaskType::Expired) {
            query += QLatin1String(" <now()");
        }
    }
    if (filter.isDateRange) {
        query += joinTo(query) + QLatin1String("task_due_date >= #") + sqlDate(filter.fromDate)
            + QLatin1String("# and task_due_date <= #") + sqlDate(filter.toDate) + QLatin1String(" 23:59# ");
    }
    return query + orderOf(filter.sortBy);
}
