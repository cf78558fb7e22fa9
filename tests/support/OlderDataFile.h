#pragma once

#include "support/TestDatabase.h"

/// The shapes in which data files of earlier versions are out there, each with what makes one of a present
/// file.
struct OlderDataFile {
    const char* name;
    const char* sql;
};

inline constexpr OlderDataFile OlderDataFiles[] = {
    {"version 1, without the indexes for the filters",
        "drop table repeats; drop table task_origins; drop index tasks_by_status; drop index "
        "tasks_by_category; "
        "pragma user_version=1"},
    {"version 1, with all indexes", "drop table repeats; drop table task_origins; pragma user_version=1"},
    {"version 2", "drop table repeats; drop table task_origins; pragma user_version=2"},
    {"version 2, with the tables already", "pragma user_version=2"},
    {"version 3", "drop table repeats; pragma user_version=3"},
    {"version 3, with the table already", "pragma user_version=3"},
    {"written anew by another tool",
        "drop table repeats; drop table task_origins; drop index tasks_by_status; drop index "
        "tasks_by_category; "
        "pragma user_version=0"},
    {"written anew without any index",
        "drop table repeats; drop table task_origins; drop index tasks_by_reminder; drop index "
        "tasks_by_status; "
        "drop index tasks_by_category; pragma user_version=0"},
    {"of a version that never was", "pragma user_version=-7"},
};

inline void makeOlder(const TestDatabase& database)
{
    database.sql(QString::fromLatin1(OlderDataFiles[0].sql));
}

/// Adds `count` tasks, the last of which has the id `highest`; those before it have every third id from 1 on.
/// Each has a value of its own in every column.
inline void addTasksUpTo(const TestDatabase& database, int count, int highest)
{
    database.sql(QStringLiteral(
        "insert into tasks with recursive n(i) as (select 1 union all select i+1 from n where i<%1) "
        "select iif(i=%1,%2,3*i-1), 'task '||(%1-i), 'about '||i, i % 5, 1+i % 4, "
        "strftime('%Y-%m-%d %H:%M:00','2026-01-15','+'||(i*7 % 1000)||' minutes'), i % 3, i % 2, "
        "strftime('%Y-%m-%d %H:%M:00','2026-01-15','+'||(i*11 % 1000)||' minutes'), i||'.wav', i||'.sh', "
        "i % 7=0, i % 5=0 from n")
                     .arg(count)
                     .arg(highest));
}

/// All of the tasks but their ids, in the order of those.
inline QList<QVariantList> tasksWithoutIds(const TestDatabase& database)
{
    return database.rows(QStringLiteral(
        "select task_name,task_desc,task_status,cat_id,task_due_date,task_periority,reminder_on,"
        "reminder_date_time,reminder_sound,reminder_file,played,dismissed from tasks order by task_id"));
}
