#include "system/FileAccess.h"

#include "system/FileError.h"
#include "system/windows/OwnerOnly.h"

#include <QFileInfo>
#include <aclapi.h>
#include <array>

namespace
{

/// Whether the file is on a disk that its owner takes to other machines, where they are another user.
bool isTakenAlong(const QString& path)
{
    std::array<wchar_t, MAX_PATH> volume{};
    return GetVolumePathNameW(nativePath(path).c_str(), volume.data(), static_cast<DWORD>(volume.size()))
        && GetDriveTypeW(volume.data()) == DRIVE_REMOVABLE;
}

bool isMissing(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME
        || error == ERROR_BAD_PATHNAME;
}

/// Another process that looks at every new file, for viruses or to index it, has it open for a moment.
bool mayBeFreeSoon(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
}

/// Whether a program has the file open and lets nobody replace it, which the system takes for a lack of
/// permission.
bool isHeldOpen(const QString& path)
{
    return openExisting(path, DELETE, ShareAll) == nullptr && GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace

bool createFile(QFile& file, QFileDevice::Permissions permissions)
{
    constexpr QIODevice::OpenMode Writing = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (permissions != PrivateFile || isTakenAlong(file.fileName())) {
        return file.open(Writing | QIODevice::NewOnly);
    }
    const OwnerOnly security(OwnerOnly::Of::File);
    const HANDLE made = CreateFileW(nativePath(file.fileName()).c_str(), GENERIC_WRITE, 0,
        security.attributes(), CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made == INVALID_HANDLE_VALUE) {
        // Fails for the same reason, and notes it.
        return file.open(Writing | QIODevice::NewOnly);
    }
    CloseHandle(made);
    return file.open(Writing | QIODevice::ExistingOnly);
}

bool keepToOwner(QFile& /*file*/)
{
    // It has been made so.
    return true;
}

std::error_code makePrivateFolder(const QString& path)
{
    const OwnerOnly security(OwnerOnly::Of::Folder);
    return CreateDirectoryW(nativePath(path).c_str(), isTakenAlong(path) ? nullptr : security.attributes())
        ? std::error_code()
        : systemError();
}

void makePrivate(const QString& path)
{
    const QFileInfo file(path);
    // What another user owns is that user's to share, and may be shared with this one.
    if (file.isSymLink() || !file.isFile() || isTakenAlong(path) || !isOwnedByCurrentUser(path)) {
        return;
    }
    const OwnerOnly security(OwnerOnly::Of::File);
    if (PACL list = security.list()) {
        std::wstring name = nativePath(path);
        SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT,
            DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, nullptr, nullptr, list, nullptr);
    }
}

void markUsed(const QFile& /*file*/)
{
    // An open file cannot be removed.
}

bool isAbandoned(const QString& path)
{
    return openExisting(path, DELETE, 0) != nullptr;
}

std::error_code flushToDisk(const QFile& file)
{
    // The flush is one of the file, through whatever handle.
    const SystemHandle handle = openExisting(file.fileName(), GENERIC_WRITE, ShareAll);
    return handle != nullptr && FlushFileBuffers(handle.get()) ? std::error_code() : systemError();
}

bool flushesFolders()
{
    // It is tried, and nobody says what it does.
    return false;
}

bool flushFolder(const QString& folder)
{
    const SystemHandle handle = openExisting(folder, GENERIC_WRITE, ShareAll);
    if (handle != nullptr && FlushFileBuffers(handle.get())) {
        return true;
    }
    // Renaming has written the entries through; this is for those that were made or removed, where the file
    // system can flush them.
    const DWORD error = GetLastError();
    return !isMissing(error) && error != ERROR_IO_DEVICE && error != ERROR_DISK_FULL;
}

void Writeback::follow(qint64 written)
{
    if (written - m_started >= Window) {
        flushToDisk(m_file);
        m_started += Window;
    }
}

std::error_code renameOver(const QString& file, const QString& target)
{
    constexpr int MostTries = 10;
    constexpr DWORD MillisecondsBetweenTries = 50;
    const std::wstring from = nativePath(file);
    const std::wstring to = nativePath(target);
    for (int i = 1;; ++i) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            return {};
        }
        const DWORD error = GetLastError();
        if (i == MostTries || !mayBeFreeSoon(error)) {
            return systemError(isHeldOpen(target) ? DWORD{ERROR_SHARING_VIOLATION} : error);
        }
        Sleep(MillisecondsBetweenTries);
    }
}

std::error_code linkAs(const QString& file, const QString& name)
{
    return CreateHardLinkW(nativePath(name).c_str(), nativePath(file).c_str(), nullptr) ? std::error_code()
                                                                                        : systemError();
}

bool isPresent(const QString& path)
{
    if (path.isEmpty()) {
        return false;
    }
    if (openExisting(path, 0, ShareAll) != nullptr) {
        return true;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION) {
        return true;
    }
    if (!isMissing(error)) {
        throw FileError(path, FileError::reason(systemError(error)));
    }
    return false;
}

bool isSameFile(const QString& left, const QString& right)
{
    const SystemHandle one = openExisting(left, 0, ShareAll);
    const SystemHandle other = openExisting(right, 0, ShareAll);
    BY_HANDLE_FILE_INFORMATION its{};
    BY_HANDLE_FILE_INFORMATION others{};
    return one != nullptr && other != nullptr && GetFileInformationByHandle(one.get(), &its)
        && GetFileInformationByHandle(other.get(), &others)
        && its.dwVolumeSerialNumber == others.dwVolumeSerialNumber
        && its.nFileIndexHigh == others.nFileIndexHigh && its.nFileIndexLow == others.nFileIndexLow;
}

QByteArray pathInC(const QString& path)
{
    return QString::fromStdWString(nativePath(path)).toUtf8();
}
