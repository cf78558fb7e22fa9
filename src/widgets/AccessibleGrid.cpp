#include "widgets/AccessibleGrid.h"

#include "widgets/AccessibleCaption.h"
#include "widgets/GridView.h"

#include <QHeaderView>
#include <algorithm>

namespace
{

QStringList menuActions(const GridView& grid)
{
    return grid.isEnabled() && grid.hasMenu() ? QStringList(QAccessibleActionInterface::showMenuAction())
                                              : QStringList();
}

class AccessibleCell final : public AccessiblePart,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface
{
public:
    AccessibleCell(GridView& grid, const QModelIndex& index) : AccessiblePart(grid), m_index(index) { }

    bool isValid() const override { return m_grid && m_index.isValid(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return {};
        }
        switch (kind) {
        case QAccessible::Name:
            return m_index.data(Qt::AccessibleTextRole).toString();
        case QAccessible::Description:
            return m_index.data(Qt::AccessibleDescriptionRole).toString();
        default:
            return {};
        }
    }
    QRect rect() const override
    {
        return isShown() ? onScreen(*m_grid->viewport(), m_grid->visualRect(m_index)) : QRect();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePart::state();
        if (isValid()) {
            state.selectable = true;
            state.focusable = true;
            state.selected = isSelected();
            state.offscreen =
                isShown() && !m_grid->viewport()->rect().intersects(m_grid->visualRect(m_index));
            state.focused = parent()->focusChild() == this;
        }
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TableCellInterface:
            return static_cast<QAccessibleTableCellInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
        }
    }

    bool isSelected() const override { return isValid() && m_grid->selectionModel()->isSelected(m_index); }
    QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        const AccessibleGrid* owner = grid();
        return owner == nullptr || !isValid()
            ? QList<QAccessibleInterface*>()
            : QList<QAccessibleInterface*>{owner->captionOf(m_index.column())};
    }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override
    {
        const AccessibleGrid* owner = grid();
        return owner == nullptr ? -1 : owner->columnOf(m_index.column());
    }
    int rowIndex() const override { return m_index.row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override
    {
        return isValid() && m_grid->isEnabled() ? QStringList(toggleAction()) + menuActions(*m_grid)
                                                : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (!actionNames().contains(name)) {
            return;
        }
        if (name == showMenuAction()) {
            m_grid->requestMenuOf(m_index.row());
        } else {
            m_grid->selectOnly(m_index.row());
        }
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    const AccessibleGrid* grid() const { return dynamic_cast<const AccessibleGrid*>(parent()); }

    QPersistentModelIndex m_index;
};

template <typename Key> QAccessibleInterface* known(const QHash<Key, QAccessible::Id>& parts, const Key& key)
{
    const auto found = parts.constFind(key);
    return found == parts.constEnd() ? nullptr : QAccessible::accessibleInterface(*found);
}

template <typename Key>
QAccessibleInterface* keep(QHash<Key, QAccessible::Id>& parts, const Key& key, QAccessibleInterface* part)
{
    parts.insert(key, QAccessible::registerAccessibleInterface(part));
    return part;
}

QAccessibleInterface* accessibleGridOf(const QString& /*className*/, QObject* object)
{
    auto* grid = qobject_cast<GridView*>(object);
    return grid == nullptr ? nullptr : new AccessibleGrid(*grid);
}

} // namespace

void AccessibleGrid::install()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(accessibleGridOf);
        return true;
    }();
}

void AccessibleGrid::announce(GridView& grid, QAccessible::Event event, const QModelIndex& index)
{
    if (!QAccessible::isActive()) {
        return;
    }
    const auto* seen = dynamic_cast<const AccessibleGrid*>(QAccessible::queryAccessibleInterface(&grid));
    if (QAccessibleInterface* cell = seen == nullptr ? nullptr : seen->cellOf(index)) {
        QAccessibleEvent told(cell, event);
        QAccessible::updateAccessibility(&told);
    }
}

void AccessibleGrid::announceSelectionWithin(GridView& grid)
{
    if (QAccessible::isActive()) {
        QAccessibleEvent told(&grid, QAccessible::SelectionWithin);
        QAccessible::updateAccessibility(&told);
    }
}

AccessibleGrid::AccessibleGrid(GridView& grid) : QAccessibleWidget(&grid, QAccessible::Table), m_grid(grid)
{
}

