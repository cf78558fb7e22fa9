#include "system/Shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

void DesktopShell::openVendorPage(const QString& pathAndQuery)
{
    QDesktopServices::openUrl(QUrl(QLatin1String(VendorAddress) + pathAndQuery));
}

void DesktopShell::openWebPage(const QString& address)
{
    const QUrl url(address, QUrl::StrictMode);
    if (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http")) {
        QDesktopServices::openUrl(url);
    }
}

QStringList commandOf(const QString& file)
{
    if (QFileInfo::exists(file)) {
        return {QFileInfo(file).absoluteFilePath()};
    }
    return QProcess::splitCommand(file);
}

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
