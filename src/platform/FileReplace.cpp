#include "platform/FileReplace.h"

#include "platform/Progress.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace
{

constexpr qint64 ChunkSize = qint64{1024} * 1024;

[[noreturn]] void fail(const QString& path, const QString& why)
{
    throw FileError(QStringLiteral("\"%1\": %2.").arg(path, why));
}

bool flushToDisk(const QFile& file)
{
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

// What is copied goes to the disk on the way: at the end one flush of it all would hold up everything for
// seconds.
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
    static constexpr qint64 Window = 8 * ChunkSize;

    const QFile& m_file;
    qint64 m_started = 0;
};

void copyBytes(QFile& from, QFile& to, Progress* progress)
{
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    const qint64 total = from.size();
    Writeback writeback(to);
    for (qint64 copied = 0;;) {
        const qint64 size = from.read(chunk.data(), ChunkSize);
        if (size < 0) {
            fail(from.fileName(), from.errorString());
        }
        if (size == 0) {
            return;
        }
        for (qint64 written = 0; written < size;) {
            const qint64 step = to.write(chunk.constData() + written, size - written);
            if (step <= 0) {
                fail(to.fileName(), to.errorString());
            }
            written += step;
        }
        copied += size;
        writeback.follow(copied);
        if (progress != nullptr) {
            progress->advance(copied, qMax(copied, total));
        }
    }
}

QString unusedNameBeside(const QString& target)
{
    return QFileInfo(resolvedPath(target)).absolutePath() + QStringLiteral("/.ambertask-")
        + QUuid::createUuid().toString(QUuid::Id128);
}

} // namespace

QString resolvedPath(const QString& path)
{
    const QString resolved = QFileInfo(path).canonicalFilePath();
    return resolved.isEmpty() ? path : resolved;
}

bool isSameFile(const QString& left, const QString& right)
{
    std::error_code error;
    return std::filesystem::equivalent(
               QFileInfo(left).filesystemFilePath(), QFileInfo(right).filesystemFilePath(), error)
        && !error;
}

void flushFolder(const QString& folder)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder);
#else
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
#endif
}

void copyToNewFile(
    const QString& source, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    // A pipe or a device would never end.
    if (!QFileInfo(source).isFile()) {
        fail(source, FileError::tr("it is not a file"));
    }
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        fail(source, from.errorString());
    }
    QFile to(target);
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, permissions)) {
        fail(target, to.errorString());
    }
    try {
        copyBytes(from, to, progress);
        if (!flushToDisk(to)) {
            fail(target, qt_error_string());
        }
        to.close();
        if (to.error() != QFileDevice::NoError) {
            fail(target, to.errorString());
        }
    } catch (...) {
        to.close();
        QFile::remove(target);
        throw;
    }
}

void moveOver(const QString& file, const QString& target)
{
    const QString place = resolvedPath(target);
    const QFileInfo present(place);
    if (present.exists() && !present.isFile()) {
        fail(place, FileError::tr("it is not a file"));
    }
    std::error_code error;
    std::filesystem::rename(QFileInfo(file).filesystemFilePath(), present.filesystemFilePath(), error);
    if (error) {
        fail(place, QString::fromStdString(error.message()));
    }
    flushFolder(present.absolutePath());
}

void replaceByCopy(
    const QString& source, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    if (target.isEmpty()) {
        fail(target, FileError::tr("there is no file name"));
    }
    const QString beside = unusedNameBeside(target);
    copyToNewFile(source, beside, permissions, progress);
    try {
        moveOver(beside, target);
    } catch (const FileError&) {
        QFile::remove(beside);
        throw;
    }
}

void keepAlso(
    const QString& file, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    const QString beside = unusedNameBeside(target);
    std::error_code error;
    std::filesystem::create_hard_link(
        QFileInfo(resolvedPath(file)).filesystemFilePath(), QFileInfo(beside).filesystemFilePath(), error);
    if (error) {
        replaceByCopy(file, target, permissions, progress);
        return;
    }
    QFile::setPermissions(beside, permissions);
    try {
        moveOver(beside, target);
    } catch (const FileError&) {
        QFile::remove(beside);
        throw;
    }
    // Where both were names of one file before, the renaming has done nothing and left the new name.
    QFile::remove(beside);
}
