#pragma once

#include "platform/Moment.h"

#include <QString>

/// Month/day/year, a blank and the 24-hour time to the minute, month first whatever the locale.
QString monthFirstText(QDate date, QTime time);
/// The moment of one picker's day and another one's time; seconds are dropped.
Moment composeMoment(QDate date, QTime time);
