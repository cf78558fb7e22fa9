#include "system/Installation.h"

#include <QFile>

QString runningExecutable()
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}
