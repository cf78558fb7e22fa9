#pragma once

#include "support/TestDatabase.h"

#include <QFile>
#include <sqlite3.h>

/// Another program that holds the data file in the way of `statements` while this lives.
class OtherProgram
{
public:
    OtherProgram(const TestDatabase& database, const char* statements)
    {
        m_holds = sqlite3_open_v2(QFile::encodeName(database.dataFile()).constData(), &m_handle,
                      SQLITE_OPEN_READWRITE, nullptr)
                == SQLITE_OK
            && sqlite3_exec(m_handle, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    ~OtherProgram() { sqlite3_close(m_handle); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    bool holds() const { return m_holds; }

private:
    sqlite3* m_handle = nullptr;
    bool m_holds = false;
};

inline constexpr char LocksAll[] = "BEGIN EXCLUSIVE";
inline constexpr char LocksWriting[] = "BEGIN IMMEDIATE";
inline constexpr char LocksCommitting[] = "BEGIN; SELECT count(*) FROM tasks";
