#pragma once

#include <QListWidget>

/// The categories as large icons in cells of one size: long names are wrapped and then elided. One is
/// selected or none; names cannot be edited in place and nothing can be dragged. Tool tips are shown as plain
/// text.
class CategoryList : public QListWidget
{
    Q_OBJECT

public:
    explicit CategoryList(QWidget* parent = nullptr);

    /// Selects the item in `row` alone, makes it the current one and scrolls to it.
    void selectOnly(int row);
    /// None when nothing is selected.
    QListWidgetItem* selectedItem() const;
    /// Pixels that a line of a name may be wide.
    int labelWidth() const;

signals:
    void enterPressed();
    void deletePressed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The item's tool tip, headed by its name when not all of that can be seen.
    QString tipOf(const QListWidgetItem& item) const;
    void setCellSize();
};
