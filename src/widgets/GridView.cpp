#include "widgets/GridView.h"

#include "widgets/AccessibleGrid.h"
#include "widgets/FittingHeader.h"
#include "widgets/GridModel.h"
#include "widgets/LetterScale.h"
#include "widgets/PlainText.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

constexpr int IconSize = 16;
constexpr int RowPadding = 8;
constexpr int LeastRows = 4;

bool isPlain(const QKeyEvent& event)
{
    // Keys on the keypad count as the same keys.
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

/// The share of the grid's width that each column asks for.
std::vector<double> sharesOf(const QList<GridColumn>& columns)
{
    std::vector<double> shares;
    for (const GridColumn& column : columns) {
        shares.push_back(column.widthDivisor == 0 ? 0 : 1.0 / column.widthDivisor);
    }
    const double whole = std::accumulate(shares.begin(), shares.end(), 0.0);
    std::for_each(shares.begin(), shares.end(), [whole](double& share) { share /= whole; });
    return shares;
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
    // On a reset the header lays the grid out before modelReset() arrives here: drop the old shares before
    // that.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_shares.clear(); });
    connect(model, &QAbstractItemModel::modelReset, this, &GridView::layOutColumns);
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
    // Workaround: from right to left selectRow() of Qt 6.4.2 looks for a column at the wrong edge, finds
    // none and clears the selection (tst_qt_workarounds, selectRowClearsFromRightToLeft).
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

// Both skip QTableView: its accessibility events count hidden columns (see AccessibleGrid).
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
    // Skips QTableView and QAbstractItemView, which would make the first row current and frame it although
    // nothing is selected and no key acts on it (Qt 6.4.2; tst_qt_workarounds,
    // aTableThatGetsTheFocusMakesItsFirstRowCurrent).
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

bool GridView::goesToFirstRow(const QKeyEvent& event) const
{
    return (isPlain(event) && event.key() == Qt::Key_Home)
        || (movesUpOrDown(event) && !currentIndex().isValid());
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && isPlain(*event)) {
        emit deletePressed();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit enterPressed();
    } else if (m_gridModel != nullptr && isPlain(*event) && event->key() == Qt::Key_End) {
        selectOnly(m_gridModel->rowCount() - 1);
    } else if (m_gridModel != nullptr && goesToFirstRow(*event)) {
        selectOnly(0);
    } else {
        QTableView::keyPressEvent(event);
        if (m_gridModel != nullptr && movesUpOrDown(*event) && isPlain(*event) && selectedRow() < 0) {
            // At the first and the last row Qt neither moves nor selects.
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
    if (m_gridModel == nullptr || m_layingOut) {
        return;
    }
    const QScopedValueRollback guard(m_layingOut, true);
    const QList<GridColumn>& columns = m_gridModel->columns();
    if (m_shares.empty()) {
        m_shares = sharesOf(columns);
    }
    const int room = viewport()->width();
    int taken = 0;
    for (int i = 0; i < columns.size(); ++i) {
        setColumnHidden(i, columns[i].widthDivisor == 0);
        if (!isColumnHidden(i)) {
            setColumnWidth(i, static_cast<int>(std::lround(share(i) * room)));
            taken += columnWidth(i);
        }
    }
    // The widest column takes what rounding has left over.
    const auto widest = std::max_element(m_shares.cbegin(), m_shares.cend());
    if (taken > 0) {
        const int column = static_cast<int>(widest - m_shares.cbegin());
        setColumnWidth(column, columnWidth(column) + room - taken);
    }
}

double GridView::share(int column) const
{
    return m_shares[static_cast<std::size_t>(column)];
}

void GridView::takeUserWidth(int column, int /*oldSize*/, int newSize)
{
    if (m_layingOut || m_shares.empty() || viewport()->width() == 0) {
        return;
    }
    const auto dragged = m_shares.begin() + column;
    const double before = std::accumulate(m_shares.begin(), dragged, 0.0);
    const double after = std::accumulate(dragged + 1, m_shares.end(), 0.0);
    // The last column ends where the grid does. The columns behind any other one share the rest in the
    // proportions that they had.
    if (after > 0) {
        const auto shown = std::count_if(dragged + 1, m_shares.end(), [](double share) { return share > 0; });
        const double least = double(horizontalHeader()->minimumSectionSize()) / viewport()->width();
        const double most = std::max(least, 1 - before - least * static_cast<double>(shown));
        *dragged = std::clamp(double(newSize) / viewport()->width(), least, most);
        const double rest = 1 - before - *dragged;
        std::for_each(dragged + 1, m_shares.end(), [&](double& share) { share *= rest / after; });
    }
    layOutColumns();
}
