#pragma once

#include "support/FileContent.h"

/// Where the build has put the shipped skins.
inline QString shippedSkins()
{
    return QStringLiteral(AMBERTASK_SHIPPED_SKINS);
}

/// Copies shipped skins into the folder `Skins` of a program folder.
inline void copySkins(const QString& programFolder, const QStringList& names)
{
    const QString folder = programFolder + QStringLiteral("/Skins");
    QVERIFY(QDir().mkpath(folder));
    for (const QString& name : names) {
        const QString file = QLatin1Char('/') + name + QStringLiteral(".skf");
        QVERIFY2(QFile::copy(shippedSkins() + file, folder + file), qPrintable(name));
    }
}

/// A small skin whose windows have that colour.
inline QByteArray plainSkin(const QByteArray& name, const QByteArray& window = "#336699")
{
    return "/*\n@name " + name + "\n@color window " + window + "\n@palette Window $window\n*/\n";
}
