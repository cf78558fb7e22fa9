#pragma once

#include <QString>
#include <QStringView>

class ChangeSet;
class Clock;
class ForeignChanges;
class Progress;
class Repeating;
class UnchangedFile;

/// Sees every statement of the program. Called on the thread that uses the connection.
class StatementListener
{
public:
    StatementListener() = default;
    virtual ~StatementListener() = default;
    StatementListener(const StatementListener&) = delete;
    StatementListener& operator=(const StatementListener&) = delete;

    virtual void connectionOpened(const QString& connectionString) = 0;
    /// A statement in the program's own words, before it runs.
    virtual void statementExecuted(QStringView statement) = 0;
    virtual void connectionClosed() = 0;
};

/// A record that is not shown because one of its values does not convert.
struct UnreadableRecord {
    QString table;
    QString id; ///< as stored, of whatever type
    QString name; ///< empty where there is none
    QString reason; ///< a sentence that names the column
};

/// Learns which records a query has left out. Called on the thread that uses the connection.
class UnreadableRecordListener
{
public:
    UnreadableRecordListener() = default;
    virtual ~UnreadableRecordListener() = default;
    UnreadableRecordListener(const UnreadableRecordListener&) = delete;
    UnreadableRecordListener& operator=(const UnreadableRecordListener&) = delete;

    /// Called again by every query that would have returned the record.
    virtual void recordLeftOut(const UnreadableRecord& record) = 0;
};

/// Keeps copies of the data file. Called on the thread that uses the connections.
class CopyKeeper
{
public:
    CopyKeeper() = default;
    virtual ~CopyKeeper() = default;
    CopyKeeper(const CopyKeeper&) = delete;
    CopyKeeper& operator=(const CopyKeeper&) = delete;

    /// Called before the first change of every connection, while nobody else can change anything either. What
    /// it throws ends the change; a copy that cannot be made must not.
    virtual void aboutToChange(const UnchangedFile& file) = 0;
    /// A copy for another reason is there, which serves for the day, too; or it could not be made, and the
    /// user is told.
    virtual void copyTried(bool isThere) = 0;
};

/// What every connection needs to know; outlives everything that uses it. The program has one; a copy with
/// other members serves a single operation.
struct DatabaseEngine {
    QString programFolder; ///< absolute path of the folder that holds the data file
    const Clock* clock = nullptr; ///< not owned; answers now() in statements
    StatementListener* listener = nullptr; ///< not owned; may be null
    /// Not owned; null except for a bulk deletion and the check of a restore. Called during statements,
    /// with unknown length; code that it runs may find the data file locked. A tick during a bulk deletion
    /// sees the file as it was; its mark is refused and made up for by the next tick.
    Progress* progress = nullptr;
    /// Not owned; may be null. Where it points to false, the first connection that writes checks the file
    /// first, as SQLite could write over living records of a file with damage that reading does not notice.
    /// The check sets it to true; a damaged file is not written to.
    bool* knownSound = nullptr;
    /// Not owned; may be null: then a record that does not convert makes its query fail.
    UnreadableRecordListener* unreadable = nullptr;
    /// Not owned; may be null. Each commit adds what it has changed.
    ChangeSet* changes = nullptr;
    /// Not owned; may be null.
    CopyKeeper* copies = nullptr;
    /// Not owned; may be null. Each connection looks when it is opened, and again when it begins to write:
    /// then nobody else can write until it ends.
    ForeignChanges* foreign = nullptr;
    /// The file is only read, whatever permissions it has, and nothing beside it is read, made or locked.
    /// Nobody may change it meanwhile.
    bool isImmutable = false;
    /// Not owned; null where nothing repeats.
    Repeating* repeating = nullptr;

    /// The same without the listener, for statements that are not the program's own.
    DatabaseEngine unheard() const
    {
        DatabaseEngine engine = *this;
        engine.listener = nullptr;
        return engine;
    }
};
