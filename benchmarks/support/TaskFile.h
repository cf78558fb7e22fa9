#pragma once

#include "platform/Clock.h"
#include "platform/database/DatabaseEngine.h"

#include <QTemporaryDir>

/// What a data file of a benchmark holds.
struct TaskFileContent {
    int tasks = 0; ///< names of 30 characters, descriptions of 120
    int rare = 0; ///< how many of them are in the fourth category, and as many others are deferred
    int due = 0; ///< how many of them have a reminder that is due; of the rest every third has one to come
};

/// A program folder of its own with a copy of the shipped data file, filled with tasks, at a time that stands
/// still.
class TaskFile
{
public:
    static constexpr int RareCategory = 4;

    explicit TaskFile(const TaskFileContent& content);

    QString folder() const { return m_folder.path(); }
    QString path() const { return m_folder.filePath(QStringLiteral("data.dat")); }
    const DatabaseEngine& engine() const { return m_engine; }
    /// Runs plain SQL beside the program's connections.
    void run(const QString& sql) const;
    /// Gives one task a name of that many letters, as another program may have written it.
    void nameWithoutEnd(int task, int letters) const;

    static Moment now()
    {
        return std::chrono::local_days(std::chrono::January / 15 / 2026) + std::chrono::hours(10);
    }

private:
    class StandingClock final : public Clock
    {
    public:
        Moment now() const override { return TaskFile::now(); }
    };

    QTemporaryDir m_folder;
    StandingClock m_clock;
    DatabaseEngine m_engine;
};
