#pragma once

#include <QString>
#include <memory>

class LockFile;

/// The guard against two copies of the program on one program folder. Held until released or until the
/// process ends, however it ends. It is a lock that only the owner of the folder can take: on a private file
/// beside data.dat, which goes with the guard; in a folder that takes no new file, being read-only or full,
/// on data.dat itself. (Once a full one has room again, a second copy does not see that.)
class SingleInstance
{
public:
    explicit SingleInstance(const QString& programFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when another copy holds the guard.
    bool otherCopyRuns() const { return m_otherCopyRuns; }
    /// Why the guard cannot be had although no other copy runs, for the user; empty when it is held, and
    /// where there is no program folder.
    QString failure() const;
    /// Gives the guard up.
    void release();

private:
    std::unique_ptr<LockFile> m_lock;
    qintptr m_handle = -1;
    bool m_otherCopyRuns = false;
};
