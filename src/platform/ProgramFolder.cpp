#include "platform/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <windows.h>
#elif defined(Q_OS_MACOS)
#include <climits>
#include <mach-o/dyld.h>
#endif

QString findProgramFolder()
{
#ifdef Q_OS_WIN
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const QString executable = QString::fromWCharArray(path, static_cast<int>(length));
#elif defined(Q_OS_MACOS)
    char path[PATH_MAX];
    uint32_t size = sizeof(path);
    const QString executable = _NSGetExecutablePath(path, &size) == 0
        ? QFileInfo(QFile::decodeName(path)).canonicalFilePath()
        : QString();
#else
    const QString executable = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
#endif
    return QFileInfo(executable).absolutePath();
}

QString pathIn(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool noteFirstStart()
{
    // The platform's state folder; Qt 6.4 has no name for it.
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state)) {
        state = QDir::homePath() + QStringLiteral("/.local/state");
    }
    const QString folder = state + QStringLiteral("/ambertask");
    QFile marker(folder + QStringLiteral("/started"));
    // Noted before anything is registered: a machine that cannot keep the note is not registered at every
    // start.
    return QDir().mkpath(folder) && marker.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}
