#pragma once

#include "platform/database/DatabaseEngine.h"
#include "platform/database/RecordSet.h"

#include <QCoreApplication>
#include <memory>

class Session;

/// A connection to the data file, for one operation: open, execute, close.
///
/// Statements are written in the program's SQL dialect (see Dialect.h). The program has no transactions, but
/// the commit is deferred: the first writing statement begins a write transaction and `close()` commits it,
/// so that a power cut in between leaves the file as it was. A statement's own error keeps the statements
/// before it; a storage error undoes what was not committed, and from then on the connection can only be
/// closed. Only reading and changing rows is let through: no transactions, no other file, no change of tables
/// or of the engine's settings. The file must exist: it is never created. Movable; used on one thread.
class Connection
{
    Q_DECLARE_TR_FUNCTIONS(Connection)

public:
    enum class State { Closed = 0, Open = 1 };

    /// Not yet open. All of `connectionString` after "Data Source= " is the path of the data file.
    Connection(const DatabaseEngine& engine, QString connectionString);
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;
    /// Closes as `close()` does, but cannot report a failed commit.
    ~Connection();

    QString connectionString() const { return m_connectionString; }
    State state() const;

    /// The data file knows no users: `user` and `password` are to be empty. Throws DatabaseError (Storage).
    void open(const QString& user = {}, const QString& password = {}, int options = -1);
    /// Runs one statement. A query yields its rows, anything else an empty record set. Throws DatabaseError.
    RecordSet execute(const QString& statement);
    /// The id of the record that was inserted last on this connection; 0 before the first and when it is not
    /// open. No statement is sent for it.
    qint64 insertedId() const;
    /// How many rows the last statement that writes has changed. Only while the connection is open.
    qint64 changedRows() const;
    /// Makes what was written durable before the close, for callers that go on only when it is. Throws
    /// DatabaseError (Storage), and then nothing of this connection's writing is in the file.
    void commit();
    /// Commits and closes; closing a closed connection does nothing. Throws DatabaseError (Storage) when the
    /// commit failed: then nothing of this connection's writing is in the file, and the connection is closed
    /// all the same.
    void close();
    /// Closes and gives up what was not committed; abandoning a closed connection does nothing.
    void abandon();

private:
    const DatabaseEngine* m_engine;
    QString m_connectionString;
    std::unique_ptr<Session> m_session;
};
