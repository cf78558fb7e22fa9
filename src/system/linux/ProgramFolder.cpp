#include "system/ProgramFolder.h"

#include <QDir>

namespace
{

/// An XDG base directory. A relative path in the environment does not count.
QString baseFolder(const char* variable, const QString& inHome)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QDir::homePath() + u'/' + inHome;
}

} // namespace

QString userDataFolder()
{
    return baseFolder("XDG_DATA_HOME", QStringLiteral(".local/share"));
}

QString userCacheFolder()
{
    return baseFolder("XDG_CACHE_HOME", QStringLiteral(".cache"));
}

QString userStateFolder()
{
    return pathIn(baseFolder("XDG_STATE_HOME", QStringLiteral(".local/state")), QStringLiteral("ambertask"));
}

QString executableIn(const QString& programFolder)
{
    return pathIn(programFolder, QLatin1String(ProductName));
}
