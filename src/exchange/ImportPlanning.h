#pragma once

#include "exchange/Exchange.h"
#include "exchange/FileTask.h"

#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>

/// Makes the plan of an import, task by task, by comparing what a file says with what is stored.
class ImportPlanning
{
public:
    /// The most that the texts of all tasks of a plan take, in bytes.
    static constexpr std::size_t MostBytes = std::size_t{512} * 1024 * 1024;

    /// Reads the tasks that have a UID. `engine` outlives the object. Throws DatabaseError.
    explicit ImportPlanning(const DatabaseEngine& engine);

    Moment now() const { return m_now; }
    /// Throws NoRoomError when there are more new tasks than ids, RuntimeError when the texts take too much.
    void take(FileTask&& task);
    void leaveOut(qint64 line, std::string_view name, const QString& reason);
    void passOver(qint64 parts) { m_plan.passedOver += parts; }
    /// Throws NoRoomError when there is no room for all new tasks.
    ImportPlan finish();

private:
    struct FoldedOrder {
        bool operator()(const std::string& left, const std::string& right) const;
    };

    void takeNew(FileTask&& read);
    void takeStored(FileTask&& read, const TaskRecord& stored);
    void add(ImportedTask&& imported);
    void settleReminder(TaskRecord& task, const FileTask::Said& said);
    std::optional<Repeat> repeatBy(const RuleOfFile& said, const TaskRecord& task);

    const DatabaseEngine* m_engine;
    Moment m_now;
    ImportPlan m_plan;
    std::unordered_map<std::string, TaskRecord> m_stored; ///< by their UIDs
    std::unordered_set<std::string> m_seen; ///< UIDs of the file
    std::set<std::string, FoldedOrder> m_categories;
    std::vector<std::string> m_categoriesInOrder;
    std::string m_defaultCategory;
    std::size_t m_bytes = 0;
};
