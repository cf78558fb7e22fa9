#pragma once

#include "RunningProgram.h"

#include <QStringList>
#include <array>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <vector>

// A model of everything that the program keeps, and of what the user can do with it. It knows nothing of the
// program: what it predicts is compared with the data file.

struct TaskRow {
    QString name;
    QString description;
    qint32 status = 0;
    qint16 category = 0;
    QString due;
    qint32 periority = 0;
    bool reminderOn = false;
    QString reminder;
    QString sound;
    QString file;
    bool played = false;
    bool dismissed = false;

    bool operator==(const TaskRow&) const = default;
};

/// How a task repeats.
struct RepeatRow {
    QString rule;
    QString first;
    int lead = 0; ///< in minutes
    int done = 0;

    bool operator==(const RepeatRow&) const = default;
};

struct CategoryRow {
    QString name;
    QString description;
    int icon = 0;

    bool operator==(const CategoryRow&) const = default;
};

/// All rows of a data file, and the ids that come next.
struct DataRows {
    std::map<qint32, TaskRow> tasks;
    std::map<qint32, RepeatRow> repeats; ///< of tasks that are there
    std::map<qint16, CategoryRow> categories;
    QStringList settings;
    qint32 lastTask = 0;
    qint16 lastCategory = 0;

    bool operator==(const DataRows&) const = default;
    /// Reads a file with plain SQLite, which rolls back an unfinished operation. Throws std::runtime_error
    /// for a file that is not sound.
    static DataRows read(const QString& file);
    /// Where the two differ first; empty when they do not.
    QString differenceTo(const DataRows& other) const;
};

/// One action of the user, or the passing of time.
struct Step {
    enum class Kind {
        Pass, ///< `count` ticks, ten seconds each
        Jump, ///< the machine sleeps or its clock is set: `seconds`, which may be negative
        AddTask,
        EditTask,
        EditListed,
        DeleteTask,
        Complete,
        Dismiss,
        DismissAll,
        RemindLater,
        BulkDelete,
        AddCategory,
        EditCategory,
        DeleteCategory,
        Backup,
        Restore,
        Settings,
        Restart,
        Kill
    };
    Kind kind = Kind::Pass;
    int count = 0;
    std::chrono::seconds seconds{};
    qint32 task = 0;
    bool thisTime = false; ///< that a task is deleted which repeats
    qint16 category = 0;
    TaskEntry entry;
    Moment moment{};
    CategoryRow categoryRow;
    QString slot; ///< of a backup
    QStringList settings;
    qint32 status = 0; ///< of the bulk delete; 5 for all
    qint32 taskType = 0;
    Moment from{};
    Moment to{};

    QString text() const;
};

class SoakWorld
{
public:
    SoakWorld(DataRows rows, Moment now) : m_rows(std::move(rows)), m_now(now) { }

    const DataRows& rows() const { return m_rows; }
    Moment now() const { return m_now; }
    /// What the alert window lists.
    std::vector<qint32> listed() const;
    bool isAlertVisible() const { return m_alertVisible; }
    /// Whether the last step ended with a tick.
    bool hasJustTicked() const { return m_ticked == m_now; }
    /// How often the reminder of a task that is listed had come at the last tick.
    int timesOf(qint32 id) const;
    void addBackup(const QString& slot, DataRows rows) { m_backups[slot] = std::move(rows); }
    void removeBackup(const QString& slot) { m_backups.erase(slot); }
    const std::map<QString, DataRows>& backups() const { return m_backups; }
    /// After a kill: the rows that were found. The program is to be started next.
    void takeUp(DataRows rows, Moment now)
    {
        m_rows = std::move(rows);
        m_now = now;
        m_lastRung.clear();
        m_putOff.clear();
    }

    /// What the user does next; depends on this world and on chance alone.
    Step plan(std::mt19937& chance) const;
    /// A plan of the kinds that a process may be killed in.
    Step planWithoutRestart(std::mt19937& chance) const;

    /// What a step leads to.
    struct Outcome {
        QStringList sounds; ///< sorted
        QStringList started; ///< sorted
        std::vector<DataRows> between; ///< what the data file holds in the course of it, the end not included
        qint32 deleted = 0; ///< of a bulk delete
        bool asksWhichTimes = false; ///< before a task is deleted
    };
    /// Does the step. `keepsBetween` costs copies of all rows.
    Outcome apply(const Step& step, bool keepsBetween = false);
    /// The program starts, and looks for reminders at once.
    Outcome start(bool keepsBetween = false);

    /// How many reminders sounded more than once for the same moment while the program ran without a kill, or
    /// for an earlier time of a task that repeats than before.
    int doubled() const { return m_doubled; }
    /// How often a task has gone on to a later time.
    int movedOn() const { return m_movedOn; }

private:
    void commit(Outcome& outcome, bool keepsBetween) const;
    void tick(Outcome& outcome, bool keepsBetween);
    /// What the main window does to tasks is shown in an open alert at once.
    void showAnew(Outcome& outcome, bool keepsBetween);
    void check(Outcome& outcome, bool keepsBetween, std::size_t shown);
    void list(Outcome& outcome, const std::map<qint32, QString>& now);
    void mark(Outcome& outcome, bool keepsBetween);
    std::map<qint32, QString> due() const;
    std::size_t shownCount(const std::map<qint32, QString>& due) const;
    bool isDueThisSecond(Moment moment) const;
    int anyWait(std::mt19937& chance) const; ///< in ticks
    bool bulkMatches(const TaskRow& row, const Step& step) const;
    TaskEntry anyEntry(std::mt19937& chance, qint16 category) const;
    qint32 anyTask(std::mt19937& chance) const;
    qint16 anyCategory(std::mt19937& chance) const;
    void saveRepeat(qint32 id, const TaskEntry& entry, const TaskRow* before);
    /// These two tell whether the task was moved on.
    bool complete(qint32 id);
    bool dismissRepeating(qint32 id);
    void removeRepeatsOfNone();
    void countRung(qint32 id, const QString& reminder);
    TaskRow rowOf(const TaskEntry& entry) const;

    DataRows m_rows;
    Moment m_now;
    std::map<QString, DataRows> m_backups;
    std::map<qint32, QString> m_listed; ///< with the moments that they were due at
    bool m_alertVisible = false;
    bool m_owesMark = false; ///< what is listed has sounded and is to be marked by the next tick
    std::map<qint32, QString> m_fired; ///< sounded, but not marked
    std::map<qint32, QString> m_soundedSinceStart;
    std::map<qint32, QString> m_lastRung; ///< of tasks that repeat
    std::set<qint32> m_putOff;
    Moment m_ticked{};
    int m_doubled = 0;
    int m_movedOn = 0;
};
