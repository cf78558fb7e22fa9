#pragma once

#include "system/Moment.h"

#include <QObject>
#include <optional>

class Clock;
class TaskDetailsControls;

/// Fills the four pickers of the task dialog from the menus of `btnSetDue` and `btnSetReminder`. A reminder
/// that was chosen so long before the due moment keeps that distance while the due moment changes, until the
/// reminder is changed in another way.
class MomentsByHand : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this object.
    MomentsByHand(const TaskDetailsControls& controls, const Clock& clock);

    /// From now on the reminder follows nothing.
    void forget() { m_lead.reset(); }

signals:
    /// A moment for the reminder was chosen: it is to be switched on.
    void reminderChosen();

private:
    Moment due() const;
    std::optional<Moment> reminderAhead(std::chrono::minutes lead) const;
    void setDue(Moment moment);
    void setReminder(Moment moment);
    void followDue();
    void forgetUnlessFollowing();

    const TaskDetailsControls& m_controls;
    const Clock& m_clock;
    /// Of the reminder that follows the due moment.
    std::optional<std::chrono::minutes> m_lead;
    bool m_isSetting = false;
};
