#include "system/FormerCopies.h"

#include "system/FileReplace.h"
#include "system/Installation.h"
#include "system/ProgramFolder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <filesystem>
#include <system_error>

namespace
{

using std::filesystem::file_type;

/// The type of the file; throws when the disk cannot tell, which does not mean that there is none.
file_type known(const QString& path, const std::filesystem::file_status& status, const std::error_code& error)
{
    if (status.type() == file_type::none) {
        throw FileError(path, QString::fromStdString(error.message()));
    }
    return status.type();
}

/// The type of what is at `path` itself, links not followed.
file_type kindOf(const QString& path)
{
    std::error_code error;
    const auto status = std::filesystem::symlink_status(QFileInfo(path).filesystemFilePath(), error);
    return known(path, status, error);
}

file_type kindBehindLinks(const QString& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    return known(path, status, error);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        throw FileError(path, file.errorString());
    }
    return content;
}

/// Whether `copy` is an unchanged copy: it has the checksum noted when it was made, or (an upgrade that was
/// cut off notes none) the content of the file as it is shipped. A file behind a link was not put here by
/// the program.
bool isFormerCopy(const QString& copy, const QByteArray& sumWhenBrought, const QString& shipped)
{
    if (kindOf(copy) != file_type::regular || kindBehindLinks(shipped) != file_type::regular) {
        return false;
    }
    const QByteArray content = contentOf(copy);
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() == sumWhenBrought
        || content == contentOf(shipped);
}

/// Removes the unchanged files on the list; true when nothing remains to be tried again.
bool removeUnchanged(const QByteArray& list, const QString& folder, const QString& shippedFolder)
{
    // Each line: SHA-256 sum in hexadecimal digits, two blanks, path in the folder.
    constexpr int SumLength = 64;
    bool isComplete = true;
    QSet<QString> folders;
    for (const QByteArray& line : list.split('\n')) {
        const QString name = QString::fromUtf8(line.mid(SumLength + 2));
        const QString copy = pathIn(folder, name);
        try {
            if (kindOf(QFileInfo(copy).path()) == file_type::directory) {
                folders.insert(QFileInfo(copy).path());
                if (isFormerCopy(copy, line.left(SumLength), pathIn(shippedFolder, name))) {
                    isComplete = QFile::remove(copy) && isComplete;
                }
            }
        } catch (const FileError&) {
            isComplete = false;
        }
    }
    for (const QString& one : qAsConst(folders)) {
        // On the disk before the list is removed: a copy that outlived the list would pass for the user's
        // own.
        isComplete = flushFolder(one) && isComplete;
    }
    return isComplete;
}

} // namespace

void removeFormerCopies(const Installation& installation, const QString& programFolder)
{
    const QString list = pathIn(programFolder, QStringLiteral("shipped.sha256"));
    // Nothing can be removed from a read-only folder, so it is not searched at every start.
    if (installation.shippedFolder.isEmpty() || !QFileInfo(list).isFile()
        || !QFileInfo(programFolder).isWritable()) {
        return;
    }
    try {
        const QString folder = resolvedPath(programFolder);
        if (removeUnchanged(contentOf(list), folder, installation.shippedFolder)) {
            removeFile(list);
        }
    } catch (const FileError&) {
        // The next start tries again.
    }
}
