#include "widgets/CellDelegate.h"

#include "widgets/GridModel.h"
#include "widgets/GridView.h"
#include "widgets/PlainText.h"

#include <QPainter>
#include <QTextLayout>

namespace
{

struct MarkColors {
    QColor back;
    QColor text;
};

/// On a selected row, and without colours of a skin, those of the row change places.
MarkColors markColors(const GridView& grid, const QStyleOptionViewItem& cell)
{
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    if (!isSelected && grid.markColor().isValid()) {
        return {grid.markColor(), grid.markTextColor()};
    }
    const auto group = cell.state.testFlag(QStyle::State_Enabled)
        ? cell.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive
        : QPalette::Disabled;
    return isSelected
        ? MarkColors{cell.palette.color(group, QPalette::HighlightedText),
            cell.palette.color(group, QPalette::Highlight)}
        : MarkColors{cell.palette.color(group, QPalette::Text), cell.palette.color(group, QPalette::Base)};
}

} // namespace

CellDelegate::CellDelegate(GridView& grid) : QStyledItemDelegate(&grid), m_grid(grid)
{
}

QString CellDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    return inOwnDirection(QStyledItemDelegate::displayText(value, locale));
}

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto ink = static_cast<RowInk>(index.data(GridModel::InkRole).toInt());
    const bool selected = option->state.testFlag(QStyle::State_Selected);
    if (const QColor color = m_grid.colorOf(ink, selected); color.isValid()) {
        option->palette.setColor(selected ? QPalette::HighlightedText : QPalette::Text, color);
    }
}

void CellDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto marks = index.data(GridModel::MarksRole).value<QList<TextPart>>();
    if (!marks.isEmpty()) {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        // The direction's isolate, if any, stands before the text.
        const qsizetype before = cell.text.startsWith(index.data().toString().left(1)) ? 0 : 1;
        QList<TextPart> shown = marks;
        for (TextPart& mark : shown) {
            mark.begin += before;
        }
        paintMarks(*painter, cell, shown);
    }
}

// Lays the text out as QCommonStyle does, so that each marked letter covers itself.
void CellDelegate::paintMarks(
    QPainter& painter, const QStyleOptionViewItem& cell, const QList<TextPart>& marks) const
{
    const QStyle& style = *cell.widget->style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    const QRect room =
        style.subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget).adjusted(margin, 0, -margin, 0);
    const QString shown = cell.fontMetrics.elidedText(cell.text, cell.textElideMode, room.width());
    // Of an elided text the sign of that, its last character, is marked for all that it stands for.
    const qsizetype whole = shown == cell.text ? shown.size() : shown.size() - 1;

    const MarkColors colors = markColors(m_grid, cell);
    QTextCharFormat format;
    format.setBackground(colors.back);
    format.setForeground(colors.text);
    QList<QTextLayout::FormatRange> ranges;
    for (const TextPart& mark : marks) {
        const qsizetype begin = qMin(mark.begin, whole);
        const qsizetype end = mark.begin + mark.size > whole ? shown.size() : mark.begin + mark.size;
        ranges.append({static_cast<int>(begin), static_cast<int>(end - begin), format});
    }

    QTextLayout layout(shown, cell.font);
    QTextOption option;
    option.setWrapMode(QTextOption::ManualWrap);
    option.setTextDirection(cell.direction);
    option.setAlignment(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(room.width());
    layout.endLayout();
    const QRect place = QStyle::alignedRect(
        cell.direction, cell.displayAlignment, QSize(room.width(), static_cast<int>(line.height())), room);

    painter.save();
    painter.setClipRect(cell.rect);
    // Only the marked letters: the style has painted the others.
    painter.setPen(Qt::transparent);
    layout.draw(&painter, QPointF(room.x(), place.top()), ranges);
    painter.restore();
}
