#include "widgets/FittingHeader.h"

#include "widgets/GridModel.h"
#include "widgets/PlainText.h"

#include <QPainter>
#include <QStyleOption>

namespace
{

/// Narrower letters are hard to read.
constexpr qreal LeastSqueeze = 0.62;
constexpr int CaptionMargin = 5; // pixels on either side of a caption

} // namespace

FittingHeader::FittingHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setTextElideMode(Qt::ElideNone);
}

int FittingHeader::roomFor(int logicalIndex) const
{
    const int sign = isSorted(logicalIndex) ? sortSignWidth() : 0;
    return qMax(1, sectionSize(logicalIndex) - 2 * CaptionMargin - sign);
}

bool FittingHeader::isSorted(int logicalIndex) const
{
    return isSortIndicatorShown() && sortIndicatorSection() == logicalIndex;
}

int FittingHeader::sortSignWidth() const
{
    return fontMetrics().height() * 3 / 4;
}

void FittingHeader::paintSortSign(QPainter& painter, const QRect& section) const
{
    QStyleOption option;
    option.initFrom(this);
    const int side = sortSignWidth();
    option.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, QSize(side, side),
        section.adjusted(CaptionMargin, 0, -CaptionMargin, 0));
    const bool isAscending = sortIndicatorOrder() == Qt::AscendingOrder;
    style()->drawPrimitive(
        isAscending ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &option, &painter, this);
}

QString FittingHeader::captionOf(int logicalIndex) const
{
    return model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
}

qreal FittingHeader::squeezeOf(int logicalIndex) const
{
    // The advance is rounded to whole pixels, perhaps down.
    const int needed = fontMetrics().horizontalAdvance(captionOf(logicalIndex)) + 1;
    const int available = roomFor(logicalIndex);
    return needed <= available ? 1 : qMax(LeastSqueeze, qreal(available) / needed);
}

// QHeaderView measures with a bold font, which would have to be loaded for captions that are never bold.
QSize FittingHeader::sectionSizeFromContents(int logicalIndex) const
{
    // A closing window asks for its size after its models are gone.
    if (model() == nullptr) {
        return QHeaderView::sectionSizeFromContents(logicalIndex);
    }
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text = captionOf(logicalIndex);
    QSize size = style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
    if (isSorted(logicalIndex)) {
        size.rwidth() += sortSignWidth();
    }
    return size;
}

void FittingHeader::mouseReleaseEvent(QMouseEvent* event)
{
    QHeaderView::mouseReleaseEvent(event);
    emit released();
}

void FittingHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    const qreal squeeze = squeezeOf(logicalIndex);
    if (squeeze >= 1) {
        // It leaves the painter clipped to nothing (Qt 6.4.2).
        painter->save();
        QHeaderView::paintSection(painter, rect, logicalIndex);
        painter->restore();
    } else {
        paintSqueezed(*painter, rect, logicalIndex, squeeze);
    }
    if (isSorted(logicalIndex)) {
        paintSortSign(*painter, rect);
    }
}

void FittingHeader::paintSqueezed(QPainter& painter, const QRect& rect, int logicalIndex, qreal squeeze) const
{
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, logicalIndex);
    option.rect = rect;
    painter.save();
    painter.setClipRect(rect);
    style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
    // Painted narrower instead of written in a narrower font: each stretch of a font has to be looked up by
    // itself.
    const QRect label = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
    painter.translate(label.left(), 0);
    painter.scale(squeeze, 1);
    option.rect = QRect(0, label.top(), qRound(label.width() / squeeze), label.height());
    style()->drawControl(QStyle::CE_HeaderLabel, &option, &painter, this);
    painter.restore();
}

void FittingHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    // Styles differ in which arrow they take for ascending, and none would leave room for it in a narrow
    // column.
    option->sortIndicator = QStyleOptionHeader::None;
    if (!model()->headerData(logicalIndex, orientation(), GridModel::SortableRole).toBool()) {
        option->state &= ~(QStyle::State_MouseOver | QStyle::State_Sunken);
    }
    // QHeaderView would elide for the width that the letters have before they are squeezed.
    const int room = qRound(roomFor(logicalIndex) / squeezeOf(logicalIndex));
    option->text = inOwnDirection(option->fontMetrics.elidedText(option->text, Qt::ElideRight, room));
}
