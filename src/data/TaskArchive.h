#pragma once

#include "data/TaskRecord.h"
#include "store/Connection.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// Tasks as a whole, out of the data file: for an exchange with other programs. All throw DatabaseError.
namespace TaskArchive
{

/// Calls `take` with every task that has a category, in the order of their ids, or with those of `ids`, in
/// their order. Tasks that do not convert are left out (DatabaseEngine::unreadable).
void read(const DatabaseEngine& engine, const std::optional<QList<qint32>>& ids,
    const std::function<void(TaskRecord&)>& take);
/// Gives those of the tasks (all, or those of `ids`) that have no UID a random one, in one operation.
void giveUids(const DatabaseEngine& engine, const std::optional<QList<qint32>>& ids);
/// How many tasks there are that have a category.
qint64 count(const DatabaseEngine& engine);
/// How many tasks can still be added.
qint32 room(const DatabaseEngine& engine);
/// Those of the names that no category has, in whatever letter case.
std::vector<std::string> withoutCategory(const DatabaseEngine& engine, std::vector<std::string> names);
/// A UID that no task anywhere has.
std::string newUid();

} // namespace TaskArchive

/// Stores whole tasks, as one operation on one connection: nothing is stored before `finish()`, and nothing
/// at all without it. All functions throw DatabaseError.
class TaskStoring
{
    Q_DECLARE_TR_FUNCTIONS(TaskStoring)

public:
    /// Opens the data file. `engine` outlives this object.
    explicit TaskStoring(const DatabaseEngine& engine);
    ~TaskStoring();
    TaskStoring(const TaskStoring&) = delete;
    TaskStoring& operator=(const TaskStoring&) = delete;

    /// Adds the task when its id is 0, otherwise replaces everything of the stored task of that id. A
    /// category that does not exist is made. Throws NoRoomError when there is no id left for a task or a
    /// category, RuntimeError when there is no task of that id.
    void put(const TaskRecord& task);
    /// Stores everything and returns the number of categories that were made.
    int finish();

private:
    qint32 categoryOf(const std::string& name);
    void add(const TaskRecord& task);
    void replace(const TaskRecord& task);
    void setOrigin(qint32 id, const TaskRecord& task);
    void setRepeat(qint32 id, const TaskRecord& task);

    /// Values that one statement inserts.
    struct Rows {
        void append(const QString& values);
        bool isEnough() const;

        QString text;
        int count = 0;
    };
    void insert(Rows& rows, QLatin1String statement);

    const DatabaseEngine& m_engine;
    Connection m_connection;
    std::unordered_map<std::string, qint32> m_categories; ///< ids by names
    Rows m_tasks;
    Rows m_origins;
    Rows m_repeats;
    qint64 m_nextId = 0;
    int m_madeCategories = 0;
    bool m_hasOrigins = false; ///< a data file that could not be upgraded has no place for them
    std::optional<bool> m_hasRepeats; ///< looked for with the first task that repeats
};
