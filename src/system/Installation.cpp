#include "system/Installation.h"

#include "system/ProgramFolder.h"

#include <QDir>
#include <QFileInfo>

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
