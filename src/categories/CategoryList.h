#pragma once

#include <QListWidget>

/// The categories as large icons in cells of one size: long names are wrapped, then elided. At most one is
/// selected; names cannot be edited in place and nothing can be dragged. Tool tips are plain text.
class CategoryList : public QListWidget
{
    Q_OBJECT

public:
    explicit CategoryList(QWidget* parent = nullptr);

    /// Selects the item in `row` alone, makes it the current one and scrolls to it.
    void selectOnly(int row);
    /// What the list says in the middle while it has no item; assistive technology reads it there, too.
    void setEmptyText(const QString& text);
    /// Null when nothing is selected.
    QListWidgetItem* selectedItem() const;
    /// The width of a line of a name, in pixels.
    int labelWidth() const;

signals:
    void enterPressed();
    void deletePressed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The item's tool tip, headed by its name if that cannot be seen whole.
    QString tipOf(const QListWidgetItem& item) const;
    void setCellSize();

    QString m_emptyText;
};
