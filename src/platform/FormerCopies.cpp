#include "platform/FormerCopies.h"

#include "platform/FileReplace.h"
#include "platform/Installation.h"
#include "platform/ProgramFolder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <filesystem>
#include <system_error>

namespace
{

using std::filesystem::file_type;

/// A disk that cannot tell has not said that there is nothing.
file_type known(const QString& path, const std::filesystem::file_status& status, const std::error_code& error)
{
    if (status.type() == file_type::none) {
        throw FileError(path, QString::fromStdString(error.message()));
    }
    return status.type();
}

/// Of what lies there itself, be it a link.
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

/// Whether `copy` lies there as it was brought, by the sum that was noted then. An upgrade that was cut off
/// brought files without noting it: those are as they are shipped. What a link leads to was not put here.
bool isFormerCopy(const QString& copy, const QByteArray& sumWhenBrought, const QString& shipped)
{
    if (kindOf(copy) != file_type::regular || kindBehindLinks(shipped) != file_type::regular) {
        return false;
    }
    const QByteArray content = contentOf(copy);
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() == sumWhenBrought
        || content == contentOf(shipped);
}

/// Removes what is unchanged of the files on the list; true when none has to be tried again.
bool removeUnchanged(const QByteArray& list, const QString& folder, const QString& shippedFolder)
{
    // A line for each file: its SHA-256 sum in hexadecimal digits, two blanks, its path in the folder.
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
        // Once the list is gone from the disk, copies that are not would pass for the user's own.
        isComplete = flushFolder(one) && isComplete;
    }
    return isComplete;
}

} // namespace

void removeFormerCopies(const Installation& installation, const QString& programFolder)
{
    const QString list = pathIn(programFolder, QStringLiteral("shipped.sha256"));
    // A folder that is only read, of which nothing can be removed, is not looked through at every start.
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
