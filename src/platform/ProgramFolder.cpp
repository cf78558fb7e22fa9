#include "platform/ProgramFolder.h"

#include "platform/FileReplace.h"
#include "platform/Installation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

/// A base folder of the platform. Relative paths in the environment do not count.
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

QString programFolderOf(const Installation& installation, const QString& userData)
{
    return installation.programFolder.isEmpty() ? pathIn(userData, QLatin1String(ProductName))
                                                : installation.programFolder;
}

QString pathIn(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

bool noteFirstStart()
{
    const QString folder =
        pathIn(baseFolder("XDG_STATE_HOME", QStringLiteral(".local/state")), QStringLiteral("ambertask"));
    QFile marker(folder + QStringLiteral("/started"));
    // Noted before anything is registered: a machine that cannot keep the note is not registered at every
    // start.
    try {
        makeFolder(folder);
    } catch (const FileError&) {
        return false;
    }
    return marker.open(QIODevice::WriteOnly | QIODevice::NewOnly, PrivateFile);
}
