#pragma once

#include "system/Moment.h"

#include <QList>

struct DatabaseEngine;

/// Changes of several tasks at once. Each is one operation on one connection, in the file whole or not at
/// all. Ids that no task has are passed over. All throw DatabaseError, and RuntimeError when a task repeats
/// and the rules cannot be loaded. MovingOn says what it means that a task moves on.
namespace TaskChanges
{

void remove(const DatabaseEngine& engine, const QList<qint32>& ids);
/// Moves those on that repeat, and deletes the others and those for which it was the last time.
void moveOn(const DatabaseEngine& engine, const QList<qint32>& ids);
/// Leaves their reminders as they are. Those that repeat move on instead of being completed, until the last
/// time.
void setStatus(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 status);
void setPeriority(const DatabaseEngine& engine, const QList<qint32>& ids, qint32 periority);
void setCategory(const DatabaseEngine& engine, const QList<qint32>& ids, qint16 category);
/// Sets the status to completed and dismisses those of their reminders that are due. Those that repeat move
/// on until the last time.
void complete(const DatabaseEngine& engine, const QList<qint32>& ids);
/// The same for reminders that the user is shown: none of them comes again.
void completeReminded(const DatabaseEngine& engine, const QList<qint32>& ids);
/// Dismisses their reminders; those of tasks that repeat are set to the next time.
void dismiss(const DatabaseEngine& engine, const QList<qint32>& ids);
/// The same with all reminders that are due; returns their number.
int dismissDue(const DatabaseEngine& engine);
/// Their reminders, which are due, come again at `moment`.
void postpone(const DatabaseEngine& engine, const QList<qint32>& ids, Moment moment);
/// Those of their reminders that are on come at `moment`, whether they have been due before or not.
void remindAt(const DatabaseEngine& engine, const QList<qint32>& ids, Moment moment);
/// Adds a copy of each, which repeats as it does, and returns the ids of the copies. Throws NoRoomError when
/// there is no id left; nothing is stored then.
QList<qint32> duplicate(const DatabaseEngine& engine, const QList<qint32>& ids);

} // namespace TaskChanges
