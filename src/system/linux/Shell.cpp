#include "system/Shell.h"

#include <QProcess>

namespace
{

bool startDetached(const QString& file)
{
    const QStringList command = commandOf(file);
    return !command.isEmpty() && QProcess::startDetached(command.first(), command.mid(1));
}

} // namespace

bool DesktopShell::startNormal(const QString& file)
{
    return startDetached(file);
}

bool DesktopShell::startMinimized(const QString& file)
{
    return startDetached(file);
}
