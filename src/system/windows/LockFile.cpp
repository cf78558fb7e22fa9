#include "system/LockFile.h"

#include "system/windows/OwnerOnly.h"

namespace
{

constexpr DWORD MillisecondsBetweenTries = 20;

} // namespace

LockFile::~LockFile()
{
    if (isHeld()) {
        // That also removes the file.
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    }
}

bool LockFile::settle(bool waits)
{
    const OwnerOnly security(OwnerOnly::Of::File);
    // Open for nobody else: that is the lock.
    const HANDLE handle = CreateFileW(nativePath(m_path).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
        security.attributes(), OPEN_ALWAYS,
        FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        m_handle = reinterpret_cast<qintptr>(handle);
        return true;
    }
    const DWORD error = GetLastError();
    m_isHeldElsewhere = error == ERROR_SHARING_VIOLATION;
    if (m_isHeldElsewhere && waits) {
        Sleep(MillisecondsBetweenTries);
        m_isHeldElsewhere = false;
        return false;
    }
    m_error = m_isHeldElsewhere ? 0 : static_cast<int>(error);
    return true;
}
