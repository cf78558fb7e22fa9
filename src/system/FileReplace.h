#pragma once

#include "system/FileAccess.h"
#include "system/FileError.h"

#include <QByteArray>
#include <functional>

class Progress;

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
/// Makes the folder and the missing ones above it, accessible to the owner alone.
void makeFolder(const QString& path);
/// The path with links resolved, as far as the file exists.
QString resolvedPath(const QString& path);