AccessibleGrid::~AccessibleGrid()
{
    for (const QAccessible::Id id : std::as_const(m_cells)) {
        QAccessible::deleteAccessibleInterface(id);
    }
    for (const QAccessible::Id id : std::as_const(m_captions)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

void* AccessibleGrid::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleGrid::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    state.extSelectable = true;
    return state;
}

QStringList AccessibleGrid::actionNames() const
{
    return menuActions(m_grid) + QAccessibleWidget::actionNames();
}

void AccessibleGrid::doAction(const QString& name)
{
    if (name != showMenuAction()) {
        QAccessibleWidget::doAction(name);
    } else if (actionNames().contains(name)) {
        m_grid.requestMenu();
    }
}

std::vector<int> AccessibleGrid::sections() const
{
    std::vector<int> shown;
    for (int section = 0; section < m_grid.horizontalHeader()->count(); ++section) {
        if (!m_grid.isColumnHidden(section)) {
            shown.push_back(section);
        }
    }
    return shown;
}

int AccessibleGrid::columnOf(int section) const
{
    const std::vector<int> shown = sections();
    const auto found = std::find(shown.begin(), shown.end(), section);
    return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
}

QAccessibleInterface* AccessibleGrid::captionOf(int section) const
{
    QAccessibleInterface* caption = known(m_captions, section);
    return caption != nullptr ? caption : keep(m_captions, section, new AccessibleCaption(m_grid, section));
}

QAccessibleInterface* AccessibleGrid::cellOf(const QModelIndex& index) const
{
    const std::vector<int> shown = sections();
    if (!index.isValid() || shown.empty()) {
        return nullptr;
    }
    const QPersistentModelIndex key(
        m_grid.isColumnHidden(index.column()) ? index.siblingAtColumn(shown.front()) : index);
    QAccessibleInterface* cell = known(m_cells, key);
    return cell != nullptr ? cell : keep(m_cells, key, new AccessibleCell(m_grid, key));
}

int AccessibleGrid::childCount() const
{
    return (rowCount() + 1) * columnCount();
}

QAccessibleInterface* AccessibleGrid::child(int index) const
{
    const int columns = columnCount();
    if (index < 0 || columns == 0) {
        return nullptr;
    }
    return index < columns ? captionOf(sections()[static_cast<std::size_t>(index)])
                           : cellAt(index / columns - 1, index % columns);
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface* child) const
{
    if (child == nullptr || child->parent() != this) {
        return -1;
    }
    if (const auto* caption = dynamic_cast<const AccessibleCaption*>(child)) {
        return columnOf(caption->section());
    }
    const auto* cell = dynamic_cast<const AccessibleCell*>(child);
    return cell == nullptr || !cell->isValid() ? -1
                                               : (cell->rowIndex() + 1) * columnCount() + cell->columnIndex();
}

QAccessibleInterface* AccessibleGrid::childAt(int x, int y) const
{
    const QPoint place(x, y);
    const QWidget& header = *m_grid.horizontalHeader()->viewport();
    if (const QPoint inside = header.mapFromGlobal(place); header.rect().contains(inside)) {
        const int section = m_grid.horizontalHeader()->logicalIndexAt(inside);
        return section < 0 ? nullptr : captionOf(section);
    }
    const QPoint inside = m_grid.viewport()->mapFromGlobal(place);
    return m_grid.viewport()->rect().contains(inside) ? cellOf(m_grid.indexAt(inside)) : nullptr;
}

QAccessibleInterface* AccessibleGrid::focusChild() const
{
    return m_grid.hasFocus() ? cellOf(m_grid.currentIndex()) : nullptr;
}

QAccessibleInterface* AccessibleGrid::cellAt(int row, int column) const
{
    const std::vector<int> shown = sections();
    return row < 0 || row >= rowCount() || column < 0 || column >= static_cast<int>(shown.size())
        ? nullptr
        : cellOf(m_grid.model()->index(row, shown[static_cast<std::size_t>(column)]));
}

QString AccessibleGrid::columnDescription(int column) const
{
    const std::vector<int> shown = sections();
    return column < 0 || column >= static_cast<int>(shown.size())
        ? QString()
        : captionOf(shown[static_cast<std::size_t>(column)])->text(QAccessible::Name);
}

int AccessibleGrid::columnCount() const
{
    return static_cast<int>(sections().size());
}

int AccessibleGrid::rowCount() const
{
    return m_grid.model() == nullptr ? 0 : m_grid.model()->rowCount();
}

int AccessibleGrid::selectedCellCount() const
{
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> AccessibleGrid::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int column = 0; column < columnCount(); ++column) {
            cells.append(cellAt(row, column));
        }
    }
    return cells;
}

int AccessibleGrid::selectedRowCount() const
{
    return static_cast<int>(selectedRows().size());
}

QList<int> AccessibleGrid::selectedRows() const
{
    return m_grid.selectedRows();
}

bool AccessibleGrid::isRowSelected(int row) const
{
    return row >= 0 && row < rowCount() && m_grid.selectionModel()->isSelected(m_grid.model()->index(row, 0));
}

bool AccessibleGrid::selectRow(int row)
{
    if (row < 0 || row >= rowCount()) {
        return false;
    }
    m_grid.setRowSelected(row, true);
    return true;
}

bool AccessibleGrid::unselectRow(int row)
{
    if (!isRowSelected(row)) {
        return false;
    }
    m_grid.setRowSelected(row, false);
    return true;
}

void AccessibleGrid::modelChange(QAccessibleTableModelChangeEvent* /*event*/)
{
    // Cells are kept by persistent index: one that has only moved stays the same object.
    m_cells.removeIf([](const auto& cell) {
        if (cell.key().isValid()) {
            return false;
        }
        QAccessible::deleteAccessibleInterface(cell.value());
        return true;
    });
}
