#include "store/UnchangedFile.h"

#include "store/DatabaseError.h"
#include "store/RollbackJournal.h"
#include "system/Progress.h"

#include <QFile>
#include <algorithm>
#include <sqlite3.h>

namespace
{

constexpr qint64 ChunkSize = qint64{1024} * 1024;

[[noreturn]] void fail(const QString& why)
{
    throw DatabaseError(DatabaseError::Kind::Storage, why);
}

void check(int code)
{
    if (code != SQLITE_OK) {
        fail(QString::fromUtf8(sqlite3_errstr(code)));
    }
}

} // namespace

UnchangedFile::UnchangedFile(sqlite3* database)
{
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
}

qint64 UnchangedFile::size() const
{
    sqlite3_int64 size = 0;
    check(m_file->pMethods->xFileSize(m_file, &size));
    return size;
}

void UnchangedFile::copyTo(QIODevice& target, Progress* progress) const
{
    const qint64 end = size();
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    for (qint64 position = 0; position < end; position += ChunkSize) {
        const qint64 part = std::min(ChunkSize, end - position);
        read(chunk.data(), part, position);
        if (position == 0 && isInWriteAheadMode(QByteArrayView(chunk))) {
            fail(tr("another program is using it"));
        }
        if (target.write(chunk.constData(), part) != part) {
            return;
        }
        if (progress != nullptr) {
            progress->advance(position + part, end);
        }
    }
}

bool UnchangedFile::isSameAs(QFile& other) const
{
    const qint64 end = size();
    bool same = other.size() == end;
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    for (qint64 position = 0; same && position < end; position += ChunkSize) {
        const qint64 part = std::min(ChunkSize, end - position);
        read(chunk.data(), part, position);
        same = other.read(part) == QByteArrayView(chunk.constData(), part);
    }
    return same;
}

void UnchangedFile::read(char* bytes, qint64 size, qint64 position) const
{
    check(m_file->pMethods->xRead(m_file, bytes, static_cast<int>(size), position));
}
