#pragma once

#include <QImage>
#include <QString>

/// Small renditions of pictures, kept between runs in a private folder of the user's cache. Its content is
/// untrusted; none of it is needed and no failure is reported.
class PictureCache
{
public:
    /// How many pictures `tidy` leaves.
    static constexpr int MostPictures = 500;

    explicit PictureCache(QString folder = usersFolder());

    static QString usersFolder();
    /// Names the present content of the picture file at `path`: another size or time gives another key.
    static QString keyOf(const QString& path);

    /// Null when there is no rendition of that key or it is damaged.
    QImage load(const QString& key) const;
    void store(const QString& key, const QImage& picture) const;
    void remove(const QString& key) const;
    /// Removes the oldest renditions when there are too many.
    void tidy() const;

private:
    QString fileOf(const QString& key) const;

    QString m_folder;
};
