#pragma once

#include "system/Moment.h"

#include <QString>
#include <array>
#include <optional>

/// The moments by which tasks are usually due.
enum class DueMoment { Today, Tomorrow, NextMonday };

inline constexpr std::array AllDueMoments{DueMoment::Today, DueMoment::Tomorrow, DueMoment::NextMonday};

/// That moment as of `now`: today at 18:00, none from then on; tomorrow or the next Monday at 9:00.
std::optional<Moment> momentOf(DueMoment which, Moment now);
/// The entry of a menu for it, with its mnemonic.
QString captionOf(DueMoment which);

/// How long before the due moment reminders usually come.
inline constexpr std::array AllLeads{std::chrono::minutes(0), std::chrono::minutes(5),
    std::chrono::minutes(15), std::chrono::minutes(30), std::chrono::minutes(60),
    std::chrono::minutes(24 * 60)};

/// The moment of a reminder that comes `lead` before `due`: a day by the calendar, less by the time that
/// passes, which never gives a time that does not exist.
Moment reminderBefore(Moment due, std::chrono::minutes lead);
/// The entry of a menu for one of `AllLeads`, with its mnemonic.
QString captionOf(std::chrono::minutes lead);
