#pragma once

#include <QString>

/// The guard against two copies of the program on one program folder. Held until destroyed or until the
/// process ends, however it ends; leaves nothing on the disk.
class SingleInstance
{
public:
    explicit SingleInstance(const QString& programFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// True when another copy holds the guard.
    bool otherCopyRuns() const { return m_otherCopyRuns; }

private:
    qintptr m_handle = -1;
    bool m_otherCopyRuns = false;
};
