#pragma once

// The headers of Windows, without the macros that clash with names of others.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif

#include <QString>
#include <memory>
#include <string>
#include <system_error>
#include <windows.h>

/// `path` as the system takes it: absolute, with backslashes, and with the prefix of long paths where the
/// system would refuse it without.
std::wstring nativePath(const QString& path);

/// The error `code` of the system.
inline std::error_code systemError(DWORD code = GetLastError())
{
    return {static_cast<int>(code), std::system_category()};
}

struct CloseSystemHandle {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
/// A handle of the system that is closed with its owner.
using SystemHandle = std::unique_ptr<void, CloseSystemHandle>;

/// Opens what exists at `path`, a file or a folder, as CreateFileW does; others may do with it what they
/// like. Null with the reason in GetLastError().
SystemHandle openExisting(const QString& path, DWORD access, DWORD sharing);
inline constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
