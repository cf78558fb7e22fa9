#include "system/FileError.h"

#include "system/windows/Api.h"

#include <array>

namespace
{

// Missing in the headers of mingw.
constexpr DWORD QuotaExceeded = 1295;

/// The errors for which there are words for whoever chose the file.
constexpr std::array<DWORD, 16> WordedErrors{ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL, QuotaExceeded,
    ERROR_FILE_TOO_LARGE, ERROR_ACCESS_DENIED, ERROR_PRIVILEGE_NOT_HELD, ERROR_WRITE_PROTECT,
    ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_BAD_NETPATH, ERROR_FILENAME_EXCED_RANGE,
    ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION, ERROR_NOT_READY, ERROR_IO_DEVICE, ERROR_DEV_NOT_EXIST};

} // namespace

QString FileError::reason(const std::error_code& error)
{
    if (error.category() == std::generic_category()) {
        return reason(error.value());
    }
    switch (error.value()) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case QuotaExceeded:
        return reason(ENOSPC);
    case ERROR_FILE_TOO_LARGE:
        return reason(EFBIG);
    case ERROR_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
        return reason(EACCES);
    case ERROR_WRITE_PROTECT:
        return reason(EROFS);
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
        return reason(ENOENT);
    case ERROR_FILENAME_EXCED_RANGE:
        return reason(ENAMETOOLONG);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return tr("another program is using it");
    case ERROR_NOT_READY:
    case ERROR_IO_DEVICE:
    case ERROR_DEV_NOT_EXIST:
        return reason(EIO);
    default:
        return qt_error_string(error.value());
    }
}

QString FileError::reason(const QFileDevice& file)
{
    // Qt keeps the system's sentence, not its number.
    for (const DWORD code : WordedErrors) {
        if (file.errorString() == qt_error_string(static_cast<int>(code))) {
            return reason(systemError(code));
        }
    }
    return file.errorString();
}
