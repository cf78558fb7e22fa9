#pragma once

#include "system/Moment.h"

#include <QString>

/// The statements of reminders. A reminder is due from its moment on until it is dismissed.
namespace ReminderStatements
{

/// The condition that tasks meet whose reminders are due.
QString due();
/// The tasks whose reminders are due, with their categories.
QString selectDue();
/// Marks those tasks as played.
QString markDueAsPlayed();
QString dismissDue();
/// Of the tasks that meet the condition `which`.
QString dismiss(const QString& which);
/// The reminders of the tasks that meet the condition `which` are due again at `moment`, and not played then.
QString postpone(const QString& which, Moment moment);

} // namespace ReminderStatements
