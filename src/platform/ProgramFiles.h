#pragma once

#include <QString>
#include <QStringList>

/// Where skins, sounds and help are looked up by their paths in the program folder: there first, then where
/// they are shipped.
class ProgramFiles
{
public:
    /// Without `shippedFolder` all lies in the program folder.
    explicit ProgramFiles(const QString& programFolder, const QString& shippedFolder = {});

    /// The file of that name; where there is none, the path at which it would be shipped.
    QString find(const QString& name) const;
    /// The folders of that name in which something may lie, the program folder's first.
    QStringList folders(const QString& name) const;
    /// The path in the program folder: of what the user adds.
    QString own(const QString& name) const;
    /// The path at which it is shipped.
    QString shipped(const QString& name) const;
    /// The sound file of that path. One that is gone from a folder `sounds` is looked up: it was chosen under
    /// another prefix, by another user, or from the copies that earlier versions made.
    QString sound(const QString& path) const;

private:
    QString m_programFolder;
    QString m_shippedFolder;
};
