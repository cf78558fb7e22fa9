#pragma once

#include <QString>

/// A lock between processes, on a private file that is made for the lock and removed with it. Only its
/// owner can open the file, so nobody else can take the lock. When a process dies the system drops its
/// lock; the empty file stays for the next one. Started programs do not inherit the lock.
class LockFile
{
public:
    enum class IfHeld { GiveUp, Wait };

    LockFile(const QString& path, IfHeld ifHeld);
    /// Removes the file.
    ~LockFile();
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    bool isHeld() const { return m_handle >= 0; }
    bool isHeldElsewhere() const { return m_isHeldElsewhere; }
    /// The system's error number when the file could not be opened or locked, otherwise 0. See `failure`.
    int error() const { return m_error; }
    /// Why there is no lock, as a text for the user; empty when it is held by this or another process.
    QString failure() const;

private:
    /// Tries to take the lock, or notes why not. False when that is to be tried again.
    bool settle(bool waits);

    QString m_path;
    qintptr m_handle = -1;
    int m_error = 0;
    bool m_isNoFile = false;
    bool m_isHeldElsewhere = false;
};
