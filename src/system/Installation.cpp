#include "system/Installation.h"

#include "system/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#elif defined(Q_OS_MACOS)
#include <climits>
#include <mach-o/dyld.h>
#endif

namespace
{

QString runningExecutable()
{
#ifdef Q_OS_WIN
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return QString::fromWCharArray(path, static_cast<int>(length));
#elif defined(Q_OS_MACOS)
    char path[PATH_MAX];
    uint32_t size = sizeof(path);
    return _NSGetExecutablePath(path, &size) == 0 ? QFileInfo(QFile::decodeName(path)).canonicalFilePath()
                                                  : QString();
#else
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
#endif
}

} // namespace

Installation installationOf(const QString& executable)
{
    const QDir folder = QFileInfo(executable).absoluteDir();
#ifdef AMBERTASK_BIN_FOLDER
    // The name of the folder counts as well: a program folder may happen to lie beside a folder "share".
    const QString files = QDir::cleanPath(folder.filePath(QStringLiteral(AMBERTASK_SHIPPED_FROM_BIN)));
    if (folder.dirName() == QLatin1String(AMBERTASK_BIN_FOLDER) && QFileInfo(files).isDir()) {
        const QString prefix = QDir::cleanPath(folder.filePath(QStringLiteral(AMBERTASK_PREFIX_FROM_BIN)));
        const bool holdsData = QFileInfo(pathIn(prefix, QLatin1String(DataFileName))).isFile();
        return {executable, QDir::cleanPath(folder.filePath(QStringLiteral(AMBERTASK_MODULES_FROM_BIN))),
            files, holdsData ? prefix : QString()};
    }
#endif
    return {executable, folder.path(), QString(), folder.path()};
}

Installation runningInstallation()
{
    return installationOf(runningExecutable());
}
