#include "platform/FileReplace.h"

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

void copyBytes(QFile& from, QFile& to)
{
    QByteArray chunk(ChunkSize, Qt::Uninitialized);
    for (;;) {
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
    }
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

void copyToNewFile(const QString& source, const QString& target, QFileDevice::Permissions permissions)
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
        copyBytes(from, to);
        if (!flushToDisk(to)) {
            fail(target, qt_error_string());
        }
        to.close();
        if (to.error() != QFileDevice::NoError) {
            fail(target, to.errorString());
        }
    } catch (const FileError&) {
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

void replaceByCopy(const QString& source, const QString& target, QFileDevice::Permissions permissions)
{
    if (target.isEmpty()) {
        fail(target, FileError::tr("there is no file name"));
    }
    const QString beside = QFileInfo(resolvedPath(target)).absolutePath() + QStringLiteral("/.ambertask-")
        + QUuid::createUuid().toString(QUuid::Id128);
    copyToNewFile(source, beside, permissions);
    try {
        moveOver(beside, target);
    } catch (const FileError&) {
        QFile::remove(beside);
        throw;
    }
}
