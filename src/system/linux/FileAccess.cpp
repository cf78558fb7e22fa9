#include "system/FileAccess.h"

#include "system/FileError.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

bool createFile(QFile& file, QFileDevice::Permissions permissions)
{
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, permissions);
}

bool keepToOwner(QFile& file)
{
    // The umask must not take away the owner's permissions. Shares that GNOME mounts have none.
    return fchmod(file.handle(), S_IRUSR | S_IWUSR) == 0 || errno == ENOTSUP
        || file.setPermissions(PrivateFile);
}

std::error_code makePrivateFolder(const QString& path)
{
    return QDir().mkdir(path, PrivateFolder) ? std::error_code()
                                             : std::error_code(errno, std::system_category());
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

void markUsed(const QFile& file)
{
    // The system drops the lock of a process that dies.
    flock(file.handle(), LOCK_EX | LOCK_NB);
}

bool isAbandoned(const QString& path)
{
    const int handle =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const bool isFree = flock(handle, LOCK_EX | LOCK_NB) == 0;
    close(handle);
    return isFree;
}

std::error_code flushToDisk(const QFile& file)
{
    return fsync(file.handle()) == 0 ? std::error_code() : std::error_code(errno, std::system_category());
}

bool flushesFolders()
{
    return true;
}

bool flushFolder(const QString& folder)
{
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return false;
    }
    const bool isDone = fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    close(handle);
    return isDone;
}

void Writeback::follow(qint64 written)
{
    if (written - m_started < Window) {
        return;
    }
    if (m_started > 0) {
        sync_file_range(m_file.handle(), m_started - Window, Window,
            SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
    }
    sync_file_range(m_file.handle(), m_started, Window, SYNC_FILE_RANGE_WRITE);
    m_started += Window;
}

std::error_code renameOver(const QString& file, const QString& target)
{
    std::error_code error;
    std::filesystem::rename(
        QFileInfo(file).filesystemFilePath(), QFileInfo(target).filesystemFilePath(), error);
    return error;
}

std::error_code linkAs(const QString& file, const QString& name)
{
    std::error_code error;
    std::filesystem::create_hard_link(
        QFileInfo(file).filesystemFilePath(), QFileInfo(name).filesystemFilePath(), error);
    return error;
}

bool isPresent(const QString& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    if (status.type() == std::filesystem::file_type::none) {
        throw FileError(path, FileError::reason(error));
    }
    return status.type() != std::filesystem::file_type::not_found;
}

bool isSameFile(const QString& left, const QString& right)
{
    std::error_code error;
    return std::filesystem::equivalent(
               QFileInfo(left).filesystemFilePath(), QFileInfo(right).filesystemFilePath(), error)
        && !error;
}

QByteArray pathInC(const QString& path)
{
    return QFile::encodeName(path);
}
