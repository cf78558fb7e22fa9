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
