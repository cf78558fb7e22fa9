#include "ui/AccessibleControls.h"

#include "ui/AccessibleEntries.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/LinkLabel.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QKeySequence>

namespace
{

QString withoutMnemonic(const QString& caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        // A doubled mark stands for the letter itself.
        if (caption[i] == u'&' && ++i == caption.size()) {
            break;
        }
        text += caption[i];
    }
    return text;
}

class AccessibleCheckBox final : public QAccessibleWidget
{
public:
    explicit AccessibleCheckBox(CheckBox& box)
        : QAccessibleWidget(&box, QAccessible::CheckBox), m_box(box) { }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && m_box.accessibleName().isEmpty()) {
            return withoutMnemonic(m_box.text());
        }
        if (kind == QAccessible::Accelerator) {
            return QKeySequence::mnemonic(m_box.text()).toString(QKeySequence::NativeText);
        }
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_box.isChecked();
        state.pressed = m_box.isDown();
        return state;
    }
    QStringList actionNames() const override
    {
        QStringList names;
        if (m_box.isEnabled()) {
            names.append(toggleAction());
        }
        return names + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == toggleAction()) {
            m_box.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }
    QStringList keyBindingsForAction(const QString& name) const override
    {
        const QString key = text(QAccessible::Accelerator);
        return name == toggleAction() && !key.isEmpty() ? QStringList(key) : QStringList();
    }

private:
    CheckBox& m_box;
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

/// The combo box whose list `view` is; its window is the frame that opens below the box.
ComboBox* comboOf(const QAbstractItemView& view)
{
    return qobject_cast<ComboBox*>(view.window()->parentWidget());
}

QAccessibleInterface* accessibleOf(const QString& /*className*/, QObject* object)
{
    if (auto* box = qobject_cast<CheckBox*>(object)) {
        return new AccessibleCheckBox(*box);
    }
    if (auto* link = qobject_cast<LinkLabel*>(object)) {
        return new AccessibleLink(*link);
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(object)) {
        if (ComboBox* combo = comboOf(*view)) {
            return new AccessibleEntries(*view, *combo);
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
