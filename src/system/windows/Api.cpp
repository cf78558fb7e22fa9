#include "system/windows/Api.h"

#include <QDir>
#include <QFileInfo>

std::wstring nativePath(const QString& path)
{
    // SQLite appends the names of its companions to what it is given.
    constexpr qsizetype LongestPlain = MAX_PATH - 24;
    const QString absolute = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (absolute.size() < LongestPlain || absolute.startsWith(QLatin1String("\\\\?\\"))) {
        return absolute.toStdWString();
    }
    const bool isOnServer = absolute.startsWith(QLatin1String("\\\\"));
    return (
        isOnServer ? QStringLiteral("\\\\?\\UNC") + absolute.mid(1) : QStringLiteral("\\\\?\\") + absolute)
        .toStdWString();
}

SystemHandle openExisting(const QString& path, DWORD access, DWORD sharing)
{
    // Folders open with backup semantics only.
    const HANDLE handle = CreateFileW(nativePath(path).c_str(), access, sharing, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return SystemHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}
