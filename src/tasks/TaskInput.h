#pragma once

#include "data/ClsTask.h"
#include "data/RepeatRules.h"
#include "data/TaskCodes.h"
#include "system/Moment.h"

#include <QCoreApplication>
#include <optional>

/// What the dialog knows of the task that is being edited.
struct EditedTask {
    qint32 id = 0;
    bool reminderOn = false; ///< as loaded
    Moment reminder{}; ///< as loaded, with its seconds
    Moment due{}; ///< as loaded, with its seconds
    std::optional<Repeat> repeat = {}; ///< as loaded; none for a task that does not repeat
};

/// The control that gets the focus after a refusal.
enum class TaskField { ReminderDate, TaskName, Category, SoundBrowse, FileBrowse };

struct Refusal {
    TaskField field;
    QString message;
};

/// What the user has entered into the task dialog, and the decisions about it; knows no window.
struct TaskInput {
    QString taskName;
    std::optional<qint16> categoryId; ///< none when no category is selected
    QString description;
    Moment due{}; ///< whole minutes
    qint32 status = TaskStatus::NotStarted;
    qint32 periority = TaskPeriority::Normal;
    std::string rule; ///< how the task repeats, as in Repeat; empty for never
    bool reminderOn = false;
    Moment reminder{}; ///< whole minutes
    bool hasSound = false;
    QString sound;
    bool hasFile = false;
    QString file;

    bool operator==(const TaskInput&) const = default;

    /// The question before this input is discarded; `filled` is what the dialog was filled with.
    QString unsavedText(const TaskInput& filled) const;
    /// Takes over what has become of the stored task since it was loaded, in the fields that the user has
    /// left as they were; `filled` is what the dialog was filled with. Reminder and repetition have functions
    /// of their own.
    void followOthers(const TaskInput& filled, const ClsTask& loaded, const ClsTask& stored);
    /// If the user has left the reminder as it was loaded, takes over what the alert has done to the stored
    /// one since, in `edited` as well: that is no change by the user.
    void followReminder(EditedTask& edited, const ClsTask& stored);
    /// The same with how the task repeats, when it has moved on since. Not when the user completes it: that
    /// is meant for the due moment that is shown.
    void followRepeat(EditedTask& edited, const ClsTask& stored);

    /// The first objection to this input, if any. `edited` is empty for a new task.
    std::optional<Refusal> refusal(const std::optional<EditedTask>& edited, Moment now) const;

    /// The task to store; the input must have no objection. `DateChanged` is set when an edited task has
    /// another reminder moment: one that the user has chosen, or that of the new due moment of a task which
    /// repeats, where the reminder had come already.
    ClsTask toTask(const DatabaseEngine& engine, const std::optional<EditedTask>& edited) const;
    /// How the task is to repeat: as before, from where it was, while rule and due moment are those loaded;
    /// else from the due moment on. None for never.
    std::optional<Repeat> repeat(const std::optional<EditedTask>& edited, Moment now) const;

private:
    bool isReminderSetByUser(const EditedTask& edited) const;
    /// The loaded reminder, which the user has left alone.
    bool hasReminderCome(const EditedTask& edited, Moment now) const;
    /// Whether the series counts from another due moment, or goes by another rule, than that loaded.
    bool beginsAnew(const std::optional<EditedTask>& edited) const;
    bool reminderMustLieAhead(const std::optional<EditedTask>& edited) const;

    Q_DECLARE_TR_FUNCTIONS(TaskInput)
};
