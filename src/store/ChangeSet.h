#pragma once

#include <QByteArray>
#include <set>
#include <string>
#include <utility>

struct sqlite3;
struct sqlite3_session;

/// The rows that an operation has changed, as they were before and as they are after it: a change set of
/// SQLite's session extension. A value.
class ChangeSet
{
public:
    ChangeSet() = default;
    /// `bytes` as made by SQLite.
    explicit ChangeSet(QByteArray bytes) : m_bytes(std::move(bytes)) { }

    bool isEmpty() const { return m_bytes.isEmpty(); }
    const QByteArray& bytes() const { return m_bytes; }
    /// The changes that take these back. Throws std::bad_alloc.
    ChangeSet inverted() const;
    /// Adds what has been changed after this. Throws std::bad_alloc.
    void append(const ChangeSet& later);
    /// The names of the tables whose rows it changes.
    std::set<std::string> tables() const;

private:
    QByteArray m_bytes;
};

/// Records what is changed through a database handle from its construction on. Tables without a primary key
/// are left out.
class ChangeRecorder
{
public:
    /// `database` outlives the recorder.
    explicit ChangeRecorder(sqlite3* database);
    ~ChangeRecorder();
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// Puts into `changes` what has been changed so far. It reads the rows anew: returns SQLite's result
    /// code.
    int read(ChangeSet& changes) const;

private:
    sqlite3_session* m_session = nullptr;
};

/// Changes rows as `changes` says, all or none. Returns SQLite's result code: SQLITE_ABORT when a row is not
/// what it was, other than in columns with one of the names `tolerated`.
int applyChanges(sqlite3* database, const ChangeSet& changes, const std::set<std::string>& tolerated);
