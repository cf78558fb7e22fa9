#pragma once

#include <QCoreApplication>
#include <QList>
#include <optional>

/// What the actions of the task list have to know of a selected task.
struct TaskState {
    qint32 id = 0;
    qint32 status = 0;
    qint32 periority = 0;
    qint16 category = 0;
    bool reminderOn = false;
    bool repeats = false;
};

/// What can be done with the selected tasks.
class TaskChoices
{
    Q_DECLARE_TR_FUNCTIONS(TaskChoices)

public:
    explicit TaskChoices(const QList<TaskState>& selected) : m_tasks(selected) { }

    bool isEmpty() const { return m_tasks.isEmpty(); }
    int count() const { return static_cast<int>(m_tasks.size()); }
    QList<qint32> ids() const;
    /// Those whose reminder is on, the only ones that can be postponed.
    QList<qint32> idsWithReminder() const;
    /// Whether all are completed: completing them sets them back to "Not Started".
    bool areAllCompleted() const;
    /// What all have in common; none when they differ or none is selected.
    std::optional<qint32> commonStatus() const { return common(&TaskState::status); }
    std::optional<qint32> commonPeriority() const { return common(&TaskState::periority); }
    std::optional<qint32> commonCategory() const { return common(&TaskState::category); }
    /// The caption of the entry that completes them or sets them back.
    QString completeCaption() const;
    int repeatingCount() const;
    /// For tasks of which one repeats it asks whether this time is meant or all.
    QString deleteQuestion() const;
    /// The captions of the entries that give tasks a status or a priority, with their mnemonics.
    static QString statusCaption(qint32 status);
    static QString periorityCaption(qint32 periority);

private:
    template <typename Value> std::optional<qint32> common(Value TaskState::*field) const;

    QList<TaskState> m_tasks;
};

template <typename Value> std::optional<qint32> TaskChoices::common(Value TaskState::*field) const
{
    for (const TaskState& task : m_tasks) {
        if (task.*field != m_tasks.first().*field) {
            return std::nullopt;
        }
    }
    return m_tasks.isEmpty() ? std::nullopt : std::optional<qint32>(m_tasks.first().*field);
}
