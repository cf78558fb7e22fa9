#pragma once

#include "data/TaskRecord.h"

#include <optional>

/// How a row of a table says that a task repeats.
struct RuleOfFile {
    std::string rule; ///< empty when it does not
    std::optional<Moment> first; ///< from which the rule counts; otherwise from the due moment on
    std::optional<qint32> lead; ///< of the reminder, in minutes
    std::optional<qint32> done;
};

/// A task as a file has it.
struct FileTask {
    /// What the file says something of; the rest of `task` means nothing.
    struct Said {
        bool name = false;
        bool description = false;
        bool category = false;
        bool status = false;
        bool periority = false;
        bool due = false;
        bool reminderOn = false;
        bool reminder = false; ///< its moment
        bool state = false; ///< played and dismissed
        bool sound = false;
        bool file = false;
        bool properties = false;
        bool repeat = false; ///< `task.repeat`
        bool rule = false;
    };

    qint64 line = 0;
    Said said;
    /// `file` is what the task starts, confirmed by nobody.
    TaskRecord task;
    RuleOfFile rule;
    int furtherReminders = 0;
    bool repeats = false; ///< in the other program alone
    bool isOwnRepeat = false; ///< written by this program, and changed by nobody
    bool isInUnknownZone = false;
};

/// The moment of a day for a task that is due on it at no certain time.
inline constexpr std::chrono::minutes EndOfDay{23 * 60 + 59};
