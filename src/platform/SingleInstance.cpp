#include "platform/SingleInstance.h"

#ifdef Q_OS_WIN

#include <QCryptographicHash>
#include <QDir>
#include <windows.h>

SingleInstance::SingleInstance(const QString& programFolder)
{
    const QByteArray folder = QDir(programFolder).canonicalPath().toLower().toUtf8();
    const QString name = QStringLiteral("Local\\Ambertask-")
        + QString::fromLatin1(QCryptographicHash::hash(folder, QCryptographicHash::Sha1).toHex());
    const HANDLE mutex = CreateMutexW(nullptr, TRUE, reinterpret_cast<const wchar_t*>(name.utf16()));
    m_otherCopyRuns = mutex == nullptr || GetLastError() == ERROR_ALREADY_EXISTS;
    m_handle = reinterpret_cast<qintptr>(mutex);
}

SingleInstance::~SingleInstance()
{
    CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

#else

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

SingleInstance::SingleInstance(const QString& programFolder)
{
    // The lock is on the folder itself: no file to leave behind, and the system drops it when the process
    // dies. It must not pass on to the programs that reminders start.
    const int folder =
        ::open(QFile::encodeName(programFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0 && ::flock(folder, LOCK_EX | LOCK_NB) != 0) {
        m_otherCopyRuns = errno == EWOULDBLOCK;
    }
    m_handle = folder;
}

SingleInstance::~SingleInstance()
{
    if (m_handle >= 0) {
        ::close(static_cast<int>(m_handle));
    }
}

#endif
