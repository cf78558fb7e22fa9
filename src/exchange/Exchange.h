#pragma once

#include "data/TaskRecord.h"
#include "system/Progress.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class Modules;
class QIODevice;
struct DatabaseEngine;

/// The forms in which tasks are exchanged with other programs; docs/exchange.md has the table of fields.
enum class ExchangeFormat { ICalendar, Csv };

/// The format that the end of a file's name says (".ics", ".csv", in whatever letter case); none otherwise.
std::optional<ExchangeFormat> exchangeFormatOf(const QString& fileName);

struct ExportChoice {
    /// The tasks to export, in this order; ids that no task has are passed over. Without a value all tasks,
    /// in the order in which they were made.
    std::optional<QList<qint32>> tasks;
};

/// A task of a file that an import adds or changes, or one that stays as it is but for the program that it
/// would start.
struct ImportedTask {
    enum class Outcome { New, Changed, Same };
    Outcome outcome = Outcome::New;
    /// As it would be stored, without `program`; `id` is that of the stored task, 0 for a new one.
    TaskRecord task;
    /// What the task would start with its reminder, other than what is stored already; in UTF-8, empty for
    /// none. Never stored without `takesProgram`, which the user has to confirm for each.
    std::string program;
    bool takesProgram = false;

    /// Whether both say the same, confirmed or not.
    bool isSameAs(const ImportedTask& other) const;
};

/// A part of a file that cannot be read, and stays out.
struct UnreadablePart {
    qint64 line = 0; ///< where it begins, from 1
    QString name; ///< of the task, as far as known; plain text of the file's
    QString reason; ///< a sentence
};

/// Another process has changed the data file since the plan was made.
class PlanOutdatedError : public RuntimeError
{
public:
    using RuntimeError::RuntimeError;
};

/// What an import would do. A value; nothing is stored yet.
struct ImportPlan {
    /// The most unreadable parts that are named; of more there is the number.
    static constexpr qsizetype MostNamed = 100;

    /// New and changed tasks, and those with a program that stay as they are, in the order of the file.
    std::vector<ImportedTask> tasks;
    int added = 0;
    int changed = 0;
    int same = 0;
    /// The categories that would be made, in the order of the file.
    QStringList newCategories;
    QList<UnreadablePart> unreadable; ///< the first MostNamed
    qint64 unreadableParts = 0; ///< their number
    qint64 passedOver = 0; ///< events, journals and what else is no task
    int dismissed = 0; ///< past reminders of other programs, which come in as dismissed
    int repeating = 0; ///< tasks that repeat in the other program, and come in once
    int withoutDue = 0; ///< new tasks without a due date, which get the day of the import
    int furtherReminders = 0; ///< of tasks with several: they are kept for an export, and do not remind
    int unknownZones = 0; ///< tasks with moments in a time zone that nobody knows, taken as local time
    quint32 seen = 0; ///< ForeignChanges::latest() of the tasks that the file was compared with

    /// The tasks that bring a program along; pointers into `tasks`.
    std::vector<const ImportedTask*> programs() const;
    /// Confirms all programs, or none.
    void takePrograms(bool take);
    /// Whether `Exchange::carryOut` would change anything.
    bool isEmpty() const;
    /// Whether both plans would do the same, whatever programs are confirmed.
    bool isSameAs(const ImportPlan& other) const;
};

/// What the plan says, one plain sentence each, without the lists of tasks, categories, programs and
/// unreadable parts: how many are new, changed, the same, and what comes in other than it is in the file.
QStringList summaryOf(const ImportPlan& plan);

/// What an import has done.
struct ImportResult {
    int added = 0;
    int changed = 0;
    int categories = 0;
    int programs = 0;
};

/// Export and import of tasks, in a module that the first one loads. One thread. `engine` of each call needs
/// to outlive that call only; `progress` may be null, and what it throws (Cancelled) comes through.
class Exchange
{
public:
    Exchange() = default;
    virtual ~Exchange() = default;
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    /// Writes tasks to `device`, which is open for writing, and returns their number. Tasks without a UID get
    /// one first, which is stored where the data file can be written. Tasks that cannot be read are left out
    /// (DatabaseEngine::unreadable). Throws RuntimeError; then the device may hold a part.
    virtual qint64 exportTo(QIODevice& device, ExchangeFormat format, const ExportChoice& choice,
        const DatabaseEngine& engine, Progress* progress = nullptr) = 0;
    /// The same to a file, which is replaced when everything is on the disk, and stays as it is otherwise. It
    /// is readable by others as far as the umask allows.
    virtual qint64 exportTo(const QString& file, ExchangeFormat format, const ExportChoice& choice,
        const DatabaseEngine& engine, Progress* progress = nullptr) = 0;

    /// Reads `device`, open for reading, from its position to its end, and compares it with what is stored;
    /// stores nothing. Throws RuntimeError when it is no file of that format, has more tasks than there is
    /// room for (NoRoomError), or cannot be read.
    virtual ImportPlan plan(QIODevice& device, ExchangeFormat format, const DatabaseEngine& engine,
        Progress* progress = nullptr) = 0;
    /// The same of a file.
    virtual ImportPlan plan(const QString& file, ExchangeFormat format, const DatabaseEngine& engine,
        Progress* progress = nullptr) = 0;
    /// Stores what the plan says as one operation on one connection: one step of UndoHistory::run, whose
    /// engine is to be passed then. Throws RuntimeError, and nothing is stored then: PlanOutdatedError, where
    /// the engine knows of the changes of others; NoRoomError when there is no room any more; another one
    /// when this process has deleted a task that it changes.
    virtual ImportResult carryOut(
        const ImportPlan& plan, const DatabaseEngine& engine, Progress* progress = nullptr) = 0;
};

inline constexpr char ExchangeModule[] = "ambertask_exchange";

/// Loads the module, which stays loaded. Throws RuntimeError when it is missing or damaged.
std::unique_ptr<Exchange> loadExchange(Modules& modules);

/// How whoever needs it gets it; throws as loadExchange() does.
using ExchangeFactory = std::function<std::unique_ptr<Exchange>()>;
