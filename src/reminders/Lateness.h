#pragma once

#include "platform/Moment.h"

#include <QString>

/// How late a reminder is, in the largest unit that has passed in full: "12 minutes late". Within the first
/// minute, and for a moment that lies ahead (the clock was set back), it is "due now".
QString latenessText(Moment reminder, Moment now);
