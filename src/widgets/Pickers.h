#pragma once

#include "system/Moment.h"

class Clock;
class QDateEdit;
class QTimeEdit;

/// Gives a date picker the system's short date with a four-digit year, and a calendar pop-up that marks the
/// day of `clock`, which outlives the picker.
void setUpDatePicker(QDateEdit& picker, const Clock& clock);
/// Gives a time picker 24-hour hours and minutes.
void setUpTimePicker(QTimeEdit& picker);
/// Sets a pair of pickers to one moment, without running their handlers.
void setPickers(QDateEdit& date, QTimeEdit& time, Moment moment);
