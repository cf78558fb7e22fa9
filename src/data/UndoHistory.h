#pragma once

#include "store/ChangeSet.h"
#include "store/DatabaseEngine.h"

#include <QObject>
#include <functional>
#include <vector>

/// The last changes of the user's data, to be taken back and done again. Nothing of it is stored. Used on the
/// thread of the windows.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t MostSteps = 20;

    /// `engine` outlives the history.
    explicit UndoHistory(const DatabaseEngine& engine, QObject* parent = nullptr);

    /// Runs `change` with an engine whose connections are recorded; when rows have changed they are the
    /// newest step, and what was taken back before cannot be done again. `change` returns what it has done,
    /// for the user ("3 tasks deleted"), and may throw, which goes to the caller; then there is no step. The
    /// engine lives for the call only.
    void run(const std::function<QString(const DatabaseEngine&)>& change);

    bool canUndo() const { return m_next > 0; }
    bool canRedo() const { return m_next < m_steps.size(); }
    /// What `undo()` takes back; empty when there is nothing.
    QString undoText() const;
    /// What `redo()` does again; empty when there is nothing.
    QString redoText() const;

    /// Takes the newest step back in one operation. When a row is no longer what the step has made of it, or
    /// a task would be left without a category, nothing changes, the step is forgotten and ChangedSinceError
    /// says so; DatabaseError leaves the step. A category that comes back where another of its name has been
    /// made since gives its tasks to that one.
    void undo();
    /// Does the step again that was taken back last; as `undo()`.
    void redo();
    /// Forgets all steps: other data have taken the place of those.
    void clear();

signals:
    /// `undoText()` or `redoText()` is another one.
    void stepsChanged();
    /// `undo()` or `redo()` has changed rows: what has been read before is out of date.
    void dataChanged();

private:
    struct Step {
        QString done;
        ChangeSet changes;
    };
    void apply(std::size_t step, const ChangeSet& changes, std::size_t nextAfterwards);

    const DatabaseEngine* m_engine;
    std::vector<Step> m_steps; ///< the oldest first
    std::size_t m_next = 0; ///< steps before it can be undone, steps from it on done again
};
