#include "platform/database/RollbackJournal.h"

#include "platform/database/DatabaseError.h"
#include "platform/database/Hardening.h"

#include <QCoreApplication>
#include <QFile>
#include <memory>
#include <sqlite3.h>

void useRollbackJournal(const QString& file)
{
    sqlite3* opened = nullptr;
    int code = sqlite3_open_v2(
        QFile::encodeName(file).constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close_v2);
    if (code == SQLITE_OK) {
        code = hardenConnection(opened);
    }
    if (code == SQLITE_OK) {
        // Alone with the file, the engine shares no memory beside it.
        code = sqlite3_exec(opened,
            "PRAGMA locking_mode=EXCLUSIVE; PRAGMA synchronous=EXTRA; PRAGMA journal_mode=DELETE", nullptr,
            nullptr, nullptr);
    }
    if (code != SQLITE_OK) {
        throw DatabaseError(DatabaseError::Kind::Storage,
            QCoreApplication::translate("Session", "The data file \"%1\" could not be opened: %2.")
                .arg(file, opened == nullptr ? QString() : QString::fromUtf8(sqlite3_errmsg(opened))));
    }
}
