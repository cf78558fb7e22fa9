#include "system/ProgramFiles.h"

#include "system/ProgramFolder.h"

#include <QFileInfo>

ProgramFiles::ProgramFiles(const QString& programFolder, const QString& shippedFolder)
    : m_programFolder(programFolder), m_shippedFolder(shippedFolder)
{
}

QString ProgramFiles::find(const QString& name) const
{
    const QString found = own(name);
    return m_shippedFolder.isEmpty() || QFileInfo::exists(found) ? found : shipped(name);
}

QStringList ProgramFiles::folders(const QString& name) const
{
    return m_shippedFolder.isEmpty() ? QStringList{own(name)} : QStringList{own(name), shipped(name)};
}

QString ProgramFiles::own(const QString& name) const
{
    return pathIn(m_programFolder, name);
}

QString ProgramFiles::shipped(const QString& name) const
{
    return pathIn(m_shippedFolder.isEmpty() ? m_programFolder : m_shippedFolder, name);
}

QString ProgramFiles::sound(const QString& path) const
{
    const QString name = path.section(u'/', -2);
    if (!name.startsWith(QLatin1String("sounds/"))) {
        return path;
    }
    // First the file that we ship or keep: `path` may be on a disk that does not answer.
    const QString found = find(name);
    return QFileInfo::exists(found) && !QFileInfo::exists(path) ? found : path;
}
