#pragma once

#include "data/TaskUrgency.h"
#include "widgets/GridModel.h"

#include <optional>

class Clock;

/// A grid whose rows are tasks. What is overdue, due today and done is told by colour and, as nothing is told
/// by its colour alone, by font and word.
class TaskGridModel : public GridModel
{
    Q_OBJECT

public:
    /// `clock` outlives the model; it decides what is late. The fields are those of the task's name and due
    /// date.
    TaskGridModel(const Clock& clock, int nameField, int dueDateField, QObject* parent);

    virtual qint32 idAt(int row) const = 0;
    /// The rows of those of the tasks that are in the list, from the top.
    QList<int> rowsOf(const QList<qint32>& ids) const;
    /// To be called now and then: when what is late has changed with time, the rows tell of it.
    void followTime();

protected:
    virtual qint32 statusAt(int row) const = 0;
    virtual Moment dueAt(int row) const = 0;

    /// From now on the rows stand to the present moment. To be called when they have been replaced.
    void standNow();
    /// "Overdue" or "Due today"; empty otherwise.
    QString urgencyWord(int row) const;
    RowInk rowInk(int row) const override;
    QFont cellFont(int row, int field) const override;
    const Clock& clock() const { return m_clock; }

private:
    TaskUrgency urgencyAt(int row) const;
    bool showsDueDate() const;

    const Clock& m_clock;
    int m_nameField;
    int m_dueDateField;
    /// To which the rows stand, so that all change at once.
    Moment m_now{};
    std::optional<Moment> m_nextChange;
};
