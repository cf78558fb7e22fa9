#pragma once

#include <QCoreApplication>
#include <QIcon>
#include <QString>

/// The folder "custom icons" with the pictures that users chose for their categories. What lies there, and
/// the names that the data file gives, may come from anyone.
class CustomIcons
{
    Q_DECLARE_TR_FUNCTIONS(CustomIcons)

public:
    explicit CustomIcons(const QString& programFolder);

    /// The picture of that name, never null. Throws RuntimeError that names it when it is missing or
    /// unreadable, or when the name is no plain file name.
    QIcon load(const QString& name) const;
    /// The picture in any file, never null. Throws RuntimeError that names the file.
    static QIcon loadFile(const QString& path);
    /// Copies `source` unchanged into the folder under that name, over what has the name already. Throws
    /// RuntimeError.
    void store(const QString& source, const QString& name) const;

private:
    QString pathOf(const QString& name) const;

    QString m_folder;
};
