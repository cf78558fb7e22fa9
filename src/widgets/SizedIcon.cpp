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

QSize sizeOf(const SizedPicture& picture, int height)
{
    return {height * picture.proportion, height};
}

QPixmap readPixels(const SizedPicture& picture, int height)
{
    constexpr qsizetype bytesAPixel = 4;
    const QSize size = sizeOf(picture, height);
    QFile file(QStringLiteral("%1/%2/%3.pixels").arg(picture.folder).arg(height).arg(picture.name));
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
    explicit SizedIconEngine(const SizedPicture& picture)
        : m_picture(picture), m_read(std::make_shared<std::vector<Picture>>(picture.heights.size()))
    {
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
        const QSize largest = sizeOf(m_picture, m_picture.heights.back());
        const bool fits = largest.width() <= size.width() && largest.height() <= size.height();
        return fits ? largest : largest.scaled(size, Qt::KeepAspectRatio);
    }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        QList<QSize> sizes;
        for (const int height : m_picture.heights) {
            sizes.append(sizeOf(m_picture, height));
        }
        return sizes;
    }
    QIconEngine* clone() const override { return new SizedIconEngine(*this); }

private:
    /// The smallest picture that need not be enlarged, or the largest one.
    Picture& fitting(const QSize& size) const
    {
        const auto found =
            std::find_if(m_picture.heights.begin(), m_picture.heights.end(), [this, &size](int height) {
                const QSize offered = sizeOf(m_picture, height);
                return offered.width() >= size.width() || offered.height() >= size.height();
            });
        const auto index = std::min(
            static_cast<std::size_t>(found - m_picture.heights.begin()), m_picture.heights.size() - 1);
        Picture& picture = (*m_read)[index];
        if (picture.pixels.isNull()) {
            picture.pixels = readPixels(m_picture, m_picture.heights[index]);
        }
        return picture;
    }

    SizedPicture m_picture;
    std::shared_ptr<std::vector<Picture>> m_read; ///< for each height; shared by all copies of an icon
};

} // namespace

QIcon sizedIcon(const SizedPicture& picture)
{
    return QIcon(new SizedIconEngine(picture));
}
