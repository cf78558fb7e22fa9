#pragma once

#include "data/RepeatRules.h"

#include <QList>
#include <QString>
#include <functional>
#include <vector>

class Connection;
struct DatabaseEngine;

/// Moves repeating tasks on to a later moment of their series, as a part of an operation on an open
/// connection. Due moments only go forward, also when the clock has been set back. Sends no statement when
/// nothing repeats. The functions return which of the ids are not moved on: tasks that do not repeat, and
/// those for which there is no later moment. They throw DatabaseError; then the operation is to be abandoned.
class MovingOn
{
public:
    /// Both outlive the object.
    MovingOn(const DatabaseEngine& engine, Connection& connection);

    /// This time is done: each is due at the first moment of its series that is later than its due moment and
    /// than now, not started, and reminds of it, unless that reminder has come already. Of a series that is
    /// over nothing stays.
    QList<qint32> complete(const QList<qint32>& ids);
    /// The same with the time that a reminder which has come stands for, where that is a later one: the one
    /// before had been dismissed before it was due.
    QList<qint32> completeReminded(const QList<qint32>& ids);
    /// Their reminders have been seen: each reminds of the first moment of its series for which that lies
    /// ahead. One that is overdue does not stay so.
    QList<qint32> dismiss(const QList<qint32>& ids);
    /// The same with all tasks whose reminders are due; returns the number of those that are moved on.
    int dismissDue();

private:
    struct Task {
        qint32 id;
        Moment due;
        Moment reminder;
        Repeat repeat;
    };
    /// Those of the tasks that meet the condition.
    std::vector<Task> repeatingWhere(const QString& condition);
    std::vector<Task> repeatingAmong(const QList<qint32>& ids, const QString& furtherCondition = {});
    QList<qint32> moveEach(const QList<qint32>& ids, const std::function<Moment(const Task&)>& lastOver);
    bool moveToNext(const Task& task, Moment lastOver);
    bool remindOfNext(const Task& task);
    void update(const Task& task, const QString& columns);
    void setDone(const Task& task, int further);

    const DatabaseEngine& m_engine;
    Connection& m_connection;
    Moment m_now;
};
