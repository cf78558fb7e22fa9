#include "system/NewFile.h"

#include "system/FileReplace.h"
#include "system/Progress.h"

#include <cerrno>
#include <utility>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace
{

bool flushToDisk(const QFile& file)
{
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

// Several processes may write into one folder. An unfinished file whose lock nobody holds is abandoned: the
// system drops the lock of a process that dies.
void lock(const QFile& file)
{
#ifdef Q_OS_WIN
    Q_UNUSED(file); // an open file cannot be removed there
#else
    flock(file.handle(), LOCK_EX | LOCK_NB);
#endif
}

// Starts writing to the disk during the copy: one flush at the end would block for seconds.
class Writeback
{
public:
    explicit Writeback(const QFile& file) : m_file(file) { }

    /// `written` bytes have been written so far.
    void follow(qint64 written)
    {
#ifdef Q_OS_LINUX
        if (written - m_started < Window) {
            return;
        }
        if (m_started > 0) {
            sync_file_range(m_file.handle(), m_started - Window, Window,
                SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
        }
        sync_file_range(m_file.handle(), m_started, Window, SYNC_FILE_RANGE_WRITE);
        m_started += Window;
#else
        Q_UNUSED(written);
#endif
    }

private:
    static constexpr qint64 Window = 8 * NewFile::ChunkSize;

    const QFile& m_file;
    qint64 m_started = 0;
};

} // namespace

NewFile::NewFile(const QString& path, QFileDevice::Permissions permissions) : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, permissions)) {
        throw FileError(path, FileError::reason(m_file));
    }
    m_exists = true;
    lock(m_file);
    // The umask must not take away the owner's permissions.
    if (permissions == PrivateFile && !m_file.setPermissions(permissions)) {
        const QString why = FileError::reason(m_file);
        discard();
        throw FileError(path, why);
    }
}

NewFile::~NewFile()
{
    discard();
}

void NewFile::write(const char* bytes, qint64 size)
{
    for (qint64 written = 0; written < size;) {
        const qint64 step = m_file.write(bytes + written, size - written);
        if (step <= 0) {
            throw FileError(path(), FileError::reason(m_file));
        }
        written += step;
    }
}

void NewFile::copy(QFile& from, Progress* progress)
{
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    const qint64 total = from.size();
    Writeback writeback(m_file);
    for (qint64 copied = 0;;) {
        const qint64 size = from.read(chunk.data(), ChunkSize);
        if (size < 0) {
            throw FileError(from.fileName(), FileError::reason(from));
        }
        if (size == 0) {
            return;
        }
        write(chunk.constData(), size);
        copied += size;
        writeback.follow(copied);
        if (progress != nullptr) {
            progress->advance(copied, qMax(copied, total));
        }
    }
}

void NewFile::finish()
{
    if (!flushToDisk(m_file)) {
        throw FileError(path(), FileError::reason(errno));
    }
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) {
        throw FileError(path(), FileError::reason(m_file));
    }
}

void NewFile::discard()
{
    m_file.close();
    if (std::exchange(m_exists, false)) {
        QFile::remove(path());
    }
}
