#include "platform/Shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

void DesktopShell::openVendorPage(const QString& pathAndQuery)
{
    QDesktopServices::openUrl(QUrl(QLatin1String(VendorAddress) + pathAndQuery));
}

QStringList commandOf(const QString& file)
{
    if (QFileInfo::exists(file)) {
        return {QFileInfo(file).absoluteFilePath()};
    }
    return QProcess::splitCommand(file);
}

bool DesktopShell::startMinimized(const QString& file)
{
    const QStringList command = commandOf(file);
    return !command.isEmpty() && QProcess::startDetached(command.first(), command.mid(1));
}
