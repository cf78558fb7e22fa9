#pragma once

#include "data/ClsTask.h"
#include "data/TaskCodes.h"
#include "platform/Moment.h"

#include <QCoreApplication>
#include <optional>

/// What the dialog remembers of the task that it edits.
struct EditedTask {
    qint32 id = 0;
    bool reminderOn = false; ///< as loaded
    Moment reminder{}; ///< as loaded, with its seconds
};

/// Where the user is led after a refusal.
enum class TaskField { ReminderDate, TaskName, Category, SoundBrowse, FileBrowse };

struct Refusal {
    TaskField field;
    QString message;
};

/// What the user has entered into the task dialog, and what follows from it; knows no window.
struct TaskInput {
    QString taskName;
    std::optional<qint16> categoryId; ///< none when no category is selected
    QString description;
    Moment due{}; ///< whole minutes
    qint32 status = TaskStatus::NotStarted;
    qint32 periority = TaskPeriority::Normal;
    bool reminderOn = false;
    Moment reminder{}; ///< whole minutes
    bool hasSound = false;
    QString sound;
    bool hasFile = false;
    QString file;

    bool operator==(const TaskInput&) const = default;

    /// What is told before this input is given up; `filled` is what the user found in the dialog.
    QString unsavedText(const TaskInput& filled) const;
    /// Where the user has left the reminder as it was loaded, what the alert has done to the stored one since
    /// is taken over, in `edited` too: it is no change of the user's.
    void followReminder(EditedTask& edited, const ClsTask& stored);

    /// The first objection to this input, if any. `edited` is none for a new task.
    std::optional<Refusal> refusal(const std::optional<EditedTask>& edited, Moment now) const;

    /// The task to store, of an input without objection. `DateChanged` is set when the reminder moment of an
    /// edited task is another one now.
    ClsTask toTask(const DatabaseEngine& engine, const std::optional<EditedTask>& edited) const;

private:
    bool reminderMustLieAhead(const std::optional<EditedTask>& edited) const;

    Q_DECLARE_TR_FUNCTIONS(TaskInput)
};
