#pragma once

#include "store/Cursor.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <exception>
#include <memory>
#include <set>
#include <string>
#include <vector>

class ChangeRecorder;
class ChangeSet;
struct DatabaseEngine;
struct sqlite3;
struct sqlite3_context;
struct sqlite3_stmt;
struct sqlite3_value;

/// An open, hardened SQLite handle on the data file with the deferred commit; the inside of a Connection.
/// One thread.
class Session
{
    Q_DECLARE_TR_FUNCTIONS(Session)

public:
    /// Opens an existing file and reads its schema. `engine` outlives the session; an exception of its
    /// progress ends the running statement. Throws DatabaseError (Storage).
    Session(QString path, const DatabaseEngine& engine);
    /// Undoes what was not committed.
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Starts a statement of the dialect; the cursor is not on a row yet. Throws DatabaseError.
    std::unique_ptr<Cursor> start(const QString& statement);
    /// Begins the write transaction if none is open. Throws DatabaseError (Storage).
    void begin();
    /// Runs SQLite statements of any kind in the write transaction. Throws DatabaseError.
    void alter(const char* statements);
    /// Changes rows in the write transaction, all or none. Throws ChangedSinceError when a row is not what
    /// it was, other than in columns with one of the names `tolerated`; then the transaction stays open, to
    /// be abandoned. Otherwise throws DatabaseError.
    void apply(const ChangeSet& changes, const std::set<std::string>& tolerated);
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
    int executeOwn(
        const char* sql, int (*row)(void*, int, char**, char**) = nullptr, void* context = nullptr);
    /// Runs `work`, whose statements are not the user's but the store's own.
    template <typename Work> auto asOwn(Work work)
    {
        const QScopedValueRollback own(m_runsOwnStatement, true);
        return work();
    }
    void requireSound();
    void requireEveryRecordStays(const std::string& table);
    void undo();
    [[noreturn]] void failToOpen(const QString& why);
    [[noreturn]] void failStorage(const QString& text);
    [[noreturn]] void fail(int code, const QString& statement);
    QString reason(int code) const;

    QString m_path;
    const DatabaseEngine* m_engine;
    std::exception_ptr m_thrownByProgress;
    sqlite3* m_database = nullptr;
    std::unique_ptr<ChangeRecorder> m_recorder; ///< of the open transaction
    std::vector<Cursor*> m_cursors;
    std::string m_now;
    std::string m_written; ///< the table that the statement inserts into or updates
    bool m_runsOwnStatement = false;
    std::set<std::string> m_checkedTables; ///< in the open transaction, that no rule drops their records
    bool m_undone = false;
};
