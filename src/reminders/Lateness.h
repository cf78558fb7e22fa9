#pragma once

#include "system/Moment.h"

#include <QString>

/// How late a reminder is, in the largest unit that has passed in full: "12 minutes late". "due now" within
/// the first minute and for a moment ahead of `now` (the clock was set back).
QString latenessText(Moment reminder, Moment now);
/// How often a reminder of a repeating task has come since `first`, this time included: "4 times since
/// Monday". Empty for once.
QString missedText(int times, Moment first, Moment now);
