#include "widgets/AccessibleGrid.h"
#include "widgets/GridModel.h"
#include "widgets/GridView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>

// Which rows of a grid are selected.

namespace
{

/// The selected rows, from the top. QItemSelectionModel::selectedRows() takes a look at every range for each.
QList<int> rowsOf(const QItemSelection& selection)
{
    QList<int> rows;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.append(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

/// The first cell when that is the only row.
QModelIndex onlyRowOf(const QItemSelection& selection)
{
    const bool isOneRow =
        std::all_of(selection.begin(), selection.end(), [&](const QItemSelectionRange& range) {
            return range.top() == selection.first().top() && range.bottom() == range.top();
        });
    return isOneRow && !selection.isEmpty() ? QModelIndex(selection.first().topLeft()) : QModelIndex();
}

} // namespace

int GridView::selectedRow() const
{
    if (selectionModel() == nullptr) {
        return -1;
    }
    if (selectionModel()->isSelected(currentIndex())) {
        return currentIndex().row();
    }
    const QList<int> rows = selectedRows();
    return rows.isEmpty() ? -1 : rows.first();
}

QList<int> GridView::selectedRows() const
{
    return selectionModel() == nullptr ? QList<int>() : rowsOf(selectionModel()->selection());
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

void GridView::selectRows(const QList<int>& rows)
{
    if (rows.size() < 2) {
        selectOnly(rows.isEmpty() ? -1 : rows.first());
        return;
    }
    QItemSelection selection;
    for (auto run = rows.begin(); run != rows.end();) {
        auto last = run;
        while (last + 1 != rows.end() && *(last + 1) == *last + 1) {
            ++last;
        }
        selection.append(wholeRows(*run, *last));
        run = last + 1;
    }
    moveTo(rows.first(), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GridView::setRowSelected(int row, bool selected)
{
    selectionModel()->select(cellOf(row),
        (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) | QItemSelectionModel::Rows);
}

void GridView::letGo(const std::function<bool(int row)>& goes)
{
    QItemSelection going;
    for (const int row : selectedRows()) {
        if (!goes(row)) {
            continue;
        }
        const bool goesOn = !going.isEmpty() && going.last().bottom() == row - 1;
        const int first = goesOn ? going.last().top() : row;
        if (goesOn) {
            going.removeLast();
        }
        going.append(wholeRows(first, row));
    }
    selectionModel()->select(going, QItemSelectionModel::Deselect);
    if (currentIndex().isValid() && goes(currentIndex().row())) {
        selectionModel()->clearCurrentIndex();
    }
}

void GridView::copySelectedRows() const
{
    QStringList lines;
    for (const int row : selectedRows()) {
        lines.append(m_gridModel->rowText(row));
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
    }
}

void GridView::goTo(int row)
{
    moveTo(row, QItemSelectionModel::NoUpdate);
}

void GridView::moveTo(int row, QItemSelectionModel::SelectionFlags selection)
{
    const QModelIndex cell = cellOf(row);
    selectionModel()->setCurrentIndex(cell, selection);
    m_anchor = cell;
    scrollTo(cell);
}

QModelIndex GridView::cellOf(int row) const
{
    int column = 0;
    while (column + 1 < model()->columnCount() && isColumnHidden(column)) {
        ++column;
    }
    return model()->index(row, column);
}

QItemSelection GridView::wholeRows(int first, int last) const
{
    return {
        model()->index(qMin(first, last), 0), model()->index(qMax(first, last), model()->columnCount() - 1)};
}

// Qt keeps where a selection with Shift begins to itself, and leaves it where it was when the program selects
// a row (6.4.2).
void GridView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const bool isDragged = state() == DragSelectingState;
    if (!isDragged && (!command.testFlag(QItemSelectionModel::Current) || !m_anchor.isValid())) {
        m_anchor = currentIndex();
    }
    if (!isDragged && command.testFlag(QItemSelectionModel::Current)) {
        selectionModel()->select(wholeRows(m_anchor.row(), currentIndex().row()), command);
    } else {
        QTableView::setSelection(rect, command);
    }
}

void GridView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    const QList<int> selected = selectedRows();
    const auto isRemoved = [&](int row) {
        return row >= first && row <= last;
    };
    const bool losesAll = !selected.isEmpty() && std::all_of(selected.begin(), selected.end(), isRemoved);
    QTableView::rowsAboutToBeRemoved(parent, first, last);
    if (losesAll) {
        selectOnly(last + 1 < model()->rowCount() ? last + 1 : first - 1);
    }
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (model()->rowCount() > 0 && action == MoveHome) {
        return cellOf(0);
    }
    if (model()->rowCount() > 0 && action == MoveEnd) {
        return cellOf(model()->rowCount() - 1);
    }
    return QTableView::moveCursor(action, modifiers);
}

// Skips QTableView: its accessibility events count hidden columns (see AccessibleGrid).
// NOLINTBEGIN(bugprone-parent-virtual-call)
void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    const QModelIndex added = onlyRowOf(selected);
    const QModelIndex removed = onlyRowOf(deselected);
    AccessibleGrid::announce(*this, QAccessible::SelectionAdd, added);
    AccessibleGrid::announce(*this, QAccessible::SelectionRemove, removed);
    if (added.isValid() == selected.isEmpty() || removed.isValid() == deselected.isEmpty()) {
        AccessibleGrid::announceSelectionWithin(*this);
    }
    QAbstractItemView::selectionChanged(selected, deselected);
}
// NOLINTEND(bugprone-parent-virtual-call)

void GridView::keyboardSearch(const QString& search)
{
    if (m_gridModel == nullptr || m_gridModel->rowCount() == 0 || currentIndex().isValid()) {
        QTableView::keyboardSearch(search);
        return;
    }
    // Without a current cell Qt would search the first column, which is the hidden one of the ids. From the
    // last row the search goes on at the first.
    selectionModel()->setCurrentIndex(cellOf(m_gridModel->rowCount() - 1), QItemSelectionModel::NoUpdate);
    QTableView::keyboardSearch(search);
    if (!selectionModel()->hasSelection()) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
}
