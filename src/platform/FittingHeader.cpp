#include "platform/FittingHeader.h"

#include <QPainter>
#include <QStyleOption>

namespace
{

constexpr int SmallestStretch = 62; // percent; letters get hard to read below
constexpr int CaptionMargin = 5; // pixels on either side

} // namespace

FittingHeader::FittingHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setTextElideMode(Qt::ElideRight);
}

QFont FittingHeader::fontFor(int logicalIndex) const
{
    QFont squeezed = font();
    const QString caption = model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
    const int available = qMax(1, sectionSize(logicalIndex) - 2 * CaptionMargin);
    const int needed = QFontMetrics(squeezed).horizontalAdvance(caption);
    if (needed > available) {
        squeezed.setStretch(qMax(SmallestStretch, 100 * available / needed));
    }
    return squeezed;
}

void FittingHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    painter->setFont(fontFor(logicalIndex));
    QHeaderView::paintSection(painter, rect, logicalIndex);
}

void FittingHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    option->fontMetrics = QFontMetrics(fontFor(logicalIndex));
}
