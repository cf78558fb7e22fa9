#pragma once

#include <QItemSelectionModel>
#include <QTableView>
#include <vector>

class GridModel;

/// A grid of whole rows of one fixed height. At most one row is selected; rows and columns come from a
/// GridModel. When the selected row is removed, the row that takes its place is selected, or the last one.
class GridView : public QTableView
{
    Q_OBJECT

public:
    explicit GridView(QWidget* parent = nullptr);

    /// Set once; the grid does not own `model`. After every reset of the model no row is selected and the
    /// columns get the widths that they ask for. Together they always fill the grid; columns behind one
    /// that the user drags make room for it.
    void setGridModel(GridModel* model);

    /// The selected row, counted from 0; -1 for none.
    int selectedRow() const;
    /// Selects a row, makes it the current one and scrolls to it; -1 selects none.
    void selectOnly(int row);
    /// Makes a row current without selecting it, and scrolls to it; keys go on from there.
    void goTo(int row);
    /// Has room for a few rows below the header.
    QSize minimumSizeHint() const override;

signals:
    /// A row was double-clicked.
    void rowDoubleClicked();
    void deletePressed();
    void enterPressed();

protected:
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void showEvent(QShowEvent* event) override;

private:
    /// Adapts the sizes of icons and rows to the font.
    void followLetters();
    void layOutColumns();
    void takeUserWidth(int column, int oldSize, int newSize);

    bool goesToFirstRow(const QKeyEvent& event) const;
    void moveTo(int row, QItemSelectionModel::SelectionFlags selection);
    double share(int column) const;

    GridModel* m_gridModel = nullptr;
    /// Each column's share of the visible width, 0 for a hidden one; empty before the first layout.
    std::vector<double> m_shares;
    bool m_layingOut = false;
};
