#include "data/DataFileCopies.h"

#include "data/ClsDatabase.h"
#include "data/DataFileCheck.h"
#include "data/DataFileRoad.h"
#include "data/KeptCopies.h"
#include "data/RepeatRules.h"
#include "store/DatabaseError.h"
#include "store/RollbackJournal.h"
#include "system/FileReplace.h"
#include "system/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>

namespace
{

constexpr std::array Companions{"-journal", "-wal"};
constexpr char ReplacedSuffix[] = ".before-restore";
constexpr char OlderSuffix[] = ".before-upgrade";
constexpr char EarlierName[] = "earlier";

/// The folder in which a file is checked before it replaces the data file; private, removed with this
/// object. Its name is fixed, so that the next restore removes what a process left there when it died.
class CheckingFolder
{
public:
    explicit CheckingFolder(const QString& dataFile)
        : m_path(QFileInfo(dataFile).absolutePath() + QStringLiteral("/.restore"))
    {
        remove();
        if (const std::error_code error = makePrivateFolder(m_path)) {
            throw FileError(m_path, FileError::reason(error));
        }
        // The umask must not take away the owner's permissions.
        if (QFile folder(m_path); !folder.setPermissions(PrivateFolder)) {
            throw FileError(m_path, FileError::reason(folder));
        }
    }
    ~CheckingFolder() { remove(); }
    CheckingFolder(const CheckingFolder&) = delete;
    CheckingFolder& operator=(const CheckingFolder&) = delete;
    QString path() const { return m_path; }

private:
    void remove() const
    {
        // The target of a link is not ours.
        if (QFileInfo(m_path).isSymLink()) {
            QFile::remove(m_path);
        } else {
            QDir(m_path).removeRecursively();
        }
    }

    QString m_path;
};

/// Whether SQLite would roll back from that journal; it does not when the journal is empty or its header is
/// wiped.
bool isUnfinished(const QString& journal)
{
    QFile file(journal);
    if (!isPresent(journal)) {
        return false;
    }
    char first = '\0';
    // A pipe would block.
    return !QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) || file.read(&first, 1) < 0
        || first != '\0';
}

/// Whether SQLite would take `file` for a database at all.
bool hasHead(const QString& file)
{
    constexpr QByteArrayView Head("SQLite format 3\0", 16);
    QFile source(file);
    return QFileInfo(file).isFile() && source.open(QIODevice::ReadOnly) && source.read(Head.size()) == Head;
}

bool holdTheSame(const QString& left, const QString& right)
{
    constexpr qint64 Chunk = 65536;
    QFile one(left);
    QFile other(right);
    bool same = QFileInfo(one).isFile() && QFileInfo(other).isFile() && one.open(QIODevice::ReadOnly)
        && other.open(QIODevice::ReadOnly) && one.size() == other.size();
    while (same && !one.atEnd()) {
        const QByteArray bytes = one.read(Chunk);
        same = !bytes.isEmpty() && bytes == other.read(Chunk);
    }
    return same;
}

/// Whether an interrupted or failed restore has come so far: then the journal beside `replaced` belongs to
/// `place`.
bool isKeptAlready(const QString& place, const QString& replaced)
{
    return isSameFile(place, replaced) || (!hasHead(place) && holdTheSame(place, replaced));
}

/// Moves unfinished journals beside `file` to where SQLite finds them for `target`.
void moveUnfinished(const QString& file, const QString& target)
{
    for (const char* companion : Companions) {
        if (isUnfinished(file + QLatin1String(companion))) {
            moveOver(file + QLatin1String(companion), target + QLatin1String(companion));
        }
    }
}

/// Keeps others from changing the data file while this lives: they may begin, and not commit. It must not be
/// in write-ahead mode, and no handle to it that was opened meanwhile be closed, as the system drops all
/// locks of a process on a file then.
class StillFile
{
public:
    explicit StillFile(const DatabaseEngine& engine) : m_engine(engine.unheard())
    {
        m_connection.open();
        m_unread = m_connection.execute(QStringLiteral("select name from sqlite_schema"));
    }
    ~StillFile() { m_connection.abandon(); }
    StillFile(const StillFile&) = delete;
    StillFile& operator=(const StillFile&) = delete;

private:
    DatabaseEngine m_engine;
    Connection m_connection = ClsDatabase(m_engine).Connect();
    /// Reading goes on until its last row.
    RecordSet m_unread;
};

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
    leaveWriteAheadMode();
    settle();
    if (isInWriteAheadMode(m_dataFile)) {
        takeInWriteAheadLog(m_dataFile);
    }
    // A copy of old and new pages could pass every check.
    const StillFile still(*m_engine);
    refuseOpenOperation(m_dataFile);
    replaceByCopy(m_dataFile, file, PrivateFile, progress);
}

