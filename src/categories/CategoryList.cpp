#include "categories/CategoryList.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace
{

constexpr int IconEdge = 32;
constexpr int LabelLines = 2;
constexpr int LabelCharacters = 16;
constexpr int Padding = 16;
constexpr qsizetype ToolTipCharacters = 2000;

/// Gives every item the size of its cell, whatever the length of its name.
class CellDelegate final : public QStyledItemDelegate
{
public:
    explicit CellDelegate(const QListView& list) : m_list(list) { }
    QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override
    {
        return m_list.gridSize();
    }

private:
    const QListView& m_list;
};

/// `text` as markup that shows it letter for letter, wrapped into lines.
QString plainToolTip(const QString& text)
{
    const QString shown =
        text.size() <= ToolTipCharacters ? text : text.left(ToolTipCharacters) + QChar(0x2026);
    return QLatin1String("<qt>") + Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal)
        + QLatin1String("</qt>");
}

} // namespace

CategoryList::CategoryList(QWidget* parent) : QListWidget(parent)
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setDragEnabled(false);
    setAcceptDrops(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionRectVisible(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setWordWrap(true);
    setTextElideMode(Qt::ElideRight);
    setIconSize(QSize(IconEdge, IconEdge));
    setItemDelegate(new CellDelegate(*this));
    itemDelegate()->setParent(this);
    setCellSize();
}

void CategoryList::selectOnly(int row)
{
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    scrollToItem(item(row));
}

QListWidgetItem* CategoryList::selectedItem() const
{
    return selectedItems().value(0);
}

void CategoryList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit deletePressed();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit enterPressed();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

bool CategoryList::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QListWidget::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QListWidgetItem* under = itemAt(help->pos());
    if (under == nullptr || under->toolTip().isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(
            help->globalPos(), plainToolTip(under->toolTip()), viewport(), visualItemRect(under));
    }
    return true;
}

void CategoryList::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setCellSize();
    }
}

void CategoryList::setCellSize()
{
    const QFontMetrics metrics = fontMetrics();
    setGridSize(QSize(std::max(3 * IconEdge, LabelCharacters * metrics.averageCharWidth()),
        IconEdge + LabelLines * metrics.lineSpacing() + Padding));
}
