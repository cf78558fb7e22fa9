#pragma once

#include "categories/PictureCache.h"

#include <QCache>
#include <QCoreApplication>
#include <QDateTime>
#include <QIcon>
#include <QString>

/// The folder "custom icons" with the pictures that users chose for categories. Its files, and the names in
/// the data file, are untrusted.
class CustomIcons
{
    Q_DECLARE_TR_FUNCTIONS(CustomIcons)

public:
    explicit CustomIcons(const QString& programFolder);

    /// The picture of that name, never null; decoded at the first call and after a change of its file.
    /// Throws RuntimeError that names it when it is missing or unreadable, or when the name is no plain
    /// file name.
    QIcon load(const QString& name) const;
    /// The same without decoding: a null icon for a picture that has to be read first. Throws RuntimeError
    /// when it is missing or the name is no plain file name.
    QIcon find(const QString& name) const;
    /// Keeps the picture that was read from the file at `path` when its key was `key`.
    QIcon keep(const QString& path, const QString& key, const QImage& picture) const;
    /// The path of the picture of that name. Throws RuntimeError when the name is no plain file name.
    QString pathOf(const QString& name) const;
    /// The picture in any file, never null. Throws RuntimeError that names the file.
    static QIcon loadFile(const QString& path);
    /// Copies `source` unchanged into the folder under that name, replacing a file of that name. `picture`
    /// is the content of `source` at the time when its key was `sourceKey` (see PictureCache). Throws
    /// RuntimeError.
    void store(
        const QString& source, const QString& name, const QIcon& picture, const QString& sourceKey) const;
    /// Removes the oldest renditions when there are too many.
    void tidy() const { m_renditions.tidy(); }

private:
    /// Tells whether a file has changed. Includes the time of the status change: a file that is copied or
    /// unpacked over another one may bring its own modification time.
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
    /// By path; the cost is the size of the pixels in bytes.
    mutable QCache<QString, Decoded> m_decoded;
};
