#pragma once

class Session;
struct sqlite3_stmt;

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
