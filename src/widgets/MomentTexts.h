#pragma once

#include "system/Moment.h"

#include <QString>

/// 24-hour hours:minutes.
QString shortTimeFormat();
/// The day as the system's short date.
QString shortDate(Moment moment);
/// The time of day as the system's long time, without a zone name.
QString longTime(Moment moment);
/// Short date, a blank, long time: a due date in a list.
QString dateAndLongTime(Moment moment);
