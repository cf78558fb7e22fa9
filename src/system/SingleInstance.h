#pragma once

#include <QString>
#include <memory>

/// Guards against two copies of the program on one program folder, until it is released or the process ends
/// in whatever way. Only the owner of the folder can take it: it is a lock on a private file beside
/// data.dat, removed with the guard. (Whoever may read the folder could lock the folder itself; a lock on
/// data.dat would stay on the old file after a restore.) In a folder that takes no new file, because it is
/// read-only or full, it is a lock on data.dat, which is never restored there. (Once a full folder has room
/// again, a second copy does not notice that lock.) On Windows it is a named mutex of the user and the
/// folder, which only that user can take.
class SingleInstance
{
public:
    explicit SingleInstance(const QString& programFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when another copy holds the guard.
    bool otherCopyRuns() const { return m_otherCopyRuns; }
    /// Why there is no guard although no other copy runs, as a text for the user; empty when it is held or
    /// there is no program folder.
    QString failure() const;
    /// Gives the guard up.
    void release();

private:
    /// Null on Windows, where a function has that name, too.
    std::unique_ptr<class LockFile> m_lock;
    qintptr m_handle = -1; ///< of data.dat, or of the mutex
    quint32 m_mutexError = 0; ///< why there is no mutex, as Windows numbers it
    bool m_otherCopyRuns = false;
};
