#include "support/OtherProgram.h"

#include "support/TestDatabase.h"

#include <QFile>
#include <sqlite3.h>

OtherProgram::OtherProgram(const TestDatabase& database, const char* statements)
{
    sqlite3_open_v2(
        QFile::encodeName(database.dataFile()).constData(), &m_handle, SQLITE_OPEN_READWRITE, nullptr);
    run(statements);
}

OtherProgram::~OtherProgram()
{
    sqlite3_close(m_handle);
}

void OtherProgram::run(const char* statements)
{
    m_holds = sqlite3_exec(m_handle, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
}
