#include "platform/ProgramFolderTemplate.h"

#include "platform/FileReplace.h"
#include "platform/Installation.h"
#include "platform/LockFile.h"
#include "platform/ProgramFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QUuid>
#include <filesystem>
#include <system_error>

namespace
{

constexpr char UnfinishedPrefix[] = ".Ambertask-";

[[noreturn]] void fail(const QString& path, const QString& why)
{
    throw FileError(path, why);
}

std::filesystem::path native(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

/// A disk that cannot tell has not said that there is nothing.
std::filesystem::file_type kindOf(const QString& path, bool followsLinks)
{
    std::error_code error;
    const auto status = followsLinks ? std::filesystem::status(native(path), error)
                                     : std::filesystem::symlink_status(native(path), error);
    if (status.type() == std::filesystem::file_type::none) {
        fail(path, QString::fromStdString(error.message()));
    }
    return status.type();
}

bool isAnything(const QString& path)
{
    return kindOf(path, false) != std::filesystem::file_type::not_found;
}

void makePrivateFolder(const QString& folder)
{
    if (!QDir().mkdir(folder, PrivateFolder)) {
        fail(folder, qt_error_string());
    }
}

/// The user's data folder, which another copy of the program may be making, too.
void ensureUserData(const QString& userData)
{
    try {
        makeFolder(userData);
    } catch (const FileError& error) {
        fail(userData, error.why());
    }
}

QString unfinishedIn(const QString& folder)
{
    return pathIn(folder, QLatin1String(UnfinishedPrefix) + QUuid::createUuid().toString(QUuid::Id128));
}

/// What was left by a start that was ended while it filled its folder.
void removeUnfinished(const QString& userData)
{
    QDirIterator left(userData, {QLatin1String(UnfinishedPrefix) + u'*'},
        QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    while (left.hasNext()) {
        QDir(left.next()).removeRecursively();
    }
}

/// Points the link in the folder to the executable. Anything but a link that has its name stays. A file
/// system without links goes without: it serves the start with the session alone.
void refreshLink(const Installation& installation, const QString& folder)
{
    const QString link = pathIn(folder, QLatin1String(ProductName));
    std::error_code error;
    const auto present = std::filesystem::symlink_status(native(link), error).type();
    if ((present != std::filesystem::file_type::not_found && present != std::filesystem::file_type::symlink)
        || QFile::symLinkTarget(link) == installation.executable) {
        return;
    }
    // A start that was ended here has left its link.
    for (const QFileInfo& left : QDir(folder).entryInfoList(
             {QLatin1String(UnfinishedPrefix) + u'*'}, QDir::Files | QDir::System | QDir::Hidden)) {
        if (left.isSymLink()) {
            QFile::remove(left.filePath());
        }
    }
    const QString beside = unfinishedIn(folder);
    if (QFile::link(installation.executable, beside)) {
        std::filesystem::rename(native(beside), native(link), error);
        if (error) {
            QFile::remove(beside);
        }
    }
}

struct ShippedFile {
    QByteArray sum;
    QString path; ///< in the program folder
};

QList<ShippedFile> readList(const QByteArray& text)
{
    constexpr int SumLength = 64;
    QList<ShippedFile> files;
    for (const QByteArray& line : text.split('\n')) {
        const QString path = QString::fromUtf8(line.mid(SumLength + 2));
        if (!path.isEmpty()) {
            files.append({line.left(SumLength), path});
        }
    }
    return files;
}

/// What the file holds; nothing when there is no such file.
QByteArray contentOf(const QString& path)
{
    if (kindOf(path, true) != std::filesystem::file_type::regular) {
        return {};
    }
    QFile file(path);
    QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        fail(path, file.errorString());
    }
    return content;
}

void copyTemplate(const Installation& installation, const QString& folder)
{
    const QDir files(installation.templateFolder);
    QStringList folders{folder};
    QDirIterator entries(
        files.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString source = entries.next();
        const QString name = files.relativeFilePath(source);
        const QString target = pathIn(folder, name);
        if (QFileInfo(source).isDir()) {
            makePrivateFolder(target);
            folders.append(target);
        } else {
            copyToNewFile(source, target, name == QLatin1String(DataFileName) ? PrivateFile : PublicFile);
        }
    }
    // A folder that could not be listed looks like an empty one.
    QStringList needed{QLatin1String(DataFileName), QLatin1String(ShippedListName)};
    for (const ShippedFile& file : readList(contentOf(pathIn(folder, QLatin1String(ShippedListName))))) {
        needed.append(file.path);
    }
    for (const QString& name : needed) {
        if (kindOf(pathIn(folder, name), true) != std::filesystem::file_type::regular) {
            fail(files.filePath(name), FileError::tr("it is missing from this installation"));
        }
    }
    refreshLink(installation, folder);
    for (const QString& one : folders) {
        if (!flushFolder(one)) {
            fail(one, qt_error_string());
        }
    }
}

QByteArray writtenList(const QList<ShippedFile>& files)
{
    QByteArray text;
    for (const ShippedFile& file : files) {
        text += file.sum + "  " + file.path.toUtf8() + '\n';
    }
    return text;
}

QByteArray sumOf(const QString& path)
{
    return QCryptographicHash::hash(contentOf(path), QCryptographicHash::Sha256).toHex();
}

/// Whether the user made or changed the file. The user's place are the folders: what lies beside data.dat,
/// such as the help, is the program's.
bool isUsersOwn(const QString& programFolder, const QString& path, const QByteArray& sumWhenBrought)
{
    const QString file = pathIn(programFolder, path);
    return path.contains(u'/') && isAnything(file) && sumOf(file) != sumWhenBrought;
}

/// False when it has to be tried again.
bool bringFile(const QString& templateFolder, const QString& programFolder, const QString& path,
    const QByteArray& sumWhenBrought)
{
    try {
        if (!isUsersOwn(programFolder, path, sumWhenBrought)) {
            const QString target = pathIn(programFolder, path);
            const QString folder = QFileInfo(target).absolutePath();
            makeFolder(folder);
            replaceByCopy(pathIn(templateFolder, path), target, PublicFile);
            // The list must not come to the disk without the file: that would look like the user's own.
            return flushFolder(folder);
        }
        return true;
    } catch (const FileError&) {
        // The program runs with what is there.
        return false;
    }
}

void bringShippedFiles(const QString& templateFolder, const QString& programFolder)
{
    const QString stamp = pathIn(programFolder, QLatin1String(ShippedListName));
    const QByteArray shipped = contentOf(pathIn(templateFolder, QLatin1String(ShippedListName)));
    const QByteArray before = contentOf(stamp);
    if (shipped.isEmpty() || shipped == before) {
        return;
    }
    QHash<QString, QByteArray> sumsBefore;
    for (const ShippedFile& file : readList(before)) {
        sumsBefore.insert(file.path, file.sum);
    }
    QList<ShippedFile> now = readList(shipped);
    for (ShippedFile& file : now) {
        const QByteArray sumBefore = sumsBefore.value(file.path);
        if (!bringFile(templateFolder, programFolder, file.path, sumBefore)) {
            // The stamp then differs from the list, and the next start tries again.
            file.sum = sumBefore;
        }
    }
    const QByteArray after = writtenList(now);
    if (after != before) {
        replaceByBytes(after, stamp, PublicFile);
    }
}

} // namespace

void makeProgramFolder(const Installation& installation, const QString& programFolder)
{
    if (installation.templateFolder.isEmpty() || isAnything(programFolder)) {
        return;
    }
    const QString userData = QFileInfo(programFolder).absolutePath();
    ensureUserData(userData);
    // Copies of the program that start at once are not to fill a folder each.
    const LockFile lock(pathIn(userData, QStringLiteral(".Ambertask-lock")), LockFile::IfHeld::Wait);
    if (isAnything(programFolder)) {
        return;
    }
    if (lock.isHeld()) {
        removeUnfinished(userData);
    }
    const QString unfinished = unfinishedIn(userData);
    makePrivateFolder(unfinished);
    try {
        copyTemplate(installation, unfinished);
        std::error_code error;
        std::filesystem::rename(native(unfinished), native(programFolder), error);
        if (error) {
            fail(programFolder, QString::fromStdString(error.message()));
        }
    } catch (const FileError&) {
        QDir(unfinished).removeRecursively();
        if (!isAnything(programFolder)) {
            throw;
        }
    }
    flushFolder(userData);
}

void refreshProgramFolder(const Installation& installation, const QString& programFolder)
{
    // A folder without data.dat is no program folder: the start reports it, and nothing in it changes.
    if (installation.templateFolder.isEmpty()
        || !QFileInfo(pathIn(programFolder, QLatin1String(DataFileName))).isFile()) {
        return;
    }
    refreshLink(installation, programFolder);
    try {
        bringShippedFiles(installation.templateFolder, programFolder);
    } catch (const FileError&) {
        // The next start tries again.
    }
}
