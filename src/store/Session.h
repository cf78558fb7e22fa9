#pragma once

#include <QCoreApplication>
#include <exception>
#include <memory>
#include <string>
#include <vector>

class Clock;
class Progress;
class Session;
struct sqlite3;
struct sqlite3_context;
struct sqlite3_stmt;
struct sqlite3_value;

/// A running statement of a session. It may outlive the session; then it has no statement any more.
class Cursor
{
public:
    /// Takes ownership of the statement.
    Cursor(Session& session, sqlite3_stmt* statement);
    ~Cursor();
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    /// Goes to the next row; false at the end, where the locks are released. Throws DatabaseError.
    bool step();
    /// Null after the session's end.
    sqlite3_stmt* statement() const { return m_statement; }

private:
    friend class Session;
    void release();

    Session* m_session;
    sqlite3_stmt* m_statement;
};

/// An open, hardened SQLite handle on the data file with the deferred commit; the inside of a Connection.
/// One thread.
class Session
{
    Q_DECLARE_TR_FUNCTIONS(Session)

public:
    /// Opens an existing file and reads its schema. `clock`, `progress` and `knownSound` (see
    /// DatabaseEngine) outlive the session; an exception of `progress` ends the running statement. Throws
    /// DatabaseError (Storage).
    Session(QString path, const Clock& clock, Progress* progress, bool* knownSound);
    /// Undoes what was not committed.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Starts a statement of the dialect; the cursor is not on a row yet. Throws DatabaseError.
    std::unique_ptr<Cursor> start(const QString& statement);
    /// Runs SQLite statements of any kind in the write transaction. Throws DatabaseError.
    void alter(const char* statements);
    /// Commits the open transaction, if any. Throws DatabaseError (Storage); then it is undone.
    void commit();
    /// Ends all cursors, so that none of them holds a lock any more.
    void releaseCursors();
    /// The id of the record inserted last; 0 before the first.
    qint64 insertedId() const;
    /// The number of rows that the last completed insert, update or delete has changed.
    qint64 changedRows() const;
    /// A storage error has undone the operation.
    bool isUndone() const { return m_undone; }

private:
    friend class Cursor;
    static int authorize(
        void* session, int action, const char* first, const char* second, const char*, const char*);
    static int tellProgress(void* session);
    static void answerNow(sqlite3_context* context, int, sqlite3_value**);

    void openFile();
    void requireOrdinaryCompanions();
    void harden();
    void check(int code);
    sqlite3_stmt* prepare(const QString& statement);
    int executeOwn(const char* sql);
    void begin();
    void requireSound();
    void requireEveryRecordStays();
    void undo();
    [[noreturn]] void failToOpen(const QString& why);
    [[noreturn]] void failStorage(const QString& text);
    [[noreturn]] void fail(int code, const QString& statement);
    QString reason(int code) const;

    QString m_path;
    const Clock* m_clock;
    Progress* m_progress;
    std::exception_ptr m_thrownByProgress;
    bool* m_knownSound;
    sqlite3* m_database = nullptr;
    std::vector<Cursor*> m_cursors;
    std::string m_now;
    std::string m_written; ///< the table that the statement inserts into or updates
    bool m_runsOwnStatement = false;
    bool m_undone = false;
};
