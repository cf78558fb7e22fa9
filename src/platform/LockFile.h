#pragma once

#include <QString>

/// A lock between processes: on a private file that is made for it and is gone again with the lock. Nobody
/// but its owner can open the file, so nobody else can take the lock. The system drops the lock of a process
/// that dies; the file then stays, empty, for the next one. It does not pass on to started programs.
class LockFile
{
public:
    enum class IfHeld { GiveUp, Wait };

    LockFile(const QString& path, IfHeld ifHeld);
    /// Takes the file away.
    ~LockFile();
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    bool isHeld() const { return m_handle >= 0; }
    bool isHeldElsewhere() const { return m_isHeldElsewhere; }
    /// What the system said when the file could not be opened or locked; 0 otherwise. See `failure`.
    int error() const { return m_error; }
    /// Why there is no lock, for the user; empty when it is held, here or elsewhere.
    QString failure() const;

private:
    bool settle(bool waits);

    QString m_path;
    int m_handle = -1;
    int m_error = 0;
    bool m_isNoFile = false;
    bool m_isHeldElsewhere = false;
};
