#include "store/ResultCodes.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>

bool isStatementError(int code)
{
    constexpr std::array Codes{SQLITE_ERROR, SQLITE_CONSTRAINT, SQLITE_MISMATCH, SQLITE_TOOBIG, SQLITE_RANGE,
        SQLITE_AUTH, SQLITE_SCHEMA};
    return std::find(Codes.begin(), Codes.end(), code & 0xff) != Codes.end();
}

bool comesAfterTheCommit(int extendedCode)
{
    return extendedCode == SQLITE_IOERR_DIR_FSYNC || extendedCode == SQLITE_IOERR_RDLOCK
        || extendedCode == SQLITE_IOERR_UNLOCK;
}
