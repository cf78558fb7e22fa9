#include "store/RollbackJournal.h"

#include "store/DatabaseError.h"
#include "store/Hardening.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <functional>
#include <memory>
#include <sqlite3.h>

namespace
{

/// Of the two format bytes the one for readers decides.
constexpr qsizetype ReadFormat = 19;

/// Runs statements of SQLite itself on a file, on a connection of its own, and `done` before closing it.
void run(const QString& file, const char* statements, const std::function<void()>& done = {})
{
    sqlite3* opened = nullptr;
    int code = openDatabase(file, opened);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close_v2);
    if (code == SQLITE_OK) {
        code = hardenConnection(opened);
    }
    if (code == SQLITE_OK) {
        code = sqlite3_exec(opened, statements, nullptr, nullptr, nullptr);
    }
    if (code != SQLITE_OK) {
        throw DatabaseError(DatabaseError::Kind::Storage,
            QCoreApplication::translate("Session", "The data file \"%1\" could not be opened: %2.")
                .arg(file, opened == nullptr ? QString() : QString::fromUtf8(sqlite3_errmsg(opened))));
    }
    if (done) {
        done();
    }
}

} // namespace

bool isInWriteAheadMode(QByteArrayView head)
{
    constexpr QByteArrayView Head("SQLite format 3\0", 16);
    constexpr char WriteAhead = 2;
    return head.startsWith(Head) && head.size() > ReadFormat && head[ReadFormat] == WriteAhead;
}

bool isInWriteAheadMode(const QString& file)
{
    QFile source(file);
    // A pipe would block.
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    return isInWriteAheadMode(QByteArrayView(source.read(ReadFormat + 1)));
}

void useRollbackJournal(const QString& file)
{
    // In exclusive locking mode SQLite uses no shared memory file.
    run(file, "PRAGMA locking_mode=EXCLUSIVE; PRAGMA synchronous=EXTRA; PRAGMA journal_mode=DELETE", [&file] {
        // Nor does it remove the one that another program has left. The file is still locked, so nobody
        // uses it.
        QFile::remove(file + QLatin1String("-shm"));
    });
}

void takeInWriteAheadLog(const QString& file)
{
    run(file, "PRAGMA busy_timeout=250; PRAGMA synchronous=EXTRA; PRAGMA wal_checkpoint(TRUNCATE)");
}
