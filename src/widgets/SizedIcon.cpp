#include "widgets/SizedIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <algorithm>
#include <memory>
#include <vector>

namespace
{

QPixmap readPixels(const SizedPicture& picture)
{
    constexpr qsizetype bytesAPixel = 4;
    const QSize size = picture.size;
    QFile file(picture.file);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    if (bytes.size() != bytesAPixel * size.width() * size.height()) {
        return {};
    }
    const QImage pixels(reinterpret_cast<const uchar*>(bytes.constData()), size.width(), size.height(),
        bytesAPixel * size.width(), QImage::Format_RGBA8888_Premultiplied);
    return QPixmap::fromImage(pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

/// What was read, and the last scaled version of it. Not in QPixmapCache, whose clean-up timer would wake
/// the idle program half a minute later.
struct Picture {
    QPixmap pixels;
    QPixmap scaled;

    QPixmap inSize(const QSize& size)
    {
        if (pixels.width() <= size.width() && pixels.height() <= size.height()) {
            return pixels;
        }
        const QSize fitting = pixels.size().scaled(size, Qt::KeepAspectRatio);
        if (scaled.size() != fitting) {
            scaled = pixels.scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        return scaled;
    }
};

class SizedIconEngine final : public QIconEngine
{
public:
    explicit SizedIconEngine(const QList<SizedPicture>& pictures) : m_shared(std::make_shared<Shared>())
    {
        m_shared->pictures = pictures;
        m_shared->read.resize(static_cast<std::size_t>(pictures.size()));
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPaintDevice* device = painter->device();
        const qreal scale = device == nullptr ? qGuiApp->devicePixelRatio() : device->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        Picture& picture = fitting(size);
        return mode == QIcon::Normal ? picture.inSize(size)
                                     : QIcon(picture.pixels).pixmap(size, 1, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const QSize largest = m_shared->pictures.constLast().size;
        const bool fits = largest.width() <= size.width() && largest.height() <= size.height();
        return fits ? largest : largest.scaled(size, Qt::KeepAspectRatio);
    }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        QList<QSize> sizes;
        for (const SizedPicture& picture : m_shared->pictures) {
            sizes.append(picture.size);
        }
        return sizes;
    }
    QIconEngine* clone() const override { return new SizedIconEngine(*this); }

private:
    struct Shared {
        QList<SizedPicture> pictures;
        std::vector<Picture> read;
    };

    /// The smallest picture that need not be enlarged, or the largest one.
    Picture& fitting(const QSize& size) const
    {
        const auto found = std::find_if(
            m_shared->pictures.cbegin(), m_shared->pictures.cend(), [&size](const SizedPicture& picture) {
                return picture.size.width() >= size.width() || picture.size.height() >= size.height();
            });
        const auto index = std::min(found - m_shared->pictures.cbegin(), m_shared->pictures.size() - 1);
        Picture& picture = m_shared->read[static_cast<std::size_t>(index)];
        if (picture.pixels.isNull()) {
            picture.pixels = readPixels(m_shared->pictures[index]);
        }
        return picture;
    }

    // Shared by all copies of an icon.
    std::shared_ptr<Shared> m_shared;
};

} // namespace

QIcon sizedIcon(const QList<SizedPicture>& pictures)
{
    return QIcon(new SizedIconEngine(pictures));
}
