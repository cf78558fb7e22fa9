#pragma once

#include "platform/Moment.h"

class QDateEdit;
class QTimeEdit;

/// Gives a date picker its calendar pop-up and the system's short date with a four-digit year.
void setUpDatePicker(QDateEdit& picker);
/// Gives a time picker 24-hour hours and minutes.
void setUpTimePicker(QTimeEdit& picker);
/// Sets a pair of pickers to one moment, without running their handlers.
void setPickers(QDateEdit& date, QTimeEdit& time, Moment moment);
