#include "widgets/MomentMenu.h"

#include "widgets/AccessibleControls.h"

#include <QAction>

MomentMenu::MomentMenu(QWidget* parent) : QMenu(parent)
{
    connect(this, &QMenu::aboutToShow, this, &MomentMenu::disablePassed);
}

void MomentMenu::addMoment(const QString& caption, std::function<std::optional<Moment>()> moment)
{
    const int index = static_cast<int>(m_moments.size());
    m_moments.push_back(std::move(moment));
    connect(addAction(caption), &QAction::triggered, this, [this, index] { choose(index); });
}

void MomentMenu::disablePassed()
{
    for (std::size_t i = 0; i < m_moments.size(); ++i) {
        actions()[static_cast<qsizetype>(i)]->setEnabled(m_moments[i]().has_value());
    }
}

void MomentMenu::choose(int index)
{
    // Time may have passed while the menu was open.
    if (const std::optional<Moment> moment = m_moments[static_cast<std::size_t>(index)]()) {
        emit momentChosen(*moment, index);
    }
}

MomentButton::MomentButton(const QString& caption, QWidget* parent)
    : QPushButton(parent), m_moments(new MomentMenu(this))
{
    installAccessibleControls();
    setMenu(m_moments);
    // Last: this is when assistive technology learns what kind of button it is.
    setText(caption);
}
