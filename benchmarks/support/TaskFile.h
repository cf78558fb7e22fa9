#pragma once

#include "store/DatabaseEngine.h"
#include "system/Clock.h"

#include <QTemporaryDir>

/// The content of a benchmark's data file.
struct TaskFileContent {
    int tasks = 0; ///< names of 30 characters, descriptions of 120
    int rare = 0; ///< how many of them are in the fourth category, and as many others are deferred
    int due = 0; ///< how many of them have a reminder that is due; of the rest every third has one to come
    int repeating = 0; ///< how many of them repeat every day, beginning with those that are due
};

/// A temporary program folder with a copy of the shipped data file, filled with tasks, and a stopped clock.
class TaskFile
{
public:
    static constexpr int RareCategory = 4;

    explicit TaskFile(const TaskFileContent& content);

    QString folder() const { return m_folder.path(); }
    QString path() const { return m_folder.filePath(QStringLiteral("data.dat")); }
    const DatabaseEngine& engine() const { return m_engine; }
    /// Runs plain SQL on a connection of its own.
    void run(const QString& sql) const;
    /// Gives one task a name of that length, as another program may have written it.
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
