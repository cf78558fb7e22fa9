#pragma once

#include "data/RepeatRules.h"

#include <QtGlobal>
#include <map>
#include <optional>

class Connection;
class RecordSet;
struct DatabaseEngine;

/// How tasks repeat, as the data file has it. A row that does not convert is none: its task does not repeat.
/// All throw DatabaseError.
namespace TaskRepeats
{

/// Whether any task may repeat.
bool isAny(const DatabaseEngine& engine);
/// Those of all tasks, by their ids, also of tasks that are gone. Empty, and without a statement, when
/// nothing repeats.
std::map<qint32, Repeat> all(const DatabaseEngine& engine);
/// None, and without a statement, when nothing repeats.
std::optional<Repeat> of(const DatabaseEngine& engine, qint32 id);
/// The same on an open connection.
std::optional<Repeat> of(const DatabaseEngine& engine, Connection& connection, qint32 id);

// Parts of an operation on an open connection:

/// `engine` is one with Repeating. Throws RuntimeError, and stores nothing, when the data file has no room
/// for it, being of an earlier version.
void store(const DatabaseEngine& engine, Connection& connection, qint32 id, const Repeat& repeat);
void remove(Connection& connection, qint32 id);
/// Stores it, or removes what was stored; no statement when nothing repeats.
void set(
    const DatabaseEngine& engine, Connection& connection, qint32 id, const std::optional<Repeat>& repeat);

/// How many reminders of a task have come from `reminder`, its present one, to `now`: 0 before that, no more
/// than MostMissed.
int missed(const Repeat& repeat, Moment reminder, Moment now);
inline constexpr int MostMissed = 9'999;

} // namespace TaskRepeats

/// The columns of the table of repeats in the rows of a query.
class RepeatColumns
{
public:
    /// Throws DatabaseError when one is missing.
    explicit RepeatColumns(const RecordSet& records);

    /// The repeat of the current row; none when one of the values does not convert, or is null.
    std::optional<Repeat> read(const RecordSet& records) const;

private:
    int m_rule;
    int m_first;
    int m_lead;
    int m_done;
};
