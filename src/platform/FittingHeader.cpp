#include "platform/FittingHeader.h"

#include "platform/PlainText.h"

#include <QPainter>
#include <QStyleOption>
#include <array>

namespace
{

/// Percent; letters get hard to read below the last. Few: each is a font of its own, that has to be found.
constexpr std::array Stretches{86, 74, 62};
constexpr int CaptionMargin = 5; // pixels on either side

} // namespace

FittingHeader::FittingHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
{
    setTextElideMode(Qt::ElideNone);
}

int FittingHeader::roomFor(int logicalIndex) const
{
    return qMax(1, sectionSize(logicalIndex) - 2 * CaptionMargin);
}

QFont FittingHeader::fontFor(int logicalIndex) const
{
    QFont squeezed = font();
    const QString caption = model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
    const int available = roomFor(logicalIndex);
    const int needed = QFontMetrics(squeezed).horizontalAdvance(caption);
    const int wanted = 100 * available / qMax(1, needed);
    for (const int stretch : Stretches) {
        if (needed <= available) {
            break;
        }
        // A font may not be had as narrow as it is asked for.
        if (stretch <= wanted || stretch == Stretches.back()) {
            squeezed.setStretch(stretch);
            if (QFontMetrics(squeezed).horizontalAdvance(caption) <= available) {
                break;
            }
        }
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
    // The header itself would reckon with the letters as they are before they are squeezed.
    option->text =
        inOwnDirection(option->fontMetrics.elidedText(option->text, Qt::ElideRight, roomFor(logicalIndex)));
}
