#include "reminders/UsualMoments.h"

#include <QCoreApplication>
#include <algorithm>

using namespace std::chrono_literals;

namespace
{

constexpr auto Evening = 18h;
constexpr auto Morning = 9h;

struct UsualMoments {
    Q_DECLARE_TR_FUNCTIONS(UsualMoments)
};

/// When clocks are set back an hour occurs twice; the second one is meant.
Moment later(Moment now, std::chrono::minutes by)
{
    return std::max(toMinute(now) + by, toMinute(whenPassed(now, by)));
}

Moment nextMonday(Moment now)
{
    using namespace std::chrono;
    const days ahead = Monday - weekday(dayOf(now));
    return startOfDay(now) + (ahead == days(0) ? days(7) : ahead);
}

} // namespace

std::optional<Moment> momentOf(UsualMoment which, Moment now)
{
    switch (which) {
    case UsualMoment::In5Minutes:
        return later(now, 5min);
    case UsualMoment::In15Minutes:
        return later(now, 15min);
    case UsualMoment::In1Hour:
        return later(now, 1h);
    case UsualMoment::ThisEvening: {
        const Moment evening = startOfDay(now) + Evening;
        return now < evening ? std::optional(evening) : std::nullopt;
    }
    case UsualMoment::TomorrowMorning:
        return startOfDay(now) + std::chrono::days(1) + Morning;
    case UsualMoment::NextWeek:
        return nextMonday(now) + Morning;
    }
    return std::nullopt;
}

QString captionOf(UsualMoment which)
{
    switch (which) {
    case UsualMoment::In5Minutes:
        return UsualMoments::tr("In &5 minutes");
    case UsualMoment::In15Minutes:
        return UsualMoments::tr("In &15 minutes");
    case UsualMoment::In1Hour:
        return UsualMoments::tr("In 1 &hour");
    case UsualMoment::ThisEvening:
        return UsualMoments::tr("This &evening");
    case UsualMoment::TomorrowMorning:
        return UsualMoments::tr("&Tomorrow morning");
    case UsualMoment::NextWeek:
        return UsualMoments::tr("&Next week");
    }
    return {};
}
