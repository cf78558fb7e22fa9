#pragma once

#include "platform/RuntimeError.h"

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
    /// Why the system refused something, by its error number and in words for whoever chose the file: "the
    /// disk is full". For other numbers what the system says of them.
    static QString reason(int error);
    /// The same of the call on `file` that has failed just now.
    static QString reason(const QFileDevice& file);

private:
    QString m_why;
};

/// Why an operation on files failed, in words that follow a colon.
QString reasonOf(const std::exception& error);

/// Read and written by its owner alone.
inline constexpr QFileDevice::Permissions PrivateFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
/// The same for a folder.
inline constexpr QFileDevice::Permissions PrivateFolder = PrivateFile | QFileDevice::ExeOwner;
/// Read by everyone as far as the user's mask allows it.
inline constexpr QFileDevice::Permissions PublicFile =
    PrivateFile | QFileDevice::ReadGroup | QFileDevice::ReadOther;

// Files appear under their name complete or not at all, whenever the power fails, and what has been done is
// on the disk at the return (as far as the file system can flush a folder). A private file is private
// whatever the user's mask is. All functions throw FileError.

/// Copies the regular file `source`, byte for byte, to the new file `target`, whose name is not flushed.
/// After an error there is no `target`.
void copyToNewFile(const QString& source, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// Gives `file` the name `target`, over a regular file of that name; both lie in one file system. Where
/// `target` is a link, the file that it points to is replaced.
void moveOver(const QString& file, const QString& target);
/// Copies `source` over `target`, which keeps its content unless the copy is complete. Meanwhile the copy
/// lies beside it; copies that a process left there when it died are removed.
void replaceByCopy(const QString& source, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// Writes `bytes` over `target`, in the same way.
void replaceByBytes(const QByteArray& bytes, const QString& target, QFileDevice::Permissions permissions);
/// Writes what `write` writes to a sequential device over `target`, in the same way. `target` keeps its
/// content when `write` throws.
void replaceByWriting(const QString& target, QFileDevice::Permissions permissions,
    const std::function<void(QIODevice&)>& write);
/// Gives `file` the second name `target`, in the same file system, over a regular file; where the
/// file system knows no second names, copies it. Both names keep the content when one of them is then
/// replaced.
void keepAlso(const QString& file, const QString& target, QFileDevice::Permissions permissions,
    Progress* progress = nullptr);
/// Removes the file; one that does not exist is none.
void removeFile(const QString& path);
/// Takes away what others than its owner may do with a file. Quietly does nothing where there is no regular
/// file of that name (what a link points to is not meant) or where the system refuses.
void makePrivate(const QString& path);
/// Makes the folder, and those above it that are missing, for its owner alone.
void makeFolder(const QString& path);

/// Brings the names that `folder` holds to the disk. False when the disk failed to; some file systems cannot
/// be asked for that, and then nothing happens.
bool flushFolder(const QString& folder);

/// Whether there is anything of that name. Throws when the disk cannot tell: that is no "no".
bool isPresent(const QString& path);
/// The path with links resolved, as far as the file exists.
QString resolvedPath(const QString& path);
/// Whether both paths lead to one existing file, by whatever links.
bool isSameFile(const QString& left, const QString& right);
