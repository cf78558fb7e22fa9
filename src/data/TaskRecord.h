#pragma once

#include "data/RepeatRules.h"

#include <QtGlobal>
#include <optional>
#include <string>

/// A task with everything that the data file has of it, as it is exchanged with other programs. Texts are in
/// UTF-8.
struct TaskRecord {
    qint32 id = 0; ///< 0 for a task that is not stored yet
    qint32 status = 0; ///< TaskStatus
    qint32 periority = 1; ///< TaskPeriority
    Moment due{};
    Moment reminder{};
    bool reminderOn = false;
    bool played = false;
    bool dismissed = false;
    std::string name;
    std::string description;
    std::string category; ///< its name
    qint16 categoryId = 0; ///< as it is stored; a task is put into the category of that name
    std::string sound; ///< path of the reminder's sound, or empty
    std::string file; ///< what the reminder starts, or empty
    std::string uid; ///< by which other programs know the task; empty while it has none
    /// What other programs have written of the task and this one does not know: iCalendar content lines, not
    /// folded, each ended by a line feed.
    std::string properties;
    std::optional<Repeat> repeat; ///< none for a task that does not repeat

    bool operator==(const TaskRecord&) const = default;
};
