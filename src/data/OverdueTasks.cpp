#include "data/OverdueTasks.h"

#include "data/ClsDatabase.h"
#include "data/TaskCodes.h"

OverdueTasks OverdueTasks::read(const DatabaseEngine& engine)
{
    // Only tasks that the lists show: a task without a category, or with a due date that is none, is in none
    // of them.
    const QString statement = QStringLiteral(
        "select count(case when task_due_date < now() then 1 end) as overdue, "
        "coalesce(min(case when task_due_date >= now() then task_due_date end),'') as next_due "
        "from tasks inner join categories on tasks.cat_id=categories.cat_id where task_status <> %1 "
        "and task_due_date like '____-__-__ __:__:__'")
                                  .arg(TaskStatus::Completed);
    Connection connection = ClsDatabase(engine).Connect();
    connection.open();
    const RecordSet records = connection.execute(statement);
    OverdueTasks tasks;
    tasks.count = records.int32(records.field("overdue"));
    tasks.nextDue = momentFromStoredText(records.utf8(records.field("next_due")));
    connection.close();
    return tasks;
}
