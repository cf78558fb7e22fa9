#include "widgets/AccessibleMenu.h"

#include "widgets/PlainText.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>

namespace
{

QMenu* menuOf(const QAction& action)
{
    for (QObject* place : action.associatedObjects()) {
        if (auto* menu = qobject_cast<QMenu*>(place)) {
            return menu;
        }
    }
    return nullptr;
}

void closeMenus()
{
    while (auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        open->close();
    }
}

} // namespace

AccessibleMenu::AccessibleMenu(QMenu& menu) : QAccessibleWidget(&menu, QAccessible::PopupMenu), m_menu(menu)
{
}

QString AccessibleMenu::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return text.isEmpty() && kind == QAccessible::Name ? withoutMnemonic(m_menu.title()) : text;
}

QAccessibleInterface* AccessibleMenu::parent() const
{
    return menuOf(*m_menu.menuAction()) == nullptr
        ? QAccessibleWidget::parent()
        : QAccessible::queryAccessibleInterface(m_menu.menuAction());
}

int AccessibleMenu::childCount() const
{
    return static_cast<int>(m_menu.actions().size());
}

QAccessibleInterface* AccessibleMenu::child(int index) const
{
    return QAccessible::queryAccessibleInterface(m_menu.actions().value(index));
}

int AccessibleMenu::indexOfChild(const QAccessibleInterface* child) const
{
    return child == nullptr
        ? -1
        : static_cast<int>(m_menu.actions().indexOf(qobject_cast<QAction*>(child->object())));
}

QAccessibleInterface* AccessibleMenu::childAt(int x, int y) const
{
    return QAccessible::queryAccessibleInterface(m_menu.actionAt(m_menu.mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* AccessibleMenu::focusChild() const
{
    return QAccessible::queryAccessibleInterface(m_menu.activeAction());
}

AccessibleMenuEntry::AccessibleMenuEntry(QAction& action) : QAccessibleObject(&action), m_action(action)
{
}

QMenu* AccessibleMenuEntry::menu() const
{
    return menuOf(m_action);
}

bool AccessibleMenuEntry::isValid() const
{
    return QAccessibleObject::isValid() && menu() != nullptr;
}

bool AccessibleMenuEntry::isShown() const
{
    return isValid() && menu()->isVisible() && m_action.isVisible();
}

QAccessible::Role AccessibleMenuEntry::role() const
{
    return m_action.isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
}

QString AccessibleMenuEntry::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        // The menus of Qt's own edits have the key behind a tab.
        return withoutMnemonic(m_action.text().section(u'\t', 0, 0));
    case QAccessible::Accelerator:
        return (m_action.shortcut().isEmpty() ? QKeySequence::mnemonic(m_action.text()) : m_action.shortcut())
            .toString(QKeySequence::NativeText);
    default:
        return {};
    }
}

QRect AccessibleMenuEntry::rect() const
{
    if (!isShown()) {
        return {};
    }
    const QRect inside = menu()->actionGeometry(&m_action);
    return {menu()->mapToGlobal(inside.topLeft()), inside.size()};
}

QAccessible::State AccessibleMenuEntry::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !isShown();
    state.disabled = !m_action.isEnabled() || m_action.isSeparator();
    state.focusable = !state.disabled;
    state.focused = isShown() && menu()->activeAction() == &m_action;
    state.checkable = m_action.isCheckable();
    state.checked = m_action.isChecked();
    state.hasPopup = m_action.menu<QMenu*>() != nullptr;
    return state;
}

QAccessibleInterface* AccessibleMenuEntry::parent() const
{
    return QAccessible::queryAccessibleInterface(menu());
}

int AccessibleMenuEntry::childCount() const
{
    return m_action.menu<QMenu*>() == nullptr ? 0 : 1;
}

QAccessibleInterface* AccessibleMenuEntry::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(m_action.menu<QMenu*>()) : nullptr;
}

int AccessibleMenuEntry::indexOfChild(const QAccessibleInterface* child) const
{
    return child != nullptr && child->object() != nullptr && child->object() == m_action.menu<QMenu*>() ? 0
                                                                                                        : -1;
}

void* AccessibleMenuEntry::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleMenuEntry::actionNames() const
{
    if (!isValid() || state().disabled) {
        return {};
    }
    return {m_action.menu<QMenu*>() == nullptr ? pressAction() : showMenuAction()};
}

void AccessibleMenuEntry::doAction(const QString& name)
{
    if (!actionNames().contains(name)) {
        return;
    }
    if (name == showMenuAction()) {
        menu()->setActiveAction(&m_action);
        return;
    }
    QMetaObject::invokeMethod(
        &m_action,
        [action = &m_action] {
            closeMenus();
            action->trigger();
        },
        Qt::QueuedConnection);
}

QStringList AccessibleMenuEntry::keyBindingsForAction(const QString& name) const
{
    const QString key = text(QAccessible::Accelerator);
    return key.isEmpty() || !actionNames().contains(name) ? QStringList() : QStringList(key);
}
