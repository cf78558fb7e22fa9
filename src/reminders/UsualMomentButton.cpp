#include "reminders/UsualMomentButton.h"

#include "system/Clock.h"
#include "widgets/AccessibleControls.h"

#include <QAction>
#include <QMenu>

UsualMomentButton::UsualMomentButton(const QString& caption, const Clock& clock, QWidget* parent)
    : QPushButton(parent), m_clock(clock)
{
    installAccessibleControls();
    auto* menu = new QMenu(this);
    for (const UsualMoment which : AllUsualMoments) {
        QAction* entry = menu->addAction(captionOf(which));
        entry->setData(static_cast<int>(which));
        connect(entry, &QAction::triggered, this, [this, which] { choose(which); });
    }
    connect(menu, &QMenu::aboutToShow, this, &UsualMomentButton::leaveOutPassed);
    setMenu(menu);
    // Last: this is when assistive technology learns what kind of button it is.
    setText(caption);
}

void UsualMomentButton::leaveOutPassed()
{
    const Moment now = m_clock.now();
    for (QAction* entry : menu()->actions()) {
        entry->setVisible(momentOf(static_cast<UsualMoment>(entry->data().toInt()), now).has_value());
    }
}

void UsualMomentButton::choose(UsualMoment which)
{
    // Time may have passed while the menu was open.
    if (const std::optional<Moment> moment = momentOf(which, m_clock.now())) {
        emit momentChosen(*moment);
    }
}