RestoredData DataFileCopies::restoreFrom(const QString& file, Progress* progress) const
{
    if (isSameFile(file, m_dataFile)) {
        throw FileError(tr("\"%1\" is the data file itself.").arg(file));
    }
    refuseOpenOperation(file);
    refuseForeignFile(file);
    const QString place = resolvedPath(m_dataFile);
    // Beside the data file, so that the checked file replaces it by a rename.
    const CheckingFolder folder(place);
    const QString checked = pathIn(folder.path(), ClsDatabase(*m_engine).FileName());
    copyToNewFile(file, checked, PrivateFile, progress);
    useRollbackJournal(checked);
    const qint64 tasks = requireServiceableDataFile({folder.path(), m_engine->clock, nullptr, progress});
    makePrivate(file);
    if (!isPresent(place)) {
        // It would be rolled back into the new file.
        refuseOpenOperation(m_dataFile);
        moveOver(checked, place);
        bringUp(progress);
        return {tasks, {}, {}};
    }
    // A journal beside a file that is no database cannot be rolled back any more, and SQLite would delete
    // it; it is kept.
    QString noCopy;
    const bool isDatabase = hasHead(place);
    if (isDatabase) {
        settleIfSound();
        refuseOpenOperation(m_dataFile);
        noCopy = KeptCopies(*m_engine).keep(CopyOccasion::Restore, progress);
    }
    keepReplaced(place, folder.path(), progress);
    try {
        // An operation that another process has begun meanwhile goes on in the file that is replaced.
        if (isDatabase) {
            refuseOpenOperation(m_dataFile);
        }
        // Before the new file: beside that it would be rolled back into it.
        moveUnfinished(place, place + QLatin1String(ReplacedSuffix));
        moveOver(checked, place);
    } catch (const FileError&) {
        putBackEarlier(place, folder.path());
        throw;
    }
    bringUp(progress);
    return {tasks, QFileInfo(place).fileName() + QLatin1String(ReplacedSuffix), noCopy};
}

void DataFileCopies::bringUp(Progress* progress) const
{
    DatabaseEngine engine = *m_engine;
    engine.progress = progress;
    if (engine.repeating != nullptr) {
        engine.repeating->forget();
    }
    try {
        if (isDataFileBehind(engine)) {
            backUpTo(resolvedPath(m_dataFile) + QLatin1String(OlderSuffix), progress);
            KeptCopies(engine).keep(CopyOccasion::Upgrade, progress);
            bringDataFileUp(engine);
        }
    } catch (const LaterDataFileError&) {
        throw;
    } catch (const RuntimeError&) {
        // It is usable as it is.
    }
}

void DataFileCopies::leaveWriteAheadMode() const
{
    const QString place = resolvedPath(m_dataFile);
    if (!isInWriteAheadMode(place)) {
        return;
    }
    try {
        useRollbackJournal(place);
    } catch (const DatabaseError&) {
        // The file can be used as it is.
    }
}

void DataFileCopies::keepPrivate() const
{
    const QString place = resolvedPath(m_dataFile);
    makePrivate(place);
    for (const char* companion : Companions) {
        makePrivate(place + QLatin1String(companion));
    }
    const QString replaced = place + QLatin1String(ReplacedSuffix);
    makePrivate(replaced);
    for (const char* companion : Companions) {
        makePrivate(replaced + QLatin1String(companion));
    }
}

// Copies nothing: the old file gets a second name, then the restored file takes its first one. The file of
// an earlier restore is set aside until the new one is in place.
void DataFileCopies::keepReplaced(const QString& place, const QString& folder, Progress* progress)
{
    const QString replaced = place + QLatin1String(ReplacedSuffix);
    const QString earlier = pathIn(folder, QLatin1String(EarlierName));
    if (isKeptAlready(place, replaced)) {
        return;
    }
    try {
        // The journal before the file that it belongs to, and never beside another file of that name.
        moveUnfinished(replaced, earlier);
        if (isPresent(replaced)) {
            keepAlso(replaced, earlier, PrivateFile, progress);
        }
        keepAlso(place, replaced, PrivateFile, progress);
    } catch (...) {
        try {
            moveUnfinished(earlier, replaced);
        } catch (const FileError&) {
            // The first failure is reported.
        }
        throw;
    }
}

void DataFileCopies::putBackEarlier(const QString& place, const QString& folder)
{
    const QString replaced = place + QLatin1String(ReplacedSuffix);
    const QString earlier = pathIn(folder, QLatin1String(EarlierName));
    try {
        moveUnfinished(replaced, place);
        if (isPresent(earlier)) {
            moveOver(earlier, replaced);
            moveUnfinished(earlier, replaced);
        } else {
            // The data file must not have two names.
            removeFile(replaced);
        }
    } catch (const FileError&) {
        // Then it has two names, and so has its journal; nothing is lost.
    }
}

// SQLite rolls back the journal of a process that died in an operation when the file is opened. Without
// that the copy would have wrong data that pass every check.
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
    if (!isPresent(file)) {
        throw FileError(file, FileError::reason(ENOENT));
    }
    if (!hasHead(file)) {
        throw FileError(tr("\"%1\" is no data file.").arg(file));
    }
}
