#include "settings/DataFileCopies.h"

#include "data/ClsDatabase.h"
#include "platform/FileReplace.h"
#include "platform/ProgramFolder.h"
#include "platform/database/DatabaseError.h"
#include "settings/DataFileCheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace
{

constexpr std::array Companions{"-journal", "-wal"};
constexpr char ReplacedSuffix[] = ".before-restore";
constexpr char EarlierName[] = "earlier";

/// The folder in which a file is checked before it takes the place of the data file; private, gone with this
/// object. Its name is fixed, so that what a process left there when it died goes with the next restore.
class CheckingFolder
{
public:
    explicit CheckingFolder(const QString& dataFile)
        : m_path(QFileInfo(dataFile).absolutePath() + QStringLiteral("/.restore"))
    {
        remove();
        constexpr QFileDevice::Permissions Private = PrivateFile | QFileDevice::ExeOwner;
        // The user's mask must not take away what the owner needs.
        if (!QDir().mkdir(m_path, Private) || !QFile::setPermissions(m_path, Private)) {
            throw FileError(QStringLiteral("\"%1\": %2.").arg(m_path, qt_error_string()));
        }
    }
    ~CheckingFolder() { remove(); }
    CheckingFolder(const CheckingFolder&) = delete;
    CheckingFolder& operator=(const CheckingFolder&) = delete;
    QString path() const { return m_path; }

private:
    void remove() const
    {
        // What a link points to is not ours.
        if (QFileInfo(m_path).isSymLink()) {
            QFile::remove(m_path);
        } else {
            QDir(m_path).removeRecursively();
        }
    }

    QString m_path;
};

/// Whether the engine would take something back from that journal: not from one that is empty or whose head
/// has been wiped.
bool isUnfinished(const QString& journal)
{
    QFile file(journal);
    if (!isPresent(journal)) {
        return false;
    }
    char first = '\0';
    return !file.open(QIODevice::ReadOnly) || file.read(&first, 1) < 0 || first != '\0';
}

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
    const CheckingFolder folder(place);
    const QString checked = pathIn(folder.path(), ClsDatabase(*m_engine).FileName());
    copyToNewFile(file, checked, PrivateFile, progress);
    requireServiceableDataFile({folder.path(), m_engine->clock, nullptr, progress});
    makePrivate(file);
    const bool replaces = isPresent(place);
    if (replaces) {
        settleIfSound();
    }
    // It would be rolled back into the new file.
    refuseOpenOperation(m_dataFile);
    if (!replaces) {
        moveOver(checked, place);
        return;
    }
    keepReplaced(place, folder.path(), progress);
    try {
        moveOver(checked, place);
    } catch (const FileError&) {
        putBackEarlier(place, folder.path());
        throw;
    }
}

void DataFileCopies::keepPrivate() const
{
    const QString place = resolvedPath(m_dataFile);
    makePrivate(place);
    for (const char* companion : Companions) {
        makePrivate(place + QLatin1String(companion));
    }
    makePrivate(place + QLatin1String(ReplacedSuffix));
}

// No bytes are copied: the restored file takes the name, and the old one keeps its second one. The file of an
// earlier restore waits until the new one is in place.
void DataFileCopies::keepReplaced(const QString& place, const QString& folder, Progress* progress)
{
    const QString replaced = place + QLatin1String(ReplacedSuffix);
    if (isPresent(replaced)) {
        keepAlso(replaced, pathIn(folder, QLatin1String(EarlierName)), PrivateFile, progress);
    }
    keepAlso(place, replaced, PrivateFile, progress);
}

void DataFileCopies::putBackEarlier(const QString& place, const QString& folder)
{
    const QString replaced = place + QLatin1String(ReplacedSuffix);
    const QString earlier = pathIn(folder, QLatin1String(EarlierName));
    try {
        if (isPresent(earlier)) {
            moveOver(earlier, replaced);
        } else {
            // The data file is not to be known by two names.
            removeFile(replaced);
        }
    } catch (const FileError&) {
        // Then it is; nothing is lost by that.
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

void DataFileCopies::settleIfSound() const
{
    try {
        settle();
    } catch (const DatabaseError&) {
        // A damaged data file is the best reason for a restore.
    }
}

void DataFileCopies::refuseOpenOperation(const QString& file) const
{
    for (const char* companion : Companions) {
        if (isUnfinished(resolvedPath(file) + QLatin1String(companion))) {
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
