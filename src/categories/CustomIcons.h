#pragma once

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QIcon>
#include <QString>

/// The folder "custom icons" with the pictures that users chose for their categories. What lies there, and
/// the names that the data file gives, may come from anyone.
class CustomIcons
{
    Q_DECLARE_TR_FUNCTIONS(CustomIcons)

public:
    explicit CustomIcons(const QString& programFolder);

    /// The picture of that name, never null; decoded at the first call and when its file has changed. Throws
    /// RuntimeError that names it when it is missing or unreadable, or when the name is no plain file name.
    QIcon load(const QString& name) const;
    /// The picture in any file, never null. Throws RuntimeError that names the file.
    static QIcon loadFile(const QString& path);
    /// Copies `source` unchanged into the folder under that name, over what has the name already. Throws
    /// RuntimeError.
    void store(const QString& source, const QString& name) const;

private:
    /// What tells a file from what it was: a file that is copied or unpacked over it can bring its own age,
    /// but not the moment at which that was done.
    struct Stamp {
        explicit Stamp(const QString& path);
        bool operator==(const Stamp& other) const = default;

        qint64 size = 0;
        QDateTime modified;
        QDateTime changed;
    };
    struct Decoded {
        Stamp stamp;
        QIcon icon;
    };

    QString pathOf(const QString& name) const;

    QString m_folder;
    /// By path; the cost is the bytes of the pixels.
    mutable QCache<QString, Decoded> m_decoded;
};
