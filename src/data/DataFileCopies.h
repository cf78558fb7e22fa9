#pragma once

#include <QCoreApplication>
#include <QString>

class Progress;
struct DatabaseEngine;

/// The result of a restore.
struct RestoredData {
    qint64 tasks = 0; ///< in the file
    QString replaced; ///< the file beside the data file with the previous data; empty for none
    QString noCopy; ///< why no copy of the previous data was kept (KeptCopies); empty for no reason to tell
};

/// Backups of the data file and restores. No connection to the data file may be open meanwhile. All
/// operations throw RuntimeError, or what `progress` throws, and then data file and backups are as they
/// were.
class DataFileCopies
{
    Q_DECLARE_TR_FUNCTIONS(DataFileCopies)

public:
    /// `engine` outlives this object.
    explicit DataFileCopies(const DatabaseEngine& engine);

    /// Copies the data file, byte for byte, to `file`, replacing a file of that name; the copy is on the
    /// disk on return. A data file in write-ahead mode is turned back before, or, if another process has it
    /// open, everything beside it is moved into it.
    void backUpTo(const QString& file, Progress* progress = nullptr) const;
    /// Replaces the data file by `file`, which must be a sound data file of this program. The previous file
    /// stays beside it as data.dat.before-restore, together with the journal of an interrupted operation, and
    /// a copy of it is kept if that is possible; `file` becomes private to its owner, where possible. A copy
    /// in write-ahead mode is turned to rollback-journal mode, one of an earlier version is upgraded; any
    /// other is restored byte for byte.
    RestoredData restoreFrom(const QString& file, Progress* progress = nullptr) const;

    /// Upgrades a data file of an earlier version, and gives its tasks new ids before 16 bits run out. A copy
    /// of the previous file stays beside it as data.dat.before-upgrade, and another is kept if that is
    /// possible. Silently leaves the file as it is,
    /// and usable, when it cannot be upgraded or `progress` cancels. Throws LaterDataFileError only.
    void bringUp(Progress* progress = nullptr) const;
    /// Turns a data file that another program has left in write-ahead mode back to rollback-journal mode:
    /// otherwise recent changes are in a second file, which a copy of the data file would miss. Silently
    /// leaves it as it is when another process has it open or it cannot be written.
    void leaveWriteAheadMode() const;
    /// Removes the permissions of others on the data file and the files that belong to it; silently leaves
    /// what cannot be changed.
    void keepPrivate() const;

private:
    static void keepReplaced(const QString& place, const QString& folder, Progress* progress);
    static void putBackEarlier(const QString& place, const QString& folder);
    void settle() const;
    void settleIfSound() const;
    void refuseForeignFile(const QString& file) const;
    void refuseOpenOperation(const QString& file) const;

    const DatabaseEngine* m_engine;
    QString m_dataFile;
};
