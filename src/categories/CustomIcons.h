#pragma once

#include "categories/PictureCache.h"

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
    /// The same without decoding: a null icon for a picture that has to be read first. Throws RuntimeError
    /// when it is missing or the name is no plain file name.
    QIcon find(const QString& name) const;
    /// The picture that was read from the file at `path`, which was that of `key` before.
    QIcon keep(const QString& path, const QString& key, const QImage& picture) const;
    /// Where the picture of that name lies. Throws RuntimeError when the name is no plain file name.
    QString pathOf(const QString& name) const;
    /// The picture in any file, never null. Throws RuntimeError that names the file.
    static QIcon loadFile(const QString& path);
    /// Copies `source` unchanged into the folder under that name, over what has the name already. `picture`
    /// is that of `source`, as it was when it had the key `sourceKey` (see PictureCache). Throws
    /// RuntimeError.
    void store(
        const QString& source, const QString& name, const QIcon& picture, const QString& sourceKey) const;
    /// Forgets the oldest renditions where there are too many.
    void tidy() const { m_renditions.tidy(); }

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

    QIcon remember(const QString& path, const Stamp& stamp, const QIcon& icon) const;

    QString m_folder;
    PictureCache m_renditions;
    /// By path; the cost is the bytes of the pixels.
    mutable QCache<QString, Decoded> m_decoded;
};
