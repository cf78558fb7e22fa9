#pragma once

#include "support/TestDatabase.h"

/// Makes the tables of tasks and categories as other tools do: any column takes any value.
inline void dropConstraints(const TestDatabase& database)
{
    for (const char* table : {"tasks", "categories"}) {
        database.sql(QStringLiteral("create table copy as select * from %1; drop table %1;"
                                    "alter table copy rename to %1;")
                         .arg(QLatin1String(table)));
    }
}

/// Values that do not convert: the assignment, and the column that the error must name.
struct Damage {
    const char* what;
    const char* set;
    const char* column;
};

inline constexpr Damage TaskDamages[]{
    {"a day of no month", "task_due_date='0000-00-00'", "task_due_date"},
    {"no text for a moment", "task_due_date=''", "task_due_date"},
    {"a null for a moment", "task_due_date=null", "task_due_date"},
    {"a word for a moment", "task_due_date='soon'", "task_due_date"},
    {"a day that does not exist", "task_due_date='2026-02-30 10:00:00'", "task_due_date"},
    {"a number for a moment", "task_due_date=46000", "task_due_date"},
    {"bytes for a moment", "task_due_date=x'00'", "task_due_date"},
    {"a word for a status", "task_status='abc'", "task_status"},
    {"a status out of range", "task_status=5000000000", "task_status"},
    {"a part of a status", "task_status=1.5", "task_status"},
    {"a null for a name", "task_name=null", "task_name"},
    {"bytes for a name", "task_name=x'ff00'", "task_name"},
    {"a null for a description", "task_desc=null", "task_desc"},
    {"a null for a priority", "task_periority=null", "task_periority"},
    {"a word for a flag", "reminder_on='yes'", "reminder_on"},
    {"no text for the reminder", "reminder_date_time=''", "reminder_date_time"},
    {"a null for a sound", "reminder_sound=null", "reminder_sound"},
    {"a null for a file", "reminder_file=null", "reminder_file"},
    {"a null for a mark", "played=null", "played"},
    {"a word for a mark", "dismissed='no'", "dismissed"},
    {"an id of 33 bits", "task_id=5000000000", "task_id"},
};

inline constexpr Damage CategoryDamages[]{
    {"an id of 17 bits", "cat_id=40000", "cat_id"},
    {"an id of 33 bits", "cat_id=5000000000", "cat_id"},
    {"a null for a name", "cat_name=null", "cat_name"},
    {"a null for a description", "cat_desc=null", "cat_desc"},
    {"a picture out of range", "cat_icon=40000", "cat_icon"},
    {"a word for a picture", "cat_icon='home'", "cat_icon"},
    {"a null for a mark", "custom_icon=null", "custom_icon"},
    {"bytes for a file name", "cat_icon_name=x'00'", "cat_icon_name"},
};
