#pragma once

#include <QString>
#include <QStringView>

class Clock;
class Progress;

/// Sees what the program asks of its data file. Called on the thread that uses the connection.
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

/// A record that is not shown, because a value in it does not convert.
struct UnreadableRecord {
    QString table;
    QString id; ///< as it is stored, whatever that is
    QString name; ///< empty where there is none
    QString reason; ///< a sentence that names the column
};

/// Is told which records a query of many has left out. Called on the thread that uses the connection.
class UnreadableRecordListener
{
public:
    UnreadableRecordListener() = default;
    virtual ~UnreadableRecordListener() = default;
    UnreadableRecordListener(const UnreadableRecordListener&) = delete;
    UnreadableRecordListener& operator=(const UnreadableRecordListener&) = delete;

    /// Told anew by every query that would have had the record.
    virtual void recordLeftOut(const UnreadableRecord& record) = 0;
};

/// What every connection needs to know; one for the program, it outlives all that uses it.
struct DatabaseEngine {
    QString programFolder; ///< absolute path of the folder that holds the data file
    const Clock* clock = nullptr; ///< not owned; answers now() in statements
    StatementListener* listener = nullptr; ///< not owned; may be null
    /// Not owned; null but for an operation that shows how far it is. Told in the midst of statements, as of
    /// unknown length; what runs from there may find the data file locked.
    Progress* progress = nullptr;
    /// Not owned; may be null. Where it is given and false, the first connection that writes looks through
    /// the file first: damage that reading does not notice could make the engine write over living records. A
    /// sound file sets it; a damaged one is not written to.
    bool* knownSound = nullptr;
    /// Not owned; may be null: then a record that does not convert ends the query of many, too.
    UnreadableRecordListener* unreadable = nullptr;
};
