#pragma once

#include <QAccessible>
#include <QPointer>

class GridView;

/// Base of captions and cells: parts of a grid that are no widgets of their own.
class AccessiblePart : public QAccessibleInterface
{
public:
    explicit AccessiblePart(GridView& grid);

    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    QAccessible::State state() const override;

protected:
    bool isShown() const;
    static QRect onScreen(const QWidget& viewport, const QRect& inside);

    QPointer<GridView> m_grid;
};

/// The caption of a column. Where the column is sortable it says so and how it is sorted, and can be pressed.
class AccessibleCaption final : public AccessiblePart, public QAccessibleActionInterface
{
public:
    AccessibleCaption(GridView& grid, int section) : AccessiblePart(grid), m_section(section) { }

    int section() const { return m_section; }

    bool isValid() const override;
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    int m_section;
};
