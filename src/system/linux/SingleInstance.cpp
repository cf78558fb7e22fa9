#include "system/SingleInstance.h"

#include "system/LockFile.h"
#include "system/ProgramFolder.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace
{

/// Errors of a folder that takes no new file; the program can still be used to read its data.
bool takesNoNewFile(int error)
{
    return error == EACCES || error == EROFS || error == EPERM || error == ENOSPC || error == EDQUOT;
}

} // namespace

SingleInstance::SingleInstance(const QString& programFolder)
{
    const QString data = pathIn(programFolder, QLatin1String(DataFileName));
    const QString lock = data + QStringLiteral("-lock");
    m_lock = std::make_unique<LockFile>(lock, LockFile::IfHeld::GiveUp);
    m_otherCopyRuns = m_lock->isHeldElsewhere();
    const int error = m_lock->error();
    if (error == ENOENT || error == ENOTDIR) {
        // There is no such folder; start-up reports that.
        m_lock.reset();
    } else if (takesNoNewFile(error) && !QFileInfo(lock).isSymLink() && !QFileInfo::exists(lock)) {
        m_lock.reset();
        m_handle = ::open(QFile::encodeName(data).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        m_otherCopyRuns = m_handle >= 0 && ::flock(static_cast<int>(m_handle), LOCK_EX | LOCK_NB) != 0
            && errno == EWOULDBLOCK;
    }
}

QString SingleInstance::failure() const
{
    return m_lock == nullptr ? QString() : m_lock->failure();
}

void SingleInstance::release()
{
    m_lock.reset();
    if (const auto handle = static_cast<int>(std::exchange(m_handle, -1)); handle >= 0) {
        ::close(handle);
    }
}

SingleInstance::~SingleInstance()
{
    release();
}
