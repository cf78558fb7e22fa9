#include "widgets/AccessibleEntries.h"

#include "widgets/ComboBox.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QPointer>

namespace
{

class AccessibleEntry final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleEntry(QAbstractItemView& list, ComboBox& combo, int row)
        : m_list(&list), m_combo(&combo), m_row(row)
    {
    }

    int row() const { return m_row; }

    bool isValid() const override { return m_list && m_combo && m_row < m_combo->count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_list); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? m_combo->itemText(m_row) : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    QRect rect() const override
    {
        if (!isShown()) {
            return {};
        }
        const QRect inside = m_list->visualRect(index());
        return {m_list->viewport()->mapToGlobal(inside.topLeft()), inside.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.disabled = !m_combo->isEnabled();
        state.selectable = true;
        state.focusable = true;
        state.selected = m_combo->currentIndex() == m_row;
        state.invisible = !isShown();
        state.offscreen = isShown() && !m_list->viewport()->rect().intersects(m_list->visualRect(index()));
        state.focused = isShown() ? m_list->currentIndex().row() == m_row
                                  : m_combo->hasFocus() && m_combo->currentIndex() == m_row;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override
    {
        return isValid() && m_combo->isEnabled() ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString& name) override
    {
        if (isValid() && name == pressAction()) {
            m_combo->choose(m_row);
        }
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    QModelIndex index() const
    {
        return m_combo->model()->index(m_row, m_combo->modelColumn(), m_combo->rootModelIndex());
    }
    bool isShown() const { return isValid() && m_list->isVisible(); }

    QPointer<QAbstractItemView> m_list;
    QPointer<ComboBox> m_combo;
    int m_row;
};

} // namespace

AccessibleEntries::AccessibleEntries(QAbstractItemView& list, ComboBox& combo)
    : QAccessibleWidget(&list, QAccessible::List), m_list(list), m_combo(combo)
{
}

AccessibleEntries::~AccessibleEntries()
{
    for (const QAccessible::Id id : m_entries) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

QAccessibleInterface* AccessibleEntries::parent() const
{
    return QAccessible::queryAccessibleInterface(&m_combo);
}

int AccessibleEntries::childCount() const
{
    return m_combo.count();
}

QAccessibleInterface* AccessibleEntries::child(int index) const
{
    if (index < 0 || index >= m_combo.count()) {
        return nullptr;
    }
    for (int row = static_cast<int>(m_entries.size()); row <= index; ++row) {
        m_entries.push_back(
            QAccessible::registerAccessibleInterface(new AccessibleEntry(m_list, m_combo, row)));
    }
    return QAccessible::accessibleInterface(m_entries[static_cast<std::size_t>(index)]);
}

int AccessibleEntries::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* entry = dynamic_cast<const AccessibleEntry*>(child);
    return entry == nullptr ? -1 : entry->row();
}

QAccessibleInterface* AccessibleEntries::childAt(int x, int y) const
{
    return child(m_list.indexAt(m_list.viewport()->mapFromGlobal(QPoint(x, y))).row());
}

QAccessibleInterface* AccessibleEntries::focusChild() const
{
    return m_list.isVisible() ? child(m_list.currentIndex().row()) : nullptr;
}

void tellChosenEntry(ComboBox& combo)
{
    if (!QAccessible::isActive() || QGuiApplication::platformName() == QLatin1String("windows")
        || !combo.hasFocus() || combo.view()->isVisible()) {
        return;
    }
    if (QAccessibleInterface* entry =
            QAccessible::queryAccessibleInterface(combo.view())->child(combo.currentIndex())) {
        QAccessibleEvent event(entry, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}
