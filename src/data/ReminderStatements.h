#pragma once

#include "system/Moment.h"

#include <QString>

/// The statements of reminders. A reminder is due from its moment on until it is dismissed.
namespace ReminderStatements
{

/// The tasks whose reminders are due, with their categories.
QString selectDue();
/// Marks those tasks as played.
QString markDueAsPlayed();
QString dismissDue();
/// `id` is a task's, in digits.
QString dismiss(const QString& id);
/// The reminder of the task `id` is due again at `moment`, and not played then.
QString postpone(const QString& id, Moment moment);

} // namespace ReminderStatements
