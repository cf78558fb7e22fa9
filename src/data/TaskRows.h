#pragma once

#include "data/CategoryRows.h"
#include "data/ClsTask.h"

#include <array>
#include <string_view>
#include <unordered_set>

/// Reads rows of the table of tasks. Throws UnreadableRecordError when any value of the row does not
/// convert, even one that the caller does not use: so all views show the same tasks.
class TaskFields
{
public:
    /// Looks the columns up; throws DatabaseError when one is missing.
    explicit TaskFields(const RecordSet& records);

    /// Reads the current row into `task`, except what belongs to its category.
    void read(const RecordSet& records, ClsTask& task) const;
    /// The same without keeping the texts.
    void check(const RecordSet& records, ClsTask& scratch) const;

private:
    using Texts = std::array<std::string_view, ClsTask::TextCount>;
    Texts texts(const RecordSet& records) const;
    void readNumbers(const RecordSet& records, ClsTask& task) const;

    RecordNaming m_naming;
    int m_status;
    int m_description;
    int m_due;
    int m_periority;
    int m_reminder;
    int m_file;
    int m_reminderOn;
    int m_sound;
    int m_played;
    int m_dismissed;
};

/// Reads rows of tasks joined with their categories. Throws also when the category does not convert, so
/// that no list holds a task of a category that no filter offers.
class TaskRows
{
public:
    /// `engine` outlives this object.
    TaskRows(const DatabaseEngine& engine, const RecordSet& records);

    /// Reads the current row. Throws UnreadableRecordError, which names the task or its category.
    void read(const RecordSet& records, ClsTask& task);

private:
    const DatabaseEngine* m_engine;
    TaskFields m_columns;
    CategoryRows m_categories;
    int m_icon;
    std::unordered_set<qint16> m_readable; ///< ids of categories that have been read without an error
};
