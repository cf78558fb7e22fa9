#include "widgets/GridView.h"

#include "widgets/AccessibleGrid.h"
#include "widgets/CellDelegate.h"
#include "widgets/EmptyText.h"
#include "widgets/FittingHeader.h"
#include "widgets/LetterScale.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

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

bool isShiftF10(const QKeyEvent& event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

} // namespace

GridView::GridView(QWidget* parent) : QTableView(parent)
{
    AccessibleGrid::install();
    auto* header = new FittingHeader(this);
    setHorizontalHeader(header);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new CellDelegate(*this));
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // The columns always fit. A bar would come up until they have made room for that of the rows.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->setVisible(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMinimumSectionSize(IconSize);
    followLetters();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &GridView::takeUserWidth);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &GridView::pressCaption);
    connect(header, &FittingHeader::released, this, [this] {
        if (std::exchange(m_hasDragged, false)) {
            emit columnsDragged();
        }
    });
    connect(this, &QTableView::doubleClicked, this, &GridView::rowDoubleClicked);
}

void GridView::setGridModel(GridModel* model)
{
    m_gridModel = model;
    setModel(model);
    // On a reset the header lays the grid out before modelReset() arrives here: drop the old shares before
    // that.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_shares.clear(); });
    connect(model, &QAbstractItemModel::modelReset, this, &GridView::followColumns);
    followColumns();
}

void GridView::followColumns()
{
    layOutColumns();
    const QList<GridColumn>& columns = m_gridModel->columns();
    horizontalHeader()->setSectionsClickable(std::any_of(
        columns.cbegin(), columns.cend(), [](const GridColumn& column) { return column.isSortable; }));
    showSortSign();
}

void GridView::showSort(int field, Qt::SortOrder order)
{
    m_sortField = field;
    m_sortOrder = order;
    showSortSign();
}

void GridView::showSortSign()
{
    const QList<GridColumn>& columns = m_gridModel->columns();
    const auto sorted = std::find_if(columns.cbegin(), columns.cend(),
        [this](const GridColumn& column) { return column.isSortable && column.field == m_sortField; });
    const bool isShown = sorted != columns.cend();
    horizontalHeader()->setSortIndicatorShown(isShown);
    horizontalHeader()->setSortIndicator(
        isShown ? static_cast<int>(sorted - columns.cbegin()) : -1, m_sortOrder);
}

void GridView::pressCaption(int column)
{
    // QHeaderView has put its sign on the column that was clicked.
    showSortSign();
    if (m_gridModel->columns()[column].isSortable) {
        emit sortRequested(m_gridModel->columns()[column].field);
    }
}

QString GridView::captionNote(int column) const
{
    if (m_gridModel == nullptr || !m_gridModel->columns()[column].isSortable) {
        return {};
    }
    if (m_gridModel->columns()[column].field != m_sortField) {
        return tr("Sorts the list");
    }
    return m_sortOrder == Qt::AscendingOrder ? tr("Sorted in ascending order")
                                             : tr("Sorted in descending order");
}

void GridView::setEmptyText(const QString& text)
{
    if (m_emptyText != text) {
        m_emptyText = text;
        // Assistive technology has nothing else to read where there is no row.
        setAccessibleDescription(text);
        viewport()->update();
    }
}

QColor GridView::colorOf(RowInk ink, bool selected) const
{
    switch (ink) {
    case RowInk::Overdue:
        return selected ? m_selectedOverdueInk : m_overdueInk;
    case RowInk::DueToday:
        return selected ? m_selectedDueTodayInk : m_dueTodayInk;
    case RowInk::Done:
        return selected ? m_selectedDoneInk : m_doneInk;
    default:
        return {};
    }
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

// NOLINTEND(bugprone-parent-virtual-call)

bool GridView::goesToFirstRow(const QKeyEvent& event) const
{
    return (isPlain(event) && event.key() == Qt::Key_Home)
        || (movesUpOrDown(event) && !currentIndex().isValid());
}

void GridView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        requestMenu();
        return;
    }
    const QModelIndex under = indexAt(event->pos());
    if (!selectionModel()->isSelected(under)) {
        selectOnly(under.row());
    }
    emit menuRequested(event->globalPos());
}

bool GridView::hasMenu() const
{
    static const QMetaMethod requested = QMetaMethod::fromSignal(&GridView::menuRequested);
    return isSignalConnected(requested);
}

void GridView::requestMenuOf(int row)
{
    if (selectionModel()->isRowSelected(row)) {
        goTo(row);
    } else {
        selectOnly(row);
    }
    requestMenu();
}

void GridView::requestMenu()
{
    const QModelIndex current = currentIndex();
    scrollTo(current);
    const QRect cell = current.isValid() ? visualRect(current) : QRect(0, 0, viewport()->width(), 1);
    emit menuRequested(viewport()->mapToGlobal(isRightToLeft() ? cell.bottomRight() : cell.bottomLeft()));
}

void GridView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && isPlain(*event)) {
        if (!event->isAutoRepeat()) {
            emit deletePressed();
        }
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) {
            emit enterPressed();
        }
    } else if (event->matches(QKeySequence::Copy)) {
        copySelectedRows();
    } else if (isShiftF10(*event)) {
        // Qt sends a context menu event for the menu key, but for Shift+F10 not on every platform.
        requestMenu();
    } else if (m_gridModel != nullptr && isPlain(*event) && event->key() == Qt::Key_End) {
        selectOnly(m_gridModel->rowCount() - 1);
    } else if (m_gridModel != nullptr && goesToFirstRow(*event)) {
        selectOnly(0);
    } else {
        QTableView::keyPressEvent(event);
        if (m_gridModel != nullptr && movesUpOrDown(*event) && isPlain(*event)
            && selectedRows() != QList<int>{currentIndex().row()}) {
            // At the first and the last row Qt neither moves nor selects.
            selectOnly(currentIndex().row());
        }
    }
}

void GridView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() == 0) {
        paintEmptyText(*this, m_emptyText);
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

double GridView::weightOf(const GridColumn& column) const
{
    return column.widthDivisor == 0 ? 0 : m_draggedWeights.value(column.key, 1.0 / column.widthDivisor);
}

std::vector<double> GridView::askedShares() const
{
    std::vector<double> shares;
    for (const GridColumn& column : m_gridModel->columns()) {
        shares.push_back(weightOf(column));
    }
    const double whole = std::accumulate(shares.begin(), shares.end(), 0.0);
    std::for_each(shares.begin(), shares.end(), [whole](double& share) { share /= whole; });
    return shares;
}

void GridView::noteDraggedWeights()
{
    const QList<GridColumn>& columns = m_gridModel->columns();
    const double whole = std::accumulate(columns.begin(), columns.end(), 0.0,
        [this](double sum, const GridColumn& column) { return sum + weightOf(column); });
    for (int i = 0; i < columns.size(); ++i) {
        if (columns[i].widthDivisor != 0) {
            m_draggedWeights.insert(columns[i].key, share(i) * whole);
        }
    }
    m_hasDragged = true;
}

void GridView::layOutColumns()
{
    if (m_gridModel == nullptr || m_layingOut) {
        return;
    }
    const QScopedValueRollback guard(m_layingOut, true);
    const QList<GridColumn>& columns = m_gridModel->columns();
    if (m_shares.empty()) {
        m_shares = askedShares();
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
        noteDraggedWeights();
    }
    layOutColumns();
}
