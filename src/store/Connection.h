#pragma once

#include "store/DatabaseEngine.h"
#include "store/RecordSet.h"

#include <QCoreApplication>
#include <memory>
#include <set>
#include <string>

class Session;

/// A connection to the data file, for one operation: open, execute, close.
///
/// Statements are in the program's SQL dialect (see Dialect.h). The first writing statement begins a
/// transaction and `close()` commits it, so that a power cut in between leaves the file as it was. A
/// statement's own error keeps the statements before it; a storage error undoes what was not committed, and
/// after it the connection can only be closed. Statements may only read and change rows: no transactions,
/// no other file, no change of tables or of SQLite's settings. The file is never created. Movable; used on
/// one thread.
class Connection
{
    Q_DECLARE_TR_FUNCTIONS(Connection)

public:
    enum class State { Closed = 0, Open = 1 };

    /// Not open yet. Everything in `connectionString` after "Data Source= " is the path of the data file.
    Connection(const DatabaseEngine& engine, QString connectionString);
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;
    /// Closes as `close()` does, but cannot report a failed commit.
    ~Connection();

    QString connectionString() const { return m_connectionString; }
    State state() const;

    /// The data file has no users: `user` and `password` must be empty. Throws DatabaseError (Storage).
    void open(const QString& user = {}, const QString& password = {}, int options = -1);
    /// Runs one statement. A query yields its rows, anything else an empty record set. Throws DatabaseError.
    RecordSet execute(const QString& statement);
    /// Begins the transaction before the first writing statement does: what is read from here on is changed
    /// by nobody else before the end. Only while the connection is open; throws DatabaseError (Storage).
    void beginWriting();
    /// Runs SQLite statements that the program's own may not contain, such as schema changes. The listener is
    /// not told. Only while the connection is open; throws DatabaseError.
    void alter(const char* statements);
    /// Changes rows back or again, all or none. The listener is not told. Only while the connection is open.
    /// Throws ChangedSinceError when a row is not what it was, other than in columns with one of the names
    /// `tolerated`; then the connection is to be abandoned. Throws DatabaseError when it cannot be written.
    void apply(const ChangeSet& changes, const std::set<std::string>& tolerated);
    /// The id of the record inserted last on this connection; 0 before the first one and when it is not
    /// open. Sends no statement.
    qint64 insertedId() const;
    /// The number of rows that the last writing statement has changed. Only while the connection is open.
    qint64 changedRows() const;
    /// Commits before the close, for callers that continue only when the change is durable. Throws
    /// DatabaseError (Storage), and then none of this connection's changes is in the file.
    void commit();
    /// Commits and closes; does nothing when closed. Throws DatabaseError (Storage) when the commit failed:
    /// then none of this connection's changes is in the file, and the connection is closed nevertheless.
    void close();
    /// Closes without a commit; does nothing when closed.
    void abandon();

private:
    const DatabaseEngine* m_engine;
    QString m_connectionString;
    std::unique_ptr<Session> m_session;
};
