#pragma once

#include <QCoreApplication>

/// What a change of tasks has done, for the bar that takes it back. `count` tasks or reminders; where
/// it is 0 nothing has changed, and nobody sees the text.
class ChangeTexts
{
    Q_DECLARE_TR_FUNCTIONS(ChangeTexts)

public:
    static QString deleted(int count);
    /// Of those that repeat only this time was deleted.
    static QString movedOn(int count);
    static QString duplicated(int count);
    static QString completed(int count);
    /// Completed ones were set back to "Not Started".
    static QString setBack(int count);
    static QString statusChanged(int count);
    static QString periorityChanged(int count);
    static QString categoryChanged(int count);
    /// Added or changed by an import.
    static QString imported(int count);
    static QString dismissed(int count);
    static QString postponed(int count);

    /// What was said, if anything, with a note behind it that no copy of the data was kept before; `why` is
    /// the reason, and with an empty one there is no note.
    static QString withNoCopy(const QString& said, const QString& why);
};
