#pragma once

#include <QCoreApplication>
#include <QString>

class Progress;
struct DatabaseEngine;

/// What a restore has brought.
struct RestoredData {
    qint64 tasks = 0; ///< how many the file holds
    QString replaced; ///< the file beside the data file that holds what was there; empty when nothing was
};

/// Copies of the data file: backups, and the way back from one. No connection to the data file may be open
/// meanwhile. All operations throw RuntimeError, or what `progress` throws, and then the data
/// file and the backups are as they were.
class DataFileCopies
{
    Q_DECLARE_TR_FUNCTIONS(DataFileCopies)

public:
    /// `engine` outlives this object.
    explicit DataFileCopies(const DatabaseEngine& engine);

    /// Copies the data file, byte for byte, to `file`, over a file of that name. At the return the copy is on
    /// the disk. A data file in write-ahead mode is turned back first, or, where somebody has it open, gets
    /// all that lies beside it.
    void backUpTo(const QString& file, Progress* progress = nullptr) const;
    /// Replaces the data file by `file`, which has to be a sound data file of this program. What was replaced
    /// stays beside it as data.dat.before-restore, with the journal of an operation that died in it, if any;
    /// `file` becomes private to its owner, where that can be. A copy in write-ahead mode is turned to
    /// rollback-journal mode, in which the data file is kept; any other is restored byte for byte.
    RestoredData restoreFrom(const QString& file, Progress* progress = nullptr) const;

    /// Turns a data file that another program has left in write-ahead mode back to rollback-journal mode: in
    /// the other, changes lie in a second file, which a copy of the data file alone would miss. Where that
    /// cannot be, because somebody has it open or it may not be written, it stays as it is and nothing is
    /// said.
    void leaveWriteAheadMode() const;
    /// Takes away what others than the owner may do with the data file and with what lies beside it. Where
    /// that cannot be, all stays as it is and nothing is said.
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
