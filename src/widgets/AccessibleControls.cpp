#include "widgets/AccessibleControls.h"

#include "widgets/AccessibleEntries.h"
#include "widgets/AccessibleMenu.h"
#include "widgets/CheckBox.h"
#include "widgets/ComboBox.h"
#include "widgets/LinkLabel.h"
#include "widgets/PlainText.h"
#include "widgets/QuietLine.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QPushButton>
#include <utility>

namespace
{

/// A button with one action besides setting the focus.
class AccessibleButton : public QAccessibleWidget
{
public:
    AccessibleButton(QAbstractButton& button, QAccessible::Role role, QString action)
        : QAccessibleWidget(&button, role), m_button(button), m_action(std::move(action))
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_button.accessibleName().isEmpty()) {
            return withoutMnemonic(m_button.text());
        }
        if (kind == QAccessible::Accelerator) {
            return QKeySequence::mnemonic(m_button.text()).toString(QKeySequence::NativeText);
        }
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = m_button.isDown();
        return state;
    }
    QStringList actionNames() const override
    {
        QStringList names;
        if (m_button.isEnabled()) {
            names.append(m_action);
        }
        return names + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name != m_action) {
            QAccessibleWidget::doAction(name);
        } else if (m_button.isEnabled()) {
            act();
        }
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        const QString key = text(QAccessible::Accelerator);
        return name == m_action && !key.isEmpty() ? QStringList(key) : QStringList();
    }

protected:
    virtual void act() = 0;

private:
    QAbstractButton& m_button;
    QString m_action;
};

class AccessibleCheckBox final : public AccessibleButton
{
public:
    explicit AccessibleCheckBox(CheckBox& box)
        : AccessibleButton(box, QAccessible::CheckBox, toggleAction()), m_box(box)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        state.checkable = true;
        state.checked = m_box.isChecked();
        return state;
    }

protected:
    void act() override { m_box.click(); }

private:
    CheckBox& m_box;
};

class AccessibleMenuButton final : public AccessibleButton
{
public:
    explicit AccessibleMenuButton(QPushButton& button)
        : AccessibleButton(button, QAccessible::ButtonMenu, showMenuAction()), m_button(button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleButton::state();
        state.hasPopup = true;
        return state;
    }

protected:
    void act() override
    {
        // Queued: QPushButton::showMenu() returns when the menu is closed, and assistive technology would
        // wait so long.
        QMetaObject::invokeMethod(&m_button, &QPushButton::showMenu, Qt::QueuedConnection);
    }

private:
    QPushButton& m_button;
};

/// A plain QWidget as a window: Qt would call it a mere container.
class AccessibleWindow final : public QAccessibleWidget
{
public:
    explicit AccessibleWindow(QWidget& window)
        : QAccessibleWidget(
            &window, window.windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window)
    {
    }
};

class AccessibleLink final : public QAccessibleWidget
{
public:
    explicit AccessibleLink(LinkLabel& link)
        : QAccessibleWidget(&link, QAccessible::Link, link.accessibleName()), m_link(link)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.linked = true;
        return state;
    }
    QStringList actionNames() const override
    {
        QStringList names;
        if (m_link.isEnabled()) {
            names.append(pressAction());
        }
        return names + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction()) {
            m_link.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    LinkLabel& m_link;
};

/// Screen readers read a notification out when it is shown.
class AccessibleQuietLine final : public QAccessibleWidget
{
public:
    explicit AccessibleQuietLine(QuietLine& line)
        : QAccessibleWidget(&line, QAccessible::Notification), m_line(line)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_line.shown() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (m_line.shown().isEmpty()) {
            state.invisible = true;
        }
        return state;
    }

private:
    QuietLine& m_line;
};

/// The combo box that owns the list `view`, whose window is the frame that opens below the box.
ComboBox* comboOf(const QAbstractItemView& view)
{
    return qobject_cast<ComboBox*>(view.window()->parentWidget());
}

/// Qt calls this for each class of the object, the most derived one first.
QAccessibleInterface* accessibleOf(const QString& className, QObject* object)
{
    if (auto* box = qobject_cast<CheckBox*>(object)) {
        return new AccessibleCheckBox(*box);
    }
    if (auto* link = qobject_cast<LinkLabel*>(object)) {
        return new AccessibleLink(*link);
    }
    if (auto* line = qobject_cast<QuietLine*>(object)) {
        return new AccessibleQuietLine(*line);
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(object)) {
        if (ComboBox* combo = comboOf(*view)) {
            return new AccessibleEntries(*view, *combo);
        }
    }
    if (auto* button = qobject_cast<QPushButton*>(object); button != nullptr && button->menu() != nullptr) {
        return new AccessibleMenuButton(*button);
    }
    if (auto* menu = qobject_cast<QMenu*>(object)) {
        return new AccessibleMenu(*menu);
    }
    if (auto* action = qobject_cast<QAction*>(object)) {
        return new AccessibleMenuEntry(*action);
    }
    if (className == QLatin1String("QWidget")) {
        if (auto* widget = qobject_cast<QWidget*>(object); widget != nullptr && widget->isWindow()) {
            return new AccessibleWindow(*widget);
        }
    }
    return nullptr;
}

} // namespace

void installAccessibleControls()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(accessibleOf);
        return true;
    }();
}
