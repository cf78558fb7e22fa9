#include "system/ProgramFolder.h"

#include "system/FileReplace.h"
#include "system/Installation.h"
#include "system/LockFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

namespace
{

std::filesystem::path native(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

void fillProgramFolder(const Installation& installation, const QString& folder)
{
    const QString data = QLatin1String(DataFileName);
    makeFolder(folder);
    copyToNewFile(pathIn(installation.shippedFolder, data), pathIn(folder, data), PrivateFile);
    pointToExecutable(installation, folder);
    if (!flushFolder(folder)) {
        throw FileError(folder, qt_error_string());
    }
}

/// What an unpacked archive ships becomes the data file, once. An archive that is unpacked over a program
/// folder so never replaces the data.
void takeNewDataFile(const QString& folder)
{
    const QString shipped = pathIn(folder, QLatin1String(NewDataFileName));
    const QString data = pathIn(folder, QLatin1String(DataFileName));
    if (!isPresent(shipped)) {
        return;
    }
    if (isPresent(data)) {
        // If it stays, it would stand in for data that were lost later.
        QFile::remove(shipped);
        return;
    }
    std::error_code error;
    std::filesystem::rename(native(shipped), native(data), error);
    // Of several copies that start at once, one takes it.
    if (error && !isPresent(data)) {
        throw FileError(data, QString::fromStdString(error.message()));
    }
}

} // namespace

QString programFolderOf(const Installation& installation, const QString& userData)
{
    return installation.programFolder.isEmpty() ? pathIn(userData, QLatin1String(ProductName))
                                                : installation.programFolder;
}

void makeProgramFolder(const Installation& installation, const QString& programFolder)
{
    if (installation.shippedFolder.isEmpty()) {
        takeNewDataFile(programFolder);
        return;
    }
    if (QFileInfo(programFolder).isSymLink() || isPresent(programFolder)) {
        return;
    }
    const QString userData = QFileInfo(programFolder).absolutePath();
    makeFolder(userData);
    // Of several copies that start at once, one makes the folder.
    const LockFile lock(pathIn(userData, QStringLiteral(".Ambertask-lock")), LockFile::IfHeld::Wait);
    if (!lock.isHeld()) {
        throw FileError(lock.failure());
    }
    if (isPresent(programFolder)) {
        return;
    }
    const QString unfinished = pathIn(userData, QStringLiteral(".Ambertask-new"));
    // Left by a start that was ended here.
    QDir(unfinished).removeRecursively();
    try {
        fillProgramFolder(installation, unfinished);
        std::error_code error;
        std::filesystem::rename(native(unfinished), native(programFolder), error);
        if (error) {
            throw FileError(programFolder, QString::fromStdString(error.message()));
        }
    } catch (const FileError&) {
        QDir(unfinished).removeRecursively();
        throw;
    }
    flushFolder(userData);
}

void pointToExecutable(const Installation& installation, const QString& programFolder)
{
    const QString link = pathIn(programFolder, QLatin1String(ProductName));
    const QFileInfo present(link);
    // A folder without data.dat is not a program folder: start-up reports that, and nothing in it changes.
    if (installation.shippedFolder.isEmpty()
        || !QFileInfo(pathIn(programFolder, QLatin1String(DataFileName))).isFile()
        || (present.exists() && !present.isSymLink()) || present.symLinkTarget() == installation.executable) {
        return;
    }
    const QString beside = pathIn(programFolder, QStringLiteral(".Ambertask-link"));
    // Left by a start that was ended here.
    QFile::remove(beside);
    if (QFile::link(installation.executable, beside)) {
        std::error_code error;
        std::filesystem::rename(native(beside), native(link), error);
        if (error) {
            QFile::remove(beside);
        }
    }
}

QString pathIn(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool noteFirstStart()
{
    const QString folder = userStateFolder();
    QFile marker(folder + QStringLiteral("/started"));
    // The note is written before anything is registered: a machine that cannot keep it must not be
    // registered at every start.
    try {
        makeFolder(folder);
    } catch (const FileError&) {
        return false;
    }
    return marker.open(QIODevice::WriteOnly | QIODevice::NewOnly, PrivateFile);
}
