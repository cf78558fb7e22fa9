#include "support/TestPictures.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QtEndian>
#include <stdexcept>

namespace
{

QByteArray encoded(QSize size, QColor colour, const char* format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) {
        throw std::runtime_error("no such picture can be written");
    }
    return buffer.data();
}

} // namespace

QByteArray jpegOf(QSize size, QColor colour)
{
    return encoded(size, colour, "jpg");
}

QByteArray progressiveJpegOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpg");
    writer.setProgressiveScanWrite(true);
    if (!writer.write(image)) {
        throw std::runtime_error("no such picture can be written");
    }
    return buffer.data();
}

QByteArray jpegClaiming(QSize size)
{
    QByteArray bytes = jpegOf(QSize(16, 16));
    constexpr int height = 5;
    constexpr int width = 7;
    const qsizetype frame = bytes.indexOf("\xFF\xC0");
    qToBigEndian(static_cast<quint16>(size.height()), bytes.data() + frame + height);
    qToBigEndian(static_cast<quint16>(size.width()), bytes.data() + frame + width);
    return bytes;
}

QByteArray pngOf(QSize size, QColor colour)
{
    return encoded(size, colour, "png");
}

QByteArray gifOf(QSize screen)
{
    const auto number = [](int value) {
        QByteArray bytes(2, '\0');
        qToLittleEndian(static_cast<quint16>(value), bytes.data());
        return bytes;
    };
    return QByteArrayLiteral("GIF89a") + number(screen.width())
        + number(screen.height())
        // a colour table of two: red and black
        + QByteArray::fromHex("800000"
                              "ff0000000000")
        // one pixel at the origin, its code and the end
        + QByteArray::fromHex("2c00000000"
                              "01000100"
                              "00"
                              "02"
                              "024401"
                              "00"
                              "3b");
}

QByteArray pngHeaderClaiming(QSize size)
{
    QByteArray bytes = pngOf(QSize(1, 1));
    constexpr int widthPosition = 16;
    constexpr int heightPosition = 20;
    constexpr int headerLength = 17;
    constexpr int checksumPosition = 29;
    qToBigEndian(static_cast<quint32>(size.width()), bytes.data() + widthPosition);
    qToBigEndian(static_cast<quint32>(size.height()), bytes.data() + heightPosition);
    // The checksum of the header, without which the decoder would not look at the size.
    quint32 checksum = 0xFFFFFFFFU;
    for (int i = 0; i < headerLength; ++i) {
        checksum ^= static_cast<unsigned char>(bytes[checksumPosition - headerLength + i]);
        for (int bit = 0; bit < 8; ++bit) {
            checksum = (checksum & 1U) != 0 ? (checksum >> 1U) ^ 0xEDB88320U : checksum >> 1U;
        }
    }
    qToBigEndian(~checksum, bytes.data() + checksumPosition);
    return bytes;
}

QString writeFile(const QString& folder, const QString& name, const QByteArray& bytes)
{
    QDir().mkpath(folder);
    const QString path = folder + QLatin1Char('/') + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("the test file cannot be written");
    }
    return path;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("the file cannot be read");
    }
    return file.readAll();
}
