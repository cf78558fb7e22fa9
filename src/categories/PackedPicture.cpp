#include "categories/PackedPicture.h"

#include <QtEndian>

namespace
{

constexpr QByteArrayView Mark("AMBERPIC1\0\0\0", 12);
constexpr qsizetype WidthPlace = 12;
constexpr qsizetype HeightPlace = 14;
constexpr qsizetype HeadSize = 16;
constexpr qsizetype BytesAPixel = 4;

} // namespace

QByteArray packedPicture(const QImage& picture)
{
    // In this format any bytes are a valid picture; with premultiplied colours they would not be.
    const QImage pixels = picture.convertToFormat(QImage::Format_RGBA8888);
    QByteArray bytes = Mark.toByteArray();
    bytes.resize(HeadSize);
    qToLittleEndian(static_cast<quint16>(pixels.width()), bytes.data() + WidthPlace);
    qToLittleEndian(static_cast<quint16>(pixels.height()), bytes.data() + HeightPlace);
    for (int y = 0; y < pixels.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(pixels.constScanLine(y)), BytesAPixel * pixels.width());
    }
    return bytes;
}

QImage unpackedPicture(const QByteArray& bytes)
{
    if (bytes.size() < HeadSize || !bytes.startsWith(Mark)) {
        return {};
    }
    const int width = qFromLittleEndian<quint16>(bytes.constData() + WidthPlace);
    const int height = qFromLittleEndian<quint16>(bytes.constData() + HeightPlace);
    if (width < 1 || height < 1 || width > RenditionEdge || height > RenditionEdge
        || bytes.size() != HeadSize + BytesAPixel * width * height) {
        return {};
    }
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()) + HeadSize, width, height,
        BytesAPixel * width, QImage::Format_RGBA8888)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
