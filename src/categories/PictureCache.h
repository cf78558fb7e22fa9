#pragma once

#include <QImage>
#include <QString>

/// Small renditions of pictures, kept between two runs in a private folder of the user's cache. What lies
/// there may come from anyone; none of it is needed, and no failure is told.
class PictureCache
{
public:
    /// What `tidy` leaves.
    static constexpr int MostPictures = 500;

    explicit PictureCache(QString folder = usersFolder());

    static QString usersFolder();
    /// Names the picture file at `path` as it is now: another size or age is another picture.
    static QString keyOf(const QString& path);

    /// Null when there is no rendition of that key, or it is damaged.
    QImage load(const QString& key) const;
    void store(const QString& key, const QImage& picture) const;
    void remove(const QString& key) const;
    /// Removes the oldest renditions where there are too many.
    void tidy() const;

private:
    QString fileOf(const QString& key) const;

    QString m_folder;
};
