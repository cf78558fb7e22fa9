#pragma once

#include "widgets/GridModel.h"

#include <QColor>
#include <QHash>
#include <QItemSelectionModel>
#include <QPersistentModelIndex>
#include <QTableView>
#include <functional>
#include <vector>

/// A grid of whole rows of one fixed height, any number of which are selected: by Shift, Ctrl, Ctrl+A and
/// Ctrl+Space as everywhere. Rows and columns come from a GridModel. When the last selected row is removed,
/// the row that takes its place is selected, or the last one. Ctrl+C copies the selected rows.
class GridView : public QTableView
{
    Q_OBJECT
    // Of the skin, set by its sheet.
    Q_PROPERTY(QColor overdueInk MEMBER m_overdueInk)
    Q_PROPERTY(QColor dueTodayInk MEMBER m_dueTodayInk)
    Q_PROPERTY(QColor doneInk MEMBER m_doneInk)
    Q_PROPERTY(QColor selectedOverdueInk MEMBER m_selectedOverdueInk)
    Q_PROPERTY(QColor selectedDueTodayInk MEMBER m_selectedDueTodayInk)
    Q_PROPERTY(QColor selectedDoneInk MEMBER m_selectedDoneInk)
    /// The colours of marked parts of texts, for the style sheet; without them the row's own are exchanged.
    Q_PROPERTY(QColor markColor MEMBER m_markColor READ markColor)
    Q_PROPERTY(QColor markTextColor MEMBER m_markTextColor READ markTextColor)

public:
    explicit GridView(QWidget* parent = nullptr);

    /// Set once; the grid does not own `model`. After every reset of the model no row is selected and the
    /// columns get the widths that they ask for. Together they always fill the grid; columns behind one
    /// that the user drags make room for it, and it stays as wide as it was dragged.
    void setGridModel(GridModel* model);

    /// The selected row that an action on a single row means, counted from 0: the current one, or the first
    /// where that is not selected; -1 for none.
    int selectedRow() const;
    /// All selected rows, from the top.
    QList<int> selectedRows() const;
    /// Selects a row, makes it the current one and scrolls to it; -1 selects none.
    void selectOnly(int row);
    /// Selects exactly these rows, given from the top, makes the first one current and scrolls to it.
    void selectRows(const QList<int>& rows);
    /// Selects or deselects one row; the others stay as they are.
    void setRowSelected(int row, bool selected);
    /// Puts the selected rows into the clipboard, a line each, with tabs between the columns. Does nothing
    /// when none is selected.
    void copySelectedRows() const;
    /// Makes a row current without selecting it, and scrolls to it; keys go on from there.
    void goTo(int row);
    /// Whether anybody opens a menu when asked for one.
    bool hasMenu() const;
    /// Asks for a menu below the current row, as the menu key does.
    void requestMenu();
    /// Asks for a menu below that row, which is selected alone unless it is selected, and is the current one.
    void requestMenuOf(int row);
    /// How wide the user has dragged columns, by column key: like the inverse of GridColumn::widthDivisor, to
    /// be set before the grid is shown. Columns that are not named are as wide as they ask for.
    QHash<QString, double> draggedWeights() const { return m_draggedWeights; }
    void setDraggedWeights(const QHash<QString, double>& weights) { m_draggedWeights = weights; }
    /// Shows in the header that the rows are sorted by the column of `field`; no sign where that column is
    /// not shown or `field` is none of the model's.
    void showSort(int field, Qt::SortOrder order);
    /// As a click on the caption of a column does; nothing for one that is not sortable.
    void pressCaption(int column);
    /// What the caption does and how it is sorted, for assistive technology; empty for one that is not
    /// sortable.
    QString captionNote(int column) const;
    /// The colour of texts in such a row; invalid where the palette's is meant: in usual rows, and without a
    /// skin.
    QColor colorOf(RowInk ink, bool selected) const;
    /// Selects those rows no longer, and makes none of them the current one.
    void letGo(const std::function<bool(int row)>& goes);
    /// What the view says in the middle while it has no row; empty for nothing.
    void setEmptyText(const QString& text);
    const QString& emptyText() const { return m_emptyText; }
    QColor markColor() const { return m_markColor; }
    QColor markTextColor() const { return m_markTextColor; }
    /// Has room for a few rows below the header.
    QSize minimumSizeHint() const override;

signals:
    /// A row was double-clicked.
    void rowDoubleClicked();
    void deletePressed();
    void enterPressed();
    /// The user has dragged the edge of a column and let it go.
    void columnsDragged();
    /// The caption of the sortable column of `field` was clicked.
    void sortRequested(int field);
    /// The right button, the menu key or Shift+F10: a menu is to open at `place` on the screen, for the
    /// selected rows. A row under the pointer is among them.
    void menuRequested(const QPoint& place);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    void showEvent(QShowEvent* event) override;

private:
    /// Adapts the sizes of icons and rows to the font.
    void followLetters();
    void layOutColumns();
    void followColumns();
    void showSortSign();
    void takeUserWidth(int column, int oldSize, int newSize);

    bool goesToFirstRow(const QKeyEvent& event) const;
    void moveTo(int row, QItemSelectionModel::SelectionFlags selection);
    /// The first visible cell of a row.
    QModelIndex cellOf(int row) const;
    QItemSelection wholeRows(int first, int last) const;
    double share(int column) const;
    double weightOf(const GridColumn& column) const;
    std::vector<double> askedShares() const;
    void noteDraggedWeights();

    GridModel* m_gridModel = nullptr;
    QString m_emptyText;
    QColor m_markColor;
    QColor m_markTextColor;
    /// Each column's share of the visible width, 0 for a hidden one; empty before the first layout.
    std::vector<double> m_shares;
    QHash<QString, double> m_draggedWeights;
    bool m_layingOut = false;
    bool m_hasDragged = false; ///< since the button was pressed
    int m_sortField = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QColor m_overdueInk;
    QColor m_dueTodayInk;
    QColor m_doneInk;
    QColor m_selectedOverdueInk;
    QColor m_selectedDueTodayInk;
    QColor m_selectedDoneInk;
    /// Where a selection with Shift begins.
    QPersistentModelIndex m_anchor;
};
