#include "support/TaskFile.h"

#include "store/Hardening.h"

#include <QFile>
#include <sqlite3.h>
#include <stdexcept>

TaskFile::TaskFile(const TaskFileContent& content)
{
    if (!m_folder.isValid() || !QFile::copy(QStringLiteral(AMBERTASK_SHIPPED_DATA_FILE), path())) {
        throw std::runtime_error("no data file could be made for the benchmark");
    }
    m_engine.programFolder = folder();
    m_engine.clock = &m_clock;
    // 50 tasks are due on each day, in mixed order; the multiplier is coprime to every size used.
    QString fill = QStringLiteral(
        "with recursive n(i) as (select 0 union all select i+1 from n where i+1<:tasks) "
        "insert into tasks(task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
        "reminder_date_time) "
        "select printf('Task %08d of the long list', i)||'....', "
        "substr(printf('%08d ', i)||'A description that goes on for two or three lines, as most of them do, "
        "with "
        "enough words in it to make one hundred and twenty letters.',1,120), "
        "case when i%2=1 and i/2%:step=0 and :rare>0 then 4 else i%4 end, "
        "case when i%2=0 and i/2%:step=0 and :rare>0 then 4 else i%3+1 end, "
        "datetime('2026-01-01', printf('%d minutes', (i*7919%:tasks)*29)), i%3, i<:due or i%3=0, "
        "case when i<:due then '2026-01-15 09:00:00' else '2099-01-01 00:00:00' end from n where i<:tasks");
    fill.replace(QStringLiteral(":tasks"), QString::number(content.tasks));
    fill.replace(QStringLiteral(":rare"), QString::number(content.rare));
    fill.replace(QStringLiteral(":due"), QString::number(content.due));
    fill.replace(
        QStringLiteral(":step"), QString::number(qMax(1, content.tasks / 2 / qMax(1, content.rare))));
    if (content.tasks > 0) {
        run(fill);
    }
    run(QStringLiteral("insert into repeats(of_task,rule,first_moment,lead) select "
                       "task_id,'FREQ=DAILY',task_due_date,60 from tasks order by task_id limit %1")
            .arg(content.repeating));
}

void TaskFile::run(const QString& sql) const
{
    sqlite3* database = nullptr;
    char* error = nullptr;
    openDatabase(path(), database);
    sqlite3_exec(database, "pragma synchronous=off", nullptr, nullptr, nullptr);
    const int code = sqlite3_exec(database, sql.toUtf8().constData(), nullptr, nullptr, &error);
    const std::string why = error == nullptr ? "" : error;
    sqlite3_free(error);
    sqlite3_close(database);
    if (code != SQLITE_OK) {
        throw std::runtime_error("the data file of the benchmark could not be filled: " + why);
    }
}

void TaskFile::nameWithoutEnd(int task, int letters) const
{
    // Arabic letters, which are shaped.
    run(QStringLiteral("update tasks set task_name=replace(hex(zeroblob(%1)),'00','\u0628') where task_id=%2")
            .arg(letters)
            .arg(task));
}
