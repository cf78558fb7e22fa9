#pragma once

#include <QPixmap>
#include <QPixmapCache>

/// While it lives, QPixmapCache holds a pixmap that leaves no room for others.
class FullPixmapCache
{
public:
    FullPixmapCache()
    {
        QPixmap filling(64, 64);
        filling.fill(Qt::black);
        constexpr int SizeInKilobytes = 64 * 64 * 4 / 1024;
        QPixmapCache::clear();
        QPixmapCache::setCacheLimit(SizeInKilobytes);
        m_filling = QPixmapCache::insert(filling);
    }
    ~FullPixmapCache()
    {
        QPixmapCache::clear();
        QPixmapCache::setCacheLimit(m_limit);
    }
    FullPixmapCache(const FullPixmapCache&) = delete;
    FullPixmapCache& operator=(const FullPixmapCache&) = delete;

    /// Whether nothing else was put into the cache.
    bool isUntouched() const
    {
        QPixmap found;
        return QPixmapCache::find(m_filling, &found);
    }

private:
    int m_limit = QPixmapCache::cacheLimit();
    QPixmapCache::Key m_filling;
};
