#include "system/SingleInstance.h"

#include "system/FileError.h"
#include "system/LockFile.h"
#include "system/windows/OwnerOnly.h"

#include <QCryptographicHash>
#include <QDir>
#include <utility>

namespace
{

QString mutexName(const QString& programFolder)
{
    const QString canonical = QDir(programFolder).canonicalPath();
    const QByteArray folder = (canonical.isEmpty() ? programFolder : canonical).toLower().toUtf8();
    // In all sessions of the user: a second one may be open on another screen.
    return QStringLiteral("Global\\Ambertask-%1-%2")
        .arg(currentUserSid(),
            QString::fromLatin1(QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex()));
}

} // namespace

SingleInstance::SingleInstance(const QString& programFolder)
{
    const std::wstring name = mutexName(programFolder).toStdWString();
    const OwnerOnly security(OwnerOnly::Of::Mutex);
    SystemHandle mutex(CreateMutexW(security.attributes(), FALSE, name.c_str()));
    DWORD error = GetLastError();
    if (mutex == nullptr && error == ERROR_ACCESS_DENIED) {
        // A copy that runs with the rights of an administrator can be seen, though not joined.
        mutex.reset(OpenMutexW(SYNCHRONIZE | READ_CONTROL, FALSE, name.c_str()));
        error = mutex == nullptr ? error : DWORD{ERROR_ALREADY_EXISTS};
    }
    const bool isPresent = mutex != nullptr && error == ERROR_ALREADY_EXISTS;
    // Anybody can make a mutex of that name; only a copy of this user's counts.
    m_otherCopyRuns = isPresent && isOwnedByCurrentUser(mutex.get());
    if (mutex == nullptr || (isPresent && !m_otherCopyRuns)) {
        m_mutexError = mutex == nullptr ? error : DWORD{ERROR_ACCESS_DENIED};
        return;
    }
    m_handle = reinterpret_cast<qintptr>(mutex.release());
}

SingleInstance::~SingleInstance()
{
    release();
}

QString SingleInstance::failure() const
{
    return m_mutexError == 0 ? QString() : FileError::reason(systemError(m_mutexError));
}

void SingleInstance::release()
{
    if (const qintptr handle = std::exchange(m_handle, -1); handle >= 0) {
        CloseHandle(reinterpret_cast<HANDLE>(handle));
    }
}
