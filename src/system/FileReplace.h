#pragma once

#include "system/RuntimeError.h"

#include <QByteArray>
#include <QFileDevice>
#include <functional>

class Progress;

/// A file that could not be copied or replaced.
class FileError : public RuntimeError
{
    Q_DECLARE_TR_FUNCTIONS(FileError)

public:
    using RuntimeError::RuntimeError;
    FileError(const QString& path, const QString& why)
        : RuntimeError(QStringLiteral("\"%1\": %2.").arg(path, why)), m_why(why)
    {
    }

    /// Why, without the name of the file. Empty when the text says it all.
    const QString& why() const { return m_why; }
    /// The reason for a system error number, in words for whoever chose the file: "the disk is full". For
    /// other numbers the system's own message.
    static QString reason(int error);
    /// The same for the last failed call on `file`.
    static QString reason(const QFileDevice& file);

private:
    QString m_why;
};

/// Why an operation on files failed, in words that follow a colon.
QString reasonOf(const std::exception& error);

/// Readable and writable by the owner alone.
inline constexpr QFileDevice::Permissions PrivateFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
/// The same for a folder.
inline constexpr QFileDevice::Permissions PrivateFolder = PrivateFile | QFileDevice::ExeOwner;
/// Readable by everyone, as far as the umask allows.
inline constexpr QFileDevice::Permissions PublicFile =
    PrivateFile | QFileDevice::ReadGroup | QFileDevice::ReadOther;

// A file appears under its name complete or not at all, even if the power fails, and is on the disk when
// the function returns (as far as the file system can flush a folder). A private file is private whatever
// the umask is. All functions throw FileError.

/// Copies the regular file `source`, byte for byte, to the new file `target`; the folder is not flushed.
/// After an error there is no `target`.
void copyToNewFile(const QString& source, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// Renames `file` to `target`, replacing a regular file of that name; both are on one file system. If
/// `target` is a link, the file that it points to is replaced.
void moveOver(const QString& file, const QString& target);
/// Copies `source` over `target`, which keeps its content unless the copy is complete. The copy is written
/// beside it under a random hidden name; copies left there by processes that died are removed.
void replaceByCopy(const QString& source, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// The same with `bytes` as the new content.
void replaceByBytes(const QByteArray& bytes, const QString& target, QFileDevice::Permissions permissions);
/// The same with what `write` writes to a sequential device as the new content. `target` keeps its content
/// when `write` throws.
void replaceByWriting(const QString& target, QFileDevice::Permissions permissions,
    const std::function<void(QIODevice&)>& write);
/// Gives `file` a second name `target` on the same file system, replacing a regular file; copies it where
/// the file system has no hard links. When one of the names is replaced later, the other keeps the content.
void keepAlso(const QString& file, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// Removes the file if it exists.
void removeFile(const QString& path);
/// Removes the permissions of everyone but the owner. Quietly does nothing where there is no regular file
/// of that name (links are not followed) or where the system refuses.
void makePrivate(const QString& path);
/// Makes the folder and the missing ones above it, accessible to the owner alone.
void makeFolder(const QString& path);

/// Flushes the entries of `folder` to the disk. False when that failed; does nothing on file systems that
/// cannot flush a folder.
bool flushFolder(const QString& folder);

/// Whether anything of that name exists. Throws when the disk cannot tell: an error is not a "no".
bool isPresent(const QString& path);
/// The path with links resolved, as far as the file exists.
QString resolvedPath(const QString& path);
/// Whether both paths lead to the same existing file, through whatever links.
bool isSameFile(const QString& left, const QString& right);
