#pragma once

#include <QByteArray>
#include <QFile>
#include <system_error>

// What each platform has calls of its own for. A std::error_code is empty when all is well.

/// Readable and writable by the owner alone.
inline constexpr QFileDevice::Permissions PrivateFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
/// The same for a folder.
inline constexpr QFileDevice::Permissions PrivateFolder = PrivateFile | QFileDevice::ExeOwner;
/// Readable by everyone, as far as the umask allows.
inline constexpr QFileDevice::Permissions PublicFile =
    PrivateFile | QFileDevice::ReadGroup | QFileDevice::ReadOther;

/// Creates `file` and opens it for writing without a buffer. False, with the reason in `file`, when that
/// fails or something of that name exists. A private file may still need `keepToOwner`.
bool createFile(QFile& file, QFileDevice::Permissions permissions);
/// Gives the owner of a new private file all permissions, and nobody else any, where the file system has
/// permissions. False with the reason in `file`.
bool keepToOwner(QFile& file);
/// Makes a folder that is private, as far as the umask leaves the owner's permissions. Returns why it could
/// not.
std::error_code makePrivateFolder(const QString& path);
/// Removes the permissions of everyone but the owner. Quietly does nothing where there is no regular file
/// of that name (links are not followed) or where the system refuses.
void makePrivate(const QString& path);

/// Marks an open file as in use by this process, until it is closed.
void markUsed(const QFile& file);
/// Whether no process uses that file any more.
bool isAbandoned(const QString& path);

/// Brings the content of an open file to the disk.
std::error_code flushToDisk(const QFile& file);
/// Flushes the entries of `folder` to the disk. False when that failed; does nothing on file systems that
/// cannot flush a folder.
bool flushFolder(const QString& folder);

/// Whether the system promises that a file which has been removed stays so once its folder is flushed.
bool flushesFolders();

/// Starts writing a file to the disk while it grows: one flush at the end would block for seconds.
class Writeback
{
public:
    explicit Writeback(const QFile& file) : m_file(file) { }

    /// `written` bytes have been written so far.
    void follow(qint64 written);

private:
    static constexpr qint64 Window = qint64{8} * 1024 * 1024;

    const QFile& m_file;
    qint64 m_started = 0;
};

/// Renames `file` to `target`, replacing a file of that name in one step.
std::error_code renameOver(const QString& file, const QString& target);
/// Gives `file` a second name on the same file system.
std::error_code linkAs(const QString& file, const QString& name);

/// Whether anything of that name exists. Throws FileError when the disk cannot tell: an error is not a
/// "no".
bool isPresent(const QString& path);
/// Whether both paths lead to the same existing file, through whatever links.
bool isSameFile(const QString& left, const QString& right);
/// The path for a library in C.
QByteArray pathInC(const QString& path);
