#include "categories/CustomIcons.h"

#include "categories/PackedPicture.h"
#include "categories/PictureFile.h"
#include "system/FileReplace.h"
#include "system/RuntimeError.h"

#include <QFileInfo>
#include <QPixmap>
#include <algorithm>

namespace
{

constexpr qsizetype CostOfAPixel = 4;
/// Enough for some hundred pictures.
constexpr qsizetype MostBytes = qsizetype{16} * 1024 * 1024;

bool isPlainFileName(const QString& name)
{
    const auto isSeparator = [](QChar c) {
        return c == u'/' || c == u'\\' || c == u':' || c.isNull();
    };
    return !name.isEmpty() && std::none_of(name.begin(), name.end(), isSeparator);
}

} // namespace

CustomIcons::Stamp::Stamp(const QString& path)
{
    const QFileInfo file(path);
    size = file.size();
    modified = file.lastModified();
    changed = file.metadataChangeTime();
}

CustomIcons::CustomIcons(const QString& programFolder)
    : m_folder(programFolder + QLatin1String("/custom icons")), m_decoded(MostBytes)
{
}

QIcon CustomIcons::load(const QString& name) const
{
    if (QIcon found = find(name); !found.isNull()) {
        return found;
    }
    const QString path = pathOf(name);
    // Taken before reading: a change in between is noticed at the next call.
    const QString key = PictureCache::keyOf(path);
    return keep(path, key, PictureFile(path).load(RenditionEdge));
}

QIcon CustomIcons::find(const QString& name) const
{
    const QString path = pathOf(name);
    if (!QFileInfo(path).isFile()) {
        // It throws the reason.
        PictureFile(path).load(RenditionEdge);
    }
    const Stamp stamp(path);
    if (const Decoded* decoded = m_decoded.object(path); decoded != nullptr && decoded->stamp == stamp) {
        return decoded->icon;
    }
    m_decoded.remove(path);
    const QImage rendition = m_renditions.load(PictureCache::keyOf(path));
    return rendition.isNull() ? QIcon() : remember(path, stamp, QIcon(QPixmap::fromImage(rendition)));
}

QIcon CustomIcons::keep(const QString& path, const QString& key, const QImage& picture) const
{
    QIcon icon(QPixmap::fromImage(picture));
    const Stamp stamp(path);
    if (PictureCache::keyOf(path) != key) {
        return icon;
    }
    m_renditions.store(key, picture);
    return remember(path, stamp, icon);
}

QIcon CustomIcons::remember(const QString& path, const Stamp& stamp, const QIcon& icon) const
{
    const QSize size = icon.availableSizes().constFirst();
    m_decoded.insert(path, new Decoded{stamp, icon}, CostOfAPixel * size.width() * size.height());
    return icon;
}

QIcon CustomIcons::loadFile(const QString& path)
{
    return QIcon(QPixmap::fromImage(PictureFile(path).load(RenditionEdge)));
}

void CustomIcons::store(
    const QString& source, const QString& name, const QIcon& picture, const QString& sourceKey) const
{
    const QString destination = pathOf(name);
    makeFolder(m_folder);
    replaceByCopy(source, destination, PublicFile);
    // The file time is too coarse to notice a change right after.
    m_decoded.remove(destination);
    const QString key = PictureCache::keyOf(destination);
    m_renditions.remove(key);
    const QList<QSize> sizes = picture.availableSizes();
    if (!sizes.isEmpty() && PictureCache::keyOf(source) == sourceKey) {
        m_renditions.store(key, picture.pixmap(sizes.constFirst(), 1).toImage());
    }
}

QString CustomIcons::pathOf(const QString& name) const
{
    if (!isPlainFileName(name)) {
        throw RuntimeError(tr("The picture \"%1\" cannot be used: this is not a plain file name.").arg(name));
    }
    return m_folder + u'/' + name;
}
