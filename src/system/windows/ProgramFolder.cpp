#include "system/ProgramFolder.h"

#include "system/windows/Api.h"

#include <QDir>
#include <QFile>
#include <shlobj.h>

QString userDataFolder()
{
    PWSTR path = nullptr;
    const bool isKnown = SUCCEEDED(SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path));
    const QString folder = isKnown ? QString::fromWCharArray(path) : QDir::homePath();
    CoTaskMemFree(path);
    return QDir::fromNativeSeparators(folder);
}

QString userCacheFolder()
{
    return userDataFolder();
}

QString userStateFolder()
{
    return pathIn(userDataFolder(), QLatin1String(ProductName));
}

QString executableIn(const QString& programFolder)
{
    return QDir::toNativeSeparators(pathIn(programFolder, QLatin1String(ProductName)))
        + QStringLiteral(".exe");
}
