#pragma once

#include <QString>
#include <QStringList>

/// Finds skins, sounds and help by their paths relative to the program folder: there first, then in the
/// folder of shipped files.
class ProgramFiles
{
public:
    /// Without `shippedFolder` everything is in the program folder.
    explicit ProgramFiles(const QString& programFolder, const QString& shippedFolder = {});

    /// The path of that file; where it does not exist, the path at which it would be shipped.
    QString find(const QString& name) const;
    /// The existing or possible folders of that name, the program folder's first.
    QStringList folders(const QString& name) const;
    /// The path in the program folder, where files that the user adds go.
    QString own(const QString& name) const;
    /// The path at which the file is shipped.
    QString shipped(const QString& name) const;
    /// The sound file at `path`. A missing one from a folder `sounds` is looked up by name: it may have
    /// been chosen under another prefix, by another user, or from the copies that earlier versions made.
    QString sound(const QString& path) const;

private:
    QString m_programFolder;
    QString m_shippedFolder;
};
