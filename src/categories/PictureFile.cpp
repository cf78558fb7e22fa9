#include "categories/PictureFile.h"

#include "categories/JpegWalk.h"
#include "system/RuntimeError.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

namespace
{

constexpr qint64 MaximumBytes = 64LL * 1024 * 1024;
constexpr int MaximumEdge = 4096;
/// For a JPEG that is scaled down while it is read: whole photographs, of which only an eighth of each edge
/// is ever in memory.
constexpr int MaximumPhotographEdge = 12000;
/// Each scan of a progressive JPEG passes over the whole picture, however few bytes it has: thousands of
/// them would keep the program busy for hours. Encoders write about ten.
constexpr int MaximumJpegScans = 64;

QByteArray formatOf(QByteArrayView bytes)
{
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a")) {
        return QByteArrayLiteral("gif");
    }
    if (bytes.startsWith("\xFF\xD8\xFF")) {
        return QByteArrayLiteral("jpeg");
    }
    if (bytes.startsWith("\x89PNG\r\n\x1A\n")) {
        return QByteArrayLiteral("png");
    }
    return {};
}

/// Walks a GIF from block to block, to learn whether its first picture is complete.
class GifWalk
{
public:
    explicit GifWalk(QByteArrayView bytes) : m_bytes(bytes) { }

    bool firstPictureIsComplete()
    {
        constexpr qsizetype signature = 6;
        constexpr qsizetype screenFlags = 10;
        constexpr qsizetype screenDescriptor = 7;
        m_position = signature + screenDescriptor;
        if (m_position > m_bytes.size()) {
            return false;
        }
        skipColourTable(at(screenFlags));
        for (;;) {
            const int block = next();
            if (block == ImageDescriptor) {
                constexpr qsizetype placeAndSize = 8;
                m_position += placeAndSize;
                skipColourTable(next());
                next(); // the code size of what follows
                return skipSubBlocks();
            }
            if (block != Extension) {
                return false;
            }
            next(); // the extension's label
            if (!skipSubBlocks()) {
                return false;
            }
        }
    }

private:
    static constexpr int Extension = 0x21;
    static constexpr int ImageDescriptor = 0x2C;
    static constexpr int PastEnd = -1;

    int at(qsizetype position) const
    {
        return position < m_bytes.size() ? static_cast<unsigned char>(m_bytes[position]) : PastEnd;
    }
    int next() { return at(m_position++); }

    void skipColourTable(int flags)
    {
        if (flags != PastEnd && (flags & 0x80) != 0) {
            m_position += qsizetype(3) << ((flags & 0x07) + 1);
        }
    }

    bool skipSubBlocks()
    {
        int length = next();
        while (length > 0) {
            m_position += length;
            length = next();
        }
        return length == 0;
    }

    QByteArrayView m_bytes;
    qsizetype m_position = 0;
};

int maximumEdge(const QByteArray& bytes, const QByteArray& format)
{
    return format == "jpeg" && JpegWalk(bytes).isReadLineByLine() ? MaximumPhotographEdge : MaximumEdge;
}

/// The size of the whole canvas in the GIF's header. Qt's decoder tells none for a size that it finds too
/// large.
QSize gifScreen(const QByteArray& bytes)
{
    constexpr int width = 6;
    constexpr int height = 8;
    return {qFromLittleEndian<quint16>(bytes.constData() + width),
        qFromLittleEndian<quint16>(bytes.constData() + height)};
}

/// Checked here because the decoders fill a truncated picture with grey, and the JPEG decoder runs every
/// scan that it finds.
bool isComplete(const QByteArray& bytes, const QByteArray& format)
{
    if (format == "gif") {
        return GifWalk(bytes).firstPictureIsComplete();
    }
    if (format == "jpeg") {
        const JpegWalk walk(bytes);
        return walk.isComplete() && walk.scans() <= MaximumJpegScans;
    }
    return bytes.contains("IEND");
}

} // namespace

PictureFile::PictureFile(const QString& path) : m_path(path)
{
}

QImage PictureFile::load(int edge) const
{
    QByteArray bytes = read();
    const QByteArray format = formatOf(bytes);
    if (format.isEmpty()) {
        refuse(tr("it is neither a GIF nor a JPEG nor a PNG picture."));
    }
    if (!isComplete(bytes, format)) {
        refuse(tr("it is damaged or incomplete."));
    }

    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (format == "gif") {
        size = size.expandedTo(gifScreen(bytes));
    }
    const int most = maximumEdge(bytes, format);
    if (size.width() > most || size.height() > most) {
        refuse(tr("it is %1 x %2 pixels large, more than %3 x %3 are not accepted.")
                   .arg(size.width())
                   .arg(size.height())
                   .arg(most));
    }
    if (size.width() > edge || size.height() > edge) {
        reader.setScaledSize(size.scaled(edge, edge, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    QImage image;
    if (size.isEmpty() || !reader.read(&image)) {
        refuse(tr("it is damaged or incomplete."));
    }
    return image;
}

QByteArray PictureFile::read() const
{
    const QFileInfo info(m_path);
    if (!info.exists()) {
        refuse(tr("there is no such file."));
    }
    // A pipe or a device would block.
    if (!info.isFile()) {
        refuse(tr("it is not an ordinary file."));
    }
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.errorString());
    }
    if (file.size() > MaximumBytes) {
        refuse(tr("it is larger than %1 MiB.").arg(MaximumBytes / 1024 / 1024));
    }
    QByteArray bytes = file.read(MaximumBytes);
    if (file.error() != QFileDevice::NoError) {
        refuse(file.errorString());
    }
    return bytes;
}

QString PictureFile::refusal(const QString& path)
{
    return tr("The picture \"%1\" cannot be used: %2").arg(path, tr("it is damaged or incomplete."));
}

void PictureFile::refuse(const QString& reason) const
{
    throw RuntimeError(tr("The picture \"%1\" cannot be used: %2").arg(m_path, reason));
}
