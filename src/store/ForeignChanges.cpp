#include "store/ForeignChanges.h"

#include <QtEndian>
#include <array>
#include <sqlite3.h>

std::optional<quint32> commitsInFile(sqlite3* database)
{
    constexpr int FormatPlace = 18;
    constexpr unsigned char WriteAhead = 2;
    constexpr int CounterPlace = 24;
    std::array<unsigned char, CounterPlace + sizeof(quint32)> head{};
    sqlite3_file* file = nullptr;
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    // In write-ahead mode the counter stands still.
    if (file == nullptr || file->pMethods == nullptr
        || file->pMethods->xRead(file, head.data(), static_cast<int>(head.size()), 0) != SQLITE_OK
        || head[FormatPlace] == WriteAhead) {
        return {};
    }
    return qFromBigEndian<quint32>(head.data() + CounterPlace);
}

bool hasWritten(sqlite3* database)
{
    int pages = 0;
    int unused = 0;
    constexpr int Reset = 1;
    sqlite3_db_status(database, SQLITE_DBSTATUS_CACHE_WRITE, &pages, &unused, Reset);
    return pages > 0;
}

void ForeignChanges::look(std::optional<quint32> commits)
{
    if (!commits) {
        return;
    }
    // The counter starts anew after its last number, and so does the difference.
    const quint32 latest = *commits - m_own;
    if (latest != m_latest) {
        ++m_state;
    }
    m_latest = latest;
    if (!m_shown) {
        m_shown = m_latest;
    }
}

void lookAtOthers(ForeignChanges* foreign, sqlite3* database)
{
    if (foreign != nullptr) {
        foreign->look(commitsInFile(database));
    }
}
