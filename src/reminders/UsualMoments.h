#pragma once

#include "system/Moment.h"

#include <QString>
#include <array>
#include <optional>

class Clock;
class MomentMenu;

/// The moments to which reminders are usually put off.
enum class UsualMoment { In5Minutes, In15Minutes, In1Hour, ThisEvening, TomorrowMorning, NextWeek };

inline constexpr std::array AllUsualMoments{UsualMoment::In5Minutes, UsualMoment::In15Minutes,
    UsualMoment::In1Hour, UsualMoment::ThisEvening, UsualMoment::TomorrowMorning, UsualMoment::NextWeek};

/// That moment as of `now`, in whole minutes. The evening is 18:00 of the same day, none from then on; the
/// morning is 9:00 of the next day; next week begins on Monday at 9:00. Minutes and hours are counted on
/// the clock; when clocks are set forward meanwhile, in real time. Never a time that does not exist, never
/// one that is too early.
std::optional<Moment> momentOf(UsualMoment which, Moment now);

/// The entry of a menu for it, with its mnemonic.
QString captionOf(UsualMoment which);
/// Adds all of them to `menu`, as of the moment when it opens. `clock` outlives the menu.
void addUsualMoments(MomentMenu& menu, const Clock& clock);
