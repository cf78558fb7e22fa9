#pragma once

#include <QAccessibleObject>
#include <QAccessibleWidget>

class QAction;
class QMenu;

/// A menu as assistive technology sees it. Workaround: an entry of Qt 6.4.2 leaves the menu open and acts
/// before the caller is answered, who then waits for the end of a question that the entry asks
/// (tst_qt_workarounds, anEntryOfAMenuThatAssistiveTechnologyPressesActsAtOnceAndTheMenuStaysOpen).
class AccessibleMenu final : public QAccessibleWidget
{
public:
    explicit AccessibleMenu(QMenu& menu);

    QString text(QAccessible::Text kind) const override;
    /// The entry of a menu above; a menu that is none below another has the window that owns it.
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    /// The entries with their separators; nullptr when there is no such entry.
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    QMenu& m_menu;
};

/// An entry of a menu. Pressed, it closes all menus and acts after the caller has been answered.
class AccessibleMenuEntry final : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit AccessibleMenuEntry(QAction& action);

    bool isValid() const override;
    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    /// nullptr for an action that is in no menu.
    QMenu* menu() const;
    bool isShown() const;

    QAction& m_action;
};
