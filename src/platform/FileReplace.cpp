#include "platform/FileReplace.h"

#include "platform/Progress.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>
#include <filesystem>
#include <system_error>
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

void flushFolderOf(const QString& path)
{
    flushFolder(QFileInfo(path).absolutePath());
}

// Two processes may write into one folder: a file is abandoned when nobody holds its lock any more. The
// system drops the lock of a process that dies.
void lock(const QFile& file)
{
#ifdef Q_OS_WIN
    Q_UNUSED(file); // an open file cannot be removed there
#else
    flock(file.handle(), LOCK_EX | LOCK_NB);
#endif
}

bool isAbandoned(const QString& path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path);
    return true;
#else
    const int handle =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const bool isFree = flock(handle, LOCK_EX | LOCK_NB) == 0;
    close(handle);
    return isFree;
#endif
}

void removeAbandoned(const QString& folder)
{
    static const QRegularExpression name(QStringLiteral("^\\.ambertask-[0-9a-f]{32}$"));
    const QDir present(folder);
    for (const QString& file :
        present.entryList({QStringLiteral(".ambertask-*")}, QDir::Files | QDir::Hidden)) {
        if (name.match(file).hasMatch() && isAbandoned(present.filePath(file))) {
            QFile::remove(present.filePath(file));
        }
    }
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

QString unusedNameIn(const QString& folder)
{
    return folder + QStringLiteral("/.ambertask-") + QUuid::createUuid().toString(QUuid::Id128);
}

/// A new file that is gone again unless it was finished.
class NewFile
{
public:
    NewFile(const QString& path, QFileDevice::Permissions permissions) : m_file(path)
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, permissions)) {
            fail(path, m_file.errorString());
        }
        m_exists = true;
        lock(m_file);
        // The mask must not take away what the owner needs.
        if (permissions == PrivateFile && !m_file.setPermissions(permissions)) {
            const QString why = m_file.errorString();
            discard();
            fail(path, why);
        }
    }
    ~NewFile() { discard(); }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    QString path() const { return m_file.fileName(); }

    void write(const char* bytes, qint64 size)
    {
        for (qint64 written = 0; written < size;) {
            const qint64 step = m_file.write(bytes + written, size - written);
            if (step <= 0) {
                fail(path(), m_file.errorString());
            }
            written += step;
        }
    }
    void copy(QFile& from, Progress* progress)
    {
        QByteArray chunk(ChunkSize, Qt::Uninitialized);
        const qint64 total = from.size();
        Writeback writeback(m_file);
        for (qint64 copied = 0;;) {
            const qint64 size = from.read(chunk.data(), ChunkSize);
            if (size < 0) {
                fail(from.fileName(), from.errorString());
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
    /// All of it is on the disk at the return, its name excepted.
    void finish()
    {
        if (!flushToDisk(m_file)) {
            fail(path(), qt_error_string());
        }
        m_file.close();
        if (m_file.error() != QFileDevice::NoError) {
            fail(path(), m_file.errorString());
        }
    }
    /// The file stays.
    void keep() { m_exists = false; }

private:
    void discard()
    {
        m_file.close();
        if (std::exchange(m_exists, false)) {
            QFile::remove(path());
        }
    }

    QFile m_file;
    bool m_exists = false;
};

void openSource(QFile& source)
{
    // A pipe or a device would never end.
    if (!QFileInfo(source).isFile()) {
        fail(source.fileName(), FileError::tr("it is not a file"));
    }
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        fail(source.fileName(), source.errorString());
    }
}

template <typename Fill> void replace(const QString& target, QFileDevice::Permissions permissions, Fill fill)
{
    if (target.isEmpty()) {
        fail(target, FileError::tr("there is no file name"));
    }
    const QString folder = QFileInfo(resolvedPath(target)).absolutePath();
    removeAbandoned(folder);
    NewFile beside(unusedNameIn(folder), permissions);
    fill(beside);
    beside.finish();
    moveOver(beside.path(), target);
    beside.keep();
}

} // namespace

bool isPresent(const QString& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    if (status.type() == std::filesystem::file_type::none) {
        fail(path, QString::fromStdString(error.message()));
    }
    return status.type() != std::filesystem::file_type::not_found;
}

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
    QFile from(source);
    openSource(from);
    NewFile to(target, permissions);
    to.copy(from, progress);
    to.finish();
    to.keep();
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
    flushFolderOf(place);
}

void replaceByCopy(
    const QString& source, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    QFile from(source);
    openSource(from);
    replace(target, permissions, [&](NewFile& to) { to.copy(from, progress); });
}

void replaceByBytes(const QByteArray& bytes, const QString& target, QFileDevice::Permissions permissions)
{
    replace(target, permissions, [&](NewFile& to) { to.write(bytes.constData(), bytes.size()); });
}

void keepAlso(
    const QString& file, const QString& target, QFileDevice::Permissions permissions, Progress* progress)
{
    const QString folder = QFileInfo(resolvedPath(target)).absolutePath();
    removeAbandoned(folder);
    const QString beside = unusedNameIn(folder);
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

void removeFile(const QString& path)
{
    QFile file(path);
    if (!file.remove() && isPresent(path)) {
        fail(path, file.errorString());
    }
    flushFolderOf(path);
}

void makePrivate(const QString& path)
{
    constexpr QFileDevice::Permissions Owners = PrivateFile | QFileDevice::ExeOwner;
    constexpr QFileDevice::Permissions Others = QFileDevice::ReadGroup | QFileDevice::WriteGroup
        | QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    const QFileInfo file(path);
    if (!file.isSymLink() && file.isFile() && (file.permissions() & Others)) {
        QFile::setPermissions(path, file.permissions() & Owners);
    }
}

void makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir()) {
        return;
    }
    makeFolder(QFileInfo(path).absolutePath());
    if (!QDir().mkdir(path)) {
        fail(path, qt_error_string());
    }
    flushFolderOf(path);
}
