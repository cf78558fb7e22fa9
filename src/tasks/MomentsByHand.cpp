#include "tasks/MomentsByHand.h"

#include "system/Clock.h"
#include "tasks/TaskDetailsControls.h"
#include "tasks/TaskMoments.h"
#include "widgets/MomentMenu.h"

#include <QDateEdit>
#include <QScopedValueRollback>
#include <QTimeEdit>

MomentsByHand::MomentsByHand(const TaskDetailsControls& controls, const Clock& clock)
    : m_controls(controls), m_clock(clock)
{
    for (const DueMoment which : AllDueMoments) {
        controls.btnSetDue->moments().addMoment(
            captionOf(which), [this, which] { return momentOf(which, m_clock.now()); });
    }
    for (const std::chrono::minutes lead : AllLeads) {
        controls.btnSetReminder->moments().addMoment(
            captionOf(lead), [this, lead] { return reminderAhead(lead); });
    }
    connect(&controls.btnSetDue->moments(), &MomentMenu::momentChosen, this, &MomentsByHand::setDue);
    connect(&controls.btnSetReminder->moments(), &MomentMenu::momentChosen, this,
        [this](Moment moment, int index) {
            emit reminderChosen();
            setReminder(moment);
            m_lead = AllLeads[static_cast<std::size_t>(index)];
        });
    connect(controls.dtpDueDate, &QDateEdit::dateChanged, this, &MomentsByHand::followDue);
    connect(controls.dtpDueTime, &QTimeEdit::timeChanged, this, &MomentsByHand::followDue);
    connect(controls.dtpReminderDate, &QDateEdit::dateChanged, this, &MomentsByHand::forgetUnlessFollowing);
    connect(controls.dtpReminderTime, &QTimeEdit::timeChanged, this, &MomentsByHand::forgetUnlessFollowing);
}

Moment MomentsByHand::due() const
{
    return composeMoment(m_controls.dtpDueDate->date(), m_controls.dtpDueTime->time());
}

std::optional<Moment> MomentsByHand::reminderAhead(std::chrono::minutes lead) const
{
    const Moment moment = reminderBefore(due(), lead);
    return moment < m_clock.now() ? std::nullopt : std::optional(moment);
}

void MomentsByHand::setDue(Moment moment)
{
    m_controls.dtpDueDate->setDate(toQDate(moment));
    m_controls.dtpDueTime->setTime(toQTime(moment));
}

void MomentsByHand::setReminder(Moment moment)
{
    const QScopedValueRollback setting(m_isSetting, true);
    m_controls.dtpReminderDate->setDate(toQDate(moment));
    m_controls.dtpReminderTime->setTime(toQTime(moment));
}

void MomentsByHand::followDue()
{
    if (m_lead) {
        setReminder(reminderBefore(due(), *m_lead));
    }
}

void MomentsByHand::forgetUnlessFollowing()
{
    if (!m_isSetting) {
        forget();
    }
}
