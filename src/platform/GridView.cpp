#include "platform/GridView.h"

#include "platform/AccessibleGrid.h"
#include "platform/FittingHeader.h"
#include "platform/GridModel.h"
#include "platform/LetterScale.h"
#include "platform/PlainText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <cmath>

namespace
{

constexpr double UnitsPerPixel = 15;
constexpr int IconSize = 16;
constexpr int RowPadding = 8;
constexpr int LeastRows = 4;

bool isPlain(const QKeyEvent& event)
{
    // The key of that name on the keypad is the same key.
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool movesUpOrDown(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down || event.key() == Qt::Key_PageUp
        || event.key() == Qt::Key_PageDown;
}

QModelIndex firstOf(const QItemSelection& selection)
{
    return selection.isEmpty() ? QModelIndex() : QModelIndex(selection.first().topLeft());
}

/// Writes each text in its own direction.
class CellDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override
    {
        return inOwnDirection(QStyledItemDelegate::displayText(value, locale));
    }
};

} // namespace

GridView::GridView(QWidget* parent) : QTableView(parent)
{
    AccessibleGrid::install();
    setHorizontalHeader(new FittingHeader(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new CellDelegate(this));
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->setVisible(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMinimumSectionSize(IconSize);
    followLetters();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &GridView::takeUserWidth);
    connect(this, &QTableView::doubleClicked, this, &GridView::rowDoubleClicked);
}

void GridView::setGridModel(GridModel* model)
{
    m_gridModel = model;
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        m_draggedShares.clear();
        layOutColumns();
    });
    layOutColumns();
}

int GridView::selectedRow() const
{
    const QModelIndexList rows =
        selectionModel() == nullptr ? QModelIndexList() : selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void GridView::selectOnly(int row)
{
    if (row < 0 || row >= model()->rowCount()) {
        clearSelection();
        return;
    }
    // The toolkit's selectRow() finds no column at the edge where it looks from right to left, and clears.
    moveTo(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GridView::goTo(int row)
{
    moveTo(row, QItemSelectionModel::NoUpdate);
}

void GridView::moveTo(int row, QItemSelectionModel::SelectionFlags selection)
{
    int column = 0;
    while (column + 1 < model()->columnCount() && isColumnHidden(column)) {
        ++column;
    }
    const QModelIndex cell = model()->index(row, column);
    selectionModel()->setCurrentIndex(cell, selection);
    scrollTo(cell);
}

QSize GridView::minimumSizeHint() const
{
    const QSize least = QTableView::minimumSizeHint();
    const int rows = LeastRows * verticalHeader()->defaultSectionSize();
    return least.expandedTo(QSize(0, horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth()));
}

void GridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        followLetters();
    }
}

void GridView::followLetters()
{
    const int icon = withLetters(IconSize, font());
    setIconSize(QSize(icon, icon));
    verticalHeader()->setMinimumSectionSize(icon);
    verticalHeader()->setDefaultSectionSize(qMax(icon, fontMetrics().height()) + RowPadding);
}

// Both pass over QTableView, which tells of cells by numbers that count the hidden columns.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (hasFocus()) {
        AccessibleGrid::announce(*this, QAccessible::Focus, current);
    }
    QAbstractItemView::currentChanged(current, previous);
}

void GridView::focusInEvent(QFocusEvent* event)
{
    // The toolkit's table makes the first row the current one, and frames it: a row on which no key acts.
    QAbstractScrollArea::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    viewport()->update();
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    AccessibleGrid::announce(*this, QAccessible::SelectionAdd, firstOf(selected));
    AccessibleGrid::announce(*this, QAccessible::SelectionRemove, firstOf(deselected));
    QAbstractItemView::selectionChanged(selected, deselected);
}
// NOLINTEND(bugprone-parent-virtual-call)

void GridView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && isPlain(*event)) {
        emit deletePressed();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit enterPressed();
    } else if (m_gridModel != nullptr && isPlain(*event) && event->key() == Qt::Key_Home) {
        selectOnly(0);
    } else if (m_gridModel != nullptr && isPlain(*event) && event->key() == Qt::Key_End) {
        selectOnly(m_gridModel->rowCount() - 1);
    } else if (m_gridModel != nullptr && movesUpOrDown(*event) && !currentIndex().isValid()) {
        selectOnly(0);
    } else {
        QTableView::keyPressEvent(event);
        if (m_gridModel != nullptr && movesUpOrDown(*event) && isPlain(*event) && selectedRow() < 0) {
            // At an end the toolkit neither moves nor selects.
            selectOnly(currentIndex().row());
        }
    }
}

void GridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    layOutColumns();
}

void GridView::showEvent(QShowEvent* event)
{
    layOutColumns();
    QTableView::showEvent(event);
}

void GridView::layOutColumns()
{
    if (m_gridModel == nullptr) {
        return;
    }
    const QScopedValueRollback guard(m_layingOut, true);
    const QList<GridColumn>& columns = m_gridModel->columns();
    m_draggedShares.resize(static_cast<std::size_t>(columns.size()));
    for (int i = 0; i < columns.size(); ++i) {
        const bool hidden = columns[i].widthDivisor == 0;
        setColumnHidden(i, hidden);
        if (!hidden) {
            setColumnWidth(i, widthOf(i));
        }
    }
}

int GridView::widthOf(int column) const
{
    const std::optional<double> share = m_draggedShares[static_cast<std::size_t>(column)];
    const double pixels =
        share ? *share * width() : UnitsPerPixel * width() / m_gridModel->columns()[column].widthDivisor;
    return static_cast<int>(std::lround(pixels));
}

void GridView::takeUserWidth(int column, int /*oldSize*/, int newSize)
{
    if (!m_layingOut && width() > 0 && static_cast<std::size_t>(column) < m_draggedShares.size()) {
        m_draggedShares[static_cast<std::size_t>(column)] = static_cast<double>(newSize) / width();
    }
}
