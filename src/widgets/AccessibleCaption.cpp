#include "widgets/AccessibleCaption.h"

#include "widgets/GridView.h"

#include <QHeaderView>

AccessiblePart::AccessiblePart(GridView& grid) : m_grid(&grid)
{
}

QAccessibleInterface* AccessiblePart::parent() const
{
    return m_grid == nullptr ? nullptr : QAccessible::queryAccessibleInterface(m_grid);
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = rect().isEmpty();
    state.disabled = m_grid && !m_grid->isEnabled();
    return state;
}

bool AccessiblePart::isShown() const
{
    return isValid() && m_grid->isVisible();
}

QRect AccessiblePart::onScreen(const QWidget& viewport, const QRect& inside)
{
    return {viewport.mapToGlobal(inside.topLeft()), inside.size()};
}

bool AccessibleCaption::isValid() const
{
    return m_grid && m_section < m_grid->horizontalHeader()->count() && !m_grid->isColumnHidden(m_section);
}

QString AccessibleCaption::text(QAccessible::Text kind) const
{
    if (!isValid()) {
        return {};
    }
    switch (kind) {
    case QAccessible::Name:
        return m_grid->model()->headerData(m_section, Qt::Horizontal).toString();
    case QAccessible::Description:
        return m_grid->captionNote(m_section);
    default:
        return {};
    }
}

QRect AccessibleCaption::rect() const
{
    if (!isShown()) {
        return {};
    }
    const QHeaderView& header = *m_grid->horizontalHeader();
    const QRect inside(
        header.sectionViewportPosition(m_section), 0, header.sectionSize(m_section), header.height());
    return onScreen(*header.viewport(), inside);
}

void* AccessibleCaption::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleCaption::actionNames() const
{
    return isValid() && m_grid->isEnabled() && !m_grid->captionNote(m_section).isEmpty()
        ? QStringList(pressAction())
        : QStringList();
}

void AccessibleCaption::doAction(const QString& name)
{
    if (actionNames().contains(name)) {
        m_grid->pressCaption(m_section);
    }
}
