#pragma once

#include "data/RepeatRules.h"

/// Rules of iCalendar (RFC 5545) that go by days, weeks, months or years; hour, minute and second are those
/// of the first moment. Any bytes are answered within milliseconds.
class IcalRepeatRules final : public RepeatRules
{
public:
    std::optional<Moment> next(const Repeat& repeat, Moment after) const override;
    int count(const Repeat& repeat, Moment after, Moment until, int most) const override;
    bool isUsable(const std::string& rule) const override;
};
