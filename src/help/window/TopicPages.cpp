#include "help/window/TopicPages.h"

#include "help/window/MissingPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>
#include <algorithm>

namespace
{

constexpr qreal TextPoints = 10;
constexpr qreal PointsPerInch = 96; ///< in which pictures are measured
constexpr qreal InchesPerMetre = 1 / 0.0254;

/// A device with the resolution of the pages.
QImage unitDevice()
{
    QImage device(1, 1, QImage::Format_RGB32);
    device.setDotsPerMeterX(qRound(UnitsPerInch * InchesPerMetre));
    device.setDotsPerMeterY(qRound(UnitsPerInch * InchesPerMetre));
    return device;
}

struct PartPlace {
    int begin;
    int end;
    QTextCharFormat format;
};

/// The parts of a document that share a format.
std::vector<PartPlace> partsOf(const QTextDocument& document)
{
    std::vector<PartPlace> parts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            parts.push_back(
                {fragment.position(), fragment.position() + fragment.length(), fragment.charFormat()});
        }
    }
    return parts;
}

/// The picture of that name, or noPicture(): Qt would look for a null image on the disk.
QImage pictureOf(const QTextDocument& document, const QString& name)
{
    const auto picture = document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    return picture.isNull() ? noPicture() : picture;
}

/// The size that a picture asks for, scaled down to fit into `largest`.
QSizeF sizeOf(const QTextImageFormat& format, const QImage& picture, QSizeF largest)
{
    QSizeF size(format.width() > 0 ? format.width() : picture.width(),
        format.height() > 0 ? format.height() : picture.height());
    if (size.width() > largest.width() || size.height() > largest.height()) {
        size.scale(largest, Qt::KeepAspectRatio);
    }
    return size;
}

/// A range of heights that should stay on one page.
struct Strip {
    qreal top;
    qreal bottom;
};

void addLines(const QTextBlock& block, std::vector<Strip>& strips)
{
    const qreal top = block.layout()->position().y();
    for (int number = 0; number < block.layout()->lineCount(); ++number) {
        const QTextLine line = block.layout()->lineAt(number);
        strips.push_back({top + line.y(), top + line.y() + line.height()});
    }
}

void addRows(const QTextTable& table, std::vector<Strip>& strips)
{
    const QAbstractTextDocumentLayout& layout = *table.document()->documentLayout();
    for (int row = 0; row < table.rows(); ++row) {
        QRectF all;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            all |= layout.blockBoundingRect(cell.firstCursorPosition().block());
            all |= layout.blockBoundingRect(cell.lastCursorPosition().block());
        }
        strips.push_back({all.top(), all.bottom()});
    }
}

void addStrips(const QTextFrame& frame, std::vector<Strip>& strips)
{
    for (auto part = frame.begin(); part != frame.end(); ++part) {
        if (const auto* table = qobject_cast<const QTextTable*>(part.currentFrame())) {
            addRows(*table, strips);
        } else if (part.currentFrame() != nullptr) {
            addStrips(*part.currentFrame(), strips);
        } else {
            addLines(part.currentBlock(), strips);
        }
    }
}

/// From top to bottom.
std::vector<Strip> stripsOf(const QTextDocument& document)
{
    std::vector<Strip> strips;
    addStrips(*document.rootFrame(), strips);
    std::sort(strips.begin(), strips.end(),
        [](const Strip& left, const Strip& right) { return left.top < right.top; });
    return strips;
}

/// The last position between `first` and `limit` that cuts no strip; `limit` when there is none.
qreal lastCut(const std::vector<Strip>& strips, qreal first, qreal limit)
{
    qreal cut = limit;
    for (auto strip = strips.rbegin(); strip != strips.rend(); ++strip) {
        if (strip->top < cut && strip->bottom > cut) {
            cut = strip->top;
        }
    }
    return cut > first ? cut : limit;
}

} // namespace

TopicPages::TopicPages(const QTextDocument& topic, QSizeF area)
    : m_area(area), m_device(unitDevice()), m_document(topic.clone())
{
    copyPictures(topic);
    dress();
    m_document->documentLayout()->setPaintDevice(&m_device);
    m_document->setDocumentMargin(0);
    m_document->setTextWidth(area.width());
    findPageStarts();
}

TopicPages::~TopicPages() = default;

/// All of them: Qt would look on the disk for one that the document does not have.
void TopicPages::copyPictures(const QTextDocument& topic)
{
    for (const PartPlace& part : partsOf(topic)) {
        if (part.format.isImageFormat()) {
            const QString name = part.format.toImageFormat().name();
            m_document->addResource(QTextDocument::ImageResource, QUrl(name), pictureOf(topic, name));
        }
    }
}

/// Makes links black and sizes the pictures: their pixels are 1/96 inch, and none is larger than the page.
void TopicPages::dress()
{
    QFont font(QGuiApplication::font().family());
    font.setPointSizeF(TextPoints);
    m_document->setDefaultFont(font);
    const QSizeF largest = m_area * PointsPerInch / UnitsPerInch;
    // The document takes sizes in pixels of the screen.
    const qreal screen = QImage(1, 1, QImage::Format_RGB32).logicalDpiX() / PointsPerInch;
    QTextCursor cursor(m_document.get());
    for (const PartPlace& part : partsOf(*m_document)) {
        QTextCharFormat format = part.format;
        format.setForeground(Qt::black);
        if (format.isImageFormat()) {
            QTextImageFormat image = format.toImageFormat();
            const QSizeF size = sizeOf(image, pictureOf(*m_document, image.name()), largest) * screen;
            image.setWidth(size.width());
            image.setHeight(size.height());
            format = image;
        }
        cursor.setPosition(part.begin);
        cursor.setPosition(part.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

void TopicPages::findPageStarts()
{
    const std::vector<Strip> strips = stripsOf(*m_document);
    const qreal end = m_document->size().height();
    m_cuts.push_back(0);
    while (m_cuts.back() + m_area.height() < end) {
        m_cuts.push_back(lastCut(strips, m_cuts.back(), m_cuts.back() + m_area.height()));
    }
    m_cuts.push_back(end);
}

int TopicPages::pageCount() const
{
    return static_cast<int>(m_cuts.size()) - 1;
}

void TopicPages::paintPage(QPainter& painter, int page) const
{
    const auto number = static_cast<std::size_t>(page);
    const QRectF strip(QPointF(0, m_cuts[number]), QPointF(m_area.width(), m_cuts[number + 1]));
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = strip;
    painter.save();
    painter.translate(0, -strip.top());
    painter.setClipRect(strip);
    m_document->documentLayout()->draw(&painter, context);
    painter.restore();
}
