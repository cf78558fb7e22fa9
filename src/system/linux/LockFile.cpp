#include "system/LockFile.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

LockFile::~LockFile()
{
    if (m_handle >= 0) {
        ::unlink(QFile::encodeName(m_path).constData());
        ::close(static_cast<int>(m_handle));
    }
}

bool LockFile::settle(bool waits)
{
    const QByteArray name = QFile::encodeName(m_path);
    constexpr mode_t Private = S_IRUSR | S_IWUSR;
    // Without O_NONBLOCK a pipe of that name would block.
    const int handle =
        ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, Private);
    if (handle < 0) {
        m_error = errno;
        return true;
    }
    struct stat own = {};
    struct stat present = {};
    m_isNoFile = ::fstat(handle, &own) == 0 && !S_ISREG(own.st_mode);
    if (!m_isNoFile) {
        ::fchmod(handle, Private);
        if (::flock(handle, waits ? LOCK_EX : LOCK_EX | LOCK_NB) != 0) {
            m_isHeldElsewhere = errno == EWOULDBLOCK;
            m_error = m_isHeldElsewhere ? 0 : errno;
        } else if (::stat(name.constData(), &present) != 0 && errno != ENOENT) {
            m_error = errno;
        } else if (present.st_ino == own.st_ino && present.st_dev == own.st_dev) {
            m_handle = handle;
            return true;
        } else {
            // The previous holder may have removed the file between our open() and flock(): try again.
            ::close(handle);
            return false;
        }
    }
    ::close(handle);
    return true;
}
