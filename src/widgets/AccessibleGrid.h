#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>
#include <vector>

class GridView;

/// A grid as assistive technology sees it: its visible columns, each with its caption, and its rows.
/// Workaround: the tables of Qt 6.4.2 count hidden columns and headers, too (tst_qt_workarounds,
/// aTableCountsHiddenColumnsAndHeaders). Children are the captions, then the cells row by row; columns are
/// counted from 0 among the visible ones. Owns the cells and captions that it hands out.
class AccessibleGrid final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    /// Uses this class for every GridView from now on. Further calls do nothing.
    static void install();
    /// Sends `event` for the cell of `index`, or for the first visible cell of its row where that column is
    /// hidden. Does nothing when no assistive technology listens or `index` is invalid.
    static void announce(GridView& grid, QAccessible::Event event, const QModelIndex& index);
    /// Tells that the selection has changed by more than one row.
    static void announceSelectionWithin(GridView& grid);

    explicit AccessibleGrid(GridView& grid);
    AccessibleGrid(const AccessibleGrid&) = delete;
    AccessibleGrid& operator=(const AccessibleGrid&) = delete;
    ~AccessibleGrid() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    /// To open the menu, where there is one, and to set the focus.
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    int childCount() const override;
    /// nullptr when there is no such child.
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    /// nullptr when there is no such cell.
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int /*row*/) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int row) const override;
    /// Adds a row to the selection.
    bool selectRow(int row) override;
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

    /// The position of a section among the visible ones; -1 for a hidden one.
    int columnOf(int section) const;
    /// The cell of `index`, or the first visible cell of its row where that column is hidden; nullptr for
    /// an invalid index.
    QAccessibleInterface* cellOf(const QModelIndex& index) const;
    QAccessibleInterface* captionOf(int section) const;

private:
    /// The visible sections of the header.
    std::vector<int> sections() const;

    GridView& m_grid;
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells;
    mutable QHash<int, QAccessible::Id> m_captions; ///< by section
};
