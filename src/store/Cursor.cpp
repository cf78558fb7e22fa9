#include "store/Cursor.h"

#include "store/Session.h"

#include <sqlite3.h>

Cursor::Cursor(Session& session, sqlite3_stmt* statement) : m_session(&session), m_statement(statement)
{
    session.m_cursors.push_back(this);
}

Cursor::~Cursor()
{
    if (m_session != nullptr) {
        std::erase(m_session->m_cursors, this);
    }
    release();
}

void Cursor::release()
{
    sqlite3_finalize(m_statement);
    m_statement = nullptr;
    m_session = nullptr;
}

bool Cursor::step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        m_session->fail(code, QString::fromUtf8(sqlite3_sql(m_statement)));
    }
    sqlite3_reset(m_statement);
    return false;
}
