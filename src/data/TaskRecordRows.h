#pragma once

#include "data/ClsTask.h"
#include "data/TaskRecord.h"
#include "data/TaskRepeats.h"
#include "data/TaskRows.h"

/// Reads the rows of a query of whole tasks (TaskArchive).
class TaskRecordRows
{
public:
    /// `engine` outlives this object. `hasRepeats` tells that the query asks how they repeat.
    TaskRecordRows(const DatabaseEngine& engine, const RecordSet& records, bool hasRepeats);

    /// Reads the current row. False when it does not convert.
    bool read(const RecordSet& records, TaskRecord& task);

private:
    const DatabaseEngine* m_engine;
    TaskRows m_rows;
    ClsTask m_task;
    int m_sound;
    int m_file;
    int m_category;
    int m_played;
    int m_dismissed;
    int m_uid;
    int m_properties;
    int m_rule = -1;
    std::optional<RepeatColumns> m_repeat; ///< none when nothing repeats
};
