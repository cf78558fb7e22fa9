#include "settings/SkinPainting.h"

#include "settings/SkinContrast.h"
#include "widgets/LetterScale.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>

namespace
{

constexpr qreal FieldRadius = 5;
constexpr qreal BoxRadius = 4;
constexpr qreal RingWidth = 2;
/// Pixels between the edge of a button and the focus ring inside it.
constexpr int ButtonInset = 2;
constexpr double LeastContrast = 3;

/// Restores the painter when a shape is done.
class Canvas
{
public:
    explicit Canvas(QPainter& painter) : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Canvas() { m_painter.restore(); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

private:
    QPainter& m_painter;
};

bool has(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

QColor color(const QStyleOption& option, QPalette::ColorRole role)
{
    return option.palette.color(
        has(option, QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled, role);
}

bool isFocused(const QStyleOption& option)
{
    return has(option, QStyle::State_HasFocus) && has(option, QStyle::State_Enabled);
}

// The application's colour instead of the control's: the sheet may give the selection of a list a colour
// too faint for the ring.
QColor ringColor()
{
    return QGuiApplication::palette().color(QPalette::Highlight);
}

QPen outline(const QStyleOption& option)
{
    if (isFocused(option)) {
        return {ringColor(), RingWidth};
    }
    const bool hovered = has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled);
    return {color(option, hovered ? QPalette::Dark : QPalette::Mid), 1};
}

/// The empty box of a disabled control stays visible, as it has no text in it.
QPen boxOutline(const QStyleOption& option)
{
    return has(option, QStyle::State_Enabled) ? outline(option) : QPen(color(option, QPalette::Text), 1);
}

void paintRounded(QPainter& painter, const QRect& rect, const QPen& pen, const QBrush& brush, qreal radius)
{
    const qreal inset = pen.widthF() / 2;
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
}

QRect centredSquare(const QRect& rect)
{
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

QPen markPen(const QColor& ink, qreal width)
{
    return {ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

void paintField(QPainter& painter, const QRect& rect, const QStyleOption& option)
{
    const Canvas canvas(painter);
    paintRounded(painter, rect, outline(option), color(option, QPalette::Base), FieldRadius);
}

void paintFieldFrame(QPainter& painter, const QRect& rect, const QStyleOption& option)
{
    const Canvas canvas(painter);
    paintRounded(painter, rect, outline(option), Qt::NoBrush, FieldRadius);
}

void paintArrow(QPainter& painter, const QRect& rect, Qt::ArrowType direction, const QColor& ink)
{
    const Canvas canvas(painter);
    const qreal scale = letterScale(painter.font());
    const qreal half = qBound(2.5, qMin(rect.width(), rect.height()) / 4.0, 4.5 * scale);
    const qreal depth = half / 2;
    painter.translate(QRectF(rect).center());
    painter.rotate(direction == Qt::UpArrow ? 180
            : direction == Qt::LeftArrow    ? 90
            : direction == Qt::RightArrow   ? -90
                                            : 0);
    painter.setPen(markPen(ink, 1.7 * scale));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({QPointF(-half, -depth), QPointF(0, half - depth), QPointF(half, -depth)}));
}

void paintCheckBox(QPainter& painter, const QRect& rect, const QStyleOption& option)
{
    const Canvas canvas(painter);
    const QRect box = centredSquare(rect);
    const bool checked = has(option, QStyle::State_On);
    const bool half = has(option, QStyle::State_NoChange);
    if (!checked && !half) {
        paintRounded(painter, box, boxOutline(option), color(option, QPalette::Base), BoxRadius);
        return;
    }
    const QColor ground = color(option, QPalette::Highlight);
    paintRounded(painter, box, QPen(ground, 1), ground, BoxRadius);
    const qreal side = box.width();
    painter.translate(QRectF(box).topLeft());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(markPen(color(option, QPalette::HighlightedText), side / 8));
    if (half) {
        painter.drawLine(QPointF(side * 0.28, side / 2), QPointF(side * 0.72, side / 2));
    } else {
        painter.drawPolyline(QPolygonF({QPointF(side * 0.26, side * 0.53), QPointF(side * 0.43, side * 0.70),
            QPointF(side * 0.75, side * 0.33)}));
    }
}

void paintRadioButton(QPainter& painter, const QRect& rect, const QStyleOption& option)
{
    const Canvas canvas(painter);
    const QRectF ring = QRectF(centredSquare(rect)).adjusted(1, 1, -1, -1);
    const bool checked = has(option, QStyle::State_On);
    painter.setPen(checked ? QPen(color(option, QPalette::Highlight), 1) : boxOutline(option));
    painter.setBrush(checked ? color(option, QPalette::Highlight) : color(option, QPalette::Base));
    painter.drawEllipse(ring);
    if (checked) {
        const qreal inset = ring.width() * 0.30;
        painter.setPen(Qt::NoPen);
        painter.setBrush(color(option, QPalette::HighlightedText));
        painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
    }
}

void paintFocusRing(QPainter& painter, const QRect& rect)
{
    const Canvas canvas(painter);
    paintRounded(painter, rect, QPen(ringColor(), 1.5), Qt::NoBrush, BoxRadius);
}

void paintButtonFocus(QPainter& painter, const QRect& rect, const QPalette& palette)
{
    const Canvas canvas(painter);
    const QColor ground = palette.color(QPalette::Active, QPalette::Button);
    const bool accentIsSeen = contrast(ringColor(), ground) >= LeastContrast;
    const QColor ink = accentIsSeen ? ringColor() : palette.color(QPalette::Active, QPalette::ButtonText);
    paintRounded(painter, rect.adjusted(ButtonInset, ButtonInset, -ButtonInset, -ButtonInset),
        QPen(ink, RingWidth), Qt::NoBrush, BoxRadius);
}
