#include "settings/DataFileCopies.h"

#include "data/ClsDatabase.h"
#include "platform/FileReplace.h"
#include "platform/ProgramFolder.h"
#include "platform/database/DatabaseError.h"
#include "settings/DataFileCheck.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <array>

namespace
{

constexpr std::array Companions{"-journal", "-wal"};

} // namespace

DataFileCopies::DataFileCopies(const DatabaseEngine& engine)
    : m_engine(&engine), m_dataFile(pathIn(engine.programFolder, ClsDatabase(engine).FileName()))
{
}

void DataFileCopies::backUpTo(const QString& file, Progress* progress) const
{
    const QFileInfo target(resolvedPath(file));
    for (const char* companion : Companions) {
        if (target.absoluteFilePath() == resolvedPath(m_dataFile) + QLatin1String(companion)) {
            throw FileError(tr("\"%1\" belongs to the data file.").arg(file));
        }
    }
    if (isSameFile(file, m_dataFile)) {
        throw FileError(tr("\"%1\" is the data file itself.").arg(file));
    }
    settle();
    refuseOpenOperation(m_dataFile);
    replaceByCopy(m_dataFile, file, PrivateFile, progress);
}

void DataFileCopies::restoreFrom(const QString& file, Progress* progress) const
{
    if (isSameFile(file, m_dataFile)) {
        throw FileError(tr("\"%1\" is the data file itself.").arg(file));
    }
    refuseOpenOperation(file);
    refuseForeignFile(file);
    const QString place = resolvedPath(m_dataFile);
    // Beside the data file: what has been checked is what takes its place, by a mere renaming.
    const QTemporaryDir folder(QFileInfo(place).absolutePath() + QStringLiteral("/.restore-XXXXXX"));
    if (!folder.isValid()) {
        throw FileError(folder.errorString());
    }
    const QString checked = folder.filePath(ClsDatabase(*m_engine).FileName());
    copyToNewFile(file, checked, PrivateFile, progress);
    requireServiceableDataFile({folder.path(), m_engine->clock, nullptr, progress});
    if (!QFileInfo::exists(place)) {
        moveOver(checked, place);
        return;
    }
    settleIfSound();
    // No bytes are copied: the restored file takes the name, and the old one keeps its second one.
    const QString replaced = place + QStringLiteral(".before-restore");
    keepAlso(place, replaced, PrivateFile, progress);
    try {
        moveOver(checked, place);
    } catch (const FileError&) {
        // The data file is not to be known by two names.
        QFile::remove(replaced);
        throw;
    }
}

// A process that died inside an operation has left its journal; the engine rolls it back when the file is
// opened. Without that, the copy would be wrong data that passes every check.
void DataFileCopies::settle() const
{
    Connection connection = ClsDatabase(*m_engine).Connect();
    connection.open();
    connection.close();
}

// A damaged data file is the best reason for a restore. What matters is that no journal is left that would be
// rolled back into the new file.
void DataFileCopies::settleIfSound() const
{
    try {
        settle();
    } catch (const DatabaseError&) {
    }
    refuseOpenOperation(m_dataFile);
}

void DataFileCopies::refuseOpenOperation(const QString& file) const
{
    for (const char* companion : Companions) {
        if (QFileInfo(resolvedPath(file) + QLatin1String(companion)).size() > 0) {
            throw FileError(tr("An operation on \"%1\" is not finished.").arg(file));
        }
    }
}

// Before anything is copied: the chosen file may be of any size.
void DataFileCopies::refuseForeignFile(const QString& file) const
{
    constexpr QByteArrayView Head("SQLite format 3\0", 16);
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly) || source.read(Head.size()) != Head) {
        throw FileError(tr("\"%1\" is no data file.").arg(file));
    }
}
