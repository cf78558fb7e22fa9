#include "settings/SkinPictures.h"

#include "settings/SkinPainting.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <functional>

namespace
{

const QColor Warning(0xE3, 0x9A, 0x1C);
const QColor WarningInk(0x2B, 0x1A, 0x00);
const QColor Failure(0xC6, 0x28, 0x28);
/// About equally far from white and from black.
constexpr int FadedInk = 0x76;
/// The transparency that white gets.
constexpr double FadedWhite = 0.75;
constexpr double FullTone = 255;

/// Draws the icon anew for each size.
class DrawnIconEngine final : public QIconEngine
{
public:
    using Draw = std::function<void(QPainter&, const QRect&)>;

    explicit DrawnIconEngine(Draw draw) : m_draw(std::move(draw)) { }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        m_draw(*painter, rect);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new DrawnIconEngine(*this); }

private:
    Draw m_draw;
};

QColor paletteColor(QPalette::ColorRole role)
{
    return QGuiApplication::palette().color(role);
}

void writeSign(QPainter& painter, const QRectF& place, QChar sign, const QColor& ink)
{
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(1, qRound(place.height() * 0.66)));
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(place, Qt::AlignCenter, sign);
}

void drawDisc(QPainter& painter, const QRectF& place, const QColor& ground, QChar sign, const QColor& ink)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(place);
    writeSign(painter, place, sign, ink);
}

void drawWarning(QPainter& painter, const QRectF& place)
{
    const qreal corner = place.width() / 10;
    const QRectF inner = place.adjusted(corner, corner, -corner, -corner);
    painter.setPen(QPen(Warning, 2 * corner, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Warning);
    painter.drawPolygon(
        QPolygonF({QPointF(inner.center().x(), inner.top()), inner.bottomRight(), inner.bottomLeft()}));
    writeSign(painter, place.adjusted(0, place.height() * 0.16, 0, 0), u'!', WarningInk);
}

void drawMessagePicture(QPainter& painter, const QRect& rect, QStyle::StandardPixmap picture)
{
    const qreal side = qMin(rect.width(), rect.height());
    QRectF place(0, 0, side, side);
    place.moveCenter(QRectF(rect).center());
    place.adjust(side / 16, side / 16, -side / 16, -side / 16);
    switch (picture) {
    case QStyle::SP_MessageBoxWarning:
        drawWarning(painter, place);
        break;
    case QStyle::SP_MessageBoxCritical:
        drawDisc(painter, place, Failure, QChar(0x00D7), Qt::white);
        break;
    default:
        drawDisc(painter, place, paletteColor(QPalette::Highlight),
            picture == QStyle::SP_MessageBoxQuestion ? u'?' : u'i', paletteColor(QPalette::HighlightedText));
        break;
    }
}

} // namespace

QIcon headArrow(Qt::ArrowType direction)
{
    return QIcon(new DrawnIconEngine([direction](QPainter& painter, const QRect& rect) {
        paintArrow(painter, rect, direction, paletteColor(QPalette::HighlightedText));
    }));
}

bool isMessagePicture(QStyle::StandardPixmap picture)
{
    return picture == QStyle::SP_MessageBoxQuestion || picture == QStyle::SP_MessageBoxInformation
        || picture == QStyle::SP_MessageBoxWarning || picture == QStyle::SP_MessageBoxCritical;
}

QIcon messagePicture(QStyle::StandardPixmap picture)
{
    return QIcon(new DrawnIconEngine(
        [picture](QPainter& painter, const QRect& rect) { drawMessagePicture(painter, rect, picture); }));
}

QPixmap fadedPicture(const QPixmap& picture)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double light = qGray(line[x]) / FullTone;
            // Medium tones stay opaque; light letters and lines become transparent.
            const double shining = FadedWhite * light * light * light * light;
            const int alpha = qRound(qAlpha(line[x]) * (1 - shining));
            line[x] = qRgba(FadedInk, FadedInk, FadedInk, alpha);
        }
    }
    QPixmap faded = QPixmap::fromImage(image);
    faded.setDevicePixelRatio(picture.devicePixelRatio());
    return faded;
}
